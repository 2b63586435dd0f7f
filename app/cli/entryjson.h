#pragma once

#include "app/cli/args.h"
#include "documents/entry.h"

#include <QJsonObject>
#include <QStringList>

namespace medistock::cli {

class Context;

// Goods documents on the command line, read and shown through their descriptor.

// The shared fields of `save FILE`: the descriptor's header columns (number, date, party,
// warehouses, employee, note, discount) and "lines", an array of objects with the descriptor's
// line columns (goods, unit, quantity, price, tax rate, discount rate, remark, batch, production
// date, expiry). Numbers may be JSON numbers or text. A kind lists the further fields it reads
// itself; any other field stops with a usage error. A missing date is today.
documents::DocumentDraft draftFromJson(Context &context, const documents::DocumentKind &kind,
    const QJsonObject &object, const QStringList &ownHeaderFields = {},
    const QStringList &ownLineFields = {});

// The document as JSON: every header column, and "lines" with every column of each line.
QJsonObject documentJson(const documents::StoredDocument &document);

// show NUMBER: the document as indented JSON on standard output; a missing document is refused.
int showDocumentJson(
    Context &context, const documents::DocumentKind &kind, const QString &number, Args &args);

} // namespace medistock::cli
