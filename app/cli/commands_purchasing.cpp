// Commands of purchasing: the purchase receipt "CJ" and the purchase return "CT" for save FILE,
// check, uncheck, delete and show, reached through the document registry by prefix.
#include "app/cli/entryjson.h"
#include "app/cli/registry.h"

#include "core/numbers.h"
#include "purchasing/entry.h"
#include "purchasing/kinds.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "shell/session.h"

#include <QJsonArray>

namespace medistock::cli {

namespace {

using namespace medistock::purchasing;

// The purchase header's own fields in JSON, by the kind's column names.
QStringList ownHeaderFields(const PurchaseKind &kind)
{
    QStringList fields;
    const accounts::MoneyColumns &m = kind.money;
    for (const char *column : { kind.supplierNumber, kind.mode, m.account, m.paid, m.invoiceNumber,
             m.invoiceAmount, m.freight, m.packing, m.freightMode })
        if (*column)
            fields.append(QString::fromLatin1(column));
    return fields;
}

PurchaseHeader headerFromJson(Context &context, const PurchaseKind &kind, const QJsonObject &o)
{
    const accounts::MoneyColumns &m = kind.money;
    const auto text = [&](const char *column) {
        return *column ? jsonText(o, QString::fromLatin1(column)) : QString();
    };
    const auto number = [&](const char *column) {
        return *column ? jsonNumber(context, o, QString::fromLatin1(column)) : 0.0;
    };
    PurchaseHeader h;
    h.supplierNumber = text(kind.supplierNumber);
    h.settlementMode = text(kind.mode);
    h.account = text(m.account);
    h.paid = number(m.paid);
    h.invoiceNumber = text(m.invoiceNumber);
    h.invoiceAmount = number(m.invoiceAmount);
    h.freight = number(m.freight);
    h.packing = number(m.packing);
    h.freightTerms = text(m.freightMode);
    return h;
}

int saveFile(Context &context, const QJsonObject &o, bool isReturn)
{
    const PurchaseKind &kind = isReturn ? purchaseReturn() : purchaseReceipt();
    const QStringList lineFields
        = isReturn ? QStringList { QStringLiteral("id2") } : QStringList {};
    PurchaseDraft draft;
    draft.entry = draftFromJson(context, kind.entry, o, ownHeaderFields(kind), lineFields);
    draft.header = headerFromJson(context, kind, o);
    if (isReturn) {
        const QJsonArray lines = o.value(QStringLiteral("lines")).toArray();
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QJsonObject line = lines[i].toObject();
            if (line.contains(QStringLiteral("id2")))
                draft.entry.lines[i].columns.set(QStringLiteral("id2"),
                    qint64(jsonNumber(context, line, QStringLiteral("id2"))));
        }
    }
    shell::Session &session = context.session();
    const Result<QString> saved
        = isReturn ? savePurchaseReturn(session, draft) : savePurchaseReceipt(session, draft);
    context.out() << valueOf(saved) << Qt::endl;
    return ExitDone;
}

CheckInput checkInput(Context &context, Args &args)
{
    CheckInput input;
    if (const auto paid = args.option(QStringLiteral("--paid")))
        input.paid = valueOrReport(context,
            core::readNumber(QStringLiteral("金额（--paid）"), *paid, core::NumberKind::Amount));
    input.mode = args.option(QStringLiteral("--mode"));
    input.account = args.option(QStringLiteral("--account"));
    input.note = args.option(QStringLiteral("--note"));
    requireNoMore(context, args);
    return input;
}

int finish(Context &context, const Outcome &outcome, const QString &done, const QString &number)
{
    require(outcome);
    context.out() << done << number << Qt::endl;
    return ExitDone;
}

DocumentKind documentKind(const PurchaseKind &kind, bool isReturn)
{
    const auto check = isReturn ? checkPurchaseReturn : checkPurchaseReceipt;
    const auto uncheck = isReturn ? uncheckPurchaseReturn : uncheckPurchaseReceipt;
    const auto remove = isReturn ? deletePurchaseReturn : deletePurchaseReceipt;
    const documents::DocumentKind &entry = kind.entry;
    return { QString::fromLatin1(entry.prefix), QString::fromUtf8(entry.title),
        [isReturn](Context &c, const QJsonObject &o) { return saveFile(c, o, isReturn); },
        [check](Context &c, const QString &number, Args &a) {
            const CheckInput input = checkInput(c, a);
            return finish(c, check(c.session(), number, input), QStringLiteral("已审核："), number);
        },
        [uncheck](Context &c, const QString &number, Args &a) {
            requireNoMore(c, a);
            return finish(c, uncheck(c.session(), number), QStringLiteral("已取消审核："), number);
        },
        [remove](Context &c, const QString &number, Args &a) {
            requireNoMore(c, a);
            return finish(c, remove(c.session(), number), QStringLiteral("已删除："), number);
        },
        [&entry](Context &c, const QString &number, Args &a) {
            return showDocumentJson(c, entry, number, a);
        } };
}

} // namespace

void addPurchasingCommands(Registry &registry)
{
    registry.documents().add(documentKind(purchaseReceipt(), false));
    registry.documents().add(documentKind(purchaseReturn(), true));
}

} // namespace medistock::cli
