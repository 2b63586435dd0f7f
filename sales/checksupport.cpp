#include "sales/checksupport.h"

#include "core/connection.h"
#include "core/operation.h"
#include "documents/entry.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "sales/kinds.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::sales {

namespace {

QLatin1String name(const char *column)
{
    return QLatin1String(column);
}

} // namespace

const CheckKind &saleChecking()
{
    static const CheckKind kind { saleKind(), accounts::saleMoney(), "ls_jsfs", "ls_hkje",
        "ls_dhbz", rights::checkSale, rights::uncheckSale };
    return kind;
}

const CheckKind &returnChecking()
{
    static const CheckKind kind { salesReturnKind(), accounts::salesReturnMoney(), "th_jsfs",
        "th_hkje", "th_qk", rights::checkReturn, rights::uncheckReturn };
    return kind;
}

std::optional<CheckRow> readCheckRow(
    const shell::Session &session, const CheckKind &kind, const QString &number)
{
    const documents::HeaderColumns &h = kind.entry.header;
    const accounts::MoneyColumns &m = kind.money;
    const QSqlRecord r = session.db().firstRow(
        QStringLiteral("select id,%1,%2,%3,%4,%5,%6,%7,%8,%9 from %10 where %1=? order by %9 "
                       "desc,id limit 1")
            .arg(name(h.number), name(h.date), name(h.party), name(h.warehouse), name(h.checker),
                name(kind.mode), name(m.due), name(m.paid), name(h.status), name(h.table)),
        { number });
    if (r.isEmpty())
        return std::nullopt;
    return CheckRow { r.value(0).toLongLong(), r.value(1).toString(), r.value(2).toString(),
        r.value(3).toString(), r.value(4).toString(), r.value(5).toString(), r.value(6).toString(),
        r.value(7).toDouble(), r.value(8).toDouble(), r.value(9).toInt() };
}

bool hasLines(const shell::Session &session, const CheckKind &kind, const QString &number)
{
    const documents::LineColumns &l = kind.entry.lines;
    return session.db().exists(
        QStringLiteral("select id from %1 where %2=? limit 1").arg(name(l.table), name(l.number)),
        { number });
}

Outcome prepareUncheck(
    const shell::Session &session, const CheckKind &kind, const QString &number, CheckRow &row)
{
    return core::guarded(session.ui(), [&] {
        const auto found = readCheckRow(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (found->status != 1)
            return core::refuse(session.ui(), documents::texts::notChecked(number));
        row = *found;
        Outcome outcome = shell::requireRight(session, "xsgl", kind.uncheckRight);
        if (outcome)
            outcome = documents::requireUncheckByChecker(
                session, number, row.checker, "xsgl", kind.uncheckRight);
        if (outcome)
            outcome = documents::requireOpenPeriod(session, row.date);
        return outcome;
    });
}

void markUnchecked(const shell::Session &session, const CheckKind &kind, const QString &number)
{
    documents::markUnchecked(session, kind.entry, number,
        { QString::fromLatin1(kind.closedMark), QString::fromLatin1(kind.paidBack) });
}

accounts::MoneyHeader readPostedHeader(
    const shell::Session &session, const CheckKind &kind, const QString &number)
{
    return accounts::requireMoneyHeader(session.db(), kind.money, number);
}

stock::PostingHeader postingHeader(const accounts::MoneyHeader &h)
{
    return { h.number, h.date, h.warehouse, h.warehouseName, h.party, h.partyName, h.salesman,
        h.salesmanName, h.note, h.sourceNumber };
}

stock::PostingHeader reversalHeader(const CheckRow &row)
{
    return { .number = row.number, .date = row.date, .warehouse = row.warehouse };
}

void postMoney(
    shell::Session &session, const CheckKind &kind, accounts::MoneyHeader header, double writtenOff)
{
    header.discount = writtenOff;
    header.due -= writtenOff;
    accounts::postDocumentMoney(session, kind.money, header);
}

void deletePosRows(const shell::Session &session, const QString &number)
{
    session.db().exec(QStringLiteral("delete from jxc_posxsd where gl_djh=?"), { number });
    session.db().exec(QStringLiteral("delete from jxc_posxssp where gl_djh=?"), { number });
}

} // namespace medistock::sales
