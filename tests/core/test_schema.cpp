#include "core/schema.h"
#include "core/schemacatalogue.h"
#include "tests/support/accountset.h"

#include <QSet>
#include <QSqlQuery>
#include <QSqlRecord>

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;
using medistock::test::dumpDatabase;
using medistock::test::dumpTable;
using medistock::test::rowCount;
using medistock::test::tableRows;

namespace {

// The column's type as the engine keeps it.
QString declaredType(Connection &db, const QString &table, const QString &column)
{
    if (db.dialect() == Dialect::Postgres)
        return db.firstText(
            QStringLiteral("select format_type(atttypid,atttypmod) from "
                           "pg_attribute where attrelid=to_regclass(?) and attname=?"),
            { table, column });
    QString type;
    db.forEach(QStringLiteral("select name,type from pragma_table_info(?)"), { table },
        [&](const QSqlQuery &q) {
            if (q.value(0).toString() == column)
                type = q.value(1).toString();
        });
    return type;
}

} // namespace

TEST(SchemaCatalogue, TranscriptionCountsTablesAndColumns)
{
    int columns = 0;
    QSet<QString> names;
    for (const TableDef &table : schemaTables()) {
        names.insert(QString::fromLatin1(table.name));
        columns += int(table.columns.size());
        ASSERT_FALSE(table.columns.empty());
        EXPECT_STREQ(table.columns.front().name, "id") << table.name;
        EXPECT_STREQ(table.columns.front().type, "Counter") << table.name;
    }
    EXPECT_EQ(schemaTables().size(), 167u);
    EXPECT_EQ(names.size(), 167);
    EXPECT_EQ(columns, 2314);
    EXPECT_EQ(findTable(QStringLiteral("jxc_goods"))->columns.size(), 75u);
    EXPECT_EQ(findTable(QStringLiteral("jxc_xtcs"))->columns.size(), 100u);
    EXPECT_EQ(findTable(QStringLiteral("jxc_goodslist"))->columns.size(), 53u);
    EXPECT_EQ(keptTables().size(), 27u);
}

TEST(SchemaCatalogue, SeedsAndIndexesNameOnlyExistingColumns)
{
    for (const TableDef &table : schemaTables()) {
        for (const SeedRow &seed : table.seeds) {
            const TableDef *target = findTable(QString::fromLatin1(seed.table));
            ASSERT_NE(target, nullptr) << seed.table;
            const QStringList columns = QString::fromLatin1(seed.columns).split(QLatin1Char(','));
            EXPECT_EQ(columns.size(), qsizetype(seed.values.size())) << table.name;
            for (const QString &column : columns)
                EXPECT_TRUE(hasColumn(*target, column))
                    << seed.table << " " << column.toStdString();
        }
    }
    for (const IndexDef &index : schemaIndexes()) {
        const TableDef *table = findTable(QString::fromLatin1(index.table));
        ASSERT_NE(table, nullptr) << index.table;
        for (const QString &column : QString::fromLatin1(index.columns).split(QLatin1Char(',')))
            EXPECT_TRUE(hasColumn(*table, column)) << index.table << " " << column.toStdString();
    }
    for (const char *kept : keptTables())
        EXPECT_NE(findTable(QString::fromLatin1(kept)), nullptr) << kept;
}

class SchemaTest : public AccountSetTest
{
};

TEST_F(SchemaTest, EveryTableIsCreatedWithItsDeclaredTypes)
{
    for (const TableDef &table : schemaTables()) {
        const QString name = QString::fromLatin1(table.name);
        ASSERT_TRUE(db().tableExists(name)) << table.name;
        EXPECT_EQ(db().columnNames(name), columnNames(table)) << table.name;
    }
    // The server has no nvarchar and no bit flag: its texts are varchar left as wide as SQLite
    // leaves them, its flags smallint; amounts are exact decimals on both.
    const bool server = onPostgres();
    EXPECT_EQ(declaredType(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_jj")),
        QStringLiteral("numeric(28,8)"));
    EXPECT_EQ(declaredType(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_name")),
        server ? QStringLiteral("character varying") : QStringLiteral("nvarchar(128)"));
    EXPECT_EQ(declaredType(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_jy")),
        server ? QStringLiteral("smallint") : QStringLiteral("bit"));
    EXPECT_EQ(declaredType(db(), QStringLiteral("jxc_goods"), QStringLiteral("id")).toLower(),
        QStringLiteral("integer"));
    EXPECT_EQ(declaredType(db(), QStringLiteral("jxc_mryt"), QStringLiteral("mr_ts")),
        server ? QStringLiteral("character varying") : QStringLiteral("nvarchar(200)"));
    EXPECT_TRUE(db().tableExists(QStringLiteral("jxc_xtzt")));
}

TEST_F(SchemaTest, CreatingTwiceGivesTheSameDatabaseAsOnce)
{
    const QString once = dumpDatabase(db());
    ASSERT_TRUE(createAllTables(db(), seedContext()).ok());
    EXPECT_EQ(dumpDatabase(db()), once);
    reopen();
    EXPECT_EQ(dumpDatabase(db()), once);
}

TEST_F(SchemaTest, RecreatingATableEmptiesItBackToItsSeeds)
{
    db().exec(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
        { QStringLiteral("100004"), QStringLiteral("瓶") });
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_dw")), 3);
    createTable(db(), *findTable(QStringLiteral("jxc_dw")), seedContext());
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_dw")),
        QStringList({ QStringLiteral("1|100002|盒"), QStringLiteral("2|100003|袋") }));
}

TEST_F(SchemaTest, SeedRowsAreAsWritten)
{
    const QString ones(60, QLatin1Char('1'));
    const QSqlRecord role = db().firstRow(QStringLiteral("select * from jxc_role"));
    EXPECT_EQ(role.value("r_sn").toString(), QStringLiteral("100001"));
    EXPECT_EQ(role.value("r_name").toString(), QStringLiteral("系统管理员"));
    for (const char *area : { "cggl", "xsgl", "kcgl", "wlzk", "tjgl", "rcgl", "gspgl", "qtcz" })
        EXPECT_EQ(role.value(area).toString(), ones) << area;

    const QSqlRecord supplier = db().firstRow(QStringLiteral("select * from jxc_ghsxx"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ghsxx")), 1);
    EXPECT_EQ(supplier.value("ghs_sn").toString(), QStringLiteral("100001"));
    EXPECT_EQ(supplier.value("ghs_name").toString(), QStringLiteral("普通供货商"));
    EXPECT_EQ(supplier.value("ghs_jm").toString(), QStringLiteral("PTGHS"));
    EXPECT_EQ(supplier.value("ghs_note").toString(),
        QStringLiteral("普通供货商为一些零碎的，不固定的商品供货商"));
    EXPECT_EQ(supplier.value("ghs_default").toInt(), 1);
    EXPECT_EQ(supplier.value("ghs_forbid").toInt(), 0);
    EXPECT_EQ(supplier.value("ghs_lwje").toDouble(), 0.0);
    for (const char *date : { "ghs_yyrq", "ghs_xkrq", "ghs_gsprq", "ghs_gmprq", "ghs_wtrq",
             "ghs_zlrq", "ghs_zlrzrq", "ghs_wtrrq1", "ghs_wtrrq2" })
        EXPECT_EQ(supplier.value(date).toString(), QStringLiteral("2025-03-14")) << date;
    EXPECT_EQ(supplier.value("ghs_tele").toString(), QString());
    EXPECT_FALSE(supplier.value("ghs_tele").isNull());

    const QSqlRecord params = db().firstRow(QStringLiteral("select * from jxc_xtcs"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_xtcs")), 1);
    EXPECT_EQ(params.value("cs_jews").toInt(), 2);
    EXPECT_EQ(params.value("cs_cbjs").toInt(), 2);
    EXPECT_EQ(params.value("cs_xsws").toInt(), 2);
    EXPECT_EQ(params.value("cs_kc").toInt(), 1);
    EXPECT_EQ(params.value("cs_shdj").toInt(), 0);
    EXPECT_EQ(params.value("cs_xsjgts").toInt(), 1);
    EXPECT_EQ(params.value("cs_hbfh").toString(), QStringLiteral("￥"));
    EXPECT_EQ(params.value("cs_ts").toString(), QString());
    EXPECT_EQ(params.value("cs_posrq").toInt(), 1);

    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_xjyh")),
        QStringList({
            QStringLiteral("1|2025-03-14||期初金额|0|0|1|||||现金|现金期初数|admin"),
            QStringLiteral("2|2025-03-14||期初金额|0|0|1|||||工行帐号|工行期初数|admin"),
            QStringLiteral("3|2025-03-14||期初金额|0|0|1|||||建行帐号|建行期初数|admin"),
        }));
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_yhzh")),
        QStringList({ QStringLiteral("1|100001|现金 |现金|0|"),
            QStringLiteral("2|100002|工行合计 |工行帐号|0|"),
            QStringLiteral("3|100003|建行合计 |建行帐号|0|") }));

    const QSqlRecord discount = db().firstRow(QStringLiteral("select * from jxc_goods"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_goods")), 1);
    EXPECT_EQ(discount.value("g_sn").toString(), QStringLiteral("00000000"));
    EXPECT_EQ(discount.value("g_name").toString(), QStringLiteral("优惠商品"));
    EXPECT_EQ(
        discount.value("g_bz").toString(), QStringLiteral("在销售或进货有优惠时,平衡商品总额!"));
    EXPECT_EQ(discount.value("g_jy").toInt(), 1);
    EXPECT_EQ(discount.value("g_yhlx").toString(), QStringLiteral("不养护"));

    const QSqlRecord admin = db().firstRow(QStringLiteral("select * from jxc_admin"));
    EXPECT_EQ(admin.value("a_name").toString(), QStringLiteral("admin"));
    EXPECT_EQ(admin.value("a_pwd").toString(), QString());
    EXPECT_EQ(admin.value("r_sn").toString(), QStringLiteral("100001"));
    EXPECT_EQ(admin.value("a_jyt").toInt(), 0);

    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_posfont")),
        QStringList({ QStringLiteral("1|14"), QStringLiteral("2|14") }));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_poskx")), 0);
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_company")),
        QStringList({ QStringLiteral("1|100001|康宁大药房|康宁|<null>|0571-88886666|<null>") }));
    EXPECT_EQ(
        db().firstText(QStringLiteral("select fd_name from jxc_fd")), QStringLiteral("康宁旗舰店"));
    EXPECT_EQ(
        db().firstText(QStringLiteral("select count(*) from jxc_import")), QStringLiteral("80"));
    EXPECT_EQ(db().firstText(QStringLiteral("select kh_jm from jxc_khxx")), QStringLiteral("PTKH"));
}

TEST_F(SchemaTest, ClearingKeepsMasterDataAndEmptiesTheRest)
{
    db().exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,g_kc,ghs_sn) values (?,?,?,?)"),
        { QStringLiteral("100001"), QStringLiteral("阿莫西林胶囊"), 12.5,
            QStringLiteral("100002") });
    db().exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name) values (?,?)"),
        { QStringLiteral("100002"), QStringLiteral("城东诊所") });
    db().exec(QStringLiteral("insert into jxc_kcsp (g_sn,ck_sn,kc_sl) values (?,?,?)"),
        { QStringLiteral("100001"), QStringLiteral("100001"), 12.5 });
    db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh) values (?)"),
        { QStringLiteral("XS25031410001") });
    db().exec(QStringLiteral("insert into jxc_goodslist (gl_djh,g_sn) values (?,?)"),
        { QStringLiteral("CJ25031410001"), QStringLiteral("100001") });
    db().exec(QStringLiteral("insert into jxc_log (log_time,a_name,log_note) values (?,?,?)"),
        { QStringLiteral("2025-03-14 09:00:00"), QStringLiteral("admin"),
            QStringLiteral("登录系统") });
    db().exec(QStringLiteral("insert into jxc_fkfs (fk_sn,fk_name) values (?,?)"),
        { QStringLiteral("100003"), QStringLiteral("支票") });
    db().exec(QStringLiteral("update jxc_xtcs set cs_kc=0"));
    const QStringList kept = { QStringLiteral("jxc_khxx"), QStringLiteral("jxc_role"),
        QStringLiteral("jxc_admin"), QStringLiteral("jxc_xtcs"), QStringLiteral("jxc_hyxx"),
        QStringLiteral("jxc_company") };
    QMap<QString, QStringList> before;
    for (const QString &table : kept)
        before.insert(table, dumpTable(db(), table));

    core::SeedContext later = seedContext();
    later.today = QDate(2025, 6, 30);
    ASSERT_TRUE(clearBusinessData(db(), later).ok());

    for (const QString &table : kept)
        EXPECT_EQ(dumpTable(db(), table), before.value(table)) << table.toStdString();
    EXPECT_EQ(tableRows(db(), QStringLiteral("jxc_goods"), QStringLiteral("g_kc,ghs_sn"),
                  QStringLiteral("g_sn=?"), { QStringLiteral("100001") }),
        QStringList { QStringLiteral("0|100001") });
    EXPECT_EQ(db().firstText(QStringLiteral(
                  "select count(*) from jxc_goods where g_kc<>0 or ghs_sn<>'100001'")),
        QStringLiteral("0"));
    for (const char *emptied : { "jxc_lsxsd", "jxc_goodslist", "jxc_log", "jxc_kcsp", "jxc_ysyfk" })
        EXPECT_EQ(rowCount(db(), QString::fromLatin1(emptied)), 0) << emptied;
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_fkfs")), 2);
    EXPECT_EQ(tableRows(db(), QStringLiteral("jxc_xjyh"), QStringLiteral("xj_rq")),
        QStringList(3, QStringLiteral("2025-06-30")));
    // the kept font table gets the drawer routine's extra row once more
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_posfont")), 3);
}
