#include "ui/sales/orderlinesdialog.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "documents/goodslookup.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/pickers.h"
#include "ui/documents/texts.h"
#include "ui/sales/salekinds.h"
#include "ui/sales/texts.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// A line taken from an order as the screen shows it: what the order says, and for a line
// without batch the one the screen proposes.
LineEntry entryOf(const DocumentScreen &screen, const documents::LineDraft &taken)
{
    const shell::Session &session = screen.workspace().session;
    const auto goods = documents::goodsChoice(session, taken.goods, screen.warehouseCode());
    if (!goods)
        return {};
    LineEntry line = screen.lineFor(*goods);
    if (!taken.unit.isEmpty())
        line.unit = taken.unit;
    line.quantity = taken.quantity;
    line.price = taken.price;
    line.taxRate = taken.taxRate.toDouble() == 0 ? QString() : taken.taxRate;
    line.discountRate = taken.discountRate.isEmpty() || taken.discountRate.toDouble() == 1
        ? QString()
        : taken.discountRate;
    if (!taken.batch.isEmpty()) {
        line.batch = taken.batch;
        line.produced = taken.produced;
        line.expiry = taken.expiry;
    }
    line.remark = taken.remark;
    line.columns = taken.columns;
    line.priceTyped = true;
    return line;
}

} // namespace

OrderLinesDialog::OrderLinesDialog(DocumentScreen &screen)
    : QDialog(&screen)
    , m_screen(screen)
    , m_filter(new QLineEdit(this))
    , m_lines(makeGrid({ sltexts::take, sltexts::order, sltexts::orderDate, sltexts::customer,
                           doctexts::lineCaption(int(LineField::Code)),
                           doctexts::lineCaption(int(LineField::Name)),
                           doctexts::lineCaption(int(LineField::Unit)), sltexts::ordered,
                           sltexts::delivered, sltexts::open },
          this))
{
    setWindowTitle(sltexts::importOrders);
    const int widths[] = { 44, 120, 90, 150, 90, 180, 50, 76, 76, 76 };
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_lines->setColumnWidth(column, widths[column]);
    m_filter->setPlaceholderText(sltexts::orderSearch);
    m_filter->installEventFilter(this);
    m_lines->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &OrderLinesDialog::refresh);

    auto *ok = new QPushButton(doctexts::take, this);
    auto *whole = new QPushButton(sltexts::wholeOrder, this);
    auto *cancel = new QPushButton(doctexts::cancel, this);
    connect(ok, &QPushButton::clicked, this, &OrderLinesDialog::takeTicked);
    connect(whole, &QPushButton::clicked, this, &OrderLinesDialog::takeWholeOrder);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *shortcut = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(shortcut, &QShortcut::activated, this, &OrderLinesDialog::takeWholeOrder);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton *button : { ok, whole, cancel }) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_lines, 1);
    layout->addLayout(buttons);
    resize(1000, 480);
    refresh();
    m_filter->setFocus();
}

void OrderLinesDialog::refresh()
{
    const shell::Session &session = m_screen.workspace().session;
    sales::OrderFilter filter;
    filter.text = m_filter->text().trimmed();
    m_open.clear();
    readSafely(session.ui(), [&] { m_open = sales::openOrderLines(session, filter); });
    QList<QStringList> rows;
    for (const sales::OpenOrderLine &l : std::as_const(m_open))
        rows.append({ QString(), l.order, l.date, l.customerName, l.goods, l.goodsName, l.unit,
            core::plainNumber(l.ordered), core::plainNumber(l.delivered),
            core::plainNumber(l.open) });
    fillGrid(m_lines, rows);
    for (int i = 0; i < m_lines->rowCount(); ++i) {
        QTableWidgetItem *box = m_lines->item(i, 0);
        box->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        box->setCheckState(Qt::Unchecked);
        for (int column = 7; column < m_lines->columnCount(); ++column)
            m_lines->item(i, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (m_lines->rowCount() > 0)
        m_lines->setCurrentCell(0, 1);
}

void OrderLinesDialog::tick(int line, bool ticked)
{
    if (QTableWidgetItem *box = m_lines->item(line, 0))
        box->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

QList<qint64> OrderLinesDialog::tickedLines() const
{
    QList<qint64> ids;
    for (int i = 0; i < m_lines->rowCount(); ++i)
        if (m_lines->item(i, 0)->checkState() == Qt::Checked)
            ids.append(m_open[i].id);
    return ids;
}

void OrderLinesDialog::takeTicked()
{
    if (tickedLines().isEmpty()) {
        m_screen.workspace().session.ui().inform(doctexts::chooseLinesFirst);
        return;
    }
    m_wholeOrder.clear();
    accept();
}

void OrderLinesDialog::takeWholeOrder()
{
    const int row = m_lines->currentRow();
    if (row < 0 || row >= m_open.size()) {
        m_screen.workspace().session.ui().inform(doctexts::chooseDocumentFirst);
        return;
    }
    m_wholeOrder = m_open[row].order;
    accept();
}

void OrderLinesDialog::takeInto(DocumentScreen &screen) const
{
    const shell::Session &session = screen.workspace().session;
    sales::SaleDraft sale;
    const bool taken = readSafely(session.ui(), [&] {
        if (!(m_wholeOrder.isEmpty() ? sales::takeOverOrderLines(session, tickedLines(), sale)
                                     : sales::takeOverOrder(session, m_wholeOrder, sale)))
            sale.entry.lines.clear();
    });
    if (!taken || sale.entry.lines.isEmpty())
        return;
    for (const sales::OpenOrderLine &l : m_open)
        if (l.customer == sale.entry.party)
            screen.partyField()->setChoice(l.customer, l.customerName);
    screen.setWarehouse(sale.entry.warehouse);
    if (screen.employeeBox())
        chooseCode(screen.employeeBox(), sale.entry.employee);
    if (screen.noteField())
        screen.noteField()->setText(sale.entry.note);
    if (auto *kind = dynamic_cast<SalesScreenKind *>(&screen.kind()))
        kind->takeHeader(sale.header);
    QList<LineEntry> lines;
    for (const documents::LineDraft &line : std::as_const(sale.entry.lines))
        if (LineEntry entry = entryOf(screen, line); entry.chosen)
            lines.append(entry);
    if (!m_wholeOrder.isEmpty())
        screen.lines()->setLines({});
    screen.appendLines(lines);
}

bool OrderLinesDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const int row = m_lines->currentRow();
    if (watched == m_filter && (key == Qt::Key_Down || key == Qt::Key_Up)) {
        const int next = std::clamp(
            row + (key == Qt::Key_Down ? 1 : -1), 0, std::max(0, int(m_lines->rowCount()) - 1));
        if (m_lines->rowCount() > 0)
            m_lines->setCurrentCell(next, 1);
        return true;
    }
    if (key == Qt::Key_Space && (watched == m_lines || m_filter->text().isEmpty())) {
        if (row >= 0)
            tick(row, m_lines->item(row, 0)->checkState() != Qt::Checked);
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        takeTicked();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace medistock::ui
