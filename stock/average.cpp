#include "stock/average.h"

#include "core/connection.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/ledger.h"
#include "stock/stores.h"
#include "stock/texts.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::stock {

namespace {

// The warehouses whose average changes: the one asked for, or every one with a stock row.
QStringList warehousesOf(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    if (!warehouse.isEmpty())
        return { warehouse };
    QStringList warehouses;
    session.db().forEach(QStringLiteral("select ck_sn from jxc_kcsp where g_sn=? order by ck_sn"),
        { goods }, [&](const QSqlQuery &q) { warehouses.append(q.value(0).toString()); });
    return warehouses;
}

// The last ledger row of the goods in the warehouse takes the average; its value follows.
void setLastRow(
    const shell::Session &session, const QString &goods, const QString &warehouse, double average)
{
    core::Connection &db = session.db();
    const QSqlRecord last = db.firstRow(
        QStringLiteral("select id,gl_kc from jxc_goodslist where g_sn=? and ck_sn=? order by "
                       "gl_kdrq desc,id desc limit 1"),
        { goods, warehouse });
    if (last.isEmpty())
        return;
    const RunningRounding rounding = RunningRounding::of(session.params());
    const double quantity = last.value(1).toDouble();
    const double value
        = quantity == 0 ? 0 : core::roundTo(average * quantity + 0.000000001, rounding.value);
    db.exec(QStringLiteral("update jxc_goodslist set gl_pjjj=?,gl_kczje=? where id=?"),
        { average, value, last.value(0) });
}

} // namespace

Result<AverageNow> averageNow(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select g_name,dw_name,g_pjjj,g_kc from jxc_goods where g_sn=? and g_sn<>?"),
        { goods, QStringLiteral("00000000") });
    if (row.isEmpty())
        return core::refuse(session.ui(), unknownGoodsText(goods));
    AverageNow now { row.value(0).toString(), row.value(1).toString(), row.value(2).toDouble(),
        row.value(3).toDouble() };
    if (!warehouse.isEmpty()) {
        const QSqlRecord stock = session.db().firstRow(
            QStringLiteral("select kc_cbj,kc_zsl from jxc_kcsp where g_sn=? and ck_sn=?"),
            { goods, warehouse });
        now.average = stock.isEmpty() ? 0 : stock.value(0).toDouble();
        now.stock = stock.isEmpty() ? 0 : stock.value(1).toDouble();
    }
    return now;
}

Outcome changeAverage(const shell::Session &session, const QString &goods, const QString &warehouse,
    const QString &typedAverage)
{
    const Outcome allowed = shell::requireRight(session, "kcgl", 18);
    if (!allowed)
        return allowed;
    const Result<double> typed
        = core::readNumber(averageField(), typedAverage, core::NumberKind::Price);
    if (!typed)
        return core::refuse(session.ui(), typed.message());
    const double average = session.params().roundPrice(typed.value());
    Result<AverageNow> now = Outcome::refused(QString());
    if (!core::guarded(session.ui(), [&] {
            now = averageNow(session, goods, warehouse);
            return now ? Outcome::done() : Outcome::refused(QString());
        }))
        return Outcome::refused(QString());
    if (!session.ui().ask(
            changeAverageQuestion(now.value().goodsName, now.value().average, average)))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        for (const QString &each : warehousesOf(session, goods, warehouse)) {
            setLastRow(session, goods, each, average);
            session.db().exec(
                QStringLiteral("update jxc_kcsp set kc_cbj=? where g_sn=? and ck_sn=?"),
                { average, goods, each });
        }
        refreshGoodsAverage(session, goods, average);
        session.log(averageChangedLog(goods, now.value().goodsName, now.value().average, average));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::stock
