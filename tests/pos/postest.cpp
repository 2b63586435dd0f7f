#include "tests/pos/postest.h"

#include "core/transaction.h"
#include "stock/ledger.h"
#include "stock/stores.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

void PosTest::SetUp()
{
    MembersTest::SetUp();
    if (HasFatalFailure())
        return;
    addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店"));
    addEmployee(db(), QStringLiteral("100002"), QStringLiteral("王芳"));
    addEmployee(db(), QStringLiteral("100003"), QStringLiteral("李强"));
    db().exec(QStringLiteral("insert into jxc_goodsclass (gc_sn,gc_name) values ('01','西药'),"
                             "('02','器械')"));
    db().exec(QStringLiteral("update jxc_goods set gc_sn='01' where g_sn in ('200001','200002')"));
    db().exec(QStringLiteral("update jxc_goods set gc_sn='02' where g_sn='200003'"));
}

void PosTest::receiveBatch(const QString &goods, double quantity, double price,
    const QString &batch, const QString &expiry)
{
    core::Transaction transaction(db());
    stock::LedgerRow row;
    row.kind = QStringLiteral("qc");
    row.number = QStringLiteral("QC") + goods + batch;
    row.date = QStringLiteral("2025-01-02");
    row.goods = goods;
    row.warehouse = QStringLiteral("100001");
    row.price = price;
    row.quantity = quantity;
    row.amount = row.total = price * quantity;
    row.batch = batch;
    row.expiry = expiry;
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::applyWarehouseStock(
        session(), { goods, QStringLiteral("100001"), quantity, quantity, 0, price });
    stock::rerunLedger(session(), id, false);
    stock::applyGoodsTotals(session(), goods, quantity, 0, 0);
    stock::addBatchStock(
        session(), { goods, QStringLiteral("100001"), batch, expiry, {} }, quantity);
    transaction.commit();
}

void PosTest::setCommission(const QString &employee, int method, double rate, double minimumProfit)
{
    db().exec(QStringLiteral("update jxc_user set u_tcfs=?,u_tc=?,u_zdlr=? where u_sn=?"),
        { method, rate, minimumProfit, employee });
}

void PosTest::setGoodsCommission(const QString &goods, int kind, double rate)
{
    db().exec(
        QStringLiteral("update jxc_goods set g_tclb=?,g_tc=? where g_sn=?"), { kind, rate, goods });
}

members::RetailDocument PosTest::sale(
    const QList<members::RetailLine> &lines, const QString &member, const QString &time)
{
    members::RetailDocument d = retail(member, lines);
    d.time = QStringLiteral("2025-03-14 ") + time;
    return d;
}

members::RetailLine PosTest::gift(const QString &goods, double quantity, double price)
{
    members::RetailLine l = line(goods, quantity, price);
    l.giftMarker = QStringLiteral("(赠品)");
    return l;
}

} // namespace medistock::test
