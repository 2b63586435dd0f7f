// 库存成本统计 with 库存数量金额统计, 单据查询 and 批次查询.
#include "statistics/reports.h"
#include "ui/common/grid.h"
#include "ui/common/workspace.h"
#include "ui/statistics/charts.h"
#include "ui/statistics/documentdialog.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/reportscreen.h"
#include "ui/statistics/screens.h"

#include <QChartView>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>

namespace medistock::ui::stats {

namespace {

ReportColumn column(
    const char *caption, CellKind kind, bool summed = false, bool cost = false, int width = 0)
{
    return { QString::fromUtf8(caption), kind, summed, cost, width };
}

QString documentOf(const statistics::DocumentRow &row)
{
    return row.number;
}

QString statusText(int status)
{
    return status == 1 ? QStringLiteral("已审核") : QStringLiteral("未审核");
}

void openDocumentsFrom(ReportScreen *screen)
{
    screen->setOpener([screen](const QString &number) {
        DocumentDialog::open(screen->workspace(), number, screen);
    });
}

} // namespace

ReportScreen *makeStockCostScreen(Workspace &workspace)
{
    const QList<ReportColumn> columns { column("编号", CellKind::Text),
        column("名称", CellKind::Text), column("规格", CellKind::Text),
        column("单位", CellKind::Text), column("库存数量", CellKind::Quantity, true),
        column("库存金额", CellKind::Amount, true, true),
        column("成本均价", CellKind::Price, false, true) };
    auto *screen = new ReportScreen(workspace, QStringLiteral("库存成本统计"), columns);
    FilterBar *f = screen->filters();
    f->addDate(QStringLiteral("截止日期"), QStringLiteral("date"));
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    f->addChoice(QStringLiteral("统计方式"), QStringLiteral("grouping"),
        { QStringLiteral("按商品"), QStringLiteral("按类别"), QStringLiteral("按仓库") });
    QChartView *chart = makeChartView(screen);
    screen->setSide(chart);
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        const QString date = dateText(f->date(QStringLiteral("date")));
        const auto grouping
            = statistics::StockGrouping(f->choice(QStringLiteral("grouping"))->currentIndex());
        return [filter, date, grouping](
                   const shell::Session &session, const statistics::Progress &) {
            const auto cells = [](const statistics::StockCostRow &r) {
                return QVariantList { r.key, r.name, r.packing, r.unit, r.quantity, r.amount,
                    r.averageCost };
            };
            RunResult result
                = tableFrom(statistics::stockCostAsOf(session, date, filter, grouping), cells);
            // The picture is always the stock value by class.
            const Result<QList<statistics::StockCostRow>> classes = statistics::stockCostAsOf(
                session, date, filter, statistics::StockGrouping::Class);
            if (result.ok && classes)
                for (const statistics::StockCostRow &r : classes.value())
                    result.table.chart.append({ r.name.isEmpty() ? r.key : r.name, r.amount, 0 });
            return result;
        };
    });
    screen->setShownHook([screen, chart] {
        QStringList names;
        QList<double> values;
        for (const auto &[name, value, unused] : screen->model()->table().chart) {
            names.append(name);
            values.append(value);
        }
        showShares(chart, QStringLiteral("各类别库存金额"), names, values);
    });
    screen->rememberColumns();
    return screen;
}

ReportScreen *makeStockValueScreen(Workspace &workspace)
{
    const QList<ReportColumn> columns { column("商品编号", CellKind::Text),
        column("商品名称", CellKind::Text), column("规格", CellKind::Text),
        column("单位", CellKind::Text), column("类别", CellKind::Text),
        column("库存数量", CellKind::Quantity, true),
        column("成本金额", CellKind::Amount, true, true),
        column("进价", CellKind::Price, false, true),
        column("进价金额", CellKind::Amount, true, true), column("售价", CellKind::Price),
        column("售价金额", CellKind::Amount, true), column("零售价", CellKind::Price),
        column("零售金额", CellKind::Amount, true) };
    auto *screen = new ReportScreen(workspace, QStringLiteral("库存数量金额统计"), columns);
    FilterBar *f = screen->filters();
    f->addWarehouse();
    f->addClass();
    f->addKeyword();
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const statistics::ReportFilter filter = f->filter();
        return [filter](const shell::Session &session, const statistics::Progress &) {
            return tableFrom(
                statistics::stockValues(session, filter), [](const statistics::StockValueRow &r) {
                    return QVariantList { r.goods, r.name, r.packing, r.unit, r.className,
                        r.quantity, r.costAmount, r.purchasePrice, r.purchaseAmount, r.salePrice,
                        r.saleAmount, r.retailPrice, r.retailAmount };
                });
        };
    });
    screen->rememberColumns();
    return screen;
}

QWidget *makeStockScreen(Workspace &workspace)
{
    auto *tabs = new QTabWidget;
    ReportScreen *cost = makeStockCostScreen(workspace);
    tabs->addTab(cost, cost->title());
    ReportScreen *value = makeStockValueScreen(workspace);
    tabs->addTab(value, value->title());
    tabs->setFocusProxy(cost);
    return tabs;
}

ReportScreen *makeDocumentScreen(Workspace &workspace)
{
    const QList<ReportColumn> columns { column("单据类型", CellKind::Text),
        column("单据号", CellKind::Text, false, false, 130), column("日期", CellKind::Text),
        column("往来单位", CellKind::Text, false, false, 200), column("仓库", CellKind::Text),
        column("经办人", CellKind::Text), column("操作员", CellKind::Text),
        column("金额", CellKind::Amount), column("状态", CellKind::Text) };
    auto *screen = new ReportScreen(workspace, QStringLiteral("单据查询"), columns);
    FilterBar *f = screen->filters();
    f->addRange();
    QStringList kinds { QStringLiteral("全部单据") };
    QStringList prefixes { QString() };
    for (const auto &[prefix, title] : statistics::documentKinds()) {
        kinds.append(title);
        prefixes.append(prefix);
    }
    f->addChoice(QStringLiteral("单据类型"), QStringLiteral("kind"), kinds);
    f->addText(QStringLiteral("单据号"), QStringLiteral("number"));
    f->addText(QStringLiteral("往来单位"), QStringLiteral("party"));
    f->addChoice(QStringLiteral("状态"), QStringLiteral("status"),
        { QStringLiteral("全部"), QStringLiteral("已审核"), QStringLiteral("未审核") });
    screen->setJobMaker([f, prefixes]() -> ReportRunner::Job {
        statistics::DocumentSearch search;
        search.range = f->range();
        search.prefix = prefixes.value(f->choice(QStringLiteral("kind"))->currentIndex());
        search.number = f->text(QStringLiteral("number"))->text();
        search.party = f->text(QStringLiteral("party"))->text();
        const int status = f->choice(QStringLiteral("status"))->currentIndex();
        if (status > 0)
            search.status = status == 1 ? 1 : 0;
        return [search](const shell::Session &session, const statistics::Progress &) {
            return tableFrom(
                statistics::searchDocuments(session, search),
                [](const statistics::DocumentRow &r) {
                    return QVariantList { r.kindTitle, r.number, r.date, r.partyName,
                        r.warehouseName, r.employeeName, r.operatorName, r.amount,
                        statusText(r.status) };
                },
                documentOf);
        };
    });
    openDocumentsFrom(screen);
    screen->rememberColumns();
    return screen;
}

ReportScreen *makeBatchScreen(Workspace &workspace)
{
    const QList<ReportColumn> columns { column("商品编号", CellKind::Text),
        column("商品名称", CellKind::Text), column("日期", CellKind::Text),
        column("单据号", CellKind::Text, false, false, 130), column("类型", CellKind::Text),
        column("仓库", CellKind::Text), column("往来单位", CellKind::Text),
        column("有效期至", CellKind::Text), column("入库数量", CellKind::Quantity, true),
        column("出库数量", CellKind::Quantity, true), column("批次结存", CellKind::Quantity) };
    auto *screen = new ReportScreen(workspace, QStringLiteral("批次查询"), columns);
    FilterBar *f = screen->filters();
    f->addText(QStringLiteral("批号"), QStringLiteral("batch"));
    f->addText(QStringLiteral("商品编号"), QStringLiteral("goods"), 90);
    screen->setJobMaker([f]() -> ReportRunner::Job {
        const QString batch = f->text(QStringLiteral("batch"))->text();
        const QString goods = f->text(QStringLiteral("goods"))->text().trimmed();
        return [batch, goods](const shell::Session &session, const statistics::Progress &) {
            const Result<statistics::BatchHistory> history
                = statistics::batchHistory(session, batch, goods);
            if (!history)
                return RunResult {};
            RunResult result { true, {}, {} };
            for (qsizetype i = 0; i < history->rows.size(); ++i) {
                const statistics::MovementRow &r = history->rows[i];
                result.table.rows.append({ r.goods, r.goodsName, r.date, r.number,
                    statistics::kindName(r.kind), r.warehouseName, r.partyName, r.expiry,
                    r.inQuantity ? QVariant(*r.inQuantity) : QVariant(),
                    r.outQuantity ? QVariant(*r.outQuantity) : QVariant(),
                    history->balances.value(i) });
                result.table.keys.append(r.number);
            }
            for (const statistics::BatchStockRow &s : history->stock)
                result.detail.rows.append(
                    { s.goods, s.name, s.warehouseName, s.expiry, s.produced, s.quantity });
            return result;
        };
    });
    QTableWidget *stock = makeGrid(
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("仓库"),
            QStringLiteral("有效期至"), QStringLiteral("生产日期"), QStringLiteral("批次库存") },
        screen);
    stock->setToolTip(QStringLiteral("该批号现有的批次库存"));
    for (const auto &[c, width] :
        { std::pair { 0, 80 }, { 1, 120 }, { 2, 80 }, { 3, 85 }, { 4, 85 } })
        stock->setColumnWidth(c, width);
    screen->setSide(stock);
    screen->setShownHook([screen, stock] {
        QList<QStringList> rows;
        for (const QVariantList &row : screen->detail().rows) {
            QStringList texts;
            for (const QVariant &cell : row)
                texts.append(cell.toString());
            rows.append(texts);
        }
        fillGrid(stock, rows);
    });
    openDocumentsFrom(screen);
    screen->rememberColumns();
    return screen;
}

} // namespace medistock::ui::stats
