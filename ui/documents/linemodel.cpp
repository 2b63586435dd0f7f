#include "ui/documents/linemodel.h"

#include "core/rounding.h"
#include "ui/common/datefield.h"
#include "ui/documents/texts.h"

#include <QColor>

#include <cmath>

namespace medistock::ui {

namespace {

std::optional<double> number(const QString &text, std::optional<double> absent = std::nullopt)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return absent;
    bool ok = false;
    const double value = trimmed.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

double bookOf(const LineEntry &line)
{
    return line.columns.value(QStringLiteral("kc_sl")).toDouble();
}

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

bool isNumberField(LineField field)
{
    switch (field) {
    case LineField::Quantity:
    case LineField::Price:
    case LineField::Discount:
    case LineField::Amount:
    case LineField::TaxRate:
    case LineField::Total:
    case LineField::Stock:
    case LineField::Book:
    case LineField::Difference:
    case LineField::Cost:
    case LineField::Limit:
        return true;
    default:
        return false;
    }
}

} // namespace

bool LineEntry::isBlank() const
{
    return goods.trimmed().isEmpty() && quantity.trimmed().isEmpty() && price.trimmed().isEmpty()
        && batch.trimmed().isEmpty();
}

double LineEntry::factor() const
{
    for (const documents::UnitChoice &choice : units)
        if (choice.unit == unit)
            return choice.factor;
    return 1;
}

LineEntry LineEntry::of(const documents::GoodsChoice &goods, QList<documents::UnitChoice> units)
{
    LineEntry line;
    line.goods = goods.code;
    line.chosen = true;
    line.name = goods.name;
    line.packing = goods.packing;
    line.baseUnit = goods.baseUnit;
    line.units = std::move(units);
    line.unit = goods.unit;
    line.stock = goods.stock;
    return line;
}

QString captionOf(LineField field)
{
    return doctexts::lineCaption(int(field));
}

LineModel::LineModel(
    const QList<LineField> &fields, const documents::LineRounding &rounding, QObject *parent)
    : QAbstractTableModel(parent)
    , m_fields(fields)
    , m_rounding(rounding)
{ }

void LineModel::setCaption(LineField field, const QString &caption)
{
    m_captions.insert(field, caption);
    const int column = columnOf(field);
    if (column >= 0)
        emit headerDataChanged(Qt::Horizontal, column, column);
}

void LineModel::setEditable(bool editable)
{
    beginResetModel();
    m_editable = editable;
    endResetModel();
}

void LineModel::setLines(QList<LineEntry> lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

void LineModel::replaceLine(int row, const LineEntry &entry)
{
    m_lines[row] = entry;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    emit edited();
}

void LineModel::appendBlank()
{
    insertBlank(rowCount());
}

void LineModel::insertBlank(int row)
{
    beginInsertRows({}, row, row);
    m_lines.insert(row, LineEntry {});
    endInsertRows();
    // Every row number below it moves.
    emit dataChanged(index(row, 0), index(rowCount() - 1, columnCount() - 1));
}

void LineModel::removeLine(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    beginRemoveRows({}, row, row);
    m_lines.removeAt(row);
    endRemoveRows();
    if (row < rowCount())
        emit dataChanged(index(row, 0), index(rowCount() - 1, columnCount() - 1));
    emit edited();
}

void LineModel::removeBlankLines()
{
    for (int row = rowCount() - 1; row >= 0; --row)
        if (m_lines[row].isBlank()) {
            beginRemoveRows({}, row, row);
            m_lines.removeAt(row);
            endRemoveRows();
        }
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QList<documents::LineDraft> LineModel::drafts() const
{
    QList<documents::LineDraft> drafts;
    for (const LineEntry &line : m_lines) {
        if (line.isBlank())
            continue;
        documents::LineDraft draft;
        draft.goods = line.goods.trimmed();
        draft.unit = line.unit;
        draft.quantity = line.quantity;
        draft.price = line.price;
        draft.taxRate = line.taxRate;
        draft.discountRate = line.discountRate;
        draft.batch = line.batch;
        draft.produced = line.produced;
        draft.expiry = line.expiry;
        draft.remark = line.remark;
        draft.columns = line.columns;
        if (line.costTyped && !m_costColumn.isEmpty()) {
            // A cost that is no number goes as typed, for the operation to refuse.
            const auto cost = number(line.cost);
            draft.columns.set(
                m_costColumn, cost ? QVariant(*cost / line.factor()) : QVariant(line.cost));
        }
        drafts.append(draft);
    }
    return drafts;
}

std::optional<documents::LineFigures> LineModel::figures(int row) const
{
    const LineEntry &line = m_lines.at(row);
    const auto quantity = number(line.quantity);
    const auto price = number(line.price);
    const auto taxRate = number(line.taxRate, 0);
    const auto discount = number(line.discountRate, 1);
    if (!line.chosen || !quantity || !price || !taxRate || !discount)
        return std::nullopt;
    return documents::computeLine(
        { *quantity, line.factor(), *price, *taxRate, *discount }, m_rounding);
}

double LineModel::totalQuantity() const
{
    double sum = 0;
    for (int row = 0; row < rowCount(); ++row)
        if (const auto f = figures(row))
            sum += f->quantity;
    return core::roundTo(sum, m_rounding.quantity);
}

double LineModel::totalAmount() const
{
    double sum = 0;
    for (int row = 0; row < rowCount(); ++row)
        if (const auto f = figures(row))
            sum += f->total;
    return core::roundTo(sum, m_rounding.amount);
}

int LineModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

int LineModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_fields.size());
}

QString LineModel::display(const LineEntry &line, int row, LineField field) const
{
    const auto computed = figures(row);
    switch (field) {
    case LineField::Row:
        return QString::number(row + 1);
    case LineField::Code:
        return line.goods;
    case LineField::Name:
        return line.name;
    case LineField::Packing:
        return line.packing;
    case LineField::Unit:
        return line.unit;
    case LineField::Batch:
        return line.batch;
    case LineField::Produced:
        return line.produced;
    case LineField::Expiry:
        return line.expiry;
    case LineField::Quantity:
        return line.quantity;
    case LineField::Price:
        return line.price;
    case LineField::Discount:
        return line.discountRate;
    case LineField::TaxRate:
        return line.taxRate;
    case LineField::Amount:
        return computed ? fixed(computed->amount, m_rounding.amount) : QString();
    case LineField::Total:
        return computed ? fixed(computed->total, m_rounding.amount) : QString();
    case LineField::Stock:
        return line.chosen ? fixed(line.stock, m_rounding.quantity) : QString();
    case LineField::Remark:
        return line.remark;
    case LineField::Book:
        return line.chosen ? fixed(bookOf(line), m_rounding.quantity) : QString();
    case LineField::Difference:
        if (const auto counted = number(line.quantity); counted && line.chosen)
            return fixed(
                core::roundTo(*counted - bookOf(line), m_rounding.quantity), m_rounding.quantity);
        return {};
    case LineField::Cost:
        return line.cost;
    case LineField::Limit:
        return line.saleLimit > 0 ? fixed(line.saleLimit, m_rounding.quantity) : QString();
    }
    return {};
}

QVariant LineModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const LineEntry &line = m_lines.at(index.row());
    const LineField field = m_fields.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return display(line, index.row(), field);
    case Qt::TextAlignmentRole:
        if (isNumberField(field) || field == LineField::Row)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (field == LineField::Code && !line.chosen && !line.goods.isEmpty())
            return QColor(Qt::red);
        if (isNumberField(field) && display(line, index.row(), field).toDouble() < 0)
            return QColor(Qt::red);
        return {};
    case Qt::BackgroundRole:
        // A counted difference stands out along the whole line.
        if (m_fields.contains(LineField::Difference)) {
            const QString difference = display(line, index.row(), LineField::Difference);
            if (!difference.isEmpty() && difference.toDouble() != 0)
                return QColor(0xff, 0xf0, 0xc0);
        }
        return {};
    default:
        return {};
    }
}

void LineModel::setAmount(LineEntry &line, const QString &typed)
{
    const auto amount = number(typed);
    const auto quantity = number(line.quantity);
    const auto discount = number(line.discountRate, 1);
    if (!amount || !quantity || !discount || *quantity * *discount == 0)
        return;
    line.price = fixed(
        core::roundTo(*amount / (*quantity * *discount), m_rounding.price), m_rounding.price);
    line.priceTyped = true;
}

bool LineModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    LineEntry &line = m_lines[index.row()];
    const QString text = value.toString();
    const LineField field = m_fields.at(index.column());
    if (field == LineField::Code && text.trimmed() == line.goods) {
        // Enter again on a goods text not found yet looks it up again.
        if (!line.chosen && !line.goods.isEmpty())
            emit goodsTyped(index.row(), line.goods);
        return false;
    }
    if (field != LineField::Code && text == display(line, index.row(), field))
        return false;
    switch (field) {
    case LineField::Code:
        line.goods = text.trimmed();
        line.chosen = false;
        emit dataChanged(index, index);
        emit edited();
        if (!line.goods.isEmpty())
            emit goodsTyped(index.row(), line.goods);
        return true;
    case LineField::Unit:
        if (text == line.unit)
            return false;
        line.unit = text;
        emit unitChanged(index.row());
        break;
    case LineField::Batch:
        line.batch = text.trimmed();
        break;
    case LineField::Produced:
        line.produced = normalizedDate(text);
        break;
    case LineField::Expiry:
        line.expiry = normalizedDate(text);
        break;
    case LineField::Quantity:
        line.quantity = text.trimmed();
        break;
    case LineField::Price:
        line.price = text.trimmed();
        line.priceTyped = true;
        break;
    case LineField::Discount:
        line.discountRate = text.trimmed();
        break;
    case LineField::Amount:
        setAmount(line, text);
        break;
    case LineField::TaxRate:
        line.taxRate = text.trimmed();
        break;
    case LineField::Remark:
        line.remark = text;
        break;
    case LineField::Cost:
        line.cost = text.trimmed();
        line.costTyped = true;
        break;
    default:
        return false;
    }
    emit dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    emit edited();
    if (field == LineField::Quantity || field == LineField::Price || field == LineField::Discount
        || field == LineField::TaxRate || field == LineField::Cost)
        emit numberTyped(index.row(), field, text);
    return true;
}

bool LineModel::isEditableField(const LineEntry &line, LineField field) const
{
    switch (field) {
    case LineField::Code:
        // A line already on a saved document keeps its goods where adding is not allowed.
        return m_addingAllowed || !line.chosen;
    case LineField::Unit:
        return line.chosen && line.units.size() > 1;
    case LineField::Batch:
    case LineField::Produced:
    case LineField::Expiry:
    case LineField::Quantity:
    case LineField::Price:
    case LineField::Discount:
    case LineField::Amount:
    case LineField::TaxRate:
    case LineField::Remark:
        return line.chosen;
    case LineField::Cost:
        return line.chosen && !m_costColumn.isEmpty();
    default:
        return false;
    }
}

Qt::ItemFlags LineModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (m_editable && isEditableField(m_lines.at(index.row()), m_fields.at(index.column())))
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant LineModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_fields.size())
        return m_captions.value(m_fields.at(section), captionOf(m_fields.at(section)));
    return QAbstractTableModel::headerData(section, orientation, role);
}

} // namespace medistock::ui
