// The tabs of "往来账务(客户)" and "往来账务(供货商)": each view's columns and the accounts
// module's query that fills them.
#include "shell/session.h"
#include "ui/accounts/statementscreen.h"
#include "ui/common/workspace.h"

#include <QTabWidget>

namespace medistock::ui {

namespace {

using Kind = QueryColumn::Kind;

struct Places
{
    int quantity;
    int price;
    int amount;
};

Places places(const shell::Session &session)
{
    const shell::Parameters &p = session.params();
    return { p.quantityDecimals(), p.priceDecimals(), p.amountDecimals() };
}

QueryColumn text(const QString &caption, int width = 0)
{
    return { caption, Kind::Text, 0, false, width };
}

QueryColumn sum(const QString &caption, int decimals)
{
    return { caption, Kind::Number, decimals, true };
}

QueryColumn rate()
{
    return { QStringLiteral("毛利率%"), Kind::Number, 2 };
}

// ---- the documents of the parties and their freight summary

StatementView documentsView(const Places &d, bool customers)
{
    const QString party = customers ? QStringLiteral("客户") : QStringLiteral("供货商");
    return { QStringLiteral("单据列表"),
        { text(QStringLiteral("单据号"), 130), text(QStringLiteral("日期"), 90),
            text(QStringLiteral("类型"), 100), text(party + QStringLiteral("名称"), 180),
            sum(QStringLiteral("应收(付)金额"), d.amount),
            sum(QStringLiteral("实收(付)金额"), d.amount),
            sum(QStringLiteral("优惠金额"), d.amount), sum(QStringLiteral("回款金额"), d.amount),
            sum(QStringLiteral("未结金额"), d.amount), sum(QStringLiteral("运费"), d.amount),
            sum(QStringLiteral("包装费"), d.amount), text(QStringLiteral("运费方式")),
            text(QStringLiteral("仓库")), text(QStringLiteral("业务员")),
            text(QStringLiteral("审核人")), text(QStringLiteral("备注"), 160) },
        [customers](const StatementScreen &s) {
            QList<QVariantList> rows;
            const auto documents = customers ? accounts::customerDocuments(s.session(), s.filter())
                                             : accounts::supplierDocuments(s.session(), s.filter());
            for (const accounts::StatementDocument &r : documents)
                rows.append({ r.number, r.date, r.kind, r.partyName, r.due, r.paid, r.discount,
                    r.paidBack, r.unpaid, r.freight, r.packing, r.freightMode, r.warehouse,
                    r.salesman, r.checker, r.note });
            return rows;
        },
        true };
}

StatementView freightView(const Places &d, bool customers)
{
    const QString party = customers ? QStringLiteral("客户") : QStringLiteral("供货商");
    return { QStringLiteral("费用汇总表"),
        { text(party + QStringLiteral("编号")), text(party + QStringLiteral("名称"), 180),
            text(QStringLiteral("运费方式")), sum(QStringLiteral("应收(付)金额"), d.amount),
            sum(QStringLiteral("实收(付)金额"), d.amount),
            sum(QStringLiteral("优惠金额"), d.amount), sum(QStringLiteral("运费"), d.amount),
            sum(QStringLiteral("包装费"), d.amount), sum(QStringLiteral("数量"), d.quantity) },
        [customers](const StatementScreen &s) {
            QList<QVariantList> rows;
            const auto sums = customers ? accounts::customerFreight(s.session(), s.filter())
                                        : accounts::supplierFreight(s.session(), s.filter());
            for (const accounts::FreightSummary &r : sums)
                rows.append({ r.party, r.partyName, r.freightMode, r.due, r.paid, r.discount,
                    r.freight, r.packing, r.quantity });
            return rows;
        } };
}

// ---- goods totals and journal rows

using GoodsQuery
    = QList<accounts::GoodsTotals> (*)(const shell::Session &, const accounts::StatementFilter &);
using JournalQuery
    = QList<accounts::JournalLine> (*)(const shell::Session &, const accounts::StatementFilter &);

StatementView goodsView(const Places &d, GoodsQuery query, bool lastDate)
{
    QList<QueryColumn> columns { text(QStringLiteral("商品编号")),
        text(QStringLiteral("商品名称"), 180), text(QStringLiteral("规格")),
        text(QStringLiteral("单位"), 50), text(QStringLiteral("生产厂商"), 160),
        sum(QStringLiteral("数量"), d.quantity), sum(QStringLiteral("金额"), d.amount),
        sum(QStringLiteral("不含税金额"), d.amount), sum(QStringLiteral("税额"), d.amount),
        sum(QStringLiteral("毛利"), d.amount), rate(),
        { QStringLiteral("库存"), Kind::Number, d.quantity } };
    if (lastDate)
        columns.append(text(QStringLiteral("最后供货日期"), 90));
    return { QStringLiteral("商品汇总"), columns, [query, lastDate](const StatementScreen &s) {
                QList<QVariantList> rows;
                for (const accounts::GoodsTotals &r : query(s.session(), s.filter())) {
                    QVariantList row { r.goods, r.goodsName, r.packing, r.unit, r.maker, r.quantity,
                        r.amount, r.beforeTax, r.tax, r.profit, r.profitRate, r.stock };
                    if (lastDate)
                        row.append(r.lastDate);
                    rows.append(row);
                }
                return rows;
            } };
}

StatementView journalView(const Places &d, JournalQuery query)
{
    return { QStringLiteral("明细"),
        { text(QStringLiteral("日期"), 90), text(QStringLiteral("单据号"), 130),
            text(QStringLiteral("商品编号")), text(QStringLiteral("商品名称"), 180),
            text(QStringLiteral("单位"), 50), text(QStringLiteral("批号")),
            text(QStringLiteral("往来单位"), 160), text(QStringLiteral("仓库")),
            sum(QStringLiteral("数量"), d.quantity),
            { QStringLiteral("单价"), Kind::Number, d.price },
            sum(QStringLiteral("金额"), d.amount), sum(QStringLiteral("毛利"), d.amount), rate() },
        [query](const StatementScreen &s) {
            QList<QVariantList> rows;
            for (const accounts::JournalLine &r : query(s.session(), s.filter()))
                rows.append({ r.date, r.number, r.goods, r.goodsName, r.unit, r.batch, r.partyName,
                    r.warehouse, r.quantity, r.price, r.amount, r.profit, r.profitRate });
            return rows;
        } };
}

StatementView monthsView(const Places &d)
{
    return { QStringLiteral("按月汇总"),
        { text(QStringLiteral("月份"), 80), sum(QStringLiteral("数量"), d.quantity),
            sum(QStringLiteral("金额"), d.amount), sum(QStringLiteral("毛利"), d.amount) },
        [](const StatementScreen &s) {
            QList<QVariantList> rows;
            for (const accounts::MonthTotals &r : accounts::customerMonths(s.session(), s.filter()))
                rows.append({ r.month, r.quantity, r.amount, r.profit });
            return rows;
        } };
}

// ---- the customer analysis

using GroupQuery = QList<accounts::GroupTotals> (*)(
    const shell::Session &, const accounts::StatementFilter &, const QString &);

StatementView groupView(
    const Places &d, const QString &name, const QString &caption, GroupQuery query)
{
    return { name,
        { text(caption, 140), sum(QStringLiteral("数量"), d.quantity),
            sum(QStringLiteral("金额"), d.amount), sum(QStringLiteral("毛利"), d.amount),
            sum(QStringLiteral("不含税金额"), d.amount), sum(QStringLiteral("税额"), d.amount) },
        [query](const StatementScreen &s) {
            QList<QVariantList> rows;
            for (const accounts::GroupTotals &r : query(s.session(), s.filter(), s.choice()))
                rows.append({ r.group, r.quantity, r.amount, r.profit, r.beforeTax, r.tax });
            return rows;
        } };
}

StatementView lostView(const Places &d)
{
    return { QStringLiteral("客户流失分析"),
        { text(QStringLiteral("客户编号")), text(QStringLiteral("客户名称"), 180),
            text(QStringLiteral("最后消费日期"), 100), sum(QStringLiteral("数量"), d.quantity),
            sum(QStringLiteral("金额"), d.amount), sum(QStringLiteral("毛利"), d.amount) },
        [](const StatementScreen &s) {
            QList<QVariantList> rows;
            for (const accounts::LostCustomer &r :
                accounts::lostCustomers(s.session(), s.filter(), s.days()))
                rows.append(
                    { r.customer, r.customerName, r.lastDate, r.quantity, r.amount, r.profit });
            return rows;
        } };
}

QTabWidget *window(const QString &title)
{
    auto *tabs = new QTabWidget;
    tabs->setWindowTitle(title);
    return tabs;
}

} // namespace

QTabWidget *customerStatements(Workspace &workspace)
{
    const Places d = places(workspace.session);
    const auto party = documents::PartyTable::Customer;
    QTabWidget *tabs = window(QStringLiteral("往来账务(客户)"));
    const auto add = [&](const QString &title, QList<StatementView> views) {
        return tabs->addTab(new StatementScreen(workspace, title, party, std::move(views)), title);
    };
    add(QStringLiteral("客户所有单据"), { documentsView(d, true), freightView(d, true) });
    add(QStringLiteral("客户消费情况表"),
        { goodsView(d, accounts::customerGoods, false), journalView(d, accounts::customerJournal),
            monthsView(d) });
    auto *analysis = new StatementScreen(workspace, QStringLiteral("客户消费分析"), party,
        { groupView(d, QStringLiteral("按客户类型统计"), QStringLiteral("客户类型"),
              accounts::byCustomerType),
            groupView(d, QStringLiteral("按所属地区统计"), QStringLiteral("所属地区"),
                accounts::byRegion),
            lostView(d) });
    analysis->addAnalysisFilters();
    tabs->addTab(analysis, analysis->title());
    return tabs;
}

QTabWidget *supplierStatements(Workspace &workspace)
{
    const Places d = places(workspace.session);
    const auto party = documents::PartyTable::Supplier;
    QTabWidget *tabs = window(QStringLiteral("往来账务(供货商)"));
    const auto add = [&](const QString &title, QList<StatementView> views) {
        tabs->addTab(new StatementScreen(workspace, title, party, std::move(views)), title);
    };
    add(QStringLiteral("供货商所有单据"), { documentsView(d, false), freightView(d, false) });
    add(QStringLiteral("供货商供货情况"),
        { goodsView(d, accounts::supplierDeliveries, true),
            journalView(d, accounts::supplierDeliveryJournal) });
    add(QStringLiteral("供货商商品销售情况"),
        { goodsView(d, accounts::supplierGoodsSales, false),
            journalView(d, accounts::supplierGoodsSalesJournal) });
    return tabs;
}

} // namespace medistock::ui
