#pragma once

#include "documents/descriptor.h"
#include "documents/goodslookup.h"
#include "ui/common/picker.h"
#include "ui/documents/screenkind.h"

#include <QString>

#include <optional>

class QComboBox;
class QWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

class CodeNameField;
struct Workspace;

// The choosers the document screens share.

// The party field of a document: suppliers or customers found by code, name or mnemonic,
// disabled ones left out.
CodeNameField *makePartyField(
    const shell::Session &session, documents::PartyTable table, QWidget *parent);
// The label of the party field ("供货商", "客户").
QString partyLabel(documents::PartyTable table);

// Fills a drop-down with the rows of a master list ("warehouse", "employee"): the name shown,
// the code as the item's data; disabled rows left out; "全部"/"所有仓库" first with an empty
// code when `withAll`.
void fillMasterBox(
    QComboBox *box, const shell::Session &session, const char *kindKey, bool withAll = false);
// Makes the item whose data is `code` current; false when the box has none.
bool chooseCode(QComboBox *box, const QString &code);

// The goods picker on the typed text, with the stock of `warehouse`. Purchase prices show only
// with "显示商品成本价" and sale prices only with "显示商品销售价"; with `newGoodsRight` (a
// position in `area`) held, "新增商品(F7)" adds a goods through the goods dialog and takes it.
class GoodsPickerDialog : public PickerDialog
{
    Q_OBJECT
public:
    GoodsPickerDialog(Workspace &workspace, const QString &text, const QString &warehouse,
        const QString &area, int newGoodsRight, QWidget *parent = nullptr);

    // The goods taken once accepted.
    std::optional<documents::GoodsChoice> chosen() const;

public slots:
    void addGoods();

private:
    Workspace &m_workspace;
    QString m_warehouse;
    QList<documents::GoodsChoice> m_shown;
    std::optional<documents::GoodsChoice> m_added;
};

// Runs the goods picker; nothing when it was closed without a choice.
std::optional<documents::GoodsChoice> pickGoods(Workspace &workspace, const QString &text,
    const QString &warehouse, const QString &area, int newGoodsRight, QWidget *parent);

// The batch picker: the batches offered, expired ones red and those near expiry orange, the
// proposed one current.
std::optional<BatchChoice> pickBatch(const QList<BatchChoice> &choices, QWidget *parent);

} // namespace medistock::ui
