#include "sales/salesreturn.h"

#include "accounts/documentsupport.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
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

constexpr double margin = 0.000000001;
const CostColumns returnCosts { "", "th_cbj", "th_zcb", "th_lsj" };

struct SoldLine
{
    QString sale;
    double quantity = 0; // ls_zsl
    double returned = 0; // by the lines of other returns
};

std::optional<SoldLine> soldLine(
    core::Connection &db, qint64 id2, const QString &goods, const QString &returnNumber)
{
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select b.gl_djh,b.ls_zsl from jxc_lsxssp b,jxc_lsxsd a where b.id2=? and "
                       "b.g_sn=? and a.gl_djh=b.gl_djh and a.ls_status=? order by b.id limit 1"),
        { id2, goods, 1 });
    if (row.isEmpty())
        return std::nullopt;
    const double returned
        = db.firstValue(QStringLiteral("select sum(th_zsl) from jxc_xsthsp where id2=? and g_sn=? "
                                       "and gl_djh<>?"),
                { id2, goods, returnNumber })
              .toDouble();
    return SoldLine { row.value(0).toString(), row.value(1).toDouble(), returned };
}

// Lines of this return against the same sales line count together.
Outcome checkReturnedLines(const shell::Session &session, ValidDocument &doc)
{
    QHash<qint64, double> taken;
    for (ValidLine &line : doc.lines) {
        const qint64 id2 = line.columns.value(QStringLiteral("id2")).toLongLong();
        line.columns.set(QStringLiteral("id2"), id2 > 0 ? id2 : 0);
        if (id2 <= 0)
            continue;
        const auto sold = soldLine(session.db(), id2, line.goods, doc.number);
        if (!sold)
            return core::refuse(session.ui(), texts::saleLineMissing(line.row));
        taken[id2] += line.figures.baseQuantity;
        const double left = sold->quantity - sold->returned;
        if (taken[id2] > left + margin)
            return core::refuse(session.ui(),
                texts::returnExceedsSale(line.row, sold->sale,
                    accounts::plainNumber(
                        core::roundTo(left, session.params().quantityDecimals()))));
    }
    return Outcome::done();
}

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
    Outcome outcome = checkSaleHeader(session, header);
    if (outcome)
        outcome = checkReturnedLines(session, doc);
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
        markChecked(session, kind, row.id);
        removeUncheckedCopies(session, kind, number);
        postMoney(session, kind, number);
        const int goods = postReturnStock(session, number);
        memberPointsNotKeptYet(session, number, MemberEvent::ReturnChecked);
        session.log(texts::returnCheckedLog(number, goods));
    } else {
        removeUncheckedCopies(session, kind, number);
    }
    transaction.commit();
    return Outcome::done();
}

// The sales lines it returned are free again, and a sale with a line not wholly issued is open
// for issuing again.
void freeReturnedSales(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    QList<qint64> lines;
    db.forEach(QStringLiteral("select id2 from jxc_xsthsp where gl_djh=? and id2>0 order by id"),
        { number }, [&](const QSqlQuery &q) { lines.append(q.value(0).toLongLong()); });
    for (const qint64 id2 : lines) {
        db.exec(QStringLiteral("update jxc_lsxssp set ls_qxsl=? where id2=?"), { 0, id2 });
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

Outcome unpost(shell::Session &session, const QString &number)
{
    const CheckKind &kind = returnChecking();
    core::Transaction transaction(session.db());
    const Outcome checked = requireStatus(session, kind, number, 1);
    if (!checked)
        return checked;
    removeUncheckedCopies(session, kind, number);
    reverseReturnStock(session, number);
    freeReturnedSales(session, number);
    memberPointsNotKeptYet(session, number, MemberEvent::ReturnUnchecked);
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
    const Result<QString> saved = documents::saveDocument(
        session, salesReturnKind(), draft.entry,
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
    return core::guarded(session.ui(), [&] { return unpost(session, number); });
}

} // namespace medistock::sales
