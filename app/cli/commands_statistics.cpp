// The statistics command: "stats REPORT --from DATE --to DATE [options]" prints a report as
// tab-separated rows under a header, the goods code first on goods rows.
#include "app/cli/registry.h"

#include "shell/session.h"
#include "statistics/costsync.h"
#include "statistics/jxc.h"
#include "statistics/reports.h"

#include <map>

namespace medistock::cli {

namespace {

using namespace medistock::statistics;

QString num(double value)
{
    return QString::number(value, 'g', 15);
}

void printRow(Context &context, const QStringList &fields)
{
    context.out() << fields.join(QLatin1Char('\t')) << Qt::endl;
}

QString dateOption(Context &context, Args &args, const QString &name, bool required)
{
    const auto text = args.option(name);
    if (!text) {
        if (required)
            throw Stop { context.usageError(QStringLiteral("缺少选项 ") + name) };
        return {};
    }
    return parseDate(context, *text).toString(QStringLiteral("yyyy-MM-dd"));
}

// --from and --to (when `ranged`), and the narrowing options every report understands.
ReportFilter filterOf(Context &context, Args &args, bool ranged)
{
    ReportFilter filter;
    filter.range = { dateOption(context, args, QStringLiteral("--from"), ranged),
        dateOption(context, args, QStringLiteral("--to"), ranged) };
    const auto take = [&](const char *name, QString &field) {
        if (const auto value = args.option(QLatin1String(name)))
            field = *value;
    };
    take("--warehouse", filter.warehouse);
    take("--class", filter.classCode);
    take("--keyword", filter.keyword);
    take("--goods", filter.goods);
    take("--party", filter.party);
    take("--employee", filter.employee);
    return filter;
}

// --by CHOICE among the names given, the first being the default.
template<class T>
T choiceOf(Context &context, Args &args, const QString &option,
    const std::vector<std::pair<QString, T>> &choices)
{
    const auto text = args.option(option);
    if (!text)
        return choices.front().second;
    for (const auto &[name, value] : choices)
        if (name == *text)
            return value;
    throw Stop { context.usageError(
        QStringLiteral("无法识别的选项值：") + option + QLatin1Char(' ') + *text) };
}

void printJxc(Context &context, const QList<JxcRow> &rows)
{
    printRow(context,
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("期初数量"),
            QStringLiteral("期初金额"), QStringLiteral("入库数量"), QStringLiteral("入库金额"),
            QStringLiteral("出库数量"), QStringLiteral("出库金额"), QStringLiteral("结存数量"),
            QStringLiteral("结存金额") });
    for (const JxcRow &r : rows)
        printRow(context,
            { r.goods, r.name, num(r.openingQuantity), num(r.openingAmount), num(r.inQuantity),
                num(r.inAmount), num(r.outQuantity), num(r.outAmount), num(r.closingQuantity),
                num(r.closingAmount) });
}

// Builds the summary of the options; leaves the class and keyword for the reading.
JxcFilter buildJxc(Context &context, Args &args)
{
    const bool atPrice = args.flag(QStringLiteral("--at-price"));
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    shell::Session &session = context.session();
    require(buildJxcSummary(
        session, { filter.range, filter.warehouse, atPrice ? Valuation::Price : Valuation::Cost }));
    return { filter.classCode, filter.keyword };
}

int runJxc(Context &context, Args &args)
{
    const JxcFilter filter = buildJxc(context, args);
    printJxc(context, jxcRows(context.session(), filter));
    return ExitDone;
}

int runDiff(Context &context, Args &args)
{
    const JxcFilter filter = buildJxc(context, args);
    printRow(context,
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("差额") });
    for (const JxcRow &r : jxcDifferences(context.session(), filter))
        printRow(context, { r.goods, r.name, num(r.difference) });
    return ExitDone;
}

int runCostSync(Context &context, Args &args)
{
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    const Result<CostSyncSummary> synced = syncOutwardCosts(context.session(), filter.range);
    const CostSyncSummary &done = valueOf(synced);
    context.out() << QStringLiteral("同步 %1 个商品仓库，%2 条记录，改写 %3 条记录、%4 条单据明细")
                         .arg(done.pairs)
                         .arg(done.rows)
                         .arg(done.rowsChanged)
                         .arg(done.linesChanged)
                  << Qt::endl;
    return ExitDone;
}

const QStringList groupCaptions { QStringLiteral("编号"), QStringLiteral("名称"),
    QStringLiteral("规格"), QStringLiteral("单位") };

void printSales(Context &context, const QList<SalesRow> &rows)
{
    printRow(context,
        groupCaptions
            + QStringList { QStringLiteral("单据数"), QStringLiteral("数量"),
                QStringLiteral("金额"), QStringLiteral("成本"), QStringLiteral("毛利"),
                QStringLiteral("毛利率") });
    for (const SalesRow &r : rows)
        printRow(context,
            { r.key, r.name, r.packing, r.unit, QString::number(r.documents), num(r.quantity),
                num(r.amount), num(r.cost), num(r.profit), num(r.rate) });
}

int runSales(Context &context, Args &args)
{
    enum By { Goods, Class, Customer, Supplier, Day, Month };
    const By by = choiceOf<By>(context, args, QStringLiteral("--by"),
        { { QStringLiteral("goods"), Goods }, { QStringLiteral("class"), Class },
            { QStringLiteral("customer"), Customer }, { QStringLiteral("supplier"), Supplier },
            { QStringLiteral("day"), Day }, { QStringLiteral("month"), Month } });
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    shell::Session &session = context.session();
    if (by == Day || by == Month)
        printSales(context,
            valueOf(goodsSalesByPeriod(
                session, filter, by == Day ? PeriodUnit::Day : PeriodUnit::Month)));
    else
        printSales(context, valueOf(salesBy(session, filter, SalesGrouping(by))));
    return ExitDone;
}

int runRanking(Context &context, Args &args)
{
    const RankMeasure measure = choiceOf<RankMeasure>(context, args, QStringLiteral("--measure"),
        { { QStringLiteral("amount"), RankMeasure::Amount },
            { QStringLiteral("quantity"), RankMeasure::Quantity },
            { QStringLiteral("profit"), RankMeasure::Profit },
            { QStringLiteral("rate"), RankMeasure::Rate } });
    const int top = args.option(QStringLiteral("--top")).value_or(QStringLiteral("0")).toInt();
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    printSales(context, valueOf(salesRanking(context.session(), filter, measure, top)));
    return ExitDone;
}

int runBusiness(Context &context, Args &args)
{
    const PeriodUnit unit = choiceOf<PeriodUnit>(context, args, QStringLiteral("--by"),
        { { QStringLiteral("month"), PeriodUnit::Month },
            { QStringLiteral("day"), PeriodUnit::Day } });
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    printSales(context, valueOf(businessByPeriod(context.session(), filter, unit)));
    return ExitDone;
}

void printPurchases(Context &context, const QList<PurchaseRow> &rows)
{
    printRow(context,
        groupCaptions
            + QStringList { QStringLiteral("单据数"), QStringLiteral("进货数量"),
                QStringLiteral("进货金额"), QStringLiteral("退货数量"), QStringLiteral("退货金额"),
                QStringLiteral("净数量"), QStringLiteral("净金额") });
    for (const PurchaseRow &r : rows)
        printRow(context,
            { r.key, r.name, r.packing, r.unit, QString::number(r.documents), num(r.quantity),
                num(r.amount), num(r.returnQuantity), num(r.returnAmount), num(r.netQuantity),
                num(r.netAmount) });
}

int runPurchases(Context &context, Args &args)
{
    const PurchaseGrouping by = choiceOf<PurchaseGrouping>(context, args, QStringLiteral("--by"),
        { { QStringLiteral("goods"), PurchaseGrouping::Goods },
            { QStringLiteral("class"), PurchaseGrouping::Class },
            { QStringLiteral("supplier"), PurchaseGrouping::Supplier },
            { QStringLiteral("employee"), PurchaseGrouping::Employee } });
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    printPurchases(context, valueOf(purchasesBy(context.session(), filter, by)));
    return ExitDone;
}

int runSalesmen(Context &context, Args &args)
{
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    printRow(context,
        { QStringLiteral("业务员编号"), QStringLiteral("业务员"), QStringLiteral("单据数"),
            QStringLiteral("销售金额"), QStringLiteral("成本"), QStringLiteral("毛利"),
            QStringLiteral("毛利率"), QStringLiteral("提成方式"), QStringLiteral("提成比例"),
            QStringLiteral("提成毛利"), QStringLiteral("销售提成"), QStringLiteral("利润提成") });
    const Result<QList<SalesmanRow>> rows = salesBySalesman(context.session(), filter);
    for (const SalesmanRow &r : valueOf(rows))
        printRow(context,
            { r.employee, r.name, QString::number(r.documents), num(r.amount), num(r.cost),
                num(r.profit), num(r.rate), r.method, num(r.commissionRate),
                num(r.commissionProfit), num(r.commission), num(r.profitCommission) });
    return ExitDone;
}

int runPeriods(Context &context, Args &args, PeriodUnit unit)
{
    const bool outward = args.flag(QStringLiteral("--out"));
    const ReportFilter filter = filterOf(context, args, true);
    requireNoMore(context, args);
    shell::Session &session = context.session();
    const QList<PeriodMovementRow> rows = valueOf(
        outward ? outwardByPeriod(session, filter, unit) : inwardByPeriod(session, filter, unit));
    const QStringList groups = outward
        ? QStringList { QStringLiteral("销售出库"), QStringLiteral("采购退货"),
              QStringLiteral("其他出库") }
        : QStringList { QStringLiteral("采购入库"), QStringLiteral("销售退货"),
              QStringLiteral("其他入库") };
    QStringList header { QStringLiteral("日期") };
    for (const QString &group : groups)
        header << group + QStringLiteral("数量") << group + QStringLiteral("金额");
    printRow(context, header << QStringLiteral("合计数量") << QStringLiteral("合计金额"));
    for (const PeriodMovementRow &r : rows) {
        QStringList fields { r.period };
        for (int g = 0; g < 3; ++g)
            fields << num(r.quantity[g]) << num(r.amount[g]);
        printRow(context, fields << num(r.totalQuantity) << num(r.totalAmount));
    }
    return ExitDone;
}

int runDaily(Context &context, Args &args)
{
    return runPeriods(context, args, PeriodUnit::Day);
}

int runMonthly(Context &context, Args &args)
{
    return runPeriods(context, args, PeriodUnit::Month);
}

void printStockCost(Context &context, const QList<StockCostRow> &rows)
{
    printRow(context,
        groupCaptions
            + QStringList { QStringLiteral("库存数量"), QStringLiteral("库存金额"),
                QStringLiteral("成本均价") });
    for (const StockCostRow &r : rows)
        printRow(context,
            { r.key, r.name, r.packing, r.unit, num(r.quantity), num(r.amount),
                num(r.averageCost) });
}

void printStockValues(Context &context, const QList<StockValueRow> &rows)
{
    printRow(context,
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("类别"), QStringLiteral("库存数量"),
            QStringLiteral("成本金额"), QStringLiteral("进价金额"), QStringLiteral("售价金额"),
            QStringLiteral("零售金额") });
    for (const StockValueRow &r : rows)
        printRow(context,
            { r.goods, r.name, r.packing, r.unit, r.className, num(r.quantity), num(r.costAmount),
                num(r.purchaseAmount), num(r.saleAmount), num(r.retailAmount) });
}

int runStockCost(Context &context, Args &args)
{
    const bool values = args.flag(QStringLiteral("--values"));
    const StockGrouping by = choiceOf<StockGrouping>(context, args, QStringLiteral("--by"),
        { { QStringLiteral("goods"), StockGrouping::Goods },
            { QStringLiteral("class"), StockGrouping::Class },
            { QStringLiteral("warehouse"), StockGrouping::Warehouse } });
    QString date = dateOption(context, args, QStringLiteral("--date"), false);
    const ReportFilter filter = filterOf(context, args, false);
    requireNoMore(context, args);
    shell::Session &session = context.session();
    if (values) {
        printStockValues(context, valueOf(stockValues(session, filter)));
        return ExitDone;
    }
    if (date.isEmpty())
        date = session.today();
    printStockCost(context, valueOf(stockCostAsOf(session, date, filter, by)));
    return ExitDone;
}

int runStats(Context &context, Args &args)
{
    static const std::map<QString, int (*)(Context &, Args &)> reports {
        { QStringLiteral("jxc"), runJxc }, { QStringLiteral("diff"), runDiff },
        { QStringLiteral("costsync"), runCostSync }, { QStringLiteral("sales"), runSales },
        { QStringLiteral("ranking"), runRanking }, { QStringLiteral("purchases"), runPurchases },
        { QStringLiteral("salesmen"), runSalesmen }, { QStringLiteral("daily"), runDaily },
        { QStringLiteral("monthly"), runMonthly }, { QStringLiteral("stockcost"), runStockCost },
        { QStringLiteral("business"), runBusiness }
    };
    // The report's name comes first; its options follow.
    const QStringList arguments = args.positional();
    if (arguments.isEmpty())
        return context.usageError(QStringLiteral("缺少报表名称"));
    const auto found = reports.find(arguments.first());
    if (found == reports.end())
        return context.usageError(QStringLiteral("无法识别的报表：") + arguments.first());
    Args options(arguments.mid(1));
    return found->second(context, options);
}

} // namespace

void addStatisticsCommands(Registry &registry)
{
    registry.add({ QStringLiteral("stats"),
        QStringLiteral("jxc|diff|costsync|sales|ranking|purchases|salesmen|daily|monthly|"
                       "stockcost|business --from DATE --to DATE [--warehouse CODE] "
                       "[--class CODE] [--keyword TEXT] [--goods CODE] [--party CODE] "
                       "[--employee NAME] [--by ...] [--at-price] [--out] [--top N] "
                       "[--measure amount|quantity|profit|rate] [--date DATE] [--values]"),
        QStringLiteral("统计报表：进销存统计、差额核对、出库成本价同步、销售、采购、业务员、"
                       "进出库日报月报、库存成本、营业分析"),
        runStats });
}

} // namespace medistock::cli
