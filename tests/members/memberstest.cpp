#include "tests/members/memberstest.h"

#include "core/transaction.h"
#include "members/member.h"
#include "stock/ledger.h"
#include "stock/stores.h"
#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

void MembersTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    addGoods(db(),
        { .code = QStringLiteral("200002"),
            .name = QStringLiteral("维生素C片"),
            .unit = QStringLiteral("瓶") });
    addGoods(db(), { .code = QStringLiteral("200003"), .name = QStringLiteral("医用口罩") });
    addGoods(db(),
        { .code = QStringLiteral("300001"),
            .name = QStringLiteral("保温杯"),
            .unit = QStringLiteral("个") });
    addGoods(db(),
        { .code = QStringLiteral("300002"),
            .name = QStringLiteral("环保袋"),
            .unit = QStringLiteral("个"),
            .average = 4 });
    db().exec(QStringLiteral("update jxc_goods set g_tssp=1,g_tsjf=5 where g_sn='200002'"));
    db().exec(QStringLiteral("update jxc_goods set g_tjsp=1 where g_sn='200003'"));
    db().exec(
        QStringLiteral("update jxc_goods set g_iszp=1,g_sy=1,g_zpjf=200 where g_sn='300001'"));
    db().exec(QStringLiteral("update jxc_goods set g_iszp=1,g_sy=1,g_zpjf=50 where g_sn='300002'"));
    receive(QStringLiteral("200001"), 100, 5, QStringLiteral("B1"));
    receive(QStringLiteral("200002"), 50, 2);
    receive(QStringLiteral("200003"), 40, 3);
    receive(QStringLiteral("300001"), 10, 18);
    {
        core::Transaction transaction(db());
        stock::ensureSettlementRows(session(), session().today());
        transaction.commit();
    }
    setPoints(10);
    ui.setDefaultAnswer(true);
}

void MembersTest::receive(const QString &goods, double quantity, double price, const QString &batch)
{
    core::Transaction transaction(db());
    stock::LedgerRow row;
    row.kind = QStringLiteral("qc");
    row.number = QStringLiteral("QC") + goods;
    row.date = QStringLiteral("2025-01-02");
    row.goods = goods;
    row.warehouse = QStringLiteral("100001");
    row.price = price;
    row.quantity = quantity;
    row.amount = row.total = price * quantity;
    row.batch = batch;
    const qint64 id = stock::insertLedgerRow(session(), row);
    stock::applyWarehouseStock(
        session(), { goods, QStringLiteral("100001"), quantity, quantity, 0, price });
    stock::rerunLedger(session(), id, false);
    stock::applyGoodsTotals(session(), goods, quantity, 0, 0);
    stock::refreshGoodsAverage(session(), goods, price);
    stock::addBatchStock(session(), { goods, QStringLiteral("100001"), batch, {}, {} }, quantity);
    transaction.commit();
}

QString MembersTest::addMember(const QString &name, const masterdata::Values &extra)
{
    masterdata::Values values = extra;
    values.insert(QStringLiteral("hy_name"), name);
    const Result<QString> added = members::addMember(session(), values);
    EXPECT_TRUE(added.ok()) << added.message().toStdString();
    return added.ok() ? added.value() : QString();
}

void MembersTest::setPoints(
    double amountPerPoint, const std::function<void(members::PointsSettings &)> &more)
{
    members::PointsSettings settings;
    settings.amountPerPoint = amountPerPoint;
    if (more)
        more(settings);
    ASSERT_TRUE(members::savePointsSettings(session(), settings).ok());
}

members::RetailLine MembersTest::line(
    const QString &goods, double quantity, double price, const QString &batch)
{
    members::RetailLine l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.batch = batch;
    return l;
}

members::RetailDocument MembersTest::retail(
    const QString &member, const QList<members::RetailLine> &lines, members::RetailKind kind)
{
    members::RetailDocument d;
    d.kind = kind;
    d.time = QStringLiteral("2025-03-14 10:00:00");
    d.member = member;
    d.warehouse = QStringLiteral("100001");
    d.lines = lines;
    d.payment.counter.cash = members::retailReceivable(session(), d);
    return d;
}

QString MembersTest::post(const members::RetailDocument &document)
{
    const Result<QString> posted = members::postRetailDocument(session(), document);
    EXPECT_TRUE(posted.ok()) << posted.message().toStdString();
    return posted.ok() ? posted.value() : QString();
}

double MembersTest::figure(const QString &member, const QString &column)
{
    return db()
        .firstValue(QStringLiteral("select %1 from jxc_hyxx where hy_sn=?").arg(column), { member })
        .toDouble();
}

QString MembersTest::text(const QString &member, const QString &column)
{
    return db().firstText(
        QStringLiteral("select %1 from jxc_hyxx where hy_sn=?").arg(column), { member });
}

QStringList MembersTest::rows(
    const QString &table, const QString &columns, const QString &where, const QVariantList &params)
{
    return tableRows(db(), table, columns, where, params);
}

QString MembersTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

} // namespace medistock::test
