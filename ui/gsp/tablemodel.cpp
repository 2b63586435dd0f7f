#include "ui/gsp/tablemodel.h"

#include "core/rounding.h"
#include "shell/parameters.h"

#include <QBrush>
#include <QFont>

namespace medistock::ui {

namespace {

bool isNumber(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::Double || type == QMetaType::Int || type == QMetaType::LongLong;
}

} // namespace

RecordTableModel::RecordTableModel(const shell::Parameters &params, QObject *parent)
    : QAbstractTableModel(parent)
    , m_params(params)
{ }

void RecordTableModel::setTable(gsp::RecordTable table)
{
    beginResetModel();
    m_table = std::move(table);
    m_totals = m_table.summed.isEmpty() ? QVariantList() : gsp::totalsRow(m_table);
    endResetModel();
}

int RecordTableModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return recordCount() + (m_totals.isEmpty() || m_table.rows.isEmpty() ? 0 : 1);
}

int RecordTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_table.headers.size());
}

QString RecordTableModel::text(const QVariant &value, gsp::ColumnKind kind) const
{
    if (!isNumber(value))
        return value.toString();
    const double number = value.toDouble();
    switch (kind) {
    case gsp::ColumnKind::Quantity:
        return QString::number(number, 'f', m_params.quantityDecimals());
    case gsp::ColumnKind::Price:
        return QString::number(number, 'f', m_params.priceDecimals());
    case gsp::ColumnKind::Amount:
        return QString::number(number, 'f', m_params.amountDecimals());
    case gsp::ColumnKind::Text:
    case gsp::ColumnKind::Figure:
        break;
    }
    return core::plainNumber(number);
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const bool totals = isTotalsRow(index.row());
    const QVariant value
        = totals ? m_totals.value(index.column()) : m_table.rows[index.row()].value(index.column());
    const gsp::ColumnKind kind = m_table.kinds.value(index.column(), gsp::ColumnKind::Text);
    switch (role) {
    case Qt::DisplayRole:
        return text(value, kind);
    case Qt::EditRole: // the value itself, numbers as numbers: what a printed grid hands on
        return value;
    case Qt::TextAlignmentRole:
        return isNumber(value) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                               : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::FontRole:
        if (totals) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::ForegroundRole:
        if (isNumber(value) && value.toDouble() < 0)
            return QBrush(Qt::red);
        return {};
    default:
        return {};
    }
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_table.headers.value(section);
    return QAbstractTableModel::headerData(section, orientation, role);
}

} // namespace medistock::ui
