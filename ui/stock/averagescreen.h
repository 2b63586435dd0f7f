#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace medistock::ui {

class CodeNameField;
class GoodsLedgerScreen;
struct Workspace;

// "修改商品均价": the goods and the warehouse (or all), the average and book stock now, the new
// average typed; "修改均价(F5)" asks and changes it through the stock module. The goods' ledger
// below shows the running figures before and after.
class AverageScreen : public QWidget
{
    Q_OBJECT
public:
    explicit AverageScreen(Workspace &workspace, QWidget *parent = nullptr);

    CodeNameField *goodsField() const { return m_goods; }
    QComboBox *warehouseBox() const { return m_warehouse; }
    QLineEdit *averageField() const { return m_average; }
    QLabel *nowLabel() const { return m_now; }
    GoodsLedgerScreen *ledger() const { return m_ledger; }

public slots:
    // Shows the chosen goods' average now and its ledger.
    void refresh();
    void change();

private:
    Workspace &m_workspace;
    CodeNameField *m_goods;
    QComboBox *m_warehouse;
    QLabel *m_now;
    QLineEdit *m_average;
    QPushButton *m_change;
    GoodsLedgerScreen *m_ledger;
};

} // namespace medistock::ui
