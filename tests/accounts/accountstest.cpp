#include "tests/accounts/accountstest.h"

#include "core/transaction.h"

#include <QSqlQuery>

namespace medistock::test {

using accounts::PartyKind;

void AccountsTest::SetUp()
{
    SessionTest::SetUp();
    if (HasFatalFailure())
        return;
    db().exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_lwje,kh_forbid) values "
                             "(?,?,0,0)"),
        { customer(), QStringLiteral("仁和医院") });
    db().exec(QStringLiteral("insert into jxc_ghsxx (ghs_sn,ghs_name,ghs_lwje,ghs_forbid) values "
                             "(?,?,0,0)"),
        { supplier(), QStringLiteral("华东医药") });
}

qint64 AccountsTest::insertLedgerRow(PartyKind kind, const QString &party, const QString &date,
    double due, double paid, const QString &number)
{
    return db().insert(
        QStringLiteral("insert into jxc_ysyfk (gl_djh,k_rq,k_fkfs,k_yfje,k_sfje,k_qcje,k_yhje,"
                       "k_ljje,k_flag,k_type,k_djlx,k_djtxt,k_ghskh) values "
                       "(?,?,'现金',?,?,0,0,0,1,?,'XS','商品销售单',?)"),
        { number, date, due, paid, accounts::partyKindCode(kind), party });
}

void AccountsTest::owe(PartyKind kind, const QString &party, const QString &date, double due)
{
    const QString stem
        = QDate::fromString(date, QStringLiteral("yyyy-MM-dd")).toString(QStringLiteral("yyMMdd"));
    insertLedgerRow(
        kind, party, date, due, 0, QStringLiteral("XS") + stem + QStringLiteral("10001"));
    core::Transaction transaction(db());
    accounts::recalculateLedger(db(), kind, party, date);
    transaction.commit();
}

void AccountsTest::insertSale(const QString &number, const QString &date, double due, double paid,
    double invoice, double freight, double packing, const QString &freightMode)
{
    db().exec(
        QStringLiteral(
            "insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,ls_yhje,u_sn,"
            "ls_note,a_name,ls_fpno,ls_fpje,ls_yf,ls_bzf,ls_yffs,ls_jsfs,ls_kmmc,ls_status) "
            "values (?,?,'100001',?,?,?,0,'100001','门店批发','admin',?,?,?,?,?,'2','现金',1)"),
        { number, customer(), date, due, paid, invoice == 0 ? QString() : QStringLiteral("FP001"),
            invoice, freight, packing, freightMode });
}

std::vector<double> numbers(
    core::Connection &connection, const QString &sql, const QVariantList &params)
{
    std::vector<double> values;
    connection.forEach(
        sql, params, [&](const QSqlQuery &q) { values.push_back(q.value(0).toDouble()); });
    return values;
}

std::vector<double> AccountsTest::ledgerBalances(PartyKind kind, const QString &party)
{
    return numbers(db(),
        QStringLiteral("select k_ljje from jxc_ysyfk where k_type=? and k_ghskh=? order by "
                       "k_rq,id"),
        { accounts::partyKindCode(kind), party });
}

double AccountsTest::figure(PartyKind kind, const QString &party)
{
    return db()
        .firstValue(kind == PartyKind::Customer
                ? QStringLiteral("select kh_lwje from jxc_khxx where kh_sn=?")
                : QStringLiteral("select ghs_lwje from jxc_ghsxx where ghs_sn=?"),
            { party })
        .toDouble();
}

std::vector<double> AccountsTest::cashBalances(const QString &account)
{
    return numbers(db(),
        QStringLiteral("select xj_ljje from jxc_xjyh where xj_chk='1' and xj_kmmc=? order by "
                       "xj_rq,id"),
        { account });
}

std::vector<double> AccountsTest::invoiceBalances(PartyKind kind, const QString &party)
{
    return numbers(db(),
        QStringLiteral("select fp_ljje from jxc_fpdjb where fp_check<>0 and fp_type=? and "
                       "fp_ghskh=? order by fp_rq,id"),
        { accounts::partyKindCode(kind), party });
}

QString AccountsTest::snapshot()
{
    return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
}

accounts::RegistrationDraft AccountsTest::collection(
    double paid, double change, const QString &date)
{
    accounts::RegistrationDraft draft;
    draft.kind = accounts::RegistrationKind::Collection;
    draft.party = customer();
    draft.date = date;
    draft.paid = paid;
    draft.changeWrittenOff = change;
    draft.account = QStringLiteral("现金");
    draft.note = QStringLiteral("三月货款");
    return draft;
}

QString AccountsTest::checkedRegistration(const accounts::RegistrationDraft &draft)
{
    const auto saved = accounts::saveRegistration(session(), draft);
    EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
    if (!saved.ok())
        return {};
    const Outcome checked = accounts::checkRegistration(session(), saved.value());
    EXPECT_TRUE(checked.ok()) << checked.message().toStdString();
    return saved.value();
}

} // namespace medistock::test
