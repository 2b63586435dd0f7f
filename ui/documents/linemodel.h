#pragma once

#include "documents/entry.h"
#include "documents/goodslookup.h"
#include "documents/lines.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QList>

namespace medistock::ui {

// The columns a document's line grid may show; a kind chooses which, in its order.
enum class LineField {
    Row,
    Code,
    Name,
    Packing,
    Unit,
    Batch,
    Produced,
    Expiry,
    Quantity,
    Price,
    Discount,
    Amount,
    TaxRate,
    Total,
    Stock,
    Remark,
    Book, // a count's book quantity, the line's own column "kc_sl"
    Difference, // quantity - book, highlighted when not 0
    Cost, // the cost price per line unit
    Limit, // the goods' most per sale (g_xzsl), blank for none
};

// One line as it stands on the screen. What the clerk typed is kept as typed, so that a line the
// operation refuses is shown again exactly as it was.
struct LineEntry
{
    QString goods; // g_sn once a goods is chosen; until then the text typed into the cell
    bool chosen = false;
    QString name;
    QString packing;
    QString baseUnit;
    QList<documents::UnitChoice> units; // base unit first
    double stock = 0; // in the header's warehouse, base units
    QString unit;
    QString quantity;
    QString price;
    QString discountRate;
    QString taxRate;
    QString batch;
    QString produced;
    QString expiry;
    QString remark;
    bool priceTyped = false; // typed (or taken from a source line), so a unit change keeps it
    QString cost; // per line unit, as proposed or typed; empty where the kind shows none
    bool costTyped = false; // typed: handed to the operation (DocumentScreenKind::costColumn)
    double saleLimit = 0; // the goods' most per sale, in line units; 0: none
    documents::ColumnValues columns; // the kind's own line columns (a return line's "id2")

    bool isBlank() const;
    // Base units per unit of this line's unit.
    double factor() const;
    // A line of the chosen goods in the unit the choice names, with the goods' units and stock.
    static LineEntry of(const documents::GoodsChoice &goods, QList<documents::UnitChoice> units);
};

// The lines of a document for its grid: the figures of every line (amount, total) computed as
// they are typed by the shared line arithmetic, the amount editable back into the price.
class LineModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    LineModel(const QList<LineField> &fields, const documents::LineRounding &rounding,
        QObject *parent = nullptr);

    const QList<LineField> &fields() const { return m_fields; }
    LineField fieldAt(int column) const { return m_fields.at(column); }
    // The column of a field; -1 when the grid does not show it.
    int columnOf(LineField field) const { return int(m_fields.indexOf(field)); }

    // A kind's own caption of a field ("盘点数量" for the quantity of a count).
    void setCaption(LineField field, const QString &caption);

    void setEditable(bool editable);
    bool isEditable() const { return m_editable; }
    // The line column a typed cost goes into, per base unit; empty: the cost is never typed.
    void setCostColumn(const QString &column) { m_costColumn = column; }
    // Whether lines may be added (goods typed into a new line).
    void setAddingAllowed(bool allowed) { m_addingAllowed = allowed; }
    bool isAddingAllowed() const { return m_addingAllowed; }

    const QList<LineEntry> &lines() const { return m_lines; }
    const LineEntry &line(int row) const { return m_lines.at(row); }
    void setLines(QList<LineEntry> lines);
    void replaceLine(int row, const LineEntry &entry);
    void appendBlank();
    void insertBlank(int row);
    void removeLine(int row);
    // Blank lines are taken out, so that the rows the operation counts are the rows shown.
    void removeBlankLines();

    // The lines that are not blank, as the entry takes them.
    QList<documents::LineDraft> drafts() const;
    // The figures of a line whose quantity and price are numbers.
    std::optional<documents::LineFigures> figures(int row) const;
    double totalQuantity() const;
    double totalAmount() const; // the lines' totals including tax

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    // A text was typed into the goods cell of a line; the screen looks it up.
    void goodsTyped(int row, const QString &text);
    // The unit of a line was changed; the screen proposes its price again.
    void unitChanged(int row);
    // A number was typed into a quantity, price, discount or tax rate cell; the screen checks it
    // as the save will, so that a refusal shows as the cell is left.
    void numberTyped(int row, LineField field, const QString &text);
    // Anything on the lines changed.
    void edited();

private:
    QString display(const LineEntry &line, int row, LineField field) const;
    bool isEditableField(const LineEntry &line, LineField field) const;
    void setAmount(LineEntry &line, const QString &typed);

    QList<LineField> m_fields;
    QHash<LineField, QString> m_captions;
    documents::LineRounding m_rounding;
    QList<LineEntry> m_lines;
    bool m_editable = true;
    bool m_addingAllowed = true;
    QString m_costColumn;
};

// The caption of a field as the grid heads it.
QString captionOf(LineField field);

} // namespace medistock::ui
