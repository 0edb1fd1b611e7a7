// Whatever lies on the clipboard is refused and changes nothing, or each pasted task has an ID, a row height
// and links of its own, what was there before stays, and the whole can be saved and read back.
#include "document.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSet>

namespace {

// A summary with two tasks, the first before the second.
void fill(KWDocument &document)
{
    document.DocGuid = QStringLiteral("same");
    for (quint32 id = 1; id <= 3; ++id) {
        auto *task = new KWTaskInfo;
        task->ID = id;
        task->Name = QString::number(id);
        task->Start = 1773619200;
        task->Finish = task->Start + 86400;
        if (id > 1) {
            task->ParentID = 1;
            task->Level = 2;
        }
        document.appendTaskInfoList(task);
    }
    document.getTaskInfoAt(0)->Childs = {2, 3};
    document.getTaskInfoAt(1)->Depends = {3};
    document.getTaskInfoAt(2)->Predecessors = {2};
    document.rowColumnData()->setRowHeightCount(3);
}

void checkTask(const KWDocument &document, const KWTaskInfo &task)
{
    FUZZ_CHECK(task.ID != 0 && document.getTaskInfoByID(task.ID) == &task);
    const KWTaskInfo *parent = document.getTaskInfoByID(task.ParentID);
    FUZZ_CHECK(task.ParentID == 0 || (parent && parent->Childs.count(task.ID) == 1));
    FUZZ_CHECK(task.HideID == 0 || document.getTaskInfoByID(task.HideID)->isParent());
    QSet<quint32> childs;
    for (const quint32 id : task.Childs) {
        const KWTaskInfo *child = document.getTaskInfoByID(id);
        FUZZ_CHECK(child && child->ParentID == task.ID && !childs.contains(id));
        childs.insert(id);
    }
    for (const quint32 id : task.Depends) {
        const KWTaskInfo *after = document.getTaskInfoByID(id);
        FUZZ_CHECK(after && after != &task && after->Predecessors.count(task.ID) == 1);
    }
    for (const quint32 id : task.Predecessors) {
        const KWTaskInfo *before = document.getTaskInfoByID(id);
        FUZZ_CHECK(before && before->Depends.count(task.ID) == 1);
    }
}
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    startApplication(fillTwoTitles);

    KWDocument document;
    fill(document);
    const QByteArray before = textOf(document);
    auto *clipboard = new QMimeData;
    clipboard->setData(QStringLiteral("application/vellum-xml"),
                       QByteArray(reinterpret_cast<const char *>(data), int(size)));
    QGuiApplication::clipboard()->setMimeData(clipboard);
    constexpr int lastRow = 2;
    if (!document.clipbdManager().paste(lastRow)) {
        FUZZ_CHECK(textOf(document) == before);
        return 0;
    }
    const int count = document.taskCount();
    FUZZ_CHECK(count > 3 && document.rowColumnData()->rowHeights().size() == count);
    FUZZ_CHECK(document.getTaskInfoAt(0)->ID == 1 && document.getTaskInfoAt(count - 1)->ID == 3);
    for (const KWTaskInfo *task : document.taskList())
        checkTask(document, *task);

    checkThatItReadsBack(document);

    // Copied from there, all of it can be pasted once more.
    QList<int> rows{0};
    FUZZ_CHECK(document.clipbdManager().copy(rows) && document.clipbdManager().paste(-1));
    FUZZ_CHECK(document.taskCount() == 2 * count);
    for (const KWTaskInfo *task : document.taskList())
        checkTask(document, *task);
    return 0;
}
