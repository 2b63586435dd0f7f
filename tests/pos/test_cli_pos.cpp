// The till's commands of medistock-cli, end to end on the fixture's account set.
#include "tests/pos/postest.h"
#include "tests/support/cli.h"

using namespace medistock;

namespace {

class PosCommands : public test::PosTest
{
protected:
    test::CliRun run(QStringList arguments)
    {
        arguments = QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
            QStringLiteral("2025-03-14") }
            + arguments;
        return test::runCli(arguments);
    }
};

} // namespace

TEST_F(PosCommands, ReportsPrintTabSeparatedRowsUnderTheirCaptions)
{
    members::RetailDocument d = sale({ line(QStringLiteral("200001"), 3, 12) });
    d.employee = QStringLiteral("100002");
    post(d);
    const test::CliRun journal
        = run({ QStringLiteral("pos-report"), QStringLiteral("journal"), QStringLiteral("--from"),
            QStringLiteral("2025-03-14"), QStringLiteral("--to"), QStringLiteral("2025-03-14") });
    ASSERT_EQ(journal.status, 0) << journal.err.toStdString();
    EXPECT_EQ(journal.out,
        "单据号\t销售时间\t单据类型\t会员卡号\t会员姓名\t仓库\t收银员\t经办人\t应收金额\t实收金额\t"
        "现金\t储值卡\t银行卡\t医保卡\t微信\t支付宝\t找零金额\t抹零金额\t优惠金额\t本次积分\t备注\n"
        "XS25031410001\t2025-03-14 "
        "10:00:00\t商品销售单\t\t\t主仓库\tadmin\t王芳\t36\t36\t36\t0\t0\t"
        "0\t0\t0\t0\t0\t0\t0\t\n");
    const test::CliRun ranking = run({ QStringLiteral("pos-report"), QStringLiteral("ranking"),
        QStringLiteral("--from"), QStringLiteral("2025-03-01"), QStringLiteral("--to"),
        QStringLiteral("2025-03-31"), QStringLiteral("--by"), QStringLiteral("class") });
    EXPECT_EQ(ranking.out,
        "名次\t类别编号\t类别名称\t销售数量\t总销售额\t销售利润\t销售利润率(%)\n"
        "1\t01\t西药\t3\t36\t21\t58.33\n");
    const test::CliRun wrong = run({ QStringLiteral("pos-report"), QStringLiteral("ranking"),
        QStringLiteral("--from"), QStringLiteral("2025-03-01"), QStringLiteral("--to"),
        QStringLiteral("2025-03-31"), QStringLiteral("--order"), QStringLiteral("利润") });
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.err, "无法识别的选项值：--order 利润\n");
}

TEST_F(PosCommands, CashInAndOutAreAskedForAndListed)
{
    const test::CliRun refused = run({ QStringLiteral("cash-in"), QStringLiteral("100") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "您确认生成入款单吗 吗？ [是/否] 否\n");
    EXPECT_EQ(run({ QStringLiteral("--yes"), QStringLiteral("cash-in"), QStringLiteral("100"),
                      QStringLiteral("备用金") })
                  .out,
        "RK25031410001\n");
    EXPECT_EQ(
        run({ QStringLiteral("--yes"), QStringLiteral("cash-out"), QStringLiteral("30") }).out,
        "CK25031410001\n");
    const test::CliRun listed
        = run({ QStringLiteral("pos-report"), QStringLiteral("cash"), QStringLiteral("--from"),
            QStringLiteral("2025-03-14"), QStringLiteral("--to"), QStringLiteral("2025-03-14") });
    const QStringList lines = listed.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], "单据号\t开单日期\t入款金额\t出款金额\t类型\t备注\t操作员");
    EXPECT_EQ(lines[1].section(QLatin1Char('\t'), 2), "0\t30\tPOS 出款\t\tadmin");
    EXPECT_EQ(lines[2].section(QLatin1Char('\t'), 2), "100\t0\tPOS 入款\t备用金\tadmin");
}

TEST_F(PosCommands, AReturnIsReprintedUnderItsTitleWithItsLines)
{
    post(sale({ line(QStringLiteral("200001"), 3, 12) }));
    post(retail({}, { line(QStringLiteral("200001"), -1, 12) }, members::RetailKind::Return));
    const test::CliRun reprint = run({ QStringLiteral("pos-reprint"), "XT25031410001" });
    ASSERT_EQ(reprint.status, 0) << reprint.err.toStdString();
    EXPECT_EQ(reprint.out,
        "sTitle\tPOS退货单\nyf\t-12\nsf\t-12\nhybh\t\nhyname\t\nhyye\t0\nhyjf\t0\nhymobile\t\n"
        "商品编号\t商品名称\t单位\t单价\t打折率\t数量\t总金额\t折后单价\n"
        "200001\t阿莫西林胶囊\t盒\t12\t1\t-1\t-12\t12\n");
}
