#include "kwfilepathmanager.h"
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "texts.h"
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

// Saves through the window, for hostile/savetest.py, which stops and starves it: make, save or check FILE.
int drive(const QByteArray &command, const QString &path)
{
    MainWindow window;
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    Session &session = window.session();
    const QString name = QStringLiteral("New");
    if (command == "check") {
        const bool isOpen = window.openFile(path);
        const int tasks = session.document().taskCount();
        const bool isNew = tasks == 3 && session.document().getTaskInfoAt(0)->Name == name;
        std::puts(!isOpen || tasks != 3 ? "neither" : isNew ? "new" : "old");
        return 0;
    }
    if (command == "make")
        return window.saveTo(path) ? 0 : 1;
    bool isSaved = false;
    const bool isOpen = window.openFile(path);
    if (isOpen) {
        TaskValues values;
        values.name = name;
        session.edit(QStringLiteral("Rename"), [&](PlanEdits &edits) {
            return edits.set({session.document().getTaskInfoAt(0)->ID}, values);
        });
        isSaved = window.saveTo(path);
    }
    std::printf("result=%s\nmodified=%d\n", isSaved ? "true" : "false",
                session.isModified() || !isOpen ? 1 : 0); // what is not open has lost nothing
    return 0;
}
}

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
    return argc == 3 ? drive(argv[1], QString::fromLocal8Bit(argv[2])) : RUN_ALL_TESTS();
}
