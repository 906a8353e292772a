#include <gtest/gtest.h>

#include <QApplication>

// Tests of the windows: no display is needed, and the desktop's style does not count. Its language does.
int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    return RUN_ALL_TESTS();
}
