// Saving a package over another, for a test that stops the program on the way.
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"
#include "model/kwtaskinfo.h"
#include <cstdio>

int makePackage(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    document.DocGuid = QStringLiteral("{11111111-1111-4111-8111-111111111111}");
    return document.save(path) ? 0 : 1;
}

int savePackage(const QString &path)
{
    KWDocument document;
    bool isSaved = false;
    bool isModified = true;
    if (document.loadFromKWGT(path)) {
        for (KWTaskInfo *task : document.taskList())
            task->Name = QString::fromLatin1(smallplan::newName);
        document.setModified(true);
        isSaved = document.save(QString());
        isModified = document.isModified();
    }
    say("result", isSaved ? "true" : "false");
    say("modified", isModified ? 1 : 0);
    return 0;
}

int checkPackage(const QString &path)
{
    KWDocument document;
    KWDocument expected;
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
