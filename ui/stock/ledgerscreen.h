#pragma once

#include "ui/common/queryscreen.h"

class QComboBox;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

class CodeNameField;
class DateField;

// "库存变动情况": the goods ledger of one goods, in one warehouse or all, between two dates (both
// open by default), of one kind of document or all: each movement with what came in or went out and
// the running quantity, moving average and stock value after it. Prices, amounts, averages and
// values only with "显示商品成本价". A double-click on a purchase receipt or return opens it in its
// screen.
class GoodsLedgerScreen : public QueryScreen
{
    Q_OBJECT
public:
    explicit GoodsLedgerScreen(Workspace &workspace, QWidget *parent = nullptr);

    CodeNameField *goodsField() const { return m_goods; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QComboBox *kindBox() const { return m_kind; }
    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }

    // Shows the ledger of a goods in a warehouse (empty: every warehouse).
    void showGoods(const QString &goods, const QString &warehouse);

public slots:
    void openSource(int row);

protected:
    void fetch() override;

private:
    CodeNameField *m_goods;
    QComboBox *m_warehouse;
    QComboBox *m_kind;
    DateField *m_from;
    DateField *m_to;
    bool m_costs;
    QList<std::pair<QString, QString>> m_sources; // ledger kind and number of each row
};

// A field that finds a goods by code, mnemonic, name or barcode (a picker when several match).
CodeNameField *makeGoodsField(const shell::Session &session, QWidget *parent);

// The ledger of a goods in a warehouse (empty: every warehouse) in a dialog over `parent`.
void showLedgerDialog(
    Workspace &workspace, const QString &goods, const QString &warehouse, QWidget *parent);

} // namespace medistock::ui
