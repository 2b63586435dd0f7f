#include "gsp/filled.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/transaction.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "shell/settings.h"

#include <QDate>

namespace medistock::gsp {

using detail::Cells;

namespace {

QString table(const char *name)
{
    return QString::fromLatin1(name);
}

FilledLine filledLineOf(const QSqlQuery &q)
{
    Cells c(q);
    FilledLine line;
    line.id = c.id();
    line.number = c.text();
    line.goods = c.text();
    line.quantity = c.number();
    line.quality = c.text();
    line.handling = c.text();
    line.batch = c.text();
    line.produced = c.text();
    line.expiry = c.text();
    line.operatorName = c.text();
    line.goodsName = c.text();
    line.packing = c.text();
    line.unit = c.text();
    line.manufacturer = c.text();
    line.date = c.text();
    return line;
}

// A pick whose batch is no longer a batch of the warehouse, as "goods/batch"; empty when all are.
QString lostPick(const shell::Session &session, FilledKind kind, const QString &warehouse)
{
    for (const PickedLine &line : pickedLines(session, kind))
        if (!session.db().exists(QStringLiteral("select id from jxc_tkc where ck_sn=? and g_sn=? "
                                                "and t_ph=? and t_yxq=? and t_scrq=?"),
                { warehouse, line.goods, line.batch, line.expiry, line.produced }))
            return texts::batchNotPickable(line.goods, line.batch);
    return QString();
}

} // namespace

QList<FilledLine> filledLines(const shell::Session &session, FilledKind kind, const QString &number)
{
    QList<FilledLine> lines;
    session.db().forEach(
        QStringLiteral("select a.id,a.gl_djh,a.g_sn,a.t_sl,a.t_zlzk,a.t_clqk,a.t_ph,a.t_scrq,"
                       "a.t_yxq,a.a_name,b.g_name,b.gg_name,b.dw_name,b.g_sccs,h.t_rq from %1 a "
                       "left join jxc_goods b on a.g_sn=b.g_sn left join %2 h on h.gl_djh=a.gl_djh "
                       "where a.gl_djh=? order by a.id")
            .arg(table(infoOf(kind).lineTable), table(infoOf(kind).headerTable)),
        { number }, [&](const QSqlQuery &q) { lines.append(filledLineOf(q)); });
    return lines;
}

Outcome deleteFilledRecord(const shell::Session &session, FilledKind kind, const QString &number)
{
    const FilledKindInfo &info = infoOf(kind);
    const Outcome allowed = shell::requireRight(session, "gspgl", info.right);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        if (!db.exists(
                QStringLiteral("select id from %1 where gl_djh=?").arg(table(info.headerTable)),
                { number }))
            return core::refuse(session.ui(), texts::recordNotFound(titleOf(kind), number));
        if (!session.ui().ask(texts::deleteRecordQuestion(titleOf(kind), number)))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(
            QStringLiteral("delete from %1 where gl_djh=?").arg(table(info.lineTable)), { number });
        db.exec(QStringLiteral("delete from %1 where gl_djh=?").arg(table(info.headerTable)),
            { number });
        session.log(texts::recordDeletedLog(titleOf(kind), number));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteFilledLine(const shell::Session &session, FilledKind kind, qint64 lineId)
{
    const FilledKindInfo &info = infoOf(kind);
    const Outcome allowed = shell::requireRight(session, "gspgl", info.right);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        const QSqlRecord line = db.firstRow(
            QStringLiteral("select a.gl_djh,a.g_sn,a.t_ph,b.g_name from %1 a left join jxc_goods b "
                           "on a.g_sn=b.g_sn where a.id=?")
                .arg(table(info.lineTable)),
            { lineId });
        if (line.isEmpty())
            return core::refuse(session.ui(), texts::lineNotFound(lineId));
        if (!session.ui().ask(texts::deleteLineQuestion(
                line.value(0).toString(), line.value(3).toString(), line.value(2).toString())))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from %1 where id=?").arg(table(info.lineTable)), { lineId });
        session.log(texts::lineDeletedLog(
            titleOf(kind), line.value(0).toString(), line.value(1).toString()));
        transaction.commit();
        return Outcome::done();
    });
}

namespace detail {

Outcome checkPlaces(
    const shell::Session &session, const QString &warehouse, const QString &employee)
{
    core::Connection &db = session.db();
    if (!db.exists(QStringLiteral("select id from jxc_ckxx where ck_sn=?"), { warehouse }))
        return core::refuse(session.ui(), texts::unknownWarehouse(warehouse));
    if (!employee.isEmpty()
        && !db.exists(QStringLiteral("select id from jxc_user where u_sn=?"), { employee }))
        return core::refuse(session.ui(), texts::employeeNotFound(employee));
    return Outcome::done();
}

Result<QString> saveFilledRecord(const shell::Session &session, FilledKind kind,
    const QString &date, const QString &warehouse,
    const std::function<void(const QString &number, int lines)> &writeHeader)
{
    const FilledKindInfo &info = infoOf(kind);
    const Outcome allowed = shell::requireRight(session, "gspgl", info.right);
    if (!allowed)
        return allowed;
    if (normalDate(date).isEmpty())
        return core::refuse(session.ui(), texts::badDate(QStringLiteral("日期"), date));
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const int lines = int(pickedLines(session, kind).size());
        if (lines == 0)
            return core::refuse(session.ui(), texts::nothingPicked());
        const QString lost = lostPick(session, kind, warehouse);
        if (!lost.isEmpty())
            return core::refuse(session.ui(), lost);
        const QString tag = QString::fromLatin1(info.workTag);
        core::Transaction transaction(db);
        number = core::nextDocumentNumber(db, table(info.headerTable), QStringLiteral("gl_djh"),
            QString::fromLatin1(info.prefix), QDate::fromString(date.trimmed(), Qt::ISODate))
                     .value();
        writeHeader(number, lines);
        db.exec(QStringLiteral("insert into %1 (gl_djh,g_sn,t_sl,a_name,t_zlzk,t_clqk,t_ph,t_scrq,"
                               "t_yxq) select ?,g_sn,ts_sl,a_name,t_cfsm,ts_note,t_ph,t_scrq,t_yxq "
                               "from jxc_tempspxf2 where a_name=? and t_zp=? order by id")
                    .arg(table(info.lineTable)),
            { number, session.user().name, tag });
        db.exec(QStringLiteral("delete from jxc_tempspxf2 where a_name=? and t_zp=?"),
            { session.user().name, tag });
        session.log(texts::recordSavedLog(titleOf(kind), number, lines));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

void listFilledRecords(const shell::Session &session, FilledKind kind, const RecordFilter &filter,
    const QString &columns,
    const std::function<void(const FilledRecordInfo &, const QSqlQuery &, int next)> &row)
{
    const FilledKindInfo &info = infoOf(kind);
    const Conditions where = conditionsOf(session, filter,
        { { QStringLiteral("a.gl_djh"), QStringLiteral("u.u_sn"), QStringLiteral("u.u_name"),
              QStringLiteral("u.u_jm") },
            QStringLiteral("a.ck_sn"), QStringLiteral("e") });
    const QVariantList params = rangeParams(filter, {}, where);
    const int shared = 10;
    session.db().forEach(
        QStringLiteral("select a.id,a.gl_djh,a.t_rq,a.ck_sn,e.ck_name,a.u_sn,u.u_name,a.t_note,"
                       "a.a_name,(select count(*) from %1 s where s.gl_djh=a.gl_djh),%2 from %3 "
                       "a join jxc_ckxx e on a.ck_sn=e.ck_sn left join jxc_user u on "
                       "a.u_sn=u.u_sn where a.t_rq>=? and a.t_rq<=?")
                .arg(table(info.lineTable), columns, table(info.headerTable))
            + where.sql() + QStringLiteral(" order by a.id desc"),
        params, [&](const QSqlQuery &q) {
            Cells c(q);
            FilledRecordInfo record;
            record.id = c.id();
            record.number = c.text();
            record.date = c.text();
            record.warehouse = c.text();
            record.warehouseName = c.text();
            record.employee = c.text();
            record.employeeName = c.text();
            record.note = c.text();
            record.operatorName = c.text();
            record.lineCount = c.whole();
            row(record, q, shared);
        });
}

} // namespace detail

} // namespace medistock::gsp
