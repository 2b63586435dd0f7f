#include "pos/handover.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "members/rights.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::pos {

namespace {

void addDocuments(core::Connection &db, ShiftFigures &f)
{
    db.forEach(QStringLiteral("select substr(gl_djh,1,2),count(*),sum(pos_yfje),sum(pos_sfje),"
                              "sum(pos_xj-pos_zlje),sum(pos_czk),sum(pos_yhk),sum(pos_djq),"
                              "sum(pos_wxje),sum(pos_zfbje),sum(pos_mlje),sum(pos_yhzkje) from "
                              "jxc_posxsd where a_name=? and pos_xsrq>? and pos_xsrq<=? group by "
                              "substr(gl_djh,1,2)"),
        { f.cashier, f.from, f.to }, [&](const QSqlQuery &q) {
            const auto n = [&](int i) { return q.value(i).toDouble(); };
            const bool isReturn = q.value(0).toString() == QLatin1String("XT");
            (isReturn ? f.returns : f.sales) += q.value(1).toInt();
            (isReturn ? f.returnsAmount : f.salesAmount) += n(2);
            f.takings += n(3);
            f.cash += n(4);
            f.card += n(5);
            f.bankCard += n(6);
            f.insurance += n(7);
            f.wechat += n(8);
            f.alipay += n(9);
            f.roundingOff += n(10);
            f.discount += n(11);
        });
}

void addTillCash(core::Connection &db, ShiftFigures &f)
{
    db.forEach(QStringLiteral("select crk_flag,sum(crk_je) from jxc_crk where a_name=? and "
                              "crk_rq>? and crk_rq<=? group by crk_flag"),
        { f.cashier, f.from, f.to }, [&](const QSqlQuery &q) {
            (q.value(0).toString() == QLatin1String("r") ? f.cashIn : f.cashOut)
                += q.value(1).toDouble();
        });
}

void roundFigures(const shell::Parameters &params, ShiftFigures &f)
{
    for (double *figure : { &f.salesAmount, &f.returnsAmount, &f.takings, &f.cash, &f.card,
             &f.bankCard, &f.insurance, &f.wechat, &f.alipay, &f.roundingOff, &f.discount,
             &f.cashIn, &f.cashOut, &f.openingFloat })
        *figure = params.roundAmount(*figure);
}

Outcome checkDraft(const shell::Session &session, const HandoverDraft &draft)
{
    if (!session.db().exists(
            QStringLiteral("select id from jxc_admin where a_name=?"), { draft.next }))
        return core::refuse(session.ui(), texts::nextCashierMissing(draft.next));
    if (draft.handedUp < 0 || draft.leftForNext < 0)
        return core::refuse(session.ui(), texts::handoverNegative());
    return Outcome::done();
}

Handover handoverOf(const QSqlQuery &q)
{
    return { q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
        q.value(3).toString(), q.value(4).toDouble(), q.value(5).toDouble(), q.value(6).toDouble(),
        q.value(7).toDouble(), q.value(8).toString() };
}

} // namespace

ShiftFigures shiftFigures(
    const shell::Session &session, const QString &cashier, const QString &until)
{
    core::Connection &db = session.db();
    ShiftFigures f;
    f.cashier = cashier;
    f.to = until;
    f.from = db.firstText(QStringLiteral("select max(jb_time) from jxc_jbgl where jb_curruser=? "
                                         "and jb_time<?"),
        { cashier, until });
    addDocuments(db, f);
    addTillCash(db, f);
    f.openingFloat = db.firstValue(QStringLiteral("select jb_xfyyk from jxc_jbgl where "
                                                  "jb_nextuser=? and jb_time>? and jb_time<=? "
                                                  "order by jb_time desc,id desc limit 1"),
                           { cashier, f.from, until })
                         .toDouble();
    roundFigures(session.params(), f);
    return f;
}

Result<std::pair<Handover, ShiftFigures>> handOver(
    shell::Session &session, const HandoverDraft &draft)
{
    const Outcome allowed = shell::requireRight(session, "xsgl", members::rights::posSale);
    if (!allowed)
        return allowed;
    const shell::Parameters &params = session.params();
    Handover h { 0, session.clock().nowText(), session.user().name, draft.next, 0,
        params.roundAmount(draft.handedUp), params.roundAmount(draft.leftForNext), 0,
        core::cleanText(draft.note).left(200) };
    h.handed = params.roundAmount(h.handedUp + h.leftForNext);
    ShiftFigures figures;
    Outcome outcome = core::guarded(session.ui(), [&] {
        const Outcome valid = checkDraft(session, draft);
        if (!valid)
            return valid;
        figures = shiftFigures(session, h.current, h.time);
        const double expected = params.roundAmount(figures.drawer());
        if (h.handed != expected && !session.ui().ask(texts::handoverDiffers(h.handed, expected)))
            return Outcome::refused(texts::handoverDiffers(h.handed, expected));
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        figures = shiftFigures(session, h.current, h.time);
        h.takings = figures.takings;
        h.id = db.insert(QStringLiteral("insert into jxc_jbgl (jb_time,jb_curruser,jb_nextuser,"
                                        "jb_jjzje,jb_bbskzje,jb_sjyyk,jb_xfyyk,jb_note) values "
                                        "(?,?,?,?,?,?,?,?)"),
            { h.time, h.current, h.next, h.handed, h.takings, h.handedUp, h.leftForNext, h.note });
        session.log(texts::handoverLog(h.current, h.next, h.takings));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return std::pair { h, figures };
}

QList<Handover> handovers(
    const shell::Session &session, const QString &from, const QString &to, const QString &cashier)
{
    QVariantList params { from + QStringLiteral(" 00:00:00"), to + QStringLiteral(" 23:59:59") };
    QString narrow;
    if (!cashier.isEmpty()) {
        narrow = QStringLiteral(" and (jb_curruser=? or jb_nextuser=?)");
        params << cashier << cashier;
    }
    QList<Handover> rows;
    session.db().forEach(
        QStringLiteral("select id,jb_time,jb_curruser,jb_nextuser,jb_bbskzje,jb_sjyyk,jb_xfyyk,"
                       "jb_jjzje,jb_note from jxc_jbgl where jb_time>=? and jb_time<=?%1 order "
                       "by jb_time desc,id desc")
            .arg(narrow),
        params, [&](const QSqlQuery &q) { rows.append(handoverOf(q)); });
    return rows;
}

} // namespace medistock::pos
