#include "tests/support/postgres.h"

#include <QApplication>

// The main of GUI tests: a QApplication on the offscreen platform unless one is chosen, so the
// tests need no display.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return medistock::test::runTests(argc, argv);
}
