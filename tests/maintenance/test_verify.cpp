// The books' self-check: what the program posts passes, each kind of figure changed by hand is
// found with both figures, and the repair mends it in one go.
#include "maintenance/verify.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "tests/statistics/statisticstest.h"
#include "tests/support/documentrows.h"

#include "purchasing/receipt.h"

namespace medistock::test {
namespace {

class VerifyTest : public StatisticsTest
{
protected:
    // Business over three months in two warehouses: receipts, sales and their returns, a loss,
    // an overflow, a transfer, a receipt backdated behind a sale, and a receipt unchecked again.
    void postBusiness()
    {
        januaryBooks();
        receipt("2025-02-03", { { "200001", "20", "12", "P2" } });
        sale("2025-02-10", { { "200001", "50", "16" } }, QStringLiteral("100003"));
        salesReturn("2025-02-12", { { "200001", "5", "16" } });
        loss("2025-02-15", { { "200002", "2", "4" } });
        overflow("2025-02-16", { { "200002", "1", "4" } });
        transfer("2025-02-20", { { "200001", "10", "10" } }, QStringLiteral("100002"));
        purchaseReturn("2025-02-25", { { "200002", "4", "4" } });
        receipt("2025-02-11", { { "200001", "10", "13" } });
        const QString undone = receipt("2025-03-01", { { "200002", "6", "5" } });
        ui.setDefaultAnswer(true);
        ASSERT_TRUE(purchasing::uncheckPurchaseReceipt(session(), undone));
        sale("2025-03-05", { { "200002", "3", "6" } });
        ui.clear();
        ui.setDefaultAnswer(false);
    }

    // The database but for the log and the difference check's work rows.
    QString books()
    {
        return dumpDatabase(db(),
            { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence"),
                QStringLiteral("jxc_jxchz") });
    }

    QStringList findings()
    {
        const Result<maintenance::VerifyReport> report = maintenance::verifyBooks(session());
        EXPECT_TRUE(report.ok()) << report.message().toStdString();
        QStringList texts;
        if (report)
            for (const maintenance::Finding &f : report->findings)
                texts.append(f.text);
        return texts;
    }

    // A server keeps its own integrity; the check says it did not look.
    QStringList serverNotes()
    {
        if (db().dialect() == core::Dialect::Sqlite)
            return {};
        return { QStringLiteral("数据库完整性由 PostgreSQL 服务器自行保证，未检查。") };
    }

    qint64 ledgerRow(const QString &goods, const QString &date)
    {
        return db()
            .firstValue(QStringLiteral("select id from jxc_goodslist where g_sn=? and "
                                       "ck_sn='100001' and gl_kdrq=?"),
                { goods, date })
            .toLongLong();
    }
};

TEST_F(VerifyTest, BooksPostedByTheProgramPass)
{
    postBusiness();
    const auto report = maintenance::verifyBooks(session());
    ASSERT_TRUE(report.ok());
    EXPECT_EQ(report->ledgerRows, 14);
    EXPECT_EQ(report->balanceRows, 15);
    // The receipt backdated behind the sale of 02-10 moved the average of the rows after it, not
    // the cost that sale was posted at: the difference check shows it apart from the findings.
    EXPECT_EQ(maintenance::reportLines(report.value()),
        QStringList({ QStringLiteral("没有发现问题。"),
            QStringLiteral("进销存差额核对（可用进销存统计的“出库成本价同步”处理）："),
            QStringLiteral("进销存差额（商品 200001 阿莫西林胶囊）：期初加入库减出库 600.2，"
                           "流水账结存金额 592.75，差额：7.45") })
            + serverNotes());
}

TEST_F(VerifyTest, FindsEachFigureChangedByHandWithBothFigures)
{
    postBusiness();
    const qint64 row = ledgerRow(QStringLiteral("200001"), QStringLiteral("2025-02-03"));
    db().exec(
        QStringLiteral("update jxc_goodslist set gl_kc=gl_kc+7,gl_pjjj=3 where id=?"), { row });
    db().exec(
        QStringLiteral("update jxc_kcsp set kc_sl=99 where g_sn='200002' and ck_sn='100001'"));
    db().exec(QStringLiteral("update jxc_ysyfk set k_ljje=k_ljje+100 where id=(select min(id) from "
                             "jxc_ysyfk where k_type='kh')"));
    EXPECT_EQ(findings(),
        QStringList({
            QStringLiteral(
                "仓库库存（商品 200002 板蓝根颗粒，仓库 100001 主仓库）：库存 99，流水账合计 32"),
            QStringLiteral("流水账 CJ25020310001 2025-02-03（商品 200001 阿莫西林胶囊，仓库 100001 "
                           "主仓库）：结存数量 帐上 97，重算 90；成本均价 帐上 3，重算 10.44"),
            QStringLiteral("应收应付帐（客户 100002 华康药店） XS25012010001 2025-01-20：余额 帐上 "
                           "610，重算 510"),
        }));
}

TEST_F(VerifyTest, RepairMendsWhatItFoundAndASecondCheckFindsNothing)
{
    postBusiness();
    const QString before = books();
    const qint64 row = ledgerRow(QStringLiteral("200001"), QStringLiteral("2025-02-12"));
    db().exec(QStringLiteral("update jxc_goodslist set gl_kczje=1 where id=?"), { row });
    db().exec(QStringLiteral("update jxc_tkc set t_sl=t_sl-3 where g_sn='200001' and t_ph='P2'"));
    db().exec(QStringLiteral("update jxc_goods set g_kc=0 where g_sn='200002'"));
    db().exec(QStringLiteral("update jxc_xjyh set xj_ljje=5 where id=(select max(id) from jxc_xjyh "
                             "where xj_kmmc='现金')"));
    ASSERT_EQ(findings().size(), 4);

    ui.answerNext(true);
    const Result<QStringList> repaired = maintenance::repairBooks(session());
    ASSERT_TRUE(repaired.ok()) << repaired.message().toStdString();
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("核对发现 4 处可以修复的问题。\r\n是否重算流水账和往来余额，"
                                     "并按流水账修正库存？") });
    EXPECT_EQ(repaired.value(),
        QStringList({
            QStringLiteral("流水账（商品 200001 阿莫西林胶囊，仓库 100001 主仓库）：从 2025-02-12 "
                           "起重算，改写 1 行"),
            QStringLiteral("现金银行帐（帐户 现金） XS25030510001 2025-03-05：余额 帐上 5，重算 "
                           "0：从 2025-03-05 起重算余额"),
            QStringLiteral(
                "批次库存（商品 200001 阿莫西林胶囊，仓库 100001 主仓库，批号 P2，"
                "有效期至 2027-11-30，生产日期 2024-12-01）：库存 17，流水账合计 20：库存改为 20"),
            QStringLiteral(
                "商品库存（商品 200002 板蓝根颗粒）：库存 0，流水账合计 32：库存改为 32"),
        }));
    EXPECT_EQ(findings(), QStringList());
    // The books are as the program left them, but for the log row of the repair.
    EXPECT_EQ(differences(before, books()), QStringList());
}

TEST_F(VerifyTest, ARepairFromAnEarlierDateRerunsTheAveragesOnFromThere)
{
    postBusiness();
    // The receipt of 02-11 was backdated behind the sale of 02-10: its rerun carried the
    // average's sums on from 02-11. Repairing a row of 02-03 reruns from 02-03 instead, which
    // gives the later rows the averages a rerun from there gives; the check then agrees.
    const qint64 row = ledgerRow(QStringLiteral("200001"), QStringLiteral("2025-02-03"));
    db().exec(QStringLiteral("update jxc_goodslist set gl_kczje=1 where id=?"), { row });
    ui.answerNext(true);
    ASSERT_TRUE(maintenance::repairBooks(session()).ok());
    EXPECT_EQ(findings(), QStringList());
    EXPECT_EQ(db().firstValue(QStringLiteral("select gl_pjjj from jxc_goodslist where "
                                             "gl_djh='CJ25021110001'"))
                  .toDouble(),
        10.7);
}

TEST_F(VerifyTest, RepairAnsweredNoChangesNothing)
{
    postBusiness();
    db().exec(QStringLiteral("update jxc_kcsp set kc_sl=1 where g_sn='200001' and ck_sn='100002'"));
    const QString before = books();
    ui.answerNext(false);
    const Result<QStringList> repaired = maintenance::repairBooks(session());
    ASSERT_TRUE(repaired.ok());
    EXPECT_EQ(repaired.value(), QStringList());
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_EQ(differences(before, books()), QStringList());
}

TEST_F(VerifyTest, ABatchRowDeletedByHandIsMadeAgain)
{
    postBusiness();
    db().exec(QStringLiteral("delete from jxc_tkc where g_sn='200001' and t_ph='P2'"));
    EXPECT_EQ(findings(),
        QStringList {
            QStringLiteral("批次库存（商品 200001 阿莫西林胶囊，仓库 100001 主仓库，批号 P2，"
                           "有效期至 2027-11-30，生产日期 2024-12-01）：库存 0，流水账合计 20") });
    ui.answerNext(true);
    ASSERT_TRUE(maintenance::repairBooks(session()).ok());
    EXPECT_EQ(db().firstValue(QStringLiteral("select t_sl from jxc_tkc where g_sn='200001' and "
                                             "t_ph='P2'"))
                  .toDouble(),
        20);
    EXPECT_EQ(findings(), QStringList());
}

TEST_F(VerifyTest, NeedsItsRightAndSkipsTheDifferenceCheckWithoutThatOne)
{
    postBusiness();
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "tjgl", "0000000000000" } });
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(maintenance::verifyBooks(session()).ok());
    EXPECT_EQ(ui.informed, QStringList { shell::noRightText("库存核对") });

    loginAs(QStringLiteral("admin"));
    test::addOperatorWithRights(
        session(), QStringLiteral("小李"), { { "kcgl", "00000000000000001" } });
    loginAs(QStringLiteral("小李"));
    const auto report = maintenance::verifyBooks(session());
    ASSERT_TRUE(report.ok());
    EXPECT_EQ(report->findings.size(), 0);
    EXPECT_EQ(report->notes,
        serverNotes()
            + QStringList { QStringLiteral("没有“进销存统计”的权限，未做进销存差额核对。") });
}

} // namespace
} // namespace medistock::test
