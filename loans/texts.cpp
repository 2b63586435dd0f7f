#include "loans/texts.h"

namespace medistock::loans::texts {

namespace {

QString line(int row)
{
    return QStringLiteral("第%1行：").arg(row);
}

} // namespace

QString saveAndCheckQuestion()
{
    return QStringLiteral("单据保存后将直接审核，是否确认保存？\r\n\r\n"
                          "保存后如果有问题可以在“借货查询”功能中取消审核！");
}

QString saveQuestion()
{
    return QStringLiteral("单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n"
                          "处于“未审核”状态的借货单，可以在“待审核借货\r\n\r\n"
                          "单”面板中，进行修改及审核操作！");
}

QString futureDateQuestion(const QString &date, const QString &today)
{
    return QStringLiteral("您选择的日期：") + date + QStringLiteral("大于计算机的当前日期：")
        + today + QStringLiteral("确认继续吗？");
}

QString depositNotNumber(int row, const QString &text)
{
    return line(row) + QStringLiteral("押金“%1”不是有效的金额！").arg(text);
}

QString rentNotNumber(int row, const QString &text)
{
    return line(row) + QStringLiteral("租金“%1”不是有效的金额！").arg(text);
}

QString notALoan(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("不是客户借货单！");
}

QString notAReturn(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("不是客户还货单！");
}

QString nothingOpen(const QString &number)
{
    return QStringLiteral("借货单：") + number + QStringLiteral("的商品已全部还货或转销售！");
}

QString lineNotOfLoan(qint64 line, const QString &number)
{
    return QStringLiteral("借货明细%1不属于借货单：").arg(line) + number + QStringLiteral("！");
}

QString lineChosenTwice(qint64 line)
{
    return QStringLiteral("借货明细%1只能选择一次！").arg(line);
}

QString quantityNotNumber(qint64 line, const QString &text)
{
    return QStringLiteral("借货明细%1：数量“%2”不是大于0的数字！").arg(line).arg(text);
}

QString quantityOverOpen(const QString &goodsName, const QString &open)
{
    return QStringLiteral("商品“") + goodsName + QStringLiteral("”最多还能还货或转销售：") + open
        + QStringLiteral("！");
}

QString returnBeforeLoan(const QString &date, const QString &loanDate)
{
    return QStringLiteral("还货日期：") + date + QStringLiteral("不能早于借货日期：") + loanDate
        + QStringLiteral("！");
}

QString salePriceNotNumber(qint64 line, const QString &text)
{
    return QStringLiteral("借货明细%1：售价“%2”不是有效的金额！").arg(line).arg(text);
}

QString loanHasReturns(const QString &number)
{
    return QStringLiteral("借货单：") + number
        + QStringLiteral("已有还货或转销售，不能取消审核！\r\n请先取消审核它的还货单。");
}

QString saleStillChecked(const QString &returnNumber, const QString &sale)
{
    return QStringLiteral("还货单：") + returnNumber + QStringLiteral("转成的销售单：") + sale
        + QStringLiteral("已审核，\r\n请先取消审核该销售单！");
}

QString loanLineFlag()
{
    return QStringLiteral("借货");
}

QString returnLineFlag()
{
    return QStringLiteral("还货");
}

QString saleLineFlag()
{
    return QStringLiteral("销售");
}

QString saleReturnNote()
{
    return QStringLiteral("还货：借货转销售");
}

QString saleNote(const QString &loan)
{
    return QStringLiteral("借货转销售：") + loan;
}

QString incomeType()
{
    return QStringLiteral("收入");
}

QString incomeNote(const QString &returnNumber)
{
    return QStringLiteral("还货单") + returnNumber + QStringLiteral("产生的借货收入");
}

QString loanCheckedLog(const QString &number, int goodsCount)
{
    return QStringLiteral("审核客户借货单") + number
        + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString loanUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核客户借货单") + number;
}

QString returnCheckedLog(const QString &number, int goodsCount)
{
    return QStringLiteral("审核客户还货单") + number
        + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString returnUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核客户还货单") + number;
}

QString loanTitle()
{
    return QStringLiteral("借货");
}

QString returnTitle()
{
    return QStringLiteral("还货");
}

} // namespace medistock::loans::texts
