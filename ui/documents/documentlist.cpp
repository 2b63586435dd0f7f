#include "ui/documents/documentlist.h"

#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/pickers.h"
#include "ui/documents/texts.h"

#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QTableWidget>

namespace medistock::ui {

namespace {

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QStringList lineCaptions()
{
    QStringList captions;
    for (LineField field :
        { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
            LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Quantity,
            LineField::Price, LineField::Amount, LineField::Total, LineField::Remark })
        captions.append(doctexts::lineCaption(int(field)));
    return captions;
}

} // namespace

DocumentListScreen::DocumentListScreen(Workspace &workspace, const QString &title,
    QList<ListedKind> kinds, const ListFilters &filters, QWidget *parent)
    : QueryScreen(workspace, title, parent)
    , m_kinds(std::move(kinds))
    , m_fixedStatus(filters.status)
{
    buildFilters(filters);
    // Each row prints with its own kind's key (printRequest); the first one shows the button.
    setPrintKey(m_kinds.first().printKey);
    const shell::Parameters &params = workspace.session.params();
    QList<QueryColumn> columns;
    if (m_kinds.size() > 1)
        columns.append({ doctexts::kind });
    const auto text = [](const QString &caption, int width) {
        return QueryColumn { caption, QueryColumn::Kind::Text, 0, false, width };
    };
    columns += QList<QueryColumn> { text(doctexts::number, 120), text(doctexts::date, 86),
        text(partyLabel(m_kinds.first().entry->header.partyTable), 190),
        text(doctexts::warehouse, 90), text(doctexts::employee, 76),
        { doctexts::goodsCount, QueryColumn::Kind::Number, 0, true, 56 },
        { doctexts::quantity, QueryColumn::Kind::Number, params.quantityDecimals(), true, 80 },
        { doctexts::amount, QueryColumn::Kind::Number, params.amountDecimals(), true, 90 },
        text(doctexts::statusColumn, 56), text(doctexts::checker, 70),
        text(doctexts::checkDate, 86), text(doctexts::operatorName, 70),
        text(doctexts::note, 120) };
    setColumns(columns, QStringLiteral("单据列表/") + title);
    if (filters.lines) {
        m_lines = makeGrid(lineCaptions(), this);
        m_lines->setWordWrap(false);
        const int widths[] = { 34, 96, 170, 96, 44, 84, 86, 86, 72, 72, 84, 84 };
        for (int column = 0; column < int(std::size(widths)); ++column)
            m_lines->setColumnWidth(column, widths[column]);
        setDetail(m_lines);
        connect(this, &QueryScreen::currentRowChanged, this, &DocumentListScreen::showLines);
    }
    connect(this, &QueryScreen::activated, this, &DocumentListScreen::openCurrent);
}

void DocumentListScreen::buildFilters(const ListFilters &filters)
{
    const shell::Session &session = m_workspace.session;
    if (m_kinds.size() > 1) {
        m_kindBox = new QComboBox(this);
        m_kindBox->addItem(texts::all(), -1);
        for (int i = 0; i < m_kinds.size(); ++i)
            m_kindBox->addItem(QString::fromUtf8(m_kinds[i].entry->title), i);
        addFilter(doctexts::kind, m_kindBox);
    }
    if (filters.dates) {
        const QDate today = session.clock().today();
        m_from = new DateField(this);
        m_from->setText(
            QDate(today.year(), today.month(), 1).toString(QStringLiteral("yyyy-MM-dd")));
        m_to = new DateField(this);
        m_to->setText(session.today());
        addFilter(texts::dateFrom(), m_from);
        addFilter(texts::dateTo(), m_to);
    }
    const documents::PartyTable party = m_kinds.first().entry->header.partyTable;
    if (filters.party && party != documents::PartyTable::None) {
        m_party = makePartyField(session, party, this);
        addFilter(partyLabel(party), m_party);
    }
    if (filters.warehouse) {
        m_warehouse = new QComboBox(this);
        fillMasterBox(m_warehouse, session, "warehouse", true);
        addFilter(doctexts::warehouse, m_warehouse);
    }
    if (filters.goods) {
        m_goods = new QLineEdit(this);
        m_goods->setPlaceholderText(doctexts::code + QLatin1Char('/') + doctexts::name
            + QLatin1Char('/') + doctexts::mnemonic);
        addFilter(doctexts::goodsFilter, m_goods);
    }
    if (!filters.status) {
        m_status = new QComboBox(this);
        m_status->addItem(doctexts::allStatuses, -1);
        m_status->addItem(doctexts::statusUnchecked, 0);
        m_status->addItem(doctexts::checkedStatus, 1);
        addFilter(doctexts::statusColumn, m_status);
    }
}

documents::DocumentFilter DocumentListScreen::filter() const
{
    documents::DocumentFilter f;
    if (m_from)
        f.from = m_from->text();
    if (m_to)
        f.to = m_to->text();
    if (m_party)
        f.party = m_party->code();
    if (m_warehouse)
        f.warehouse = m_warehouse->currentData().toString();
    if (m_goods)
        f.goodsText = m_goods->text();
    f.status = m_fixedStatus;
    if (m_status && m_status->currentData().toInt() >= 0)
        f.status = m_status->currentData().toInt();
    return f;
}

void DocumentListScreen::fetch()
{
    const shell::Session &session = m_workspace.session;
    const documents::DocumentFilter f = filter();
    const int onlyKind = m_kindBox ? m_kindBox->currentData().toInt() : -1;
    struct Listed
    {
        int kind;
        documents::DocumentRow row;
    };
    QList<Listed> listed;
    for (int k = 0; k < m_kinds.size(); ++k)
        if (onlyKind < 0 || onlyKind == k)
            for (const documents::DocumentRow &row :
                documents::listDocuments(session, *m_kinds[k].entry, f))
                listed.append({ k, row });
    std::stable_sort(listed.begin(), listed.end(), [](const Listed &a, const Listed &b) {
        return std::pair(a.row.date, a.row.number) < std::pair(b.row.date, b.row.number);
    });
    QList<QVariantList> rows;
    m_rowKinds.clear();
    m_rowNumbers.clear();
    for (const Listed &item : std::as_const(listed)) {
        const documents::DocumentRow &r = item.row;
        const double sign = m_kinds[item.kind].sign;
        QVariantList values;
        if (m_kinds.size() > 1)
            values.append(QString::fromUtf8(m_kinds[item.kind].entry->title));
        values << r.number << r.date << r.partyName << r.warehouseName << r.employeeName
               << r.goodsCount << sign * r.quantity << sign * r.due
               << (r.status == 1 ? doctexts::checkedStatus : doctexts::statusUnchecked) << r.checker
               << r.checkDate << r.operatorName << r.note;
        rows.append(values);
        m_rowKinds.append(item.kind);
        m_rowNumbers.append(r.number);
    }
    setRows(rows);
}

const ListedKind *DocumentListScreen::currentKind() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rowKinds.size() ? &m_kinds[m_rowKinds[row]] : nullptr;
}

QString DocumentListScreen::currentNumber() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rowNumbers.size() ? m_rowNumbers[row] : QString();
}

void DocumentListScreen::showLines(int row)
{
    if (!m_lines)
        return;
    QList<QStringList> texts;
    const ListedKind *kind
        = row >= 0 && row < m_rowKinds.size() ? &m_kinds[m_rowKinds[row]] : nullptr;
    const shell::Parameters &params = m_workspace.session.params();
    if (kind)
        readSafely(m_workspace.session.ui(), [&] {
            int n = 0;
            for (const documents::DocumentLineRow &line :
                documents::documentLines(m_workspace.session.db(), *kind->entry, m_rowNumbers[row]))
                texts.append({ QString::number(++n), line.goods, line.goodsName, line.packing,
                    line.unit, line.batch, line.produced, line.expiry,
                    fixed(line.quantity, params.quantityDecimals()),
                    fixed(line.price, params.priceDecimals()),
                    fixed(line.amount, params.amountDecimals()),
                    fixed(line.total, params.amountDecimals()), line.remark });
        });
    fillGrid(m_lines, texts);
    for (int r = 0; r < m_lines->rowCount(); ++r)
        for (int column : { 0, 8, 9, 10, 11 })
            m_lines->item(r, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void DocumentListScreen::openCurrent()
{
    const ListedKind *kind = currentKind();
    if (kind && m_opener) {
        m_opener(*kind, currentNumber());
        return;
    }
    if (!kind || !m_workspace.openScreen)
        return;
    if (auto *screen
        = qobject_cast<DocumentScreen *>(m_workspace.openScreen(kind->area, kind->position)))
        screen->openDocument(currentNumber());
}

PrintRequest DocumentListScreen::printRequest() const
{
    const ListedKind *kind = currentKind();
    return kind ? PrintRequest { kind->printKey, currentNumber() } : PrintRequest {};
}

} // namespace medistock::ui
