#pragma once

#include <QString>

// Every text the customer loans show, ask, log or write into rows.
namespace medistock::loans::texts {

// Saving a loan: the confirmation with check-on-save on or off, and a date after today
QString saveAndCheckQuestion();
QString saveQuestion();
QString futureDateQuestion(const QString &date, const QString &today);

// Loan line refusals; `row` counts the lines from 1
QString depositNotNumber(int row, const QString &text);
QString rentNotNumber(int row, const QString &text);

// Returns and sales of loaned goods
QString notALoan(const QString &number);
QString notAReturn(const QString &number);
QString nothingOpen(const QString &number);
QString lineNotOfLoan(qint64 line, const QString &number);
QString lineChosenTwice(qint64 line);
QString quantityNotNumber(qint64 line, const QString &text);
QString quantityOverOpen(const QString &goodsName, const QString &open);
QString returnBeforeLoan(const QString &date, const QString &loanDate);
QString salePriceNotNumber(qint64 line, const QString &text);

// Unchecking
QString loanHasReturns(const QString &number);
QString saleStillChecked(const QString &returnNumber, const QString &sale);

// What the rows say
QString loanLineFlag(); // "借货"
QString returnLineFlag(); // "还货"
QString saleLineFlag(); // "销售"
QString saleReturnNote(); // "还货：借货转销售"
QString saleNote(const QString &loan); // the note of the sale a loan is turned into
QString incomeType(); // "收入"
QString incomeNote(const QString &returnNumber);

// Log lines
QString loanCheckedLog(const QString &number, int goodsCount);
QString loanUncheckedLog(const QString &number);
QString returnCheckedLog(const QString &number, int goodsCount);
QString returnUncheckedLog(const QString &number);

// Print titles
QString loanTitle(); // "借货"
QString returnTitle(); // "还货"

} // namespace medistock::loans::texts
