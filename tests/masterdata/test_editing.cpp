#include "masterdata/editing.h"
#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "tests/support/accountset.h"

#include <QSqlRecord>

using namespace medistock;
using namespace medistock::masterdata;
using medistock::test::dumpDatabase;
using medistock::test::dumpTable;
using medistock::test::SessionTest;

namespace {

Values goodsValues(const QString &name)
{
    return { { QStringLiteral("g_name"), name },
        { QStringLiteral("dw_name"), QStringLiteral("盒") } };
}

GoodsUnit unit(const QString &name, double factor, const QString &barcode = {})
{
    GoodsUnit u;
    u.unit = name;
    u.factor = factor;
    u.barcode = barcode;
    u.purchasePrice = factor * 6.8;
    u.salePrice = factor * 9.5;
    return u;
}

QStringList names(const QList<QSqlRecord> &rows)
{
    QStringList list;
    for (const QSqlRecord &row : rows)
        list.append(row.value(QStringLiteral("g_name")).toString());
    return list;
}

} // namespace

class EditingTest : public SessionTest
{
};

TEST_F(EditingTest, ANewGoodsIsSavedWithItsUnitsBarcodesAndPricesInOneGo)
{
    const auto code = saveGoods(session(),
        { {}, goodsValues(QStringLiteral("阿莫西林胶囊")),
            { unit(QStringLiteral("箱"), 200, QStringLiteral("16901234500014")) },
            { { 0, QStringLiteral("6901234500024"), QStringLiteral("旧包装") } },
            { { QStringLiteral("批发价"), 8.5 } } });
    ASSERT_TRUE(code.ok()) << code.message().toStdString();
    EXPECT_EQ(code.value(), QStringLiteral("10000001"));
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_goodsdw"),
                  QStringLiteral("dw_name,g_zhxs,g_sptm,g_jj,g_sj"), QStringLiteral("g_sn=?"),
                  { code.value() }),
        QStringList { QStringLiteral("箱|200|16901234500014|1360|1900") });
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_goodstm")).size(), 1);
    EXPECT_EQ(goodsPrices(db(), code.value()),
        (QList<QPair<QString, double>> { { QStringLiteral("批发价"), 8.5 } }));
    EXPECT_TRUE(ui.informed.isEmpty());
}

TEST_F(EditingTest, ARefusedPartLeavesTheDatabaseAsItWas)
{
    ASSERT_TRUE(saveGoods(session(),
        { {}, goodsValues(QStringLiteral("感冒灵颗粒")), {},
            { { 0, QStringLiteral("6901234500031"), {} } },
            {} }).ok());
    ui.clear();
    const QString before = dumpDatabase(db());
    // the row itself would pass; its unit's barcode belongs to another goods
    auto refused = saveGoods(session(),
        { {}, goodsValues(QStringLiteral("板蓝根颗粒")),
            { unit(QStringLiteral("箱"), 20, QStringLiteral("6901234500031")) }, {}, {} });
    EXPECT_EQ(refused.message(), QStringLiteral("条码：6901234500031 已被商品“感冒灵颗粒”使用！"));
    refused = saveGoods(session(),
        { QStringLiteral("10000001"), goodsValues(QStringLiteral("感冒灵颗粒（新）")),
            { unit(QStringLiteral("盒"), 10) }, {}, {} });
    EXPECT_EQ(refused.message(), QStringLiteral("单位：盒 已经存在，请重新输入！"));
    refused = saveGoods(
        session(), { QStringLiteral("10000001"), {}, { unit(QStringLiteral("箱"), 0) }, {}, {} });
    EXPECT_EQ(refused.message(), QStringLiteral("转换系数“0”必须大于 0！"));
    EXPECT_EQ(ui.informed.size(), 3);
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(EditingTest, SavingAnExistingGoodsDropsWhatTheDraftLeftOutAndKeepsTheRest)
{
    const QString code = saveGoods(session(),
        { {}, goodsValues(QStringLiteral("维生素C片")),
            { unit(QStringLiteral("箱"), 100), unit(QStringLiteral("中包"), 10) },
            { { 0, QStringLiteral("111"), {} }, { 0, QStringLiteral("222"), {} } },
            { { QStringLiteral("批发价"), 2.5 }, { QStringLiteral("诊所价"), 2.8 } } })
                             .value();
    QList<GoodsUnit> units = goodsUnits(db(), code);
    const qint64 keptUnit = units.at(1).id;
    units.removeFirst();
    units.append(unit(QStringLiteral("板"), 4));
    QList<GoodsBarcode> barcodes = goodsBarcodes(db(), code);
    barcodes.removeLast();
    ASSERT_TRUE(saveGoods(session(),
        { code, { { QStringLiteral("g_lsj"), QStringLiteral("4.5") } }, units, barcodes,
            { { QStringLiteral("诊所价"), 3 } } })
                    .ok());
    const QList<GoodsUnit> after = goodsUnits(db(), code);
    ASSERT_EQ(after.size(), 2);
    EXPECT_EQ(after.at(0).id, keptUnit);
    EXPECT_EQ(after.at(0).unit, QStringLiteral("中包"));
    EXPECT_EQ(after.at(1).unit, QStringLiteral("板"));
    ASSERT_EQ(goodsBarcodes(db(), code).size(), 1);
    EXPECT_EQ(goodsBarcodes(db(), code).first().barcode, QStringLiteral("111"));
    EXPECT_EQ(goodsPrices(db(), code),
        (QList<QPair<QString, double>> { { QStringLiteral("诊所价"), 3 } }));
    EXPECT_EQ(db().firstText(QStringLiteral("select g_lsj from jxc_goods where g_sn=?"), { code }),
        QStringLiteral("4.5"));
}

TEST_F(EditingTest, ACustomerAndItsEmployeesAreWrittenTogetherOrNotAtAll)
{
    const QString before = dumpDatabase(db());
    const Values clinic { { QStringLiteral("kh_name"), QStringLiteral("仁心诊所") } };
    const auto refused = saveCustomer(
        session(), {}, clinic, { QStringLiteral("100001"), QStringLiteral("999999") });
    EXPECT_EQ(refused.message(), QStringLiteral("没有这个业务员：999999"));
    EXPECT_EQ(dumpDatabase(db()), before);

    const auto code = saveCustomer(session(), {}, clinic, { QStringLiteral("100001") });
    ASSERT_TRUE(code.ok());
    EXPECT_EQ(code.value(), QStringLiteral("100002"));
    EXPECT_EQ(db().firstText(QStringLiteral("select kh_usn||'|'||kh_uname||'|'||kh_jm from "
                                            "jxc_khxx where kh_sn='100002'")),
        QStringLiteral("100001,|默认员工,|RXZS"));
    ASSERT_TRUE(saveCustomer(session(), code.value(), {}, {}).ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select kh_usn from jxc_khxx where kh_sn='100002'")),
        QString());
}

TEST_F(EditingTest, AWarehouseIsSavedWithItsOperatorsAndNeedsItsRight)
{
    const auto code = saveWarehouse(session(), {},
        { { QStringLiteral("ck_name"), QStringLiteral("城西门店仓") } },
        { QStringLiteral("100001") });
    ASSERT_TRUE(code.ok());
    EXPECT_EQ(
        db().firstText(QStringLiteral("select ck_sn||'|'||ck_asn||'|'||ck_aname from jxc_ckxx "
                                      "where ck_name='城西门店仓'")),
        QStringLiteral("100002|100001,|admin,"));

    shell::RoleDraft clerk;
    clerk.name = QStringLiteral("店员");
    clerk.ticked.insert(QStringLiteral("qtcz"), { true });
    const QString role = shell::saveRole(session(), clerk).value();
    ASSERT_TRUE(shell::addOperator(session(), QStringLiteral("小王"), role).ok());
    loginAs(QStringLiteral("小王"));
    const QString before = dumpDatabase(db());
    EXPECT_EQ(
        saveWarehouse(session(), {}, { { QStringLiteral("ck_name"), QStringLiteral("x") } }, {})
            .message(),
        QStringLiteral("您没有“仓库设置”的权限！"));
    EXPECT_TRUE(
        saveGoods(session(), { {}, goodsValues(QStringLiteral("布洛芬")), {}, {}, {} }).ok());
    EXPECT_NE(dumpDatabase(db()), before);
}

TEST_F(EditingTest, GoodsOfAClassIncludeItsSubClassesAndTheRootHoldsAll)
{
    const int cold = addGoodsClass(session(), 1, QStringLiteral("感冒用药")).value();
    const int children = addGoodsClass(session(), cold, QStringLiteral("儿童感冒药")).value();
    const int vitamins = addGoodsClass(session(), 1, QStringLiteral("维生素")).value();
    for (const auto &[name, classCode] :
        { std::pair { "感冒灵颗粒", "1001" }, std::pair { "小儿感冒颗粒", "100101" },
            std::pair { "维生素C片", "1002" }, std::pair { "阿莫西林胶囊", "1000" } }) {
        Values values = goodsValues(QString::fromUtf8(name));
        values.insert(QStringLiteral("gc_sn"), QString::fromLatin1(classCode));
        ASSERT_TRUE(addMasterRow(session(), goodsKind(), values).ok());
    }
    EXPECT_EQ(names(searchGoodsInClass(db(), {}, cold)),
        (QStringList { QStringLiteral("感冒灵颗粒"), QStringLiteral("小儿感冒颗粒") }));
    EXPECT_EQ(names(searchGoodsInClass(db(), {}, children)),
        QStringList { QStringLiteral("小儿感冒颗粒") });
    EXPECT_EQ(names(searchGoodsInClass(db(), QStringLiteral("XE"), cold)),
        QStringList { QStringLiteral("小儿感冒颗粒") });
    EXPECT_EQ(names(searchGoodsInClass(db(), QStringLiteral("GM"), vitamins)), QStringList());
    EXPECT_EQ(searchGoodsInClass(db(), {}, 1).size(), 4);
}
