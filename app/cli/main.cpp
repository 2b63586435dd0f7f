#include "app/cli/registry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>

#include <cstdio>
#include <memory>
#include <unistd.h>

namespace {

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char *argv[])
{
    medistock::cli::Registry registry;
    medistock::cli::addCoreCommands(registry);
    medistock::cli::addShellCommands(registry);
    medistock::cli::addAccountsCommands(registry);
    medistock::cli::addStockDocumentCommands(registry);
    medistock::cli::addDocumentCommands(registry);
    medistock::cli::addMasterDataCommands(registry);
    medistock::cli::addStockCommands(registry);
    medistock::cli::addPurchasingCommands(registry);
    medistock::cli::addSalesCommands(registry);
    medistock::cli::addGspCommands(registry);
    medistock::cli::addMembersCommands(registry);
    medistock::cli::addStatisticsCommands(registry);
    medistock::cli::addReportCommands(registry);
    medistock::cli::addLoansCommands(registry);
    medistock::cli::addStatementCommands(registry);
    medistock::cli::addPosCommands(registry);
    medistock::cli::addMaintenanceCommands(registry);

    // Commands that lay out text need fonts, which only a GUI application has; they run on the
    // offscreen platform unless another is chosen, so no display is needed.
    // Taken before the application object exists: a GUI application takes options of its own
    // ("--style") out of the list.
    const QStringList arguments = argumentsOf(argc, argv);
    const medistock::cli::Command *command = registry.find(medistock::cli::commandName(arguments));
    std::unique_ptr<QCoreApplication> app;
    if (command && command->paints) {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        // A session without a login has no runtime folder; Qt would say so on every run.
        if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
            const QString runtime = QDir::temp().filePath(
                QStringLiteral("medistock-runtime-%1").arg(QString::number(getuid())));
            QDir().mkpath(runtime);
            QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", runtime.toLocal8Bit());
        }
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("medistock"));
    QTextStream out(stdout);
    QTextStream err(stderr);

    const int status = medistock::cli::runCli(registry, arguments, out, err);
    out.flush();
    err.flush();
    return status;
}
