#include "tests/sales/salestest.h"

#include "accounts/ledger.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "stock/ledger.h"
#include "stock/stores.h"
#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

void SalesTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    db().exec(QStringLiteral("update jxc_goods set g_sj=12,g_sj1=11.5,g_sj2=11,g_sj3=10.5,"
                             "g_sj4=10,g_sj5=9.5,g_lsj=15 where g_sn=?"),
        { QStringLiteral("200001") });
    addGoodsUnit(db(), QStringLiteral("200001"), QStringLiteral("件"), 10);
    db().exec(QStringLiteral("update jxc_goodsdw set g_sj=115,g_sj3=100 where g_sn=?"),
        { QStringLiteral("200001") });
    addGoods(db(),
        { .code = QStringLiteral("200002"),
            .name = QStringLiteral("板蓝根颗粒"),
            .unit = QStringLiteral("袋") });
    db().exec(
        QStringLiteral("update jxc_goods set g_sj=8 where g_sn=?"), { QStringLiteral("200002") });
    addCustomer(db(), QStringLiteral("100002"), QStringLiteral("华康药店"));
    addCustomer(db(), QStringLiteral("100003"), QStringLiteral("仁和诊所"));
    db().exec(QStringLiteral("update jxc_khxx set kt_sn=? where kh_sn=?"),
        { QStringLiteral("1003"), QStringLiteral("100002") });
    db().exec(QStringLiteral("update jxc_khxx set kt_sn=? where kh_sn=?"),
        { QStringLiteral("1000"), QStringLiteral("100003") });
    receive(QStringLiteral("200001"), QStringLiteral("100001"), 100, 5, QStringLiteral("B1"),
        QStringLiteral("2026-06-30"));
    receive(QStringLiteral("200001"), QStringLiteral("100001"), 50, 5, QStringLiteral("B2"),
        QStringLiteral("2025-12-31"));
    receive(QStringLiteral("200002"), QStringLiteral("100001"), 40, 3, {}, {});
    setParameter(QStringLiteral("cs_shdj"), 0);
    setParameter(QStringLiteral("cs_kc"), 1);
    setParameter(QStringLiteral("cs_xsjgts"), 0);
    ui.setDefaultAnswer(true);
}

void SalesTest::receive(const QString &goods, const QString &warehouse, double quantity,
    double price, const QString &batch, const QString &expiry)
{
    core::Transaction transaction(db());
    stock::LedgerRow row;
    row.kind = QStringLiteral("qc");
    row.number = QStringLiteral("QC") + goods;
    row.date = QStringLiteral("2025-01-02");
    row.goods = goods;
    row.warehouse = warehouse;
    row.price = price;
    row.quantity = quantity;
    row.amount = row.total = price * quantity;
    row.batch = batch;
    row.expiry = expiry;
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::applyWarehouseStock(session(), { goods, warehouse, quantity, quantity, 0, price });
    stock::rerunLedger(session(), id, false);
    stock::applyGoodsTotals(session(), goods, quantity, 0, 0);
    stock::refreshGoodsAverage(session(), goods, price);
    stock::addBatchStock(session(), { goods, warehouse, batch, expiry, QString() }, quantity);
    transaction.commit();
}

documents::LineDraft SalesTest::line(const QString &goods, const QString &quantity,
    const QString &price, const QString &batch, const QString &unit) const
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.unit = unit;
    l.batch = batch;
    if (batch == QLatin1String("B1"))
        l.expiry = QStringLiteral("2026-06-30");
    else if (batch == QLatin1String("B2"))
        l.expiry = QStringLiteral("2025-12-31");
    return l;
}

sales::SaleDraft SalesTest::draft(const QList<documents::LineDraft> &lines, double paid) const
{
    sales::SaleDraft d;
    d.entry.date = QStringLiteral("2025-03-14");
    d.entry.party = QStringLiteral("100002");
    d.entry.warehouse = QStringLiteral("100001");
    d.entry.lines = lines;
    d.header.settlementMode = QStringLiteral("1");
    d.header.paid = paid;
    return d;
}

static QString savedOrFailed(const Result<QString> &saved)
{
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    return saved.ok() ? saved.value() : QString();
}

QString SalesTest::saveSale(const sales::SaleDraft &draft)
{
    return savedOrFailed(sales::saveSale(session(), draft));
}

QString SalesTest::saveReturn(const sales::SaleDraft &draft)
{
    return savedOrFailed(sales::saveSalesReturn(session(), draft));
}

QString SalesTest::saveOrder(const sales::SaleDraft &draft)
{
    return savedOrFailed(sales::saveSalesOrder(session(), draft));
}

QStringList SalesTest::rows(
    const QString &table, const QString &columns, const QString &where, const QVariantList &params)
{
    return tableRows(db(), table, columns, where, params);
}

double SalesTest::balance(const QString &customer)
{
    return accounts::currentLedgerBalance(db(), accounts::PartyKind::Customer, customer, 2);
}

double SalesTest::partyFigure(const QString &customer)
{
    return db()
        .firstValue(QStringLiteral("select kh_lwje from jxc_khxx where kh_sn=?"), { customer })
        .toDouble();
}

QString SalesTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

} // namespace medistock::test
