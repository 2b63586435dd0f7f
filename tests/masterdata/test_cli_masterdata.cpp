#include "core/connection.h"
#include "core/spreadsheet.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QTemporaryDir>

using namespace medistock;
using medistock::test::runCli;

TEST(MasterDataCommands, AddFindImportAndExport)
{
    QTemporaryDir dir;
    const QStringList data { QStringLiteral("--data"), dir.path() };
    ASSERT_EQ(runCli(data + QStringList { QStringLiteral("init") }).status, 0);
    EXPECT_EQ(runCli({ QStringLiteral("mnemonic"), QStringLiteral("普通客户") }).out,
        QStringLiteral("PTKH\n"));

    const auto added = runCli(data
        + QStringList { QStringLiteral("goods-add"), QStringLiteral("--g_name"),
            QStringLiteral("阿莫西林胶囊"), QStringLiteral("--g_jj"), QStringLiteral("12.5") });
    EXPECT_EQ(added.out, QStringLiteral("10000001\n")) << added.err.toStdString();
    const auto bad = runCli(data
        + QStringList { QStringLiteral("supplier-add"), QStringLiteral("--ghs_name"), QString() });
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.err, QStringLiteral("供货商名称必须填写！\n"));
    EXPECT_EQ(runCli(data
                  + QStringList { QStringLiteral("master-list"), QStringLiteral("goods"),
                      QStringLiteral("amx") })
                  .out,
        QStringLiteral("10000001\t阿莫西林胶囊\tAMXLJN\n"));

    const QString sheet = QDir(dir.path()).filePath(QStringLiteral("customers.xlsx"));
    ASSERT_TRUE(core::writeXlsx(sheet, QStringLiteral("客户"),
        { QStringLiteral("客户名称"), QStringLiteral("期初应收") },
        { { QStringLiteral("城东诊所"), 100 },
            { QStringLiteral("城西药店"), QStringLiteral("一百") } })
                    .ok());
    const auto dry = runCli(data
        + QStringList { QStringLiteral("import"), QStringLiteral("customer"), sheet,
            QStringLiteral("--dry-run") });
    EXPECT_EQ(dry.status, 0);
    EXPECT_TRUE(dry.out.contains(QStringLiteral("第3行：我方应收金额“一百”不是数字！\n")))
        << dry.out.toStdString();
    EXPECT_TRUE(dry.out.endsWith(QStringLiteral("可以导入 1 行，有错误 1 行。\n")));
    const auto declined = runCli(
        data + QStringList { QStringLiteral("import"), QStringLiteral("customer"), sheet });
    EXPECT_EQ(declined.status, 1);
    {
        auto db = core::Connection::openSqlite(QDir(dir.path()).filePath(QStringLiteral("jxc.db")));
        EXPECT_EQ(test::rowCount(*db, QStringLiteral("jxc_khxx")), 1);
    }
    const auto confirmed = runCli(data
        + QStringList {
            QStringLiteral("--yes"), QStringLiteral("import"), QStringLiteral("customer"), sheet });
    EXPECT_EQ(confirmed.status, 0) << confirmed.err.toStdString();
    EXPECT_TRUE(confirmed.out.endsWith(QStringLiteral("已导入 1 行。\n")));

    const QString out = QDir(dir.path()).filePath(QStringLiteral("goods.xlsx"));
    EXPECT_EQ(runCli(data + QStringList { QStringLiteral("export"), QStringLiteral("goods"), out })
                  .status,
        0);
    const auto rows = core::readXlsx(out);
    ASSERT_TRUE(rows.ok());
    ASSERT_EQ(rows->size(), 2);
    EXPECT_EQ(rows->at(0).first(), QStringLiteral("商品编号"));
    EXPECT_EQ(rows->at(1).first(), QStringLiteral("10000001"));
}
