#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace medistock::core {

// Writes one sheet of an .xlsx file: a bold header row, then the rows; numbers stay numbers,
// everything else is written as text (codes keep their leading zeros).
Outcome writeXlsx(const QString &path, const QString &sheetName, const QStringList &headers,
    const QList<QVariantList> &rows);

// Reads the first sheet of an .xlsx file as text: every row (the header row included) as a list
// of cells, empty cells as empty text, trailing empty rows left out. Numbers come back in their
// shortest exact form ("12.5", "0.3").
Result<QList<QStringList>> readXlsx(const QString &path);

} // namespace medistock::core
