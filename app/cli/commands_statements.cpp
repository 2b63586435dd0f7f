// The statement command: each tab of "往来账务(客户)" and "往来账务(供货商)" as tab-separated rows
// under a header line.
#include "app/cli/registry.h"

#include "accounts/statements.h"
#include "core/rounding.h"
#include "shell/session.h"

#include <functional>

namespace medistock::cli {

namespace {

using accounts::StatementFilter;

struct Table
{
    QStringList header {};
    QList<QStringList> rows {};
};

QString num(double value)
{
    return core::plainNumber(value);
}

Table documentTable(const QList<accounts::StatementDocument> &documents, bool customer)
{
    Table t { { QStringLiteral("单据号"), QStringLiteral("日期"),
        customer ? QStringLiteral("应收金额") : QStringLiteral("应付金额"),
        customer ? QStringLiteral("实收金额") : QStringLiteral("实付金额"),
        customer ? QStringLiteral("未收金额") : QStringLiteral("未付金额"),
        QStringLiteral("优惠金额"), QStringLiteral("类型"), QStringLiteral("备注"),
        QStringLiteral("操作员"), QStringLiteral("编号"),
        customer ? QStringLiteral("客户名称") : QStringLiteral("供货商名称"),
        QStringLiteral("简码"), QStringLiteral("业务员"), QStringLiteral("仓库"),
        QStringLiteral("审核人"), QStringLiteral("审核日期"), QStringLiteral("回款金额"),
        QStringLiteral("运费"), QStringLiteral("包装费"), QStringLiteral("付费方式") } };
    for (const auto &d : documents)
        t.rows.append({ d.number, d.date, num(d.due), num(d.paid), num(d.unpaid), num(d.discount),
            d.kind, d.note, d.operatorName, d.party, d.partyName, d.partyShort, d.salesman,
            d.warehouse, d.checker, d.checkDate, num(d.paidBack), num(d.freight), num(d.packing),
            d.freightMode });
    return t;
}

Table freightTable(const QList<accounts::FreightSummary> &rows)
{
    Table t { { QStringLiteral("编号"), QStringLiteral("名称"), QStringLiteral("付费方式"),
        QStringLiteral("应收金额"), QStringLiteral("实收金额"), QStringLiteral("优惠金额"),
        QStringLiteral("运费"), QStringLiteral("包装费"), QStringLiteral("数量") } };
    for (const auto &r : rows)
        t.rows.append({ r.party, r.partyName, r.freightMode, num(r.due), num(r.paid),
            num(r.discount), num(r.freight), num(r.packing), num(r.quantity) });
    return t;
}

Table journalTable(const QList<accounts::JournalLine> &lines)
{
    Table t { { QStringLiteral("日期"), QStringLiteral("单据号"), QStringLiteral("类型"),
        QStringLiteral("商品编号"), QStringLiteral("商品名称"), QStringLiteral("单位"),
        QStringLiteral("规格型号"), QStringLiteral("产品批号"), QStringLiteral("有效期至"),
        QStringLiteral("编号"), QStringLiteral("名称"), QStringLiteral("仓库"),
        QStringLiteral("数量"), QStringLiteral("单价"), QStringLiteral("总金额"),
        QStringLiteral("金额"), QStringLiteral("税额"), QStringLiteral("毛利"),
        QStringLiteral("毛利率%") } };
    for (const auto &l : lines)
        t.rows.append({ l.date, l.number, l.kind, l.goods, l.goodsName, l.unit, l.packing, l.batch,
            l.expiry, l.party, l.partyName, l.warehouse, num(l.quantity), num(l.price),
            num(l.amount), num(l.beforeTax), num(l.tax), num(l.profit), num(l.profitRate) });
    return t;
}

Table goodsTable(const QList<accounts::GoodsTotals> &rows, const QStringList &extra,
    const std::function<QStringList(const accounts::GoodsTotals &)> &extraValues)
{
    Table t { QStringList { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
                  QStringLiteral("单位"), QStringLiteral("库存数"), QStringLiteral("规格型号"),
                  QStringLiteral("批准文号"), QStringLiteral("生产厂商"), QStringLiteral("备注"),
                  QStringLiteral("名称简码"), QStringLiteral("数量"), QStringLiteral("总金额"),
                  QStringLiteral("金额"), QStringLiteral("税额") }
        + extra };
    for (const auto &g : rows)
        t.rows.append(QStringList { g.goods, g.goodsName, g.unit, num(g.stock), g.packing, g.approval,
                          g.maker, g.remark, g.goodsShort, num(g.quantity), num(g.amount),
                          num(g.beforeTax), num(g.tax) }
            + extraValues(g));
    return t;
}

Table groupTable(const QString &caption, const QList<accounts::GroupTotals> &rows)
{
    Table t { { caption, QStringLiteral("数量"), QStringLiteral("总金额"), QStringLiteral("毛利"),
        QStringLiteral("金额"), QStringLiteral("税额") } };
    for (const auto &r : rows)
        t.rows.append({ r.group, num(r.quantity), num(r.amount), num(r.profit), num(r.beforeTax),
            num(r.tax) });
    return t;
}

Table monthTable(const QList<accounts::MonthTotals> &rows)
{
    Table t { { QStringLiteral("月份"), QStringLiteral("数量"), QStringLiteral("总金额"),
        QStringLiteral("毛利") } };
    for (const auto &r : rows)
        t.rows.append({ r.month, num(r.quantity), num(r.amount), num(r.profit) });
    return t;
}

Table lostTable(const QList<accounts::LostCustomer> &rows)
{
    Table t { { QStringLiteral("客户编号"), QStringLiteral("客户名称"), QStringLiteral("最后日期"),
        QStringLiteral("数量"), QStringLiteral("总金额"), QStringLiteral("毛利") } };
    for (const auto &r : rows)
        t.rows.append({ r.customer, r.customerName, r.lastDate, num(r.quantity), num(r.amount),
            num(r.profit) });
    return t;
}

struct Request
{
    const shell::Session &session;
    StatementFilter filter;
    QString text {}; // the type or region chosen
    int days = 30;
};

using Tab = std::function<Table(const Request &)>;

struct TabEntry
{
    QStringList names; // the English key, then the tab's own name
    Tab run;
};

QStringList profitColumns()
{
    return { QStringLiteral("毛利"), QStringLiteral("毛利率%") };
}

QStringList profitValues(const accounts::GoodsTotals &g)
{
    return { num(g.profit), num(g.profitRate) };
}

const std::vector<TabEntry> &customerTabs()
{
    static const std::vector<TabEntry> tabs {
        { { "documents", "客户所有单据" },
            [](const Request &r) {
                return documentTable(accounts::customerDocuments(r.session, r.filter), true);
            } },
        { { "freight", "费用汇总表" },
            [](const Request &r) {
                return freightTable(accounts::customerFreight(r.session, r.filter));
            } },
        { { "goods", "客户消费情况表" },
            [](const Request &r) {
                return goodsTable(accounts::customerGoods(r.session, r.filter), {},
                    [](const auto &) { return QStringList {}; });
            } },
        { { "journal", "消费明细" },
            [](const Request &r) {
                return journalTable(accounts::customerJournal(r.session, r.filter));
            } },
        { { "months", "月份统计" },
            [](const Request &r) {
                return monthTable(accounts::customerMonths(r.session, r.filter));
            } },
        { { "types", "按客户类型统计" },
            [](const Request &r) {
                return groupTable(QStringLiteral("客户类型"),
                    accounts::byCustomerType(r.session, r.filter, r.text));
            } },
        { { "regions", "按所属地区统计" },
            [](const Request &r) {
                return groupTable(
                    QStringLiteral("所属地区"), accounts::byRegion(r.session, r.filter, r.text));
            } },
        { { "lost", "客户流失分析" },
            [](const Request &r) {
                return lostTable(accounts::lostCustomers(r.session, r.filter, r.days));
            } },
    };
    return tabs;
}

const std::vector<TabEntry> &supplierTabs()
{
    static const std::vector<TabEntry> tabs {
        { { "documents", "供货商所有单据" },
            [](const Request &r) {
                return documentTable(accounts::supplierDocuments(r.session, r.filter), false);
            } },
        { { "freight", "费用汇总表" },
            [](const Request &r) {
                return freightTable(accounts::supplierFreight(r.session, r.filter));
            } },
        { { "deliveries", "供货商供货情况" },
            [](const Request &r) {
                return goodsTable(accounts::supplierDeliveries(r.session, r.filter),
                    { QStringLiteral("最后日期") },
                    [](const auto &g) { return QStringList { g.lastDate }; });
            } },
        { { "delivery-journal", "供货明细" },
            [](const Request &r) {
                return journalTable(accounts::supplierDeliveryJournal(r.session, r.filter));
            } },
        { { "goods-sales", "供货商商品销售情况" },
            [](const Request &r) {
                return goodsTable(accounts::supplierGoodsSales(r.session, r.filter),
                    profitColumns(), profitValues);
            } },
        { { "goods-sales-journal", "销售明细" },
            [](const Request &r) {
                return journalTable(accounts::supplierGoodsSalesJournal(r.session, r.filter));
            } },
    };
    return tabs;
}

QStringList tabNames(const std::vector<TabEntry> &tabs)
{
    QStringList names;
    for (const TabEntry &tab : tabs)
        names.append(tab.names.first());
    return names + QStringList { QStringLiteral("lines") };
}

void print(Context &context, const Table &table)
{
    context.out() << table.header.join(QLatin1Char('\t')) << Qt::endl;
    for (const QStringList &row : table.rows)
        context.out() << row.join(QLatin1Char('\t')) << Qt::endl;
}

// `statement kh|ghs lines --number NUMBER`: the document's lines under its warehouse caption.
int printLines(Context &context, const std::optional<QString> &number)
{
    if (!number)
        throw Stop { context.usageError(QStringLiteral("lines 须给出 --number 单据号")) };
    const accounts::DocumentLines lines
        = accounts::statementDocumentLines(context.session(), *number);
    context.out() << lines.caption.trimmed() << Qt::endl;
    print(context, journalTable(lines.lines));
    return ExitDone;
}

int runStatement(Context &context, Args &args)
{
    const auto party = args.option(QStringLiteral("--party"));
    const auto from = args.option(QStringLiteral("--from"));
    const auto to = args.option(QStringLiteral("--to"));
    const auto text = args.option(QStringLiteral("--text"));
    const auto days = args.option(QStringLiteral("--days"));
    const auto number = args.option(QStringLiteral("--number"));
    const bool descending = args.flag(QStringLiteral("--desc"));
    const QStringList p = takePositional(context, args, 2, 2);
    if (p[0] != QLatin1String("kh") && p[0] != QLatin1String("ghs"))
        throw Stop { context.usageError(QStringLiteral("往来单位应为 kh 或 ghs：") + p[0]) };
    const std::vector<TabEntry> &tabs
        = p[0] == QLatin1String("kh") ? customerTabs() : supplierTabs();
    if (p[1] == QLatin1String("lines"))
        return printLines(context, number);
    const auto tab = std::find_if(
        tabs.begin(), tabs.end(), [&](const TabEntry &t) { return t.names.contains(p[1]); });
    if (tab == tabs.end())
        throw Stop { context.usageError(
            QStringLiteral("未知的页：%1（可选：%2）")
                .arg(p[1], tabNames(tabs).join(QStringLiteral("、")))) };
    if (!from || !to)
        throw Stop { context.usageError(QStringLiteral("须给出 --from 和 --to 日期")) };
    Request request { context.session(),
        { parseDate(context, *from).toString(Qt::ISODate),
            parseDate(context, *to).toString(Qt::ISODate), party.value_or(QString()),
            text.value_or(QString()), descending },
        text.value_or(QString()) };
    if (days) {
        bool ok = false;
        request.days = days->toInt(&ok);
        if (!ok || request.days < 0)
            throw Stop { context.usageError(QStringLiteral("--days 应为天数：") + *days) };
    }
    print(context, tab->run(request));
    return ExitDone;
}

} // namespace

void addStatementCommands(Registry &registry)
{
    registry.add({ QStringLiteral("statement"),
        QStringLiteral("kh|ghs TAB [--party CODE] --from DATE --to DATE [--desc] [--text T] "
                       "[--days N] | kh|ghs lines --number NUMBER"),
        QStringLiteral("往来账务：kh 客户（documents goods journal months freight types regions "
                       "lost）、ghs 供货商（documents deliveries delivery-journal goods-sales "
                       "goods-sales-journal freight），制表符分隔"),
        runStatement });
}

} // namespace medistock::cli
