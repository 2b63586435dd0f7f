#include "tests/support/postgres.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    return medistock::test::runTests(argc, argv);
}
