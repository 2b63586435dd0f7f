#pragma once

#include "documents/listing.h"
#include "documents/returnlimits.h"

#include <QDialog>

class QTableWidget;

namespace medistock::ui {

class DocumentScreen;

// A purchase return taken from a receipt: the checked receipts of the return's supplier above,
// the chosen receipt's lines below with what each still holds to return. Enter on a receipt
// goes to its lines, Space ticks a line, Enter takes the ticked lines onto the return (each with
// all it still holds, at the receipt's price, batch and unit, linked to its receipt line), and
// the return's warehouse becomes the receipt's.
class ReceiptLinesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ReceiptLinesDialog(DocumentScreen &screen);

    QTableWidget *receiptGrid() const { return m_receipts; }
    QTableWidget *lineGrid() const { return m_lines; }
    // Ticks or clears a line of the chosen receipt, counted from 0.
    void tick(int line, bool ticked);
    // Puts the ticked lines onto the screen's return.
    void takeInto(DocumentScreen &screen) const;

public slots:
    void showLines();
    void take();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<int> tickedLines() const;

    DocumentScreen &m_screen;
    QTableWidget *m_receipts;
    QTableWidget *m_lines;
    QList<documents::DocumentRow> m_receiptRows;
    QList<documents::ReturnableLine> m_returnable;
};

} // namespace medistock::ui
