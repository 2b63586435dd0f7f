#pragma once

#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/workspace.h"

#include <QApplication>
#include <QDir>

#include <memory>

namespace medistock::test {

// The column layouts of a test's screens, kept in its folder.
inline std::unique_ptr<ui::GridLayouts> layoutStore(const QString &folder)
{
    return std::make_unique<ui::GridLayouts>(QDir(folder).filePath(QStringLiteral("layout.ini")));
}

// A workspace for screens over a fixture's set, the test's folder as its data folder; the
// application gets the program's fonts and style the first time.
inline std::unique_ptr<ui::Workspace> screenWorkspace(shell::Session &session, core::Connection &db,
    ui::GridLayouts &layouts, const QString &folder)
{
    static bool prepared = false;
    if (!prepared) {
        ui::prepareApplication(*qApp);
        prepared = true;
    }
    return std::make_unique<ui::Workspace>(
        ui::Workspace { session, db, QStringLiteral("主帐套"), layouts, folder });
}

} // namespace medistock::test
