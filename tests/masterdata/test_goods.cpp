#include "masterdata/goods.h"
#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "tests/support/accountset.h"

#include <cmath>

using namespace medistock;
using namespace medistock::masterdata;
using medistock::test::SessionTest;

class GoodsTest : public SessionTest
{
protected:
    QString addGoods(const QString &name, Values more = {})
    {
        more.insert(QStringLiteral("g_name"), name);
        const auto code = addMasterRow(session(), goodsKind(), more);
        EXPECT_TRUE(code.ok()) << code.message().toStdString();
        return code.ok() ? code.value() : QString();
    }
};

TEST_F(GoodsTest, CodesFollowTheClassPrefixWhenAutomaticNumberingIsOn)
{
    EXPECT_EQ(addGoods(QStringLiteral("阿莫西林胶囊")), QStringLiteral("10000001"));
    const int cold = addGoodsClass(session(), 1, QStringLiteral("感冒药")).value();
    EXPECT_EQ(addGoods(QStringLiteral("感冒灵颗粒"),
                  { { QStringLiteral("gc_sn"), QStringLiteral("1001") } }),
        QStringLiteral("10010001"));
    EXPECT_EQ(db().firstText(QStringLiteral("select gc_cid from jxc_goods where g_sn='10010001'")),
        QString::number(cold));
    EXPECT_EQ(addGoods(QStringLiteral("阿司匹林")), QStringLiteral("10000002"));
    setParameter(QStringLiteral("cs_spbh"), 0);
    EXPECT_EQ(addGoods(QStringLiteral("布洛芬")), QStringLiteral("100001"));
    EXPECT_EQ(addGoods(QStringLiteral("对乙酰氨基酚")), QStringLiteral("100002"));
    EXPECT_EQ(
        addGoods(QStringLiteral("自编号"), { { QStringLiteral("g_sn"), QStringLiteral("A-01") } }),
        QStringLiteral("A-01"));
    EXPECT_EQ(addMasterRow(session(), goodsKind(),
                  { { QStringLiteral("g_name"), QStringLiteral("x") },
                      { QStringLiteral("gc_sn"), QStringLiteral("9999") } })
                  .message(),
        QStringLiteral("没有这个商品类别：9999"));
}

TEST_F(GoodsTest, ANewGoodsStartsWithFactorOneAndTheDefaultSupplier)
{
    const QString code = addGoods(QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_goods"),
            QStringLiteral("g_zhxs,g_dzll,ghs_sn,g_kc,gc_cid"), QStringLiteral("g_sn=?"), { code }),
        QStringList { QStringLiteral("1|1|100001|0|2") });
}

TEST_F(GoodsTest, UnitsBarcodesAndNamedPrices)
{
    const QString code = addGoods(QStringLiteral("阿莫西林胶囊"),
        { { QStringLiteral("dw_name"), QStringLiteral("盒") },
            { QStringLiteral("g_sptm"), QStringLiteral("6920000000017") } });
    const auto box = addGoodsUnit(session(), code,
        { 0, QStringLiteral("件"), 20, QStringLiteral("6920000000024"), 240, 300 });
    ASSERT_TRUE(box.ok()) << box.message().toStdString();
    EXPECT_EQ(
        addGoodsUnit(session(), code, { 0, QStringLiteral("盒"), 1, QString(), 0, 0 }).message(),
        QStringLiteral("单位：盒 已经存在，请重新输入！"));
    EXPECT_EQ(
        addGoodsUnit(session(), code, { 0, QStringLiteral("箱"), 0, QString(), 0, 0 }).message(),
        QStringLiteral("转换系数“0”必须大于 0！"));
    EXPECT_EQ(addGoodsUnit(session(), code, { 0, QStringLiteral("箱"), HUGE_VAL, QString(), 0, 0 })
                  .message(),
        QStringLiteral("转换系数“inf”不是数字！"));
    EXPECT_EQ(addGoodsUnit(session(), code, { 0, QStringLiteral("箱"), 40, QString(), 1e20, 0 })
                  .message(),
        QStringLiteral("预设进价“1e+20”超出范围，应在 0 到 100000000 之间！"));
    EXPECT_EQ(setGoodsPrice(session(), code, QStringLiteral("批发价"), std::nan("")).message(),
        QStringLiteral("价格“nan”不是数字！"));
    EXPECT_EQ(addGoodsUnit(session(), code,
                  { 0, QStringLiteral("箱"), 40, QStringLiteral("6920000000017"), 0, 0 })
                  .message(),
        QStringLiteral("条码：6920000000017 已被商品“阿莫西林胶囊”使用！"));
    ASSERT_EQ(goodsUnits(db(), code).size(), 1);
    EXPECT_EQ(goodsUnits(db(), code).first().factor, 20.0);

    ASSERT_TRUE(addGoodsBarcode(
        session(), code, { 0, QStringLiteral("6920000000031"), QStringLiteral("新包装") })
                    .ok());
    const QString other = addGoods(QStringLiteral("板蓝根颗粒"));
    EXPECT_EQ(addGoodsBarcode(session(), other, { 0, QStringLiteral("6920000000031"), QString() })
                  .message(),
        QStringLiteral("条码：6920000000031 已被商品“阿莫西林胶囊”使用！"));
    EXPECT_EQ(addMasterRow(session(), goodsKind(),
                  { { QStringLiteral("g_name"), QStringLiteral("复方甘草片") },
                      { QStringLiteral("g_sptm"), QStringLiteral("6920000000024") } })
                  .message(),
        QStringLiteral("条码：6920000000024 已被商品“阿莫西林胶囊”使用！"));

    ASSERT_TRUE(setGoodsPrice(session(), code, QStringLiteral("诊所价"), 13.5).ok());
    ASSERT_TRUE(setGoodsPrice(session(), code, QStringLiteral("诊所价"), 14).ok());
    EXPECT_EQ(goodsPrices(db(), code),
        (QList<QPair<QString, double>> { { QStringLiteral("诊所价"), 14.0 } }));
}

TEST_F(GoodsTest, TheClassTree)
{
    const int medicine = addGoodsClass(session(), 1, QStringLiteral("西药")).value();
    const int antibiotics = addGoodsClass(session(), medicine, QStringLiteral("抗生素")).value();
    EXPECT_EQ(db().firstText(QStringLiteral("select gc_sn from jxc_goodsclass where gc_cid=?"),
                  { antibiotics }),
        QStringLiteral("100101"));
    EXPECT_EQ(addGoodsClass(session(), medicine, QStringLiteral("抗生素")).message(),
        QStringLiteral("商品类别：抗生素 已经存在，请重新输入！"));
    EXPECT_EQ(moveGoodsClass(session(), medicine, antibiotics).message(),
        QStringLiteral("不能把商品类别移到它自己或它的下级类别下面！"));
    ASSERT_TRUE(moveGoodsClass(session(), antibiotics, 2).ok());
    ASSERT_TRUE(renameGoodsClass(session(), antibiotics, QStringLiteral("抗菌药")).ok());

    QStringList names;
    for (const GoodsClass &c : goodsClasses(db()))
        names.append(c.name);
    EXPECT_EQ(names,
        QStringList({ QStringLiteral("所有类别"), QStringLiteral("默认类别"),
            QStringLiteral("抗菌药"), QStringLiteral("西药") }));

    EXPECT_EQ(deleteGoodsClass(session(), 2).message(),
        QStringLiteral("商品类别“默认类别”下还有子类别或商品，不能删除！"));
    addGoods(
        QStringLiteral("阿莫西林胶囊"), { { QStringLiteral("gc_sn"), QStringLiteral("100101") } });
    EXPECT_FALSE(deleteGoodsClass(session(), antibiotics).ok());
    EXPECT_TRUE(deleteGoodsClass(session(), medicine).ok());
}
