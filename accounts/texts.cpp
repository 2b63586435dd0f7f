#include "accounts/texts.h"

namespace medistock::accounts::texts {

namespace {

const QString paragraph = QStringLiteral("\r\n\r\n");

QString ofDocument(const QString &number, const QString &rest)
{
    return QStringLiteral("单据：") + number + rest;
}

QString quoted(const QString &before, const QString &name, const QString &after)
{
    return before + QStringLiteral("“") + name + QStringLiteral("”") + after;
}

QString partyLog(const QString &action, PartyKind kind, const QString &party, const QString &amount)
{
    return action + QStringLiteral("，") + partyWord(kind) + QStringLiteral("：") + party
        + QStringLiteral("，金额：") + amount;
}

// What a registration's log calls its business: "收款", "付款", "应收款", "应付款".
QString registrationAction(RegistrationKind kind)
{
    switch (kind) {
    case RegistrationKind::Receivable:
        return QStringLiteral("应收款");
    case RegistrationKind::Collection:
        return QStringLiteral("收款");
    case RegistrationKind::Payable:
        return QStringLiteral("应付款");
    case RegistrationKind::Payment:
        break;
    }
    return QStringLiteral("付款");
}

QString expenseDocument(ExpenseKind kind)
{
    return kind == ExpenseKind::Expense ? QStringLiteral("费用单") : QStringLiteral("收入单");
}

} // namespace

QString dateInvalid()
{
    return QStringLiteral("日期不正确，请按“yyyy-MM-dd”输入！");
}

QString amountZero()
{
    return QStringLiteral("金额不能为零！");
}

QString amountNotPositive()
{
    return QStringLiteral("金额必须大于零！");
}

QString dueField(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("应收金额") : QStringLiteral("应付金额");
}

QString paidField(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("实收金额") : QStringLiteral("实付金额");
}

QString discountField()
{
    return QStringLiteral("优惠金额");
}

QString writtenOffField()
{
    return QStringLiteral("抹零金额");
}

QString amountField()
{
    return QStringLiteral("金额");
}

QString invoiceAmountField()
{
    return QStringLiteral("开票金额");
}

QString openingField()
{
    return QStringLiteral("期初金额");
}

QString partyMissing(PartyKind kind, const QString &code)
{
    return quoted(partyWord(kind), code, QStringLiteral("不存在！"));
}

QString employeeMissing(const QString &code)
{
    return quoted(QStringLiteral("业务员"), code, QStringLiteral("不存在！"));
}

QString employeeNameMissing(const QString &name)
{
    return quoted(QStringLiteral("经办人"), name, QStringLiteral("不存在！"));
}

QString accountMissing(const QString &name)
{
    return quoted(QStringLiteral("账户"), name, QStringLiteral("不存在！"));
}

QString accountNameRequired()
{
    return QStringLiteral("请输入账户名称！");
}

QString accountNameTaken(const QString &name)
{
    return quoted(QStringLiteral("账户名称"), name, QStringLiteral("已经存在！"));
}

QString accountInUse(const QString &name)
{
    return quoted(QStringLiteral("账户"), name, QStringLiteral("已有业务发生，不能删除！"));
}

QString cashAccountCannotBeDeleted()
{
    return QStringLiteral("“现金”是系统内置账户，不能删除！");
}

QString cashAccountCannotBeRenamed()
{
    return QStringLiteral("“现金”是系统内置账户，不能改名！");
}

QString transferSameAccount()
{
    return QStringLiteral("转出账户和转入账户不能相同！");
}

QString documentMissing(const QString &number)
{
    return ofDocument(number, QStringLiteral("不存在！"));
}

QString alreadyChecked(const QString &number)
{
    return ofDocument(number, QStringLiteral("已经审核！"));
}

QString notChecked(const QString &number)
{
    return ofDocument(number, QStringLiteral("尚未审核！"));
}

QString checkedCannotChange(const QString &number)
{
    return ofDocument(number, QStringLiteral("已经审核，不能修改！"));
}

QString checkedCannotDelete(const QString &number)
{
    return ofDocument(number, QStringLiteral("已经审核，不能删除！"));
}

QString otherCheckerRefused(const QString &number, const QString &checker)
{
    return ofDocument(number,
        QStringLiteral("，的审核人：") + checker + QStringLiteral("\r\n")
            + QStringLiteral("不允许其他人取消审核！"));
}

QString invoicingRowMissing()
{
    return QStringLiteral("没有找到该发票记录！");
}

QString expenseTypeRequired()
{
    return QStringLiteral("请输入费用类型名称！");
}

QString expenseTypeMissing(const QString &name)
{
    return quoted(QStringLiteral("费用类型"), name, QStringLiteral("不存在！"));
}

QString expenseTypeTaken(const QString &name)
{
    return quoted(QStringLiteral("费用类型"), name, QStringLiteral("已经存在！"));
}

QString departmentRequired()
{
    return QStringLiteral("请输入部门名称！");
}

QString departmentMissing(const QString &code)
{
    return quoted(QStringLiteral("部门"), code, QStringLiteral("不存在！"));
}

QString departmentTaken(const QString &name)
{
    return quoted(QStringLiteral("部门"), name, QStringLiteral("已经存在！"));
}

QString uncheckQuestion(const QString &number)
{
    return QStringLiteral("您的操作将取消当前选中的已审核单据：") + number
        + QStringLiteral("，确认吗？");
}

QString checkAllQuestion()
{
    return QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？") + paragraph
        + QStringLiteral("（如需审核某个单据，请按右键！）");
}

QString setAsideQuestion()
{
    return QStringLiteral("该单据不开发票或发票不正确，从列表中排除，") + paragraph
        + QStringLiteral("转到发票管理中等待处理，继续吗？");
}

QString openingWithBusinessQuestion()
{
    return QStringLiteral("该银行账户已有业务发生，") + paragraph
        + QStringLiteral("建立期初帐将会改变该账户的余额，") + paragraph
        + QStringLiteral("是否继续？");
}

QString ledgerRecalcQuestion(PartyKind kind, const QString &partyName)
{
    const QString whom = partyName.isEmpty() ? QStringLiteral("所有") + partyWord(kind)
                                             : quoted(partyWord(kind), partyName, QString());
    const QString what
        = kind == PartyKind::Customer ? QStringLiteral("应收款") : QStringLiteral("应付款");
    return QStringLiteral("您的操作将重新计算") + whom + QStringLiteral("的") + what
        + QStringLiteral("，确认吗？");
}

QString ledgerRecalcDone(PartyKind kind)
{
    return (kind == PartyKind::Customer ? QStringLiteral("应收款") : QStringLiteral("应付款"))
        + QStringLiteral("重新计算完成！");
}

QString invoiceRecalcQuestion(PartyKind kind, const QString &partyName)
{
    const QString whom = partyName.isEmpty() ? QStringLiteral("所有") + partyWord(kind)
                                             : quoted(partyWord(kind), partyName, QString());
    return QStringLiteral("您的操作将重新计算") + whom + QStringLiteral("的发票数据，确认吗？");
}

QString invoiceRecalcDone()
{
    return QStringLiteral("发票数据重新计算完成！");
}

QString registrationCheckedLog(RegistrationKind kind, const QString &party, const QString &amount)
{
    return partyLog(
        QStringLiteral("审核") + registrationAction(kind), registrationParty(kind), party, amount);
}

QString registrationDateChangedLog(
    const QString &number, const QString &oldDate, const QString &newDate)
{
    return QStringLiteral("修改收付款日期，单据：%1，%2改为%3").arg(number, oldDate, newDate);
}

QString registrationUncheckedLog(RegistrationKind kind, const QString &party, const QString &amount)
{
    return partyLog(QStringLiteral("取消审核") + registrationAction(kind), registrationParty(kind),
        party, amount);
}

QString invoicingAddedLog(PartyKind kind, const QString &party, const QString &amount)
{
    return partyLog(QStringLiteral("增加开票"), kind, party, amount);
}

QString invoicingChangedLog(PartyKind kind, const QString &party, const QString &amount)
{
    return partyLog(QStringLiteral("修改开票"), kind, party, amount);
}

QString invoiceRegisteredLog(PartyKind kind, const QString &party, const QString &amount)
{
    return partyLog(QStringLiteral("发票登记"), kind, party, amount);
}

QString checkedLog(const QString &kind, const QString &number)
{
    return QStringLiteral("审核") + kind + QStringLiteral("：") + number;
}

QString uncheckedLog(const QString &kind, const QString &number)
{
    return QStringLiteral("取消审核") + kind + QStringLiteral("：") + number;
}

QString expenseCheckedLog(ExpenseKind kind, const QString &number, const QString &amount)
{
    return QStringLiteral("审核") + expenseDocument(kind) + number + QStringLiteral("，金额：")
        + amount;
}

QString expenseUncheckedLog(ExpenseKind kind, const QString &number, const QString &amount)
{
    return QStringLiteral("取消审核") + expenseDocument(kind) + number + QStringLiteral("，金额：")
        + amount;
}

QString accountAddedLog(const QString &name)
{
    return QStringLiteral("增加现金银行账户：") + name;
}

QString accountRenamedLog(const QString &name, const QString &newName)
{
    return QStringLiteral("修改现金银行账户：") + name + QStringLiteral("改为") + newName;
}

QString accountDeletedLog(const QString &name)
{
    return QStringLiteral("删除现金银行账户：") + name;
}

QString openingSetLog(const QString &name, const QString &amount)
{
    return QStringLiteral("建立现金银行期初：") + name + QStringLiteral("，金额：") + amount;
}

QString partyWord(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("客户") : QStringLiteral("供货商");
}

QString registrationText(RegistrationKind kind)
{
    switch (kind) {
    case RegistrationKind::Receivable:
        return QStringLiteral("增加应收款");
    case RegistrationKind::Collection:
        return QStringLiteral("收款单");
    case RegistrationKind::Payable:
        return QStringLiteral("增加应付款");
    case RegistrationKind::Payment:
        break;
    }
    return QStringLiteral("付款单");
}

QString registrationCashKind(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("收款单") : QStringLiteral("付款单");
}

QString writtenOffAccount(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("应收款") : QStringLiteral("应付款");
}

QString writtenOffText(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("增加应收款(抹零)")
                                       : QStringLiteral("增加应付款(抹零)");
}

QString writtenOffNote(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("收款单抹零登记：")
                                       : QStringLiteral("付款单抹零登记：");
}

QString discountGoodsName()
{
    return QStringLiteral("优惠商品");
}

QString cashAccount()
{
    return QStringLiteral("现金");
}

QString noAccount()
{
    return QStringLiteral("不记入账户");
}

QString openingKind()
{
    return QStringLiteral("期初金额");
}

QString openingNote(const QString &account)
{
    return account + QStringLiteral("期初数");
}

QString cashReceiptKind()
{
    return QStringLiteral("现金银行收款");
}

QString cashPaymentKind()
{
    return QStringLiteral("现金银行付款");
}

QString cashTransferKind()
{
    return QStringLiteral("现金银行转账");
}

QString expensePaymentKind()
{
    return QStringLiteral("费用付款");
}

QString expenseCashKind(ExpenseKind kind)
{
    return kind == ExpenseKind::Expense ? expensePaymentKind() : QStringLiteral("收入收款");
}

QString expenseFlag(ExpenseKind kind)
{
    return kind == ExpenseKind::Expense ? QStringLiteral("费用") : QStringLiteral("收入");
}

QString automaticExpenseFlag()
{
    return QStringLiteral("1");
}

QString automaticIncomeFlag()
{
    return QStringLiteral("2");
}

QString defaultDepartment()
{
    return QStringLiteral("100001");
}

QString invoicingText()
{
    return QStringLiteral("增加发票");
}

QString wePayFreight()
{
    return QStringLiteral("我方付运费");
}

QString theyPayFreight()
{
    return QStringLiteral("对方付运费");
}

QString freightItem()
{
    return QStringLiteral("运费");
}

QString packingItem()
{
    return QStringLiteral("包装费");
}

QString freightNoteEnd()
{
    return QStringLiteral("产生的运费");
}

QString packingNoteEnd()
{
    return QStringLiteral("产生的包装费");
}

QString settleByPayment()
{
    return QStringLiteral("按实付款结算");
}

QString remainderToPayables()
{
    return QStringLiteral("余款记入应付帐");
}

QString remainderToReceivables()
{
    return QStringLiteral("余款记入应收帐");
}

} // namespace medistock::accounts::texts
