#include "accounts/postings.h"

#include "accounts/cashbook.h"
#include "accounts/invoices.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "shell/session.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::accounts {

namespace {

QString column(const char *name, const char *absent)
{
    return *name ? QStringLiteral("a.") + QLatin1String(name) : QLatin1String(absent);
}

QString partyNameSql(PartyKind kind)
{
    return kind == PartyKind::Customer
        ? QStringLiteral("(select kh_name from jxc_khxx where kh_sn=a.%1 order by id limit 1)")
        : QStringLiteral("(select ghs_name from jxc_ghsxx where ghs_sn=a.%1 order by id limit 1)");
}

QString headerSql(const MoneyColumns &c)
{
    const QStringList fields {
        column(c.number, "''"),
        column(c.date, "''"),
        column(c.party, "''"),
        partyNameSql(c.partyKind).arg(QLatin1String(c.party)),
        column(c.salesman, "''"),
        QStringLiteral("(select u_name from jxc_user where u_sn=a.%1 order by id limit 1)")
            .arg(QLatin1String(c.salesman)),
        column(c.warehouse, "''"),
        QStringLiteral("(select ck_name from jxc_ckxx where ck_sn=a.%1 order by id limit 1)")
            .arg(QLatin1String(c.warehouse)),
        column(c.account, "''"),
        column(c.note, "''"),
        column(c.due, "0"),
        column(c.paid, "0"),
        column(c.discount, "0"),
        column(c.invoiceAmount, "0"),
        column(c.invoiceNumber, "''"),
        column(c.freight, "0"),
        column(c.packing, "0"),
        column(c.freightMode, "''"),
        column(c.sourceNumber, "''"),
    };
    return QStringLiteral("select %1 from %2 a where a.%3=? order by a.id limit 1")
        .arg(fields.join(QLatin1Char(',')), QLatin1String(c.table), QLatin1String(c.number));
}

QString text(const char *value)
{
    return QString::fromUtf8(value);
}

void appendFeeExpense(shell::Session &session, const MoneyHeader &header, const QString &item,
    double fee, const QString &note)
{
    appendDocumentExpense(session,
        { ExpenseKind::Expense, header.number, header.date, item, -fee, header.salesman, note });
    CashRow row;
    row.date = header.date; // the number stays out: the note names the document
    row.kind = texts::expensePaymentKind();
    row.amount = -fee;
    row.account = cashAccountName();
    row.salesmanName = header.salesmanName;
    row.partyCode = header.party;
    row.partyName = header.partyName;
    row.warehouseName = header.warehouseName;
    row.note = note;
    row.operatorName = session.user().name;
    appendCashRow(session.db(), row);
}

// Each chain that lost rows is recalculated once, from its earliest deleted date.
struct Chain
{
    QString kind;
    QString key;
    QString date;
};

QList<Chain> chainsOf(core::Connection &connection, const QString &sql, const QVariantList &params)
{
    QList<Chain> chains;
    connection.forEach(sql, params, [&](const QSqlQuery &q) {
        chains.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString() });
    });
    return chains;
}

QVariant like(const QString &number)
{
    return QLatin1Char('%') + number + QLatin1Char('%');
}

} // namespace

const MoneyColumns &saleMoney()
{
    static const MoneyColumns c { "jxc_lsxsd", "gl_djh", "ls_xsrq", "kh_sn", "u_sn", "ck_sn",
        "ls_yfje", "ls_sfje", "", "ls_kmmc", "ls_note", "ls_fpje", "ls_fpno", "ls_yf", "ls_bzf",
        "ls_yffs", PartyKind::Customer, "XS", "商品销售单", "商品销售", "销售单", 1, 1, true,
        "gl_djh2" };
    return c;
}

const MoneyColumns &salesReturnMoney()
{
    static const MoneyColumns c { "jxc_xsthd", "gl_djh", "th_xsrq", "kh_sn", "u_sn", "ck_sn",
        "th_yfje", "th_sfje", "", "th_kmmc", "th_note", "th_fpje", "th_fpno", "", "", "",
        PartyKind::Customer, "XT", "顾客退货单", "顾客退货", "", 1, 1, true, "" };
    return c;
}

const MoneyColumns &purchaseReceiptMoney()
{
    static const MoneyColumns c { "jxc_jhd", "j_sn", "j_jhrq", "ghs_sn", "u_sn", "ck_sn", "j_yfje",
        "j_sfje", "j_yhje", "j_kmmc", "j_note", "j_fpje", "j_fpno", "j_yf", "j_bzf", "j_yffs",
        PartyKind::Supplier, "CJ", "采购进货单", "采购进货", "采购单", -1, 1, false, "j_sn2" };
    return c;
}

const MoneyColumns &purchaseReturnMoney()
{
    static const MoneyColumns c { "jxc_thd", "gl_djh", "th_thrq", "ghs_sn", "u_sn", "ck_sn",
        "th_yfje", "th_sfje", "", "th_kmmc", "th_note", "th_fpje", "th_fpno", "", "", "",
        PartyKind::Supplier, "CT", "采购退货单", "采购退货", "", 1, -1, false, "" };
    return c;
}

MoneyHeader requireMoneyHeader(
    core::Connection &connection, const MoneyColumns &columns, const QString &number)
{
    const std::optional<MoneyHeader> header = readMoneyHeader(connection, columns, number);
    if (!header)
        throw core::DbError(texts::documentMissing(number));
    return *header;
}

std::optional<MoneyHeader> readMoneyHeader(
    core::Connection &connection, const MoneyColumns &columns, const QString &number)
{
    const QSqlRecord r = connection.firstRow(headerSql(columns), { number });
    if (r.isEmpty())
        return std::nullopt;
    MoneyHeader h;
    h.number = r.value(0).toString();
    h.date = r.value(1).toString();
    h.party = r.value(2).toString();
    h.partyName = r.value(3).toString();
    h.salesman = r.value(4).toString();
    h.salesmanName = r.value(5).toString();
    h.warehouse = r.value(6).toString();
    h.warehouseName = r.value(7).toString();
    h.account = r.value(8).toString();
    h.note = r.value(9).toString();
    h.due = r.value(10).toDouble();
    h.paid = r.value(11).toDouble();
    h.discount = r.value(12).toDouble();
    h.invoiceAmount = r.value(13).toDouble();
    h.invoiceNumber = r.value(14).toString();
    h.freight = r.value(15).toDouble();
    h.packing = r.value(16).toDouble();
    h.freightMode = r.value(17).toString();
    h.sourceNumber = r.value(18).toString();
    return h;
}

void postCashRow(shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header)
{
    if (header.paid == 0 && !columns.cashWhenUnpaid)
        return;
    CashRow row;
    row.number = header.number;
    row.date = header.date;
    row.kind = text(columns.cashKind);
    row.amount = columns.cashSign * header.paid;
    row.account = header.account;
    row.salesmanName = header.salesmanName;
    row.partyCode = header.party;
    row.partyName = header.partyName;
    row.warehouseName = header.warehouseName;
    row.note = header.note;
    row.operatorName = session.user().name;
    appendCashRow(session.db(), row);
    recalculateCash(session.db(), row.account, row.date);
}

void postLedgerRow(shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header)
{
    core::Connection &db = session.db();
    const double due = columns.ledgerSign * header.due;
    const double paid = columns.ledgerSign * header.paid;
    const double balance
        = ledgerBalanceAsOf(db, columns.partyKind, header.party, header.date) + due - paid;
    db.insert(QStringLiteral("insert into jxc_ysyfk (k_ghskh,a_name,u_sn,k_fkfs,k_sfje,k_yhje,"
                             "k_qcje,k_ljje,k_yfje,k_type,k_djlx,k_djtxt,k_note,k_flag,k_rq,"
                             "gl_djh) values (?,?,?,?,?,?,0,?,?,?,?,?,?,1,?,?)"),
        { header.party, session.user().name, header.salesman, header.account, paid, header.discount,
            balance, due, partyKindCode(columns.partyKind), text(columns.code), text(columns.text),
            header.note, header.date, header.number });
    recalculateLedger(db, columns.partyKind, header.party, header.date);
}

void postInvoiceRow(shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header)
{
    if (!session.params().flag("cs_kp"))
        return;
    core::Connection &db = session.db();
    const double due = columns.ledgerSign * header.due;
    const double invoiced = columns.ledgerSign * header.invoiceAmount;
    const double balance
        = invoiceBalanceAsOf(db, columns.partyKind, header.party, header.date) + due - invoiced;
    db.insert(QStringLiteral("insert into jxc_fpdjb (fp_ghskh,a_name,u_sn,fp_sfje,fp_qcje,fp_ljje,"
                             "fp_yfje,fp_kpje,fp_no,fp_type,fp_djlx,fp_djtxt,fp_note,fp_flag,fp_rq,"
                             "gl_djh,fp_check,fp_checker,fp_chkrq,fp_kprq) values "
                             "(?,?,?,?,0,?,?,?,?,?,?,?,?,1,?,?,1,?,?,?)"),
        { header.party, session.user().name, header.salesman, columns.ledgerSign * header.paid,
            balance, due, invoiced, header.invoiceNumber, partyKindCode(columns.partyKind),
            text(columns.code), text(columns.text), header.note, header.date, header.number,
            session.user().name, session.today(),
            header.invoiceNumber.isEmpty() ? QString() : header.date });
    recalculateInvoices(db, columns.partyKind, header.party, header.date);
}

bool isFreightTerms(const QString &terms)
{
    return terms.isEmpty() || terms == texts::wePayFreight() || terms == texts::theyPayFreight();
}

void postFreightAndPacking(
    shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header)
{
    if (!*columns.freight || header.freightMode != texts::wePayFreight())
        return;
    const QString document = text(columns.feeNote) + header.number;
    bool paid = false;
    if (header.freight > 0) {
        appendFeeExpense(session, header, texts::freightItem(), header.freight,
            document + texts::freightNoteEnd());
        paid = true;
    }
    if (header.packing > 0) {
        appendFeeExpense(session, header, texts::packingItem(), header.packing,
            document + texts::packingNoteEnd());
        paid = true;
    }
    if (paid)
        recalculateCash(session.db(), cashAccountName(), header.date);
}

void appendDocumentExpense(const shell::Session &session, const DocumentExpense &expense)
{
    const QString flag = expense.kind == ExpenseKind::Expense ? texts::automaticExpenseFlag()
                                                              : texts::automaticIncomeFlag();
    session.db().insert(
        QStringLiteral("insert into jxc_yyfy (fy_rq,gl_djh,fy_lx,fy_je,fy_flag,u_sn,de_sn,fy_kmmc,"
                       "fy_chk,fy_note,a_name,fy_sc) values (?,?,?,?,?,?,?,?,'1',?,?,'')"),
        { expense.date, expense.number, expense.type, expense.amount, flag, expense.salesman,
            texts::defaultDepartment(), cashAccountName(), expense.note, session.user().name });
}

void postDocumentMoney(
    shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header)
{
    postCashRow(session, columns, header);
    postLedgerRow(session, columns, header);
    postInvoiceRow(session, columns, header);
    postFreightAndPacking(session, columns, header);
}

void postDocumentMoney(shell::Session &session, const MoneyColumns &columns, const QString &number)
{
    postDocumentMoney(session, columns, requireMoneyHeader(session.db(), columns, number));
}

// An empty number would match every row without one (the opening movements among them), and
// an empty pattern every note: nothing is removed for it.

void removeExpenseRows(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    session.db().exec(QStringLiteral("delete from jxc_yyfy where gl_djh=? or fy_note like ?"),
        { number, like(number) });
}

void removeJournalRows(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    session.db().exec(QStringLiteral("delete from jxc_goodslist where gl_djh=?"), { number });
}

void removeCashRows(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    deleteCashRowsMentioning(session.db(), number);
}

void removeLedgerRows(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    core::Connection &db = session.db();
    const QList<Chain> chains = chainsOf(db,
        QStringLiteral("select k_type,k_ghskh,min(k_rq) from jxc_ysyfk where gl_djh=? or "
                       "gl_djh2=? group by k_type,k_ghskh"),
        { number, number });
    db.exec(
        QStringLiteral("delete from jxc_ysyfk where gl_djh=? or gl_djh2=?"), { number, number });
    for (const Chain &chain : chains)
        if (const auto kind = partyKindFromCode(chain.kind))
            recalculateLedger(db, *kind, chain.key, chain.date);
}

void removeRegistrations(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    core::Connection &db = session.db();
    QStringList checked;
    db.forEach(QStringLiteral("select gl_djh from jxc_ysyfk_dj where gl_djh2=? and gl_djh<>? "
                              "and k_check<>0 order by id"),
        { number, number }, [&](const QSqlQuery &q) { checked.append(q.value(0).toString()); });
    for (const QString &registration : checked) {
        removeJournalRows(session, registration);
        if (!registration.isEmpty())
            deleteCashRowsOf(db, registration);
        removeLedgerRows(session, registration);
    }
    db.exec(
        QStringLiteral("delete from jxc_ysyfk_dj where gl_djh=? or gl_djh2=?"), { number, number });
}

void removeInvoiceRows(shell::Session &session, const QString &number)
{
    if (number.isEmpty())
        return;
    core::Connection &db = session.db();
    const QList<Chain> chains = chainsOf(db,
        QStringLiteral("select fp_type,fp_ghskh,min(fp_rq) from jxc_fpdjb where gl_djh=? "
                       "group by fp_type,fp_ghskh"),
        { number });
    db.exec(QStringLiteral("delete from jxc_fpdjb where gl_djh=?"), { number });
    for (const Chain &chain : chains)
        if (const auto kind = partyKindFromCode(chain.kind))
            recalculateInvoices(db, *kind, chain.key, chain.date);
}

void removeDocumentPostings(shell::Session &session, const QString &number)
{
    removeExpenseRows(session, number);
    removeJournalRows(session, number);
    removeCashRows(session, number);
    removeLedgerRows(session, number);
    removeRegistrations(session, number);
    removeInvoiceRows(session, number);
}

} // namespace medistock::accounts
