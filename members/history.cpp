#include "members/history.h"

#include "core/connection.h"
#include "members/texts.h"

#include <QSqlQuery>

#include <algorithm>

namespace medistock::members {

namespace {

// Each query gives time, kind, number, amount, points and note, in that order.
void append(
    core::Connection &db, const QString &sql, const QVariantList &params, QList<HistoryRow> &rows)
{
    db.forEach(sql, params, [&](const QSqlQuery &q) {
        rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
            q.value(3).toDouble(), q.value(4).toDouble(), q.value(5).toString() });
    });
}

} // namespace

QList<HistoryRow> memberHistory(core::Connection &connection, const QString &member)
{
    QList<HistoryRow> rows;
    append(connection,
        QStringLiteral("select pos_xsrq,case when gl_djh like ? then ? else ? end,gl_djh,pos_yfje,"
                       "pos_bcjf,pos_note from jxc_posxsd where hy_sn=?"),
        { QStringLiteral("XT%"), texts::retailHistoryKind(true), texts::retailHistoryKind(false),
            member },
        rows);
    append(connection,
        QStringLiteral("select xf_rq,xf_zt,gl_djh,xf_je,0,xf_note from jxc_hyxf where hy_sn=?"),
        { member }, rows);
    append(connection,
        QStringLiteral("select dh_dhrq,?,gl_djh,0,-dh_jf,dh_note from jxc_dhd where hy_sn=?"),
        { texts::redemptionHistoryKind(), member }, rows);
    append(connection,
        QStringLiteral("select jf_rq,?,'',0,jf_xfjf,jf_note from jxc_jfdh where hy_sn=?"),
        { texts::pointsChangeKind(), member }, rows);
    append(connection,
        QStringLiteral("select hy_rq,?,'',xf_je,0,hy_bz from jxc_czxf where hy_sn=?"),
        { texts::balanceChangeKind(), member }, rows);
    std::stable_sort(rows.begin(), rows.end(),
        [](const HistoryRow &a, const HistoryRow &b) { return a.time > b.time; });
    return rows;
}

} // namespace medistock::members
