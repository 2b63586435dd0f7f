#include "tests/purchasing/purchasingtest.h"

#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

void PurchasingTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    addGoods(db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
    addGoodsUnit(db(), QStringLiteral("200001"), QStringLiteral("件"), 20);
    addGoods(db(),
        { .code = QStringLiteral("200002"),
            .name = QStringLiteral("板蓝根颗粒"),
            .unit = QStringLiteral("袋") });
    addSupplier(db(), supplier(), QStringLiteral("华东医药"));
    addEmployee(db(), QStringLiteral("100002"), QStringLiteral("小周"));
    addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
    ui.setDefaultAnswer(true);
}

documents::LineDraft PurchasingTest::line(
    const QString &goods, const QString &quantity, const QString &price, const QString &batch) const
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.batch = batch;
    if (!batch.isEmpty()) {
        l.produced = QStringLiteral("2024-12-01");
        l.expiry = QStringLiteral("2027-11-30");
    }
    return l;
}

purchasing::PurchaseDraft PurchasingTest::draft(
    const QList<documents::LineDraft> &lines, const QString &date)
{
    purchasing::PurchaseDraft d;
    d.entry.date = date;
    d.entry.party = supplier();
    d.entry.warehouse = QStringLiteral("100001");
    d.entry.employee = QStringLiteral("100002");
    d.entry.lines = lines;
    return d;
}

QString PurchasingTest::saveReceipt(const purchasing::PurchaseDraft &draft)
{
    const Result<QString> saved = purchasing::savePurchaseReceipt(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    return saved.ok() ? saved.value() : QString();
}

QString PurchasingTest::saveReturn(const purchasing::PurchaseDraft &draft)
{
    const Result<QString> saved = purchasing::savePurchaseReturn(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    return saved.ok() ? saved.value() : QString();
}

QString PurchasingTest::checkedReceipt(const purchasing::PurchaseDraft &draft)
{
    const QString number = saveReceipt(draft);
    const Outcome checked = purchasing::checkPurchaseReceipt(session(), number);
    EXPECT_TRUE(checked.ok()) << checked.message().toStdString();
    return number;
}

QString PurchasingTest::checkedReturn(const purchasing::PurchaseDraft &draft)
{
    const QString number = saveReturn(draft);
    const Outcome checked = purchasing::checkPurchaseReturn(session(), number);
    EXPECT_TRUE(checked.ok()) << checked.message().toStdString();
    return number;
}

qint64 PurchasingTest::receiptLineId(const QString &receipt, int line)
{
    const QList<QSqlRecord> lines = db().rows(
        QStringLiteral("select id2 from jxc_jhsp where j_sn=? order by id"), { receipt });
    return lines.value(line).value(0).toLongLong();
}

QString PurchasingTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

QStringList PurchasingTest::differences(const QString &before, const QString &after)
{
    const QStringList was = before.split(QLatin1Char('\n'));
    const QStringList is = after.split(QLatin1Char('\n'));
    QStringList changed;
    for (const QString &line : was)
        if (!is.contains(line))
            changed.append(QStringLiteral("- ") + line);
    for (const QString &line : is)
        if (!was.contains(line))
            changed.append(QStringLiteral("+ ") + line);
    return changed;
}

QStringList PurchasingTest::rows(const QString &sql, const QVariantList &params)
{
    return queryRows(db(), sql, params);
}

double PurchasingTest::figure(const QString &sql, const QVariantList &params)
{
    return db().firstValue(sql, params).toDouble();
}

} // namespace medistock::test
