#include "purchasing/checking.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "documents/entry.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "purchasing/texts.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::purchasing {

namespace {

QString name(const char *column)
{
    return QString::fromLatin1(column);
}

Outcome readDialog(const shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const CheckInput &input, CheckValues &values)
{
    values.paid = input.paid.value_or(header.paid);
    values.mode = input.mode.value_or(header.mode).trimmed();
    values.account = input.account.value_or(header.account).trimmed();
    values.note = core::cleanText(input.note.value_or(header.note), core::CleanStrength::Medium);
    if (values.mode.isEmpty())
        values.mode = QStringLiteral("1");
    if (values.mode != QLatin1String("1") && values.mode != QLatin1String("2"))
        return core::refuse(session.ui(), texts::settlementModeInvalid(values.mode));
    if (values.account.isEmpty())
        values.account = accounts::cashAccountName();
    if (!accounts::bankAccountExists(session.db(), values.account))
        return core::refuse(session.ui(), accounts::texts::accountMissing(values.account));
    const QString problem = documents::headerAmountProblem(
        documents::texts::paidField(&kind == &purchaseReturn()), values.paid);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    return Outcome::done();
}

} // namespace

std::optional<PurchaseHeaderRow> readPurchaseHeader(
    const shell::Session &session, const PurchaseKind &kind, const QString &number)
{
    const documents::HeaderColumns &h = kind.entry.header;
    const accounts::MoneyColumns &m = kind.money;
    // A return keeps no discount: its header reads the status once more in that place.
    const QString discount = *m.discount ? name(m.discount) : name(h.status);
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select id,%1,%2,%3,%4,%5,%6,%7,%8,%9,%10,%11 from %12 where %1=? order by "
                       "%11 desc,id limit 1")
            .arg(name(h.number), name(h.date), name(h.warehouse), name(h.employee), name(h.checker),
                name(h.note), name(kind.mode), name(m.account), name(m.paid), discount,
                name(h.status), name(h.table)),
        { number });
    if (row.isEmpty())
        return std::nullopt;
    PurchaseHeaderRow r;
    r.id = row.value(0).toLongLong();
    r.number = row.value(1).toString();
    r.date = row.value(2).toString();
    r.warehouse = row.value(3).toString();
    r.employee = row.value(4).toString();
    r.checker = row.value(5).toString();
    r.note = row.value(6).toString();
    r.mode = row.value(7).toString();
    r.account = row.value(8).toString();
    r.paid = row.value(9).toDouble();
    r.discount = *m.discount ? row.value(10).toDouble() : 0;
    r.status = row.value(11).toInt();
    return r;
}

Outcome prepareCheck(const shell::Session &session, const PurchaseKind &kind, const QString &number,
    const CheckInput &input, PurchaseHeaderRow &header, CheckValues &values)
{
    return core::guarded(session.ui(), [&] {
        const Outcome outcome = shell::requireRight(session, "cggl", kind.checkRight);
        if (!outcome)
            return outcome;
        const auto found = readPurchaseHeader(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        header = *found;
        if (header.status == 1)
            return Outcome::done();
        const Outcome open = documents::requireOpenPeriod(session, header.date);
        if (!open)
            return open;
        return readDialog(session, kind, header, input, values);
    });
}

Outcome prepareUncheck(const shell::Session &session, const PurchaseKind &kind,
    const QString &number, const QString &noRight, PurchaseHeaderRow &header,
    const std::function<QString()> &afterRight)
{
    return core::guarded(session.ui(), [&] {
        if (!shell::hasRight(session, QStringLiteral("cggl"), kind.uncheckRight))
            return core::refuse(session.ui(), noRight);
        if (const QString refusal = afterRight ? afterRight() : QString(); !refusal.isEmpty())
            return core::refuse(session.ui(), refusal);
        const auto found = readPurchaseHeader(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (found->status != 1)
            return core::refuse(session.ui(), documents::texts::notChecked(number));
        header = *found;
        const Outcome outcome = documents::requireUncheckByChecker(
            session, number, header.checker, "cggl", kind.uncheckRight);
        if (!outcome)
            return outcome;
        return documents::requireOpenPeriod(session, header.date);
    });
}

Outcome removeStrayCopies(
    const shell::Session &session, const PurchaseKind &kind, const QString &number)
{
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        documents::removeUncheckedCopies(session, kind.entry, number);
        transaction.commit();
        return Outcome::done();
    });
}

namespace {

// Status 1 with the dialog's values; then the header as the postings take it, read once.
accounts::MoneyHeader markChecked(const shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const CheckValues &values)
{
    const accounts::MoneyColumns &m = kind.money;
    documents::ColumnValues confirmed;
    confirmed.set(name(kind.mode), values.mode.toInt());
    confirmed.set(name(m.paid), values.paid);
    confirmed.set(name(m.note), values.note);
    confirmed.set(name(m.account), values.account);
    documents::markChecked(session, kind.entry, header.id, confirmed);
    return accounts::requireMoneyHeader(session.db(), m, header.number);
}

stock::PostingHeader postingHeader(const accounts::MoneyHeader &h)
{
    return { h.number, h.date, h.warehouse, h.warehouseName, h.party, h.partyName, h.salesman,
        h.salesmanName, h.note, h.sourceNumber };
}

} // namespace

Outcome postCheck(shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const CheckValues &values,
    const std::function<void(const stock::PostingHeader &)> &postStock)
{
    return core::guarded(session.ui(), [&] {
        const QString &number = header.number;
        core::Transaction transaction(session.db());
        const Outcome unchecked = documents::requireStatus(session, kind.entry, number, 0);
        if (!unchecked)
            return unchecked;
        const accounts::MoneyHeader posted = markChecked(session, kind, header, values);
        if (header.discount != 0)
            documents::writeDiscountLine(session, kind.entry, number, header.discount);
        accounts::postDocumentMoney(session, kind.money, posted);
        postStock(postingHeader(posted));
        documents::removeUncheckedCopies(session, kind.entry, number);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome postUncheck(shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const QString &log,
    const std::function<void(const stock::PostingHeader &)> &reverse)
{
    return core::guarded(session.ui(), [&] {
        const QString &number = header.number;
        core::Transaction transaction(session.db());
        const Outcome checked = documents::requireStatus(session, kind.entry, number, 1);
        if (!checked)
            return checked;
        session.log(log);
        documents::removeUncheckedCopies(session, kind.entry, number);
        reverse({ .number = number, .date = header.date, .warehouse = header.warehouse });
        documents::markUnchecked(session, kind.entry, number, { name(kind.paidBack) });
        accounts::removeDocumentPostings(session, number);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::purchasing
