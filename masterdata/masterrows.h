#pragma once

#include "core/outcome.h"
#include "masterdata/kinds.h"

#include <QHash>
#include <QList>
#include <QSqlRecord>
#include <QVariant>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

class Mnemonics;

// Column name -> value as typed (text) or as a number/flag.
using Values = QHash<QString, QVariant>;

// A row's key: its code, or its name in lists without a code.
QString keyColumn(const MasterKind &kind);

// Checks and converts a row's values for writing, without writing: names of the table only;
// numbers, whole numbers, flags and dates by the column's type; text within its width and cleaned
// (medium strength: brackets, plus, minus and slash stay, as drug names and pack sizes need
// them); the name required and, in lists that ask for it, unique; the code unique; the mnemonic
// filled from the name when it is not given. `existingKey` is empty for a new row, which also
// takes the list's defaults for the columns not given.
Result<Values> prepareMasterRow(core::Connection &db, const MasterKind &kind, Values values,
    const QString &existingKey, const Mnemonics &mnemonics);

// Every change of a list needs the list's right (see MasterKind::right).
Outcome requireListRight(const shell::Session &session, const MasterKind &kind);

// Adds a row. An empty code takes the next code (for goods, see goodsCodeFor). Columns left out
// start as 0 (numbers and flags) or empty text, with the list's own defaults. Returns the key.
Result<QString> addMasterRow(const shell::Session &session, const MasterKind &kind, Values values);
// Changes the given columns of the row with this key.
Outcome updateMasterRow(
    const shell::Session &session, const MasterKind &kind, const QString &key, Values values);
// Sets or clears the list's disabled flag (g_jy, kh_forbid, ghs_forbid, u_jy).
Outcome setMasterDisabled(
    const shell::Session &session, const MasterKind &kind, const QString &key, bool disabled);
// Deletes a row that nothing refers to; otherwise refuses, naming what refers to it.
Outcome deleteMasterRow(const shell::Session &session, const MasterKind &kind, const QString &key);

// The rows whose code, name, mnemonic or (for goods) barcode contains the text, in id order;
// every row when the text is empty.
QList<QSqlRecord> searchMasterRows(
    core::Connection &db, const MasterKind &kind, const QString &text);
// The row with this key; an empty record when there is none.
QSqlRecord masterRow(core::Connection &db, const MasterKind &kind, const QString &key);

// Writes a prepared new row inside the caller's transaction (import and add share it).
QString insertPreparedRow(const shell::Session &session, const MasterKind &kind, Values values);

} // namespace medistock::masterdata
