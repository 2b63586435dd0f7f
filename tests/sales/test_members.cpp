// The member rules reached from the check and uncheck of a sale that names a member.
#include "members/member.h"
#include "members/settings.h"
#include "sales/salecheck.h"
#include "tests/sales/salestest.h"

using namespace medistock;

namespace {

class SaleMembers : public test::SalesTest
{
protected:
    void SetUp() override
    {
        SalesTest::SetUp();
        members::PointsSettings settings;
        settings.amountPerPoint = 10;
        ASSERT_TRUE(members::savePointsSettings(session(), settings));
        member = members::addMember(
            session(), { { QStringLiteral("hy_name"), QStringLiteral("张敏") } })
                     .value();
        number = saveSale(draft({ line(QStringLiteral("200001"), QStringLiteral("10"),
                                    QStringLiteral("12"), QStringLiteral("B1")) },
            120));
        db().exec(
            QStringLiteral("update jxc_lsxsd set hy_sn=? where gl_djh=?"), { member, number });
    }
    QString figures()
    {
        return rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zjf,hl_sn,hy_zje,hy_cs"),
            QStringLiteral("hy_sn=?"), { member })
            .join(QString());
    }

    QString member;
    QString number;
};

} // namespace

// A sale entered in the back office has no POS record to earn on, nor one to take back.
TEST_F(SaleMembers, ABackOfficeSaleLeavesItsMemberAlone)
{
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(figures(), "0|0|100001|0|0");
    ASSERT_TRUE(sales::uncheckSale(session(), number));
    EXPECT_EQ(figures(), "0|0|100001|0|0");
}

// A sale that came with its POS record earns when checked and gives back when unchecked, and its
// POS rows go with the uncheck.
TEST_F(SaleMembers, ASaleWithItsPosRecordEarnsAndGivesBack)
{
    db().exec(QStringLiteral("insert into jxc_posxsd (gl_djh,hy_sn,pos_xsrq,pos_yfje,pos_czk,"
                             "pos_bcjf,pos_jfye) values (?,?,'2025-03-14 09:30:00',120,0,0,0)"),
        { number, member });
    db().exec(QStringLiteral("insert into jxc_posxssp (gl_djh,g_sn,pos_sl,pos_zje) values "
                             "(?,'200001',10,120)"),
        { number });
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(figures(), "12|12|100002|120|1");
    ASSERT_TRUE(sales::uncheckSale(session(), number));
    EXPECT_EQ(figures(), "0|0|100002|0|0");
    EXPECT_EQ(rows(QStringLiteral("jxc_posxsd"), QStringLiteral("gl_djh")), QStringList {});
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"), QStringLiteral("gl_djh")), QStringList {});
}
