#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QSqlRecord>
#include <QStringList>

namespace medistock::ui {

// The rows of a master list for a grid: the chosen columns under their captions, numbers
// without trailing zeros, flags as "是", and disabled rows in grey. Holds the records, so a list
// of many thousand goods costs no widget per cell.
class RecordModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    RecordModel(const QStringList &columns, const QStringList &captions,
        const QStringList &flagColumns, const QString &disabledColumn, QObject *parent);

    void setRows(QList<QSqlRecord> rows);
    const QSqlRecord &rowAt(int row) const { return m_rows.at(row); }
    QStringList columns() const { return m_columns; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_columns;
    QStringList m_captions;
    QStringList m_flags;
    QString m_disabled;
    QList<QSqlRecord> m_rows;
};

} // namespace medistock::ui
