#include "core/schemacatalogue.h"
#include "masterdata/goods.h"
#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/mnemonic.h"
#include "masterdata/parties.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "tests/support/accountset.h"

#include <QSqlRecord>

using namespace medistock;
using namespace medistock::masterdata;
using medistock::test::dumpDatabase;
using medistock::test::SessionTest;

namespace {

const MasterKind &kind(const char *key)
{
    return *findMasterKind(QString::fromLatin1(key));
}

} // namespace

TEST(Mnemonics, PinyinInitialsOfTheName)
{
    Mnemonics m;
    EXPECT_EQ(m.of(QStringLiteral("普通客户")), QStringLiteral("PTKH"));
    EXPECT_EQ(m.of(QStringLiteral("阿莫西林胶囊")), QStringLiteral("AMXLJN"));
    EXPECT_EQ(m.of(QStringLiteral("维生素C片")), QStringLiteral("WSSCP"));
    EXPECT_EQ(m.of(QStringLiteral("板蓝根颗粒（10g*20袋）")), QStringLiteral("BLGKL"));
    EXPECT_EQ(m.of(QStringLiteral("999感冒灵")), QStringLiteral("999GML"));
}

TEST(MasterKinds, EveryReferenceNamesAnExistingColumn)
{
    for (const MasterKind &k : masterKinds()) {
        const core::TableDef *table = core::findTable(QString::fromLatin1(k.table));
        ASSERT_NE(table, nullptr) << k.table;
        EXPECT_TRUE(core::hasColumn(*table, keyColumn(k))) << k.key;
        for (const Reference &r : k.references) {
            const core::TableDef *referring = core::findTable(QString::fromLatin1(r.table));
            ASSERT_NE(referring, nullptr) << r.table;
            EXPECT_TRUE(core::hasColumn(*referring, QString::fromLatin1(r.column)))
                << r.table << "." << r.column;
        }
        for (const ColumnDefault &d : k.defaults)
            EXPECT_TRUE(core::hasColumn(*table, QString::fromLatin1(d.column)))
                << k.key << " " << d.column;
    }
}

class MasterRowsTest : public SessionTest
{
};

TEST_F(MasterRowsTest, ANewCustomerStartsWithTheListDefaultsAndItsMnemonic)
{
    const auto code = addMasterRow(session(), kind("customer"),
        { { QStringLiteral("kh_name"), QStringLiteral("城东诊所") },
            { QStringLiteral("kh_lwje"), QStringLiteral("150.5") } });
    ASSERT_TRUE(code.ok()) << code.message().toStdString();
    EXPECT_EQ(code.value(), QStringLiteral("100002"));
    const QSqlRecord row
        = db().firstRow(QStringLiteral("select * from jxc_khxx where kh_sn='100002'"));
    EXPECT_EQ(row.value("kh_jm").toString(), QStringLiteral("CDZS"));
    EXPECT_EQ(row.value("kh_lwje").toDouble(), 150.5);
    EXPECT_EQ(row.value("kh_forbid").toInt(), 0);
    EXPECT_EQ(row.value("ck_sn").toString(), QStringLiteral("-1"));
    EXPECT_EQ(row.value("ck_name").toString(), QStringLiteral("所有仓库"));
    EXPECT_EQ(row.value("kt_name").toString(), QStringLiteral("零售客户"));
    EXPECT_FALSE(row.value("kh_tele").isNull());
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log")),
        QStringLiteral("增加客户：城东诊所"));
}

TEST_F(MasterRowsTest, BadInputIsRefusedWithItsReasonAndWritesNothing)
{
    const QString before = dumpDatabase(db());
    const auto refused = [&](const char *key, Values values) {
        const auto result = addMasterRow(session(), kind(key), values);
        EXPECT_FALSE(result.ok());
        return result.message();
    };
    EXPECT_EQ(refused("goods", { { QStringLiteral("g_name"), QStringLiteral("  ") } }),
        QStringLiteral("商品名称必须填写！"));
    EXPECT_EQ(refused("customer",
                  { { QStringLiteral("kh_sn"), QStringLiteral("100001") },
                      { QStringLiteral("kh_name"), QStringLiteral("城东诊所") } }),
        QStringLiteral("编号：100001 已经存在，请重新输入！"));
    EXPECT_EQ(refused("goods",
                  { { QStringLiteral("g_name"), QStringLiteral("板蓝根") },
                      { QStringLiteral("g_jj"), QStringLiteral("12元") } }),
        QStringLiteral("预设进价“12元”不是数字！"));
    EXPECT_EQ(refused("goods",
                  { { QStringLiteral("g_name"), QStringLiteral("板蓝根") },
                      { QStringLiteral("g_zdkc"), QStringLiteral("1.5") } }),
        QStringLiteral("最低库存“1.5”应为 0 到 999999999 之间的整数！"));
    EXPECT_EQ(refused("goods",
                  { { QStringLiteral("g_name"), QStringLiteral("板蓝根") },
                      { QStringLiteral("g_ks"), QStringLiteral("2025-02-30") } }),
        QStringLiteral("开始日期不是正确的日期（yyyy-MM-dd）：2025-02-30"));
    EXPECT_EQ(refused("unit", { { QStringLiteral("dw_name"), QStringLiteral("盒") } }),
        QStringLiteral("单位名称：盒 已经存在，请重新输入！"));
    EXPECT_EQ(refused("gsp", { { QStringLiteral("gsp_name"), QStringLiteral("中成药") } }),
        QStringLiteral("GSP类别名称：中成药 已经存在，请重新输入！"));
    EXPECT_EQ(refused("goods",
                  { { QStringLiteral("g_name"), QStringLiteral("板蓝根") },
                      { QStringLiteral("g_nosuch"), QStringLiteral("1") } }),
        QStringLiteral("没有这个字段：g_nosuch"));
    EXPECT_EQ(refused("warehouse", { { QStringLiteral("ck_name"), QString(70, QChar(0x4ED3)) } }),
        QStringLiteral("仓库名称不能超过64个字！"));
    EXPECT_EQ(ui.informed.size(), 9);
    EXPECT_EQ(dumpDatabase(db()), before);
}

namespace {

struct AbsurdNumber
{
    const char *kind;
    const char *column;
    const char *typed;
    const char *message;
};

void PrintTo(const AbsurdNumber &c, std::ostream *os)
{
    *os << c.column << '=' << c.typed;
}

} // namespace

class AbsurdMasterNumbers : public MasterRowsTest,
                            public ::testing::WithParamInterface<AbsurdNumber>
{
};

// Every number column of a list keeps the limits of what it stands for; the refusal states them
// and nothing is written.
TEST_P(AbsurdMasterNumbers, AreRefusedWithTheirLimits)
{
    const AbsurdNumber &c = GetParam();
    const MasterKind &list = kind(c.kind);
    const QString before = dumpDatabase(db());
    const auto added = addMasterRow(session(), list,
        { { QString::fromLatin1(list.nameColumn), QStringLiteral("新资料") },
            { QString::fromLatin1(c.column), QString::fromUtf8(c.typed) } });
    EXPECT_EQ(added.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(added.message(), QString::fromUtf8(c.message));
    EXPECT_EQ(ui.informed, QStringList { QString::fromUtf8(c.message) });
    EXPECT_EQ(dumpDatabase(db()), before);
}

INSTANTIATE_TEST_SUITE_P(MasterRowsTest, AbsurdMasterNumbers,
    ::testing::Values(AbsurdNumber { "goods", "g_kc", "-5", "库存数不能为负数！" },
        AbsurdNumber { "goods", "g_pjjj", "NaN", "成本均价“NaN”不是数字！" },
        AbsurdNumber { "goods", "g_pjjj", "-inf", "成本均价“-inf”不是数字！" },
        AbsurdNumber {
            "goods", "g_jj", "1e+20", "预设进价“1e+20”超出范围，应在 0 到 100000000 之间！" },
        AbsurdNumber {
            "goods", "g_sj", "1e308", "预设售价“1e308”超出范围，应在 0 到 100000000 之间！" },
        AbsurdNumber { "goods", "g_kc", "100000000.5",
            "库存数“100000000.5”超出范围，应在 0 到 100000000 之间！" },
        AbsurdNumber { "goods", "g_zhxs", "0", "转换系数“0”必须大于 0！" },
        AbsurdNumber { "goods", "g_dzll", "500", "销售折扣“500”超出范围，应在 0 到 1 之间！" },
        AbsurdNumber { "goods", "g_zdkc", "-1", "最低库存“-1”应为 0 到 999999999 之间的整数！" },
        AbsurdNumber { "goods", "g_jy", "abc", "禁用“abc”只能是 0 或 1！" },
        AbsurdNumber { "customer", "kh_lwje", "1e308",
            "我方应收金额“1e308”超出范围，应在 -1000000000000 到 1000000000000 之间！" },
        AbsurdNumber { "employee", "u_tc", "150", "提成比例“150”超出范围，应在 0 到 100 之间！" }));

TEST_F(MasterRowsTest, NumbersAtTheirLimitsAndFlagWordsAreTaken)
{
    const auto code = addMasterRow(session(), kind("goods"),
        { { QStringLiteral("g_name"), QStringLiteral("板蓝根") },
            { QStringLiteral("g_kc"), QStringLiteral("100000000") },
            { QStringLiteral("g_jj"), QStringLiteral(" 0 ") },
            { QStringLiteral("g_dzll"), QStringLiteral("1") },
            { QStringLiteral("g_jy"), QStringLiteral("是") } });
    ASSERT_TRUE(code.ok()) << code.message().toStdString();
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_kc,g_jj,g_dzll,g_jy"),
            QStringLiteral("g_sn=?"), { code.value() }),
        QStringList { QStringLiteral("100000000|0|1|1") });
}

TEST_F(MasterRowsTest, ARowInUseCannotBeDeletedButCanBeDisabled)
{
    const QString code = addMasterRow(
        session(), kind("goods"), { { QStringLiteral("g_name"), QStringLiteral("阿莫西林胶囊") } })
                             .value();
    db().exec(QStringLiteral("insert into jxc_jhsp (j_sn,g_sn,jh_sl) values (?,?,?)"),
        { QStringLiteral("CJ25031410001"), code, 10 });
    const Outcome refused = deleteMasterRow(session(), kind("goods"), code);
    EXPECT_EQ(refused.message(),
        QStringLiteral("商品“阿莫西林胶囊”已有采购进货单记录，不能删除！可以将它设为禁用。"));
    EXPECT_TRUE(db().exists(QStringLiteral("select 1 from jxc_goods where g_sn=?"), { code }));

    ASSERT_TRUE(setMasterDisabled(session(), kind("goods"), code, true).ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select g_jy from jxc_goods where g_sn=?"), { code }),
        QStringLiteral("1"));

    // the default customer has receivables rows only once a sale posts; the seeded supplier is
    // every new goods' usual supplier but that alone does not block
    db().exec(QStringLiteral("insert into jxc_ysyfk (gl_djh,k_type,k_ghskh) values (?,?,?)"),
        { QStringLiteral("XS25031410001"), QStringLiteral("kh"), QStringLiteral("100001") });
    EXPECT_EQ(deleteMasterRow(session(), kind("customer"), QStringLiteral("100001")).message(),
        QStringLiteral("客户“普通客户”已有应收帐款记录，不能删除！可以将它设为禁用。"));
    EXPECT_TRUE(deleteMasterRow(session(), kind("supplier"), QStringLiteral("100001")).ok());
    EXPECT_EQ(
        deleteMasterRow(session(), kind("unit"), QStringLiteral("100002")).message(), QString());
}

TEST_F(MasterRowsTest, AFreeRowIsDeletedWithItsSatellites)
{
    const QString code = addMasterRow(session(), kind("goods"),
        { { QStringLiteral("g_name"), QStringLiteral("板蓝根颗粒") },
            { QStringLiteral("dw_name"), QStringLiteral("袋") } })
                             .value();
    db().exec(QStringLiteral("insert into jxc_goodstm (g_sn,g_sptm) values (?,?)"),
        { code, QStringLiteral("690") });
    EXPECT_EQ(deleteMasterRow(session(), kind("unit"), QStringLiteral("100003")).message(),
        QStringLiteral("单位“袋”已有商品资料记录，不能删除！"));
    ASSERT_TRUE(deleteMasterRow(session(), kind("goods"), code).ok());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_goodstm")), 0);
    EXPECT_TRUE(deleteMasterRow(session(), kind("unit"), QStringLiteral("100003")).ok());
}

TEST_F(MasterRowsTest, SearchFindsByCodeNameMnemonicAndBarcode)
{
    const QString amx = addMasterRow(session(), kind("goods"),
        { { QStringLiteral("g_name"), QStringLiteral("阿莫西林胶囊") },
            { QStringLiteral("g_sptm"), QStringLiteral("6920000000017") } })
                            .value();
    const QString blg = addMasterRow(
        session(), kind("goods"), { { QStringLiteral("g_name"), QStringLiteral("板蓝根颗粒") } })
                            .value();
    db().exec(
        QStringLiteral("insert into jxc_goodsdw (g_sn,dw_name,g_sptm,g_zhxs) values (?,?,?,?)"),
        { blg, QStringLiteral("箱"), QStringLiteral("6930000000022"), 20 });
    const auto codes = [&](const QString &text) {
        QStringList found;
        for (const QSqlRecord &row : searchMasterRows(db(), kind("goods"), text))
            found.append(row.value("g_sn").toString());
        return found;
    };
    EXPECT_EQ(codes(QStringLiteral("amx")), QStringList { amx });
    EXPECT_EQ(codes(QStringLiteral("板蓝")), QStringList { blg });
    EXPECT_EQ(codes(QStringLiteral("692000")), QStringList { amx });
    EXPECT_EQ(codes(QStringLiteral("6930000000022")), QStringList { blg });
    EXPECT_EQ(codes(QString()).size(), 2); // the discount line is not listed
}

TEST_F(MasterRowsTest, ChangingANameRefreshesTheMnemonicUnlessOneIsTyped)
{
    const MasterKind &customers = kind("customer");
    ASSERT_TRUE(updateMasterRow(session(), customers, QStringLiteral("100001"),
        { { QStringLiteral("kh_name"), QStringLiteral("零售顾客") } })
                    .ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select kh_jm from jxc_khxx")), QStringLiteral("LSGK"));
    ASSERT_TRUE(updateMasterRow(session(), customers, QStringLiteral("100001"),
        { { QStringLiteral("kh_name"), QStringLiteral("零售顾客") },
            { QStringLiteral("kh_jm"), QStringLiteral("LS") } })
                    .ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select kh_jm from jxc_khxx")), QStringLiteral("LS"));
    EXPECT_EQ(updateMasterRow(session(), customers, QStringLiteral("999999"), {}).message(),
        QStringLiteral("没有这个客户：999999"));
}

TEST_F(MasterRowsTest, WarehouseOperatorsAreCommaTerminatedLists)
{
    ASSERT_TRUE(shell::addOperator(session(), QStringLiteral("小王"), QString()).ok());
    ASSERT_TRUE(setWarehouseOperators(
        session(), QStringLiteral("100001"), { QStringLiteral("100001"), QStringLiteral("100002") })
                    .ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select ck_asn||'|'||ck_aname from jxc_ckxx")),
        QStringLiteral("100001,100002,|admin,小王,"));
    EXPECT_EQ(
        setWarehouseOperators(session(), QStringLiteral("100001"), { QStringLiteral("100009") })
            .message(),
        QStringLiteral("没有这个操作员：100009"));
}

TEST_F(MasterRowsTest, ChangingAListNeedsItsRight)
{
    shell::RoleDraft clerk;
    clerk.name = QStringLiteral("营业员");
    ASSERT_TRUE(shell::saveRole(session(), clerk).ok());
    ASSERT_TRUE(
        shell::addOperator(session(), QStringLiteral("小李"), QStringLiteral("100002")).ok());
    loginAs(QStringLiteral("小李"));
    EXPECT_EQ(addMasterRow(session(), kind("goods"),
                  { { QStringLiteral("g_name"), QStringLiteral("板蓝根") } })
                  .message(),
        QStringLiteral("您没有“商品管理”的权限！"));
    // the goods' satellites and the class tree are the goods list's too
    EXPECT_EQ(addGoodsClass(session(), 1, QStringLiteral("西药")).message(),
        QStringLiteral("您没有“商品管理”的权限！"));
    EXPECT_EQ(addGoodsBarcode(
                  session(), QStringLiteral("00000000"), { 0, QStringLiteral("690"), QString() })
                  .message(),
        QStringLiteral("您没有“商品管理”的权限！"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_goodsclass")), 2);
}
