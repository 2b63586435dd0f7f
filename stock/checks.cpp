#include "stock/checks.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "stock/options.h"
#include "stock/texts.h"

#include <QSqlRecord>

#include <algorithm>

namespace medistock::stock {

namespace {

// The line table, its base-quantity column and the document key of each kind.
struct CheckedLines
{
    const char *kind;
    const char *table;
    const char *quantity;
    const char *key;
};

constexpr CheckedLines checkedLines[] = {
    { "CJ", "jxc_jhsp", "jh_zsl", "j_sn" },
    { "CT", "jxc_thsp", "th_zsl", "gl_djh" },
    { "XS", "jxc_lsxssp", "ls_zsl", "gl_djh" },
    { "XT", "jxc_xsthsp", "th_zsl", "gl_djh" },
    { "DB", "jxc_dbsp", "db_zsl", "gl_djh" },
    { "JH", "jxc_khjhsp", "jh_sl", "gl_djh" },
};

const CheckedLines *linesOf(const QString &kind)
{
    for (const CheckedLines &lines : checkedLines)
        if (kind == QLatin1String(lines.kind))
            return &lines;
    return nullptr;
}

} // namespace

QStringList batchCheckKinds()
{
    QStringList kinds;
    for (const CheckedLines &lines : checkedLines)
        kinds.append(QString::fromLatin1(lines.kind));
    return kinds;
}

bool isBatchCheckKind(const QString &kind)
{
    return linesOf(kind) != nullptr;
}

QString batchCheck(const shell::Session &session, const QString &number, const QString &warehouse,
    const QString &kind)
{
    const CheckedLines *lines = linesOf(kind);
    if (!lines)
        return unknownCheckKindText(kind);
    const QString sql = QStringLiteral(
        "select a.g_sn from (select g_sn,sum(%1) as sl,t_ph,t_yxq,t_scrq from %2 where %3=? and "
        "g_sn<>? group by g_sn,t_ph,t_yxq,t_scrq) a,jxc_tkc b where a.g_sn=b.g_sn and "
        "a.t_ph=b.t_ph and a.t_yxq=b.t_yxq and a.t_scrq=b.t_scrq and a.sl>b.t_sl+? and b.t_sl>0 "
        "and b.ck_sn=? order by a.g_sn limit 1")
                            .arg(QLatin1String(lines->quantity), QLatin1String(lines->table),
                                QLatin1String(lines->key));
    const QString goods = session.db().firstText(
        sql, { number, QStringLiteral("00000000"), core::comparisonMargin, warehouse });
    if (goods.isEmpty())
        return {};
    return batchShortageText(kind, goods, allowsNegativeStock(session.params()));
}

Outcome confirmBatchCheck(const shell::Session &session, const QString &number,
    const QString &warehouse, const QString &kind)
{
    const QString message = batchCheck(session, number, warehouse, kind);
    if (message.isEmpty())
        return Outcome::done();
    if (!isBatchCheckKind(kind) || !allowsNegativeStock(session.params()))
        return core::refuse(session.ui(), message);
    if (session.ui().ask(message))
        return Outcome::done();
    return Outcome::refused(message);
}

QString saleLimitCheck(const shell::Session &session, const QString &number)
{
    const QSqlRecord found = session.db().firstRow(
        QStringLiteral("select b.g_name,b.g_xzsl from (select g_sn,sum(ls_sl) as zsl from "
                       "jxc_lsxssp where gl_djh=? group by g_sn) a,jxc_goods b where "
                       "a.g_sn=b.g_sn and b.g_xzsl>0 and b.g_xzsl+?<a.zsl order by a.g_sn limit 1"),
        { number, core::comparisonMargin });
    if (found.isEmpty())
        return {};
    return saleLimitText(found.value(0).toString(), found.value(1).toDouble());
}

double saleLimit(const shell::Session &session, const QString &goods)
{
    const double limit
        = session.db()
              .firstValue(QStringLiteral("select g_xzsl from jxc_goods where g_sn=?"), { goods })
              .toDouble();
    return std::max(limit, 0.0);
}

} // namespace medistock::stock
