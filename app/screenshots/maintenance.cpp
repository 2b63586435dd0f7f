#include "app/screenshots/maintenance.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "maintenance/backup.h"
#include "maintenance/verify.h"
#include "ui/common/workspace.h"
#include "ui/maintenance/backupdialog.h"
#include "ui/maintenance/verifyscreen.h"
#include "ui/shell/mainwindow.h"

#include <QTabWidget>
#include <QTableWidget>

using namespace medistock;

void shootMaintenance(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.resize(1366, 768);
    window.openOperation(QStringLiteral("kcgl"), 17);
    auto *verify = qobject_cast<ui::VerifyScreen *>(window.tabs()->currentWidget());
    verify->run();
    shots.shoot(&window, QStringLiteral("205-verify"));

    // What a careless hand in a database tool leaves behind.
    core::Connection &db = workspace.session.db();
    db.exec(QStringLiteral("update jxc_kcsp set kc_sl=kc_sl+3 where id=(select min(id) from "
                           "jxc_kcsp where g_sn<>'00000000' and kc_sl>0)"));
    db.exec(QStringLiteral("update jxc_goodslist set gl_kc=gl_kc+1 where id=(select max(id) from "
                           "jxc_goodslist)"));
    verify->run();
    shots.shoot(&window, QStringLiteral("206-verify-findings"));
    maintenance::repairBooks(workspace.session);
    verify->run();
    shots.shoot(&window, QStringLiteral("209-verify-repaired"));

    ui::BackupDialog dialog(workspace, &window);
    shots.shootOver(&window, &dialog, QStringLiteral("207-backup"));
    dialog.backUp();
    dialog.backups()->selectRow(0);
    shots.shootOver(&window, &dialog, QStringLiteral("208-backup-restore"));
    dialog.hide();
}
