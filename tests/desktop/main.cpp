#include "kwfilepathmanager.h"
#include "texts.h"
#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// As support/testmain.cpp, with widgets in a style that looks the same everywhere.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    new QApplication(argc, argv); // never deleted, see there
    texts::fillLibraryTables();
    const QTemporaryDir configuration;
    // A program that is started for a test shares the folder of the one that starts it.
    const QString given = qEnvironmentVariable("KW_DESKTOP_CONFIG");
    KWFilePathManager::setConfigRoot(given.isEmpty() ? configuration.path() : given);
    return RUN_ALL_TESTS();
}
