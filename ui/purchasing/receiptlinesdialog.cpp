#include "ui/purchasing/receiptlinesdialog.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "purchasing/kinds.h"
#include "purchasing/proposals.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/texts.h"
#include "ui/purchasing/texts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString plain(double value)
{
    return core::plainNumber(value);
}

QString caption(LineField field)
{
    return doctexts::lineCaption(int(field));
}

} // namespace

ReceiptLinesDialog::ReceiptLinesDialog(DocumentScreen &screen)
    : QDialog(&screen)
    , m_screen(screen)
    , m_receipts(makeGrid({ doctexts::number, doctexts::date, doctexts::warehouse,
                              doctexts::goodsCount, doctexts::amount, doctexts::note },
          this))
    , m_lines(makeGrid({ QStringLiteral("退货"), caption(LineField::Code), caption(LineField::Name),
                           caption(LineField::Packing), caption(LineField::Unit),
                           caption(LineField::Batch), caption(LineField::Expiry), pctexts::bought,
                           pctexts::returnedBefore, pctexts::left, caption(LineField::Price) },
          this))
{
    setWindowTitle(pctexts::receiptLinesTitle);
    m_receipts->setColumnWidth(0, 130);
    const int widths[] = { 44, 96, 180, 96, 50, 84, 90, 76, 76, 76, 76 };
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_lines->setColumnWidth(column, widths[column]);
    for (QTableWidget *grid : { m_receipts, m_lines })
        grid->installEventFilter(this);
    const shell::Session &session = screen.workspace().session;
    readSafely(session.ui(), [&] {
        documents::DocumentFilter filter;
        filter.party = screen.partyCode();
        filter.status = 1;
        m_receiptRows
            = documents::listDocuments(session, purchasing::purchaseReceipt().entry, filter);
    });
    // The newest receipt first: a return usually follows its receipt closely.
    std::reverse(m_receiptRows.begin(), m_receiptRows.end());
    QList<QStringList> rows;
    for (const documents::DocumentRow &row : std::as_const(m_receiptRows))
        rows.append({ row.number, row.date, row.warehouseName, QString::number(row.goodsCount),
            QString::number(row.due, 'f', session.params().amountDecimals()), row.note });
    fillGrid(m_receipts, rows);
    connect(m_receipts, &QTableWidget::currentCellChanged, this, &ReceiptLinesDialog::showLines);

    auto *ok = new QPushButton(pctexts::take, this);
    auto *cancel = new QPushButton(pctexts::cancel, this);
    connect(ok, &QPushButton::clicked, this, &ReceiptLinesDialog::take);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (QPushButton *button : { ok, cancel })
        button->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(pctexts::receipts, this));
    layout->addWidget(m_receipts, 2);
    layout->addWidget(m_lines, 3);
    layout->addLayout(buttons);
    resize(1100, 560);
    if (!m_receiptRows.isEmpty())
        m_receipts->setCurrentCell(0, 0);
    m_receipts->setFocus();
}

void ReceiptLinesDialog::showLines()
{
    const int row = m_receipts->currentRow();
    m_returnable.clear();
    const shell::Session &session = m_screen.workspace().session;
    if (row >= 0 && row < m_receiptRows.size())
        readSafely(session.ui(), [&] {
            m_returnable = purchasing::returnableReceiptLines(
                session, m_receiptRows[row].number, m_screen.number());
        });
    QList<QStringList> rows;
    for (const documents::ReturnableLine &r : std::as_const(m_returnable))
        rows.append({ QString(), r.line.goods, r.line.goodsName, r.line.packing, r.line.unit,
            r.line.batch, r.line.expiry, plain(r.line.baseQuantity), plain(r.returned),
            plain(r.left), plain(r.line.price) });
    fillGrid(m_lines, rows);
    for (int i = 0; i < m_lines->rowCount(); ++i) {
        QTableWidgetItem *box = m_lines->item(i, 0);
        box->setFlags(m_returnable[i].left > 0 ? Qt::ItemIsEnabled | Qt::ItemIsUserCheckable
                                               : Qt::NoItemFlags);
        box->setCheckState(Qt::Unchecked);
        for (int column = 7; column < m_lines->columnCount(); ++column)
            m_lines->item(i, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (m_lines->rowCount() > 0)
        m_lines->setCurrentCell(0, 0);
}

void ReceiptLinesDialog::tick(int line, bool ticked)
{
    if (QTableWidgetItem *box = m_lines->item(line, 0);
        box && (box->flags() & Qt::ItemIsUserCheckable))
        box->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

QList<int> ReceiptLinesDialog::tickedLines() const
{
    QList<int> ticked;
    for (int i = 0; i < m_lines->rowCount(); ++i)
        if (m_lines->item(i, 0)->checkState() == Qt::Checked)
            ticked.append(i);
    return ticked;
}

void ReceiptLinesDialog::take()
{
    if (tickedLines().isEmpty()) {
        m_screen.workspace().session.ui().inform(pctexts::chooseLinesFirst);
        return;
    }
    accept();
}

void ReceiptLinesDialog::takeInto(DocumentScreen &screen) const
{
    const int receipt = m_receipts->currentRow();
    if (receipt < 0 || receipt >= m_receiptRows.size())
        return;
    const shell::Session &session = screen.workspace().session;
    screen.setWarehouse(m_receiptRows[receipt].warehouse);
    QList<LineEntry> lines;
    for (int i : tickedLines()) {
        const documents::ReturnableLine &r = m_returnable[i];
        const auto goods = documents::goodsChoice(session, r.line.goods, screen.warehouseCode());
        if (!goods)
            continue;
        LineEntry line = screen.lineFor(*goods);
        const double factor = r.line.quantity != 0 ? r.line.baseQuantity / r.line.quantity : 1;
        line.unit = r.line.unit;
        line.quantity = plain(session.params().roundQuantity(r.left / factor));
        line.price = QString::number(r.line.price, 'f', session.params().priceDecimals());
        line.taxRate = r.line.taxRate == 0 ? QString() : plain(r.line.taxRate);
        line.discountRate = r.line.discountRate == 1 ? QString() : plain(r.line.discountRate);
        line.batch = r.line.batch;
        line.produced = r.line.produced;
        line.expiry = r.line.expiry;
        line.priceTyped = true;
        line.columns.set(QStringLiteral("id2"), r.lineId);
        lines.append(line);
    }
    screen.appendLines(lines);
}

bool ReceiptLinesDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_receipts && enter) {
        m_lines->setFocus();
        return true;
    }
    if (watched == m_lines && key == Qt::Key_Space) {
        const int row = m_lines->currentRow();
        if (row >= 0)
            tick(row, m_lines->item(row, 0)->checkState() != Qt::Checked);
        return true;
    }
    if (watched == m_lines && enter) {
        take();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace medistock::ui
