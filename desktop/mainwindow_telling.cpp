// What the window says of an edit.
#include "datetext.h"
#include "documents/cellinput.h"
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "quoted.h"
#include "views/notebar.h"
#include "views/planchart.h"
#include "views/plantable.h"

namespace {

constexpr int mostNamed = 3; // tasks in a sentence
}

void MainWindow::tellRefusal(const QString &what, const QString &hint)
{
    QString text = what;
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    m_note->say(hint.isEmpty() ? text : tr("%1: %2").arg(text, hint), NoteBar::Refused);
}

// "“Test” moves to Tue 20 Jan, pushed by “Build”; “Handover” …; 3 more. The project ends Fri 23 Jan."
QString MainWindow::movesText(const EditAnswer &answer) const
{
    KWDocument &document = m_session.document();
    const auto nameOf = [&](quint32 id) {
        const KWTaskInfo *task = document.getTaskInfoByID(id);
        return task ? quoted(task->Name) : QString();
    };
    const auto dateOf = [&](quint32 secs, bool isStart) {
        return datetext::dateText(KWTaskInfo::showDateTime(&document, secs, isStart).date(),
                                  datetext::Weekday);
    };
    QStringList parts;
    int others = 0;
    for (const EditMove &move : answer.moves) {
        if (move.cause != EditMove::Pushed && move.cause != EditMove::WithSummary)
            continue;
        if (++others > mostNamed)
            continue;
        QString text = tr("%1 moves to %2").arg(nameOf(move.task), dateOf(move.start, true));
        if (move.cause == EditMove::Pushed)
            text += tr(", pushed by %1").arg(nameOf(move.pushedBy));
        else
            text += tr(" with its summary");
        parts.append(text);
    }
    if (others > mostNamed)
        parts.append(tr("%1 more move").arg(others - mostNamed));
    QString text = parts.join(QLatin1String("; "));
    const quint32 finish = document.getMaxFinishSecs();
    if (finish != m_finish && m_finish != 0 && finish != 0 && !answer.moves.isEmpty()) {
        const QString before = dateOf(m_finish, false), after = dateOf(finish, false);
        if (before != after)
            text += (text.isEmpty() ? QString() : QStringLiteral(". ")) +
                    tr("The project ends %1 (before: %2)").arg(after, before);
    }
    for (const EditLoss &loss : answer.losses) {
        if (!text.isEmpty())
            text += QLatin1String(". ");
        switch (loss.kind) {
        case EditLoss::Assignment:
            text += tr("%1 loses its resource %2").arg(nameOf(loss.task), quoted(loss.name));
            break;
        case EditLoss::Baseline:
            text += tr("%1 is a summary now and loses its baseline").arg(nameOf(loss.task));
            break;
        case EditLoss::Link:
            text += tr("%1 does not wait for %2 any more").arg(nameOf(loss.task), nameOf(loss.other));
            break;
        }
    }
    return text;
}

// Says what else happened; an edit that did only what was asked needs no words unless `always`.
void MainWindow::tellAnswer(const QString &what, const EditAnswer &answer, bool always)
{
    const QString moves = movesText(answer);
    m_finish = m_session.document().getMaxFinishSecs();
    QSet<quint32> moved;
    for (const EditMove &move : answer.moves)
        if (move.cause != EditMove::Edited)
            moved.insert(move.task);
    m_table->flash(moved);
    m_chart->flash(moved);
    if (moves.isEmpty() && !always) {
        m_note->hide();
        return;
    }
    QString text = what;
    if (!moves.isEmpty())
        text += (text.isEmpty() ? QString() : QStringLiteral(". ")) + moves;
    m_note->say(text + QLatin1Char('.'), NoteBar::Told, tr("Undo"), [this] { undo(); });
}

void MainWindow::tellOutcome(const cellinput::Outcome &outcome)
{
    if (!outcome.isDone)
        tellRefusal(outcome.what, outcome.hint);
    else
        tellAnswer(outcome.note, outcome.answer, !outcome.note.isEmpty());
}

EditAnswer MainWindow::perform(const QString &name, const Session::Change &change, bool selects)
{
    const EditAnswer answer = m_session.edit(name, change);
    if (!answer.isDone()) {
        tellRefusal(answer.sentence(), answer.hint());
        return answer;
    }
    if (selects && !answer.tasks.isEmpty())
        m_table->select(answer.tasks);
    tellAnswer(QString(), answer, false);
    return answer;
}

QVector<quint32> MainWindow::chosen() const
{
    return m_table->selectedTasks();
}
