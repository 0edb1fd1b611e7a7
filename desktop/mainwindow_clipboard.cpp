// The clipboard of the window: branches of tasks, lines of text, and a table for spreadsheets.
#include "mainwindow.h"
#include "model/kwtaskinfo.h"
#include "views/planmodel.h"
#include "views/plantable.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

const QString branchType = QStringLiteral("application/vellum-xml");

// What is on the clipboard goes there again, with the text beside it.
void addText(const QString &text)
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    const QMimeData *branches = clipboard->mimeData();
    if (!branches || !branches->hasFormat(branchType))
        return;
    auto *both = new QMimeData;
    both->setData(branchType, branches->data(branchType));
    both->setText(text);
    clipboard->setMimeData(both);
}

// The rows that the table shows, with the outline as blanks before the names.
QString asTable(const PlanModel &model, const QVector<quint32> &ids, const KWDocument &document)
{
    QStringList lines;
    for (const quint32 id : ids) {
        QStringList cells;
        const int row = model.rowOf(id);
        for (int column = qMax(0, model.columnOf(cellinput::nameType)); column < model.columnCount();
             ++column) {
            QString text = model.index(row, column).data(Qt::EditRole).toString();
            if (!cellinput::isEditable(model.typeOf(column)))
                text = model.index(row, column).data(Qt::DisplayRole).toString();
            text = text.simplified();
            if (model.typeOf(column) == cellinput::nameType)
                text = QString(2 * qMax(0, document.getTaskInfoByID(id)->Level - 1), QLatin1Char(' ')) + text;
            cells.append(text);
        }
        lines.append(cells.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}
}

void MainWindow::copy()
{
    const QVector<quint32> ids = chosen();
    PlanEdits edits(m_session.document(), tr("Copy"));
    const EditAnswer answer = edits.copy(ids);
    if (!answer.isDone()) {
        tellRefusal(answer.sentence(), answer.hint());
        return;
    }
    addText(asTable(*m_model, ids, m_session.document()));
}

void MainWindow::cut()
{
    const int row = m_table->currentIndex().row();
    const QVector<quint32> ids = chosen();
    const QString text = asTable(*m_model, ids, m_session.document());
    if (!perform(tr("Cut"), [&](PlanEdits &edits) { return edits.cut(ids); }).isDone())
        return;
    addText(text);
    m_table->selectRow(row);
}

void MainWindow::paste()
{
    const QMimeData *held = QGuiApplication::clipboard()->mimeData();
    const quint32 at = m_table->currentTask();
    if (held && held->hasFormat(branchType)) {
        perform(
            tr("Paste"),
            [&](PlanEdits &edits) { return at ? edits.paste(at, PlanEdits::Above) : edits.paste(); }, true);
        return;
    }
    const QString text = held ? held->text() : QString();
    if (text.trimmed().isEmpty()) {
        tellRefusal(tr("there is nothing to paste"), tr("copy tasks or lines of text first"));
        return;
    }
    const QModelIndex current = m_table->currentIndex();
    const bool isOneCell = !text.trimmed().contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\t'));
    if (isOneCell && at != 0) {
        m_model->setData(current, text.trimmed(), Qt::EditRole);
        if (!m_model->lastOutcome().isDone)
            tellOutcome(m_model->lastOutcome());
        return;
    }
    QVector<int> types;
    for (int column = qMax(0, m_model->columnOf(cellinput::nameType)); column < m_model->columnCount();
         ++column)
        types.append(m_model->typeOf(column));
    const cellinput::Outcome outcome = cellinput::enterLines(m_session, at, text, types);
    tellOutcome(outcome);
    if (outcome.isDone)
        m_table->select(outcome.answer.tasks);
}
