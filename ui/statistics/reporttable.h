#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QVariant>

#include <tuple>

namespace medistock::shell {
class Parameters;
}

namespace medistock::ui::stats {

// How a column's numbers are shown: with the decimals of the parameters for their kind, counts
// as whole numbers and rates with 2 places.
enum class CellKind { Text, Count, Quantity, Price, Amount, Rate };

struct ReportColumn
{
    QString caption;
    CellKind kind = CellKind::Text;
    bool summed = false; // added up in the totals row
    bool cost = false; // a cost or profit figure: shown only with "显示商品成本价"
    int width = 0; // 0: by its kind
};

// A report as the grid shows it: the rows' cells in column order, and for each row what opens
// it on a double-click (a goods code, a document number), empty when nothing does.
struct ReportTable
{
    QList<QVariantList> rows;
    QStringList keys;
    // What a chart beside the grid draws, when the report has one: a label and up to two values.
    QList<std::tuple<QString, double, double>> chart;
};

// The grid's model: the rows, then a totals row "合计" when any column is summed and there are
// rows. Numbers are right-aligned and negative amounts red.
class ReportModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    ReportModel(QList<ReportColumn> columns, const shell::Parameters &params, QObject *parent);

    void setTable(ReportTable table);
    const ReportTable &table() const { return m_table; }
    const QList<ReportColumn> &columns() const { return m_columns; }
    // Captions that change with a grouping ("商品编号" or "客户编号").
    void setCaption(int column, const QString &caption);
    // The column that says "合计" on the totals row (the first, unless it is hidden).
    void setTotalsLabelColumn(int column) { m_labelColumn = column; }
    int totalsLabelColumn() const { return m_labelColumn; }
    bool hasTotals() const;
    int dataRows() const { return int(m_table.rows.size()); }
    // The totals row's values, column by column (empty for columns that are not summed).
    QVariantList totals() const;
    // The text a cell shows.
    QString text(int row, int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant cell(int row, int column) const;
    int decimals(CellKind kind) const;

    QList<ReportColumn> m_columns;
    const shell::Parameters &m_params;
    ReportTable m_table;
    int m_labelColumn = 0;
};

// The columns given (in their order) of the rows and the totals row, written to an .xlsx file.
bool exportTable(const ReportModel &model, const QList<int> &columns, const QString &path,
    const QString &sheet, QString &error);

} // namespace medistock::ui::stats
