// The actions that change the plan.
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/notebar.h"
#include "views/planmodel.h"
#include "views/plantable.h"

void MainWindow::undo()
{
    const QVector<quint32> ids = chosen();
    m_session.undo();
    m_finish = m_session.document().getMaxFinishSecs();
    m_note->hide();
    if (chosen().isEmpty())
        m_table->select(ids);
}

void MainWindow::redo()
{
    m_session.redo();
    m_finish = m_session.document().getMaxFinishSecs();
    m_note->hide();
}

void MainWindow::insert(PlanEdits::Place place)
{
    const quint32 at = m_table->currentTask();
    const EditAnswer answer = perform(
        tr("Insert task"), [&](PlanEdits &edits) { return at ? edits.insert(at, place) : edits.add(); },
        true);
    if (answer.isDone() && m_model->rowOf(answer.tasks.value(0)) >= 0) {
        m_table->selectRow(m_model->rowOf(answer.tasks.first()), m_model->columnOf(cellinput::nameType));
        editCell();
    }
}

void MainWindow::insertAbove()
{
    insert(PlanEdits::Above);
}

void MainWindow::insertBelow()
{
    insert(PlanEdits::Below);
}

void MainWindow::insertChild()
{
    const quint32 at = m_table->currentTask();
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(at);
    if (task && task->IsToggler)
        toggleFold(at);
    insert(PlanEdits::LastChild);
}

void MainWindow::removeTasks()
{
    const int row = m_table->currentIndex().row();
    const QVector<quint32> ids = chosen();
    const KWDocument &document = m_session.document();
    const int before = document.taskCount();
    QSet<quint32> below; // of summaries that go, without those that go themselves
    const QSet<quint32> going(ids.begin(), ids.end());
    for (const KWTaskInfo *task : document.taskList())
        if (going.contains(task->ParentID) && !going.contains(task->ID))
            below.insert(task->ID);
    const EditAnswer answer =
        m_session.edit(tr("Delete"), [&](PlanEdits &edits) { return edits.remove(ids); });
    if (!answer.isDone()) {
        tellRefusal(answer.sentence(), answer.hint());
        return;
    }
    m_table->selectRow(row);
    QStringList parts;
    const int gone = before - document.taskCount();
    if (gone > ids.size())
        parts.append(tr("%1 tasks are deleted, %2 of them were not shown").arg(gone).arg(gone - ids.size()));
    if (std::any_of(below.begin(), below.end(),
                    [&](quint32 id) { return document.getTaskInfoByID(id) != nullptr; }))
        parts.append(tr("The tasks below it stay, one level up; Cut takes them along"));
    tellAnswer(parts.join(QLatin1String(". ")), answer, !parts.isEmpty());
}

void MainWindow::duplicate()
{
    const QVector<quint32> ids = chosen();
    if (ids.isEmpty())
        return;
    perform(
        tr("Duplicate"),
        [&](PlanEdits &edits) {
            return edits.copyBranches(m_session.document(), ids, ids.last(), PlanEdits::Below);
        },
        true);
}

void MainWindow::indent()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Indent"), [&](PlanEdits &edits) { return edits.indent(ids); });
    m_table->select(ids);
}

void MainWindow::outdent()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Outdent"), [&](PlanEdits &edits) { return edits.outdent(ids); });
    m_table->select(ids);
}

void MainWindow::moveUp()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Move up"), [&](PlanEdits &edits) {
        EditAnswer all;
        for (const quint32 id : ids)
            if (all.isDone())
                Session::join(all, edits.move(id, -1));
        return all;
    });
    m_table->select(ids);
}

void MainWindow::moveDown()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Move down"), [&](PlanEdits &edits) {
        EditAnswer all;
        for (int i = ids.size() - 1; i >= 0; --i)
            if (all.isDone())
                Session::join(all, edits.move(ids.at(i), 1));
        return all;
    });
    m_table->select(ids);
}

void MainWindow::toggleFold(quint32 id)
{
    const KWTaskInfo *task = m_session.document().getTaskInfoByID(id);
    if (!task)
        return;
    const bool isFolded = task->IsToggler;
    perform(isFolded ? tr("Unfold") : tr("Fold"),
            [&](PlanEdits &edits) { return isFolded ? edits.expand({id}) : edits.collapse({id}); });
    if (m_table->currentTask() == 0)
        m_table->select({id});
}

void MainWindow::fold()
{
    toggleFold(m_table->currentTask());
}

void MainWindow::foldEverything(bool isFolded)
{
    QVector<quint32> ids;
    for (const KWTaskInfo *task : m_session.document().taskList())
        if (task->isParent() && task->IsToggler != isFolded)
            ids.append(task->ID);
    if (!ids.isEmpty())
        perform(isFolded ? tr("Fold all") : tr("Unfold all"),
                [&](PlanEdits &edits) { return isFolded ? edits.collapse(ids) : edits.expand(ids); });
}

void MainWindow::foldAll()
{
    foldEverything(true);
}

void MainWindow::unfoldAll()
{
    foldEverything(false);
}

void MainWindow::link()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Link tasks"), [&](PlanEdits &edits) { return edits.link(ids); });
}

void MainWindow::unlink()
{
    const QVector<quint32> ids = chosen();
    perform(tr("Unlink tasks"), [&](PlanEdits &edits) {
        if (ids.size() == 1)
            return edits.unlinkAll(ids);
        // Between those that are linked at all.
        EditAnswer all;
        bool isAny = false;
        for (int i = 1; i < ids.size(); ++i) {
            const KWTaskInfo *task = m_session.document().getTaskInfoByID(ids.at(i));
            if (!task || !task->Predecessors.contains(ids.at(i - 1)))
                continue;
            isAny = true;
            Session::join(all, edits.unlink({ids.at(i - 1), ids.at(i)}));
        }
        return isAny ? all : edits.unlink(ids);
    });
}

void MainWindow::milestone()
{
    const QVector<quint32> ids = chosen();
    const KWTaskInfo *first = m_session.document().getTaskInfoByID(ids.value(0));
    TaskValues values;
    values.isMilestone = first && !first->Milestone;
    perform(*values.isMilestone ? tr("Make milestone") : tr("Make task"),
            [&](PlanEdits &edits) { return edits.set(ids, values); });
}

int MainWindow::replaceText(const QString &text, const QString &by, Qt::CaseSensitivity sensitivity)
{
    QVector<std::pair<quint32, TaskValues>> changes;
    for (const KWTaskInfo *task : m_session.document().taskList()) {
        TaskValues values;
        const auto replace = [&](const QString &before, std::optional<QString> &after) {
            if (before.contains(text, sensitivity))
                after = QString(before).replace(text, by, sensitivity);
        };
        replace(task->Name, values.name);
        replace(task->Notes, values.notes);
        if (!text.isEmpty() && (values.name || values.notes))
            changes.append({task->ID, values});
    }
    if (changes.isEmpty()) {
        tellRefusal(tr("no name and no note has %1 in it").arg(quoted(text)), QString());
        return 0;
    }
    const EditAnswer answer = perform(tr("Replace"), [&](PlanEdits &edits) {
        EditAnswer all;
        for (const auto &[id, values] : qAsConst(changes))
            if (all.isDone())
                Session::join(all, edits.set({id}, values));
        return all;
    });
    if (!answer.isDone())
        return 0;
    m_note->say(changes.size() == 1 ? tr("Replaced in one task.")
                                    : tr("Replaced in %1 tasks.").arg(changes.size()),
                NoteBar::Told, tr("Undo"), [this] { undo(); });
    return changes.size();
}

void MainWindow::done()
{
    const QVector<quint32> ids = chosen();
    TaskValues values;
    values.percent = 1;
    perform(tr("Done"), [&](PlanEdits &edits) { return edits.set(ids, values); });
}

bool MainWindow::scheduleAll(const QString &name, PlanEdits::Beginning beginning)
{
    const EditAnswer answer =
        m_session.edit(name, [beginning](PlanEdits &edits) { return edits.schedule(beginning); });
    if (!answer.isDone())
        tellRefusal(answer.sentence(), answer.hint());
    else if (!answer.moves.isEmpty())
        tellAnswer(tr("%1 tasks moved").arg(answer.moves.size()), answer, true);
    return !answer.isDone() || !answer.moves.isEmpty();
}

void MainWindow::schedule()
{
    if (!scheduleAll(tr("Schedule"), PlanEdits::AsGiven))
        m_note->say(tr("Nothing moves: no task starts before those it waits for have ended."), NoteBar::Told,
                    tr("Close gaps"), [this] { closeGaps(); });
}

void MainWindow::closeGaps()
{
    if (!scheduleAll(tr("Close gaps"), PlanEdits::WithoutGaps))
        m_note->say(tr("Nothing moves: every linked task starts as soon as it can, or has begun."));
}

void MainWindow::setBaseline()
{
    const QVector<quint32> ids = chosen().size() > 1 ? chosen() : QVector<quint32>();
    if (perform(tr("Set baseline"), [&](PlanEdits &edits) { return edits.setBaseline(ids); }).isDone())
        m_note->say(ids.isEmpty() ? tr("The dates of all tasks are the baseline now.")
                                  : tr("The dates of %1 tasks are their baseline now.").arg(ids.size()),
                    NoteBar::Told, tr("Undo"), [this] { undo(); });
}

void MainWindow::clearBaseline()
{
    const QVector<quint32> ids = chosen().size() > 1 ? chosen() : QVector<quint32>();
    perform(tr("Clear baseline"), [&](PlanEdits &edits) { return edits.clearBaseline(ids); });
}
