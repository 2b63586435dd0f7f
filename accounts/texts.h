#pragma once

#include "accounts/expenses.h"
#include "accounts/ledger.h"
#include "accounts/registrations.h"

#include <QString>

// Every text the money module shows, logs or writes as a fixed word.
namespace medistock::accounts::texts {

// Refusals
QString dateInvalid();
QString amountZero();
QString amountNotPositive();
// The money fields as number refusals name them (core/numbers.h states the limits)
QString dueField(PartyKind kind); // "应收金额" / "应付金额"
QString paidField(PartyKind kind); // "实收金额" / "实付金额"
QString discountField(); // "优惠金额"
QString writtenOffField(); // "抹零金额"
QString amountField(); // "金额"
QString invoiceAmountField(); // "开票金额"
QString openingField(); // "期初金额"
QString partyMissing(PartyKind kind, const QString &code);
QString employeeMissing(const QString &code);
QString employeeNameMissing(const QString &name);
QString accountMissing(const QString &name);
QString accountNameRequired();
QString accountNameTaken(const QString &name);
QString accountInUse(const QString &name);
QString cashAccountCannotBeDeleted();
QString cashAccountCannotBeRenamed();
QString transferSameAccount();
QString documentMissing(const QString &number);
QString alreadyChecked(const QString &number);
QString notChecked(const QString &number);
QString checkedCannotChange(const QString &number);
QString checkedCannotDelete(const QString &number);
QString otherCheckerRefused(const QString &number, const QString &checker);
QString invoicingRowMissing();
QString expenseTypeRequired();
QString expenseTypeMissing(const QString &name);
QString expenseTypeTaken(const QString &name);
QString departmentRequired();
QString departmentMissing(const QString &code);
QString departmentTaken(const QString &name);

// Questions and information
QString uncheckQuestion(const QString &number);
QString checkAllQuestion();
QString setAsideQuestion();
QString openingWithBusinessQuestion();
QString ledgerRecalcQuestion(PartyKind kind, const QString &partyName);
QString ledgerRecalcDone(PartyKind kind);
QString invoiceRecalcQuestion(PartyKind kind, const QString &partyName);
QString invoiceRecalcDone();

// Log notes
QString registrationCheckedLog(RegistrationKind kind, const QString &party, const QString &amount);
QString registrationUncheckedLog(
    RegistrationKind kind, const QString &party, const QString &amount);
QString registrationDateChangedLog(
    const QString &number, const QString &oldDate, const QString &newDate);
QString invoicingAddedLog(PartyKind kind, const QString &party, const QString &amount);
QString invoicingChangedLog(PartyKind kind, const QString &party, const QString &amount);
QString invoiceRegisteredLog(PartyKind kind, const QString &party, const QString &amount);
QString checkedLog(const QString &kind, const QString &number);
QString uncheckedLog(const QString &kind, const QString &number);
QString expenseCheckedLog(ExpenseKind kind, const QString &number, const QString &amount);
QString expenseUncheckedLog(ExpenseKind kind, const QString &number, const QString &amount);
QString accountAddedLog(const QString &name);
QString accountRenamedLog(const QString &name, const QString &newName);
QString accountDeletedLog(const QString &name);
QString openingSetLog(const QString &name, const QString &amount);

// Words stored in rows
QString partyWord(PartyKind kind); // "客户" / "供货商"
QString registrationText(RegistrationKind kind); // k_djtxt of a registration
QString registrationCashKind(PartyKind kind); // "收款单" / "付款单"
QString writtenOffAccount(PartyKind kind); // "应收款" / "应付款"
QString writtenOffText(PartyKind kind); // "增加应收款(抹零)" / "增加应付款(抹零)"
QString writtenOffNote(PartyKind kind); // "收款单抹零登记：" / "付款单抹零登记："
QString discountGoodsName(); // "优惠商品"
QString cashAccount(); // "现金"
QString noAccount(); // "不记入账户"
QString openingKind(); // "期初金额"
QString openingNote(const QString &account); // "<account>期初数"
QString cashReceiptKind(); // "现金银行收款"
QString cashPaymentKind(); // "现金银行付款"
QString cashTransferKind(); // "现金银行转账"
QString expensePaymentKind(); // "费用付款"
QString expenseCashKind(ExpenseKind kind); // "费用付款" / "收入收款"
QString expenseFlag(ExpenseKind kind); // "费用" / "收入"
QString automaticExpenseFlag(); // "1", on the fee expenses that document checks write
QString automaticIncomeFlag(); // "2", on the income rows that document checks write
QString defaultDepartment(); // "100001"
QString invoicingText(); // "增加发票"
QString wePayFreight(); // "我方付运费"
QString theyPayFreight(); // "对方付运费"
QString freightItem(); // "运费"
QString packingItem(); // "包装费"
QString freightNoteEnd(); // "产生的运费"
QString packingNoteEnd(); // "产生的包装费"
QString settleByPayment(); // "按实付款结算"
QString remainderToPayables(); // "余款记入应付帐"
QString remainderToReceivables(); // "余款记入应收帐"

} // namespace medistock::accounts::texts
