#include "tests/loans/loanstest.h"

#include "core/transaction.h"
#include "loans/loancheck.h"
#include "shell/session.h"
#include "stock/stores.h"

namespace medistock::test {

void LoansTest::SetUp()
{
    SalesTest::SetUp();
    if (HasFatalFailure())
        return;
    db().exec(QStringLiteral("insert into jxc_yhzh (yh_sn,yh_name,yh_type,yh_zje) values "
                             "('100002','工行','银行',0)"));
    core::Transaction transaction(db());
    stock::ensureSettlementRows(session(), QStringLiteral("2025-03-14"));
    transaction.commit();
}

loans::LoanDraft LoansTest::loanDraft(
    const QString &quantity, const QString &deposit, const QString &rent, const QString &date)
{
    loans::LoanDraft d;
    d.entry.date = date;
    d.entry.party = QStringLiteral("100002");
    d.entry.warehouse = QStringLiteral("100001");
    d.entry.lines = { line(QStringLiteral("200001"), quantity, QString(), QStringLiteral("B1")) };
    d.terms = { { deposit, rent, QString() } };
    return d;
}

QString LoansTest::lend(const loans::LoanDraft &draft)
{
    const Result<QString> saved = loans::saveLoan(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    if (!saved)
        return {};
    const Outcome checked = loans::checkLoan(session(), saved.value());
    EXPECT_TRUE(checked.ok()) << checked.message().toStdString();
    return saved.value();
}

QString LoansTest::lend(const QString &quantity, const QString &deposit, const QString &rent)
{
    return lend(loanDraft(quantity, deposit, rent));
}

qint64 LoansTest::firstLine(const QString &loan)
{
    return db()
        .firstValue(
            QStringLiteral("select id from jxc_khjhsp where gl_djh=? order by id"), { loan })
        .toLongLong();
}

QString LoansTest::giveBack(const QString &loan, const QString &quantity, const QString &date)
{
    loans::ReturnDraft d { loan, date, QString(), {} };
    if (!quantity.isEmpty())
        d.lines = { { firstLine(loan), quantity } };
    const Result<QString> saved = loans::saveReturn(session(), d);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    return saved.ok() ? saved.value() : QString();
}

loans::LoanSale LoansTest::sell(const QString &loan, const QString &quantity, double paid)
{
    loans::LoanSaleDraft d;
    d.loan = loan;
    d.lines = { { firstLine(loan), quantity, QString() } };
    d.header.settlementMode = QStringLiteral("2");
    d.header.paid = paid;
    const Result<loans::LoanSale> sold = loans::sellLoanedGoods(session(), d);
    EXPECT_TRUE(sold.ok()) << sold.message().toStdString();
    return sold.ok() ? sold.value() : loans::LoanSale {};
}

QString LoansTest::stores()
{
    const QStringList found = queryRows(db(),
        QStringLiteral("select a.kc_sl,a.kc_zsl,g.g_kc,t.t_sl,j.js_sl from jxc_kcsp a,jxc_goods g,"
                       "jxc_tkc t,jxc_kcjs j where a.g_sn='200001' and a.ck_sn='100001' and "
                       "g.g_sn=a.g_sn and t.g_sn=a.g_sn and t.ck_sn=a.ck_sn and t.t_ph='B1' and "
                       "j.ck_sn=a.ck_sn and j.js_rq='2025-03-14'"));
    return found.isEmpty() ? QString() : found.first();
}

} // namespace medistock::test
