// From the rows of a file to a document: tasks, outline, given dates and links.
#include "engine/record/outline.h"
#include "model/kwtaskinfo.h"
#include "plan.h"
#include "schedule/kwtaskcollection.h"
#include "support/findings.h"
#include "support/kwclock.h"
#include "table/rowcolumndata.h"
#include "taskref.h"
#include "texts.h"
#include <QHash>
#include <QSet>

namespace plan {

namespace {

quint32 secsOf(const QDateTime &moment)
{
    return quint32(qBound<qint64>(0, moment.toSecsSinceEpoch(), 0xFFFFFFFFll));
}

constexpr quint32 milestoneSecs = 1; // a milestone's finish lies one second after its start
constexpr int progressStep = 1000;   // rows

class Builder
{
public:
    Builder(Plan &plan, Findings &findings, const Plan::Progress &progress)
        : m_plan(plan)
        , m_document(plan.document.get())
        , m_rows(plan.rows.rows)
        , m_findings(findings)
        , m_progress(progress)
    {
    }

    bool run(QString &error)
    {
        workingtime::apply(m_plan.workingTime, *m_document);
        countSlackIn(m_plan, m_plan.slackUnit);
        if (!chooseStart(error))
            return false;
        findSummaries();
        chooseIds();
        addTasks();
        addLinks();
        return true;
    }

private:
    int rowCount() const { return int(m_rows.size()); }
    bool isSummary(int row) const { return m_isSummary[std::size_t(row)]; }
    QString placeOf(int row) const { return planrows::place(row + 1); }

    quint32 startSecs(const datetext::Moment &moment) { return plan::startSecs(*m_document, moment); }
    quint32 finishSecs(const datetext::Moment &moment) { return plan::finishSecs(*m_document, moment); }

    bool chooseStart(QString &error)
    {
        const WorkingTime &workingTime = m_plan.workingTime;
        if (!workingTime.hasWorkday() || workingTime.hoursPerDay() == 0) {
            error = workingTime.hasWorkday() ? t("no working hour in the day: nothing can be scheduled")
                                             : t("no working day in the week: nothing can be scheduled");
            return false;
        }
        datetext::Moment start = workingTime.start;
        if (!start.when.isValid()) {
            for (const planrows::Row &row : m_rows)
                if (row.start.when.isValid() && (!start.when.isValid() || row.start.when < start.when))
                    start = row.start;
        }
        if (!start.when.isValid())
            start = {KWClock::now().date().startOfDay(), false};
        m_plan.start = startSecs(start);
        if (!KWTaskInfo::isWorkday(m_document, QDateTime::fromSecsSinceEpoch(m_plan.start))) {
            error = t("no working day from %1 on: nothing can be scheduled")
                        .arg(datetext::dateText(start.when.date(), datetext::Year));
            return false;
        }
        return true;
    }

    // A row with a deeper one right below it holds that one.
    void findSummaries()
    {
        m_isSummary.assign(m_rows.size(), false);
        for (int row = 0; row < rowCount(); ++row) {
            const int level = m_rows[std::size_t(row)].level;
            const int next = row + 1 < rowCount() ? m_rows[std::size_t(row) + 1].level : 0;
            m_isSummary[std::size_t(row)] = next == level + 1;
            const int before = row > 0 ? m_rows[std::size_t(row) - 1].level : 0;
            if (level > before + 1)
                m_findings.add(placeOf(row), t("outline level %1 follows level %2").arg(level).arg(before),
                               t("a task is one level below its summary"));
        }
    }

    void chooseIds()
    {
        QSet<quint32> used;
        used.reserve(rowCount());
        m_ids.assign(m_rows.size(), 0);
        quint32 largest = 0;
        for (int row = 0; row < rowCount(); ++row) {
            const quint32 written = m_rows[std::size_t(row)].id;
            m_rowOfNumber.insert(m_plan.rows.hasIds ? written : quint32(row + 1),
                                 m_rowOfNumber.value(m_plan.rows.hasIds ? written : quint32(row + 1), row));
            if (written == 0 || used.contains(written))
                continue;
            m_ids[std::size_t(row)] = written;
            used.insert(written);
            largest = qMax(largest, written);
        }
        quint32 next = largest;
        for (int row = 0; row < rowCount(); ++row) {
            quint32 &id = m_ids[std::size_t(row)];
            if (id != 0)
                continue;
            do
                ++next;
            while (next == 0 || used.contains(next));
            id = next;
            used.insert(id);
            const quint32 written = m_rows[std::size_t(row)].id;
            if (written != 0)
                m_findings.add(placeOf(row),
                               t("task number %1 is used twice; this task becomes %2").arg(written).arg(id),
                               t("links to %1 mean the first").arg(written));
        }
    }

    void addTasks()
    {
        outline::LevelBuilder levels;
        for (int row = 0; row < rowCount(); ++row) {
            const planrows::Row &source = m_rows[std::size_t(row)];
            auto *task = new KWTaskInfo;
            task->ID = m_ids[std::size_t(row)];
            task->Level = source.level;
            task->Name = source.name;
            task->Notes = source.notes;
            task->Resources = source.resources;
            task->setPercent(source.percent);
            task->Progress = KWTaskInfo::indexFromPercent(task->Percent);
            task->DurationUnits = source.hasDuration ? source.duration.unit : m_document->ProjectUnit;
            if (!isSummary(row))
                setDates(row, *task);
            levels.add(*task);
            m_document->appendTaskInfoList(task);
            if (m_progress && row % progressStep == 0)
                m_progress(t("building the tasks"), row, rowCount());
        }
        m_document->rowColumnData()->setRowHeights(rowHeights());
    }

    QList<double> rowHeights() const
    {
        QList<double> heights;
        heights.reserve(rowCount());
        for (int row = 0; row < rowCount(); ++row)
            heights.append(RowColumnData::defaultRowHeight);
        return heights;
    }

    void setDates(int row, KWTaskInfo &task)
    {
        planrows::Row &source = m_rows[std::size_t(row)];
        const bool hasStart = source.start.when.isValid();
        const bool hasFinish = source.finish.when.isValid();
        const bool noLength = source.hasDuration
                                  ? source.duration.value == 0
                                  : hasStart && hasFinish && source.start.when == source.finish.when;
        task.Milestone = source.milestone || noLength;
        if (!hasStart)
            ++m_plan.withoutStart;

        if (task.Milestone) {
            const datetext::Moment &given = hasStart ? source.start : source.finish;
            task.Start = given.when.isValid() ? startSecs(given) : m_plan.start;
            task.Finish = task.Start + milestoneSecs;
        } else if (source.hasDuration) {
            setDatesByDuration(row, task);
        } else {
            setDatesByEnds(row, task);
        }
        task.DurationSecs = KWTaskInfo::durationSecs(m_document, task.Start, task.Finish, task.DurationUnits);
    }

    void setDatesByDuration(int row, KWTaskInfo &task)
    {
        const planrows::Row &source = m_rows[std::size_t(row)];
        const double value = source.duration.value;
        if (!source.start.when.isValid() && source.finish.when.isValid()) {
            const quint32 finish = finishSecs(source.finish);
            task.Start = KWTaskInfo::backwardsDateTime(m_document, finish, -value, source.duration.unit);
        } else {
            task.Start = source.start.when.isValid() ? startSecs(source.start) : m_plan.start;
        }
        task.Finish = KWTaskInfo::backwardsDateTime(m_document, task.Start, value, source.duration.unit);
        if (task.Finish <= task.Start)
            task.Finish = task.Start + milestoneSecs;
    }

    void setDatesByEnds(int row, KWTaskInfo &task)
    {
        const planrows::Row &source = m_rows[std::size_t(row)];
        constexpr double oneDay = 1;
        constexpr unsigned int day = 4;
        const bool hasFinish = source.finish.when.isValid();
        if (source.start.when.isValid())
            task.Start = startSecs(source.start);
        else if (hasFinish)
            task.Start = KWTaskInfo::backwardsDateTime(m_document, finishSecs(source.finish), -oneDay, day);
        else
            task.Start = m_plan.start;
        task.Finish = hasFinish ? finishSecs(source.finish) : 0;
        if (task.Finish > task.Start)
            return;
        task.Finish = KWTaskInfo::backwardsDateTime(m_document, task.Start, oneDay, day);
        m_findings.add(placeOf(row), hasFinish
                                         ? t("it finishes before it starts; it is taken as one day long")
                                         : t("neither a duration nor a finish; it is taken as one day long"));
    }

    void addLinks()
    {
        QList<KWTaskLink> wanted;
        std::vector<int> rowOfLink;
        for (int row = 0; row < rowCount(); ++row) {
            for (const planrows::Link &link : m_rows[std::size_t(row)].predecessors) {
                const int before = link.refusal.isEmpty() ? m_rowOfNumber.value(link.number, -1) : -1;
                if (!link.refusal.isEmpty()) {
                    refuseLink(row, link.refusal);
                } else if (before < 0) {
                    refuseLink(row, t("predecessor %1 does not exist").arg(link.number));
                } else {
                    wanted.append(
                        {m_ids[std::size_t(before)], m_ids[std::size_t(row)], LinkRefusal::None, {}});
                    rowOfLink.push_back(row);
                }
            }
        }
        if (m_progress)
            m_progress(t("linking the tasks"), 0, 0);
        m_plan.links = m_document->taskCollection()->linkTasks(wanted);
        for (int i = 0; i < wanted.size(); ++i)
            if (wanted.at(i).refusal != LinkRefusal::None)
                refuseLink(rowOfLink[std::size_t(i)], wanted.at(i));
    }

    void refuseLink(int row, const QString &what, const QString &hint = QString())
    {
        ++m_plan.refusedLinks;
        m_findings.add(placeOf(row), t("%1; link skipped").arg(what), hint);
    }

    void refuseLink(int row, const KWTaskLink &link)
    {
        const options::Fault why = taskref::refusal(*m_document, link);
        refuseLink(row, why.what, why.hint);
    }

    Plan &m_plan;
    KWDocument *m_document;
    std::vector<planrows::Row> &m_rows;
    Findings &m_findings;
    const Plan::Progress &m_progress;
    std::vector<bool> m_isSummary;
    std::vector<quint32> m_ids;
    QHash<quint32, int> m_rowOfNumber; // as predecessors are written
};
}

void countSlackIn(Plan &plan, unsigned int unit)
{
    // The stored form of a minor unit below the week.
    constexpr quint32 week = 3;
    plan.document->MajorUnit = week;
    plan.document->MinorUnit = unit - week - 1;
}

quint32 startSecs(KWDocument &document, const datetext::Moment &moment)
{
    const quint32 secs = secsOf(KWTaskInfo::editTimeTransDayTime(&document, moment.when, true));
    return KWTaskCollection::moveForwarstartOnDayOff(&document, secs, false);
}

quint32 finishSecs(KWDocument &document, const datetext::Moment &moment)
{
    const QDateTime lastDay = KWTaskInfo::editTimeTransDayTime(&document, moment.when, false);
    return KWTaskCollection::addFinishOnDayOff(&document, secsOf(lastDay.addDays(1)), false);
}

bool build(Plan &plan, Findings &findings, QString &error, const Plan::Progress &progress)
{
    return Builder(plan, findings, progress).run(error);
}
}
