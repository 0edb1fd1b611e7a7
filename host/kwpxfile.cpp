#include "kwpxfile.h"
#include "console.h"
#include "kwzip.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "schedule/kwcalendar.h"
#include "texts.h"
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QUuid>

namespace kwpxfile {

namespace {

WorkingTime workingTimeOf(const KWDocument &document)
{
    WorkingTime time;
    std::copy(std::begin(document.WorkDay), std::end(document.WorkDay), time.week.begin());
    time.hours.clear();
    for (const KWDayTime *interval : document.workTimes)
        time.hours.push_back({int(interval->start), int(interval->finish)});
    for (const KWCalendar *calendar : document.calendars) {
        if (calendar->isException)
            time.exceptions.push_back(
                {calendar->startDate, calendar->finishDate, calendar->isWork, calendar->name});
    }
    return time;
}

// Numbers the outline: "1.2.3". A package holds no such numbers.
class Numbering
{
public:
    QString next(int level)
    {
        const int depth = qBound(1, level, planrows::deepestLevel);
        while (m_numbers.size() < depth)
            m_numbers.append(0);
        m_numbers.erase(m_numbers.begin() + depth, m_numbers.end());
        ++m_numbers.last();
        QStringList parts;
        for (const int number : qAsConst(m_numbers))
            parts.append(QString::number(number));
        return parts.join(QLatin1Char('.'));
    }

private:
    QVector<int> m_numbers;
};

planrows::Row rowOf(KWDocument &document, const KWTaskInfo &task, Numbering &numbering)
{
    planrows::Row row;
    row.id = task.ID;
    row.level = task.Level;
    row.wbs = numbering.next(task.Level);
    row.name = task.Name;
    if (task.Start != 0) {
        row.start.when = KWTaskInfo::showDateTime(&document, task.Start, true);
        row.start.hasTime = true;
    }
    row.hasDuration = !task.isParent();
    row.duration.value = KWTaskInfo::getDurValueByTaskInfo(&document, &task);
    row.duration.unit = task.DurationUnits;
    row.percent = task.Percent;
    row.resources = task.Resources;
    row.notes = task.Notes;
    row.milestone = task.Milestone;
    for (const quint32 id : task.Predecessors) {
        planrows::Link link;
        link.number = id;
        row.predecessors.append(link);
    }
    return row;
}

bool namesCalendar(const Options &options)
{
    return !options.calendarFile.isEmpty() || !options.days.isEmpty() || !options.hours.isEmpty() ||
           !options.holidays.isEmpty() || !options.start.isEmpty() || !options.resourcesFile.isEmpty() ||
           !options.assignmentsFile.isEmpty();
}
}

bool isPackage(const QString &path)
{
    constexpr qint64 directoryBytes = 64 << 10; // the list of entries stands at the end
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.read(2) != "PK")
        return path.endsWith(QLatin1String(".kwpx")) && QFileInfo(path).isFile();
    file.seek(qMax<qint64>(0, file.size() - directoryBytes));
    return path.endsWith(QLatin1String(".kwpx")) || file.readAll().contains("document.xml");
}

bool refusesCalendar(Console &console, const QString &path)
{
    if (!namesCalendar(console.options()))
        return false;
    console.error(
        t("%1: a package brings its own calendar and resources").arg(path),
        t("leave --calendar, --days, --hours, --holiday, --start, --resources and --assignments out"));
    return true;
}

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (refusesCalendar(console, path))
        return Console::WrongUse;
    KWDocument &document = *plan.document;
    if (!document.loadFromKWGT(path)) {
        const QString why = KWZip::lastError();
        console.error(t("%1: not a plan: %2").arg(path, why.isEmpty() ? t("its XML cannot be read") : why),
                      t("--log FILE tells more"));
        return Console::CannotRead;
    }
    for (const Finding &finding : document.loadFindings().list())
        findings.add(finding.place, finding.what, finding.hint);
    plan.isPackage = true;
    plan.majorUnit = document.MajorUnit;
    plan.minorUnit = document.MinorUnit;
    describe(plan);
    return Console::Done;
}

void describe(Plan &plan)
{
    KWDocument &document = *plan.document;
    plan.workingTime = workingTimeOf(document);
    plan.rows.hasIds = true;
    plan.rows.rows.clear();
    plan.links = 0;
    plan.withoutStart = 0;
    Numbering numbering;
    for (const KWTaskInfo *task : document.taskList()) {
        plan.rows.rows.push_back(rowOf(document, *task, numbering));
        plan.links += task->Predecessors.size();
        plan.withoutStart += task->Start == 0 && !task->isParent();
    }
    plan.start = plan::firstStart(plan);
}

bool save(Console &console, Plan &plan, const QString &path, bool overwrite)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        console.error(t("%1: cannot be written: %2").arg(path, t("it is no plain file")));
        return false;
    }
    if (info.exists() && !overwrite) {
        console.error(t("%1: exists already and stays as it is").arg(path), t("--force replaces it"));
        return false;
    }
    KWDocument &document = *plan.document;
    if (plan.isPackage) {
        // The units of the chart were changed to count slack.
        document.MajorUnit = plan.majorUnit;
        document.MinorUnit = plan.minorUnit;
    } else {
        // The same plan gives the same bytes.
        document.DocGuid = QUuid::createUuidV5(QUuid(), machine::csv(plan)).toString();
    }
    if (document.saveTo(path, false, true))
        return true;
    console.error(t("%1: cannot be written: %2").arg(path, KWZip::lastError()),
                  t("the folder must exist and have room; nothing was changed"));
    return false;
}
}
