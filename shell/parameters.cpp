#include "shell/parameters.h"

#include "core/connection.h"
#include "core/rounding.h"
#include "core/schemacatalogue.h"

#include <QSqlRecord>

namespace medistock::shell {

namespace {

int decimalsOf(const QVariant &value)
{
    bool ok = false;
    const double places = value.toString().trimmed().toDouble(&ok);
    return ok ? core::validDecimals(places) : 2;
}

} // namespace

bool readFlag(const QVariant &value)
{
    if (value.isNull())
        return false;
    const QString text = value.toString().trimmed();
    if (text.isEmpty() || text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && number != 0;
}

Parameters Parameters::load(core::Connection &connection)
{
    Parameters parameters;
    const QSqlRecord row
        = connection.firstRow(QStringLiteral("select * from jxc_xtcs order by id limit 1"));
    for (const core::ColumnDef &column : core::findTable(QStringLiteral("jxc_xtcs"))->columns) {
        const QString name = QString::fromLatin1(column.name);
        parameters.m_columns.append(name);
        parameters.m_values.insert(name, row.isEmpty() ? QVariant() : row.value(name));
    }
    return parameters;
}

QVariant Parameters::raw(const char *column) const
{
    const QString name = QString::fromLatin1(column);
    Q_ASSERT_X(m_values.contains(name), "Parameters", column);
    return m_values.value(name);
}

bool Parameters::flag(const char *column) const
{
    return readFlag(raw(column));
}

int Parameters::integer(const char *column) const
{
    return raw(column).toInt();
}

double Parameters::number(const char *column) const
{
    return raw(column).toDouble();
}

QString Parameters::text(const char *column) const
{
    const QVariant value = raw(column);
    return value.isNull() ? QString() : value.toString();
}

QVariant Parameters::value(const QString &column) const
{
    return m_values.value(column);
}

int Parameters::priceDecimals() const
{
    return decimalsOf(raw("cs_cbjs"));
}

int Parameters::quantityDecimals() const
{
    return decimalsOf(raw("cs_xsws"));
}

int Parameters::amountDecimals() const
{
    return decimalsOf(raw("cs_jews"));
}

int Parameters::stockValueDecimals() const
{
    return flag("cs_zjews") ? amountDecimals() : priceDecimals();
}

double Parameters::roundPrice(double value) const
{
    return core::roundTo(value, priceDecimals());
}

double Parameters::roundQuantity(double value) const
{
    return core::roundTo(value, quantityDecimals());
}

double Parameters::roundAmount(double value) const
{
    return core::roundTo(value, amountDecimals());
}

Company loadCompany(core::Connection &connection)
{
    const QSqlRecord row = connection.firstRow(QStringLiteral(
        "select c_name,c_jc,c_tele,c_lxr,c_address from jxc_company order by id limit 1"));
    if (row.isEmpty())
        return {};
    return { row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
        row.value(3).toString(), row.value(4).toString() };
}

} // namespace medistock::shell
