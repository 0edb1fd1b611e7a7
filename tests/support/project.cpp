#include "support/project.h"
#include "engine/record/outline.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/calendartext.h"
#include "table/rowcolumndata.h"
#include <QLocale>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <stdexcept>

namespace {

const QMap<QString, unsigned int> units{{"y", 0}, {"q", 1}, {"mon", 2}, {"w", 3},
                                        {"d", 4}, {"h", 5}, {"min", 6}};
const char durationPattern[] = "^(\\d+(?:\\.\\d+)?)(min|mon|d|h|w|q|y)$";

[[noreturn]] void refuse(const QString &what)
{
    throw std::invalid_argument(what.toStdString());
}

QStringList wordsOf(const QString &text)
{
    return text.split(' ', Qt::SkipEmptyParts);
}

QString shown(KWDocument *document, quint32 secs, bool start)
{
    const QLocale english(QLocale::English);
    const QDateTime day = QDateTime::fromSecsSinceEpoch(secs);
    if (day == day.date().startOfDay())
        return english.toString(start ? day.date() : day.date().addDays(-1), QStringLiteral("d MMM"));
    const QDateTime clock = QDateTime::fromSecsSinceEpoch(KWTaskInfo::secsDayTransHour(document, secs));
    return english.toString(clock, QStringLiteral("d MMM hh:mm"));
}

std::string indent(const KWTaskInfo &task)
{
    return std::string(2 * std::size_t(qMax(0, task.Level - 1)), ' ');
}
}

Project::Project(const char *settings, const char *tasks)
    : m_document(std::make_unique<KWDocument>())
{
    readSettings(QString::fromUtf8(settings));

    outline::LevelBuilder builder;
    for (const QString &line : QString::fromUtf8(tasks).split('\n')) {
        if (line.trimmed().isEmpty())
            continue;
        KWTaskInfo &task = add(line);
        builder.add(task);
        m_document->appendTaskInfoList(&task);
        m_document->rowColumnData()->appendRowHeight(RowColumnData::defaultRowHeight);
    }
    // Summaries need dates before links are ordered by their bars.
    m_document->taskCollection()->updateOptionTaskTime();
    m_document->taskCollection()->updateRageAndTaskPoint();
    for (const auto &[id, names] : m_after) {
        for (const QString &name : names.split(',')) {
            KWTaskInfo *successor = m_document->getTaskInfoByID(id);
            if (!m_document->taskCollection()->taskDependTask(&task(name.toUtf8().constData()), successor))
                refuse("refused: " + successor->Name + " after " + name.trimmed());
        }
    }
    schedule();
}

Project::~Project() = default;

void Project::readSettings(const QString &text)
{
    CalendarText calendar(QString(text).replace(',', ';'));
    std::copy(calendar.workingDays, calendar.workingDays + 7, m_document->WorkDay);
    m_document->workTimes.swap(calendar.hours);
    m_document->calendars.swap(calendar.exceptions);
    const QDate start = calendar.start.isValid() ? calendar.start : QDate(2024, 3, 4);
    m_document->StartDate = quint32(start.startOfDay().toSecsSinceEpoch());
}

KWTaskInfo &Project::add(const QString &line)
{
    static const QRegularExpression durationText(durationPattern);
    static const QRegularExpression percentText("^(\\d+)%$");

    auto owned = std::make_unique<KWTaskInfo>();
    KWTaskInfo &task = *owned;
    int blanks = 0;
    while (line.at(blanks) == ' ')
        ++blanks;
    task.Level = blanks / 2 + 1;
    task.ID = m_document->nextTaskID();
    task.Start = m_document->StartDate;

    QString duration = "1d";
    QStringList name;
    const QStringList words = wordsOf(line);
    for (int i = 0; i < words.size(); ++i) {
        const QString &word = words[i];
        if (durationText.match(word).hasMatch()) {
            duration = word;
        } else if (percentText.match(word).hasMatch()) {
            task.setPercent(percentText.match(word).captured(1).toInt() / 100.0);
        } else if (word == "milestone") {
            task.Milestone = true;
        } else if (word == "start") {
            QString date = words.value(++i);
            if (words.value(i + 1).contains(':'))
                date += ' ' + words[++i];
            task.Start = moment(date);
        } else if (word == "after") {
            m_after.append({task.ID, words.mid(i + 1).join(' ')});
            break;
        } else {
            name.append(word);
        }
    }
    task.Name = name.join(' ');
    task.Start = KWTaskCollection::moveForwarstartOnDayOff(m_document.get(), task.Start, false);
    setDuration(task, duration);
    return *owned.release();
}

quint32 Project::moment(const QString &date) const
{
    const quint32 secs = secsOf(date.toUtf8().constData());
    return date.contains(' ') ? KWTaskInfo::secsHourTransDay(m_document.get(), secs) : secs;
}

void Project::setDuration(KWTaskInfo &task, const QString &duration)
{
    const QRegularExpressionMatch match = QRegularExpression(durationPattern).match(duration);
    if (!match.hasMatch())
        refuse("no duration: " + duration);
    task.DurationUnits = units.value(match.captured(2));
    task.Finish = task.Milestone
                      ? task.Start + 1
                      : KWTaskInfo::backwardsDateTime(m_document.get(), task.Start,
                                                      match.captured(1).toDouble(), task.DurationUnits);
    task.DurationSecs =
        KWTaskInfo::durationSecs(m_document.get(), task.Start, task.Finish, task.DurationUnits);
}

void Project::Row::setDuration(const char *duration)
{
    m_project.setDuration(m_task, duration);
    m_project.schedule();
}

void Project::Row::setStart(const char *date)
{
    const quint32 oldStart = m_task.Start;
    m_task.moveStartTo(&m_project.document(), m_project.moment(date));
    m_project.document().taskCollection()->recalculateTask(&m_task, oldStart);
    m_project.schedule();
}

KWTaskInfo &Project::task(const char *name) const
{
    KWTaskInfo *found = m_document->getTaskInfoByName(QString::fromUtf8(name));
    if (!found)
        throw std::out_of_range(std::string("no task ") + name);
    return *found;
}

bool Project::link(const char *predecessor, const char *successor)
{
    const bool made = m_document->taskCollection()->taskDependTask(&task(predecessor), &task(successor));
    schedule();
    return made;
}

void Project::assign(const char *taskName, const char *resource)
{
    auto *info = new ResourceInfo;
    info->ID = m_document->resourceInfoData()->maxID();
    info->name = QString::fromUtf8(resource);
    m_document->resourceInfoData()->appendResourceInfo(info);
    task(taskName).addOrDelResourceByName(m_document.get(), info->name, true);
}

void Project::schedule()
{
    m_document->taskCollection()->updateOptionTaskTime();
    m_document->taskCollection()->pushAllSuccessors();
    for (KWTaskInfo *task : m_document->taskList()) {
        if (!task->isParent())
            task->updateParentPercent(m_document.get());
    }
    m_document->updateAllTaskEarlyLate();
    m_document->taskCollection()->updateRageAndTaskPoint();
}

std::string Project::dates() const
{
    std::string text;
    for (const KWTaskInfo *task : m_document->taskList()) {
        text += indent(*task) + task->Name.toStdString();
        if (task->Milestone)
            text += ' ' + shown(m_document.get(), task->Start, true).toStdString();
        else if (task->Start != 0)
            text += ' ' + shown(m_document.get(), task->Start, true).toStdString() + " - " +
                    shown(m_document.get(), task->Finish, false).toStdString();
        text += '\n';
    }
    return text;
}

std::string Project::outline() const
{
    std::string text;
    for (const KWTaskInfo *task : m_document->taskList())
        text += indent(*task) + task->Name.toStdString() + '\n';
    return text;
}
