#include "purchasing/texts.h"

namespace medistock::purchasing::texts {

QString noUncheckReceiptRight()
{
    return QStringLiteral("您没有取消审核采购进货单的权限！");
}

QString noUncheckReturnRight()
{
    return QStringLiteral("您没有取消审核采购退货单的权限！");
}

QString receivingNoteRefusal(const QString &number)
{
    return QStringLiteral("该单据") + number + QStringLiteral("已有入库信息，不能取消审核！")
        + QStringLiteral("\r\n") + QStringLiteral("请在商品入库单中删除该单据的所有信息，")
        + QStringLiteral("\r\n") + QStringLiteral("然后再取消审核！");
}

QString returnedReceiptRefusal(const QString &number)
{
    return QStringLiteral("该单据") + number + QStringLiteral("已有退货信息，不能取消审核！")
        + QStringLiteral("\r\n\r\n") + QStringLiteral("请先取消审核对应的采购退货单！");
}

QString settlementModeInvalid(const QString &mode)
{
    return QStringLiteral("结算方式“%1”不正确，应为 1（按实付款结算）或 2（余款记入应付帐）！")
        .arg(mode);
}

QString freightTermsInvalid(const QString &terms)
{
    return QStringLiteral("付费方式“%1”不正确，应为“我方付运费”或“对方付运费”！").arg(terms);
}

QString receiptLineMissing(int row)
{
    return QStringLiteral("第%1行：退货对应的进货单明细不存在、未审核或不是同一商品！").arg(row);
}

QString returnExceedsReceipt(int row, const QString &receipt, const QString &left)
{
    return QStringLiteral("第%1行：退货数量超过进货单%2中该商品尚可退货的数量%3！")
        .arg(QString::number(row), receipt, left);
}

QString receiptUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核采购进货单") + number;
}

QString returnCheckedLog(const QString &number, int goodsCount)
{
    // The return's check logs "增加", not "审核": the word is the system's own.
    return QStringLiteral("增加采购退货单") + number
        + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString returnUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核采购退货单") + number;
}

QString receiptTitle()
{
    return QStringLiteral("采购进货单");
}

QString returnTitle()
{
    return QStringLiteral("采购退货单");
}

} // namespace medistock::purchasing::texts
