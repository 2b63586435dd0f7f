#include "documents/goodslookup.h"

#include "core/connection.h"
#include "documents/descriptor.h"
#include "shell/parameters.h"
#include "shell/session.h"

#include <QSqlQuery>

namespace medistock::documents {

namespace {

// The goods' columns a choice needs, with the warehouse's stock; `%1` is the condition.
const char *choiceSelect
    = "select g.g_sn,g.g_name,g.g_jm,g.gg_name,g.g_sccs,g.color_name,g.dw_name,g.g_sptm,g.g_jj,"
      "g.g_sj,g.g_scjj,g.g_pjjj,k.kc_sl,g.g_jy from jxc_goods g left join jxc_kcsp k on "
      "k.g_sn=g.g_sn and k.ck_sn=? where g.g_sn<>? and (%1) order by g.g_sn,g.id";

GoodsChoice choiceOf(const QSqlQuery &q)
{
    GoodsChoice c;
    c.code = q.value(0).toString();
    c.name = q.value(1).toString();
    c.mnemonic = q.value(2).toString();
    c.packing = q.value(3).toString();
    c.maker = q.value(4).toString();
    c.approval = q.value(5).toString();
    c.baseUnit = q.value(6).toString();
    c.unit = c.baseUnit;
    c.barcode = q.value(7).toString();
    c.presetPurchasePrice = q.value(8).toDouble();
    c.presetSalePrice = q.value(9).toDouble();
    c.lastPurchasePrice = q.value(10).toDouble();
    c.average = q.value(11).toDouble();
    c.stock = q.value(12).toDouble();
    return c;
}

// The goods meeting `condition`; disabled ones only when `withDisabled`.
QList<GoodsChoice> select(const shell::Session &session, const QString &condition,
    const QVariantList &params, const QString &warehouse, bool withDisabled, int limit = 0)
{
    QString sql = QString::fromLatin1(choiceSelect).arg(condition);
    QVariantList all { warehouse, discountGoods() };
    all += params;
    if (limit > 0) {
        sql += QStringLiteral(" limit ?");
        all.append(limit);
    }
    QList<GoodsChoice> found;
    session.db().forEach(sql, all, [&](const QSqlQuery &q) {
        if (withDisabled || !shell::readFlag(q.value(13)))
            found.append(choiceOf(q));
    });
    return found;
}

// A code or a barcode typed in full: a further unit's barcode names that unit.
QList<GoodsChoice> exactMatches(
    const shell::Session &session, const QString &text, const QString &warehouse)
{
    QList<GoodsChoice> found;
    session.db().forEach(
        QStringLiteral("select g_sn,dw_name,g_zhxs,g_sptm from jxc_goodsdw where g_sptm=? and "
                       "g_zhxs>? order by id"),
        { text, 0 }, [&](const QSqlQuery &q) {
            const QList<GoodsChoice> goods = select(
                session, QStringLiteral("g.g_sn=?"), { q.value(0).toString() }, warehouse, false);
            for (GoodsChoice choice : goods) {
                choice.unit = q.value(1).toString();
                choice.factor = q.value(2).toDouble();
                choice.barcode = q.value(3).toString();
                found.append(choice);
            }
        });
    const QList<GoodsChoice> plain = select(session,
        QStringLiteral("g.g_sn=? or g.g_sptm=? or g.g_sn in (select g_sn from jxc_goodstm where "
                       "g_sptm=?)"),
        { text, text, text }, warehouse, false);
    for (const GoodsChoice &choice : plain)
        if (std::none_of(found.begin(), found.end(),
                [&](const GoodsChoice &f) { return f.code == choice.code; }))
            found.append(choice);
    return found;
}

} // namespace

QList<GoodsChoice> findGoods(
    const shell::Session &session, const QString &text, const QString &warehouse, int limit)
{
    const QString typed = text.trimmed();
    if (typed.isEmpty())
        return select(session, QStringLiteral("1=1"), {}, warehouse, false, limit);
    const QList<GoodsChoice> exact = exactMatches(session, typed, warehouse);
    if (!exact.isEmpty())
        return exact;
    const QString contains = QLatin1Char('%') + typed + QLatin1Char('%');
    return select(session,
        QStringLiteral("g.g_sn like ? or upper(g.g_jm) like upper(?) or g.g_name like ?"),
        { typed + QLatin1Char('%'), contains, contains }, warehouse, false, limit);
}

std::optional<GoodsChoice> goodsChoice(
    const shell::Session &session, const QString &code, const QString &warehouse)
{
    const QList<GoodsChoice> found
        = select(session, QStringLiteral("g.g_sn=?"), { code }, warehouse, true, 1);
    if (found.isEmpty())
        return std::nullopt;
    return found.first();
}

QList<UnitChoice> unitChoices(core::Connection &connection, const QString &goods)
{
    QList<UnitChoice> units;
    const QString base = connection.firstText(
        QStringLiteral("select dw_name from jxc_goods where g_sn=? order by id limit 1"),
        { goods });
    units.append({ base, 1 });
    connection.forEach(QStringLiteral("select dw_name,g_zhxs from jxc_goodsdw where g_sn=? and "
                                      "g_zhxs>? order by id"),
        { goods, 0 }, [&](const QSqlQuery &q) {
            if (q.value(0).toString() != base)
                units.append({ q.value(0).toString(), q.value(1).toDouble() });
        });
    return units;
}

} // namespace medistock::documents
