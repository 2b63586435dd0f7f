#include "pos/held.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "members/member.h"
#include "members/rights.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>

namespace medistock::pos {

namespace {

void insertHeldLine(const shell::Session &session, const QString &number, const QString &time,
    const QString &member, const members::RetailLine &l)
{
    const shell::Parameters &params = session.params();
    const double amount
        = l.giftMarker.isEmpty() ? params.roundAmount(l.price * l.discountRate * l.quantity) : 0;
    session.db().exec(
        QStringLiteral("insert into jxc_lsxssptemp (gl_djh,g_sn,ls_dj,ls_sl,ls_dzl,ls_zje,ls_bz,"
                       "dw_name,g_zhxs,ls_zsl,a_name,ls_xsrq,ls_flag,ghs_sn,t_ph,t_yxq,t_scrq) "
                       "values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { number, l.goods, l.price, l.quantity, l.discountRate, amount, l.giftMarker, l.unit,
            l.unitFactor, params.roundQuantity(l.quantity * l.unitFactor), session.user().name,
            time, texts::heldMark(), member, l.batch, l.expiry, l.produced });
}

bool heldExists(const shell::Session &session, const QString &number)
{
    return session.db().exists(QStringLiteral("select id from jxc_lsxssptemp where gl_djh=? and "
                                              "a_name=? and ls_flag=? limit 1"),
        { number, session.user().name, texts::heldMark() });
}

} // namespace

Result<QString> holdSale(
    shell::Session &session, const members::RetailDocument &sale, const QString &replacing)
{
    const Outcome allowed = shell::requireRight(session, "xsgl", members::rights::posSale);
    if (!allowed)
        return allowed;
    if (sale.lines.isEmpty())
        return core::refuse(session.ui(), texts::nothingToHold());
    QString number = replacing;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        if (!replacing.isEmpty() && !removeHeldLines(session, replacing))
            return core::refuse(session.ui(), texts::heldSaleMissing(replacing));
        if (number.isEmpty()) {
            const Result<QString> next = members::nextRetailNumber(
                session.db(), members::RetailKind::Sale, session.clock().today());
            if (!next)
                return core::refuse(session.ui(), next.message());
            number = next.value();
        }
        const QString time = session.clock().nowText();
        for (const members::RetailLine &line : sale.lines)
            insertHeldLine(session, number, time, sale.member, line);
        session.log(texts::heldLog(number, int(sale.lines.size())));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

QList<HeldSale> heldSales(const shell::Session &session)
{
    QList<HeldSale> held;
    session.db().forEach(
        QStringLiteral("select gl_djh,max(ls_xsrq),max(ghs_sn),count(*),sum(ls_zje) from "
                       "jxc_lsxssptemp where a_name=? and ls_flag=? group by gl_djh order by "
                       "gl_djh"),
        { session.user().name, texts::heldMark() }, [&](const QSqlQuery &q) {
            held.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(), {},
                q.value(3).toInt(), q.value(4).toDouble() });
        });
    for (HeldSale &sale : held)
        if (const auto member = members::readMember(session.db(), sale.member))
            sale.memberName = member->name;
    return held;
}

Result<members::RetailDocument> recallSale(const shell::Session &session, const QString &number)
{
    members::RetailDocument sale;
    session.db().forEach(
        QStringLiteral("select g_sn,ls_dj,ls_sl,ls_dzl,ls_bz,dw_name,g_zhxs,t_ph,t_yxq,t_scrq,"
                       "ghs_sn from jxc_lsxssptemp where gl_djh=? and a_name=? and ls_flag=? order "
                       "by id"),
        { number, session.user().name, texts::heldMark() }, [&](const QSqlQuery &q) {
            members::RetailLine line;
            line.goods = q.value(0).toString();
            line.price = q.value(1).toDouble();
            line.quantity = q.value(2).toDouble();
            line.discountRate = q.value(3).toDouble();
            line.giftMarker = q.value(4).toString();
            line.unit = q.value(5).toString();
            line.unitFactor = q.value(6).toDouble() > 0 ? q.value(6).toDouble() : 1;
            line.batch = q.value(7).toString();
            line.expiry = q.value(8).toString();
            line.produced = q.value(9).toString();
            sale.member = q.value(10).toString();
            sale.lines.append(line);
        });
    if (sale.lines.isEmpty())
        return core::refuse(session.ui(), texts::heldSaleMissing(number));
    return sale;
}

Outcome dropHeldSale(shell::Session &session, const QString &number)
{
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        if (!removeHeldLines(session, number))
            return core::refuse(session.ui(), texts::heldSaleMissing(number));
        session.log(texts::heldDroppedLog(number));
        transaction.commit();
        return Outcome::done();
    });
}

QString heldNumberForToday(const shell::Session &session, const QString &heldNumber)
{
    const QString stem = session.clock().today().toString(QStringLiteral("yyMMdd"));
    return heldNumber.mid(2, 6) == stem ? heldNumber : QString();
}

bool removeHeldLines(const shell::Session &session, const QString &number)
{
    if (!heldExists(session, number))
        return false;
    session.db().exec(
        QStringLiteral("delete from jxc_lsxssptemp where gl_djh=? and a_name=? and ls_flag=?"),
        { number, session.user().name, texts::heldMark() });
    return true;
}

} // namespace medistock::pos
