#pragma once

#include "ui/common/queryscreen.h"

class QComboBox;
class QLineEdit;

namespace medistock::ui {

// "库存报警查询": the goods whose stock is below their minimum ("最低库存"), in all warehouses
// together or in one, narrowed by goods class and a text, with the minimum and the shortage
// beside the stock. The goods keep no maximum, so only the minimum is watched. Enter or a
// double-click shows the goods' ledger.
class StockAlarmScreen : public QueryScreen
{
    Q_OBJECT
public:
    explicit StockAlarmScreen(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *warehouseBox() const { return m_warehouse; }
    QComboBox *classBox() const { return m_class; }
    QLineEdit *searchField() const { return m_search; }

protected:
    void fetch() override;

private:
    QComboBox *m_warehouse;
    QComboBox *m_class;
    QLineEdit *m_search;
    QStringList m_goods; // the goods of each row
};

} // namespace medistock::ui
