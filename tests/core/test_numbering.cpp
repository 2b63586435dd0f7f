#include "core/capitals.h"
#include "core/lookups.h"
#include "core/numbering.h"
#include "core/oplog.h"
#include "core/textclean.h"
#include "tests/support/accountset.h"

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;

class NumberingTest : public AccountSetTest
{
protected:
    QString next(const QString &table, const QString &column, const QString &prefix, QDate date)
    {
        const auto number = nextDocumentNumber(db(), table, column, prefix, date);
        EXPECT_TRUE(number.ok()) << number.message().toStdString();
        return number.ok() ? number.value() : QString();
    }
    void addSale(const QString &number, const QString &operatorName = QStringLiteral("admin"))
    {
        db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,a_name) values (?,?)"),
            { number, operatorName });
    }
};

TEST_F(NumberingTest, FirstCodeAndFirstNumberOfADay)
{
    EXPECT_EQ(nextMasterCode(db(), QStringLiteral("jxc_khxx"), QStringLiteral("kh_sn")).value(),
        QStringLiteral("100002"));
    EXPECT_EQ(nextMasterCode(db(), QStringLiteral("jxc_zpxx"), QStringLiteral("zp_sn")).value(),
        QStringLiteral("100001"));
    EXPECT_EQ(next(QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), QStringLiteral("XS"),
                  QDate(2025, 3, 14)),
        QStringLiteral("XS25031410001"));
    addSale(QStringLiteral("XS25031410001"));
    addSale(QStringLiteral("XS25031410002"));
    EXPECT_EQ(next(QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), QStringLiteral("XS"),
                  QDate(2025, 3, 14)),
        QStringLiteral("XS25031410003"));
    // another day has its own stem and sequence
    EXPECT_EQ(next(QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), QStringLiteral("XS"),
                  QDate(2025, 3, 15)),
        QStringLiteral("XS25031510001"));
}

TEST_F(NumberingTest, SalesBeingEnteredAndPosSalesCount)
{
    addSale(QStringLiteral("XS25031410001"));
    db().exec(QStringLiteral("insert into jxc_lsxssptemp (gl_djh,g_sn,a_name) values (?,?,?)"),
        { QStringLiteral("XS25031410002"), QStringLiteral("100001"), QStringLiteral("小王") });
    EXPECT_EQ(next(QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), QStringLiteral("XS"),
                  QDate(2025, 3, 14)),
        QStringLiteral("XS25031410003"));
    db().exec(QStringLiteral("insert into jxc_posthsp (gl_djh) values (?)"),
        { QStringLiteral("XT25031410007") });
    EXPECT_EQ(next(QStringLiteral("jxc_xsthd"), QStringLiteral("gl_djh"), QStringLiteral("XT"),
                  QDate(2025, 3, 14)),
        QStringLiteral("XT25031410008"));
    db().exec(QStringLiteral("insert into jxc_ysyfk_dj (gl_djh) values (?)"),
        { QStringLiteral("SK25031410004") });
    EXPECT_EQ(next(QStringLiteral("jxc_ysyfk"), QStringLiteral("gl_djh"), QStringLiteral("SK"),
                  QDate(2025, 3, 14)),
        QStringLiteral("SK25031410005"));
}

TEST_F(NumberingTest, ADayEndsAtSequence99999)
{
    addSale(QStringLiteral("XS25031499998"));
    EXPECT_EQ(next(QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), QStringLiteral("XS"),
                  QDate(2025, 3, 14)),
        QStringLiteral("XS25031499999"));
    addSale(QStringLiteral("XS25031499999"));
    const auto full = nextDocumentNumber(db(), QStringLiteral("jxc_lsxsd"),
        QStringLiteral("gl_djh"), QStringLiteral("XS"), QDate(2025, 3, 14));
    EXPECT_EQ(full.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(full.message(), numbersExhaustedText(QStringLiteral("XS250314")));
}

// Only a list's own code column is numbered; a name, a password hash, a reference to a code or
// something pasted after a name is refused with the text that names it.
class CodeColumnsRefused
    : public NumberingTest,
      public ::testing::WithParamInterface<std::pair<const char *, const char *>>
{
};

TEST_P(CodeColumnsRefused, WithTheirName)
{
    const QString table = QString::fromUtf8(GetParam().first);
    const QString column = QString::fromUtf8(GetParam().second);
    const auto refused = nextMasterCode(db(), table, column);
    EXPECT_EQ(refused.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(refused.message(),
        QStringLiteral("%1.%2 不是基础资料的编号字段，不能取下一个编号！").arg(table, column));
}

INSTANTIATE_TEST_SUITE_P(NumberingTest, CodeColumnsRefused,
    ::testing::Values(std::pair { "jxc_admin", "a_pwd" }, std::pair { "jxc_goods", "g_name" },
        std::pair { "jxc_lsxssp", "g_sn" }, std::pair { "jxc_bsd", "gl_djh" },
        std::pair { "jxc_goods", "g_sn) from x;--" },
        std::pair { "jxc_goods;drop table jxc_goods", "g_sn" }));

TEST_F(NumberingTest, PrefixesAreKnownKindsOnTheirOwnTableNeverPatterns)
{
    // "X%" would match this sale's number as a LIKE pattern and hand out "X%25031410006"
    addSale(QStringLiteral("XA25031410005"));
    const auto refusal = [&](const QString &table, const QString &column, const QString &prefix) {
        const auto number = nextDocumentNumber(db(), table, column, prefix, QDate(2025, 3, 14));
        EXPECT_EQ(number.outcome().kind(), Outcome::Kind::Refused) << prefix.toStdString();
        return number.message();
    };
    const QString sales = QStringLiteral("jxc_lsxsd");
    const QString number = QStringLiteral("gl_djh");
    EXPECT_EQ(
        refusal(sales, number, QStringLiteral("X%")), QStringLiteral("没有这种单据号前缀：X%"));
    EXPECT_EQ(refusal(sales, number, QStringLiteral("%")), QStringLiteral("没有这种单据号前缀：%"));
    EXPECT_EQ(
        refusal(sales, number, QStringLiteral("X'")), QStringLiteral("没有这种单据号前缀：X'"));
    EXPECT_EQ(
        refusal(sales, number, QStringLiteral("X_")), QStringLiteral("没有这种单据号前缀：X_"));
    EXPECT_EQ(
        refusal(sales, number, QStringLiteral("xs")), QStringLiteral("没有这种单据号前缀：xs"));
    EXPECT_EQ(
        refusal(sales, number, QStringLiteral("ZZ")), QStringLiteral("没有这种单据号前缀：ZZ"));
    // a known prefix on a table that keeps another kind
    EXPECT_EQ(refusal(QStringLiteral("jxc_jhd"), QStringLiteral("j_sn"), QStringLiteral("XS")),
        QStringLiteral("单据号前缀 XS 不用于 jxc_jhd.j_sn！"));
    EXPECT_EQ(
        refusal(QStringLiteral("sqlite_master"), QStringLiteral("name"), QStringLiteral("XS")),
        QStringLiteral("单据号前缀 XS 不用于 sqlite_master.name！"));
    EXPECT_EQ(refusal(sales, QStringLiteral("g_sn"), QStringLiteral("XS")),
        QStringLiteral("单据号前缀 XS 不用于 jxc_lsxsd.g_sn！"));
    // the purchase receipt keeps its number in j_sn
    EXPECT_EQ(next(QStringLiteral("jxc_jhd"), QStringLiteral("j_sn"), QStringLiteral("CJ"),
                  QDate(2025, 3, 14)),
        QStringLiteral("CJ25031410001"));

    const auto taken = isNumberTaken(db(), QStringLiteral("jxc_lsxsd"), QStringLiteral("a_name"),
        QStringLiteral("admin"), QStringLiteral("admin"));
    EXPECT_EQ(taken.message(), QStringLiteral("jxc_lsxsd.a_name 不是单据号字段！"));
}

TEST_F(NumberingTest, ANumberIsTakenOnlyByAnotherOperator)
{
    const auto taken = [&](const QString &number, const QString &who) {
        return isNumberTaken(
            db(), QStringLiteral("jxc_lsxsd"), QStringLiteral("gl_djh"), number, who)
            .value();
    };
    addSale(QStringLiteral("XS25031410001"), QStringLiteral("小王"));
    EXPECT_TRUE(taken(QStringLiteral("XS25031410001"), QStringLiteral("admin")));
    EXPECT_FALSE(taken(QStringLiteral("XS25031410001"), QStringLiteral("小王")));
    EXPECT_FALSE(taken(QStringLiteral("XS25031410002"), QStringLiteral("admin")));
    db().exec(QStringLiteral("insert into jxc_posxssp (gl_djh) values (?)"),
        { QStringLiteral("XS25031410002") });
    EXPECT_TRUE(taken(QStringLiteral("XS25031410002"), QStringLiteral("admin")));
    db().exec(QStringLiteral("insert into jxc_posthsp (gl_djh) values (?)"),
        { QStringLiteral("XT25031410001") });
    EXPECT_TRUE(isNumberTaken(db(), QStringLiteral("jxc_xsthd"), QStringLiteral("gl_djh"),
        QStringLiteral("XT25031410001"), QStringLiteral("admin"))
                    .value());
}

TEST_F(NumberingTest, DefaultLookupsFollowTheirFallbacks)
{
    // suppliers: the default one unless forbidden, then the first not forbidden
    EXPECT_EQ(defaultSupplierCode(db()), QStringLiteral("100001"));
    db().exec(
        QStringLiteral(
            "insert into jxc_ghsxx (ghs_sn,ghs_name,ghs_default,ghs_forbid) values (?,?,?,?)"),
        { QStringLiteral("100002"), QStringLiteral("华东医药"), 0, 0 });
    db().exec(QStringLiteral("update jxc_ghsxx set ghs_forbid=1 where ghs_sn=?"),
        { QStringLiteral("100001") });
    EXPECT_EQ(defaultSupplierCode(db()), QStringLiteral("100002"));
    EXPECT_EQ(defaultSupplierName(db()), QStringLiteral("华东医药"));
    db().exec(QStringLiteral("update jxc_ghsxx set ghs_forbid=1"));
    EXPECT_EQ(defaultSupplierCode(db()), QString());

    db().exec(QStringLiteral(
                  "insert into jxc_khxx (kh_sn,kh_name,kh_default,kh_forbid) values (?,?,?,?)"),
        { QStringLiteral("100002"), QStringLiteral("城东诊所"), 1, 1 });
    EXPECT_EQ(defaultCustomerCode(db()), QStringLiteral("100001"));
    db().exec(QStringLiteral("update jxc_khxx set kh_forbid=1 where kh_sn=?"),
        { QStringLiteral("100001") });
    EXPECT_EQ(defaultCustomerCode(db()), QString());

    // warehouses have no forbidden flag: the first row when none is marked default
    db().exec(QStringLiteral("insert into jxc_ckxx (ck_sn,ck_name,ck_default) values (?,?,?)"),
        { QStringLiteral("100002"), QStringLiteral("分仓"), 0 });
    EXPECT_EQ(defaultWarehouseCode(db()), QStringLiteral("100001"));
    db().exec(QStringLiteral("update jxc_ckxx set ck_default=0"));
    EXPECT_EQ(defaultWarehouseName(db()), QStringLiteral("主仓库"));

    // employees: a row without a name is preferred to the first row
    EXPECT_EQ(defaultEmployeeName(db()), QStringLiteral("默认员工"));
    db().exec(QStringLiteral("insert into jxc_user (u_sn,u_name) values (?,?)"),
        { QStringLiteral("100002"), QString() });
    EXPECT_EQ(defaultEmployeeCode(db()), QStringLiteral("100002"));

    EXPECT_EQ(firstValue(db(), QStringLiteral("dw_name"), QStringLiteral("jxc_dw")).value(),
        QStringLiteral("盒"));
}

TEST_F(NumberingTest, TheLogKeepsTwoHundredCharactersAndReadsByRange)
{
    Clock march(QDate(2025, 3, 14));
    Clock april(QDate(2025, 4, 1));
    writeLog(db(), march, QStringLiteral("admin"), QString(250, QChar(0x836F)));
    writeLog(db(), april, QStringLiteral("小王"), QStringLiteral("登录系统"));
    const QList<LogEntry> all = readLog(db(), {}, {});
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].note.size(), 200);
    EXPECT_TRUE(all[0].time.startsWith(QStringLiteral("2025-03-14 ")));
    const QList<LogEntry> march14 = readLog(db(), QDate(2025, 3, 14), QDate(2025, 3, 14));
    ASSERT_EQ(march14.size(), 1);
    EXPECT_EQ(march14[0].operatorName, QStringLiteral("admin"));
    EXPECT_EQ(readLog(db(), QDate(2025, 3, 15), {}).size(), 1);
}

TEST(TextCleaning, EveryListedCharacterOfTheGeneralRoutine)
{
    EXPECT_EQ(cleanText(QStringLiteral("'?*%!#$&,()+-/@^~`\"")),
        QStringLiteral("‘？*％！#￥＆，（）＋－／＠～“"));
    EXPECT_EQ(cleanText(QStringLiteral("阿莫西林 0.25g")), QStringLiteral("阿莫西林 0.25g"));
}

TEST(TextCleaning, TheThreeStrengths)
{
    const QString typed = QStringLiteral("'?*%!#$&,()+-/@^~`\"");
    EXPECT_EQ(
        cleanText(typed, CleanStrength::Full), QStringLiteral("‘？*％！#￥＆，（）＋－／＠～“"));
    EXPECT_EQ(cleanText(typed, CleanStrength::Medium), QStringLiteral("‘？*％！#￥＆，()+-/＠～“"));
    EXPECT_EQ(cleanText(typed, CleanStrength::Light), QStringLiteral("‘？*％!#$&,()+-/@^~\""));
}

TEST(Weekdays, SundayFirstWithATrailingBlank)
{
    EXPECT_EQ(weekdayName(QDate(2025, 3, 16)), QStringLiteral("星期日 "));
    EXPECT_EQ(weekdayName(QDate(2025, 3, 14)), QStringLiteral("星期五 "));
    EXPECT_EQ(weekdayName(QDate(2025, 3, 15)), QStringLiteral("星期六 "));
}

class Capitals : public ::testing::TestWithParam<std::pair<double, const char *>>
{
};

TEST_P(Capitals, AsACashierWritesThem)
{
    EXPECT_EQ(amountInCapitals(GetParam().first), QString::fromUtf8(GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(Amounts, Capitals,
    ::testing::Values(std::pair { 123.45, "壹佰贰拾叁元肆角伍分" }, std::pair { 0.0, "零元整" },
        std::pair { 1005.0, "壹仟零伍元整" }, std::pair { 10.05, "壹拾元零伍分" },
        std::pair { 100000.0, "壹拾万元整" }, std::pair { 100010.0, "壹拾万零壹拾元整" },
        std::pair { 10000001.0, "壹仟万零壹元整" }, std::pair { 100000001.0, "壹亿零壹元整" },
        std::pair { 0.5, "伍角整" }, std::pair { 0.05, "伍分" },
        std::pair { 123.4, "壹佰贰拾叁元肆角整" }, std::pair { 2.675, "贰元陆角捌分" },
        std::pair { -56.0, "负伍拾陆元整" }, std::pair { 1010.1, "壹仟零壹拾元壹角整" }));
