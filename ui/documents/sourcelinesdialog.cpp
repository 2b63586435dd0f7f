#include "ui/documents/sourcelinesdialog.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/texts.h"

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

void loadSourceLink(const documents::DocumentLineRow &stored, LineEntry &line)
{
    const qint64 id2 = stored.stored.value(QStringLiteral("id2")).toLongLong();
    if (id2 > 0)
        line.columns.set(QStringLiteral("id2"), id2);
}

SourceLinesDialog::SourceLinesDialog(DocumentScreen &screen, ReturnSource source)
    : QDialog(&screen)
    , m_screen(screen)
    , m_source(std::move(source))
    , m_sources(makeGrid({ doctexts::number, doctexts::date, doctexts::warehouse,
                             doctexts::goodsCount, doctexts::amount, doctexts::note },
          this))
    , m_lines(makeGrid(
          { doctexts::returnColumn, caption(LineField::Code), caption(LineField::Name),
              caption(LineField::Packing), caption(LineField::Unit), caption(LineField::Batch),
              caption(LineField::Expiry), m_source.quantityCaption, doctexts::returnedBefore,
              doctexts::left, caption(LineField::Price) },
          this))
{
    setWindowTitle(m_source.title);
    m_sources->setColumnWidth(0, 130);
    const int widths[] = { 44, 96, 180, 96, 50, 84, 90, 76, 76, 76, 76 };
    for (int column = 0; column < int(std::size(widths)); ++column)
        m_lines->setColumnWidth(column, widths[column]);
    for (QTableWidget *grid : { m_sources, m_lines })
        grid->installEventFilter(this);
    const shell::Session &session = screen.workspace().session;
    readSafely(session.ui(), [&] {
        documents::DocumentFilter filter;
        filter.party = screen.partyCode();
        filter.status = 1;
        m_sourceRows = documents::listDocuments(session, *m_source.kind, filter);
    });
    // The newest first: a return usually follows its source closely.
    std::reverse(m_sourceRows.begin(), m_sourceRows.end());
    QList<QStringList> rows;
    for (const documents::DocumentRow &row : std::as_const(m_sourceRows))
        rows.append({ row.number, row.date, row.warehouseName, QString::number(row.goodsCount),
            QString::number(row.due, 'f', session.params().amountDecimals()), row.note });
    fillGrid(m_sources, rows);
    connect(m_sources, &QTableWidget::currentCellChanged, this, &SourceLinesDialog::showLines);

    auto *ok = new QPushButton(doctexts::take, this);
    auto *cancel = new QPushButton(doctexts::cancel, this);
    connect(ok, &QPushButton::clicked, this, &SourceLinesDialog::take);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    for (QPushButton *button : { ok, cancel })
        button->setAutoDefault(false);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(m_source.listCaption, this));
    layout->addWidget(m_sources, 2);
    layout->addWidget(m_lines, 3);
    layout->addLayout(buttons);
    resize(1100, 560);
    if (!m_sourceRows.isEmpty())
        m_sources->setCurrentCell(0, 0);
    m_sources->setFocus();
}

void SourceLinesDialog::showLines()
{
    const int row = m_sources->currentRow();
    m_returnable.clear();
    const shell::Session &session = m_screen.workspace().session;
    if (row >= 0 && row < m_sourceRows.size())
        readSafely(session.ui(), [&] {
            m_returnable = m_source.lines(session, m_sourceRows[row].number, m_screen.number());
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

void SourceLinesDialog::tick(int line, bool ticked)
{
    if (QTableWidgetItem *box = m_lines->item(line, 0);
        box && (box->flags() & Qt::ItemIsUserCheckable))
        box->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

QList<int> SourceLinesDialog::tickedLines() const
{
    QList<int> ticked;
    for (int i = 0; i < m_lines->rowCount(); ++i)
        if (m_lines->item(i, 0)->checkState() == Qt::Checked)
            ticked.append(i);
    return ticked;
}

void SourceLinesDialog::take()
{
    if (tickedLines().isEmpty()) {
        m_screen.workspace().session.ui().inform(doctexts::chooseLinesFirst);
        return;
    }
    accept();
}

void SourceLinesDialog::takeInto(DocumentScreen &screen) const
{
    const int source = m_sources->currentRow();
    if (source < 0 || source >= m_sourceRows.size())
        return;
    const shell::Session &session = screen.workspace().session;
    screen.setWarehouse(m_sourceRows[source].warehouse);
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

bool SourceLinesDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (watched == m_sources && enter) {
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
