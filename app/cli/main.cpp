#include "app/cli/registry.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("medistock"));
    QTextStream out(stdout);
    QTextStream err(stderr);

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

    const int status = medistock::cli::runCli(registry, app.arguments().mid(1), out, err);
    out.flush();
    err.flush();
    return status;
}
