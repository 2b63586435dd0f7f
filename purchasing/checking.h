#pragma once

#include "core/outcome.h"
#include "purchasing/kinds.h"
#include "stock/movement.h"

#include <QString>

#include <functional>
#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::purchasing {

// The check dialog "单据审核确认": what the operator confirms before approving. Each field left
// empty keeps what the document was saved with.
struct CheckInput
{
    std::optional<double> paid; // paid on a receipt, received on a return
    std::optional<QString> mode; // "1" 按实付款结算, "2" 余款记入应付帐
    std::optional<QString> account;
    std::optional<QString> note; // cleaned at medium strength
};

// The header of a purchase document as check and uncheck read it; a checked row wins over a
// stray unchecked copy of the same number.
struct PurchaseHeaderRow
{
    qint64 id = 0;
    QString number;
    QString date;
    QString warehouse;
    QString employee;
    QString checker;
    QString note;
    QString mode;
    QString account;
    double paid = 0;
    double discount = 0;
    int status = 0;
};
std::optional<PurchaseHeaderRow> readPurchaseHeader(
    const shell::Session &session, const PurchaseKind &kind, const QString &number);

// What a check writes into the header: the dialog's values over the saved ones.
struct CheckValues
{
    double paid = 0;
    QString mode;
    QString account;
    QString note;
};

// Before a check asks anything: the check right, the document there, the closed-period test,
// the dialog's values (note cleaned, mode 1 or 2, an existing account). A document already
// checked passes with `header.status` 1 and nothing else asked: its check only removes a stray
// unchecked copy (removeStrayCopies). Tells its refusals.
Outcome prepareCheck(const shell::Session &session, const PurchaseKind &kind, const QString &number,
    const CheckInput &input, PurchaseHeaderRow &header, CheckValues &values);

// Before an uncheck asks anything: the uncheck right (refused with `noRight`), the kind's own
// refusal `afterRight` (a text, empty when there is none), the document checked, the checker rule,
// the closed-period test. Tells its refusals.
Outcome prepareUncheck(const shell::Session &session, const PurchaseKind &kind,
    const QString &number, const QString &noRight, PurchaseHeaderRow &header,
    const std::function<QString()> &afterRight = {});

// A document checked already (here or on another workstation) is not posted again: only an
// unchecked copy of its number left beside it is removed, in a transaction of its own.
Outcome removeStrayCopies(
    const shell::Session &session, const PurchaseKind &kind, const QString &number);

// The check's transaction, in the order of the rules: the status read again; the header marked
// checked with the dialog's values and read once; the discount line; the money postings; the
// kind's stock posting `postStock` with that header; an unchecked copy of the number removed.
Outcome postCheck(shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const CheckValues &values,
    const std::function<void(const stock::PostingHeader &)> &postStock);

// The uncheck's transaction: the status read again; the log line `log`; an unchecked copy
// removed; the kind's stock reversal and links `reverse`, given the number, date and warehouse
// read before; the header reset; every money row removed with its recalculations.
Outcome postUncheck(shell::Session &session, const PurchaseKind &kind,
    const PurchaseHeaderRow &header, const QString &log,
    const std::function<void(const stock::PostingHeader &)> &reverse);

} // namespace medistock::purchasing
