#pragma once

#include "ui/common/queryscreen.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// The goods classes as a flat list, each indented under its parent, the class code as the item's
// data; the root ("所有类别", code empty or its own) holds all.
void fillClasses(QComboBox *box, const shell::Session &session);

// "当前库存查询": the stock of every goods per warehouse, or per batch with its expiry, narrowed
// by warehouse, goods class, a text, "只显示有库存" and the days within which a batch expires
// (which shows batches). Expired batches are red, those within 180 days orange. Cost and value
// columns are there only with "显示商品成本价". Enter or a double-click on a row shows the goods'
// ledger in that warehouse.
class StockQueryScreen : public QueryScreen
{
    Q_OBJECT
public:
    explicit StockQueryScreen(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *warehouseBox() const { return m_warehouse; }
    QComboBox *classBox() const { return m_class; }
    QLineEdit *searchField() const { return m_search; }
    QCheckBox *batchBox() const { return m_batches; }
    QCheckBox *inStockBox() const { return m_inStock; }
    QSpinBox *expiringBox() const { return m_expiring; }

public slots:
    // The ledger of the row's goods in its warehouse, in a window of its own.
    void showLedger(int row);

protected:
    void fetch() override;

private:
    void setMode(bool batches);
    void fetchWarehouses();
    void fetchBatches();

    QComboBox *m_warehouse;
    QComboBox *m_class;
    QLineEdit *m_search;
    QCheckBox *m_batches;
    QCheckBox *m_inStock;
    QSpinBox *m_expiring;
    bool m_costs;
    bool m_batchMode = false;
    QList<std::pair<QString, QString>> m_rowKeys; // goods and warehouse of each row
};

} // namespace medistock::ui
