#include "gsp/filters.h"

#include "gsp/texts.h"
#include "shell/session.h"

#include <QDate>

namespace medistock::gsp {

namespace {

const QString earliest = QStringLiteral("2000-01-01");
const QString latest = QStringLiteral("9999-12-31");

} // namespace

QString normalDate(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QDate date = QDate::fromString(trimmed, QStringLiteral("yyyy-MM-dd"));
    return date.isValid() ? trimmed : QString();
}

Outcome checkFilter(const RecordFilter &filter)
{
    if (!filter.from.trimmed().isEmpty() && normalDate(filter.from).isEmpty())
        return Outcome::refused(texts::badDate(QStringLiteral("开始日期"), filter.from));
    if (!filter.to.trimmed().isEmpty() && normalDate(filter.to).isEmpty())
        return Outcome::refused(texts::badDate(QStringLiteral("结束日期"), filter.to));
    return Outcome::done();
}

QString rangeStart(const RecordFilter &filter)
{
    const QString from = normalDate(filter.from);
    return from.isEmpty() ? earliest : from;
}

QString rangeEnd(const RecordFilter &filter)
{
    const QString to = normalDate(filter.to);
    return (to.isEmpty() ? latest : to) + QStringLiteral(" 23:59:59");
}

bool choosesWarehouse(const QString &warehouse)
{
    const QString code = warehouse.trimmed();
    return !code.isEmpty() && code != QLatin1String("-1") && code != QStringLiteral("所有仓库");
}

void Conditions::keyword(const QStringList &columns, const QString &key)
{
    const QString text = key.trimmed();
    if (text.isEmpty() || columns.isEmpty())
        return;
    QStringList tests;
    for (const QString &column : columns) {
        tests.append(QStringLiteral("upper(%1) like upper(?)").arg(column));
        m_params.append(QLatin1Char('%') + text + QLatin1Char('%'));
    }
    m_sql += QStringLiteral(" and (") + tests.join(QStringLiteral(" or ")) + QLatin1Char(')');
}

void Conditions::warehouse(const QString &column, const QString &code)
{
    if (choosesWarehouse(code))
        add(QStringLiteral("and ") + column + QStringLiteral("=?"), { code.trimmed() });
}

void Conditions::warehouseRights(const shell::Session &session, const QString &warehouseAlias)
{
    if (session.params().integer("cs_cgyh") != 1 || session.isAdministrator())
        return;
    add(QStringLiteral("and ") + warehouseAlias + QStringLiteral(".ck_asn like ?"),
        { QLatin1Char('%') + session.user().code + QLatin1Char('%') });
}

void Conditions::add(const QString &clause, const QVariantList &values)
{
    m_sql += QLatin1Char(' ') + clause;
    m_params.append(values);
}

Conditions conditionsOf(
    const shell::Session &session, const RecordFilter &filter, const Narrowing &narrowing)
{
    Conditions where;
    where.keyword(narrowing.keyword, filter.key);
    if (!narrowing.warehouse.isEmpty())
        where.warehouse(narrowing.warehouse, filter.warehouse);
    if (!narrowing.warehouseAlias.isEmpty())
        where.warehouseRights(session, narrowing.warehouseAlias);
    return where;
}

QVariantList rangeParams(const RecordFilter &filter, QVariantList before, const Conditions &where)
{
    before.append(rangeStart(filter));
    before.append(rangeEnd(filter));
    before.append(where.params());
    return before;
}

} // namespace medistock::gsp
