#pragma once

#include "core/outcome.h"
#include "documents/descriptor.h"
#include "documents/lines.h"

#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <utility>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::documents {

// Values of a kind's own columns, written after the shared ones in the order set; a name that
// is also a shared column replaces the shared value. Names must be columns of the table.
class ColumnValues
{
public:
    void set(const QString &column, const QVariant &value);
    bool contains(const QString &column) const;
    QVariant value(const QString &column) const;
    const QList<std::pair<QString, QVariant>> &items() const { return m_items; }

private:
    QList<std::pair<QString, QVariant>> m_items;
};

// One line as the operator typed it. Numbers are kept as typed, so that a wrong one can be named.
struct LineDraft
{
    QString goods; // g_sn
    QString unit; // empty: the goods' base unit
    QString quantity;
    QString price;
    QString taxRate; // empty: 0
    QString discountRate; // empty: 1
    QString batch;
    QString produced; // "yyyy-MM-dd" or empty
    QString expiry; // "yyyy-MM-dd", "yyyy-MM", "0000-00" or empty (documents/expiry.h)
    QString remark;
    ColumnValues columns; // the kind's own line columns
};

// A document as the operator typed it. An empty number saves a new document; a number changes
// that unchecked document.
struct DocumentDraft
{
    QString number;
    QString date; // "yyyy-MM-dd"
    QString party; // supplier or customer code; ignored by kinds without a party
    QString warehouse;
    QString secondWarehouse; // transfers only
    QString employee; // empty: the default employee
    QString note;
    double discount = 0; // the whole-document discount, kinds with a discount column only
    ColumnValues columns; // the kind's own header columns
    QList<LineDraft> lines;
};

// A line that passed the shared checks: goods and unit found, figures computed, texts cleaned.
struct ValidLine
{
    int row = 0; // from 1, as the operator counts
    QString goods;
    QString goodsName;
    QString baseUnit; // the goods' dw_name
    QString unit; // the unit written: the base unit when none was typed
    QString barcode; // of the unit, else of the goods
    LineFigures figures;
    QString batch;
    QString produced;
    QString expiry;
    QString remark;
    ColumnValues columns;
};

// A draft that passed the shared checks. A kind's rule may change figures and add columns.
struct ValidDocument
{
    QString number; // as the draft gave it
    QString date;
    QString party;
    QString partyName;
    QString warehouse;
    QString secondWarehouse;
    QString employee;
    QString note;
    double discount = 0;
    ColumnValues columns;
    QList<ValidLine> lines;
    ColumnValues discountColumns; // the kind's own columns of a new discount line
};

// Checks a draft: date, party, warehouses, employee, the discount, then each line's goods, unit,
// numbers, dates and what its figures add up to, in that order; the first fault is told and
// refused. Reads only.
Result<ValidDocument> validateDraft(
    const shell::Session &session, const DocumentKind &kind, const DocumentDraft &draft);

// The numbers typed on a document, checked as the save checks them (core/numbers.h has the limits):
// screens call these as a cell or field is left, so that it shows the refusal the save would.
// A line's quantity (0 to 100 000 000), price and cost price (0 to 100 000 000), tax rate
// (percent, 0 to 100; empty reads 0) and discount rate (0 to 1; empty reads 1); `row` counts
// from 1.
enum class LineNumber { Quantity, Price, TaxRate, DiscountRate, Cost };
Result<double> readLineNumber(int row, LineNumber which, const QString &typed);
// A header amount (the whole-document discount, the paid amount, an invoice amount, freight): money
// from 0 to 1 000 000 000 000, not NaN; the refusal text naming `label`, empty when it fits.
QString headerAmountProblem(const QString &label, double value);
// A header amount as typed on a screen, read and checked as above; an empty text reads 0. The
// refusal is not told.
Result<double> readHeaderAmount(const QString &label, const QString &typed);
// The same for several amounts of one header, in the order given: the first refusal, or empty.
struct LabelledAmount
{
    QString label;
    double value;
};
QString headerAmountsProblem(const QList<LabelledAmount> &amounts);

// Whatever a kind's rule put into its header and line columns: numbers the columns can hold
// (finite, within ±1 000 000 000 000). Told and refused otherwise; saveDocument runs it after the
// rule, and a kind that builds its columns elsewhere calls it before its transaction.
Outcome checkColumnNumbers(
    const shell::Session &session, const DocumentKind &kind, const ValidDocument &doc);

// A kind's own rules, run after the shared checks and before the save's transaction: it may
// refuse (telling why), ask the operator, change figures or add columns.
using EntryRule = std::function<Outcome(const shell::Session &, ValidDocument &)>;

// A kind's own writes, run inside the save's transaction after the header and lines are written
// and before the log row, with the number the document was saved under (rows of other tables that
// the save marks). It throws DbError to undo the whole save.
using EntryWrite
    = std::function<void(const shell::Session &, const ValidDocument &, const QString &number)>;

// Saves a draft in one transaction and returns its number. A new document takes the next number of
// its date; a change is refused once the document is checked (the status is read again inside the
// transaction), keeps its number while the date keeps its day and takes a new one otherwise. The
// header's due amount is the sum of the line totals less the discount; a discount other than 0
// gets the discount line "00000000". Lines are written anew, in order; then `written`, if any;
// one log row.
Result<QString> saveDocument(const shell::Session &session, const DocumentKind &kind,
    const DocumentDraft &draft, const EntryRule &rule = {}, const EntryWrite &written = {});

// Deletes an unchecked document with its lines in one transaction (refused once checked); logs.
// A kind whose checked documents post nothing (sales orders) passes `checkedQuestion`: a checked
// document is then asked about before the transaction and deleted on "Yes" ("删除已审核..." in
// the log). The status is read again inside the transaction; a change meanwhile is refused.
Outcome deleteDocument(const shell::Session &session, const DocumentKind &kind,
    const QString &number, const QString &checkedQuestion = {});

// A stored document: the header row and its lines in id order.
struct StoredDocument
{
    QSqlRecord header;
    QList<QSqlRecord> lines;
};
std::optional<StoredDocument> readDocument(
    core::Connection &connection, const DocumentKind &kind, const QString &number);

// The header's status (0 unchecked, 1 checked); a checked row wins over a stray unchecked copy of
// the same number. Nothing when there is no such document.
std::optional<int> documentStatus(
    core::Connection &connection, const DocumentKind &kind, const QString &number);

// Writes the whole-document discount line: goods "00000000", no quantity, amount and total
// -discount, so that the lines add up to the due amount. A new line gets `columns` too; an
// existing one only takes the new amount and total; a discount of 0 removes it. Runs inside the
// caller's transaction.
void writeDiscountLine(const shell::Session &session, const DocumentKind &kind,
    const QString &number, double discount, const ColumnValues &columns = {});

} // namespace medistock::documents
