#include "ui/masterdata/recordmodel.h"

#include "masterdata/parties.h"
#include "ui/masterdata/fields.h"
#include "ui/masterdata/texts.h"

#include <QBrush>
#include <QColor>

namespace medistock::ui {

RecordModel::RecordModel(const QStringList &columns, const QStringList &captions,
    const QStringList &flagColumns, const QString &disabledColumn, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(columns)
    , m_captions(captions)
    , m_flags(flagColumns)
    , m_disabled(disabledColumn)
{ }

void RecordModel::setRows(QList<QSqlRecord> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int RecordModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int RecordModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RecordModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const QSqlRecord &row = m_rows.at(index.row());
    const QString &column = m_columns.at(index.column());
    if (role == Qt::ForegroundRole && !m_disabled.isEmpty() && row.value(m_disabled).toInt() != 0)
        return QBrush(QColor(0x90, 0x90, 0x90));
    const QVariant value = row.value(column);
    const bool number = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Int
        || value.typeId() == QMetaType::LongLong;
    if (role == Qt::TextAlignmentRole && number && !m_flags.contains(column))
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (m_flags.contains(column))
        return value.toInt() != 0 ? mdtexts::yesMark : QString();
    // Names held as a comma-terminated list read better as an enumeration.
    if (column == QLatin1String("kh_uname") || column == QLatin1String("ck_aname"))
        return masterdata::splitCommaList(value.toString()).join(QStringLiteral("、"));
    return number ? numberText(value) : value.toString();
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_captions.value(section);
    return {};
}

} // namespace medistock::ui
