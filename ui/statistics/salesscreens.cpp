// 商品销售统计 with 单品分析, 业务员销售统计, 营业分析 and 商品销售排行.
#include "statistics/reports.h"
#include "ui/common/workspace.h"
#include "ui/statistics/charts.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/reportscreen.h"
#include "ui/statistics/screens.h"

#include <QChartView>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>

namespace medistock::ui::stats {

namespace {

using statistics::SalesRow;

ReportColumn column(const char *caption, CellKind kind, bool summed = false, bool cost = false)
{
    return { QString::fromUtf8(caption), kind, summed, cost };
}

QList<ReportColumn> salesColumns(bool withGoods)
{
    QList<ReportColumn> columns { column("编号", CellKind::Text), column("名称", CellKind::Text) };
    if (withGoods)
        columns += { column("规格", CellKind::Text), column("单位", CellKind::Text) };
    columns += { column("单据数", CellKind::Count, true), column("数量", CellKind::Quantity, true),
        column("金额", CellKind::Amount, true), column("成本", CellKind::Amount, true, true),
        column("毛利", CellKind::Amount, true, true),
        column("毛利率%", CellKind::Rate, false, true) };
    return columns;
}

QVariantList salesCells(const SalesRow &r, bool withGoods)
{
    QVariantList cells { r.key, r.name };
    if (withGoods)
        cells << r.packing << r.unit;
    return cells << r.documents << r.quantity << r.amount << r.cost << r.profit << r.rate;
}

statistics::PeriodUnit unitOf(const FilterBar *f)
{
    return f->choice(QStringLiteral("unit"))->currentIndex() == 1 ? statistics::PeriodUnit::Day
                                                                  : statistics::PeriodUnit::Month;
}

// Sales by period with the chart of amount and profit, for 营业分析.
RunResult periodTable(const Result<QList<SalesRow>> &rows)
{
    RunResult result
        = tableFrom(rows, [](const SalesRow &r) { return salesCells(r, false).mid(1); });
    if (result.ok)
        for (const SalesRow &r : rows.value())
            result.table.chart.append({ r.key, r.amount, r.profit });
    return result;
}

void drawSalesAndProfit(QChartView *chart, const ReportModel *model)
{
    QStringList periods;
    QList<double> amounts;
    QList<double> profits;
    for (const auto &[period, amount, profit] : model->table().chart) {
        periods.append(period);
        amounts.append(amount);
        profits.append(profit);
    }
    showSalesAndProfit(chart, periods, amounts, profits);
}

} // namespace

ReportScreen *makeSalesScreen(Workspace &workspace)
{
    auto *screen = new ReportScreen(workspace, QStringLiteral("商品销售统计"), salesColumns(true));
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    f->addChoice(QStringLiteral("统计方式"), QStringLiteral("grouping"),
        { QStringLiteral("按商品"), QStringLiteral("按类别"), QStringLiteral("按客户"),
            QStringLiteral("按供货商"), QStringLiteral("单品分析(按月)"),
            QStringLiteral("单品分析(按日)") });
    f->addText(QStringLiteral("单品编号"), QStringLiteral("goods"), 90);
    screen->setJobMaker([f, screen]() -> ReportRunner::Job {
        static const char *keys[]
            = { "商品编号", "类别编号", "客户编号", "供货商编号", "月份", "日期" };
        const int grouping = f->choice(QStringLiteral("grouping"))->currentIndex();
        screen->model()->setCaption(0, QString::fromUtf8(keys[grouping]));
        statistics::ReportFilter filter = f->filter();
        filter.goods = f->text(QStringLiteral("goods"))->text().trimmed();
        return [filter, grouping](const shell::Session &session, const statistics::Progress &) {
            const auto cells = [](const SalesRow &r) { return salesCells(r, true); };
            if (grouping >= 4)
                return tableFrom(statistics::goodsSalesByPeriod(session, filter,
                                     grouping == 4 ? statistics::PeriodUnit::Month
                                                   : statistics::PeriodUnit::Day),
                    cells);
            return tableFrom(
                statistics::salesBy(session, filter, statistics::SalesGrouping(grouping)), cells);
        };
    });
    screen->rememberColumns();
    return screen;
}

ReportScreen *makeBusinessScreen(Workspace &workspace)
{
    QList<ReportColumn> columns = salesColumns(false).mid(1);
    columns[0].caption = QStringLiteral("期间");
    auto *screen = new ReportScreen(workspace, QStringLiteral("营业分析"), columns);
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addChoice(QStringLiteral("统计方式"), QStringLiteral("unit"),
        { QStringLiteral("月报"), QStringLiteral("日报") });
    f->from()->setDate(QDate(workspace.session.clock().today().year(), 1, 1));
    QChartView *chart = makeChartView(screen);
    screen->setSide(chart);
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        const statistics::PeriodUnit unit = unitOf(f);
        return [filter, unit](const shell::Session &session, const statistics::Progress &) {
            return periodTable(statistics::businessByPeriod(session, filter, unit));
        };
    });
    screen->setShownHook([screen, chart] { drawSalesAndProfit(chart, screen->model()); });
    screen->rememberColumns();
    return screen;
}

ReportScreen *makeRankingScreen(Workspace &workspace)
{
    QList<ReportColumn> columns = salesColumns(true);
    columns.prepend(column("名次", CellKind::Count));
    columns[1].caption = QStringLiteral("商品编号");
    columns[2].caption = QStringLiteral("商品名称");
    auto *screen = new ReportScreen(workspace, QStringLiteral("商品销售排行"), columns);
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    const QStringList measures { QStringLiteral("销售数量"), QStringLiteral("总销售额"),
        QStringLiteral("销售利润"), QStringLiteral("销售利润率") };
    f->addChoice(QStringLiteral("排行依据"), QStringLiteral("measure"), measures)
        ->setCurrentIndex(1);
    f->addChoice(QStringLiteral("显示"), QStringLiteral("top"),
        { QStringLiteral("前10名"), QStringLiteral("前20名"), QStringLiteral("前50名"),
            QStringLiteral("全部") });
    QChartView *chart = makeChartView(screen);
    screen->setSide(chart);
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        const auto measure
            = statistics::RankMeasure(f->choice(QStringLiteral("measure"))->currentIndex());
        const int top
            = QList<int> { 10, 20, 50, 0 }.value(f->choice(QStringLiteral("top"))->currentIndex());
        return [filter, measure, top](const shell::Session &session, const statistics::Progress &) {
            int rank = 0;
            RunResult result = tableFrom(statistics::salesRanking(session, filter, measure, top),
                [&rank](
                    const SalesRow &r) { return QVariantList { ++rank } + salesCells(r, true); });
            const QList<int> figure { 6, 7, 9, 10 }; // quantity, amount, profit, rate
            for (const QVariantList &row : result.table.rows.mid(0, 10))
                result.table.chart.append(
                    { row[2].toString(), row[figure[int(measure)]].toDouble(), 0 });
            return result;
        };
    });
    screen->setShownHook([screen, chart, f, measures] {
        QStringList names;
        QList<double> values;
        for (const auto &[name, value, unused] : screen->model()->table().chart) {
            names.append(name);
            values.append(value);
        }
        showRanking(chart, measures.value(f->choice(QStringLiteral("measure"))->currentIndex()),
            names, values);
    });
    screen->rememberColumns();
    return screen;
}

ReportScreen *makeSalesmanScreen(Workspace &workspace)
{
    const QList<ReportColumn> columns { column("业务员编号", CellKind::Text),
        column("业务员", CellKind::Text), column("单据数", CellKind::Count, true),
        column("销售金额", CellKind::Amount, true), column("成本", CellKind::Amount, true, true),
        column("毛利", CellKind::Amount, true, true),
        column("毛利率%", CellKind::Rate, false, true), column("提成方式", CellKind::Text),
        column("提成比例%", CellKind::Rate), column("提成毛利", CellKind::Amount, true, true),
        column("销售提成", CellKind::Amount, true), column("利润提成", CellKind::Amount, true) };
    auto *screen = new ReportScreen(workspace, QStringLiteral("业务员销售统计"), columns);
    FilterBar *f = screen->filters();
    f->addRange();
    f->addWarehouse();
    f->addClass();
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        return [filter](const shell::Session &session, const statistics::Progress &) {
            return tableFrom(
                statistics::salesBySalesman(session, filter), [](const statistics::SalesmanRow &r) {
                    return QVariantList { r.employee, r.name, r.documents, r.amount, r.cost,
                        r.profit, r.rate, r.method, r.commissionRate, r.commissionProfit,
                        r.commission, r.profitCommission };
                });
        };
    });
    screen->rememberColumns();
    return screen;
}

} // namespace medistock::ui::stats
