#include "ui/stock/countkind.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "core/spreadsheet.h"
#include "documents/goodslookup.h"
#include "shell/session.h"
#include "stock/costs.h"
#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/stocktaking.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/stock/stockqueryscreen.h"
#include "ui/stock/texts.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>

namespace medistock::ui {

namespace {

// The columns of the exported sheet; an import reads them back by position.
enum SheetColumn { Code, Name, Packing, Unit, Batch, Produced, Expiry, Book, Counted, Columns };

QStringList sheetCaptions()
{
    return { sttexts::code, sttexts::name, sttexts::packing, sttexts::unit, sttexts::batch,
        sttexts::produced, sttexts::expiry, sttexts::bookQuantity, sttexts::countedQuantity };
}

QStringList keyOf(
    const QString &goods, const QString &batch, const QString &produced, const QString &expiry)
{
    return { goods.trimmed(), batch.trimmed(), produced.trimmed(), expiry.trimmed() };
}

LineEntry sheetLine(const shell::Session &session, const stock::BatchLine &batch)
{
    LineEntry line;
    if (const auto goods = documents::goodsChoice(session, batch.goods, QString()))
        line = LineEntry::of(*goods, documents::unitChoices(session.db(), batch.goods));
    line.goods = batch.goods;
    line.chosen = true;
    line.unit = batch.unit;
    line.batch = batch.batch;
    line.produced = batch.produced;
    line.expiry = batch.expiry;
    line.quantity = core::plainNumber(batch.quantity);
    line.price = QString::number(batch.price, 'f', session.params().priceDecimals());
    line.columns.set(QStringLiteral("kc_sl"), batch.quantity);
    return line;
}

} // namespace

CountScreenKind::CountScreenKind()
    : StockScreenKind(
        stock::stockTakingRights(), stock::checkStockTaking, stock::uncheckStockTaking)
{ }

const documents::DocumentKind &CountScreenKind::entry() const
{
    return stock::stockTakingEntry();
}

QList<LineField> CountScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
        LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Book,
        LineField::Quantity, LineField::Difference, LineField::Price, LineField::Amount };
}

QList<LineField> CountScreenKind::enterFields() const
{
    return { LineField::Code, LineField::Batch, LineField::Produced, LineField::Expiry,
        LineField::Quantity };
}

QString CountScreenKind::dueLabel() const
{
    return sttexts::countedAmount;
}

QList<std::pair<QString, QWidget *>> CountScreenKind::createHeaderFields(QWidget *parent)
{
    findScreen(parent);
    m_class = new QComboBox(parent);
    fillClasses(m_class, m_screen->workspace().session);
    m_scan = new QLineEdit(parent);
    m_scan->setPlaceholderText(sttexts::scanHint);
    // Enter ends a scan here rather than moving on to the next header field.
    m_scan->setProperty("enterConfirms", true);
    QObject::connect(m_scan, &QLineEdit::returnPressed, m_scan, [this] { scanned(); });
    return { { sttexts::goodsClass, m_class }, { sttexts::scan, m_scan } };
}

void CountScreenKind::setHeaderReadOnly(bool readOnly)
{
    m_class->setEnabled(!readOnly);
    m_scan->setEnabled(!readOnly);
}

void CountScreenKind::loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const
{
    line.columns.set(
        QStringLiteral("kc_sl"), stored.stored.value(QStringLiteral("kc_sl")).toDouble());
}

double CountScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &unit, const QString &) const
{
    const QString warehouse = m_screen ? m_screen->warehouseCode() : QString();
    return stock::currentCost(session, goods.code, warehouse) * unitFactor(session, goods, unit);
}

Result<QString> CountScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    return stock::saveStockTaking(session, draft);
}

void CountScreenKind::addActions(DocumentScreen &screen)
{
    StockScreenKind::addActions(screen);
    screen.lines()->setCaption(LineField::Quantity, sttexts::countedQuantity);
    auto *make = new QPushButton(sttexts::makeSheet + QStringLiteral("(F10)"), &screen);
    QObject::connect(make, &QPushButton::clicked, &screen, [this] { makeSheet(); });
    screen.addEditingAction(make, QKeySequence(Qt::Key_F10));
    auto *import = new QPushButton(sttexts::importCounts + QStringLiteral("(Ctrl+I)"), &screen);
    QObject::connect(import, &QPushButton::clicked, &screen, [this, &screen] {
        const QString path = QFileDialog::getOpenFileName(
            &screen, sttexts::importCounts, QDir::homePath(), texts::xlsxFilter());
        if (!path.isEmpty())
            importCounts(path);
    });
    screen.addEditingAction(import, QKeySequence(Qt::CTRL | Qt::Key_I));
    auto *exporting = new QPushButton(sttexts::exportSheet + QStringLiteral("(Ctrl+E)"), &screen);
    QObject::connect(exporting, &QPushButton::clicked, &screen, [this, &screen] {
        const QString path = QFileDialog::getSaveFileName(&screen, texts::exportTitle(),
            QDir::home().filePath(sttexts::countSheetFile + QStringLiteral(".xlsx")),
            texts::xlsxFilter());
        if (!path.isEmpty())
            exportSheet(path);
    });
    screen.addBarAction(exporting, QKeySequence(Qt::CTRL | Qt::Key_E));
}

void CountScreenKind::makeSheet()
{
    const shell::Session &session = m_screen->workspace().session;
    LineModel *lines = m_screen->lines();
    bool typed = false;
    for (const LineEntry &line : lines->lines())
        typed = typed || !line.isBlank();
    if (typed && !session.ui().ask(sttexts::replaceLines))
        return;
    QList<LineEntry> sheet;
    if (!readSafely(session.ui(), [&] {
            for (const stock::BatchLine &batch : stock::countSheet(
                     session, m_screen->warehouseCode(), m_class->currentData().toString()))
                sheet.append(sheetLine(session, batch));
        }))
        return;
    if (sheet.isEmpty()) {
        session.ui().inform(sttexts::nothingToCount);
        return;
    }
    lines->setLines({});
    m_screen->appendLines(sheet);
    m_screen->grid()->editCell(0, LineField::Quantity);
}

void CountScreenKind::scanned()
{
    const shell::Session &session = m_screen->workspace().session;
    const QString text = m_scan->text().trimmed();
    m_scan->clear();
    if (text.isEmpty())
        return;
    QList<documents::GoodsChoice> found;
    if (!readSafely(session.ui(),
            [&] { found = documents::findGoods(session, text, m_screen->warehouseCode(), 2); }))
        return;
    LineModel *lines = m_screen->lines();
    // A code or barcode typed in full finds one goods; its first line on the sheet is counted.
    if (found.size() == 1)
        for (int row = 0; row < lines->rowCount(); ++row)
            if (lines->line(row).chosen && lines->line(row).goods == found.first().code) {
                m_screen->grid()->editCell(row, LineField::Quantity);
                return;
            }
    session.ui().inform(sttexts::notOnSheet(text));
    m_scan->setFocus();
}

bool CountScreenKind::exportSheet(const QString &path)
{
    const shell::Session &session = m_screen->workspace().session;
    QList<QVariantList> rows;
    for (const LineEntry &line : m_screen->lines()->lines()) {
        if (!line.chosen)
            continue;
        const double counted = line.quantity.trimmed().toDouble();
        rows.append({ line.goods, line.name, line.packing, line.unit, line.batch, line.produced,
            line.expiry, line.columns.value(QStringLiteral("kc_sl")).toDouble(), counted });
    }
    const Outcome written = core::writeXlsx(path, sttexts::countSheetFile, sheetCaptions(), rows);
    session.ui().inform(written ? texts::exported(path) : written.message());
    return written.ok();
}

bool CountScreenKind::importCounts(const QString &path)
{
    const shell::Session &session = m_screen->workspace().session;
    const Result<QList<QStringList>> read = core::readXlsx(path);
    if (!read) {
        session.ui().inform(read.message());
        return false;
    }
    QHash<QStringList, int> rowOf;
    LineModel *lines = m_screen->lines();
    for (int row = 0; row < lines->rowCount(); ++row) {
        const LineEntry &line = lines->line(row);
        if (line.chosen)
            rowOf.insert(keyOf(line.goods, line.batch, line.produced, line.expiry), row);
    }
    QList<std::pair<int, QString>> counts;
    QStringList problems;
    const QList<QStringList> &sheet = read.value();
    for (qsizetype i = 1; i < sheet.size(); ++i) {
        const QStringList cells = sheet[i] + QStringList(Columns, QString());
        if (cells.mid(0, Columns).join(QString()).trimmed().isEmpty())
            continue;
        const int row
            = rowOf.value(keyOf(cells[Code], cells[Batch], cells[Produced], cells[Expiry]), -1);
        const Result<double> counted
            = documents::readLineNumber(int(i), documents::LineNumber::Quantity, cells[Counted]);
        if (row < 0)
            problems.append(sttexts::rowNotOnSheet(int(i) + 1, cells[Code], cells[Batch]));
        else if (!counted || counted.value() < 0)
            problems.append(sttexts::badCount(int(i) + 1, cells[Counted]));
        else
            counts.append({ row, core::plainNumber(counted.value()) });
    }
    if (!problems.isEmpty()) {
        session.ui().inform(sttexts::importRefused(problems));
        return false;
    }
    QList<LineEntry> all = lines->lines();
    for (const auto &[row, quantity] : counts)
        all[row].quantity = quantity;
    lines->setLines({});
    m_screen->appendLines(all);
    session.ui().inform(sttexts::imported(int(counts.size())));
    return true;
}

} // namespace medistock::ui
