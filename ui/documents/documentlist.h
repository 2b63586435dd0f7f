#pragma once

#include "documents/descriptor.h"
#include "documents/listing.h"
#include "ui/common/queryscreen.h"

#include <QList>

#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QTableWidget;

namespace medistock::ui {

class CodeNameField;
class DateField;

// A kind of document a list shows, and where its screen is: the operation that opens it
// ("cggl" 1) and its report key.
struct ListedKind
{
    const documents::DocumentKind *entry = nullptr;
    QString area {};
    int position = 0;
    QString printKey {};
    double sign = 1; // -1 where the amount goes the other way (a return among receipts)
};

// Which filters a document list offers.
struct ListFilters
{
    bool dates = true; // "日期从 … 到 …", the current month by default
    bool party = true;
    bool warehouse = true;
    bool goods = true;
    std::optional<int> status {}; // fixed; none: a choice of 全部/未审核/已审核
    bool lines = true; // the chosen document's lines below the list
};

// The documents of one or more kinds in one list (receipts and returns together), by date and
// number, with the chosen document's lines below. Enter or a double-click opens the document in
// its screen; "打印(F8)" prints the chosen document.
class DocumentListScreen : public QueryScreen
{
    Q_OBJECT
public:
    DocumentListScreen(Workspace &workspace, const QString &title, QList<ListedKind> kinds,
        const ListFilters &filters, QWidget *parent = nullptr);

    // The chosen document; nullptr / empty when no row is chosen.
    const ListedKind *currentKind() const;
    QString currentNumber() const;

    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    CodeNameField *partyField() const { return m_party; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QLineEdit *goodsField() const { return m_goods; }
    QComboBox *statusBox() const { return m_status; }
    QComboBox *kindBox() const { return m_kindBox; }
    QTableWidget *linesGrid() const { return m_lines; }

    // What opening a document does: by default it opens in its screen through the workspace.
    using Opener = std::function<void(const ListedKind &kind, const QString &number)>;
    void setOpener(Opener opener) { m_opener = std::move(opener); }

public slots:
    // Opens the chosen document.
    void openCurrent();

protected:
    void fetch() override;
    PrintRequest printRequest() const override;

private:
    void buildFilters(const ListFilters &filters);
    documents::DocumentFilter filter() const;
    void showLines(int row);

    QList<ListedKind> m_kinds;
    QList<int> m_rowKinds; // the kind of each row
    QList<QString> m_rowNumbers;
    DateField *m_from = nullptr;
    DateField *m_to = nullptr;
    CodeNameField *m_party = nullptr;
    QComboBox *m_warehouse = nullptr;
    QLineEdit *m_goods = nullptr;
    QComboBox *m_status = nullptr;
    QComboBox *m_kindBox = nullptr;
    std::optional<int> m_fixedStatus;
    QTableWidget *m_lines = nullptr;
    Opener m_opener;
};

} // namespace medistock::ui
