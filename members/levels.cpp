#include "members/levels.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "members/member.h"
#include "members/rights.h"
#include "members/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::members {

namespace {

Outcome checkLevel(core::Connection &db, const Level &level)
{
    if (level.name.trimmed().isEmpty())
        return Outcome::refused(texts::levelNameRequired());
    if (level.discount <= 0 || level.discount > 1)
        return Outcome::refused(texts::levelDiscountInvalid());
    if (level.lower < 0 || level.upper < level.lower)
        return Outcome::refused(texts::levelBoundsInvalid());
    if (db.exists(QStringLiteral("select id from jxc_hyfl where hl_name=? and hl_sn<>?"),
            { level.name.trimmed(), level.code }))
        return Outcome::refused(texts::levelNameTaken(level.name.trimmed()));
    const QSqlRecord overlap = db.firstRow(
        QStringLiteral("select hl_name,hl_jfxx,hl_jfsx from jxc_hyfl where hl_sn<>? and "
                       "hl_jfxx<=? and hl_jfsx>=? order by id limit 1"),
        { level.code, level.upper, level.lower });
    if (!overlap.isEmpty())
        return Outcome::refused(texts::levelsOverlap(
            overlap.value(0).toString(), overlap.value(1).toDouble(), overlap.value(2).toDouble()));
    return Outcome::done();
}

} // namespace

QString defaultLevel()
{
    return QStringLiteral("100001");
}

QList<Level> listLevels(core::Connection &connection)
{
    QList<Level> levels;
    connection.forEach(QStringLiteral("select hl_sn,hl_name,hl_zk,hl_jfxx,hl_jfsx from jxc_hyfl "
                                      "order by hl_jfxx,hl_sn"),
        {}, [&](const QSqlQuery &q) {
            levels.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toDouble(),
                q.value(3).toDouble(), q.value(4).toDouble() });
        });
    return levels;
}

QString levelForPoints(core::Connection &connection, double points)
{
    const QString level = connection.firstText(
        QStringLiteral("select hl_sn from jxc_hyfl where hl_jfxx<=? and hl_jfsx>=? order by id "
                       "limit 1"),
        { points, points });
    return level.isEmpty() ? defaultLevel() : level;
}

QString levelAfterPointsAdded(core::Connection &connection, const QString &member, double added)
{
    const QSqlRecord m = connection.firstRow(
        QStringLiteral("select hy_zjf,hy_sj,hl_sn from jxc_hyxx where hy_sn=? order by id limit 1"),
        { member });
    if (m.isEmpty())
        return defaultLevel();
    const QString current = m.value(2).toString();
    if (!upgradesByPoints(m.value(1)))
        return current;
    const double points = m.value(0).toDouble() + added;
    const QString level = connection.firstText(
        QStringLiteral("select hl_sn from jxc_hyfl where hl_jfxx<=? and hl_jfsx>=? order by id "
                       "limit 1"),
        { points, points });
    return level.isEmpty() ? current : level;
}

Result<QString> saveLevel(const shell::Session &session, const Level &level)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    QString code = level.code;
    const Outcome saved = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const Outcome valid = checkLevel(db, level);
        if (!valid)
            return core::refuse(session.ui(), valid.message());
        core::Transaction transaction(db);
        const QVariantList values { level.name.trimmed(), level.discount, level.lower,
            level.upper };
        if (code.isEmpty()) {
            const Result<QString> next
                = core::nextMasterCode(db, QStringLiteral("jxc_hyfl"), QStringLiteral("hl_sn"));
            if (!next)
                return core::refuse(session.ui(), next.message());
            code = next.value();
            db.exec(QStringLiteral("insert into jxc_hyfl (hl_name,hl_zk,hl_jfxx,hl_jfsx,hl_sn) "
                                   "values (?,?,?,?,?)"),
                values + QVariantList { code });
        } else if (db.exec(QStringLiteral("update jxc_hyfl set hl_name=?,hl_zk=?,hl_jfxx=?,"
                                          "hl_jfsx=? where hl_sn=?"),
                       values + QVariantList { code })
            == 0) {
            return core::refuse(session.ui(), texts::levelMissing(code));
        }
        session.log(texts::levelSavedLog(code, level.name.trimmed()));
        transaction.commit();
        return Outcome::done();
    });
    if (!saved)
        return saved;
    return code;
}

Outcome deleteLevel(const shell::Session &session, const QString &code)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", rights::members);
    if (!allowed)
        return allowed;
    if (code == defaultLevel())
        return core::refuse(session.ui(), texts::defaultLevelKept());
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QString held = db.firstText(
            QStringLiteral("select hy_name from jxc_hyxx where hl_sn=? order by id limit 1"),
            { code });
        if (!held.isEmpty())
            return core::refuse(session.ui(), texts::levelInUse(held));
        core::Transaction transaction(db);
        if (db.exec(QStringLiteral("delete from jxc_hyfl where hl_sn=?"), { code }) == 0)
            return core::refuse(session.ui(), texts::levelMissing(code));
        session.log(texts::levelDeletedLog(code));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::members
