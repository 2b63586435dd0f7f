#pragma once

#include "core/operation.h"
#include "gsp/filters.h"
#include "shell/session.h"

#include <QList>
#include <QSqlQuery>
#include <QVariant>

#include <optional>
#include <utility>

// Shared by the record lists of this module; not part of its interface.
namespace medistock::gsp::detail {

// Reads a query row's columns in select order.
class Cells
{
public:
    // Reads from column `start` on.
    explicit Cells(const QSqlQuery &query, int start = 0)
        : m_query(query)
        , m_index(start)
    { }

    QVariant next() { return m_query.value(m_index++); }
    QString text()
    {
        const QVariant value = next();
        return value.isNull() ? QString() : value.toString();
    }
    double number() { return next().toDouble(); }
    qint64 id() { return next().toLongLong(); }
    int whole() { return next().toInt(); }
    bool flag()
    {
        const QVariant value = next();
        const QString text = value.toString();
        return text == QLatin1String("1")
            || text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
    }
    std::optional<double> optionalNumber()
    {
        const QVariant value = next();
        if (value.isNull())
            return std::nullopt;
        return value.toDouble();
    }

private:
    const QSqlQuery &m_query;
    int m_index;
};

// Runs a list's query once its filter holds: a bad date is refused and told, a database error
// told and failed.
template<class Row, class Body>
Result<QList<Row>> readRows(const shell::Session &session, const RecordFilter &filter, Body &&body)
{
    const Outcome checked = checkFilter(filter);
    if (!checked)
        return core::refuse(session.ui(), checked.message());
    QList<Row> rows;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        std::forward<Body>(body)(rows);
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return rows;
}

} // namespace medistock::gsp::detail
