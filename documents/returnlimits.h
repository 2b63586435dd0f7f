#pragma once

#include "core/outcome.h"
#include "documents/entry.h"
#include "documents/listing.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::documents {

// Where a return's lines point (by id2) to the checked lines they give back, and where other
// returns of those lines are kept.
struct ReturnedLines
{
    const char *header; // "jxc_jhd"
    const char *headerNumber; // "j_sn"
    const char *headerStatus; // "j_status"
    const char *lines; // "jxc_jhsp"
    const char *lineNumber; // "j_sn"
    const char *lineQuantity; // "jh_zsl": the base quantity the line brought
    const char *returnLines; // "jxc_thsp"
    const char *returnQuantity; // "th_zsl"
};

// The texts a return tells: a line that points to no checked line, and a line that returns more
// than is left (its row, the source document's number, what is left in base units).
struct ReturnLimitTexts
{
    QString (*missing)(int row);
    QString (*exceeds)(int row, const QString &source, const QString &left);
};

// A return's lines against what their source lines still hold: the lines of this return that
// point to one source line count together with every other return of it. A line without a link
// (id2 0) is not limited. Sets id2 0 on unlinked lines; tells and refuses the first excess.
Outcome checkReturnedQuantities(const shell::Session &session, ValidDocument &doc,
    const ReturnedLines &source, const ReturnLimitTexts &texts);

// A checked line a return may give back, with what is left of it.
struct ReturnableLine
{
    qint64 lineId = 0; // the source line's id2, which a return line names
    DocumentLineRow line; // as the source document holds it
    double returned = 0; // base units other returns (but `returnNumber`) already give back
    double left = 0; // base units still to return
};

// The lines of the checked source document `sourceNumber` (read through `sourceKind`) with what
// other returns than `returnNumber` have taken of each; lines without an identity are left out.
// Empty when the document is not checked.
QList<ReturnableLine> returnableLines(const shell::Session &session, const DocumentKind &sourceKind,
    const ReturnedLines &source, const QString &sourceNumber, const QString &returnNumber = {});

} // namespace medistock::documents
