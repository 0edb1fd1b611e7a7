// Saving a package over another, for a test that stops the program on the way.
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"
#include "kwfilepathmanager.h"
#include "model/kwtaskinfo.h"
#include <QFile>
#include <QFileInfo>
#include <cstdio>
#include <functional>

int makePackage(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    document.DocGuid = QStringLiteral("{11111111-1111-4111-8111-111111111111}");
    return document.save(path) ? 0 : 1;
}

namespace {

// Changes the plan in the file, has it saved and says what came of it.
int changeAndSave(const QString &path, const std::function<bool(KWDocument &)> &save)
{
    KWDocument document;
    bool isSaved = false;
    bool isModified = true;
    if (document.loadFromKWGT(path)) {
        for (KWTaskInfo *task : document.taskList())
            task->Name = QString::fromLatin1(smallplan::newName);
        document.setModified(true);
        isSaved = save(document);
        isModified = document.isModified();
    }
    say("result", isSaved ? "true" : "false");
    say("modified", isModified ? 1 : 0);
    return 0;
}
}

int savePackage(const QString &path)
{
    return changeAndSave(path, [](KWDocument &document) { return document.save(QString()); });
}

int saveBackup(const QString &path)
{
    return changeAndSave(path, [&path](KWDocument &document) {
        const QString folder = QFileInfo(path).absolutePath();
        KWFilePathManager::setConfigRoot(QFileInfo(folder).absolutePath());
        // The name of a backup is made of chance; a link leads from it to the file that is looked at.
        const QString backup = folder + QLatin1Char('/') + document.backupName() + QLatin1String(".kwpx");
        const bool isSaved = QFile::link(path, backup) && document.saveBackup();
        QFile::remove(backup);
        return isSaved;
    });
}

int checkPackage(const QString &path)
{
    KWDocument document;
    const char *found = "neither";
    if (document.loadFromKWGT(path)) {
        for (const auto &[name, said] :
             {std::pair(smallplan::oldName, "old"), std::pair(smallplan::newName, "new")}) {
            KWDocument plan;
            smallplan::fill(plan, name);
            plan.DocGuid = document.DocGuid;
            if (smallplan::textOf(plan) == smallplan::textOf(document))
                found = said;
        }
    }
    std::printf("%s\n", found);
    return 0;
}
