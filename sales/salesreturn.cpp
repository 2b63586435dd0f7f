#include "sales/salesreturn.h"

#include "accounts/documentsupport.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/returnlimits.h"
#include "documents/texts.h"
#include "sales/checksupport.h"
#include "sales/entry.h"
#include "sales/entrysupport.h"
#include "sales/kinds.h"
#include "sales/members.h"
#include "sales/options.h"
#include "sales/salestock.h"
#include "sales/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/checks.h"
#include "stock/costs.h"

#include <QHash>
#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::sales {

namespace {

using documents::ValidDocument;
using documents::ValidLine;

const CostColumns returnCosts { "", "th_cbj", "th_zcb", "th_lsj" };

// A return line gives back what its sales line still holds.
const documents::ReturnedLines soldLines { "jxc_lsxsd", "gl_djh", "ls_status", "jxc_lsxssp",
    "gl_djh", "ls_zsl", "jxc_xsthsp", "th_zsl" };

// The amounts due and refunded are stored negated, as the ledger's one formula reads them.
void setReturnHeaderColumns(const shell::Session &session, const SaleHeader &h, ValidDocument &doc)
{
    const int decimals = session.params().amountDecimals();
    const auto set = [&](const char *column, const QVariant &value) {
        doc.columns.set(QString::fromLatin1(column), value);
    };
    set("th_jsfs", h.settlementMode.toInt());
    set("th_kmmc", h.account);
    set("th_yfje", -documentDue(session, doc));
    set("th_sfje", -core::roundTo(h.paid, decimals));
    set("th_fpno", h.invoiceNumber);
    set("th_fpje", -core::roundTo(h.invoiceAmount, decimals));
    set("th_hkje", 0);
    set("th_qk", 0);
}

Outcome returnRule(const shell::Session &session, SaleHeader &header, ValidDocument &doc)
{
    Outcome outcome = checkSaleHeader(session, header, true);
    if (outcome)
        outcome = documents::checkReturnedQuantities(
            session, doc, soldLines, { texts::saleLineMissing, texts::returnExceedsSale });
    if (!outcome)
        return outcome;
    setReturnHeaderColumns(session, header, doc);
    for (ValidLine &line : doc.lines)
        setLineCost(session, returnCosts, line,
            stock::costAsOf(session, line.goods, doc.warehouse, doc.date));
    return confirmSave(session,
        checksOnSave(session.params()) ? texts::saveAndCheckQuestion()
                                       : texts::saveReturnQuestion());
}

// A return made against a sale marks that sale as returned.
void markReturnedSales(const shell::Session &session, const QString &number)
{
    session.db().exec(QStringLiteral("update jxc_lsxsd set ls_th=? where gl_djh in (select "
                                     "b.gl_djh from jxc_xsthsp a,jxc_lsxssp b where a.gl_djh=? "
                                     "and a.id2>0 and b.id2=a.id2)"),
        { 1, number });
}

Outcome post(shell::Session &session, const QString &number, const CheckRow &row)
{
    const CheckKind &kind = returnChecking();
    core::Transaction transaction(session.db());
    if (documents::documentStatus(session.db(), kind.entry, number) != 1) {
        documents::markChecked(session, kind.entry, row.id);
        documents::removeUncheckedCopies(session, kind.entry, number);
        const accounts::MoneyHeader header = readPostedHeader(session, kind, number);
        postMoney(session, kind, header);
        const int goods = postReturnStock(session, postingHeader(header));
        countReturnedOnSales(session, number, 1);
        postMemberEffects(session, number, MemberEvent::ReturnChecked);
        session.log(texts::returnCheckedLog(number, goods));
    } else {
        documents::removeUncheckedCopies(session, kind.entry, number);
    }
    transaction.commit();
    return Outcome::done();
}

// The sales lines it returned give back what it returned, and a sale with a line not wholly
// issued is open for issuing again.
void freeReturnedSales(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    QList<qint64> lines;
    db.forEach(QStringLiteral("select id2 from jxc_xsthsp where gl_djh=? and id2>0 order by id"),
        { number }, [&](const QSqlQuery &q) { lines.append(q.value(0).toLongLong()); });
    countReturnedOnSales(session, number, -1);
    for (const qint64 id2 : lines) {
        const QString sale = db.firstText(
            QStringLiteral("select gl_djh from jxc_lsxssp where id2=? order by id limit 1"),
            { id2 });
        if (db.exists(QStringLiteral("select id from jxc_lsxssp where ls_sl>ls_cksl+ls_qxsl and "
                                     "gl_djh=? limit 1"),
                { sale }))
            db.exec(QStringLiteral("update jxc_lsxsd set ls_crk=? where gl_djh=?"), { 0, sale });
    }
    db.exec(QStringLiteral("update jxc_xsthsp set id2=? where gl_djh=?"), { 0, number });
    db.exec(QStringLiteral("update jxc_xsthd set th_note=? where gl_djh=?"), { QString(), number });
}

Outcome unpost(shell::Session &session, const CheckRow &row)
{
    const CheckKind &kind = returnChecking();
    const QString &number = row.number;
    core::Transaction transaction(session.db());
    const Outcome checked = documents::requireStatus(session, kind.entry, number, 1);
    if (!checked)
        return checked;
    documents::removeUncheckedCopies(session, kind.entry, number);
    reverseReturnStock(session, reversalHeader(row));
    freeReturnedSales(session, number);
    postMemberEffects(session, number, MemberEvent::ReturnUnchecked);
    deletePosRows(session, number);
    markUnchecked(session, kind, number);
    accounts::removeDocumentPostings(session, number);
    session.log(texts::returnUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Result<QString> saveSalesReturn(shell::Session &session, const SaleDraft &draft)
{
    SaleHeader header = draft.header;
    documents::DocumentDraft entry = draft.entry;
    fillCustomerPrices(session, entry);
    const Result<QString> saved = documents::saveDocument(
        session, salesReturnKind(), entry,
        [&](const shell::Session &s, ValidDocument &doc) { return returnRule(s, header, doc); },
        [](const shell::Session &s, const ValidDocument &, const QString &number) {
            markReturnedSales(s, number);
        });
    if (saved && checksOnSave(session.params()))
        checkSalesReturn(session, saved.value(), CheckStart::OnSave);
    return saved;
}

Outcome deleteSalesReturn(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, salesReturnKind(), number);
}

QList<documents::ReturnableLine> returnableSaleLines(
    const shell::Session &session, const QString &sale, const QString &returnNumber)
{
    return documents::returnableLines(session, saleKind(), soldLines, sale, returnNumber);
}

Outcome checkSalesReturn(shell::Session &session, const QString &number, CheckStart start)
{
    const CheckKind &kind = returnChecking();
    if (start == CheckStart::Listed) {
        const Outcome allowed = shell::requireRight(session, "xsgl", kind.checkRight);
        if (!allowed)
            return allowed;
    }
    CheckRow row;
    bool lines = false;
    const Outcome ready = core::guarded(session.ui(), [&] {
        const auto found = readCheckRow(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        row = *found;
        lines = hasLines(session, kind, number);
        if (!lines || row.status == 1)
            return Outcome::done();
        return documents::requireOpenPeriod(session, row.date);
    });
    if (!ready)
        return ready;
    if (!lines)
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] { return post(session, number, row); });
}

Outcome uncheckSalesReturn(shell::Session &session, const QString &number)
{
    CheckRow row;
    Outcome outcome = prepareUncheck(session, returnChecking(), number, row);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return stock::confirmBatchCheck(session, number, row.warehouse, QStringLiteral("XT"));
        });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return unpost(session, row); });
}

} // namespace medistock::sales
