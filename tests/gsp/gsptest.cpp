#include "tests/gsp/gsptest.h"

#include "core/transaction.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "shell/session.h"
#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

void GspTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    db().exec(
        QStringLiteral("update jxc_goods set g_iscf=1,g_clxs=10,gsp_name=?,gg_name=?,"
                       "g_yjlx=?,g_zczh=?,g_sccs=?,color_name=?,g_isjk=0,g_yhlx=? where g_sn=?"),
        { QStringLiteral("抗生素制剂"), QStringLiteral("0.25g*24粒"), QStringLiteral("胶囊"),
            QStringLiteral("H13023964"), QStringLiteral("华北制药"),
            QStringLiteral("国药准字H13023964"), QStringLiteral("一般养护"),
            QStringLiteral("200001") });
    addGoods(db(), { .code = QStringLiteral("200002"), .name = QStringLiteral("复方甘草片") });
    db().exec(
        QStringLiteral("update jxc_goods set g_xzsl=2,g_iscf=0,g_clxs=0,g_yhlx=? where g_sn=?"),
        { QStringLiteral("不养护"), QStringLiteral("200002") });
    addGoods(db(),
        { .code = QStringLiteral("200003"),
            .name = QStringLiteral("板蓝根颗粒"),
            .unit = QStringLiteral("袋") });
    db().exec(
        QStringLiteral("update jxc_goods set g_iscf=0,g_clxs=0,gsp_name=?,g_yhlx=? where g_sn=?"),
        { QStringLiteral("中药饮片"), QStringLiteral("不养护"), QStringLiteral("200003") });
    addSupplier(db(), QStringLiteral("100002"), QStringLiteral("华东医药"));
    db().exec(QStringLiteral("update jxc_ghsxx set ghs_jm='HDYY' where ghs_sn='100002'"));
    addCustomer(db(), QStringLiteral("100002"), QStringLiteral("华康药店"));
    db().exec(QStringLiteral("update jxc_khxx set kh_jm='HKYD' where kh_sn='100002'"));
    addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
    setParameter(QStringLiteral("cs_kc"), 1);
    setParameter(QStringLiteral("cs_xsjgts"), 0);
    ui.setDefaultAnswer(true);
}

QString GspTest::receipt(const QString &goods, const QString &quantity, const QString &price,
    const QString &date, bool checked, const QString &warehouse)
{
    purchasing::PurchaseDraft draft;
    draft.entry.date = date;
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = warehouse;
    documents::LineDraft line;
    line.goods = goods;
    line.quantity = quantity;
    line.price = price;
    line.batch = QStringLiteral("B1");
    line.produced = QStringLiteral("2024-12-01");
    line.expiry = QStringLiteral("2027-11-30");
    draft.entry.lines = { line };
    const Result<QString> saved = purchasing::savePurchaseReceipt(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    if (saved.ok() && checked) {
        const Outcome done = purchasing::checkPurchaseReceipt(session(), saved.value());
        EXPECT_TRUE(done.ok()) << done.message().toStdString();
    }
    return saved.ok() ? saved.value() : QString();
}

QString GspTest::sale(
    const QString &goods, const QString &quantity, const QString &date, bool checked)
{
    sales::SaleDraft draft;
    draft.entry.date = date;
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft line;
    line.goods = goods;
    line.quantity = quantity;
    line.price = QStringLiteral("12");
    line.batch = QStringLiteral("B1");
    line.produced = QStringLiteral("2024-12-01");
    line.expiry = QStringLiteral("2027-11-30");
    line.columns.set(QStringLiteral("t_cfhm"), QStringLiteral("CF0318"));
    line.columns.set(QStringLiteral("ls_xm"), QStringLiteral("王芳"));
    line.columns.set(QStringLiteral("t_yaoshi"), QStringLiteral("陈药师"));
    draft.entry.lines = { line };
    draft.header.settlementMode = QStringLiteral("1");
    const Result<QString> saved = sales::saveSale(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    if (saved.ok() && checked) {
        const Outcome done = sales::checkSale(session(), saved.value());
        EXPECT_TRUE(done.ok()) << done.message().toStdString();
    }
    return saved.ok() ? saved.value() : QString();
}

qint64 GspTest::ledgerRow(
    const QString &kind, const QString &goods, double quantity, double amount, const QString &date)
{
    stock::LedgerRow row;
    row.kind = kind;
    row.number = kind.toUpper() + QStringLiteral("250310")
        + QString::number(10001 + rowCount(db(), QStringLiteral("jxc_goodslist")));
    row.date = date;
    row.goods = goods;
    row.goodsName
        = db().firstText(QStringLiteral("select g_name from jxc_goods where g_sn=?"), { goods });
    row.warehouse = QStringLiteral("100001");
    row.warehouseName = QStringLiteral("主仓库");
    row.party = QStringLiteral("100002");
    row.partyName = QStringLiteral("华东医药");
    row.quantity = quantity;
    row.amount = row.total = amount;
    row.price = quantity != 0 ? amount / quantity : 0;
    row.batch = QStringLiteral("B1");
    core::Transaction transaction(db());
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::rerunLedger(session(), id, false);
    transaction.commit();
    return id;
}

void GspTest::batch(const QString &goods, const QString &warehouse, const QString &number,
    const QString &expiry, double quantity, const QString &produced)
{
    db().exec(
        QStringLiteral("insert into jxc_tkc (g_sn,t_jhrq,t_ph,t_yxq,t_sl,ck_sn,t_scrq) values "
                       "(?,?,?,?,?,?,?)"),
        { goods, QString(), number, expiry, quantity, warehouse, produced });
}

gsp::RecordFilter GspTest::filter(
    const QString &key, const QString &warehouse, const QString &from, const QString &to)
{
    return { from, to, key, warehouse };
}

QStringList GspTest::rows(const QString &sql, const QVariantList &params)
{
    return queryRows(db(), sql, params);
}

QString GspTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

} // namespace medistock::test
