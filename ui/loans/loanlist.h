#pragma once

#include "ui/common/queryscreen.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace medistock::ui {

class DateField;
class DocumentScreen;

// "借货查询" and "还货查询" of the loan screen: checked loans with what came back and was sold,
// or checked returns (the sales of loaned goods among them), by date, customer text and number;
// newest first. Enter or a double-click on a loan opens it on the loan screen; "取消审核(F6)"
// unchecks the chosen return (the loans module asks and tells).
class LoanListScreen : public QueryScreen
{
    Q_OBJECT
public:
    LoanListScreen(DocumentScreen &screen, QWidget *parent);

    QComboBox *listBox() const { return m_list; }
    DateField *fromField() const { return m_from; }
    // The number of the chosen row; empty when none.
    QString currentNumber() const;

signals:
    void opened();

protected:
    void fetch() override;

private:
    void uncheckReturn();

    DocumentScreen &m_screen;
    QComboBox *m_list;
    DateField *m_from;
    DateField *m_to;
    QLineEdit *m_text;
    class QPushButton *m_uncheck;
};

// The list in a dialog over the loan screen; closes when a loan is opened.
class LoanListDialog : public QDialog
{
    Q_OBJECT
public:
    explicit LoanListDialog(DocumentScreen &screen);
    LoanListScreen *list() const { return m_list; }

private:
    LoanListScreen *m_list;
};

} // namespace medistock::ui
