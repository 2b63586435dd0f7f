#include "gsp/expiry.h"

#include "core/connection.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "shell/parameters.h"

namespace medistock::gsp {

namespace {

const int defaultNearExpiryDays = 180;
const int mostDays = 36500;

// The tables and conditions the list and the count share, with their values.
struct ExpirySource
{
    QString sql;
    QVariantList params;
};

ExpirySource expirySource(
    const shell::Session &session, int days, const QString &warehouse, const QString &key)
{
    const QString code = choosesWarehouse(warehouse) ? warehouse.trimmed() : QString();
    const QString pattern = QLatin1Char('%') + key.trimmed() + QLatin1Char('%');
    Conditions rights;
    rights.warehouseRights(session, QStringLiteral("c"));
    ExpirySource source;
    source.sql
        = QStringLiteral(
              " from jxc_tkc a,jxc_goods b,jxc_ckxx c where a.g_sn=b.g_sn and "
              "a.ck_sn=c.ck_sn and a.t_sl>0 and a.ck_sn like ? and (b.g_sn like ? or "
              "b.g_name like ? or upper(b.g_jm) like upper(?)) and a.t_ph<>? and a.t_yxq<>? and "
              "a.t_yxq<>? and a.t_yxq<=?")
        + rights.sql();
    source.params = { QLatin1Char('%') + code + QLatin1Char('%'), pattern, pattern, pattern,
        QString(QLatin1String("")), QString(QLatin1String("")), QStringLiteral("0000-00"),
        expiryLimit(session.clock().today(), days) };
    source.params.append(rights.params());
    return source;
}

ExpiryRow expiryRowOf(const QSqlQuery &q)
{
    detail::Cells c(q);
    ExpiryRow row;
    row.id = c.id();
    row.goods = c.text();
    row.warehouse = c.text();
    row.batch = c.text();
    row.produced = c.text();
    row.expiry = c.text();
    row.quantity = c.number();
    row.goodsName = c.text();
    row.unit = c.text();
    row.packing = c.text();
    row.manufacturer = c.text();
    row.warehouseName = c.text();
    return row;
}

} // namespace

QString expiryLimit(QDate today, int days)
{
    return today.addDays(days).toString(QStringLiteral("yyyy-MM"));
}

Result<int> expiryDays(const QString &text)
{
    bool ok = false;
    const int days = text.trimmed().toInt(&ok);
    if (!ok || days < 0 || days > mostDays)
        return Outcome::refused(texts::badDays(text));
    return days;
}

Result<QList<ExpiryRow>> expiryQuery(
    const shell::Session &session, int days, const QString &warehouse, const QString &key)
{
    if (days < 0 || days > mostDays)
        return core::refuse(session.ui(), texts::badDays(QString::number(days)));
    return detail::readRows<ExpiryRow>(session, {}, [&](QList<ExpiryRow> &rows) {
        const ExpirySource source = expirySource(session, days, warehouse, key);
        session.db().forEach(
            QStringLiteral("select a.id,a.g_sn,a.ck_sn,a.t_ph,a.t_scrq,a.t_yxq,a.t_sl,b.g_name,"
                           "b.dw_name,b.gg_name,b.g_sccs,c.ck_name")
                + source.sql + QStringLiteral(" order by a.id"),
            source.params, [&](const QSqlQuery &q) { rows.append(expiryRowOf(q)); });
    });
}

int nearExpiryDays(const shell::Parameters &params)
{
    const int days = params.integer("cs_cs031");
    return days > 0 && days <= mostDays ? days : defaultNearExpiryDays;
}

Result<int> nearExpiryCount(const shell::Session &session)
{
    int count = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        const ExpirySource source
            = expirySource(session, nearExpiryDays(session.params()), QString(), QString());
        count = session.db()
                    .firstValue(QStringLiteral("select count(*)") + source.sql, source.params)
                    .toInt();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return count;
}

} // namespace medistock::gsp
