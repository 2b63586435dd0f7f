#pragma once

#include "reports/data.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::reports {

// The name every document template gives its line dataset.
QString linesDatasetName(); // "Lines"

// The lines a document hands its template (see documentData for what they hold and in which
// order). An unknown key gives an empty dataset.
DataSet documentLines(const shell::Session &session, const QString &key, const QString &number,
    const QString &templateName);

} // namespace medistock::reports
