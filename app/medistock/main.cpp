// The desktop program: first start, login, then the main window.
#include "core/clock.h"
#include "core/connection.h"
#include "core/connectionchoice.h"
#include "core/datafolder.h"
#include "core/dberror.h"
#include "maintenance/backup.h"
#include "ui/accounts/registration.h"
#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/messagebox.h"
#include "ui/common/progress.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/gsp/registration.h"
#include "ui/loans/registration.h"
#include "ui/maintenance/registration.h"
#include "ui/masterdata/registration.h"
#include "ui/members/registration.h"
#include "ui/pos/registration.h"
#include "ui/purchasing/registration.h"
#include "ui/reports/printing.h"
#include "ui/reports/registration.h"
#include "ui/sales/registration.h"
#include "ui/shell/firstusedialog.h"
#include "ui/shell/logindialog.h"
#include "ui/shell/mainwindow.h"
#include "ui/shell/registration.h"
#include "ui/statistics/registration.h"
#include "ui/stock/registration.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

using namespace medistock;

namespace {

QString dataOption(const QApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Medistock 药店进销存"));
    parser.addHelpOption();
    const QCommandLineOption data(QStringLiteral("data"),
        QStringLiteral("帐套文件所在的数据目录（默认取环境变量 MEDISTOCK_DATA 或用户数据目录）"),
        QStringLiteral("DIR"));
    parser.addOption(data);
    parser.process(app);
    return parser.value(data);
}

// Every module's screens; a module built later adds its registration call here.
void registerScreens(ui::ScreenRegistry &registry)
{
    ui::registerShellScreens(registry);
    ui::registerMasterDataScreens(registry);
    ui::registerGspScreens(registry);
    ui::registerPurchasingScreens(registry);
    ui::registerSalesScreens(registry);
    ui::registerStockScreens(registry);
    ui::registerMemberScreens(registry);
    ui::registerStatisticsScreens(registry);
    ui::registerReportScreens(registry);
    ui::registerLoanScreens(registry);
    ui::registerStatementScreens(registry);
    ui::registerMoneyScreens(registry);
    ui::registerPosScreens(registry);
    ui::registerMaintenanceScreens(registry);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ui::prepareApplication(app);
    const QString folder = core::resolveDataFolder(dataOption(app));
    ui::MessageBoxInteraction interaction;
    const core::Clock clock;

    const core::ConnectionChoice choice = core::readConnectionChoice(folder);
    if (!choice.server && ui::FirstUseDialog::isNeeded(folder)) {
        ui::FirstUseDialog first(folder, clock, interaction);
        if (first.exec() != QDialog::Accepted)
            return 0;
    }

    // A server that cannot be reached leaves the login without sets, to choose the connection
    // again; a damaged master file stops here as it always did.
    std::unique_ptr<core::Connection> master;
    try {
        master = core::openMaster(folder, choice, { clock.today(), {} });
    } catch (const core::DbError &error) {
        interaction.inform(error.message());
        if (!choice.server)
            return 2;
    }
    ui::LoginDialog login(std::move(master), folder, clock, interaction);
    if (login.exec() != QDialog::Accepted)
        return 0;
    const ui::OpenedAccountSet opened = login.take();

    ui::GridLayouts layouts(ui::GridLayouts::defaultFilePath());
    ui::Workspace workspace { *opened.session, *opened.master, opened.set.name, layouts, folder };
    ui::installPrinting(workspace);
    ui::ScreenRegistry registry;
    registerScreens(registry);
    ui::MainWindow window(workspace, registry);
    window.showMaximized();
    ui::addGspReminders(window, workspace);
    const int status = app.exec();
    {
        // The daily backup on leaving, when the parameters ask for one.
        ui::BusyIndicator busy(nullptr, QStringLiteral("正在自动备份帐套数据…"));
        maintenance::dailyBackup(*opened.session, folder);
    }
    return status;
}
