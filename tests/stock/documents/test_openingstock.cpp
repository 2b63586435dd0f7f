// Opening stock: posted as ledger rows "qc" through the stock engine, removed again exactly, and
// its commands.
#include "stock/documents/openingstock.h"
#include "tests/stock/documents/stockdocstest.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"

#include <QFile>

using namespace medistock;
using namespace medistock::test;

class OpeningStockTest : public StockDocsTest
{
protected:
    // 5 of 板蓝根颗粒 at 10 in G2 into the main warehouse (already 10 at 8 in G1), 3 at 9 in G3
    // into the branch.
    stock::OpeningDraft opening() const
    {
        stock::OpeningDraft draft;
        draft.date = QStringLiteral("2025-03-14");
        documents::LineDraft main
            = line(granules, QStringLiteral("5"), QStringLiteral("10"), QStringLiteral("G2"));
        documents::LineDraft branchLine
            = line(granules, QStringLiteral("3"), QStringLiteral("9"), QStringLiteral("G3"));
        draft.lines = { { mainStore, main }, { branch, branchLine } };
        return draft;
    }

    QString post(const stock::OpeningDraft &draft)
    {
        const Result<QString> posted = stock::postOpeningStock(session(), draft);
        EXPECT_TRUE(posted.ok()) << posted.message().toStdString();
        return posted.ok() ? posted.value() : QString();
    }
};

TEST_F(OpeningStockTest, AnEntryIsPostedAsQcRowsIntoEveryStore)
{
    const QString number = post(opening());
    EXPECT_EQ(number, QStringLiteral("QC25031410001"));
    EXPECT_EQ(
        rows("select gl_flag,gl_kdrq,ck_sn,ck_name,gl_sl,gl_dj,gl_je,gl_zje,t_ph,gl_kc,gl_pjjj,"
             "gl_kczje,ghs_name,a_name,gl_checker from jxc_goodslist where gl_djh=? order by id",
            { number }),
        (QStringList {
            "qc|2025-03-14|100001|主仓库|5|10|50|50|G2|15|8.67|130.05|期初建账|admin|admin",
            "qc|2025-03-14|100002|分店仓库|3|9|27|27|G3|3|9|27|期初建账|admin|admin" }));
    EXPECT_EQ(rows("select ck_sn,kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=? order by ck_sn",
                  { granules }),
        (QStringList { "100001|15|15|8.67", "100002|3|3|9" }));
    EXPECT_EQ(
        rows("select ck_sn,t_ph,t_sl from jxc_tkc where g_sn=? order by ck_sn,t_ph", { granules }),
        (QStringList { "100001|G1|10", "100001|G2|5", "100002|G3|3" }));
    EXPECT_EQ(rows("select g_kc,g_cgpl from jxc_goods where g_sn=?", { granules }),
        QStringList { "18|1" });
    EXPECT_EQ(lastLog(), QStringLiteral("商品期初建账QC25031410001，共2种商品"));
    EXPECT_EQ(post(opening()), QStringLiteral("QC25031410002"));
    const QList<stock::OpeningEntry> entries = stock::openingEntries(session());
    ASSERT_EQ(entries.size(), 4);
    EXPECT_EQ(entries[1].number, number);
    EXPECT_EQ(entries[1].warehouseName, QStringLiteral("分店仓库"));
    EXPECT_EQ(entries[1].rows, 1);
    EXPECT_EQ(entries[1].amount, 27);
}

// Each refusal is told in the words of the document checks and leaves every store as it was.
TEST_F(OpeningStockTest, ARefusedEntryWritesNothing)
{
    const QString before = everything();
    stock::OpeningDraft draft = opening();
    draft.lines[1].warehouse = QStringLiteral("100009");
    EXPECT_FALSE(stock::postOpeningStock(session(), draft).ok());
    draft = opening();
    draft.lines[1].line.quantity = QStringLiteral("三");
    EXPECT_FALSE(stock::postOpeningStock(session(), draft).ok());
    draft = opening();
    draft.lines[0].line.expiry = QStringLiteral("2024-01-01"); // before its production date
    EXPECT_FALSE(stock::postOpeningStock(session(), draft).ok());
    draft = opening();
    draft.lines = {};
    EXPECT_FALSE(stock::postOpeningStock(session(), draft).ok());
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("仓库编号“100009”不存在！"),
            QStringLiteral("第2行：数量“三”不是数字！"),
            QStringLiteral("第1行：有效期不能早于生产日期！"),
            QStringLiteral("单据中没有商品，不能保存！") }));
    EXPECT_EQ(changedSince(before), QStringList());

    addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("qtcz"), QStringLiteral("111111111111111") } });
    const QString withOperator = everything();
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(stock::postOpeningStock(session(), opening()).ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("您没有“商品期初建账”的权限！") });
    EXPECT_EQ(changedSince(withOperator), QStringList());
}

TEST_F(OpeningStockTest, RemovingAnEntryTakesBackExactlyWhatItPosted)
{
    const QString before = everything();
    const QString number = post(opening());
    ui.answerNext(false);
    EXPECT_FALSE(stock::removeOpeningStock(session(), number).ok());
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral(
            "您的操作将删除期初建账单据：QC25031410001，其中的库存将被冲回，确认吗？") });
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_goodslist")), 5);
    ui.answerNext(true);
    EXPECT_TRUE(stock::removeOpeningStock(session(), number).ok());
    EXPECT_EQ(lastLog(), QStringLiteral("删除商品期初建账QC25031410001"));
    // Store rows the entry created stay behind empty, as after any reversal; nothing else
    // differs from before the entry.
    EXPECT_EQ(
        rows("select ck_sn,t_ph,t_sl from jxc_tkc where g_sn=? order by ck_sn,t_ph", { granules }),
        (QStringList { "100001|G1|10", "100001|G2|0", "100002|G3|0" }));
    EXPECT_EQ(
        rows("select ck_sn,kc_sl,kc_zsl from jxc_kcsp where g_sn=? order by ck_sn", { granules }),
        (QStringList { "100001|10|10", "100002|0|0" }));
    QStringList changed = changedSince(before);
    changed.removeIf([](const QString &line) {
        return line.startsWith(QLatin1String("+  "))
            && (line.contains(QLatin1String("|G2|")) || line.contains(QLatin1String("|G3|"))
                || line.endsWith(QLatin1String("|200002|100002")));
    });
    EXPECT_EQ(changed, QStringList());

    ui.clear();
    EXPECT_FALSE(stock::removeOpeningStock(session(), number).ok());
    EXPECT_FALSE(stock::removeOpeningStock(session(), QStringLiteral("CJ1")).ok());
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("期初建账单据QC25031410001不存在！"),
            QStringLiteral("期初建账单据CJ1不存在！") }));
}

// A batch the entry brought that has been issued meanwhile is checked like any issue from stock.
TEST_F(OpeningStockTest, RemovingFromABatchThatHoldsLessIsRefusedOrAsked)
{
    const QString number = post(opening());
    postSale(QStringLiteral("XS1"), QStringLiteral("2025-03-14"),
        { granules, 4, 12, 1, QStringLiteral("G2") });
    const QString before = everything();
    setParameter(QStringLiteral("cs_kc"), 0);
    EXPECT_FALSE(stock::removeOpeningStock(session(), number).ok());
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral(
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200002”：不能出库！") });
    EXPECT_TRUE(ui.asked.isEmpty());
    setParameter(QStringLiteral("cs_kc"), 1);
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(stock::removeOpeningStock(session(), number).ok());
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“2000"
                                     "02”：出库将会出现负库存，是否继续？") });
    EXPECT_EQ(changedSince(before), QStringList());
}

TEST_F(OpeningStockTest, TheCommandsPostListAndRemove)
{
    QFile file(folder() + QStringLiteral("/opening.jsonl"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        R"({"g_sn":"200002","ck_sn":"100001","sl":5,"dj":"10","t_ph":"G2","t_scrq":"2024-12-01","t_yxq":"2027-11-30"}

{"g_sn":"200002","ck_sn":"100002","sl":"3","dj":9,"t_ph":"G3","t_scrq":"2024-12-01","t_yxq":"2027-11-30"}
)");
    file.close();
    const QStringList global { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
        QStringLiteral("2025-03-14") };
    const CliRun posted
        = runCli(global + QStringList { QStringLiteral("opening-stock"), file.fileName() });
    ASSERT_EQ(posted.status, 0) << posted.err.toStdString();
    EXPECT_EQ(posted.out, QStringLiteral("QC25031410001\n"));
    reopen();
    EXPECT_EQ(
        rows("select ck_sn,gl_sl,gl_dj,gl_kc from jxc_goodslist where gl_flag='qc' order by id"),
        (QStringList { "100001|5|10|15", "100002|3|9|3" }));
    EXPECT_EQ(runCli(global + QStringList { QStringLiteral("opening-stock-list") }).out,
        QStringLiteral("单据号\t日期\t仓库编号\t仓库\t品种数\t数量\t金额\t操作员\n"
                       "QC25031410001\t2025-03-14\t100001\t主仓库\t1\t5\t50\tadmin\n"
                       "QC25031410001\t2025-03-14\t100002\t分店仓库\t1\t3\t27\tadmin\n"));
    EXPECT_EQ(runCli(global
                  + QStringList { QStringLiteral("--yes"), QStringLiteral("opening-stock-remove"),
                      QStringLiteral("QC25031410001") })
                  .out,
        QStringLiteral("已删除：QC25031410001\n"));

    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"g_sn\":\"200002\",\"ck_sn\":\"100001\",\"sl\":5,\"dj\":10}\n[1,2]\n");
    file.close();
    const CliRun broken
        = runCli(global + QStringList { QStringLiteral("opening-stock"), file.fileName() });
    EXPECT_EQ(broken.status, 2);
    EXPECT_TRUE(broken.err.contains(QStringLiteral("第2行不是 JSON 对象")))
        << broken.err.toStdString();
    reopen();
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_goodslist")), 3);
}
