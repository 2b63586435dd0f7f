#pragma once

#include "core/outcome.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

// The kinds that can be imported from a spreadsheet.
bool isImportable(const MasterKind &kind);

// A spreadsheet column and the field it feeds; an empty column means the header was not
// recognised and the column is left out.
struct ImportColumn
{
    QString header;
    QString column;
    QString label; // the field's caption, for the preview
};

// A data row of the spreadsheet: its line number in the file, the values it gives, and why it is
// rejected (empty when it is accepted).
struct ImportRow
{
    int line = 0;
    Values values;
    QString reason;
};

struct ImportPlan
{
    QList<ImportColumn> columns;
    QList<ImportRow> rows;
    int accepted() const;
    int rejected() const;
};

// Reads the file's first sheet, maps its header row to fields (column names, the import field
// names of jxc_import, or the screen labels an export writes) and checks every row as an add
// would, also against the rows above it. Writes nothing.
Result<ImportPlan> planImport(
    const shell::Session &session, const MasterKind &kind, const QString &path);

// Writes the accepted rows of a plan in one transaction, checking each again: all of them, or,
// when one no longer passes, none. Returns the number written.
Result<int> runImport(
    const shell::Session &session, const MasterKind &kind, const ImportPlan &plan);

// The columns an export writes: those with a screen label, without the figures the system keeps
// itself (stock, last purchase price).
QStringList exportColumns(const MasterKind &kind);
// The header texts of those columns (a label that appears twice carries its column name).
QStringList exportHeaders(const MasterKind &kind);
// Writes every row of the list to an .xlsx file.
Outcome exportMasterRows(core::Connection &db, const MasterKind &kind, const QString &path);

} // namespace medistock::masterdata
