#include "pos/reportfilter.h"

#include "core/operation.h"
#include "members/texts.h"
#include "pos/texts.h"
#include "shell/session.h"

#include <QDate>

namespace medistock::pos {

Outcome checkRange(const shell::Session &session, const DateRange &range)
{
    const auto valid = [](const QString &text) {
        return QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
    };
    if (!valid(range.from) || !valid(range.to) || range.from > range.to)
        return core::refuse(session.ui(), texts::dateRangeInvalid(range.from, range.to));
    return Outcome::done();
}

QString warehouseCondition(const shell::Session &session, const QString &column,
    const QString &warehouse, QVariantList &params)
{
    QString condition;
    if (!warehouse.isEmpty()) {
        condition += QStringLiteral(" and %1=?").arg(column);
        params.append(warehouse);
    }
    if (session.params().integer("cs_cgyh") == 1 && !session.isAdministrator()) {
        condition += QStringLiteral(" and %1 in (select ck_sn from jxc_ckxx where ck_asn like ?)")
                         .arg(column);
        params.append(QStringLiteral("%") + session.user().code + QStringLiteral(",%"));
    }
    return condition;
}

QString posLedgerConditions(const shell::Session &session, const DateRange &range,
    const QString &warehouse, QVariantList &params)
{
    params << QStringLiteral("xs") << QStringLiteral("xt") << members::texts::retailBranchMark()
           << range.from << range.end();
    return QStringLiteral("(x.gl_flag=? or x.gl_flag=?) and x.gl_fdmc=? and x.gl_kdrq>=? and "
                          "x.gl_kdrq<=?")
        + warehouseCondition(session, QStringLiteral("x.ck_sn"), warehouse, params);
}

} // namespace medistock::pos
