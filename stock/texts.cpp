#include "stock/texts.h"

#include "core/rounding.h"

namespace medistock::stock {

namespace {

const QString twoBreaks = QStringLiteral("\r\n\r\n");

// "CT" speaks of returning and "XS" of selling; every other kind issues goods.
QString closingText(const QString &kind, bool negativeAllowed)
{
    if (negativeAllowed) {
        if (kind == QLatin1String("CT"))
            return QStringLiteral("”：退货将会出现负库存，是否继续？");
        if (kind == QLatin1String("XS"))
            return QStringLiteral("”：销售将会出现负库存，是否继续？");
        return QStringLiteral("”：出库将会出现负库存，是否继续？");
    }
    if (kind == QLatin1String("CT"))
        return QStringLiteral("”：不能退货！");
    if (kind == QLatin1String("XS"))
        return QStringLiteral("”：不能销售！");
    return QStringLiteral("”：不能出库！");
}

} // namespace

QString batchShortageText(const QString &kind, const QString &goods, bool negativeAllowed)
{
    const QString opening = kind == QLatin1String("JH")
        ? QStringLiteral("该单据对应的生产日期中至少一种商品库存不足，")
        : QStringLiteral("该单据对应的批号、有效期中至少一种商品库存不足，");
    return opening + twoBreaks + QStringLiteral("“") + goods + closingText(kind, negativeAllowed);
}

QString saleLimitText(const QString &goodsName, double limit)
{
    return QStringLiteral("其中的药品“") + goodsName + QStringLiteral(" 每次最多销售数量为")
        + core::plainNumber(limit) + QStringLiteral("”，") + twoBreaks
        + QStringLiteral("不能超过这个数量！");
}

QString receiptPostedLogText(const QString &number, int rowCount)
{
    return QStringLiteral("审核采购进货单") + number + QStringLiteral("，共")
        + QString::number(rowCount) + QStringLiteral("种商品");
}

QString receiptAlreadyPostedText(const QString &number)
{
    return QStringLiteral("采购进货单") + number + QStringLiteral("已记入库存，不能重复记帐！");
}

QString noLedgerRowText(qint64 id)
{
    return QStringLiteral("商品明细帐中没有编号为") + QString::number(id)
        + QStringLiteral("的记录！");
}

QString unknownGoodsText(const QString &goods)
{
    return QStringLiteral("没有这个商品：") + goods;
}

QString unknownWarehouseText(const QString &warehouse)
{
    return QStringLiteral("没有这个仓库：") + warehouse;
}

QString unknownCheckKindText(const QString &kind)
{
    return QStringLiteral("没有这种单据类型：") + kind
        + QStringLiteral("（可用 CJ、CT、XS、XT、DB、JH）");
}

QString ledgerKindText(const QString &kind, double quantity)
{
    struct Name
    {
        const char *kind;
        const char *in; // quantity above 0, or any quantity where `out` is null
        const char *out;
    };
    static const Name names[] = { { "qc", "期初数", nullptr }, { "cj", "采购入库单", nullptr },
        { "ct", "采购退货单", nullptr }, { "xs", "商品销售单", nullptr },
        { "xt", "顾客退货单", nullptr }, { "pd", "库存盘点单", nullptr },
        { "db", "库存调拨入库", "库存调拨出库" }, { "bs", "商品报损", nullptr },
        { "by", "商品报溢", nullptr }, { "cf", "拆分入库", "被拆分出库" },
        { "kb", "捆绑入库", "被捆绑出库" }, { "hh", "客户还货", nullptr },
        { "jh", "客户借货", nullptr }, { "dh", "积分换赠品", nullptr } };
    for (const Name &name : names)
        if (kind == QLatin1String(name.kind))
            return QString::fromUtf8(name.out && quantity < 0 ? name.out : name.in);
    return kind;
}

QStringList ledgerKinds()
{
    return { QStringLiteral("qc"), QStringLiteral("cj"), QStringLiteral("ct"), QStringLiteral("xs"),
        QStringLiteral("xt"), QStringLiteral("db"), QStringLiteral("pd"), QStringLiteral("bs"),
        QStringLiteral("by"), QStringLiteral("cf"), QStringLiteral("kb"), QStringLiteral("jh"),
        QStringLiteral("hh"), QStringLiteral("dh") };
}

QString averageField()
{
    return QStringLiteral("成本均价");
}

QString changeAverageQuestion(const QString &goodsName, double from, double to)
{
    return QStringLiteral(
        "确认将商品“%1”的成本均价由 %2 改为 %3 吗？\r\n"
        "此后的业务按新均价计算成本；日期在最后一笔业务之前的单据审核后将按原业务重算。")
        .arg(goodsName, core::plainNumber(from), core::plainNumber(to));
}

QString averageChangedLog(const QString &goods, const QString &goodsName, double from, double to)
{
    return QStringLiteral("修改商品均价：%1 %2 %3 -> %4")
        .arg(goods, goodsName, core::plainNumber(from), core::plainNumber(to));
}

QString ledgerKindName(const QString &kind)
{
    if (kind == QLatin1String("db"))
        return QStringLiteral("库存调拨单");
    if (kind == QLatin1String("cf"))
        return QStringLiteral("商品拆分单");
    if (kind == QLatin1String("kb"))
        return QStringLiteral("商品捆绑单");
    return ledgerKindText(kind, 1);
}

} // namespace medistock::stock
