#include "tests/stock/documents/stockdocstest.h"

#include "tests/support/documentrows.h"

#include <QSqlRecord>

namespace medistock::test {

const QString StockDocsTest::amoxil = QStringLiteral("200001");
const QString StockDocsTest::granules = QStringLiteral("200002");
const QString StockDocsTest::mainStore = QStringLiteral("100001");
const QString StockDocsTest::branch = QStringLiteral("100002");

void StockDocsTest::SetUp()
{
    StockTest::SetUp();
    addReceipt("CJ1", "2025-03-10", { { amoxil, 20, 12 }, { granules, 10, 8, 1, "G1" } });
    addReceipt("CJ2", "2025-03-11", { { amoxil, 10, 15 } }, branch);
    postReceipt("CJ1");
    postReceipt("CJ2");
}

documents::LineDraft StockDocsTest::line(const QString &goods, const QString &quantity,
    const QString &price, const QString &batch, const QString &unit) const
{
    documents::LineDraft l;
    l.goods = goods;
    l.quantity = quantity;
    l.price = price;
    l.batch = batch;
    l.unit = unit;
    l.expiry = QStringLiteral("2027-12-31");
    l.produced = QStringLiteral("2024-12-01");
    return l;
}

documents::DocumentDraft StockDocsTest::draft(const QString &date, const QString &warehouse,
    const QList<documents::LineDraft> &lines, const QString &secondWarehouse) const
{
    documents::DocumentDraft d;
    d.date = date;
    d.warehouse = warehouse;
    d.secondWarehouse = secondWarehouse;
    d.lines = lines;
    return d;
}

QStringList StockDocsTest::rows(const QString &sql, const QVariantList &params)
{
    QStringList result;
    for (const QSqlRecord &record : db().rows(sql, params)) {
        QStringList values;
        for (int i = 0; i < record.count(); ++i) {
            // A NULL reads as empty on both engines (the server's driver hands it as a typed
            // null whose text would be "0").
            const QVariant value = record.value(i);
            values.append(record.isNull(i) ? QString()
                    : value.typeId() == QMetaType::Double
                    ? QString::number(value.toDouble(), 'g', 12)
                    : value.toString());
        }
        result.append(values.join(QLatin1Char('|')));
    }
    return result;
}

QString StockDocsTest::everything()
{
    // Row numbers handed out stay handed out: sqlite_sequence only counts.
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

QStringList StockDocsTest::changedSince(const QString &before)
{
    QStringList gone = before.split(QLatin1Char('\n'));
    QStringList added;
    for (const QString &line : everything().split(QLatin1Char('\n')))
        if (!gone.removeOne(line))
            added.append(QStringLiteral("+") + line);
    for (QString &line : gone)
        line.prepend(QLatin1Char('-'));
    return gone + added;
}

QString StockDocsTest::lastLog()
{
    return db().firstText(QStringLiteral("select log_note from jxc_log order by id desc limit 1"));
}

void StockDocsTest::addStockOperator(const QString &name, const QString &kcgl)
{
    addOperatorWithRights(session(), name, { { QStringLiteral("kcgl"), kcgl } });
}

} // namespace medistock::test
