#include "documents/returnlimits.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "shell/session.h"

#include <QHash>
#include <QSqlRecord>

#include <optional>

namespace medistock::documents {

namespace {

struct SourceLine
{
    QString document;
    double quantity = 0;
    double returnedElsewhere = 0; // by the lines of other returns
};

// What the lines of returns other than `returnNumber` give back of one source line.
double returnedElsewhere(core::Connection &db, const ReturnedLines &source, qint64 id2,
    const QString &goods, const QString &returnNumber)
{
    return db
        .firstValue(
            QStringLiteral("select sum(%1) from %2 where id2=? and g_sn=? and "
                           "gl_djh<>?")
                .arg(QLatin1String(source.returnQuantity), QLatin1String(source.returnLines)),
            { id2, goods, returnNumber })
        .toDouble();
}

std::optional<SourceLine> sourceLine(core::Connection &db, const ReturnedLines &source, qint64 id2,
    const QString &goods, const QString &returnNumber)
{
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select b.%1,b.%2 from %3 b,%4 a where b.id2=? and b.g_sn=? and a.%5=b.%1 "
                       "and a.%6=? order by b.id limit 1")
            .arg(QLatin1String(source.lineNumber), QLatin1String(source.lineQuantity),
                QLatin1String(source.lines), QLatin1String(source.header),
                QLatin1String(source.headerNumber), QLatin1String(source.headerStatus)),
        { id2, goods, 1 });
    if (row.isEmpty())
        return std::nullopt;
    return SourceLine { row.value(0).toString(), row.value(1).toDouble(),
        returnedElsewhere(db, source, id2, goods, returnNumber) };
}

} // namespace

Outcome checkReturnedQuantities(const shell::Session &session, ValidDocument &doc,
    const ReturnedLines &source, const ReturnLimitTexts &texts)
{
    QHash<qint64, double> taken;
    for (ValidLine &line : doc.lines) {
        const qint64 id2 = line.columns.value(QStringLiteral("id2")).toLongLong();
        line.columns.set(QStringLiteral("id2"), id2 > 0 ? id2 : 0);
        if (id2 <= 0)
            continue;
        const auto from = sourceLine(session.db(), source, id2, line.goods, doc.number);
        if (!from)
            return core::refuse(session.ui(), texts.missing(line.row));
        taken[id2] += line.figures.baseQuantity;
        const double left = from->quantity - from->returnedElsewhere;
        if (taken[id2] > left + core::comparisonMargin)
            return core::refuse(session.ui(),
                texts.exceeds(line.row, from->document,
                    core::plainNumber(core::roundTo(left, session.params().quantityDecimals()))));
    }
    return Outcome::done();
}

QList<ReturnableLine> returnableLines(const shell::Session &session, const DocumentKind &sourceKind,
    const ReturnedLines &source, const QString &sourceNumber, const QString &returnNumber)
{
    core::Connection &db = session.db();
    if (documentStatus(db, sourceKind, sourceNumber) != 1)
        return {};
    QList<ReturnableLine> lines;
    for (const DocumentLineRow &line : documentLines(db, sourceKind, sourceNumber)) {
        const qint64 id2 = line.stored.value(QStringLiteral("id2")).toLongLong();
        if (id2 <= 0)
            continue;
        const double returned = returnedElsewhere(db, source, id2, line.goods, returnNumber);
        const double left
            = core::roundTo(line.baseQuantity - returned, session.params().quantityDecimals());
        lines.append({ id2, line, returned, std::max(left, 0.0) });
    }
    return lines;
}

} // namespace medistock::documents
