#include "tests/statistics/statisticstest.h"

#include "purchasing/entry.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "stock/documents/entry.h"
#include "stock/documents/lossoverflow.h"
#include "stock/documents/transfer.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

namespace {

QList<documents::LineDraft> drafts(const QList<StatisticsTest::Line> &lines)
{
    QList<documents::LineDraft> result;
    for (const StatisticsTest::Line &line : lines) {
        documents::LineDraft d;
        d.goods = line.goods;
        d.quantity = line.quantity;
        d.price = line.price;
        d.batch = line.batch;
        if (!line.batch.isEmpty()) {
            d.produced = QStringLiteral("2024-12-01");
            d.expiry = QStringLiteral("2027-11-30");
        }
        result.append(d);
    }
    return result;
}

documents::DocumentDraft entry(const QString &date, const QString &party,
    const QList<StatisticsTest::Line> &lines, const QString &employee = QStringLiteral("100002"))
{
    documents::DocumentDraft d;
    d.date = date;
    d.party = party;
    d.warehouse = QStringLiteral("100001");
    d.employee = employee;
    d.lines = drafts(lines);
    return d;
}

QString saved(const Result<QString> &result)
{
    EXPECT_TRUE(result.ok()) << result.message().toStdString();
    return result.ok() ? result.value() : QString();
}

void checked(const Outcome &outcome)
{
    EXPECT_TRUE(outcome.ok()) << outcome.message().toStdString();
}

} // namespace

void StatisticsTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    db().exec(
        QStringLiteral("insert into jxc_goodsclass (gc_sn,gc_name,gc_cid,gc_pid) values "
                       "('1001','西药',11,1),('100101','中成药',12,11),('1002','保健品',13,1)"));
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    addGoods(db(),
        { .code = QStringLiteral("200002"),
            .name = QStringLiteral("板蓝根颗粒"),
            .unit = QStringLiteral("袋") });
    addGoods(db(),
        { .code = QStringLiteral("200003"),
            .name = QStringLiteral("维生素C片"),
            .unit = QStringLiteral("瓶") });
    db().exec(QStringLiteral("update jxc_goods set gc_sn='1001',gg_name='0.25g*24',"
                             "ghs_sn='100002',g_jj=9,g_sj=16,g_lsj=18 where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_goods set gc_sn='100101',ghs_sn='100002' where "
                             "g_sn='200002'"));
    db().exec(QStringLiteral("update jxc_goods set gc_sn='1002' where g_sn='200003'"));
    addSupplier(db(), QStringLiteral("100002"), QStringLiteral("华东医药"));
    addCustomer(db(), QStringLiteral("100002"), QStringLiteral("华康药店"));
    addCustomer(db(), QStringLiteral("100003"), QStringLiteral("仁和诊所"));
    addEmployee(db(), QStringLiteral("100002"), QStringLiteral("小周"));
    addEmployee(db(), QStringLiteral("100003"), QStringLiteral("小李"));
    db().exec(QStringLiteral("update jxc_user set u_tcfs=0,u_tc=5,u_zdlr=0 where u_sn='100002'"));
    db().exec(QStringLiteral("update jxc_user set u_tcfs=1,u_tc=10,u_zdlr=1 where u_sn='100003'"));
    addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
    setParameter(QStringLiteral("cs_kc"), 1);
    setParameter(QStringLiteral("cs_shdj"), 0);
    setParameter(QStringLiteral("cs_xsjgts"), 0);
    ui.setDefaultAnswer(true);
}

QString StatisticsTest::receipt(const QString &date, const QList<Line> &lines)
{
    purchasing::PurchaseDraft d { entry(date, QStringLiteral("100002"), lines), {} };
    const QString number = saved(purchasing::savePurchaseReceipt(session(), d));
    checked(purchasing::checkPurchaseReceipt(session(), number));
    return number;
}

QString StatisticsTest::purchaseReturn(const QString &date, const QList<Line> &lines)
{
    purchasing::PurchaseDraft d { entry(date, QStringLiteral("100002"), lines), {} };
    const QString number = saved(purchasing::savePurchaseReturn(session(), d));
    checked(purchasing::checkPurchaseReturn(session(), number));
    return number;
}

QString StatisticsTest::sale(
    const QString &date, const QList<Line> &lines, const QString &customer, const QString &employee)
{
    sales::SaleDraft d;
    d.entry = entry(date, customer, lines, employee);
    d.header.settlementMode = QStringLiteral("2");
    const QString number = saved(sales::saveSale(session(), d));
    checked(sales::checkSale(session(), number));
    return number;
}

QString StatisticsTest::salesReturn(const QString &date, const QList<Line> &lines)
{
    sales::SaleDraft d;
    d.entry = entry(date, QStringLiteral("100002"), lines);
    d.header.settlementMode = QStringLiteral("2");
    const QString number = saved(sales::saveSalesReturn(session(), d));
    checked(sales::checkSalesReturn(session(), number));
    return number;
}

QString StatisticsTest::loss(const QString &date, const QList<Line> &lines)
{
    const QString number = saved(stock::saveLoss(session(), entry(date, {}, lines)));
    checked(stock::checkLoss(session(), number));
    return number;
}

QString StatisticsTest::overflow(const QString &date, const QList<Line> &lines)
{
    const QString number = saved(stock::saveOverflow(session(), entry(date, {}, lines)));
    checked(stock::checkOverflow(session(), number));
    return number;
}

QString StatisticsTest::transfer(const QString &date, const QList<Line> &lines, const QString &to)
{
    documents::DocumentDraft d = entry(date, {}, lines);
    d.secondWarehouse = to;
    const QString number = saved(stock::saveTransfer(session(), d));
    checked(stock::checkTransfer(session(), number));
    return number;
}

QStringList StatisticsTest::rows(const QString &sql, const QVariantList &params)
{
    return queryRows(db(), sql, params);
}

void StatisticsTest::januaryBooks()
{
    receipt("2025-01-05", { { "200001", "100", "10" }, { "200002", "50", "4" } });
    sale("2025-01-20", { { "200001", "30", "15" }, { "200002", "10", "6" } });
}

QString StatisticsTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

} // namespace medistock::test
