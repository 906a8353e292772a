#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>

// Tests of the windows: no display is needed, and neither the desktop's style nor its language counts.
int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale::c());
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    return RUN_ALL_TESTS();
}
