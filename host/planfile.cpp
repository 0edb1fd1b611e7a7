#include "planfile.h"
#include "console.h"
#include "csvrewrite.h"
#include "diff.h"
#include "exchange/CSVDataEngine.h"
#include "exchange/csvplan.h"
#include "kwpxfile.h"
#include "model/kwtaskinfo.h"
#include "projectfile.h"
#include "resources/resourceinfodata.h"
#include "shown.h"
#include "support/findings.h"
#include "taskref.h"
#include "texts.h"
#include "workbookfile.h"
#include "writtencalendar.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

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
        if (!readBytes(path, writtencalendar::largestFileBytes, json, error) ||
            !writtencalendar::read(json, time, findings, error)) {
            console.error(path + QLatin1String(": ") + error, t("--calendar FILE names another calendar"));
            return Console::CannotRead;
        }
    }
    if (!options.days.isEmpty() && !writtencalendar::parseDays(options.days, time))
        return wrongOption(console, "--days", options.days, t("write it as Mon-Fri or Mon-Thu,Sat"));
    if (!options.hours.isEmpty() && !writtencalendar::parseHours(options.hours, time))
        return wrongOption(console, "--hours", options.hours,
                           writtencalendar::hoursFault(options.hours) + QLatin1String("; ") +
                               t("write it as 08:00-12:00,13:00-17:00"));
    for (const QString &holiday : options.holidays)
        if (!writtencalendar::parseHoliday(holiday, time))
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
    console.error(path + QLatin1String(": ") + place + texts::said(fault.what), texts::said(fault.hint));
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
    findings.append(engine.findings());
    plan.imported = engine.imported();
    return Console::Done;
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
        error = texts::said(file.errorString());
        return false;
    }
    constexpr qint64 blockBytes = 1024 * 1024;
    const auto bounded = [most](qint64 size) { return int(qBound(qint64(1), size, most + 1)); };
    // One byte more than there are shows the end.
    bytes.resize(bounded(qMax(blockBytes, file.size() + 1)));
    for (qint64 done = 0;;) {
        const qint64 count = file.read(bytes.data() + done, bytes.size() - done);
        if (file.error() != QFileDevice::NoError) {
            error = texts::said(file.errorString());
            return false;
        }
        if (count <= 0) {
            bytes.truncate(int(done));
            return true;
        }
        done += count;
        if (done > most) {
            error = t("longer than %1 bytes").arg(grouped(most));
            return false;
        }
        if (done == bytes.size())
            bytes.resize(bounded(2 * done));
    }
}

int loadUnnumbered(const QString &path, Console &console, Plan &plan, Findings &findings)
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

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    const int code = loadUnnumbered(path, console, plan, findings);
    // Numbers of the outline are the file's where it gives every task one.
    if (code == Console::Done && plan.imported.codes.size() < plan.taskCount())
        plan.imported.codes = csvplan::outlineCodes(*plan.document);
    return code;
}

namespace {

// What the calendar file beside a plan is to say.
WorkingTime calendarOf(const Plan &plan)
{
    WorkingTime time = writtencalendar::of(*plan.document);
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
    if (!readBytes(path, writtencalendar::largestFileBytes, json, error) ||
        !writtencalendar::read(json, time, findings, error) ||
        time.start.isGiven() != calendar.start.isGiven())
        return false;
    if (time.start.isGiven() && plan::startSecs(*plan.document, time.start) == plan.start)
        time.start = calendar.start;
    return writtencalendar::toJson(time) == writtencalendar::toJson(calendar);
}
}

std::vector<Side> sidesOf(const Plan &plan, const QString &path)
{
    const QFileInfo info(path);
    const bool isTable = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    const bool isWorkbook = path.endsWith(QLatin1String(".xlsx"), Qt::CaseInsensitive) ||
                            path.endsWith(QLatin1String(".xls"), Qt::CaseInsensitive);
    if (!(isTable || isWorkbook) || (info.exists() && !info.isFile()))
        return {};
    const bool hasSheet = !plan.document->resourceInfoData()->infos.isEmpty();
    const WorkingTime calendar = calendarOf(plan);
    const QByteArray json = writtencalendar::toJson(calendar);
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
    add("calendar.json", json != writtencalendar::toJson(WorkingTime()), json, true);
    if (isWorkbook)
        return sides;
    add("resources.csv", hasSheet, csvplan::resources(*plan.document));
    add("assignments.csv", hasSheet, csvplan::assignments(*plan.document));
    return sides;
}

namespace {

constexpr const char *calendarSide = "calendar.json";
constexpr const char *resourceSide = "resources.csv";
constexpr const char *assignmentSide = "assignments.csv";

// What stands beside the file after the edits: as it was where nothing of it has changed.
bool sidesAfter(const Plan &before, const Plan &after, const Options &options, std::vector<Side> &sides,
                std::vector<bool> &isChanged)
{
    const bool hasSheet = !after.document->resourceInfoData()->infos.isEmpty();
    const auto calendar = [](const Plan &plan) { return writtencalendar::toJson(calendarOf(plan)); };
    const auto add = [&](const char *name, const QString &option, const QByteArray &was, const QByteArray &is,
                         bool isNeeded) {
        const QString found = sidePath(after.file, option, name);
        // A file that an option names is read and never written.
        const bool isWritten = was != is && option.isEmpty() && (isNeeded || !found.isEmpty());
        if (!isWritten && found.isEmpty())
            return true;
        const QFileInfo info(after.file);
        Side side{found.isEmpty()
                      ? info.dir().filePath(info.completeBaseName() + QLatin1Char('.') + QLatin1String(name))
                      : found,
                  is};
        QString error;
        if (!isWritten) {
            side.bytes.clear();
            if (!readBytes(found, largestSideBytes, side.bytes, error))
                return false;
        }
        sides.push_back(side);
        isChanged.push_back(isWritten);
        return true;
    };
    return add(calendarSide, options.calendarFile, calendar(before), calendar(after), true) &&
           add(resourceSide, options.resourcesFile, csvplan::resources(*before.document),
               csvplan::resources(*after.document), hasSheet) &&
           add(assignmentSide, options.assignmentsFile, csvplan::assignments(*before.document),
               csvplan::assignments(*after.document), false);
}

bool writeAll(const QString &folder, const QString &name, const QByteArray &plan,
              const std::vector<Side> &sides)
{
    const auto put = [&folder](const QString &file, const QByteArray &bytes) {
        QFile target(folder + QLatin1Char('/') + file);
        return target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size();
    };
    bool isWritten = put(name, plan);
    constexpr const char *names[] = {calendarSide, resourceSide, assignmentSide};
    for (const Side &side : sides)
        for (const char *each : names)
            if (side.path.endsWith(QLatin1String(each)))
                isWritten = isWritten &&
                            put(QFileInfo(name).completeBaseName() + QLatin1Char('.') + QLatin1String(each),
                                side.bytes);
    return isWritten;
}
}

namespace {

// Reads what was written, and tells what does not come back as the plan has it.
int readAgain(Console &console, const QString &file, const Plan &plan, QStringList &lost)
{
    Plan again;
    Findings findings;
    if (const int code = load(file, console, again, findings))
        return code;
    if (again.withoutStart > 0)
        plan::schedule(again, plan::AsGiven, nullptr);
    plan::refresh(again, nullptr);
    lost.clear();
    for (const diff::Change &change : diff::between(plan, again, {}))
        lost.append((change.before < 0 ? QString()
                                       : taskref::named(*plan.document, plan.task(change.before)->ID) +
                                             QLatin1String(": ")) +
                    t(change.kind) + QLatin1Char(' ') + change.what);
    return Console::Done;
}
}

int saveRows(Console &console, Plan &before, const Plan &after)
{
    using csvrewrite::MissingStarts;
    std::vector<Side> sides;
    std::vector<bool> isChanged;
    const QTemporaryDir folder;
    const QString name = QFileInfo(after.file).fileName();
    bool isWritten = sidesAfter(before, after, console.options(), sides, isChanged);
    QByteArray bytes;
    QStringList lost;
    // Only a plan that comes back as it is now may replace the file. Tasks do not move back when what they
    // wait for becomes shorter, and then their starts have to be in the file.
    const bool mayStayEmpty = !before.imported.withoutStart.isEmpty();
    for (const MissingStarts missing : {MissingStarts::StayEmpty, MissingStarts::AreWritten}) {
        if (missing == MissingStarts::StayEmpty ? !mayStayEmpty : mayStayEmpty && lost.isEmpty())
            continue;
        bytes = csvrewrite::withEdits(before, after, missing);
        isWritten = isWritten && writeAll(folder.path(), name, bytes, sides);
        if (!isWritten)
            break;
        if (const int code = readAgain(console, folder.filePath(name), after, lost))
            return code;
    }
    if (!isWritten) {
        console.error(t("%1: cannot be written").arg(after.file), t("-o PLAN.kwpx writes it as a package"));
        return Console::CannotWrite;
    }
    if (!lost.isEmpty()) {
        constexpr int mostNamed = 3;
        console.error(t("%1: not written, for the file cannot say all of it: %2")
                          .arg(after.file, QStringList(lost.mid(0, mostNamed)).join(QLatin1String("; "))),
                      t("-o PLAN.kwpx writes it as a package"));
        return Console::CannotWrite;
    }
    for (std::size_t i = 0; i < sides.size(); ++i) {
        if (isChanged[i] && !console.replaceFile(sides[i].path, sides[i].bytes, true))
            return Console::CannotWrite;
        if (isChanged[i])
            console.note(t("also written: %1").arg(sides[i].path));
    }
    return console.replaceFile(after.file, bytes, true) ? Console::Done : Console::CannotWrite;
}
}
