#include "core/oplog.h"
#include "sales/salecheck.h"
#include "tests/sales/salestest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

class SaleCheck : public SalesTest
{
protected:
    // One 件 (10 boxes of batch B1) at 120 and 5 bags at 8, 2 off the whole, 100 paid.
    QString savedSale(double paid = 100, const QString &mode = QStringLiteral("1"))
    {
        sales::SaleDraft d
            = draft({ line(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("120"),
                          QStringLiteral("B1"), QStringLiteral("件")),
                        line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) },
                paid);
        d.entry.discount = 2;
        d.header.settlementMode = mode;
        return saveSale(d);
    }
    int ledgerRows(const QString &number)
    {
        return db()
            .firstValue(
                QStringLiteral("select count(*) from jxc_goodslist where gl_djh=?"), { number })
            .toInt();
    }
};

} // namespace

TEST_F(SaleCheck, PostsMoneyLedgerRowsAndStockInItsOrder)
{
    const QString number = savedSale();
    ui.clear();
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_TRUE(ui.asked.isEmpty());

    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"),
                  QStringLiteral("ls_status,ls_checker,ls_chkrq,ls_yfje,ls_yhje")),
        QStringList { "1|admin|2025-03-14|158|2" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_goodslist"),
            QStringLiteral("gl_flag,g_sn,gl_dj,gl_sl,gl_sysl,gl_zje,gl_je,gl_cbj,gl_zcb,gl_lr,"
                           "gl_lsj,gl_kc,gl_pjjj,gl_kczje,ghs_sn,ghs_name,t_ph"),
            QStringLiteral("gl_djh=?"), { number }),
        (QStringList { "xs|200001|12|10|1|120|120|5|50|70|15|140|5|700|100002|华康药店|B1",
            "xs|200002|8|5|5|40|40|3|15|25|0|35|3|105|100002|华康药店|",
            "xs|00000000|0|0|0|-2|-2|0|0|-2|0|0|0|0|100002|华康药店|" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("g_sn,kc_sl,kc_zsl,kc_xssl"),
                  QStringLiteral("g_sn<>'00000000'")),
        (QStringList { "200001|140|140|10", "200002|35|35|5" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_goods"), QStringLiteral("g_sn,g_kc,g_xspl"),
                  QStringLiteral("g_sn in ('200001','200002')")),
        (QStringList { "200001|140|1", "200002|35|1" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_tkc"), QStringLiteral("g_sn,t_ph,t_sl")),
        (QStringList { "200001|B1|90", "200001|B2|50", "200002||35" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssp"), QStringLiteral("ls_cksl,ls_qxsl,id2-id"),
                  QStringLiteral("g_sn<>'00000000'")),
        (QStringList { "1|0|0", "5|0|0" }));
    EXPECT_EQ(
        rows(QStringLiteral("jxc_ysyfk"),
            QStringLiteral("k_type,k_ghskh,k_djlx,k_djtxt,k_yfje,k_sfje,k_yhje,k_ljje,gl_djh")),
        QStringList { "kh|100002|XS|商品销售单|158|100|0|58|" + number });
    EXPECT_DOUBLE_EQ(partyFigure(), 58);
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_je,xj_kmmc,gl_djh"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "商品销售|100|现金|" + number });
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db(), {}, {}))
        notes.append(entry.note);
    EXPECT_TRUE(notes.contains(QStringLiteral("审核销售单%1，共2种商品").arg(number)));
}

TEST_F(SaleCheck, ASaleAlreadyCheckedIsNotPostedTwiceAndLosesItsStrayCopy)
{
    const QString number = savedSale();
    ASSERT_TRUE(sales::checkSale(session(), number));
    db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,ls_status,kh_sn) values (?,0,?)"),
        { number, QStringLiteral("100002") });
    const QString ledger = test::dumpTable(db(), QStringLiteral("jxc_goodslist")).join('\n');
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(ledgerRows(number), 3);
    EXPECT_EQ(test::dumpTable(db(), QStringLiteral("jxc_goodslist")).join('\n'), ledger);
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"), QStringLiteral("ls_status"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "1" });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ysyfk")), 1);
}

// Settlement mode "0": what is left unpaid becomes the discount and the customer owes nothing.
TEST_F(SaleCheck, ModeZeroWritesTheUnpaidRemainderOffAsDiscount)
{
    const QString number = saveSale([&] {
        sales::SaleDraft d = draft(
            { line(QStringLiteral("200002"), QStringLiteral("10"), QStringLiteral("10")) }, 80);
        d.header.settlementMode = QStringLiteral("0");
        return d;
    }());
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"), QStringLiteral("ls_yfje,ls_sfje,ls_yhje")),
        QStringList { "100|80|20" });
    EXPECT_EQ(rows(QStringLiteral("jxc_ysyfk"), QStringLiteral("k_yfje,k_sfje,k_yhje,k_ljje")),
        QStringList { "80|80|20|0" });
    EXPECT_DOUBLE_EQ(balance(), 0);
}

class SaleLimit : public SaleCheck,
                  public ::testing::WithParamInterface<std::tuple<int, QString, bool>>
{
};

// The limit counts the quantity in the line's own unit; 0 is no limit.
TEST_P(SaleLimit, HoldsTheQuantityInTheLinesUnitAgainstTheGoodsLimit)
{
    const auto [limit, unitQuantity, passes] = GetParam();
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=? where g_sn='200001'"), { limit });
    const QString number = saveSale(draft({ line(QStringLiteral("200001"), unitQuantity,
        QStringLiteral("100"), QStringLiteral("B1"), QStringLiteral("件")) }));
    ui.clear();
    EXPECT_EQ(bool(sales::checkSale(session(), number)), passes);
    const QStringList refusal { QStringLiteral(
        "其中的药品“阿莫西林胶囊 每次最多销售数量为%1”，\r\n\r\n不能超过这个数量！")
                                    .arg(limit) };
    EXPECT_EQ(ui.informed, passes ? QStringList {} : refusal);
    EXPECT_EQ(ledgerRows(number), passes ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(SaleCheck, SaleLimit,
    ::testing::Values(std::tuple { 2, QStringLiteral("3"), false },
        std::tuple { 2, QStringLiteral("2"), true }, std::tuple { 0, QStringLiteral("9"), true }));

TEST_F(SaleCheck, ASaleWithoutLinesIsLeftAlone)
{
    db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_status) values "
                             "('XS25031410009','100002','100001','2025-03-14',0)"));
    const QString before = snapshot();
    const Outcome outcome = sales::checkSale(session(), QStringLiteral("XS25031410009"));
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
    EXPECT_TRUE(outcome.message().isEmpty());
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(SaleCheck, ABatchShortageAtCheckIsAskedAndNoEndsIt)
{
    const QString number = saveSale(draft({ line(QStringLiteral("200001"), QStringLiteral("40"),
        QStringLiteral("12"), QStringLiteral("B2")) }));
    db().exec(QStringLiteral("update jxc_tkc set t_sl=30 where t_ph='B2'"));
    ui.clear();
    ui.answerNext(false);
    const QString before = snapshot();
    EXPECT_FALSE(sales::checkSale(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList {
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：销售将会出现负"
            "库存，是否继续？" });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(SaleCheck, APrepaymentThatDoesNotCoverTheSaleIsAskedAndNoEndsTheCheck)
{
    const QString number = savedSale(150);
    setParameter(QStringLiteral("cs_xsjgts"), 1);
    ui.clear();
    ui.answerNext(false);
    const QString before = snapshot();
    EXPECT_FALSE(sales::checkSale(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList {
            "该客户当前的预付款余额为：0，\r\n\r\n不足以支付本单的金额。\r\n\r\n继续保存吗？" });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(SaleCheck, AnOperatorWithoutTheCheckRightIsRefused)
{
    const QString number = savedSale();
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "xsgl", "1" } });
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(sales::checkSale(session(), number));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("您没有“商品销售审核”的权限！"));
    EXPECT_EQ(ledgerRows(number), 0);
}

TEST_F(SaleCheck, CheckAllAsksOnceAndChecksEveryListedSaleInItsRange)
{
    const QString first = savedSale();
    sales::SaleDraft earlier
        = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) });
    earlier.entry.date = QStringLiteral("2025-03-01");
    const QString older = saveSale(earlier);
    const QString second = savedSale();
    ui.clear();

    ui.answerNext(false);
    EXPECT_FALSE(sales::checkAllSales(
        session(), QStringLiteral("2025-03-10"), QStringLiteral("2025-03-14")));
    EXPECT_EQ(ledgerRows(first), 0);
    const Result<sales::CheckAllSummary> all = sales::checkAllSales(
        session(), QStringLiteral("2025-03-10"), QStringLiteral("2025-03-14"));
    ASSERT_TRUE(all.ok());
    EXPECT_EQ(all->listed, 2);
    EXPECT_EQ(all->checked, 2);
    const QString question = QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？\r\n"
                                            "\r\n（如需审核某个单据，请按右键！）");
    EXPECT_EQ(ui.asked, (QStringList { question, question }));
    EXPECT_EQ(ledgerRows(first), 3);
    EXPECT_EQ(ledgerRows(second), 3);
    EXPECT_EQ(ledgerRows(older), 0);
    EXPECT_EQ(
        sales::saleCheckHook(session(), older, QStringLiteral("2025-03-01")), QStringLiteral("ok"));
    // Nothing listed: nothing asked.
    ui.clear();
    EXPECT_EQ(sales::checkAllSales(session(), QStringLiteral("2025-03-10"), {})->listed, 0);
    EXPECT_TRUE(ui.asked.isEmpty());
}
