#include "ui/statistics/reporttable.h"

#include "core/rounding.h"
#include "core/spreadsheet.h"
#include "shell/parameters.h"
#include "ui/common/texts.h"
#include "ui/statistics/texts.h"

#include <QBrush>
#include <QFont>

namespace medistock::ui::stats {

ReportModel::ReportModel(
    QList<ReportColumn> columns, const shell::Parameters &params, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
    , m_params(params)
{ }

void ReportModel::setTable(ReportTable table)
{
    beginResetModel();
    m_table = std::move(table);
    endResetModel();
}

void ReportModel::setCaption(int column, const QString &caption)
{
    m_columns[column].caption = caption;
    emit headerDataChanged(Qt::Horizontal, column, column);
}

bool ReportModel::hasTotals() const
{
    if (m_table.rows.isEmpty())
        return false;
    for (const ReportColumn &column : m_columns)
        if (column.summed)
            return true;
    return false;
}

QVariantList ReportModel::totals() const
{
    QVariantList sums;
    for (int c = 0; c < m_columns.size(); ++c) {
        if (!m_columns[c].summed) {
            sums.append(QVariant());
            continue;
        }
        double sum = 0;
        for (const QVariantList &row : m_table.rows)
            sum += row.value(c).toDouble();
        sums.append(core::roundTo(sum, decimals(m_columns[c].kind)));
    }
    return sums;
}

int ReportModel::decimals(CellKind kind) const
{
    switch (kind) {
    case CellKind::Quantity:
        return m_params.quantityDecimals();
    case CellKind::Price:
        return m_params.priceDecimals();
    case CellKind::Amount:
        return m_params.amountDecimals();
    case CellKind::Rate:
        return 2;
    case CellKind::Count:
    case CellKind::Text:
        break;
    }
    return 0;
}

QVariant ReportModel::cell(int row, int column) const
{
    if (row < m_table.rows.size())
        return m_table.rows[row].value(column);
    if (column == m_labelColumn)
        return ui::texts::totalRow();
    return totals().value(column);
}

QString ReportModel::text(int row, int column) const
{
    const QVariant value = cell(row, column);
    const CellKind kind = m_columns[column].kind;
    if (kind == CellKind::Text || !value.isValid() || value.isNull()
        || (row == dataRows() && column == m_labelColumn))
        return value.toString();
    return QString::number(value.toDouble(), 'f', decimals(kind));
}

int ReportModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return dataRows() + (hasTotals() ? 1 : 0);
}

int ReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant ReportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ReportColumn &column = m_columns[index.column()];
    const bool number = column.kind != CellKind::Text;
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return number ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                      : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (number && cell(index.row(), index.column()).toDouble() < 0)
            return QBrush(Qt::red);
        return {};
    case Qt::FontRole:
        if (index.row() == dataRows()) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_columns.value(section).caption;
    return {};
}

bool exportTable(const ReportModel &model, const QList<int> &columns, const QString &path,
    const QString &sheet, QString &error)
{
    const auto pick = [&](const QVariantList &row) {
        QVariantList picked;
        for (const int c : columns)
            picked.append(row.value(c));
        return picked;
    };
    QStringList headers;
    for (const int c : columns)
        headers.append(model.columns()[c].caption);
    QList<QVariantList> rows;
    for (const QVariantList &row : model.table().rows)
        rows.append(pick(row));
    if (model.hasTotals()) {
        QVariantList totals = model.totals();
        totals[model.totalsLabelColumn()] = ui::texts::totalRow();
        rows.append(pick(totals));
    }
    const Outcome written = core::writeXlsx(path, sheet, headers, rows);
    error = written.message();
    return written.ok();
}

} // namespace medistock::ui::stats
