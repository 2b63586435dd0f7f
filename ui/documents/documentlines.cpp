// The document screen's lines: goods typed and picked, prices and batches proposed, lines
// inserted and removed.
#include "ui/documents/documentscreen.h"

#include "core/interaction.h"
#include "documents/goodslookup.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/screenkind.h"
#include "ui/documents/texts.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QDate>
#include <QHeaderView>

namespace medistock::ui {

LineEntry DocumentScreen::lineFor(const documents::GoodsChoice &goods) const
{
    const shell::Session &session = m_workspace.session;
    LineEntry line = LineEntry::of(goods, documents::unitChoices(session.db(), goods.code));
    line.price = QString::number(m_kind->proposePrice(session, goods, goods.unit, partyCode()), 'f',
        session.params().priceDecimals());
    m_kind->proposeFigures(session, line, warehouseCode(), date());
    if (m_kind->outgoing())
        for (const BatchChoice &batch :
            m_kind->batchChoices(session, goods.code, warehouseCode(), date()))
            if (batch.proposed) {
                line.batch = batch.batch;
                line.expiry = batch.expiry;
                line.produced = batch.produced;
            }
    return line;
}

void DocumentScreen::fillLine(int row, const documents::GoodsChoice &goods)
{
    LineEntry line;
    readSafely(m_workspace.session.ui(), [&] { line = lineFor(goods); });
    // What was typed on the line besides the goods stays.
    const LineEntry &before = m_lines->line(row);
    if (!before.quantity.isEmpty())
        line.quantity = before.quantity;
    line.remark = before.remark;
    line.columns = before.columns;
    m_lines->replaceLine(row, line);
}

void DocumentScreen::checkNumber(int row, LineField field, const QString &text)
{
    const documents::LineNumber which = field == LineField::Quantity
        ? documents::LineNumber::Quantity
        : field == LineField::Price    ? documents::LineNumber::Price
        : field == LineField::Cost     ? documents::LineNumber::Cost
        : field == LineField::Discount ? documents::LineNumber::DiscountRate
                                       : documents::LineNumber::TaxRate;
    // What is typed stays in its cell; the save refuses it with the same words.
    const Result<double> read = documents::readLineNumber(row + 1, which, text);
    if (!read)
        m_workspace.session.ui().inform(read.message());
}

void DocumentScreen::lookUpGoods(int row, const QString &text)
{
    if (row >= m_lines->rowCount() || m_lines->line(row).chosen || m_lines->line(row).goods != text)
        return;
    QList<documents::GoodsChoice> found;
    if (!readSafely(m_workspace.session.ui(),
            [&] { found = documents::findGoods(m_workspace.session, text, warehouseCode()); }))
        return;
    if (found.isEmpty())
        m_workspace.session.ui().inform(doctexts::goodsNotFound(text));
    std::optional<documents::GoodsChoice> chosen;
    if (found.size() == 1)
        chosen = found.first();
    else if (found.size() > 1)
        chosen = pickGoods(m_workspace, text, warehouseCode(),
            QString::fromLatin1(m_kind->entry().rightArea), m_kind->newGoodsRight(), this);
    if (!chosen) {
        m_grid->editCell(row, LineField::Code);
        return;
    }
    fillLine(row, *chosen);
    m_grid->advance(row, LineField::Code);
}

void DocumentScreen::proposePrice(int row)
{
    LineEntry line = m_lines->line(row);
    if (!line.chosen)
        return;
    const shell::Session &session = m_workspace.session;
    readSafely(session.ui(), [&] {
        // The kind's figures follow the unit (a cost per unit); a typed price stays.
        m_kind->proposeFigures(session, line, warehouseCode(), date());
        if (line.priceTyped)
            return;
        if (const auto goods = documents::goodsChoice(session, line.goods, warehouseCode()))
            line.price
                = QString::number(m_kind->proposePrice(session, *goods, line.unit, partyCode()),
                    'f', session.params().priceDecimals());
    });
    m_lines->replaceLine(row, line);
}

void DocumentScreen::setWarehouse(const QString &code)
{
    if (code == warehouseCode() || !chooseCode(m_warehouse, code))
        return;
    markModified();
    refreshStock();
}

void DocumentScreen::refreshStock()
{
    QList<LineEntry> lines = m_lines->lines();
    readSafely(m_workspace.session.ui(), [&] {
        for (LineEntry &line : lines)
            if (line.chosen)
                if (const auto goods
                    = documents::goodsChoice(m_workspace.session, line.goods, warehouseCode()))
                    line.stock = goods->stock;
    });
    for (int row = 0; row < lines.size(); ++row)
        m_lines->replaceLine(row, lines[row]);
}

void DocumentScreen::appendLines(const QList<LineEntry> &lines)
{
    m_lines->removeBlankLines();
    QList<LineEntry> all = m_lines->lines();
    all += lines;
    m_lines->setLines(all);
    m_lines->appendBlank();
    markModified();
    refreshTotals();
}

void DocumentScreen::insertLine(int row)
{
    if (!m_lines->isEditable() || !m_lines->isAddingAllowed())
        return;
    const int at = std::clamp(row, 0, m_lines->rowCount());
    m_lines->insertBlank(at);
    m_grid->editCell(at, LineField::Code);
}

void DocumentScreen::deleteLine(int row)
{
    if (!m_lines->isEditable() || row < 0 || row >= m_lines->rowCount())
        return;
    m_lines->removeLine(row);
    if (m_lines->rowCount() == 0 && m_lines->isAddingAllowed())
        m_lines->appendBlank();
    m_grid->setCurrentIndex(
        m_lines->index(std::min(row, m_lines->rowCount() - 1), m_lines->columnOf(LineField::Code)));
}

void DocumentScreen::pickFor(int row, LineField field)
{
    if (!m_lines->isEditable() || row < 0 || row >= m_lines->rowCount())
        return;
    const LineEntry &line = m_lines->line(row);
    if (field == LineField::Code || field == LineField::Name) {
        if (line.chosen ? !m_lines->isAddingAllowed() : false)
            return;
        const auto chosen
            = pickGoods(m_workspace, line.chosen ? QString() : line.goods, warehouseCode(),
                QString::fromLatin1(m_kind->entry().rightArea), m_kind->newGoodsRight(), this);
        if (chosen) {
            fillLine(row, *chosen);
            m_grid->advance(row, LineField::Code);
        }
    } else if (field == LineField::Batch && m_kind->outgoing() && line.chosen) {
        pickBatch(row);
    } else if ((field == LineField::Produced || field == LineField::Expiry) && line.chosen) {
        pickDate(row, field);
    }
}

void DocumentScreen::pickBatch(int row)
{
    LineEntry line = m_lines->line(row);
    QList<BatchChoice> choices;
    readSafely(m_workspace.session.ui(), [&] {
        choices = m_kind->batchChoices(m_workspace.session, line.goods, warehouseCode(), date());
    });
    const std::optional<BatchChoice> chosen = ui::pickBatch(choices, this);
    if (!chosen)
        return;
    line.batch = chosen->batch;
    line.expiry = chosen->expiry;
    line.produced = chosen->produced;
    m_lines->replaceLine(row, line);
    m_grid->advance(row, LineField::Batch);
}

void DocumentScreen::pickDate(int row, LineField field)
{
    auto *calendar = new QCalendarWidget(this);
    calendar->setWindowFlags(Qt::Popup);
    calendar->setAttribute(Qt::WA_DeleteOnClose);
    const QModelIndex index = m_lines->index(row, m_lines->columnOf(field));
    const QDate current = QDate::fromString(index.data().toString(), QStringLiteral("yyyy-MM-dd"));
    if (current.isValid())
        calendar->setSelectedDate(current);
    const auto choose = [this, calendar, index, row, field](QDate day) {
        m_lines->setData(index, day.toString(QStringLiteral("yyyy-MM-dd")), Qt::EditRole);
        calendar->close();
        m_grid->advance(row, field);
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    const QRect cell = m_grid->visualRect(index);
    calendar->move(m_grid->viewport()->mapToGlobal(cell.bottomLeft()));
    calendar->show();
    calendar->setFocus();
}

} // namespace medistock::ui
