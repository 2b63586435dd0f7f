#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "tests/documents/entrytest.h"
#include "tests/support/accountset.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::documents;

namespace {

const QString number = QStringLiteral("CJ25031410001");
const QString refusal
    = QStringLiteral("单据：CJ25031410001，的审核人：小李\r\n不允许其他人取消审核！");

} // namespace

// 小王 may uncheck purchase receipts (cggl 10); 小李 checks them but may not uncheck; 小张 may.
class CheckerRuleTest : public test::SessionTest
{
protected:
    void SetUp() override
    {
        SessionTest::SetUp();
        const QString uncheck = QStringLiteral("0000000001");
        test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "cggl", uncheck } });
        test::addOperatorWithRights(session(), QStringLiteral("小李"), { { "cggl", "0000011" } });
        test::addOperatorWithRights(session(), QStringLiteral("小张"), { { "cggl", uncheck } });
    }
    Outcome uncheckBy(const QString &checker)
    {
        return requireUncheckByChecker(session(), number, checker, "cggl", 10);
    }
};

TEST_F(CheckerRuleTest, AnotherOperatorIsRefusedUnlessTheCheckerHoldsTheUncheckRight)
{
    loginAs(QStringLiteral("小王"));
    EXPECT_TRUE(uncheckBy(QStringLiteral("小王")));
    EXPECT_TRUE(uncheckBy(QStringLiteral("小张")));
    EXPECT_TRUE(ui.informed.isEmpty());

    const Outcome refused = uncheckBy(QStringLiteral("小李"));
    EXPECT_EQ(refused.message(), refusal);
    EXPECT_EQ(ui.informed, QStringList { refusal });
    EXPECT_EQ(uncheckBy(QString()).message(),
        QStringLiteral("单据：CJ25031410001，的审核人：\r\n不允许其他人取消审核！"));
}

TEST_F(CheckerRuleTest, OperatorOneHundredAndOneMayAlwaysUncheck)
{
    EXPECT_EQ(session().user().code, QStringLiteral("100001"));
    EXPECT_TRUE(uncheckBy(QStringLiteral("小李")));
    EXPECT_TRUE(uncheckBy(QString()));
}

class HeaderStatusTest : public test::EntryTest
{
};

TEST_F(HeaderStatusTest, CheckMarksTheRowReadAndDropsItsUncheckedCopy)
{
    const Result<QString> saved
        = saveDocument(session(), test::plainKind(), draft({ line("200001", "2", "5") }));
    ASSERT_TRUE(saved.ok());
    const QString bs = saved.value();
    db().exec("insert into jxc_bsd (gl_djh,ck_sn,bs_bsrq,bs_status) values (?,'100001',"
              "'2025-03-14',0)",
        { bs });

    EXPECT_TRUE(requireStatus(session(), test::plainKind(), bs, 0));
    markChecked(session(), test::plainKind(), 1);
    removeUncheckedCopies(session(), test::plainKind(), bs);
    EXPECT_EQ(rows("jxc_bsd", "id,bs_status,bs_checker,bs_chkrq"),
        QStringList { "1|1|admin|2025-03-14" });

    EXPECT_FALSE(requireStatus(session(), test::plainKind(), bs, 0));
    EXPECT_TRUE(requireStatus(session(), test::plainKind(), bs, 1));
    markUnchecked(session(), test::plainKind(), bs);
    EXPECT_EQ(rows("jxc_bsd", "id,bs_status,bs_checker,bs_chkrq"), QStringList { "1|0||" });
    // A workstation that read it checked before this uncheck must not take the document itself
    // for a stray copy.
    removeUncheckedCopies(session(), test::plainKind(), bs);
    EXPECT_EQ(rows("jxc_bsd", "id,bs_status,bs_checker,bs_chkrq"), QStringList { "1|0||" });
    EXPECT_FALSE(requireStatus(session(), test::plainKind(), bs, 1));
    EXPECT_FALSE(requireStatus(session(), test::plainKind(), "BS25031499999", 0));
    EXPECT_EQ(ui.informed,
        (QStringList { texts::alreadyChecked(bs), texts::notChecked(bs),
            texts::documentMissing("BS25031499999") }));
    EXPECT_EQ(texts::alreadyChecked(bs), "单据：" + bs + "已经审核！");
}
