#include "tests/support/cli.h"

#include <QProcess>
#include <QProcessEnvironment>

namespace medistock::test {

QString cliPath()
{
    return QStringLiteral(MEDISTOCK_CLI_PATH);
}

CliRun runCli(const QStringList &arguments, const QString &dataEnvironment)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("MEDISTOCK_DATA"));
    if (!dataEnvironment.isEmpty())
        environment.insert(QStringLiteral("MEDISTOCK_DATA"), dataEnvironment);
    process.setProcessEnvironment(environment);
    process.start(cliPath(), arguments);
    process.waitForFinished(120000);
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError()) };
}

} // namespace medistock::test
