#pragma once

#include "sales/orders.h"

#include <QDialog>

class QLineEdit;
class QTableWidget;

namespace medistock::ui {

class DocumentScreen;

// "导入销售订单": the open lines of checked orders, newest first, narrowed by the text typed
// (order number, customer code, mnemonic or name). Space ticks a line and Enter takes the ticked
// lines; F6 takes the whole order of the current line. Each line comes with its open quantity
// (ordered less delivered), the order's price, unit and rates, its batch or else the one expiring
// first; the sale's header takes the order's customer, warehouse, salesman, settlement and note.
// A whole order replaces the lines entered, single lines are added to them.
class OrderLinesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit OrderLinesDialog(DocumentScreen &screen);

    QLineEdit *filterField() const { return m_filter; }
    QTableWidget *lineGrid() const { return m_lines; }
    void tick(int line, bool ticked);
    // Puts what was chosen onto the screen's sale.
    void takeInto(DocumentScreen &screen) const;

public slots:
    void refresh();
    void takeTicked();
    void takeWholeOrder();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<qint64> tickedLines() const;

    DocumentScreen &m_screen;
    QLineEdit *m_filter;
    QTableWidget *m_lines;
    QList<sales::OpenOrderLine> m_open;
    QString m_wholeOrder; // set when the whole order was chosen
};

} // namespace medistock::ui
