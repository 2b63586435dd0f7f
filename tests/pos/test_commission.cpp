// The sales commissions: salesmen by amount and by profit, goods per piece, by amount and by
// profit, and the back office's receivables for the same salesmen.
#include "pos/commission.h"
#include "tests/pos/postest.h"
#include "tests/support/documentrows.h"

using namespace medistock;

namespace {

const pos::DateRange march { QStringLiteral("2025-03-01"), QStringLiteral("2025-03-31") };

class Commission : public test::PosTest
{
protected:
    // 王芳 earns 5% of the amount, 李强 10% of the profit above 2 a unit; vitamin C pays 0.5 a
    // bottle, masks 3% of the amount, 止咳糖浆 10% of the profit; the default employee has no rate.
    void SetUp() override
    {
        PosTest::SetUp();
        test::addGoods(
            db(), { .code = QStringLiteral("200004"), .name = QStringLiteral("止咳糖浆") });
        receive(QStringLiteral("200004"), 10, 6);
        setCommission(QStringLiteral("100002"), 0, 5);
        setCommission(QStringLiteral("100003"), 1, 10, 2);
        setGoodsCommission(QStringLiteral("200002"), 1, 0.5);
        setGoodsCommission(QStringLiteral("200003"), 2, 3);
        setGoodsCommission(QStringLiteral("200004"), 3, 10);
    }

    void sell(const QString &employee, const QList<members::RetailLine> &lines,
        members::RetailKind kind = members::RetailKind::Sale)
    {
        members::RetailDocument d = retail({}, lines, kind);
        d.employee = employee;
        post(d);
    }

    QStringList worked(const pos::CommissionFilter &filter)
    {
        const Result<QList<pos::CommissionRow>> rows = pos::posCommission(session(), filter);
        EXPECT_TRUE(rows) << rows.message().toStdString();
        QStringList shown;
        for (const pos::CommissionRow &r : rows.value()) {
            QStringList cells { r.employee, r.name, r.kind, QString::number(r.flag) };
            for (const double n : { r.sales, r.base, r.profit, r.profitBase, r.quantity,
                     r.commission, r.minimumProfit, r.rate })
                cells << core::plainNumber(n);
            shown << cells.join(QLatin1Char('|'));
        }
        return shown;
    }
};

} // namespace

// Gift lines earn nothing; goods with a commission of their own are left to the goods kinds; the
// profit above the minimum is taken at the price before discount, a return taking it back.
TEST_F(Commission, SalesmenAndGoodsEarnByTheirOwnRules)
{
    sell(QStringLiteral("100002"),
        { line(QStringLiteral("200001"), 10, 12), line(QStringLiteral("200002"), 4, 10),
            gift(QStringLiteral("200001"), 1, 12) });
    members::RetailLine discounted = line(QStringLiteral("200001"), 5, 12);
    discounted.discountRate = 0.9;
    sell(QStringLiteral("100003"),
        { discounted, line(QStringLiteral("200003"), 10, 6),
            line(QStringLiteral("200004"), 2, 20) });
    sell(QStringLiteral("100003"), { line(QStringLiteral("200001"), -1, 12) },
        members::RetailKind::Return);
    sell(QStringLiteral("100003"), { line(QStringLiteral("200001"), 2, 6) });
    sell(QStringLiteral("100001"), { line(QStringLiteral("200001"), 1, 12) });

    const QStringList expected { "100002|王芳|业务员按销售额提成|101|120|120|70|0|0|6|0|5",
        "100002|王芳|商品按件提成|3001|40|40|32|0|4|2|0|0",
        "100003|李强|业务员按利润提成|201|54|0|24|20|0|2|2|10",
        "100003|李强|商品按金额提成|4001|60|60|30|0|0|1.8|0|0",
        "100003|李强|商品按利润提成|5001|40|0|28|28|0|2.8|0|0" };
    EXPECT_EQ(worked({ march, {} }), expected);
    EXPECT_EQ(rows(QStringLiteral("jxc_jxchz"), QStringLiteral("a_name")),
        QStringList(5, QStringLiteral("admin")));
    // Worked out again, the operator's rows are replaced, not added to.
    EXPECT_EQ(worked({ march, {} }), expected);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_jxchz")), 5);
    EXPECT_EQ(worked({ march, QStringLiteral("100002") }), QStringList {});
}

TEST_F(Commission, AnEmployeeWithoutARateGetsNoRow)
{
    setCommission(QStringLiteral("100002"), 0, 0);
    sell(QStringLiteral("100002"), { line(QStringLiteral("200001"), 10, 12) });
    sell(QStringLiteral("100001"), { line(QStringLiteral("200001"), 1, 12) });
    EXPECT_EQ(worked({ march, {} }), QStringList {});
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_jxchz")), 0);
}

// 王芳's customers were charged 200 and paid 150 of it, then 30 of an older debt; 李强 sold 10
// boxes in the back office for 120, 100 of it paid.
TEST_F(Commission, TheBackOfficesSalesEarnOnWhatWasPaid)
{
    db().exec(QStringLiteral(
        "insert into jxc_ysyfk (gl_djh,k_rq,k_type,k_ghskh,u_sn,k_yfje,k_sfje,k_qcje,k_flag) "
        "values ('XS25031010001','2025-03-10','kh','100001','100002',200,150,0,1),"
        "('SK25031210001','2025-03-12','kh','100001','100002',0,30,0,1),"
        "('XS25031010002','2025-03-10','kh','100001','100003',120,100,0,1),"
        "('XS25022810001','2025-02-28','kh','100001','100002',500,0,0,1)"));
    db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,u_sn,ls_status) values "
                             "('XS25031010002','100003',1)"));
    db().exec(QStringLiteral(
        "insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,gl_sl,gl_dj,gl_cbj,gl_zje,gl_lr,"
        "gl_fdmc,ck_sn) values ('xs','XS25031010002','2025-03-10','200001',10,12,5,120,70,'',"
        "'100001')"));
    EXPECT_EQ(worked({ march, {} }),
        (QStringList { "100002|王芳|业务员按销售额提成|1001|200|180|0|0|0|9|0|5",
            "100002|王芳|业务员按销售额提成欠款|1002|200|20|0|0|0|1|0|5",
            "100003|李强|业务员按利润提成|2001|120|100|70|50|0|5|2|10" }));
    // Paid in full: nothing waits, so no 1002 row.
    db().exec(QStringLiteral("update jxc_ysyfk set k_sfje=170 where gl_djh='XS25031010001'"));
    EXPECT_EQ(worked({ march, {} }).filter(QStringLiteral("|1002|")), QStringList {});
}
