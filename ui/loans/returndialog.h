#pragma once

#include "loans/loanreturn.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;
class QTableWidget;

namespace medistock::ui {

class DateField;
struct Workspace;

// "新增还货" / "整单还货" / "新增借货转销售" of a checked loan: the open lines (one, or all of
// them) with their whole open quantity proposed, the date (today), a note, and for a sale the
// sale price per base unit (the goods' sale price, else retail) and the amount the customer pays.
// Each quantity may be lowered; the rent and the deposit to refund follow as it is typed.
// "确定(F5)" saves and checks the return (or the return part and the sale) through the loans
// module, which tells its refusals; the dialog stays open on a refusal.
class LoanReturnDialog : public QDialog
{
    Q_OBJECT
public:
    enum class Mode { Return, Sale };
    LoanReturnDialog(Workspace &workspace, const QString &loan, std::optional<qint64> line,
        Mode mode, QWidget *parent = nullptr);

    // False when the loan offers nothing to return (told already).
    bool loaded() const { return m_loaded; }
    // The numbers written: the return "HH", and for a sale its "XS".
    QStringList written() const { return m_written; }

    QTableWidget *linesGrid() const { return m_grid; }
    DateField *dateField() const { return m_date; }
    QLineEdit *paidField() const { return m_paid; }
    // The grid's column of the quantity coming back and (a sale) of the price.
    static constexpr int quantityColumn = 7;
    static constexpr int priceColumn = 8;

public slots:
    void confirm();

private:
    void fillGrid();
    void refreshFigures();
    QString cellText(int row, int column) const;

    Workspace &m_workspace;
    Mode m_mode;
    loans::ReturnPlan m_plan;
    bool m_loaded = false;
    QStringList m_written;
    QTableWidget *m_grid = nullptr;
    DateField *m_date = nullptr;
    QLineEdit *m_note = nullptr;
    QLineEdit *m_paid = nullptr;
    QLabel *m_days = nullptr;
};

} // namespace medistock::ui
