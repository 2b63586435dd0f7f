#include "purchasing/entry.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "documents/returnlimits.h"
#include "documents/texts.h"
#include "purchasing/kinds.h"
#include "purchasing/texts.h"
#include "shell/session.h"

#include <QHash>
#include <QSqlRecord>

namespace medistock::purchasing {

namespace {

using documents::ValidDocument;
using documents::ValidLine;

QString name(const char *column)
{
    return QString::fromLatin1(column);
}

Outcome checkHeader(const shell::Session &session, PurchaseHeader &h, bool isReturn)
{
    if (h.settlementMode.isEmpty())
        h.settlementMode = QStringLiteral("1");
    if (h.settlementMode != QLatin1String("1") && h.settlementMode != QLatin1String("2"))
        return core::refuse(session.ui(), texts::settlementModeInvalid(h.settlementMode));
    if (h.account.isEmpty())
        h.account = accounts::cashAccountName();
    if (!accounts::bankAccountExists(session.db(), h.account))
        return core::refuse(session.ui(), accounts::texts::accountMissing(h.account));
    if (!accounts::isFreightTerms(h.freightTerms))
        return core::refuse(session.ui(), texts::freightTermsInvalid(h.freightTerms));
    const QString problem = documents::headerAmountsProblem({
        { documents::texts::paidField(isReturn), h.paid },
        { documents::texts::invoiceAmountField(), h.invoiceAmount },
        { documents::texts::freightField(), h.freight },
        { documents::texts::packingField(), h.packing },
    });
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    return Outcome::done();
}

// The header columns of the kind, each only where its table has it.
void setHeaderColumns(const PurchaseKind &kind, const PurchaseHeader &h, ValidDocument &doc)
{
    const accounts::MoneyColumns &m = kind.money;
    const auto set = [&](const char *column, const QVariant &value) {
        if (*column)
            doc.columns.set(name(column), value);
    };
    set(kind.supplierNumber, core::cleanText(h.supplierNumber, kind.entry.cleaning));
    set(kind.mode, h.settlementMode.toInt());
    set(m.account, h.account);
    set(m.paid, h.paid);
    set(m.invoiceNumber, core::cleanText(h.invoiceNumber, kind.entry.cleaning));
    set(m.invoiceAmount, h.invoiceAmount);
    set(m.freight, h.freight);
    set(m.packing, h.packing);
    set(m.freightMode, h.freightTerms);
    set(kind.paidBack, 0);
}

// A receipt line starts unreceived, not done and without its identity, which the check fixes;
// the discount line too.
void setReceiptLineColumns(documents::ColumnValues &columns)
{
    columns.set(QStringLiteral("jh_rksl"), 0);
    columns.set(QStringLiteral("jh_qxsl"), 0);
    columns.set(QStringLiteral("id2"), 0);
    if (!columns.contains(QStringLiteral("id3")))
        columns.set(QStringLiteral("id3"), 0);
}

Result<QString> save(const shell::Session &session, const PurchaseKind &kind,
    const PurchaseDraft &draft, bool isReturn)
{
    PurchaseHeader header = draft.header;
    const documents::EntryRule rule = [&](const shell::Session &s, ValidDocument &doc) {
        const Outcome checked = checkHeader(s, header, isReturn);
        if (!checked)
            return checked;
        setHeaderColumns(kind, header, doc);
        // Marks that later business sets (finished, returned, taken over) start clear.
        const QStringList marks = isReturn ? QStringList { QStringLiteral("th_qk") }
                                           : QStringList { QStringLiteral("j_th"),
                                                 QStringLiteral("j_crk"), QStringLiteral("j_qk") };
        for (const QString &column : marks)
            doc.columns.set(column, 0);
        if (!isReturn) {
            for (ValidLine &line : doc.lines)
                setReceiptLineColumns(line.columns);
            setReceiptLineColumns(doc.discountColumns);
            return Outcome::done();
        }
        return documents::checkReturnedQuantities(s, doc, receiptReturnLinks(),
            { texts::receiptLineMissing, texts::returnExceedsReceipt });
    };
    return documents::saveDocument(session, kind.entry, draft.entry, rule);
}

} // namespace

Result<QString> savePurchaseReceipt(const shell::Session &session, const PurchaseDraft &draft)
{
    return save(session, purchaseReceipt(), draft, false);
}

Result<QString> savePurchaseReturn(const shell::Session &session, const PurchaseDraft &draft)
{
    return save(session, purchaseReturn(), draft, true);
}

Outcome deletePurchaseReceipt(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, purchaseReceipt().entry, number);
}

Outcome deletePurchaseReturn(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, purchaseReturn().entry, number);
}

} // namespace medistock::purchasing
