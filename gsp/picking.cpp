#include "gsp/picking.h"

#include "core/connection.h"
#include "core/numbers.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "gsp/expiry.h"
#include "gsp/filters.h"
#include "gsp/reading.h"
#include "gsp/texts.h"

#include <cmath>

namespace medistock::gsp {

using detail::Cells;

namespace {

const QString discountGoods = QStringLiteral("00000000");
// The width of the quality and handling columns of the record lines.
const int noteWidth = 32;

const QString pickableFrom = QStringLiteral(
    " from jxc_tkc b join jxc_goods c on b.g_sn=c.g_sn left join jxc_kcsp a on a.g_sn=b.g_sn and "
    "a.ck_sn=b.ck_sn where c.g_jy=0 and b.t_sl>0 and b.ck_sn=? and b.g_sn<>?");

PickableBatch pickableOf(const QSqlQuery &q)
{
    Cells c(q);
    PickableBatch batch;
    batch.goods = c.text();
    batch.goodsName = c.text();
    batch.packing = c.text();
    batch.unit = c.text();
    batch.manufacturer = c.text();
    batch.category = c.text();
    batch.warehouseStock = c.number();
    batch.quantity = c.number();
    batch.batch = c.text();
    batch.produced = c.text();
    batch.expiry = c.text();
    return batch;
}

Conditions choiceConditions(const shell::Session &session, const BatchChoice &choice)
{
    Conditions where;
    if (!choice.goodsClass.trimmed().isEmpty())
        where.add(QStringLiteral("and c.gc_sn like ?"),
            { choice.goodsClass.trimmed() + QLatin1Char('%') });
    if (!choice.category.trimmed().isEmpty())
        where.add(QStringLiteral("and c.gsp_name=?"), { choice.category.trimmed() });
    where.keyword(
        { QStringLiteral("c.g_sn"), QStringLiteral("c.g_name"), QStringLiteral("c.g_jm") },
        choice.key);
    if (choice.withinDays >= 0)
        where.add(QStringLiteral("and b.t_ph<>? and b.t_yxq<>? and b.t_yxq<>? and b.t_yxq<=?"),
            { QString(), QString(), QStringLiteral("0000-00"),
                expiryLimit(session.clock().today(), choice.withinDays) });
    return where;
}

PickedLine pickedOf(const QSqlQuery &q)
{
    Cells c(q);
    PickedLine line;
    line.id = c.id();
    line.goods = c.text();
    line.quantity = c.number();
    line.quality = c.text();
    line.handling = c.text();
    line.batch = c.text();
    line.produced = c.text();
    line.expiry = c.text();
    line.goodsName = c.text();
    line.packing = c.text();
    line.unit = c.text();
    return line;
}

bool ownsWorkRow(const shell::Session &session, qint64 id)
{
    return session.db().exists(
        QStringLiteral("select id from jxc_tempspxf2 where id=? and a_name=?"),
        { id, session.user().name });
}

} // namespace

const FilledKindInfo &infoOf(FilledKind kind)
{
    static const FilledKindInfo inspection { "jxc_cljcd", "jxc_cljcsp", "JC", "cljc", 3 };
    static const FilledKindInfo tracking { "jxc_jxqd", "jxc_jxqsp", "JX", "jxq", 6 };
    return kind == FilledKind::Inspection ? inspection : tracking;
}

QString titleOf(FilledKind kind)
{
    return kind == FilledKind::Inspection ? texts::inspectionTitle() : texts::trackingTitle();
}

Result<QList<PickableBatch>> pickableBatches(
    const shell::Session &session, const BatchChoice &choice)
{
    return detail::readRows<PickableBatch>(session, {}, [&](QList<PickableBatch> &rows) {
        const Conditions where = choiceConditions(session, choice);
        QVariantList params { choice.warehouse.trimmed(), discountGoods };
        params.append(where.params());
        session.db().forEach(
            QStringLiteral("select b.g_sn,c.g_name,c.gg_name,c.dw_name,c.g_sccs,c.gsp_name,"
                           "coalesce(a.kc_sl,0),b.t_sl,b.t_ph,b.t_scrq,b.t_yxq")
                + pickableFrom + where.sql()
                + QStringLiteral(" order by b.g_sn,b.t_yxq,b.t_ph,b.t_scrq"),
            params, [&](const QSqlQuery &q) { rows.append(pickableOf(q)); });
    });
}

Outcome clearPicks(const shell::Session &session, FilledKind kind)
{
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        session.db().exec(QStringLiteral("delete from jxc_tempspxf2 where a_name=? and t_zp=?"),
            { session.user().name, QString::fromLatin1(infoOf(kind).workTag) });
        transaction.commit();
        return Outcome::done();
    });
}

Result<bool> pickBatch(const shell::Session &session, FilledKind kind, const QString &warehouse,
    const PickableBatch &batch)
{
    bool added = false;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QString tag = QString::fromLatin1(infoOf(kind).workTag);
        const QVariant stock = db.firstValue(QStringLiteral("select b.t_sl") + pickableFrom
                + QStringLiteral(" and b.g_sn=? and b.t_ph=? and b.t_yxq=? and b.t_scrq=?"),
            { warehouse.trimmed(), discountGoods, batch.goods, batch.batch, batch.expiry,
                batch.produced });
        if (!stock.isValid())
            return core::refuse(session.ui(), texts::batchNotPickable(batch.goods, batch.batch));
        if (db.exists(QStringLiteral("select g_sn from jxc_tempspxf2 where g_sn=? and t_ph=? and "
                                     "t_yxq=? and a_name=? and t_zp=?"),
                { batch.goods, batch.batch, batch.expiry, session.user().name, tag }))
            return Outcome::done();
        core::Transaction transaction(db);
        db.exec(QStringLiteral("insert into jxc_tempspxf2 (g_sn,ts_sl,t_cfsm,ts_note,t_ph,t_scrq,"
                               "t_yxq,a_name,t_zp) values (?,?,?,?,?,?,?,?,?)"),
            { batch.goods, stock.toDouble(), texts::goodQuality(), QString(), batch.batch,
                batch.produced, batch.expiry, session.user().name, tag });
        transaction.commit();
        added = true;
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return added;
}

QList<PickedLine> pickedLines(const shell::Session &session, FilledKind kind)
{
    QList<PickedLine> lines;
    session.db().forEach(
        QStringLiteral("select a.id,a.g_sn,a.ts_sl,a.t_cfsm,a.ts_note,a.t_ph,a.t_scrq,a.t_yxq,"
                       "b.g_name,b.gg_name,b.dw_name from jxc_tempspxf2 a left join jxc_goods b "
                       "on a.g_sn=b.g_sn where a.a_name=? and a.t_zp=? order by a.id"),
        { session.user().name, QString::fromLatin1(infoOf(kind).workTag) },
        [&](const QSqlQuery &q) { lines.append(pickedOf(q)); });
    return lines;
}

Outcome changePickedLine(const shell::Session &session, qint64 id, const QString &quantity,
    const QString &quality, const QString &handling)
{
    bool ok = false;
    const double value = quantity.trimmed().toDouble(&ok);
    if (!ok || value < 0 || !std::isfinite(value))
        return core::refuse(session.ui(), texts::badNumber(QStringLiteral("数量"), quantity));
    if (const QString problem
        = core::numberProblem(QStringLiteral("数量"), value, core::NumberKind::Quantity);
        !problem.isEmpty())
        return core::refuse(session.ui(), problem);
    const QString cleanQuality = core::cleanText(quality.trimmed(), core::CleanStrength::Medium);
    const QString cleanHandling = core::cleanText(handling.trimmed(), core::CleanStrength::Medium);
    if (cleanQuality.size() > noteWidth)
        return core::refuse(session.ui(), texts::tooLong(QStringLiteral("质量状况"), noteWidth));
    if (cleanHandling.size() > noteWidth)
        return core::refuse(session.ui(), texts::tooLong(QStringLiteral("处理情况"), noteWidth));
    return core::guarded(session.ui(), [&] {
        if (!ownsWorkRow(session, id))
            return core::refuse(session.ui(), texts::lineNotFound(id));
        core::Transaction transaction(session.db());
        session.db().exec(QStringLiteral("update jxc_tempspxf2 set ts_sl=?,t_cfsm=?,ts_note=? "
                                         "where id=?"),
            { value, cleanQuality, cleanHandling, id });
        transaction.commit();
        return Outcome::done();
    });
}

Outcome removePickedLine(const shell::Session &session, qint64 id)
{
    return core::guarded(session.ui(), [&] {
        if (!ownsWorkRow(session, id))
            return core::refuse(session.ui(), texts::lineNotFound(id));
        core::Transaction transaction(session.db());
        session.db().exec(QStringLiteral("delete from jxc_tempspxf2 where id=?"), { id });
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::gsp
