#pragma once

#include "ui/stock/stockkinds.h"

class QComboBox;
class QLineEdit;

namespace medistock::ui {

// "库存盘点单": a count sheet of one warehouse. "生成盘点表(F10)" loads every batch the warehouse
// holds (of the chosen goods class, or all) with its book quantity; the counted quantity starts
// as the book quantity, so that only what differs needs typing, and the difference of each line
// shows beside it, the line highlighted when it is not 0. A goods found that is not on the sheet
// is added as a new line with its batch typed. "扫描条码" takes a scanned barcode (or a code) and
// opens the counted quantity of that goods' first line; the next scan goes on from there.
// "导出盘点表" writes the sheet to .xlsx (code, name, packing, unit, batch, dates, book and counted
// quantity), "导入盘点数" reads the counted quantities back from such a file, matching lines by
// code, batch, production date and expiry; rows it cannot place or read are named, and nothing is
// taken when any row is wrong. Quantities are base units. The book quantity is fixed again when
// the sheet is saved.
class CountScreenKind : public StockScreenKind
{
public:
    CountScreenKind();
    const documents::DocumentKind &entry() const override;
    bool outgoing() const override { return false; }
    QList<LineField> lineFields() const override;
    QList<LineField> enterFields() const override;
    QString dueLabel() const override;
    QString printKey() const override { return QStringLiteral("kcpd"); }
    QList<std::pair<QString, QWidget *>> createHeaderFields(QWidget *parent) override;
    void setHeaderReadOnly(bool readOnly) override;
    void loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const override;
    double proposePrice(const shell::Session &session, const documents::GoodsChoice &goods,
        const QString &unit, const QString &party) const override;
    Result<QString> save(shell::Session &session, const documents::DocumentDraft &draft) override;
    void addActions(DocumentScreen &screen) override;

    QComboBox *classBox() const { return m_class; }
    QLineEdit *scanField() const { return m_scan; }

    // The actions, as their buttons run them.
    void makeSheet();
    void scanned();
    bool exportSheet(const QString &path);
    bool importCounts(const QString &path);

private:
    QComboBox *m_class = nullptr;
    QLineEdit *m_scan = nullptr;
};

} // namespace medistock::ui
