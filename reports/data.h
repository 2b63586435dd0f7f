#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace medistock::core {
class Connection;
}

namespace medistock::reports {

// Rows a template's data band runs over, read once. Fields are found by name without regard to
// case, as SQL names them.
struct DataSet
{
    QString name;
    QStringList fields;
    QList<QVariantList> rows;

    // The field's column, or -1.
    int column(const QString &field) const;
    QVariant value(int row, const QString &field) const;
};

// Runs a select (values bound) and keeps its rows with the column names it returns; the names
// are there also when no row is.
DataSet readDataSet(core::Connection &connection, const QString &name, const QString &sql,
    const QVariantList &params);

// What a template is filled with: the variables, each an expression of the template format (the
// documents hand theirs in as quoted text), and the datasets by name.
struct ReportData
{
    QHash<QString, QString> variables;
    QList<DataSet> datasets;

    // Sets a variable to a text: the text in single quotes, a quote inside doubled.
    void setText(const QString &name, const QString &text);
    const DataSet *dataset(const QString &name) const;
};

// 'O''Brien' for O'Brien.
QString quoted(const QString &text);

} // namespace medistock::reports
