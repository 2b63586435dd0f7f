// Retail documents written into the books and taken out again.
#include "core/numbering.h"
#include "documents/texts.h"
#include "members/member.h"
#include "members/retail.h"
#include "tests/members/memberstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using members::RetailKind;

namespace {

class Retail : public test::MembersTest
{
protected:
    // A member with 100 on the card buys 3 boxes of batch B1 at 12 with 10% off, 2 bottles of
    // vitamin C at 10 and a box given away: 52.40, less 0.40 rounded off; paid 20 from the card,
    // 10 by WeChat and 50 in cash with 28 change.
    members::RetailDocument splitSale(const QString &member)
    {
        members::RetailLine amoxicillin
            = line(QStringLiteral("200001"), 3, 12, QStringLiteral("B1"));
        amoxicillin.discountRate = 0.9;
        members::RetailLine gift = line(QStringLiteral("200001"), 1, 12, QStringLiteral("B1"));
        gift.giftMarker = QStringLiteral("(赠品)");
        members::RetailDocument d
            = retail(member, { amoxicillin, line(QStringLiteral("200002"), 2, 10), gift });
        d.payment.roundingOff = 0.4;
        d.payment.card = 20;
        d.payment.counter = {};
        d.payment.counter.wechat = 10;
        d.payment.counter.cash = 50;
        d.payment.counter.change = 28;
        return d;
    }
};

} // namespace

TEST_F(Retail, ASaleIsWrittenIntoLedgerStockCashBookAndMember)
{
    test::addEmployee(db(), QStringLiteral("100002"), QStringLiteral("王芳"));
    const QString member = addMember(QStringLiteral("张敏"));
    ASSERT_TRUE(members::setMemberBalance(session(), member, 100, {}));
    members::RetailDocument sale = splitSale(member);
    sale.employee = QStringLiteral("100002");
    const QString number = post(sale);
    EXPECT_EQ(number, "XS25031410001");
    EXPECT_EQ(rows(QStringLiteral("jxc_posxsd"),
                  QStringLiteral("hy_sn,pos_xsrq,ck_sn,pos_yfje,pos_sfje,pos_mlje,a_name,u_sn,"
                                 "pos_xj,pos_czk,pos_wxje,pos_zlje,pos_bcjf,pos_zjf")),
        QStringList {
            member + "|2025-03-14 10:00:00|100001|52|52|0.4|admin|100002|50|20|10|28|13|13" });
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"),
                  QStringLiteral("g_sn,pos_dj,pos_sl,pos_zje,t_zp,pos_dzl,pos_cbj,pos_zcb,pos_zsl,"
                                 "dw_name,t_ph")),
        (QStringList { "200001|12|3|32.4||0.9|5|15|3|盒|B1", "200002|10|2|20||1|2|4|2|瓶|",
            "200001|12|1|0|(赠品)|1|5|5|1|盒|B1" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,gl_fdmc,g_sn,gl_dj,gl_sl,gl_zje,gl_cbj,gl_zcb,gl_lr,"
                                 "gl_kc,u_name,gl_bz"),
                  QStringLiteral("gl_djh=?"), { number }),
        (QStringList { "xs|99|200001|12|3|32.4|5|15|17.4|97|王芳|",
            "xs|99|200002|10|2|20|2|4|16|48|王芳|", "xs|99|200001|12|1|0|5|5|-5|96|王芳|(赠品)" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("g_sn,kc_sl,kc_zsl,kc_xssl"),
                  QStringLiteral("g_sn in ('200001','200002')")),
        (QStringList { "200001|96|96|4", "200002|48|48|2" }));
    EXPECT_EQ(
        rows(QStringLiteral("jxc_tkc"), QStringLiteral("t_sl"), QStringLiteral("g_sn='200001'")),
        QStringList { "96" });
    EXPECT_EQ(rows(QStringLiteral("jxc_goods"), QStringLiteral("g_kc,g_xspl"),
                  QStringLiteral("g_sn='200001'")),
        QStringList { "96|2" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_xjyh"), QStringLiteral("gl_djh,xj_dlx,xj_kmmc,xj_je,xj_ljje"),
            QStringLiteral("gl_djh=?"), { number }),
        (QStringList { number + "|商品销售|现金|22|22", number + "|商品销售|微信|10|10" }));
    // 10 points for the two bottles of special-points goods, and 3 for the other 32 yuan.
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zje,hy_cs,hy_zhje"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "13|52|1|80" });
}

// Everything a sale wrote comes out again. (The level is the one for the lifetime points left; a
// member left with none keeps the level the sale gave him.)
TEST_F(Retail, TheReversalRestoresEveryStoreLedgerRowAndMemberFigure)
{
    const QString member = addMember(QStringLiteral("张敏"), { { QStringLiteral("hy_jf"), 30 } });
    ASSERT_TRUE(members::setMemberBalance(session(), member, 100, {}));
    const QString before = snapshot();
    const QString number = post(splitSale(member));
    ASSERT_NE(snapshot(), before);
    ui.clear();
    ASSERT_TRUE(members::reverseRetailDocument(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("您的操作将取消当前选中的已审核单据：%1，确认吗？").arg(number) });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(Retail, AReturnBringsTheGoodsBackAndRefundsOutOfTheBook)
{
    const QString member = addMember(QStringLiteral("张敏"));
    post(retail(member, { line(QStringLiteral("200001"), 5, 12, QStringLiteral("B1")) }));
    const QString before = snapshot();
    const QString number = post(retail(member,
        { line(QStringLiteral("200001"), -2, 12, QStringLiteral("B1")) }, RetailKind::Return));
    EXPECT_EQ(number, "XT25031410001");
    EXPECT_EQ(
        rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_flag,gl_sl,gl_zje,gl_zcb,gl_kc"),
            QStringLiteral("gl_djh=?"), { number }),
        QStringList { "xt|-2|-24|-10|97" });
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl,kc_xssl"),
                  QStringLiteral("g_sn='200001'")),
        QStringList { "97|3" });
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_kmmc,xj_je"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "顾客退货|现金|-24" });
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zje,hy_cs"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "4|36|0" });
    ASSERT_TRUE(members::reverseRetailDocument(session(), number));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

struct Refusal
{
    const char *name;
    std::function<void(members::RetailDocument &)> change;
    const char *message;
};

class RetailRefusals : public test::MembersTest, public ::testing::WithParamInterface<Refusal>
{
};

TEST_P(RetailRefusals, LeaveTheDatabaseAsItWas)
{
    const QString member = addMember(QStringLiteral("张敏"));
    ASSERT_TRUE(members::setMemberBalance(session(), member, 30, {}));
    members::RetailDocument d = retail(member, { line(QStringLiteral("200001"), 2, 25) });
    GetParam().change(d);
    const QString before = snapshot();
    ui.clear();
    EXPECT_FALSE(members::postRetailDocument(session(), d));
    EXPECT_EQ(ui.informed, QStringList { QString::fromUtf8(GetParam().message) });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

INSTANTIATE_TEST_SUITE_P(Members, RetailRefusals,
    ::testing::Values(Refusal { "ReceivedDiffers",
                          [](members::RetailDocument &d) { d.payment.counter.cash = 49.9; },
                          "实收金额49.9元与应收金额50元不符！" },
        Refusal { "CardBeyondBalance",
            [](members::RetailDocument &d) {
                d.payment.counter.cash = 10;
                d.payment.card = 40;
            },
            "会员卡内余额不足：卡内余额30元，本次储值卡付款40元！" },
        Refusal { "CardWithoutMember",
            [](members::RetailDocument &d) {
                d.member.clear();
                d.payment.counter.cash = 30;
                d.payment.card = 20;
            },
            "没有会员，不能用储值卡付款！" },
        Refusal { "QuantityOfTheWrongSign",
            [](members::RetailDocument &d) { d.kind = RetailKind::Return; },
            "退货单的收款、优惠和抹零金额不能大于0！" },
        Refusal { "ReturnQuantityPositive",
            [](members::RetailDocument &d) {
                d.kind = RetailKind::Return;
                d.payment.counter.cash = -50;
            },
            "第1行：退货单的数量必须小于0！" },
        Refusal { "WrongPrefix",
            [](members::RetailDocument &d) { d.number = QStringLiteral("XT25031410001"); },
            "单据号“XT25031410001”不正确：应为XS开头的13位单据号！" },
        Refusal { "UnknownGoods",
            [](members::RetailDocument &d) { d.lines[0].goods = QStringLiteral("999999"); },
            "第1行：商品编号“999999”不存在！" },
        Refusal { "DiscountLine",
            [](members::RetailDocument &d) { d.lines[0].goods = QStringLiteral("00000000"); },
            "第1行：优惠商品不能作为明细录入，整单优惠请填写优惠金额！" },
        Refusal { "UnknownMember",
            [](members::RetailDocument &d) { d.member = QStringLiteral("999999"); },
            "会员编号“999999”不存在！" },
        Refusal { "NoLines", [](members::RetailDocument &d) { d.lines.clear(); },
            "单据中没有商品，不能保存！" }),
    [](const ::testing::TestParamInfo<Refusal> &param) { return param.param.name; });

TEST_F(Retail, ANumberTheBackOfficeOrTheTillUsedIsRefused)
{
    db().exec(
        QStringLiteral("insert into jxc_lsxsd (gl_djh,ls_status) values ('XS25031410001',0)"));
    members::RetailDocument d = retail({}, { line(QStringLiteral("200001"), 1, 10) });
    EXPECT_EQ(post(d), "XS25031410002");
    d.number = QStringLiteral("XS25031410001");
    EXPECT_FALSE(members::postRetailDocument(session(), d));
    d.number = QStringLiteral("XS25031410002");
    EXPECT_FALSE(members::postRetailDocument(session(), d));
    EXPECT_EQ(ui.informed.last(), documents::texts::numberTaken(QStringLiteral("XS25031410002")));
}

// A disabled card still takes a return; a back-office return numbered after the till's returns
// never takes one of their numbers.
TEST_F(Retail, ADisabledCardTakesReturnsAndReturnNumbersAreShared)
{
    const QString member = addMember(QStringLiteral("张敏"));
    post(retail(member, { line(QStringLiteral("200001"), 2, 60) }));
    ASSERT_TRUE(members::changeMember(session(), member, { { QStringLiteral("hy_status"), 0 } }));
    EXPECT_FALSE(members::postRetailDocument(
        session(), retail(member, { line(QStringLiteral("200001"), 1, 60) })));
    EXPECT_EQ(ui.informed.last(), "会员“张敏”的会员卡已停用，不能使用！");
    post(retail(member, { line(QStringLiteral("200001"), -1, 60) }, RetailKind::Return));
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 6);
    const Result<QString> next = core::nextDocumentNumber(db(), QStringLiteral("jxc_xsthd"),
        QStringLiteral("gl_djh"), QStringLiteral("XT"), QDate(2025, 3, 14));
    EXPECT_EQ(next.value(), "XT25031410002");
}
