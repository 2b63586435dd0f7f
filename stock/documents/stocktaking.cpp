#include "stock/documents/stocktaking.h"

#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "shell/session.h"
#include "stock/documents/kinds.h"
#include "stock/documents/posting.h"
#include "stock/documents/texts.h"

#include <QSqlQuery>

namespace medistock::stock {

namespace {

// One "pd" row per line whose count differs from the book; returns how many were written.
int insertCountRows(const shell::Session &session, const StockHeader &header)
{
    const shell::Parameters &params = session.params();
    QList<LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.id,b.g_sn,b.pd_dj,b.pd_sl,b.kc_sl,b.pd_zje,b.a_name,b.t_ph,"
                       "b.t_yxq,b.t_scrq,")
            + goodsColumns()
            + QStringLiteral(" from jxc_kcpdsp b left join jxc_goods c on c.g_sn=b.g_sn where "
                             "b.gl_djh=? order by b.id"),
        { header.number }, [&](const QSqlQuery &q) {
            const double counted = q.value(3).toDouble();
            const double difference = params.roundQuantity(counted - q.value(4).toDouble());
            if (difference == 0)
                return;
            LedgerRow row = documentRow(session, header, QStringLiteral("pd"));
            copyGoods(row, q, 10);
            row.lineId = q.value(0).toLongLong();
            row.goods = q.value(1).toString();
            row.price = row.taxedPrice = q.value(2).toDouble();
            // The count price, not the goods average, is the row's average until the rerun.
            row.average = row.price;
            row.quantity = difference;
            row.total = row.amount = q.value(5).toDouble();
            row.operatorName = q.value(6).toString();
            row.batch = q.value(7).toString();
            row.expiry = q.value(8).toString();
            row.produced = q.value(9).toString();
            row.partyName = texts::stockTakingParty();
            row.unitQuantity = counted;
            rows.append(row);
        });
    for (const LedgerRow &row : rows)
        insertLedgerRow(session, row);
    return int(rows.size());
}

void bookDifferences(
    const shell::Session &session, const StockHeader &header, const QList<PostedRow> &rows)
{
    double shortage = 0;
    double surplus = 0;
    for (const PostedRow &row : rows)
        (row.quantity < 0 ? shortage : surplus) += row.amount;
    const shell::Parameters &params = session.params();
    const QString note = texts::stockTakingDifferenceNote(header.number);
    for (const auto &[kind, value] : { std::pair { accounts::ExpenseKind::Expense, shortage },
             std::pair { accounts::ExpenseKind::Income, surplus } }) {
        const double amount = params.roundAmount(value);
        if (amount != 0)
            accounts::appendDocumentExpense(session,
                { kind, header.number, header.date, accounts::texts::expenseFlag(kind), amount,
                    header.employee, note });
    }
}

// The first document after the counting day that moved a counted goods in the sheet's warehouse
// since the sheet was checked; empty when there is none. A sheet that posted nothing has nothing
// to be overtaken.
QString laterBusiness(const shell::Session &session, const StockHeader &header)
{
    core::Connection &db = session.db();
    const QVariant firstRow = db.firstValue(
        QStringLiteral("select id from jxc_goodslist where gl_djh=? order by id limit 1"),
        { header.number });
    if (!firstRow.isValid())
        return {};
    // Dates are text: every row of the counting day sorts before its " 23:59:59".
    return db.firstText(
        QStringLiteral("select gl_djh from jxc_goodslist where ck_sn=? and gl_kdrq>=? and id>? "
                       "and g_sn in (select distinct g_sn from jxc_kcpdsp where gl_djh=?) order "
                       "by id limit 1"),
        { header.warehouse, header.date + QStringLiteral(" 23:59:59"), firstRow, header.number });
}

Outcome refuseLaterBusiness(const shell::Session &session, const StockHeader &header)
{
    const QString later = laterBusiness(session, header);
    if (later.isEmpty())
        return Outcome::done();
    return core::refuse(session.ui(), texts::laterBusiness(header.date, later, header.number));
}

Outcome postStockTaking(shell::Session &session, const QString &number)
{
    const documents::DocumentKind &kind = stockTakingEntry();
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, kind, number, 0);
    if (!header)
        return header.outcome();
    documents::markChecked(session, kind, header->id);
    documents::removeUncheckedCopies(session, kind, number);
    session.db().exec(QStringLiteral("update jxc_kcpdsp set id2=id where gl_djh=?"), { number });
    const int count = insertCountRows(session, header.value());
    ensureSettlementRows(session, session.today());
    const QList<PostedRow> rows = postedRows(session, number);
    for (const PostedRow &row : rows)
        postRow(session, row, true, session.today());
    session.log(texts::stockTakingCheckedLog(number, count));
    bookDifferences(session, header.value(), rows);
    transaction.commit();
    return Outcome::done();
}

Outcome reverseStockTaking(shell::Session &session, const QString &number)
{
    const documents::DocumentKind &kind = stockTakingEntry();
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, kind, number, 1);
    if (!header)
        return header.outcome();
    // Asked again here: another workstation may have posted since the question.
    const Outcome overtaken = refuseLaterBusiness(session, header.value());
    if (!overtaken)
        return overtaken;
    documents::removeUncheckedCopies(session, kind, number);
    for (const PostedRow &row : postedRows(session, number))
        reverseRow(session, row, true);
    documents::markUnchecked(session, kind, number);
    accounts::removeExpenseRows(session, number);
    session.log(texts::stockTakingUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Outcome checkStockTaking(shell::Session &session, const QString &number)
{
    StockHeader header;
    const Outcome outcome
        = prepareCheck(session, stockTakingEntry(), number, stockTakingRights().check, header);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return postStockTaking(session, number); });
}

Outcome uncheckStockTaking(shell::Session &session, const QString &number)
{
    StockHeader header;
    Outcome outcome
        = prepareUncheck(session, stockTakingEntry(), number, stockTakingRights().uncheck, header);
    if (!outcome)
        return outcome;
    if (!session.ui().ask(texts::stockTakingUncheckQuestion()))
        return Outcome::refused(QString());
    outcome = core::guarded(session.ui(), [&] { return refuseLaterBusiness(session, header); });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return reverseStockTaking(session, number); });
}

} // namespace medistock::stock
