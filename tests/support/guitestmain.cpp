#include <QApplication>

#include <gtest/gtest.h>

// The main of GUI tests: a QApplication on the offscreen platform unless one is chosen, so the
// tests need no display.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
