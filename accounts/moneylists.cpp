#include "accounts/moneylists.h"

#include "accounts/invoices.h"
#include "accounts/statementsupport.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/rounding.h"

#include <QDate>
#include <QHash>
#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::accounts {

namespace {

using statements::figure;
using statements::Query;
using statements::text;

// " and <column>>=?" / " and <column><=?" for the ends of the range that are given.
Query &whereDates(Query &query, const QString &column, const MoneyFilter &filter)
{
    if (!filter.from.isEmpty())
        query.add(QStringLiteral(" and %1>=?").arg(column), { filter.from });
    if (!filter.to.isEmpty())
        query.add(QStringLiteral(" and %1<=?").arg(column), { statements::endOfDay(filter.to) });
    return query;
}

// The join of a party's name: jxc_khxx or jxc_ghsxx as `p` on the party column.
QString partyJoin(PartyKind kind, const QString &column)
{
    return kind == PartyKind::Customer
        ? QStringLiteral(" left join jxc_khxx p on p.kh_sn=%1").arg(column)
        : QStringLiteral(" left join jxc_ghsxx p on p.ghs_sn=%1").arg(column);
}

QString partyNameColumn(PartyKind kind)
{
    return kind == PartyKind::Customer ? QStringLiteral("p.kh_name") : QStringLiteral("p.ghs_name");
}

template<class Row, class Read>
QList<Row> collect(core::Connection &connection, const Query &query, Read read)
{
    QList<Row> rows;
    connection.forEach(query.sql, query.params, [&](const QSqlQuery &q) { rows.append(read(q)); });
    return rows;
}

LedgerRow readLedgerRow(const QSqlQuery &q)
{
    return { q.value(0).toLongLong(), text(q, 1), text(q, 2), text(q, 3), text(q, 4), text(q, 5),
        figure(q, 6), figure(q, 7), figure(q, 8), figure(q, 9), figure(q, 10), text(q, 11),
        text(q, 12), text(q, 13), text(q, 14), text(q, 15) };
}

Query ledgerQuery(PartyKind kind, const MoneyFilter &filter)
{
    Query query;
    query.add(QStringLiteral("select a.id,a.k_rq,a.gl_djh,a.k_djtxt,a.k_ghskh,%1,a.k_qcje,"
                             "a.k_yfje,a.k_sfje,a.k_yhje,a.k_ljje,a.k_fkfs,a.gl_djh2,a.k_note,"
                             "a.a_name,u.u_name from jxc_ysyfk a")
                  .arg(partyNameColumn(kind))
            + partyJoin(kind, QStringLiteral("a.k_ghskh"))
            + QStringLiteral(" left join jxc_user u on u.u_sn=a.u_sn where a.k_type=?"),
        { partyKindCode(kind) });
    query.whereEqual(QStringLiteral("a.k_ghskh"), filter.party);
    whereDates(query, QStringLiteral("a.k_rq"), filter);
    return query;
}

} // namespace

QList<RegistrationRow> listRegistrations(
    core::Connection &connection, RegistrationKind kind, const MoneyFilter &filter)
{
    const PartyKind party = registrationParty(kind);
    Query query;
    query.add(QStringLiteral("select a.gl_djh,a.k_rq,a.k_ghskh,%1,a.k_yfje,a.k_sfje,a.k_yhje,"
                             "a.k_mlje,a.k_fkfs,a.u_sn,u.u_name,a.gl_djh2,a.k_note,a.k_check,"
                             "a.k_checker,a.k_chkrq from jxc_ysyfk_dj a")
                  .arg(partyNameColumn(party))
            + partyJoin(party, QStringLiteral("a.k_ghskh"))
            + QStringLiteral(" left join jxc_user u on u.u_sn=a.u_sn where a.k_djlx=?"),
        { registrationPrefix(kind) });
    query.whereEqual(QStringLiteral("a.k_ghskh"), filter.party);
    whereDates(query, QStringLiteral("a.k_rq"), filter);
    if (filter.checked)
        query.add(*filter.checked ? QStringLiteral(" and a.k_check<>0")
                                  : QStringLiteral(" and a.k_check=0"));
    query.add(QStringLiteral(" order by a.k_rq,a.id"));
    return collect<RegistrationRow>(connection, query, [](const QSqlQuery &q) {
        return RegistrationRow { text(q, 0), text(q, 1), text(q, 2), text(q, 3), figure(q, 4),
            figure(q, 5), figure(q, 6), figure(q, 7), text(q, 8), text(q, 9), text(q, 10),
            text(q, 11), text(q, 12), q.value(13).toInt() != 0, text(q, 14), text(q, 15) };
    });
}

QList<PartyBalance> partyBalances(
    core::Connection &connection, PartyKind kind, const QString &search, bool owingOnly)
{
    const bool customer = kind == PartyKind::Customer;
    const QString prefix = customer ? QStringLiteral("kh_") : QStringLiteral("ghs_");
    Query query;
    query.add(
        QStringLiteral("select %1sn,%1name,%1lwje from %2 where 1=1")
            .arg(prefix, customer ? QStringLiteral("jxc_khxx") : QStringLiteral("jxc_ghsxx")));
    query.whereContains({ prefix + QStringLiteral("sn"), prefix + QStringLiteral("name"),
                            prefix + QStringLiteral("jm") },
        search);
    if (owingOnly)
        query.add(QStringLiteral(" and %1lwje<>0").arg(prefix));
    query.add(QStringLiteral(" order by %1sn").arg(prefix));
    return collect<PartyBalance>(connection, query, [](const QSqlQuery &q) {
        return PartyBalance { text(q, 0), text(q, 1), figure(q, 2) };
    });
}

QList<LedgerRow> ledgerRows(core::Connection &connection, PartyKind kind, const MoneyFilter &filter)
{
    Query query = ledgerQuery(kind, filter);
    query.add(QStringLiteral(" order by a.k_ghskh,a.k_rq,a.id"));
    return collect<LedgerRow>(connection, query, readLedgerRow);
}

QList<LedgerRow> writtenOffRows(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter)
{
    Query query = ledgerQuery(kind, filter);
    query.add(
        QStringLiteral(" and a.k_djtxt=? order by a.k_rq,a.id"), { texts::writtenOffText(kind) });
    return collect<LedgerRow>(connection, query, readLedgerRow);
}

QList<InvoiceRow> invoiceRows(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter)
{
    Query query;
    query.add(QStringLiteral("select a.id,a.gl_djh,a.fp_rq,a.fp_ghskh,%1,a.fp_djtxt,a.fp_qcje,"
                             "a.fp_yfje,a.fp_kpje,a.fp_ljje,a.fp_no,a.fp_kprq,a.u_sn,a.fp_note,"
                             "a.fp_check from jxc_fpdjb a")
                  .arg(partyNameColumn(kind))
            + partyJoin(kind, QStringLiteral("a.fp_ghskh")) + QStringLiteral(" where a.fp_type=?"),
        { partyKindCode(kind) });
    query.whereEqual(QStringLiteral("a.fp_ghskh"), filter.party);
    whereDates(query, QStringLiteral("a.fp_rq"), filter);
    const bool counted = filter.checked.value_or(true);
    query.add(counted ? QStringLiteral(" and a.fp_check<>0 order by a.fp_ghskh,a.fp_rq,a.id")
                      : QStringLiteral(" and a.fp_check=0 order by a.fp_rq desc,a.id desc"));
    return collect<InvoiceRow>(connection, query, [](const QSqlQuery &q) {
        return InvoiceRow { q.value(0).toLongLong(), text(q, 1), text(q, 2), text(q, 3), text(q, 4),
            text(q, 5), figure(q, 6), figure(q, 7), figure(q, 8), figure(q, 9), text(q, 10),
            text(q, 11), text(q, 12), text(q, 13), q.value(14).toInt() != 0 };
    });
}

QList<InvoiceSummary> invoiceSummary(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter)
{
    Query sums;
    sums.add(QStringLiteral("select fp_ghskh,sum(fp_yfje),sum(fp_kpje) from jxc_fpdjb where "
                            "fp_check<>0 and fp_type=?"),
        { partyKindCode(kind) });
    sums.whereEqual(QStringLiteral("fp_ghskh"), filter.party);
    whereDates(sums, QStringLiteral("fp_rq"), filter);
    sums.add(QStringLiteral(" group by fp_ghskh"));
    QHash<QString, std::pair<double, double>> inRange;
    connection.forEach(sums.sql, sums.params, [&](const QSqlQuery &q) {
        inRange.insert(text(q, 0), { figure(q, 1), figure(q, 2) });
    });
    const QDate from = QDate::fromString(filter.from, Qt::ISODate);
    const bool customer = kind == PartyKind::Customer;
    const QString prefix = customer ? QStringLiteral("kh_") : QStringLiteral("ghs_");
    Query parties;
    parties.add(
        QStringLiteral("select %1sn,%1name from %2 where %1forbid=0")
            .arg(prefix, customer ? QStringLiteral("jxc_khxx") : QStringLiteral("jxc_ghsxx")));
    parties.whereEqual(prefix + QStringLiteral("sn"), filter.party);
    parties.add(QStringLiteral(" order by %1sn").arg(prefix));
    QList<InvoiceSummary> rows;
    for (const QSqlRecord &p : connection.rows(parties.sql, parties.params)) {
        InvoiceSummary row { p.value(0).toString(), p.value(1).toString() };
        if (from.isValid())
            row.opening = invoiceBalanceAsOf(
                connection, kind, row.party, from.addDays(-1).toString(Qt::ISODate));
        const auto found = inRange.constFind(row.party);
        if (found == inRange.cend() && row.opening == 0)
            continue;
        if (found != inRange.cend())
            std::tie(row.due, row.invoiced) = *found;
        row.outstanding = core::roundTo(row.opening + row.due - row.invoiced, 8) + 0.0;
        rows.append(row);
    }
    return rows;
}

QList<CashMovement> cashMovements(core::Connection &connection, const MoneyFilter &filter)
{
    Query query;
    query.add(QStringLiteral("select id,gl_djh,xj_rq,xj_dlx,xj_kmmc,xj_je,xj_ljje,ghs_name,u_name,"
                             "xj_note,xj_chk from jxc_xjyh where 1=1"));
    query.whereEqual(QStringLiteral("xj_kmmc"), filter.account);
    whereDates(query, QStringLiteral("xj_rq"), filter);
    if (filter.checked)
        query.add(QStringLiteral(" and xj_chk=?"),
            { *filter.checked ? QStringLiteral("1") : QStringLiteral("0") });
    query.add(QStringLiteral(" order by xj_rq,id"));
    return collect<CashMovement>(connection, query, [](const QSqlQuery &q) {
        const bool counted = text(q, 10) == QLatin1String("1");
        return CashMovement { q.value(0).toLongLong(), text(q, 1), text(q, 2), text(q, 3),
            text(q, 4), figure(q, 5), counted ? figure(q, 6) : 0.0, text(q, 7), text(q, 8),
            text(q, 9), counted };
    });
}

QList<ExpenseRow> listExpenses(
    core::Connection &connection, std::optional<ExpenseKind> kind, const MoneyFilter &filter)
{
    Query query;
    query.add(QStringLiteral("select a.gl_djh,a.fy_rq,a.fy_flag,a.fy_lx,a.fy_je,a.fy_kmmc,a.de_sn,"
                             "d.de_name,a.u_sn,u.u_name,a.fy_note,a.fy_chk from jxc_yyfy a left "
                             "join jxc_dept d on d.de_sn=a.de_sn left join jxc_user u on "
                             "u.u_sn=a.u_sn where 1=1"));
    if (kind)
        query.add(QStringLiteral(" and a.fy_flag in (?,?)"),
            { texts::expenseFlag(*kind),
                *kind == ExpenseKind::Income ? texts::automaticIncomeFlag()
                                             : texts::automaticExpenseFlag() });
    whereDates(query, QStringLiteral("a.fy_rq"), filter);
    if (filter.checked)
        query.add(QStringLiteral(" and a.fy_chk=?"),
            { *filter.checked ? QStringLiteral("1") : QStringLiteral("0") });
    query.add(QStringLiteral(" order by a.fy_rq,a.gl_djh"));
    return collect<ExpenseRow>(connection, query, [](const QSqlQuery &q) {
        const QString flag = text(q, 2);
        const bool income = flag == texts::expenseFlag(ExpenseKind::Income)
            || flag == texts::automaticIncomeFlag();
        return ExpenseRow { text(q, 0), text(q, 1),
            income ? ExpenseKind::Income : ExpenseKind::Expense, flag, text(q, 3), figure(q, 4),
            text(q, 5), text(q, 6), text(q, 7), text(q, 8), text(q, 9), text(q, 10),
            text(q, 11) == QLatin1String("1") };
    });
}

QStringList expenseTypeNames(core::Connection &connection)
{
    QStringList names;
    for (const QSqlRecord &row :
        connection.rows(QStringLiteral("select fy_lx from jxc_fylx order by id")))
        names.append(row.value(0).toString());
    return names;
}

} // namespace medistock::accounts
