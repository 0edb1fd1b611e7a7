#include "planfile.h"
#include "console.h"
#include "exchange/CSVDataEngine.h"
#include "exchange/csvplan.h"
#include "kwpxfile.h"
#include "model/kwtaskinfo.h"
#include "projectfile.h"
#include "resources/resourceinfodata.h"
#include "shown.h"
#include "support/findings.h"
#include "texts.h"
#include "workbookfile.h"
#include "workingtime.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace planfile {

namespace {

constexpr qint64 largestSideBytes = 128 * 1024 * 1024;

// The calendar file may name the project, and so does a single task at the top; else "site-move.csv" is "Site
// move".
QString projectName(const Plan &plan)
{
    if (!plan.projectName.isEmpty())
        return plan.projectName;
    int tops = 0;
    QString name;
    for (const KWTaskInfo *task : plan.document->taskList()) {
        if (task->Level == 1 && tops++ == 0)
            name = task->Name.simplified();
    }
    if (tops == 1 && plan.taskCount() > 1 && !name.isEmpty())
        return name;
    name = QFileInfo(plan.file).completeBaseName();
    name.replace(QLatin1Char('-'), QLatin1Char(' ')).replace(QLatin1Char('_'), QLatin1Char(' '));
    if (plan.file == QLatin1String("-"))
        name = t("Plan");
    if (!name.isEmpty())
        name[0] = name.at(0).toUpper();
    return name;
}

// The file named by the option, else for "calendar.json" NAME.calendar.json or calendar.json beside the plan;
// empty when there is none.
QString sidePath(const QString &planPath, const QString &named, const char *side)
{
    if (!named.isEmpty() || planPath == QLatin1String("-"))
        return named;
    const QFileInfo info(planPath);
    for (const QString &name :
         {info.completeBaseName() + QLatin1Char('.') + QLatin1String(side), QString::fromLatin1(side)}) {
        const QFileInfo candidate(info.dir().filePath(name));
        if (candidate.isFile())
            return candidate.filePath();
    }
    return QString();
}

int wrongOption(Console &console, const char *option, const QString &value, const QString &hint)
{
    console.error(t("'%1' is no value for '%2'").arg(value, QLatin1String(option)), hint);
    return Console::WrongUse;
}

// Into the document, with the project's name and start beside it.
int readCalendar(const QString &planPath, Console &console, Plan &plan, ProjectStart &start,
                 Findings &findings)
{
    const Options &options = console.options();
    WorkingTime time;
    const QString path = sidePath(planPath, options.calendarFile, "calendar.json");
    if (!path.isEmpty()) {
        QByteArray json;
        QString error;
        if (!readBytes(path, workingtime::largestFileBytes, json, error) ||
            !workingtime::read(json, time, findings, error)) {
            console.error(path + QLatin1String(": ") + error, t("--calendar FILE names another calendar"));
            return Console::CannotRead;
        }
    }
    if (!options.days.isEmpty() && !workingtime::parseDays(options.days, time))
        return wrongOption(console, "--days", options.days, t("write it as Mon-Fri or Mon-Thu,Sat"));
    if (!options.hours.isEmpty() && !workingtime::parseHours(options.hours, time))
        return wrongOption(console, "--hours", options.hours, t("write it as 08:00-12:00,13:00-17:00"));
    for (const QString &holiday : options.holidays)
        if (!workingtime::parseHoliday(holiday, time))
            return wrongOption(console, "--holiday", holiday,
                               t("write it as 2026-12-25 or 2026-12-24..2026-12-31"));
    if (!options.start.isEmpty() && !datetext::parseMoment(options.start, time.start))
        return wrongOption(console, "--start", options.start,
                           t("write it as 2026-02-28 or 2026-02-28T08:00"));
    if (!time.hasWorkday() || time.hoursPerDay() == 0) {
        console.error(planPath + QLatin1String(": ") +
                          (time.hasWorkday() ? t("no working hour in the day: nothing can be scheduled")
                                             : t("no working day in the week: nothing can be scheduled")),
                      t("--days, --hours and --calendar give the working time"));
        return Console::CannotSchedule;
    }
    planimport::setCalendar(*plan.document, time);
    plan.projectName = time.projectName;
    start = {time.start.date, time.start.hasTime ? time.start.secs : -1};
    return Console::Done;
}

// Console::Done with the file's text, or the exit code after telling why there is none.
int readText(const QString &path, Console &console, csv::Text &text)
{
    const csv::Limits limits;
    QByteArray bytes;
    QString error;
    if (!readBytes(path, limits.bytes, bytes, error)) {
        console.error(t("%1: cannot be read: %2").arg(path, error), t("check the name and the permissions"));
        return Console::CannotRead;
    }
    csv::Fault fault;
    const qint64 total = bytes.size();
    if (csv::check(bytes, text, fault, limits,
                   [&console, total](qint64 done) { console.progress(t("reading"), done, total); }))
        return Console::Done;
    const QString place = fault.line > 0 ? t("line %1").arg(fault.line) + QLatin1String(": ") : QString();
    console.error(path + QLatin1String(": ") + place + fault.what, fault.hint);
    return Console::CannotRead;
}

int readTables(const QString &path, Console &console, Plan &plan, const ProjectStart &start,
               Findings &findings)
{
    const Options &options = console.options();
    csv::Text tasks;
    if (const int code = readText(path, console, tasks))
        return code;
    const QString resources = sidePath(path, options.resourcesFile, "resources.csv");
    const QString assignments =
        resources.isEmpty() ? QString() : sidePath(path, options.assignmentsFile, "assignments.csv");
    csv::Text resourceText, assignmentText;
    if (!resources.isEmpty()) {
        if (const int code = readText(resources, console, resourceText))
            return code;
    }
    if (!assignments.isEmpty()) {
        if (const int code = readText(assignments, console, assignmentText))
            return code;
    }
    console.progress(t("building the tasks"), 0, 0);
    CSVDataEngine engine(plan.document.get());
    engine.setStart(start);
    // Scheduling tells what it moves; what has no dates is moved by it, too.
    engine.setPlacesBehind(false);
    // Only writing into the file needs its cells again.
    if (options.inPlace)
        plan.table = csv::tableOf(tasks);
    const bool isRead = engine.importTexts(std::move(tasks), resources.isEmpty() ? nullptr : &resourceText,
                                           assignments.isEmpty() ? nullptr : &assignmentText);
    if (!isRead) {
        console.list(path, engine.findings());
        return Console::CannotRead;
    }
    for (const Finding &finding : engine.findings().list())
        findings.add(finding.place, finding.what, finding.hint);
    plan.imported = engine.imported();
    return Console::Done;
}

// Whether the file's text still means that moment; a date alone means `secsOfDate`.
bool stillSays(const QString &cell, const shown::Clock &now, int secsOfDate)
{
    datetext::Moment given;
    return datetext::parseMoment(cell, given) && given.date == now.date &&
           (given.hasTime ? given.secs : secsOfDate) == now.secs;
}

// A file that writes dates alone goes on with them.
bool writesTimes(const csv::Table &table, std::initializer_list<int> columns)
{
    bool anyDate = false;
    for (std::size_t row = 1; row < table.rows.size(); ++row) {
        for (const int column : columns) {
            datetext::Moment given;
            if (!datetext::parseMoment(table.rows[row].cells.value(column), given))
                continue;
            anyDate = true;
            if (given.hasTime)
                return true;
        }
    }
    return !anyDate;
}

QString writtenMoment(const shown::Clock &moment, int secsOfDate, bool withTimes)
{
    return withTimes || moment.secs != secsOfDate ? moment.iso() : moment.date.toString(Qt::ISODate);
}

QString durationOf(const Plan &plan, int pos)
{
    const KWTaskInfo *task = plan.task(pos);
    return datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(plan.document.get(), task),
                                  task->DurationUnits);
}

void setCell(QStringList &cells, int column, const QString &text)
{
    while (cells.size() <= column)
        cells.append(QString());
    cells[column] = text;
}
}

namespace {

// A plan without a calendar of its own: that stands beside it, and dates are read by it.
int loadWithCalendar(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    ProjectStart start;
    if (const int code = readCalendar(path, console, plan, start, findings))
        return code;
    plan::countSlackIn(plan, plan.slackUnit);
    const bool isTable = console.options().inputFormat == QLatin1String("csv");
    const int code = !isTable && workbookfile::kindOf(path) != workbookfile::None
                         ? workbookfile::load(path, console, plan, start, findings)
                         : readTables(path, console, plan, start, findings);
    if (code != Console::Done)
        return code;
    plan.start = plan.imported.start;
    plan.links = plan.imported.links;
    plan.refusedLinks = plan.imported.refusedLinks;
    plan.withoutStart = plan.imported.withoutStart.size();
    const QDateTime first = QDateTime::fromSecsSinceEpoch(plan.start);
    if (!KWTaskInfo::isWorkday(plan.document.get(), first)) {
        console.error(path + QLatin1String(": ") +
                          t("no working day from %1 on: nothing can be scheduled")
                              .arg(datetext::dateText(first.date(), datetext::Year)),
                      t("--days, --hours and --calendar give the working time"));
        return Console::CannotSchedule;
    }
    plan.name = projectName(plan);
    return Console::Done;
}
}

bool readBytes(const QString &path, qint64 most, QByteArray &bytes, QString &error)
{
    QFile file(path);
    const bool isStandardInput = path == QLatin1String("-");
    if (!isStandardInput && QFileInfo(path).isDir()) {
        error = t("it is a folder");
        return false;
    }
    if (isStandardInput ? !file.open(stdin, QIODevice::ReadOnly) : !file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    constexpr qint64 blockBytes = 1024 * 1024;
    for (;;) {
        const QByteArray block = file.read(blockBytes);
        if (file.error() != QFileDevice::NoError) {
            error = file.errorString();
            return false;
        }
        if (block.isEmpty())
            return true;
        bytes += block;
        if (bytes.size() > most) {
            error = t("longer than %1 bytes").arg(grouped(most));
            return false;
        }
    }
}

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    plan.file = path;
    plan.slackUnit = console.options().slackUnit;
    const QString &from = console.options().inputFormat;
    const bool isXml =
        from == QLatin1String("mspdi") || (from.isEmpty() && projectfile::kindOf(path) != projectfile::None);
    if (isXml) {
        const int code = projectfile::load(path, console, plan, findings);
        if (plan.name.isEmpty())
            plan.name = projectName(plan);
        return code;
    }
    if (from == QLatin1String("kwpx") || (from.isEmpty() && kwpxfile::isPackage(path))) {
        if (const int code = kwpxfile::load(path, console, plan, findings))
            return code;
        plan::countSlackIn(plan, plan.slackUnit);
        plan.name = projectName(plan);
        return Console::Done;
    }
    return loadWithCalendar(path, console, plan, findings);
}

namespace {

// What the calendar file beside a plan is to say.
WorkingTime calendarOf(const Plan &plan)
{
    WorkingTime time = workingtime::of(*plan.document);
    time.projectName = plan.projectName;
    if (plan.imported.isStartGiven) {
        const shown::Clock start = shown::startOf(plan, plan.start);
        const int dayStart = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true)) * 3600;
        time.start = {start.date, start.secs == dayStart ? 0 : start.secs, start.secs != dayStart};
    }
    return time;
}

// Whether a file says the same already, so that it may stay as it is.
bool saysTheSame(const QString &path, const Plan &plan, const WorkingTime &calendar)
{
    WorkingTime time;
    QByteArray json;
    QString error;
    Findings findings;
    if (!readBytes(path, workingtime::largestFileBytes, json, error) ||
        !workingtime::read(json, time, findings, error) || time.start.isGiven() != calendar.start.isGiven())
        return false;
    if (time.start.isGiven() && plan::startSecs(*plan.document, time.start) == plan.start)
        time.start = calendar.start;
    return workingtime::toJson(time) == workingtime::toJson(calendar);
}
}

std::vector<Side> sidesOf(const Plan &plan, const QString &path)
{
    const QFileInfo info(path);
    const bool isTable = path.endsWith(QLatin1String(".csv"));
    const bool isWorkbook = path.endsWith(QLatin1String(".xlsx")) || path.endsWith(QLatin1String(".xls"));
    if (!(isTable || isWorkbook) || (info.exists() && !info.isFile()))
        return {};
    const bool hasSheet = !plan.document->resourceInfoData()->infos.isEmpty();
    const WorkingTime calendar = calendarOf(plan);
    const QByteArray json = workingtime::toJson(calendar);
    std::vector<Side> sides;
    // Where nothing is to be said, an older file beside the plan must not say it. One that says the same
    // stays.
    const auto add = [&](const char *name, bool needed, const QByteArray &bytes, bool isCalendar = false) {
        const QString found = sidePath(path, QString(), name);
        if (!needed && found.isEmpty())
            return;
        QByteArray old;
        QString error;
        if (!found.isEmpty() && (isCalendar ? saysTheSame(found, plan, calendar)
                                            : readBytes(found, largestSideBytes, old, error) && old == bytes))
            return;
        sides.push_back({path.left(path.lastIndexOf(QLatin1Char('.')) + 1) + QLatin1String(name), bytes});
    };
    add("calendar.json", json != workingtime::toJson(WorkingTime()), json, true);
    if (isWorkbook)
        return sides;
    add("resources.csv", hasSheet, csvplan::resources(*plan.document));
    add("assignments.csv", hasSheet, csvplan::assignments(*plan.document));
    return sides;
}

QByteArray rewritten(const Plan &plan)
{
    csv::Table table = plan.table;
    QStringList &titles = table.rows.front().cells;
    const csvplan::Places given = csvplan::placesIn(titles);
    csvplan::Places places = given;
    const auto atEnd = [&titles](int &place, const char *title) {
        if (place >= 0)
            return;
        place = titles.size();
        titles.append(QLatin1String(title));
    };
    atEnd(places.start, "Start");
    atEnd(places.finish, "Finish");
    QHash<int, std::size_t> rowOfLine;
    for (std::size_t row = 1; row < table.rows.size(); ++row)
        rowOfLine.insert(table.rows[row].line, row);
    const shown::Times times(plan);
    const int dayStartSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true)) * 3600;
    const int dayFinishSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), false)) * 3600;
    const bool withTimes = writesTimes(plan.table, {given.start, given.finish});
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        QStringList &cells = table.rows[rowOfLine.value(plan.imported.rows.value(pos))].cells;
        // What still holds keeps the way it was written.
        if (!stillSays(cells.value(places.start), times.start(pos), dayStartSecs))
            setCell(cells, places.start, writtenMoment(times.start(pos), dayStartSecs, withTimes));
        if (!stillSays(cells.value(places.finish), times.finish(pos), dayFinishSecs))
            setCell(cells, places.finish, writtenMoment(times.finish(pos), dayFinishSecs, withTimes));
        if (plan.task(pos)->isParent() && !cells.value(places.length).trimmed().isEmpty())
            setCell(cells, places.length, durationOf(plan, pos));
    }
    return csv::toBytes(table);
}
}
