#pragma once

#include <QString>
#include <QStringList>

namespace medistock::test {

// One run of the medistock-cli built with the tests.
struct CliRun
{
    int status;
    QString out;
    QString err;
};

// The path of the medistock-cli built with the tests.
QString cliPath();

// Runs medistock-cli with the arguments; MEDISTOCK_DATA is set to dataEnvironment when given and
// removed otherwise.
CliRun runCli(const QStringList &arguments, const QString &dataEnvironment = {});

} // namespace medistock::test
