#pragma once

#include "documents/descriptor.h"
#include "documents/listing.h"
#include "documents/returnlimits.h"
#include "ui/documents/linemodel.h"

#include <QDialog>

#include <functional>

class QTableWidget;

namespace medistock::ui {

class DocumentScreen;

// Where a return takes its lines from: the checked documents of one kind (a purchase receipt, a
// sale) and what each of their lines still holds to return.
struct ReturnSource
{
    const documents::DocumentKind *kind;
    // The source's lines with what returns other than `returnNumber` already took.
    std::function<QList<documents::ReturnableLine>(
        const shell::Session &session, const QString &source, const QString &returnNumber)>
        lines;
    QString title; // "选择进货单及退货商品"
    QString listCaption; // "已审核的进货单"
    QString quantityCaption; // "进货数量"
};

// A stored return line's link to its source line ("id2") back onto the screen's line.
void loadSourceLink(const documents::DocumentLineRow &stored, LineEntry &line);

// A return taken from a source document: the checked sources of the return's party above, the
// chosen one's lines below with what each still holds to return. Enter on a source goes to its
// lines, Space ticks a line, Enter takes the ticked lines onto the return (each with all it still
// holds, at the source's price, batch and unit, linked to its source line), and the return's
// warehouse becomes the source's.
class SourceLinesDialog : public QDialog
{
    Q_OBJECT
public:
    SourceLinesDialog(DocumentScreen &screen, ReturnSource source);

    QTableWidget *sourceGrid() const { return m_sources; }
    QTableWidget *lineGrid() const { return m_lines; }
    // Ticks or clears a line of the chosen source, counted from 0.
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
    ReturnSource m_source;
    QTableWidget *m_sources;
    QTableWidget *m_lines;
    QList<documents::DocumentRow> m_sourceRows;
    QList<documents::ReturnableLine> m_returnable;
};

} // namespace medistock::ui
