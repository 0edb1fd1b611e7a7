// Pasting what lies on the clipboard.
#include "hostile/entries.h"
#include "hostile/followups.h"
#include "hostile/smallplan.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwtaskcollection.h"
#include "support/folder.h"
#include "table/rowcolumndata.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSet>

namespace {

// Whatever was pasted, each task has an ID and a row height of its own.
bool isSound(const KWDocument &document)
{
    QSet<quint32> ids;
    for (const KWTaskInfo *task : document.taskList())
        ids.insert(task->ID);
    return ids.size() == document.taskCount() && !ids.contains(0) &&
           document.rowColumnData()->rowHeights().size() == document.taskCount();
}
}

int pasteClipboard(const QString &path)
{
    KWDocument document;
    smallplan::fill(document, smallplan::oldName);
    auto *data = new QMimeData;
    data->setData(QStringLiteral("application/vellum-xml"), folder::get(path));
    QGuiApplication::clipboard()->setMimeData(data);

    constexpr int secondRow = 1;
    constexpr int pasting = 1;
    ActionManager::s_undoString.insert(pasting, QStringLiteral("Paste"));
    document.taskCollection()->updateRageAndTaskPoint(); // which undo does too
    const std::string before = smallplan::textOf(document);
    const int count = document.taskCount();
    ActionManager::preUndoAction(&document, pasting, 0);
    ActionManager::backAllTaskData();
    ActionManager::backupAllColData();
    const bool isPasted = document.clipbdManager().paste(secondRow);
    say("result", isPasted ? "true" : "false");
    if (!isPasted) {
        ActionManager::clearUndoAction();
        say("document", smallplan::textOf(document) == before ? "same" : "changed");
        return 0;
    }
    ActionManager::addUndoAction();
    say("pasted", document.taskCount() - count);
    if (!isSound(document)) {
        say("ids or heights", "wrong");
        return 1;
    }
    const std::string after = smallplan::textOf(document);
    document.actionManager().undo(1);
    const bool isUndone = smallplan::textOf(document) == before;
    document.actionManager().redo();
    const bool isRedone = smallplan::textOf(document) == after;
    say("undo", isUndone ? "same" : "differs");
    say("redo", isRedone ? "same" : "differs");
    sayFactsAndOperate(document);
    return isUndone && isRedone ? 0 : 1;
}
