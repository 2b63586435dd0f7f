#include "reports/layout.h"

#include "reports/functions.h"
#include "reports/objects.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <limits>

namespace medistock::reports {

namespace {

using Kind = BandDesign::Kind;

struct Accumulator
{
    double sum = 0;
    double count = 0;
    Value min;
    Value max;
};

class Engine final : public Scope
{
public:
    Engine(const ReportDesign &design, const ReportData &data, const LayoutOptions &options,
        int totalPages)
        : m_design(design)
        , m_data(data)
        , m_options(options)
        , m_totalPages(totalPages)
    {
        for (auto it = data.variables.begin(); it != data.variables.end(); ++it)
            m_variableNames.insert(it.key().toLower(), it.key());
        for (auto it = design.aggregates.begin(); it != design.aggregates.end(); ++it) {
            m_byDataBand.insert(it->dataBand, it.key());
            if (it->reset == AggregateBinding::Reset::Page)
                m_pageScoped.append(it.key());
            else if (it->reset == AggregateBinding::Reset::AfterBand)
                m_resetAfter.insert(it->resetBand, it.key());
        }
    }

    PreparedReport run()
    {
        for (const PageDesign &page : m_design.pages)
            layOutPage(page);
        return std::move(m_report);
    }

    Value variable(const QString &name) const override;
    Value field(const QString &dataset, const QString &field) const override;
    Value system(SystemValue which) const override;
    Value aggregate(const ExpressionNode &call) const override;

private:
    void layOutPage(const PageDesign &page);
    void startPage();
    void finishPage(bool last);
    void newPage();
    void printBand(const BandDesign &band, const std::function<void()> &placing = {});
    void printChild(const BandDesign &band);
    void printAcross(const BandDesign &band, int column);
    void runMaster(const MasterDesign &master);
    int rowsOf(const BandDesign &band) const;
    void openGroups(const MasterDesign &master, int from);
    void closeGroups(const MasterDesign &master, int downTo);
    void fillBlankRows(const MasterDesign &master, int rows);
    void accumulate(const BandDesign &data);
    void resetAfter(const BandDesign &band);
    double heightOf(const BandDesign *band) const { return band ? band->height : 0; }
    PreparedPage &page() { return m_report.pages.last(); }

    const ReportDesign &m_design;
    const ReportData &m_data;
    const LayoutOptions &m_options;
    const int m_totalPages;
    PreparedReport m_report;

    // Where the engine stands.
    const PageDesign *m_page = nullptr;
    int m_pageNumber = 0;
    int m_pagesOfDesign = 0;
    double m_y = 0;
    double m_limit = 0;
    double m_contentTop = 0;
    const MasterDesign *m_master = nullptr;
    int m_openGroups = 0;
    int m_rowsOnPage = 0;
    int m_line = 0;
    bool m_blank = false;
    QHash<QString, int> m_cursor; // dataset (lower case) -> current row

    // Variables, compiled once.
    QHash<QString, QString> m_variableNames;
    mutable QHash<QString, std::shared_ptr<Expression>> m_compiled;
    mutable QSet<QString> m_evaluating;

    // Aggregates.
    QMultiHash<QString, const ExpressionNode *> m_byDataBand;
    QMultiHash<QString, const ExpressionNode *> m_resetAfter;
    QList<const ExpressionNode *> m_pageScoped;
    QHash<const ExpressionNode *, Accumulator> m_totals;
};

Value Engine::variable(const QString &name) const
{
    QString expression;
    const QString key = m_variableNames.value(name.toLower());
    if (!key.isEmpty())
        expression = m_data.variables.value(key);
    else if (m_design.variableDefaults.contains(name))
        expression = m_design.variableDefaults.value(name);
    else
        return Value();
    if (expression.isEmpty() || m_evaluating.contains(name))
        return Value();
    auto compiled = m_compiled.value(name);
    if (!compiled) {
        Result<Expression> parsed = Expression::parse(expression);
        // A value that is not an expression prints as the text it is.
        if (!parsed)
            return Value::text(expression);
        compiled = std::make_shared<Expression>(std::move(parsed.value()));
        m_compiled.insert(name, compiled);
    }
    m_evaluating.insert(name);
    const Value value = compiled->evaluate(*this);
    m_evaluating.remove(name);
    return value;
}

Value Engine::field(const QString &dataset, const QString &field) const
{
    if (m_blank)
        return Value();
    const DataSet *set = m_data.dataset(dataset);
    if (!set || set->rows.isEmpty())
        return Value();
    const int row = std::clamp(m_cursor.value(dataset.toLower(), 0), 0, int(set->rows.size()) - 1);
    return Value::fromVariant(set->value(row, field));
}

Value Engine::system(SystemValue which) const
{
    switch (which) {
    case SystemValue::Page:
        return Value::number(m_pageNumber);
    case SystemValue::TotalPages:
        return Value::number(m_totalPages > 0 ? m_totalPages : m_pageNumber);
    case SystemValue::Line:
        return m_blank ? Value() : Value::number(m_line);
    case SystemValue::Date:
        return Value::dateTime(QDateTime(m_options.printed.date(), QTime(0, 0)));
    case SystemValue::Time:
        return Value::text(m_options.printed.time().toString(QStringLiteral("HH:mm:ss")));
    }
    return Value();
}

Value Engine::aggregate(const ExpressionNode &call) const
{
    const Accumulator total = m_totals.value(&call);
    if (call.name == QLatin1String("SUM"))
        return Value::number(total.sum);
    if (call.name == QLatin1String("COUNT"))
        return Value::number(total.count);
    if (call.name == QLatin1String("AVG"))
        return Value::number(total.count > 0 ? total.sum / total.count : 0);
    return call.name == QLatin1String("MIN") ? total.min : total.max;
}

void Engine::accumulate(const BandDesign &data)
{
    for (const ExpressionNode *call : m_byDataBand.values(data.name)) {
        Accumulator &total = m_totals[call];
        total.count += 1;
        if (call->args.empty())
            continue;
        const Value value = evaluateNode(*call->args.front(), *this);
        if (value.isNull())
            continue;
        total.sum += value.toNumber();
        const bool numberLike = value.readsAsNumber();
        auto less = [&](const Value &a, const Value &b) {
            return numberLike ? a.toNumber() < b.toNumber() : a.toText() < b.toText();
        };
        if (total.min.isNull() || less(value, total.min))
            total.min = value;
        if (total.max.isNull() || less(total.max, value))
            total.max = value;
    }
}

void Engine::resetAfter(const BandDesign &band)
{
    for (const ExpressionNode *call : m_resetAfter.values(band.name))
        m_totals.remove(call);
}

void Engine::layOutPage(const PageDesign &pageDesign)
{
    m_page = &pageDesign;
    m_pagesOfDesign = 0;
    m_master = nullptr;
    m_openGroups = 0;
    startPage();
    for (const MasterDesign &master : pageDesign.masters())
        runMaster(master);
    m_master = nullptr;
    if (const BandDesign *summary = pageDesign.band(Kind::ReportSummary))
        printBand(*summary);
    finishPage(true);
}

void Engine::startPage()
{
    PreparedPage paper;
    paper.sizeMm = m_page->paperMm;
    m_report.pages.append(paper);
    ++m_pageNumber;
    ++m_pagesOfDesign;
    m_rowsOnPage = 0;
    m_y = m_page->marginsMm.top() * pixelsPerMillimetre;
    // What heads a page never moves to another page.
    m_contentTop = std::numeric_limits<double>::infinity();
    m_limit = m_page->endless
        ? std::numeric_limits<double>::infinity()
        : (m_page->paperMm.height() - m_page->marginsMm.bottom()) * pixelsPerMillimetre
            - heightOf(m_page->band(Kind::PageFooter));
    const BandDesign *title = m_pagesOfDesign == 1 ? m_page->band(Kind::ReportTitle) : nullptr;
    const BandDesign *header = m_page->band(Kind::PageHeader);
    if (header && m_pagesOfDesign == 1 && !header->printOnFirstPage)
        header = nullptr;
    if (title && m_page->titleBeforeHeader)
        printBand(*title);
    if (header)
        printBand(*header);
    if (title && !m_page->titleBeforeHeader)
        printBand(*title);
    if (m_master && m_master->header && m_master->header->reprintOnNewPage)
        printBand(*m_master->header);
    if (m_master)
        for (int g = 0; g < m_openGroups; ++g)
            if (m_master->groupHeaders.at(g)->reprintOnNewPage)
                printBand(*m_master->groupHeaders.at(g));
    m_contentTop = m_y;
}

void Engine::finishPage(bool last)
{
    const BandDesign *footer = m_page->band(Kind::PageFooter);
    if (footer && (!last || footer->printOnLastPage)
        && (m_pagesOfDesign > 1 || footer->printOnFirstPage)) {
        const double top = m_page->endless ? m_y : m_limit;
        const FilledBand filled = fillBand(*footer, *this, false);
        placeBand(
            *footer, filled, QPointF(m_page->marginsMm.left() * pixelsPerMillimetre, top), page());
        m_y = top + filled.height;
    }
    for (const ExpressionNode *call : m_pageScoped)
        m_totals.remove(call);
    if (m_page->endless)
        page().sizeMm.setHeight(m_y / pixelsPerMillimetre + m_page->marginsMm.bottom());
}

void Engine::newPage()
{
    finishPage(false);
    startPage();
}

// Fills the band, moves to a new page when it does not fit (unless the page is still empty),
// lets the caller count the row on the page it lands on, and places it.
void Engine::printBand(const BandDesign &band, const std::function<void()> &placing)
{
    if (band.startNewPage && m_y > m_contentTop)
        newPage();
    FilledBand filled = fillBand(band, *this, m_blank);
    bool refill = false;
    if (m_y + filled.height > m_limit + 0.01 && m_y > m_contentTop) {
        newPage();
        refill = true;
    }
    if (placing) {
        placing();
        refill = refill || band.hasAggregates();
    }
    if (refill)
        filled = fillBand(band, *this, m_blank);
    placeBand(band, filled, QPointF(m_page->marginsMm.left() * pixelsPerMillimetre, m_y), page());
    m_y += filled.height;
    printChild(band);
}

void Engine::printChild(const BandDesign &band)
{
    if (band.child.isEmpty())
        return;
    if (const BandDesign *child = m_page->bandNamed(band.child); child && child != &band)
        printBand(*child);
}

// Rows side by side (price labels): a new line of them starts at the first column, and moves to
// a new page when it does not fit.
void Engine::printAcross(const BandDesign &band, int column)
{
    if (column == 0) {
        if (m_y + band.height > m_limit + 0.01 && m_y > m_contentTop)
            newPage();
        m_y += band.height;
    }
    accumulate(band);
    const FilledBand filled = fillBand(band, *this, false);
    const QPointF origin(m_page->marginsMm.left() * pixelsPerMillimetre + column * band.columnWidth,
        m_y - band.height);
    placeBand(band, filled, origin, page());
}

int Engine::rowsOf(const BandDesign &band) const
{
    if (band.dataset.isEmpty())
        return std::max(band.rowCount, 0);
    const DataSet *set = m_data.dataset(band.dataset);
    return set ? int(set->rows.size()) : 0;
}

void Engine::openGroups(const MasterDesign &master, int from)
{
    for (int g = from; g < master.groupHeaders.size(); ++g) {
        m_openGroups = g;
        printBand(*master.groupHeaders.at(g));
        m_openGroups = g + 1;
    }
}

void Engine::closeGroups(const MasterDesign &master, int downTo)
{
    for (int g = m_openGroups - 1; g >= downTo; --g) {
        if (g < master.groupFooters.size()) {
            printBand(*master.groupFooters.at(g));
            resetAfter(*master.groupFooters.at(g));
        }
        if (g < master.groupHeaders.size())
            resetAfter(*master.groupHeaders.at(g));
    }
    m_openGroups = std::min(m_openGroups, downTo);
}

void Engine::runMaster(const MasterDesign &master)
{
    const BandDesign &data = *master.data;
    const QString cursor = data.dataset.toLower();
    const int rows = rowsOf(data);
    m_cursor.insert(cursor, 0);
    m_line = 0;
    if (master.header) {
        printBand(*master.header);
        resetAfter(*master.header);
    }
    m_master = &master;
    m_rowsOnPage = 0;
    QStringList groupValues;
    for (int row = 0; row < rows; ++row) {
        m_cursor.insert(cursor, row);
        m_line = row + 1;
        QStringList values;
        for (const BandDesign *group : master.groupHeaders)
            values.append(
                group->condition ? group->condition->evaluate(*this).toText() : QString());
        int changed = row == 0 ? 0 : int(values.size());
        for (int g = 0; row > 0 && g < values.size(); ++g)
            if (values.at(g) != groupValues.at(g)) {
                changed = g;
                break;
            }
        if (row > 0 && changed < values.size())
            closeGroups(master, changed);
        if (changed < values.size())
            openGroups(master, changed);
        groupValues = values;
        if (data.columns > 1) {
            printAcross(data, row % data.columns);
            continue;
        }
        if (data.fillRows > 0 && m_rowsOnPage == data.fillRows)
            newPage();
        printBand(data, [&] {
            accumulate(data);
            ++m_rowsOnPage;
        });
    }
    closeGroups(master, 0);
    fillBlankRows(master, rows);
    m_master = nullptr;
    if (master.footer) {
        printBand(*master.footer);
        resetAfter(*master.footer);
    }
}

void Engine::fillBlankRows(const MasterDesign &master, int rows)
{
    const BandDesign &data = *master.data;
    m_blank = true;
    if (data.fillRows > 0 && (m_rowsOnPage > 0 || rows == 0)) {
        for (int n = m_rowsOnPage; n < data.fillRows; ++n)
            printBand(data);
    } else if (data.fillPage && !m_page->endless) {
        const double reserve
            = heightOf(master.footer) + heightOf(m_page->band(Kind::ReportSummary));
        while (m_y + data.height + reserve <= m_limit + 0.01)
            printBand(data);
    }
    m_blank = false;
}

} // namespace

PreparedReport layoutReport(
    const ReportDesign &design, const ReportData &data, const LayoutOptions &options)
{
    if (!design.usesTotalPages)
        return Engine(design, data, options, 0).run();
    const int total = int(Engine(design, data, options, 0).run().pages.size());
    return Engine(design, data, options, total).run();
}

Result<PreparedReport> prepareReport(const ReportTemplate &report, const ReportData &data,
    const LayoutOptions &options, const QString &folder)
{
    Result<ReportDesign> design = compileTemplate(report, folder);
    if (!design)
        return design.outcome();
    return layoutReport(design.value(), data, options);
}

} // namespace medistock::reports
