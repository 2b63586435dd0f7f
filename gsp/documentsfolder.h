#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::gsp {

// "GSP管理文档": the folder "gsp" beside the account-set files, where the pharmacy keeps its
// GSP documents (procedures, licences, scans). Made when it is missing; returns its path.
Result<QString> gspDocumentsFolder(const QString &dataFolder);

} // namespace medistock::gsp
