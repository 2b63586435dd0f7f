#include "pos/reprint.h"

#include "core/connection.h"
#include "core/operation.h"
#include "members/texts.h"
#include "pos/texts.h"
#include "shell/session.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::pos {

namespace {

void readLines(core::Connection &db, Reprint &r)
{
    db.forEach(QStringLiteral("select a.g_sn,b.g_name,coalesce(a.t_zp,''),a.dw_name,a.pos_dj,"
                              "a.pos_dzl,a.pos_sl,a.pos_zje from jxc_posxssp a join jxc_goods b "
                              "on b.g_sn=a.g_sn where a.gl_djh=? order by a.id"),
        { r.number }, [&](const QSqlQuery &q) {
            ReprintLine l;
            l.goods = q.value(0).toString();
            l.name = q.value(1).toString() + q.value(2).toString();
            l.unit = q.value(3).toString();
            l.price = q.value(4).toDouble();
            l.discountRate = q.value(5).toDouble();
            l.quantity = q.value(6).toDouble();
            l.amount = q.value(7).toDouble();
            l.discounted = l.price * l.discountRate;
            r.lines.append(l);
        });
}

} // namespace

QVariantMap Reprint::variables() const
{
    return { { QStringLiteral("sTitle"), title }, { QStringLiteral("yf"), receivable },
        { QStringLiteral("sf"), received }, { QStringLiteral("hybh"), memberCard },
        { QStringLiteral("hyname"), memberName }, { QStringLiteral("hyye"), cardBalance },
        { QStringLiteral("hyjf"), lifetimePoints }, { QStringLiteral("hymobile"), mobile } };
}

Result<Reprint> posReprint(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const QSqlRecord h = db.firstRow(
        QStringLiteral("select a.pos_xsrq,a.a_name,a.pos_yfje,a.pos_sfje,m.hy_bh,m.hy_name,"
                       "m.hy_zhje,m.hy_zjf,m.hy_mobile from jxc_posxsd a left join jxc_hyxx m on "
                       "m.hy_sn=a.hy_sn where a.gl_djh=?"),
        { number });
    if (h.isEmpty())
        return core::refuse(session.ui(), texts::notARetailSale(number));
    Reprint r;
    r.number = number;
    r.time = h.value(0).toString();
    r.cashier = h.value(1).toString();
    r.title = members::texts::retailTitle(number.startsWith(QStringLiteral("XT")));
    r.receivable = h.value(2).toDouble();
    r.received = h.value(3).toDouble();
    r.memberCard = h.value(4).toString();
    r.memberName = h.value(5).toString();
    r.cardBalance = h.value(6).toDouble();
    r.lifetimePoints = h.value(7).toDouble();
    r.mobile = h.value(8).toString();
    readLines(db, r);
    return r;
}

} // namespace medistock::pos
