#pragma once

#include "accounts/moneylists.h"
#include "core/numbers.h"
#include "documents/descriptor.h"
#include "ui/common/queryscreen.h"

#include <QDialog>

#include <functional>
#include <optional>

class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;

namespace medistock::ui {

class CodeNameField;
class DateField;

// The party table of the customers ("kh") or suppliers ("ghs") for the shared pickers.
documents::PartyTable partyTableOf(accounts::PartyKind kind);

// The money screens share one shape: a list (a QueryScreen, so totals, "记录数" and the export
// come with it) with the date range and status filters where the list has them, and the
// operations as buttons with their keys. F5 runs the list as everywhere; the operations take
// F2 新增, F3 修改, Del 删除, F6 审核, F7 取消审核, so a clerk's hands learn one set. A button is
// enabled only with its right; the operations test the right again. After an operation that went
// through, the list runs again and keeps the row the clerk was on.
// The check entries of the menu ("收款登记审核", "现金银行审核" …) open the same lists on what is
// still unchecked. Rows that another document posted (a sale's cash row) are shown but changed
// only through that document; a transfer's two rows are deleted and entered again, not changed.
class MoneyListScreen : public QueryScreen
{
    Q_OBJECT
public:
    MoneyListScreen(Workspace &workspace, const QString &title, QWidget *parent = nullptr);

    shell::Session &session() const;
    // An operation's button; `right` is a position of `area`, 0 for none.
    QPushButton *addOperation(const QString &text, const QKeySequence &key,
        std::function<void()> operation, const char *area = nullptr, int right = 0);
    // The range (the last month up to today), and the status ("全部", "未审核", "已审核").
    void addRangeFilters();
    void addStatusFilter();
    // The customer or supplier filter (all when empty); choosing one runs the list.
    CodeNameField *addPartyFilter(accounts::PartyKind kind);
    DateField *fromField() const { return m_from; }
    DateField *toField() const { return m_to; }
    QComboBox *statusBox() const { return m_status; }
    // The range and status chosen.
    accounts::MoneyFilter baseFilter() const;
    // Runs the list again after an operation that went through, staying on the same row.
    void refreshAfter(bool done);

    using DocumentOperation = Outcome (*)(shell::Session &, const QString &);
    // The column that holds a row's document number.
    void setNumberColumn(int column) { m_numberColumn = column; }
    // The current row's document number; empty when none.
    QString currentNumber() const;
    // Runs the operation on the current row's document and refreshes after it; deleting asks
    // "确定删除单据：…吗？" first.
    void operateOnCurrent(DocumentOperation operation);
    void deleteCurrent(DocumentOperation operation);

    using Recalculation
        = Outcome (*)(shell::Session &, accounts::PartyKind, const QString &, QDate);
    // The recalculation window: "所有客户" ("所有供货商") or the party given, from a date; the
    // operation asks its question. Refreshes after it ran.
    void recalculateParties(const QString &title, accounts::PartyKind kind, const QString &party,
        const QString &partyName, const QString &from, Recalculation recalculation);

private:
    DateField *m_from = nullptr;
    DateField *m_to = nullptr;
    QComboBox *m_status = nullptr;
    int m_numberColumn = 0;
};

// The form of one money entry: labelled fields one under another, Enter moving on, "确定" and
// "取消". OK hands the form to `submit` (which calls the operation); the form closes only when
// it went through, so nothing typed is lost on a refusal.
class MoneyFormDialog : public QDialog
{
    Q_OBJECT
public:
    MoneyFormDialog(shell::Session &session, const QString &title, QWidget *parent = nullptr);

    void addRow(const QString &label, QWidget *field);
    QLineEdit *addText(const QString &label, const QString &value = {});
    QLineEdit *addAmount(const QString &label, double value = 0);
    DateField *addDate(const QString &label, const QString &value);
    // The field of a label, for tests and for the caller's own wiring.
    QWidget *field(const QString &label) const;
    // Reads an amount field: the number, or (told, focus on the field) nothing.
    std::optional<double> amount(QLineEdit *field, const QString &name,
        core::NumberKind kind = core::NumberKind::Amount) const;
    void setSubmit(std::function<bool()> submit) { m_submit = std::move(submit); }

public slots:
    void submit();

protected:
    void showEvent(QShowEvent *event) override;

private:
    shell::Session &m_session;
    QFormLayout *m_form;
    QHash<QString, QWidget *> m_fields;
    std::function<bool()> m_submit;
    bool m_navigation = false;
};

// The cash and bank accounts as a drop-down (name as text and data), "现金" first as stored;
// with `noAccount` "不记入账户" last.
void fillAccountBox(QComboBox *box, shell::Session &session, bool noAccount = false);

} // namespace medistock::ui
