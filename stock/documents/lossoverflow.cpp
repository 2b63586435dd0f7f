#include "stock/documents/lossoverflow.h"

#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "shell/session.h"
#include "stock/costs.h"
#include "stock/documents/kinds.h"
#include "stock/documents/posting.h"
#include "stock/documents/texts.h"

#include <QSqlQuery>

namespace medistock::stock {

namespace {

// What tells a loss from an overflow.
struct Adjustment
{
    const documents::DocumentKind &entry;
    const char *ledgerKind;
    double sign; // of the ledger quantities and amounts
    QString (*partyName)();
    accounts::ExpenseKind difference;
    QString (*differenceNote)(const QString &number);
};

const Adjustment &loss()
{
    static const Adjustment a { lossEntry(), "bs", -1, texts::lossParty,
        accounts::ExpenseKind::Expense, texts::lossDifferenceNote };
    return a;
}

const Adjustment &overflow()
{
    static const Adjustment a { overflowEntry(), "by", 1, texts::overflowParty,
        accounts::ExpenseKind::Income, texts::overflowDifferenceNote };
    return a;
}

QString title(const Adjustment &a)
{
    return QString::fromUtf8(a.entry.title);
}

LedgerRow adjustmentRow(const shell::Session &session, const Adjustment &a,
    const StockHeader &header, const QSqlQuery &q)
{
    LedgerRow row = documentRow(session, header, QString::fromLatin1(a.ledgerKind));
    row.goods = q.value(0).toString();
    row.price = row.taxedPrice = q.value(1).toDouble();
    row.unitQuantity = q.value(2).toDouble();
    row.quantity = a.sign * row.unitQuantity;
    row.total = row.amount = a.sign * q.value(3).toDouble();
    row.lineNote = q.value(4).toString();
    row.operatorName = q.value(5).toString();
    row.batch = q.value(6).toString();
    row.expiry = q.value(7).toString();
    row.produced = q.value(8).toString();
    copyGoods(row, q, 9);
    row.partyName = a.partyName();
    return row;
}

int insertAdjustmentRows(
    const shell::Session &session, const Adjustment &a, const StockHeader &header)
{
    const documents::LineColumns &l = a.entry.lines;
    QList<LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.g_sn,b.%1,b.%2,b.%3,b.%4,b.a_name,b.t_ph,"
                       "b.t_yxq,b.t_scrq,%5 from %6 b left join jxc_goods c on "
                       "c.g_sn=b.g_sn where b.gl_djh=? order by b.id")
            .arg(QLatin1String(l.price), QLatin1String(l.quantity), QLatin1String(l.total),
                QLatin1String(l.remark), goodsColumns(), QLatin1String(l.table)),
        { header.number },
        [&](const QSqlQuery &q) { rows.append(adjustmentRow(session, a, header, q)); });
    for (const LedgerRow &row : rows)
        insertLedgerRow(session, row);
    return int(rows.size());
}

// The moving average at the row's place, read after the reruns. An average of 0 means that no
// average was ever set for the goods: the row is valued as the cost rule values it then.
double valuationPrice(const shell::Session &session, const PostedRow &row)
{
    if (row.average != 0)
        return row.average;
    return currentCost(session, row.batch.goods, row.batch.warehouse);
}

void bookCostDifference(const shell::Session &session, const Adjustment &a,
    const StockHeader &header, const QList<PostedRow> &rows)
{
    const shell::Parameters &params = session.params();
    double difference = 0;
    for (const PostedRow &row : rows)
        difference += params.roundAmount(row.quantity * valuationPrice(session, row)) - row.amount;
    difference = params.roundAmount(difference);
    if (difference == 0)
        return;
    accounts::appendDocumentExpense(session,
        { a.difference, header.number, header.date, accounts::texts::expenseFlag(a.difference),
            difference, header.employee, a.differenceNote(header.number) });
}

Outcome post(shell::Session &session, const Adjustment &a, const QString &number)
{
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, a.entry, number, 0);
    if (!header)
        return header.outcome();
    documents::markChecked(session, a.entry, header->id);
    documents::removeUncheckedCopies(session, a.entry, number);
    const int lines = insertAdjustmentRows(session, a, header.value());
    ensureSettlementRows(session, session.today());
    for (const PostedRow &row : postedRows(session, number))
        postRow(session, row, true, session.today());
    session.log(texts::adjustmentCheckedLog(title(a), number, lines));
    bookCostDifference(session, a, header.value(), postedRows(session, number));
    transaction.commit();
    return Outcome::done();
}

Outcome reverse(shell::Session &session, const Adjustment &a, const QString &number)
{
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, a.entry, number, 1);
    if (!header)
        return header.outcome();
    documents::removeUncheckedCopies(session, a.entry, number);
    for (const PostedRow &row : postedRows(session, number))
        reverseRow(session, row, true);
    documents::markUnchecked(session, a.entry, number);
    accounts::removeExpenseRows(session, number);
    session.log(texts::adjustmentUncheckedLog(title(a), number));
    transaction.commit();
    return Outcome::done();
}

Outcome check(shell::Session &session, const Adjustment &a, const QString &number)
{
    StockHeader header;
    const Outcome outcome
        = prepareCheck(session, a.entry, number, lossOverflowRights().check, header);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return post(session, a, number); });
}

Outcome uncheck(shell::Session &session, const Adjustment &a, const QString &number)
{
    StockHeader header;
    Outcome outcome
        = prepareUncheck(session, a.entry, number, lossOverflowRights().uncheck, header);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return reverse(session, a, number); });
}

} // namespace

Outcome checkLoss(shell::Session &session, const QString &number)
{
    return check(session, loss(), number);
}

Outcome checkOverflow(shell::Session &session, const QString &number)
{
    return check(session, overflow(), number);
}

Outcome uncheckLoss(shell::Session &session, const QString &number)
{
    return uncheck(session, loss(), number);
}

Outcome uncheckOverflow(shell::Session &session, const QString &number)
{
    return uncheck(session, overflow(), number);
}

} // namespace medistock::stock
