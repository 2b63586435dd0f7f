// Commands of the till and its reports: the POS reports as tab-separated rows under a header, the
// till's cash in and out, and the shift handover.
#include "app/cli/registry.h"

#include "core/rounding.h"
#include "pos/handover.h"
#include "pos/reporttables.h"
#include "pos/reprint.h"
#include "shell/session.h"

#include <functional>

namespace medistock::cli {

namespace {

QString cell(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double)
        return core::plainNumber(value.toDouble());
    return value.toString();
}

void printTable(Context &context, const pos::ReportTable &table)
{
    QStringList captions;
    for (const pos::ReportColumn &column : table.columns)
        captions.append(column.caption);
    context.out() << captions.join(QLatin1Char('\t')) << Qt::endl;
    for (const QVariantList &row : table.rows) {
        QStringList cells;
        for (const QVariant &value : row)
            cells.append(cell(value));
        context.out() << cells.join(QLatin1Char('\t')) << Qt::endl;
    }
}

double amountArgument(Context &context, const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok)
        throw Stop { context.usageError(QStringLiteral("金额应为数字：") + text) };
    return value;
}

QString optionText(Args &args, const char *name)
{
    return args.option(QLatin1String(name)).value_or(QString());
}

double amountOption(Context &context, Args &args, const char *name)
{
    const std::optional<QString> text = args.option(QLatin1String(name));
    return text ? amountArgument(context, *text) : 0;
}

// What a report leaves unread but its own name is refused.
void requireOnlyReportName(Context &context, const Args &args)
{
    takePositional(context, args, 1, 1);
}

// --NAME CHOICE among the names given, the first being the default.
template<class T>
T choiceOf(Context &context, Args &args, const char *option,
    const std::vector<std::pair<const char *, T>> &choices)
{
    const std::optional<QString> text = args.option(QLatin1String(option));
    if (!text)
        return choices.front().second;
    for (const auto &[name, value] : choices)
        if (*text == QString::fromUtf8(name))
            return value;
    throw Stop { context.usageError(
        QStringLiteral("无法识别的选项值：%1 %2").arg(QLatin1String(option), *text)) };
}

// The options every report takes; what a report does not use stays unread and is refused.
struct ReportOptions
{
    pos::DateRange range;
    QString warehouse;
};

ReportOptions rangeOptions(Context &context, Args &args)
{
    const std::optional<QString> from = args.option(QStringLiteral("--from"));
    const std::optional<QString> to = args.option(QStringLiteral("--to"));
    if (!from || !to)
        throw Stop { context.usageError(QStringLiteral("请用 --from 和 --to 给出日期范围")) };
    parseDate(context, *from);
    parseDate(context, *to);
    return { { *from, *to }, optionText(args, "--warehouse") };
}

pos::SalesFilter salesFilter(Context &context, Args &args, bool goods)
{
    const ReportOptions o = rangeOptions(context, args);
    pos::SalesFilter filter { o.range, o.warehouse, optionText(args, "--cashier"),
        optionText(args, "--member"), goods ? optionText(args, "--goods") : QString() };
    requireOnlyReportName(context, args);
    return filter;
}

pos::ReportTable journal(Context &context, Args &args)
{
    const pos::SalesFilter filter = salesFilter(context, args, false);
    return pos::journalTable(valueOf(pos::salesJournal(context.session(), filter)));
}

pos::ReportTable goods(Context &context, Args &args)
{
    const pos::SalesFilter filter = salesFilter(context, args, true);
    return pos::goodsSalesTable(valueOf(pos::goodsSales(context.session(), filter)));
}

pos::ReportTable details(Context &context, Args &args)
{
    const QString number = optionText(args, "--number");
    const pos::SalesFilter filter = salesFilter(context, args, true);
    return pos::linesTable(valueOf(pos::salesLines(context.session(), filter, number)));
}

pos::ReportTable ranking(Context &context, Args &args)
{
    const ReportOptions o = rangeOptions(context, args);
    pos::RankingFilter filter { o.range, o.warehouse,
        choiceOf<pos::RankingView>(context, args, "--by",
            { { "goods", pos::RankingView::Goods }, { "class", pos::RankingView::GoodsClass },
                { "cashier", pos::RankingView::Cashier } }),
        choiceOf<pos::RankingOrder>(context, args, "--order",
            { { "销售利润率", pos::RankingOrder::ProfitRate },
                { "销售数量", pos::RankingOrder::Quantity },
                { "总销售额", pos::RankingOrder::Amount },
                { "销售利润", pos::RankingOrder::Profit } }) };
    requireOnlyReportName(context, args);
    return pos::rankingTable(valueOf(pos::salesRanking(context.session(), filter)), filter.view);
}

pos::ReportTable memberSales(Context &context, Args &args)
{
    const ReportOptions o = rangeOptions(context, args);
    const pos::MemberSalesFilter filter { o.range, o.warehouse, optionText(args, "--level"),
        optionText(args, "--member"), optionText(args, "--text") };
    requireOnlyReportName(context, args);
    return pos::memberSalesTable(valueOf(pos::memberSales(context.session(), filter)));
}

pos::ReportTable cashiers(Context &context, Args &args)
{
    const ReportOptions o = rangeOptions(context, args);
    const pos::CashierFilter filter { o.range, o.warehouse, optionText(args, "--cashier") };
    requireOnlyReportName(context, args);
    return pos::cashierTable(valueOf(pos::cashierTakings(context.session(), filter)));
}

pos::ReportTable tillCash(Context &context, Args &args)
{
    const ReportOptions o = rangeOptions(context, args);
    const QString cashier = optionText(args, "--cashier");
    if (!o.warehouse.isEmpty())
        throw Stop { context.usageError(QStringLiteral("出入款没有仓库，不能用 --warehouse")) };
    requireOnlyReportName(context, args);
    return pos::tillCashTable(valueOf(pos::tillCashRows(context.session(), o.range, cashier)));
}

pos::ReportTable commission(Context &context, Args &args)
{
    const ReportOptions o = rangeOptions(context, args);
    requireOnlyReportName(context, args);
    return pos::commissionTable(
        valueOf(pos::posCommission(context.session(), { o.range, o.warehouse })));
}

int runPosReport(Context &context, Args &args)
{
    const QStringList positional = args.positional();
    if (positional.isEmpty())
        return context.usageError(QStringLiteral("请给出报表：")
            + QStringLiteral("journal goods details ranking members cashiers cash commission"));
    using Report = std::function<pos::ReportTable(Context &, Args &)>;
    const std::vector<std::pair<QString, Report>> reports { { QStringLiteral("journal"), journal },
        { QStringLiteral("goods"), goods }, { QStringLiteral("details"), details },
        { QStringLiteral("ranking"), ranking }, { QStringLiteral("members"), memberSales },
        { QStringLiteral("cashiers"), cashiers }, { QStringLiteral("cash"), tillCash },
        { QStringLiteral("commission"), commission } };
    for (const auto &[name, report] : reports) {
        if (name != positional.first())
            continue;
        printTable(context, report(context, args));
        return ExitDone;
    }
    return context.usageError(QStringLiteral("未知的报表：") + positional.first());
}

int runTillCash(Context &context, Args &args, pos::TillCash direction)
{
    const QStringList positional = takePositional(context, args, 1, 2);
    const double amount = amountArgument(context, positional[0]);
    context.out() << valueOf(
        pos::recordTillCash(context.session(), direction, amount, positional.value(1)))
                  << Qt::endl;
    return ExitDone;
}

int runHandover(Context &context, Args &args)
{
    pos::HandoverDraft draft;
    draft.handedUp = amountOption(context, args, "--up");
    draft.leftForNext = amountOption(context, args, "--down");
    draft.note = optionText(args, "--note");
    draft.next = takePositional(context, args, 1, 1).first();
    const auto done = valueOf(pos::handOver(context.session(), draft));
    const pos::ShiftFigures &f = done.second;
    pos::ReportTable table;
    for (const char *caption : { "交班时间", "交班操作员", "接班操作员", "本班收款总额", "应有现金",
             "上交营业款", "下放营业款", "交接金额" })
        table.columns.append({ QString::fromUtf8(caption), {}, {}, false });
    table.rows.append({ done.first.time, done.first.current, done.first.next, f.takings, f.drawer(),
        done.first.handedUp, done.first.leftForNext, done.first.handed });
    printTable(context, table);
    return ExitDone;
}

// The reprint's variables as name and value, then its lines under their captions.
int runReprint(Context &context, Args &args)
{
    const QString number = takePositional(context, args, 1, 1).first();
    const pos::Reprint reprint = valueOf(pos::posReprint(context.session(), number));
    const QVariantMap variables = reprint.variables();
    for (const char *name : { "sTitle", "yf", "sf", "hybh", "hyname", "hyye", "hyjf", "hymobile" })
        context.out() << name << '\t' << cell(variables.value(QString::fromLatin1(name)))
                      << Qt::endl;
    pos::ReportTable table;
    for (const char *caption :
        { "商品编号", "商品名称", "单位", "单价", "打折率", "数量", "总金额", "折后单价" })
        table.columns.append({ QString::fromUtf8(caption), {}, {}, false });
    for (const pos::ReprintLine &l : reprint.lines)
        table.rows.append({ l.goods, l.name, l.unit, l.price, l.discountRate, l.quantity, l.amount,
            l.discounted });
    printTable(context, table);
    return ExitDone;
}

} // namespace

void addPosCommands(Registry &registry)
{
    registry.add({ QStringLiteral("pos-report"),
        QStringLiteral(
            "journal|goods|details|ranking|members|cashiers|cash|commission --from "
            "DATE --to DATE [--warehouse CK] [--cashier 收银员] [--member 会员编号] "
            "[--goods 商品编号] [--number 单据号] [--by goods|class|cashier] [--order "
            "销售利润率|销售数量|总销售额|销售利润] [--level 等级编号] [--text 姓名/简码/手机]"),
        QStringLiteral("POS报表：销售流水账、商品销售统计、商品销售明细、销售排行、会员消费统计、"
                       "收银员收银统计、出入款、销售提成"),
        runPosReport });
    registry.add({ QStringLiteral("cash-in"), QStringLiteral("AMOUNT [NOTE]"),
        QStringLiteral("POS入款（需要 --yes），输出单号"), [](Context &context, Args &args) {
            return runTillCash(context, args, pos::TillCash::In);
        } });
    registry.add({ QStringLiteral("cash-out"), QStringLiteral("AMOUNT [NOTE]"),
        QStringLiteral("POS出款（需要 --yes），输出单号"), [](Context &context, Args &args) {
            return runTillCash(context, args, pos::TillCash::Out);
        } });
    registry.add({ QStringLiteral("pos-handover"),
        QStringLiteral("NEXT [--up 上交营业款] [--down 下放营业款] [--note 备注]"),
        QStringLiteral("交班给接班操作员，输出本班的收款和交接金额"), runHandover });
    registry.add({ QStringLiteral("pos-reprint"), QStringLiteral("NUMBER"),
        QStringLiteral("重打POS单据：输出标题、应收实收、会员变量和商品行"), runReprint });
}

} // namespace medistock::cli
