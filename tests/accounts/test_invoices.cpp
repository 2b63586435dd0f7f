#include "accounts/invoices.h"
#include "accounts/postings.h"
#include "core/oplog.h"
#include "core/transaction.h"
#include "tests/accounts/accountstest.h"

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

class InvoicesTest : public AccountsTest
{
protected:
    void SetUp() override
    {
        AccountsTest::SetUp();
        setParameter(QStringLiteral("cs_kp"), 1);
        postSale(QStringLiteral("XS25031010001"), "2025-03-10", 300);
        postSale(QStringLiteral("XS25031210001"), "2025-03-12", 200);
    }
    void postSale(const QString &number, const QString &date, double due)
    {
        insertSale(number, date, due, 0);
        core::Transaction transaction(db());
        postInvoiceRow(session(), saleMoney(), *readMoneyHeader(db(), saleMoney(), number));
        transaction.commit();
    }
    qint64 rowOf(const QString &number)
    {
        return db()
            .firstValue(QStringLiteral("select id from jxc_fpdjb where gl_djh=?"), { number })
            .toLongLong();
    }
    InvoicingDraft invoicing(double amount)
    {
        InvoicingDraft draft;
        draft.party = customer();
        draft.date = QStringLiteral("2025-03-14");
        draft.amount = amount;
        draft.invoiceNumber = QStringLiteral("No.0012345");
        return draft;
    }
    QString lastLog() { return core::readLog(db(), {}, {}).last().note; }
};

TEST_F(InvoicesTest, ASetAsideRowKeepsItsAmountsButChangesNoBalanceUntilTakenBack)
{
    ASSERT_EQ(invoiceBalances(PartyKind::Customer, customer()), (std::vector<double> { 300, 500 }));

    ui.answerNext(true);
    ASSERT_TRUE(setAsideInvoiceRow(session(), rowOf("XS25031010001")));

    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("该单据不开发票或发票不正确，从列表中排除，\r\n\r\n"
                                     "转到发票管理中等待处理，继续吗？") });
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_fpdjb"),
                  QStringLiteral("fp_yfje,fp_check,fp_checker"), QStringLiteral("gl_djh=?"),
                  { QStringLiteral("XS25031010001") }),
        QStringList { QStringLiteral("300|0|") });
    EXPECT_EQ(invoiceBalances(PartyKind::Customer, customer()), std::vector<double> { 200 });
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 200);
    {
        core::Transaction transaction(db());
        recalculateInvoices(db(), PartyKind::Customer, customer(), "2025-01-01");
        transaction.commit();
    }
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 200);

    ASSERT_TRUE(takeBackInvoiceRows(session(), QStringLiteral("XS25031010001")));
    EXPECT_EQ(invoiceBalances(PartyKind::Customer, customer()), (std::vector<double> { 300, 500 }));
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_fpdjb"), QStringLiteral("fp_checker,fp_chkrq"),
            QStringLiteral("gl_djh=?"), { QStringLiteral("XS25031010001") }),
        QStringList { QStringLiteral("admin|2025-03-14") });
    EXPECT_FALSE(takeBackInvoiceRows(session(), QStringLiteral("XS25031010001")));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("单据：XS25031010001已经审核！"));
}

TEST_F(InvoicesTest, InvoicingRowsCountAtOnceOnlyWithCheckOnSave)
{
    const auto waiting = addInvoicing(session(), invoicing(120));
    ASSERT_TRUE(waiting.ok());
    EXPECT_EQ(waiting.value(), QStringLiteral("XP25031410001"));
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 500);
    EXPECT_EQ(lastLog(), QStringLiteral("增加开票，客户：仁和医院，金额：120"));

    setParameter(QStringLiteral("cs_shdj"), 1);
    ASSERT_TRUE(addInvoicing(session(), invoicing(80)).ok());
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 420);

    ui.answerNext(true);
    ASSERT_TRUE(checkAllInvoiceRows(session(), PartyKind::Customer));
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？\r\n\r\n"
                                     "（如需审核某个单据，请按右键！）") });
    EXPECT_EQ(invoiceBalances(PartyKind::Customer, customer()),
        (std::vector<double> { 300, 500, 380, 300 }));
}

TEST_F(InvoicesTest, RegisteringChangingAndDeletingRecalculateTheParty)
{
    ASSERT_TRUE(registerInvoice(session(), QStringLiteral("XS25031010001"),
        { QStringLiteral("No.77"), 300, QStringLiteral("2025-03-15"), QStringLiteral("已开") }));
    EXPECT_EQ(invoiceBalances(PartyKind::Customer, customer()), (std::vector<double> { 0, 200 }));
    EXPECT_EQ(lastLog(), QStringLiteral("发票登记，客户：仁和医院，金额：300"));

    setParameter(QStringLiteral("cs_shdj"), 1);
    ASSERT_TRUE(addInvoicing(session(), invoicing(50)).ok());
    const qint64 id = rowOf(QStringLiteral("XP25031410001"));
    ASSERT_TRUE(changeInvoicing(session(), id, invoicing(150)));
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 50);
    EXPECT_EQ(lastLog(), QStringLiteral("修改开票，客户：仁和医院，金额：150"));

    ASSERT_TRUE(deleteInvoiceRow(session(), id));
    EXPECT_EQ(currentInvoiceBalance(db(), PartyKind::Customer, customer()), 200);
    EXPECT_FALSE(changeInvoicing(session(), rowOf(QStringLiteral("XS25031210001")), invoicing(1)));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("没有找到该发票记录！"));
}
