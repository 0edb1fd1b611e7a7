#include "kwfilepathmanager.h"
#include <QGuiApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// Every test program: headless, with a configuration folder of its own and a fixed hash seed.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    // Never deleted: the offscreen platform loses its screen when it is torn down, which would be reported as
    // a leak.
    new QGuiApplication(argc, argv);
    const QTemporaryDir configuration;
    KWFilePathManager::setConfigRoot(configuration.path());
    qputenv("XDG_CONFIG_HOME", configuration.path().toUtf8()); // for the programs that tests start
    return RUN_ALL_TESTS();
}
