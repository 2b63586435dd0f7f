#pragma once

#include <QStringList>

namespace medistock::core {
class Connection;
}

namespace medistock::test {

// The rows a database holds, for comparing what two ways of doing the same work wrote (a
// document keyed on its screen against the same document saved and checked on the command
// line). Every table of the file, or those named, each row as "table: column=value|..." in id
// order, without the row ids (which depend on what else a file held) and without the time of day
// (the columns named "*time*": log times, login times).
QStringList businessRows(core::Connection &connection, const QStringList &tables = {});

// The lines of `after` that `before` lacks as "+ …", and those `after` lacks as "- …".
QStringList rowDifferences(const QStringList &before, const QStringList &after);

} // namespace medistock::test
