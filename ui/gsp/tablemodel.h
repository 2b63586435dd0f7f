#pragma once

#include "gsp/tables.h"

#include <QAbstractTableModel>

namespace medistock::shell {
class Parameters;
}

namespace medistock::ui {

// A record's table for a grid: its rows, then a bold totals row when it sums anything. Numbers
// are right-aligned, quantities, prices and amounts at the parameters' decimals, and a negative
// figure is red. The edit role gives each cell's value as it is, for printing.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    RecordTableModel(const shell::Parameters &params, QObject *parent);

    void setTable(gsp::RecordTable table);
    const gsp::RecordTable &table() const { return m_table; }
    // The record rows, without the totals row.
    int recordCount() const { return int(m_table.rows.size()); }
    bool isTotalsRow(int row) const { return row >= recordCount(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const QVariant &value, gsp::ColumnKind kind) const;

    const shell::Parameters &m_params;
    gsp::RecordTable m_table;
    QVariantList m_totals;
};

} // namespace medistock::ui
