#include "core/rounding.h"
#include "shell/parameters.h"
#include "shell/settings.h"
#include "tests/support/accountset.h"

using namespace medistock;
using namespace medistock::shell;
using medistock::test::SessionTest;

TEST(ParameterValues, FlagsReadAsTheyAreStored)
{
    for (const QVariant &yes : { QVariant(1), QVariant(true), QVariant(QStringLiteral("True")),
             QVariant(QStringLiteral("1")), QVariant(QStringLiteral("true")) })
        EXPECT_TRUE(readFlag(yes)) << yes.toString().toStdString();
    for (const QVariant &no : { QVariant(0), QVariant(false), QVariant(QStringLiteral("False")),
             QVariant(QStringLiteral("")), QVariant(), QVariant(QStringLiteral("0")) })
        EXPECT_FALSE(readFlag(no)) << no.toString().toStdString();
}

class DecimalPlaces : public ::testing::TestWithParam<std::pair<double, int>>
{
};

TEST_P(DecimalPlaces, OnlyWholeNumbersFromZeroToEightCount)
{
    EXPECT_EQ(core::validDecimals(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Places, DecimalPlaces,
    ::testing::Values(std::pair { 0.0, 0 }, std::pair { 4.0, 4 }, std::pair { 8.0, 8 },
        std::pair { 9.0, 2 }, std::pair { -1.0, 2 }, std::pair { 2.5, 2 }));

TEST(Rounding, AnExactHalfRoundsUp)
{
    EXPECT_EQ(core::roundTo(2.675, 2), 2.68);
    EXPECT_EQ(core::roundTo(1.005, 2), 1.01);
    EXPECT_EQ(core::roundTo(12.3449999999, 2), 12.35); // the added 0.000000001 tips it
    EXPECT_EQ(core::roundTo(0.125, 2), 0.13);
    EXPECT_EQ(core::roundTo(7.5, 0), 8.0);
}

class ParametersTest : public SessionTest
{
protected:
    void addPurchaseLine(double ordered, double received, double closed)
    {
        db().exec(QStringLiteral(
                      "insert into jxc_jhsp (j_sn,g_sn,jh_sl,jh_rksl,jh_qxsl) values (?,?,?,?,?)"),
            { QStringLiteral("CJ25031410001"), QStringLiteral("100001"), ordered, received,
                closed });
    }
};

TEST_F(ParametersTest, ANewSetHasTheDefaults)
{
    const Parameters &p = session().params();
    EXPECT_TRUE(p.flag("cs_kc"));
    EXPECT_TRUE(p.flag("cs_xgdj"));
    EXPECT_FALSE(p.flag("cs_shdj"));
    EXPECT_EQ(p.priceDecimals(), 2);
    EXPECT_EQ(p.quantityDecimals(), 2);
    EXPECT_EQ(p.amountDecimals(), 2);
    EXPECT_EQ(p.text("cs_hbfh"), QStringLiteral("￥"));
    EXPECT_EQ(session().company().name, QStringLiteral("康宁大药房"));
    EXPECT_EQ(session().company().shortName, QStringLiteral("康宁"));
}

TEST_F(ParametersTest, SavedSettingsAreReadBackByANewSession)
{
    ASSERT_TRUE(saveParameters(session(),
        { { QStringLiteral("cs_kc"), false }, { QStringLiteral("cs_cbjs"), 4 },
            { QStringLiteral("cs_zjews"), true } })
                    .ok());
    EXPECT_FALSE(session().params().flag("cs_kc"));
    reopen();
    loginAs(QStringLiteral("admin"));
    EXPECT_FALSE(session().params().flag("cs_kc"));
    EXPECT_EQ(session().params().priceDecimals(), 4);
    EXPECT_EQ(session().params().stockValueDecimals(), 2);
    EXPECT_DOUBLE_EQ(session().params().roundPrice(1.23456), 1.2346);
    EXPECT_FALSE(saveParameters(session(), { { QStringLiteral("cs_nope"), 1 } }).ok());
    EXPECT_FALSE(saveParameters(session(), { { QStringLiteral("id"), 5 } }).ok());
}

class AbsurdParameters
    : public ParametersTest,
      public ::testing::WithParamInterface<std::tuple<const char *, const char *, const char *>>
{
};

// A parameter takes only what it means: decimal places 0 to 8, flags 0 or 1, rates within their
// bounds; the refusal states it and nothing is written.
TEST_P(AbsurdParameters, AreRefusedAndNothingIsWritten)
{
    const auto [column, typed, message] = GetParam();
    const QString before = test::dumpDatabase(db());
    const Outcome refused
        = saveParameters(session(), { { QString::fromLatin1(column), QString::fromUtf8(typed) } });
    EXPECT_EQ(refused.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(refused.message(), QString::fromUtf8(message));
    EXPECT_EQ(ui.informed, QStringList { QString::fromUtf8(message) });
    EXPECT_EQ(test::dumpDatabase(db()), before);
    EXPECT_EQ(session().params().priceDecimals(), 2);
}

INSTANTIATE_TEST_SUITE_P(ParametersTest, AbsurdParameters,
    ::testing::Values(std::tuple { "cs_cbjs", "-1", "单价小数位数“-1”应为 0 到 8 之间的整数！" },
        std::tuple { "cs_xsws", "9", "数量小数位数“9”应为 0 到 8 之间的整数！" },
        std::tuple { "cs_jews", "2.5", "金额小数位数“2.5”应为 0 到 8 之间的整数！" },
        std::tuple { "cs_kc", "abc", "库存为零时允许采购退货、销售“abc”只能是 0 或 1！" },
        std::tuple {
            "cs_shdj", "2", "单据保存后直接审核(选中后审核权限将被忽略)“2”只能是 0 或 1！" },
        std::tuple { "cs_tax", "1000", "税率“1000”超出范围，应在 0 到 100 之间！" },
        std::tuple { "cs_tax", "inf", "税率“inf”不是数字！" },
        std::tuple { "cs_zdzk", "500", "最低折扣“500”超出范围，应在 0 到 1 之间！" },
        std::tuple { "cs_cgdj", "NaN", "系统参数 cs_cgdj“NaN”不是数字！" },
        std::tuple { "cs_cgdj", "-3", "系统参数 cs_cgdj“-3”应为 0 到 999999999 之间的整数！" },
        std::tuple { "cs_hbfh", "人民币元整", "货币符号不能超过 4 个字符！" }));

TEST_F(ParametersTest, FlagsAndNumbersAreStoredAsWhatTheyMean)
{
    ASSERT_TRUE(saveParameters(session(),
        { { QStringLiteral("cs_kc"), QStringLiteral("否") },
            { QStringLiteral("cs_shdj"), QStringLiteral("true") },
            { QStringLiteral("cs_cbjs"), QStringLiteral(" 8 ") },
            { QStringLiteral("cs_tax"), QStringLiteral("13") } })
                    .ok());
    EXPECT_EQ(test::tableRows(
                  db(), QStringLiteral("jxc_xtcs"), QStringLiteral("cs_kc,cs_shdj,cs_cbjs,cs_tax")),
        QStringList { QStringLiteral("0|1|8|13") });
    EXPECT_EQ(session().params().priceDecimals(), 8);
}

TEST_F(ParametersTest, RestoringDefaultsIsRefusedWhileAPurchaseLineIsNotWhollyReceived)
{
    setParameter(QStringLiteral("cs_kc"), 0);
    addPurchaseLine(10, 4, 0);
    const Outcome refused = restoreDefaultParameters(session());
    EXPECT_EQ(refused.message(),
        QStringLiteral(
            "至少有一种商品没有完成入库，\r\n\r\n单据号：CJ25031410001，商品编号：100001\r\n\r\n"
            "不能取消商品入库功能！"));
    EXPECT_EQ(ui.informed, QStringList { refused.message() });
    EXPECT_FALSE(session().params().flag("cs_kc"));

    db().exec(QStringLiteral("update jxc_jhsp set jh_qxsl=6"));
    db().exec(QStringLiteral(
                  "insert into jxc_lsxssp (gl_djh,g_sn,ls_sl,ls_cksl,ls_qxsl) values (?,?,?,?,?)"),
        { QStringLiteral("XS25031410002"), QStringLiteral("100002"), 5, 0, 0 });
    EXPECT_EQ(restoreDefaultParameters(session()).message(),
        QStringLiteral(
            "至少有一种商品没有完成出库，\r\n\r\n单据号：XS25031410002，商品编号：100002\r\n\r\n"
            "不能取消商品出库功能！"));
}

TEST_F(ParametersTest, RestoringDefaultsWritesTheRowAnew)
{
    setParameter(QStringLiteral("cs_kc"), 0);
    setParameter(QStringLiteral("cs_cbjs"), 5);
    addPurchaseLine(10, 10, 0);
    ASSERT_TRUE(restoreDefaultParameters(session()).ok());
    EXPECT_TRUE(session().params().flag("cs_kc"));
    EXPECT_EQ(session().params().priceDecimals(), 2);
    EXPECT_EQ(session().params().text("cs_employdate"), QStringLiteral("1900-01-01"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xtcs")), 1);
}
