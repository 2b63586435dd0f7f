#include "accounts/cashbook.h"
#include "accounts/registrations.h"
#include "core/oplog.h"
#include "shell/operators.h"
#include "tests/accounts/accountstest.h"

#include <QSqlRecord>

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;
using medistock::test::rowCount;

class RegistrationsTest : public AccountsTest
{
protected:
    QStringList rows(const QString &sql, const QVariantList &params = {})
    {
        QStringList lines;
        for (const QSqlRecord &row : db().rows(sql, params)) {
            QStringList values;
            for (int i = 0; i < row.count(); ++i)
                values.append(row.value(i).toString());
            lines.append(values.join(QLatin1Char('|')));
        }
        return lines;
    }
    QString lastLog()
    {
        const auto entries = core::readLog(db(), {}, {});
        return entries.isEmpty() ? QString() : entries.last().note;
    }
    RegistrationDraft payment(double paid, double change)
    {
        RegistrationDraft draft = collection(paid, change);
        draft.kind = RegistrationKind::Payment;
        draft.party = supplier();
        draft.note = QStringLiteral("付三月货款");
        return draft;
    }
};

TEST_F(RegistrationsTest, ACollectionWithWrittenOffChangeMakesTwoLedgerRows)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 100.5);

    const QString number = checkedRegistration(collection(100, 0.5));

    EXPECT_EQ(number, QStringLiteral("SK25031410001"));
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,gl_djh2,k_yfje,k_sfje,k_ljje,k_fkfs,k_type,k_djlx,"
                                  "k_djtxt,k_note from jxc_ysyfk order by k_rq,id")),
        (QStringList { "XS25030110001||100.5|0|100.5|现金|kh|XS|商品销售单|",
            "SK25031410001||0|100|0.5|现金|kh|SK|收款单|三月货款",
            "YS25031410001|SK25031410001|-0.5|0|0|应收款|kh|YS|增加应收款(抹零)|"
            "收款单抹零登记：三月货款" }));
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 0);
    EXPECT_EQ(rows(QStringLiteral("select gl_flag,gl_djh,gl_djh2,gl_kdrq,g_sn,g_name,g_jm,gl_sl,"
                                  "gl_zje,gl_je,gl_lr,ghs_sn,ghs_name from jxc_goodslist")),
        QStringList {
            "xs|SK25031410001|YS25031410001|2025-03-14|00000000|优惠商品|YHSP|0|-0.5|-0.5|"
            "-0.5|100002|仁和医院" });
    EXPECT_EQ(rows(QStringLiteral("select xj_dlx,xj_je,xj_ljje,xj_kmmc,ghs_name,xj_note from "
                                  "jxc_xjyh where gl_djh=?"),
                  { number }),
        QStringList { "收款单|100|100|现金|仁和医院|三月货款" });
    EXPECT_EQ(rows(QStringLiteral("select k_check,k_checker,k_chkrq from jxc_ysyfk_dj")),
        QStringList { "1|admin|2025-03-14" });
    EXPECT_EQ(lastLog(), QStringLiteral("审核收款，客户：仁和医院，金额：100"));
}

TEST_F(RegistrationsTest, APaymentMirrorsItOnTheSupplierSide)
{
    owe(PartyKind::Supplier, supplier(), "2025-03-01", 80.5);

    const QString number = checkedRegistration(payment(80, 0.5));

    EXPECT_EQ(number, QStringLiteral("FK25031410001"));
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,k_yfje,k_sfje,k_ljje,k_fkfs,k_type,k_djlx,k_djtxt,"
                                  "k_note from jxc_ysyfk where gl_djh2=?"),
                  { number }),
        QStringList {
            "YF25031410001|-0.5|0|0|应付款|ghs|YF|增加应付款(抹零)|付款单抹零登记：付三月货款" });
    EXPECT_EQ(figure(PartyKind::Supplier, supplier()), 0);
    EXPECT_EQ(rows(QStringLiteral("select gl_flag,gl_zje from jxc_goodslist")),
        QStringList { "cj|-0.5" });
    EXPECT_EQ(rows(QStringLiteral("select xj_dlx,xj_je from jxc_xjyh where gl_djh=?"), { number }),
        QStringList { "付款单|-80" });
    EXPECT_EQ(cashBalance(db(), QStringLiteral("现金")), -80);
    EXPECT_EQ(lastLog(), QStringLiteral("审核付款，供货商：华东医药，金额：80"));
}

// Check followed by uncheck of every kind leaves the ledger, the cash book, the journal, the
// party's figure and the registration as they were; later rows are there to be shifted back.
class CheckThenUncheck : public RegistrationsTest,
                         public ::testing::WithParamInterface<RegistrationKind>
{
};

TEST_P(CheckThenUncheck, RestoresEveryBalanceAndStatus)
{
    const RegistrationKind kind = GetParam();
    const PartyKind side = registrationParty(kind);
    const QString party = side == PartyKind::Customer ? customer() : supplier();
    owe(side, party, "2025-03-01", 300);
    owe(side, party, "2025-03-20", 50);
    RegistrationDraft later = collection(20, 0, "2025-03-21");
    later.kind
        = side == PartyKind::Customer ? RegistrationKind::Collection : RegistrationKind::Payment;
    later.party = party;
    checkedRegistration(later);

    RegistrationDraft draft = collection(120, 0.5, "2025-03-10");
    draft.kind = kind;
    draft.party = party;
    draft.due = 40;
    const auto saved = saveRegistration(session(), draft);
    ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
    const QString before = snapshot();
    const std::vector<double> balances = ledgerBalances(side, party);

    ASSERT_TRUE(checkRegistration(session(), saved.value()));
    ASSERT_NE(ledgerBalances(side, party), balances);
    ui.answerNext(true);
    ASSERT_TRUE(uncheckRegistration(session(), saved.value()));

    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(ledgerBalances(side, party), balances);
    EXPECT_EQ(figure(side, party), balances.back());
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("您的操作将取消当前选中的已审核单据：") + saved.value()
            + QStringLiteral("，确认吗？") });
}

INSTANTIATE_TEST_SUITE_P(Kinds, CheckThenUncheck,
    ::testing::Values(RegistrationKind::Receivable, RegistrationKind::Collection,
        RegistrationKind::Payable, RegistrationKind::Payment));

TEST_F(RegistrationsTest, OnlyTheCheckerOrOperator100001MayUncheck)
{
    ASSERT_TRUE(shell::addOperator(session(), QStringLiteral("小李"), QStringLiteral("100001")));
    const QString byAdmin = checkedRegistration(collection(10));
    loginAs(QStringLiteral("小李"));
    const QString before = snapshot();

    const Outcome refused = uncheckRegistration(session(), byAdmin);

    EXPECT_EQ(refused.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(refused.message(),
        QStringLiteral("单据：SK25031410001，的审核人：admin\r\n"
                       "不允许其他人取消审核！"));
    EXPECT_EQ(ui.informed, QStringList { refused.message() });
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(snapshot(), before);

    const QString byLi = checkedRegistration(collection(20));
    loginAs(QStringLiteral("admin"));
    ui.answerNext(true);
    EXPECT_TRUE(uncheckRegistration(session(), byLi));
}

TEST_F(RegistrationsTest, RefusalsLeaveTheDatabaseAsItWas)
{
    const QString number = checkedRegistration(collection(10));
    const QString before = snapshot();
    RegistrationDraft unknown = collection(10);
    unknown.party = QStringLiteral("999999");
    RegistrationDraft empty = collection(0);
    RegistrationDraft noAccount = collection(10);
    noAccount.account = QStringLiteral("农行");
    RegistrationDraft changed = collection(30);
    changed.number = number;

    const QList<std::pair<Outcome, QString>> cases {
        { checkRegistration(session(), number), "单据：SK25031410001已经审核！" },
        { deleteRegistration(session(), number), "单据：SK25031410001已经审核，不能删除！" },
        { saveRegistration(session(), unknown).outcome(), "客户“999999”不存在！" },
        { saveRegistration(session(), empty).outcome(), "金额不能为零！" },
        { saveRegistration(session(), noAccount).outcome(), "账户“农行”不存在！" },
        { saveRegistration(session(), changed).outcome(),
            "单据：SK25031410001已经审核，不能修改！" },
        { checkRegistration(session(), "SK25031499999"), "单据：SK25031499999不存在！" },
    };
    for (const auto &[outcome, text] : cases) {
        EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
        EXPECT_EQ(outcome.message(), text);
    }
    ui.answerNext(false);
    EXPECT_FALSE(uncheckRegistration(session(), number));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(RegistrationsTest, AnUncheckedRegistrationIsRewrittenUnderTheNumberOfItsDate)
{
    const auto saved = saveRegistration(session(), collection(10));
    ASSERT_TRUE(saved.ok());
    RegistrationDraft draft = collection(15);
    draft.number = saved.value();

    EXPECT_EQ(saveRegistration(session(), draft).value(), QStringLiteral("SK25031410001"));
    draft.date = QStringLiteral("2025-03-16");
    EXPECT_EQ(saveRegistration(session(), draft).value(), QStringLiteral("SK25031610001"));
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,k_rq,k_sfje,k_check from jxc_ysyfk_dj")),
        QStringList { "SK25031610001|2025-03-16|15|0" });

    EXPECT_TRUE(deleteRegistration(session(), QStringLiteral("SK25031610001")));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ysyfk_dj")), 0);
}

TEST_F(RegistrationsTest, ANewDateMovesACheckedCollectionsRowsAndRecalculatesBothBooks)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 100.5);
    owe(PartyKind::Customer, customer(), "2025-03-20", 10);
    const QString number = checkedRegistration(collection(100, 0.5));
    EXPECT_EQ(ledgerBalances(PartyKind::Customer, customer()),
        (std::vector<double> { 100.5, 0.5, 0, 10 }));

    ASSERT_TRUE(changeRegistrationDate(session(), number, QStringLiteral("2025-03-25")).ok());

    EXPECT_EQ(rows(QStringLiteral("select gl_djh,k_rq,k_ljje from jxc_ysyfk order by k_rq,id")),
        (QStringList { "XS25030110001|2025-03-01|100.5", "XS25032010001|2025-03-20|110.5",
            "SK25031410001|2025-03-25|10.5", "YS25031410001|2025-03-25|10" }));
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 10);
    EXPECT_EQ(rows(QStringLiteral("select k_rq from jxc_ysyfk_dj where gl_djh=?"), { number }),
        QStringList { "2025-03-25" });
    EXPECT_EQ(rows(QStringLiteral("select xj_rq,xj_je from jxc_xjyh where gl_djh=?"), { number }),
        QStringList { "2025-03-25|100" });
    EXPECT_EQ(rows(QStringLiteral("select gl_kdrq from jxc_goodslist where gl_djh=?"), { number }),
        QStringList { "2025-03-25" });
    EXPECT_EQ(
        lastLog(), QStringLiteral("修改收付款日期，单据：SK25031410001，2025-03-14改为2025-03-25"));
}

TEST_F(RegistrationsTest, ADateChangeRefusedForABadDateOrAMissingNumberWritesNothing)
{
    const QString number = checkedRegistration(collection(100));
    const QString before = snapshot();
    EXPECT_FALSE(changeRegistrationDate(session(), number, QStringLiteral("2025-02-30")).ok());
    EXPECT_FALSE(changeRegistrationDate(
        session(), QStringLiteral("SK25031499999"), QStringLiteral("2025-03-15"))
                     .ok());
    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(ui.informed.size(), 2);
}
