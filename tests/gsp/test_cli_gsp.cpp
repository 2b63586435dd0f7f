#include "core/spreadsheet.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"

#include <QDir>

using namespace medistock;

namespace {

// The commands run on the fixture's master file, dated 2025-03-14, answering "Yes"; the
// warehouse 100001 holds two batches of 200001.
class GspCommands : public test::AccountSetTest
{
protected:
    void SetUp() override
    {
        AccountSetTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addGoods(
            db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
        for (const auto &[number, expiry] :
            { std::pair { "A1", "2025-05" }, std::pair { "A2", "2026-01-31" } })
            db().exec(
                QStringLiteral("insert into jxc_tkc (g_sn,t_ph,t_yxq,t_scrq,t_sl,ck_sn) values "
                               "('200001',?,?,'',10,'100001')"),
                { QString::fromLatin1(number), QString::fromLatin1(expiry) });
    }
    test::CliRun run(const QStringList &arguments)
    {
        return test::runCli(
            QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
                QStringLiteral("2025-03-14"), QStringLiteral("--yes") }
            + arguments);
    }
};

} // namespace

TEST_F(GspCommands, RecordsPrintTabSeparatedRowsUnderAHeader)
{
    const test::CliRun expiry = run({ QStringLiteral("gsp"), QStringLiteral("expiry"),
        QStringLiteral("--days"), QStringLiteral("90") });
    ASSERT_EQ(expiry.status, 0) << expiry.err.toStdString();
    EXPECT_EQ(expiry.out,
        QStringLiteral("商品编号\t商品名称\t规格\t单位\t生产厂商\t仓库\t产品批号\t生产日期\t有效期"
                       "至\t库存数量\n"
                       "200001\t阿莫西林胶囊\t\t盒\t\t主仓库\tA1\t\t2025-05\t10\n"));
    const test::CliRun none
        = run({ QStringLiteral("gsp"), QStringLiteral("acceptance"), QStringLiteral("--from"),
            QStringLiteral("2025-01-01"), QStringLiteral("--key"), QStringLiteral("CJ") });
    ASSERT_EQ(none.status, 0);
    EXPECT_EQ(none.out.count(QLatin1Char('\n')), 1);
    EXPECT_TRUE(none.out.startsWith(QStringLiteral("进货日期\t供货商\t商品名称\t")));
}

TEST_F(GspCommands, AnInspectionIsEnteredAndListedWithItsLines)
{
    const test::CliRun added = run({ QStringLiteral("gsp-add"), QStringLiteral("inspection"),
        QStringLiteral("--warehouse"), QStringLiteral("100001"), QStringLiteral("--batch"),
        QStringLiteral("200001/A2"), QStringLiteral("--store"), QStringLiteral("21,55") });
    ASSERT_EQ(added.status, 0) << added.err.toStdString();
    EXPECT_EQ(added.out, QStringLiteral("JC25031410001\n"));
    const test::CliRun lines = run({ QStringLiteral("gsp"), QStringLiteral("inspections"),
        QStringLiteral("--number"), QStringLiteral("JC25031410001") });
    ASSERT_EQ(lines.status, 0);
    EXPECT_EQ(lines.out.split(QLatin1Char('\n')).value(1),
        QStringLiteral("JC25031410001\t200001\t阿莫西林胶囊\t\t盒\t\tA2\t\t2026-01-31\t10\t良好\t\t"
                       "2025-03-14\tadmin"));
    const QString sheet = QDir(folder()).filePath(QStringLiteral("jc.xlsx"));
    ASSERT_EQ(run({ QStringLiteral("gsp"), QStringLiteral("inspections"),
                      QStringLiteral("--export"), sheet })
                  .status,
        0);
    const auto read = core::readXlsx(sheet);
    ASSERT_TRUE(read.ok());
    ASSERT_EQ(read->size(), 3);
    EXPECT_EQ(read->at(1).value(0), QStringLiteral("JC25031410001"));
    EXPECT_EQ(read->at(1).value(4), QStringLiteral("21"));
    EXPECT_EQ(read->at(2).value(0), QStringLiteral("合计"));
    EXPECT_EQ(read->at(2).value(14), QStringLiteral("1"));
}

TEST_F(GspCommands, UsageErrorsAndRefusalsHaveTheirExitStatus)
{
    const test::CliRun unknown = run({ QStringLiteral("gsp"), QStringLiteral("recalls") });
    EXPECT_EQ(unknown.status, 2);
    EXPECT_TRUE(unknown.err.startsWith(QStringLiteral("没有这种记录：recalls")));
    // The staff register keeps no dates.
    EXPECT_EQ(run({ QStringLiteral("gsp"), QStringLiteral("staff"), QStringLiteral("--from"),
                      QStringLiteral("2025-01-01") })
                  .status,
        2);
    const test::CliRun hot = run({ QStringLiteral("gsp-add"), QStringLiteral("temperature"),
        QStringLiteral("--warehouse"), QStringLiteral("100001"), QStringLiteral("--temp"),
        QStringLiteral("70"), QStringLiteral("--humidity"), QStringLiteral("50") });
    EXPECT_EQ(hot.status, 1);
    EXPECT_EQ(hot.err, QStringLiteral("温度“70”超出范围，应在 -50 到 60 之间！\n"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ckwsd")), 0);
}

TEST_F(GspCommands, StaffAreRegisteredTrainedAndCopiedToTheSalesmen)
{
    for (const QString &name : { QStringLiteral("刘敏"), QStringLiteral("赵静") })
        ASSERT_EQ(
            run({ QStringLiteral("gsp-add"), QStringLiteral("employee"), QStringLiteral("--name"),
                    name, QStringLiteral("--sex"), QStringLiteral("女") })
                .status,
            0);
    const test::CliRun plan = run({ QStringLiteral("gsp-add"), QStringLiteral("plan"),
        QStringLiteral("--employee"), QStringLiteral("100001"), QStringLiteral("--employee"),
        QStringLiteral("100002"), QStringLiteral("--topic"), QStringLiteral("GSP知识"),
        QStringLiteral("--planned"), QStringLiteral("2025-03-20") });
    ASSERT_EQ(plan.status, 0) << plan.err.toStdString();
    EXPECT_EQ(plan.out, QStringLiteral("2\n"));
    const test::CliRun training = run({ QStringLiteral("gsp-add"), QStringLiteral("training"),
        QStringLiteral("--plan"), QStringLiteral("2"), QStringLiteral("--held"),
        QStringLiteral("2025-03-20"), QStringLiteral("--score"), QStringLiteral("95") });
    ASSERT_EQ(training.status, 0) << training.err.toStdString();
    const test::CliRun listed = run({ QStringLiteral("gsp"), QStringLiteral("trainings") });
    EXPECT_EQ(listed.out.split(QLatin1Char('\n')).value(1),
        QStringLiteral("2025-03-20\tGSP知识\t2025-03-20\t100002\t赵静\t\t\t95\t\t\tadmin"));

    const test::CliRun copied
        = run({ QStringLiteral("gsp-add"), QStringLiteral("salesman"), QStringLiteral("100002") });
    ASSERT_EQ(copied.status, 0) << copied.err.toStdString();
    const test::CliRun again
        = run({ QStringLiteral("gsp-add"), QStringLiteral("salesman"), QStringLiteral("100002") });
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.err.endsWith(QStringLiteral("业务员中已有“赵静”，不再复制！\n")));
    EXPECT_EQ(db().firstText(QStringLiteral("select count(*) from jxc_user where u_name=?"),
                  { QStringLiteral("赵静") }),
        QStringLiteral("1"));
}

TEST_F(GspCommands, DeletingAsksAndNeedsYes)
{
    ASSERT_EQ(run({ QStringLiteral("gsp-add"), QStringLiteral("temperature"),
                      QStringLiteral("--warehouse"), QStringLiteral("100001"),
                      QStringLiteral("--temp"), QStringLiteral("20"), QStringLiteral("--humidity"),
                      QStringLiteral("50"), QStringLiteral("--time"), QStringLiteral("08:00") })
                  .status,
        0);
    const test::CliRun no = test::runCli({ QStringLiteral("--data"), folder(),
        QStringLiteral("--today"), QStringLiteral("2025-03-14"), QStringLiteral("gsp-delete"),
        QStringLiteral("temperature"), QStringLiteral("1") });
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ckwsd")), 1);
    EXPECT_EQ(
        run({ QStringLiteral("gsp-delete"), QStringLiteral("temperature"), QStringLiteral("1") })
            .status,
        0);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ckwsd")), 0);
}
