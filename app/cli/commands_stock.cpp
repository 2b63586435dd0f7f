// Commands of the stock engine: inspecting stock, the ledger and costs, the stock checks, and the
// two repairs (rerun a ledger, settle a day).
#include "app/cli/registry.h"

#include "shell/session.h"
#include "stock/average.h"
#include "stock/checks.h"
#include "stock/costs.h"
#include "stock/stockquery.h"
#include "stock/stockview.h"
#include "stock/texts.h"

namespace medistock::cli {

namespace {

QString num(double value)
{
    return QString::number(value, 'g', 15);
}

void printRow(Context &context, const QStringList &fields)
{
    context.out() << fields.join(QLatin1Char('\t')) << Qt::endl;
}

int refuseWith(Context &context, const QString &text)
{
    context.interaction().inform(text);
    return ExitRefused;
}

int runStock(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 2);
    const QString goods = positional[0];
    const QString warehouse = positional.value(1);
    shell::Session &session = context.session();
    const auto totals = stock::goodsTotals(session, goods);
    if (!totals)
        return refuseWith(context, stock::unknownGoodsText(goods));
    printRow(context,
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("库存数"),
            QStringLiteral("均价"), QStringLiteral("上次进价"), QStringLiteral("采购次数"),
            QStringLiteral("销售次数"), QStringLiteral("供货商") });
    printRow(context,
        { totals->goods, totals->name, num(totals->stock), num(totals->average),
            num(totals->lastPrice), QString::number(totals->purchases),
            QString::number(totals->sales), totals->supplier });
    context.out() << Qt::endl;
    printRow(context,
        { QStringLiteral("仓库编号"), QStringLiteral("库存数"), QStringLiteral("帐面库存"),
            QStringLiteral("成本价"), QStringLiteral("销售数量") });
    for (const stock::WarehouseStockRow &row : stock::warehouseStockRows(session, goods, warehouse))
        printRow(context,
            { row.warehouse, num(row.physical), num(row.book), num(row.cost), num(row.sold) });
    context.out() << Qt::endl;
    printRow(context,
        { QStringLiteral("仓库编号"), QStringLiteral("产品批号"), QStringLiteral("有效期至"),
            QStringLiteral("生产日期"), QStringLiteral("库存数量") });
    for (const stock::BatchStockRow &row : stock::batchStockRows(session, goods, warehouse))
        printRow(
            context, { row.warehouse, row.batch, row.expiry, row.produced, num(row.quantity) });
    return ExitDone;
}

int runLedger(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 2);
    shell::Session &session = context.session();
    printRow(context,
        { QStringLiteral("编号"), QStringLiteral("开单日期"), QStringLiteral("类型"),
            QStringLiteral("单据号"), QStringLiteral("数量"), QStringLiteral("金额"),
            QStringLiteral("单价"), QStringLiteral("结转数量"), QStringLiteral("结转金额"),
            QStringLiteral("库存数"), QStringLiteral("均价"), QStringLiteral("库存金额") });
    for (const stock::LedgerLine &line : stock::ledgerLines(session, positional[0], positional[1]))
        printRow(context,
            { QString::number(line.id), line.date, line.kind, line.number,
                num(line.movement.quantity), num(line.movement.amount), num(line.movement.price),
                num(line.carriedQuantity), num(line.carriedAmount), num(line.running.quantity),
                num(line.running.average), num(line.running.value) });
    return ExitDone;
}

int runCost(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 3);
    const bool dated = positional.size() == 3;
    const QDate date = dated ? parseDate(context, positional[2]) : QDate();
    shell::Session &session = context.session();
    const double cost = dated ? stock::costAsOf(session, positional[0], positional[1],
                            date.toString(QStringLiteral("yyyy-MM-dd")))
                              : stock::currentCost(session, positional[0], positional[1]);
    context.out() << QString::number(cost, 'f', session.params().priceDecimals()) << Qt::endl;
    return ExitDone;
}

int runBatchCheck(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 3, 3);
    const QString kind = positional[0].toUpper();
    if (!stock::isBatchCheckKind(kind))
        return context.usageError(stock::unknownCheckKindText(positional[0]));
    const QString message
        = stock::batchCheck(context.session(), positional[1], positional[2], kind);
    return message.isEmpty() ? ExitDone : refuseWith(context, message);
}

int runLimitCheck(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 1);
    const QString message = stock::saleLimitCheck(context.session(), positional[0]);
    return message.isEmpty() ? ExitDone : refuseWith(context, message);
}

int runRerunLedger(Context &context, Args &args)
{
    const bool exclude = args.flag(QStringLiteral("--exclude"));
    const QStringList positional = takePositional(context, args, 1, 1);
    bool ok = false;
    const qint64 id = positional[0].toLongLong(&ok);
    if (!ok)
        return context.usageError(QStringLiteral("帐目编号应为整数：") + positional[0]);
    const auto summary = stock::repairLedger(context.session(), id, exclude);
    const stock::RerunSummary &done = valueOf(summary);
    context.out() << QStringLiteral("重算 %1 行，改写 %2 行；库存数 %3，均价 %4，库存金额 %5")
                         .arg(QString::number(done.rowsRun), QString::number(done.rowsRewritten),
                             num(done.last.quantity), num(done.last.average), num(done.last.value))
                  << Qt::endl;
    return ExitDone;
}

int runSettle(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 1, 2);
    const QString date = parseDate(context, positional[0]).toString(QStringLiteral("yyyy-MM-dd"));
    shell::Session &session = context.session();
    require(stock::repairSettlement(session, date, positional.value(1)));
    for (const stock::SettlementRow &row : stock::settlementRows(session, date))
        printRow(context, { row.warehouse, num(row.quantity), num(row.value) });
    return ExitDone;
}

stock::StockFilter stockFilter(Context &context, Args &args)
{
    stock::StockFilter filter;
    filter.warehouse = args.option(QStringLiteral("--warehouse")).value_or(QString());
    filter.classCode = args.option(QStringLiteral("--class")).value_or(QString());
    filter.text = args.option(QStringLiteral("--text")).value_or(QString());
    filter.inStockOnly = args.flag(QStringLiteral("--in-stock"));
    if (const auto days = args.option(QStringLiteral("--expiring"))) {
        bool ok = false;
        filter.expiringWithinDays = days->toInt(&ok);
        if (!ok || filter.expiringWithinDays < 0)
            throw Stop { context.usageError(QStringLiteral("天数应为不小于 0 的整数：") + *days) };
    }
    return filter;
}

int runStockQuery(Context &context, Args &args)
{
    const bool batches = args.flag(QStringLiteral("--batches"));
    const stock::StockFilter filter = stockFilter(context, args);
    requireNoMore(context, args);
    shell::Session &session = context.session();
    QStringList captions { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
        QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("仓库") };
    if (!batches) {
        printRow(context,
            captions
                + QStringList { QStringLiteral("库存数"), QStringLiteral("帐面库存"),
                    QStringLiteral("成本价"), QStringLiteral("库存金额") });
        for (const stock::WarehouseStock &row : stock::stockByWarehouse(session, filter))
            printRow(context,
                { row.goods.code, row.goods.name, row.goods.packing, row.goods.unit,
                    row.goods.warehouseName, num(row.quantity), num(row.book), num(row.cost),
                    num(row.value) });
        return ExitDone;
    }
    printRow(context,
        captions
            + QStringList { QStringLiteral("产品批号"), QStringLiteral("生产日期"),
                QStringLiteral("有效期至"), QStringLiteral("库存数"), QStringLiteral("成本价"),
                QStringLiteral("库存金额") });
    for (const stock::BatchStock &row : stock::stockByBatch(session, filter))
        printRow(context,
            { row.goods.code, row.goods.name, row.goods.packing, row.goods.unit,
                row.goods.warehouseName, row.batch, row.produced, row.expiry, num(row.quantity),
                num(row.cost), num(row.value) });
    return ExitDone;
}

int runStockAlarm(Context &context, Args &args)
{
    const stock::StockFilter filter = stockFilter(context, args);
    requireNoMore(context, args);
    printRow(context,
        { QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("规格"),
            QStringLiteral("单位"), QStringLiteral("仓库"), QStringLiteral("库存数"),
            QStringLiteral("最低库存"), QStringLiteral("短缺数量") });
    for (const stock::StockAlarm &row : stock::stockAlarms(context.session(), filter))
        printRow(context,
            { row.goods.code, row.goods.name, row.goods.packing, row.goods.unit,
                row.goods.warehouseName, num(row.quantity), num(row.minimum), num(row.shortage) });
    return ExitDone;
}

// GOODS PRICE [WAREHOUSE]: the question is answered by --yes or at the terminal.
int runSetAverage(Context &context, Args &args)
{
    const QStringList positional = takePositional(context, args, 2, 3);
    shell::Session &session = context.session();
    require(stock::changeAverage(session, positional[0], positional.value(2), positional[1]));
    const auto totals = stock::goodsTotals(session, positional[0]);
    context.out() << QStringLiteral("商品均价：") << num(totals ? totals->average : 0) << Qt::endl;
    return ExitDone;
}

} // namespace

void addStockCommands(Registry &registry)
{
    registry.add({ QStringLiteral("stock"), QStringLiteral("GOODS [WAREHOUSE]"),
        QStringLiteral("商品的库存：商品合计、各仓库库存、批次库存"), runStock });
    registry.add({ QStringLiteral("ledger"), QStringLiteral("GOODS WAREHOUSE"),
        QStringLiteral("商品在一个仓库的明细帐及其结存"), runLedger });
    registry.add({ QStringLiteral("stock-query"),
        QStringLiteral("[--warehouse W] [--class C] [--text T] [--in-stock] [--batches] "
                       "[--expiring DAYS]"),
        QStringLiteral("当前库存查询：按仓库或按批次（含近效期筛选）"), runStockQuery });
    registry.add(
        { QStringLiteral("stock-alarm"), QStringLiteral("[--warehouse W] [--class C] [--text T]"),
            QStringLiteral("库存报警查询：库存低于最低库存的商品"), runStockAlarm });
    registry.add({ QStringLiteral("set-average"), QStringLiteral("GOODS PRICE [WAREHOUSE]"),
        QStringLiteral("修改商品均价（不指定仓库为所有仓库）"), runSetAverage });
    registry.add({ QStringLiteral("cost"), QStringLiteral("GOODS WAREHOUSE [DATE]"),
        QStringLiteral("成本价：指定日期的成本价，不指定日期为当前成本价"), runCost });
    registry.add({ QStringLiteral("batch-check"), QStringLiteral("KIND NUMBER WAREHOUSE"),
        QStringLiteral("单据的批次库存检查（库存不足时退出码为 1）"), runBatchCheck });
    registry.add({ QStringLiteral("limit-check"), QStringLiteral("NUMBER"),
        QStringLiteral("销售单的每次最多销售数量检查"), runLimitCheck });
    registry.add({ QStringLiteral("rerun-ledger"), QStringLiteral("ROWID [--exclude]"),
        QStringLiteral("从一条明细帐重算移动加权平均"), runRerunLedger });
    registry.add({ QStringLiteral("settle"), QStringLiteral("DATE [WAREHOUSE]"),
        QStringLiteral("库存日结：补齐当日结算行并结算仓库"), runSettle });
}

} // namespace medistock::cli
