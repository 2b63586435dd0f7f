#include "reports/data.h"

#include "core/connection.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::reports {

int DataSet::column(const QString &field) const
{
    for (int i = 0; i < fields.size(); ++i)
        if (fields.at(i).compare(field, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

QVariant DataSet::value(int row, const QString &field) const
{
    const int c = column(field);
    if (c < 0 || row < 0 || row >= rows.size())
        return QVariant();
    return rows.at(row).at(c);
}

DataSet readDataSet(core::Connection &connection, const QString &name, const QString &sql,
    const QVariantList &params)
{
    DataSet set;
    set.name = name;
    connection.forEach(sql, params, [&](const QSqlQuery &q) {
        const QSqlRecord record = q.record();
        if (set.fields.isEmpty())
            for (int i = 0; i < record.count(); ++i)
                set.fields.append(record.fieldName(i));
        QVariantList row;
        row.reserve(record.count());
        for (int i = 0; i < record.count(); ++i)
            row.append(record.value(i));
        set.rows.append(row);
    });
    if (set.rows.isEmpty())
        set.fields = connection.resultColumns(sql, params);
    return set;
}

void ReportData::setText(const QString &name, const QString &text)
{
    variables.insert(name, quoted(text));
}

const DataSet *ReportData::dataset(const QString &name) const
{
    for (const DataSet &set : datasets)
        if (set.name.compare(name, Qt::CaseInsensitive) == 0)
            return &set;
    return nullptr;
}

QString quoted(const QString &text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + inner + QLatin1Char('\'');
}

} // namespace medistock::reports
