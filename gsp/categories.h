#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "GSP参数管理": the GSP categories a goods may carry in gsp_name ("药品类型", jxc_gspcs). Codes
// run from "1001", the next being the largest plus one. Names are unique; goods carry the name,
// so renaming a category renames it in the goods too, and a category that goods carry cannot be
// deleted. Each change needs the right "GSP参数" and runs in one transaction.
struct Category
{
    qint64 id = 0;
    QString code; // gsp_sn
    QString name; // gsp_name
};

// Every category by code.
QList<Category> categories(const shell::Session &session);
// Adds a category (id 0) or renames one; returns its id.
Result<qint64> saveCategory(const shell::Session &session, qint64 id, const QString &name);
// Deletes a category after the question.
Outcome deleteCategory(const shell::Session &session, qint64 id);

} // namespace medistock::gsp
