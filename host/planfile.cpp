#include "planfile.h"
#include "console.h"
#include "kwpxfile.h"
#include "model/kwtaskinfo.h"
#include "projectfile.h"
#include "resources/resourceinfodata.h"
#include "sheetfile.h"
#include "shown.h"
#include "support/findings.h"
#include "texts.h"
#include "workbookfile.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace planfile {

namespace {

// The calendar file may name the project, and so does a single task at the top; else "site-move.csv" is "Site
// move".
QString projectName(const Plan &plan)
{
    if (!plan.workingTime.projectName.isEmpty())
        return plan.workingTime.projectName;
    int tops = 0;
    QString name;
    for (const planrows::Row &row : plan.rows.rows) {
        if (row.level == 1 && tops++ == 0)
            name = row.name.simplified();
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

int readCalendar(const QString &planPath, Console &console, Plan &plan, Findings &findings)
{
    const Options &options = console.options();
    const QString path = sidePath(planPath, options.calendarFile, "calendar.json");
    if (!path.isEmpty()) {
        QByteArray json;
        QString error;
        if (!readBytes(path, workingtime::largestFileBytes, json, error) ||
            !workingtime::read(json, plan.workingTime, findings, error)) {
            console.error(path + QLatin1String(": ") + error, t("--calendar FILE names another calendar"));
            return Console::CannotRead;
        }
    }
    if (!options.days.isEmpty() && !workingtime::parseDays(options.days, plan.workingTime))
        return wrongOption(console, "--days", options.days, t("write it as Mon-Fri or Mon-Thu,Sat"));
    if (!options.hours.isEmpty() && !workingtime::parseHours(options.hours, plan.workingTime))
        return wrongOption(console, "--hours", options.hours, t("write it as 08:00-12:00,13:00-17:00"));
    for (const QString &holiday : options.holidays)
        if (!workingtime::parseHoliday(holiday, plan.workingTime))
            return wrongOption(console, "--holiday", holiday,
                               t("write it as 2026-12-25 or 2026-12-24..2026-12-31"));
    if (!options.start.isEmpty() && !datetext::parseMoment(options.start, plan.workingTime.start))
        return wrongOption(console, "--start", options.start,
                           t("write it as 2026-02-28 or 2026-02-28T08:00"));
    return Console::Done;
}

// Console::Done with the file's cells, or the exit code after telling why there are none.
int readTable(const QString &path, Console &console, csv::Table &table)
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
    if (csv::parse(bytes, table, fault, limits,
                   [&console, total](qint64 done) { console.progress(t("reading"), done, total); }))
        return Console::Done;
    const QString place = fault.line > 0 ? t("line %1").arg(fault.line) + QLatin1String(": ") : QString();
    console.error(path + QLatin1String(": ") + place + fault.what, fault.hint);
    return Console::CannotRead;
}

int readRows(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (const int code = readTable(path, console, plan.table))
        return code;
    Findings errors;
    if (!planrows::read(plan.table, plan.rows, errors, findings)) {
        console.list(path, errors);
        return Console::CannotRead;
    }
    // Only writing into the file needs its cells again.
    if (!console.options().inPlace)
        plan.table = csv::Table();
    return Console::Done;
}

// The resource sheet and the assignments, where the plan has any.
int readSheet(const QString &planPath, Console &console, Plan &plan, Findings &findings)
{
    const Options &options = console.options();
    const QString resources = sidePath(planPath, options.resourcesFile, "resources.csv");
    if (resources.isEmpty())
        return Console::Done;
    const QString assignments = sidePath(planPath, options.assignmentsFile, "assignments.csv");
    csv::Table table;
    QString error;
    if (const int code = readTable(resources, console, table))
        return code;
    if (!sheetfile::readResources(table, plan, findings, error)) {
        console.error(resources + QLatin1String(": ") + error, t("--resources FILE names another sheet"));
        return Console::CannotRead;
    }
    if (assignments.isEmpty()) {
        sheetfile::assignFromColumn(plan, findings);
        return Console::Done;
    }
    if (const int code = readTable(assignments, console, table))
        return code;
    if (!sheetfile::readAssignments(table, plan, findings, error)) {
        console.error(assignments + QLatin1String(": ") + error, t("--assignments FILE names another file"));
        return Console::CannotRead;
    }
    return Console::Done;
}

int columnOf(csv::Table &table, planrows::Rows &rows, planrows::Field field, const char *title)
{
    int &column = rows.columns[field];
    if (column < 0) {
        column = table.rows.front().cells.size();
        table.rows.front().cells.append(QLatin1String(title));
    }
    return column;
}

// Whether the file's text still means that moment; a date alone means `secsOfDate`.
bool stillSays(const datetext::Moment &given, const shown::Clock &now, int secsOfDate)
{
    const int secs = given.hasTime ? given.when.time().msecsSinceStartOfDay() / 1000 : secsOfDate;
    return given.when.isValid() && given.when.date() == now.date && secs == now.secs;
}

// A file that writes dates alone goes on with them.
bool writesTimes(const std::vector<planrows::Row> &rows)
{
    bool anyDate = false;
    for (const planrows::Row &row : rows) {
        anyDate = anyDate || row.start.when.isValid() || row.finish.when.isValid();
        if ((row.start.when.isValid() && row.start.hasTime) ||
            (row.finish.when.isValid() && row.finish.hasTime))
            return true;
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

// The calendar comes from beside the workbook: dates are read by it.
int loadWorkbook(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (const int code = readCalendar(path, console, plan, findings))
        return code;
    if (!plan.workingTime.hasWorkday() || plan.workingTime.hoursPerDay() == 0) {
        console.error(t("%1: no working time: nothing can be scheduled").arg(path),
                      t("--days, --hours and --calendar give the working time"));
        return Console::CannotSchedule;
    }
    workingtime::apply(plan.workingTime, *plan.document);
    plan::countSlackIn(plan, plan.slackUnit);
    if (const int code = workbookfile::load(path, console, plan, findings))
        return code;
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
    const bool isXml = from == QLatin1String("mspdi") ||
                       (from.isEmpty() && projectfile::kindOf(path) != projectfile::None);
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
    if (from != QLatin1String("csv") && workbookfile::kindOf(path) != workbookfile::None)
        return loadWorkbook(path, console, plan, findings);
    int code = readRows(path, console, plan, findings);
    if (code == Console::Done)
        code = readCalendar(path, console, plan, findings);
    if (code != Console::Done)
        return code;
    QString error;
    const auto progress = [&console](const QString &work, qint64 done, qint64 total) {
        console.progress(work, done, total);
    };
    if (!plan::build(plan, findings, error, progress)) {
        console.error(path + QLatin1String(": ") + error,
                      t("--days, --hours and --calendar give the working time"));
        return Console::CannotSchedule;
    }
    plan.name = projectName(plan);
    return readSheet(path, console, plan, findings);
}

std::vector<Side> sidesOf(const Plan &plan, const QString &path)
{
    const QFileInfo info(path);
    const bool isTable = path.endsWith(QLatin1String(".csv"));
    const bool isWorkbook = path.endsWith(QLatin1String(".xlsx")) || path.endsWith(QLatin1String(".xls"));
    if (!(isTable || isWorkbook) || (info.exists() && !info.isFile()))
        return {};
    const WorkingTime usual;
    const bool hasSheet = !plan.document->resourceInfoData()->infos.isEmpty();
    const QByteArray calendar = workingtime::toJson(plan.workingTime);
    std::vector<Side> sides;
    // Where nothing is to be said, an older file beside the plan must not say it.
    const auto add = [&](const char *name, bool needed, const QByteArray &bytes) {
        if (needed || !sidePath(path, QString(), name).isEmpty())
            sides.push_back({path.left(path.lastIndexOf(QLatin1Char('.')) + 1) + QLatin1String(name), bytes});
    };
    add("calendar.json", calendar != workingtime::toJson(usual), calendar);
    if (isWorkbook)
        return sides;
    add("resources.csv", hasSheet, sheetfile::resources(plan));
    add("assignments.csv", hasSheet, sheetfile::assignments(plan));
    return sides;
}

QByteArray rewritten(const Plan &plan)
{
    csv::Table table = plan.table;
    planrows::Rows rows;
    rows.columns = plan.rows.columns;
    const int startColumn = columnOf(table, rows, planrows::Start, "Start");
    const int finishColumn = columnOf(table, rows, planrows::Finish, "Finish");
    const shown::Times times(plan);
    const int dayStartSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), true)) * 3600;
    const int dayFinishSecs = int(KWTaskInfo::startOrFinishHour(plan.document.get(), false)) * 3600;
    const bool withTimes = writesTimes(plan.rows.rows);
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        QStringList &cells = table.rows[std::size_t(pos) + 1].cells;
        const planrows::Row &row = plan.rows.rows[std::size_t(pos)];
        // What still holds keeps the way it was written.
        if (!stillSays(row.start, times.start(pos), dayStartSecs))
            setCell(cells, startColumn, writtenMoment(times.start(pos), dayStartSecs, withTimes));
        if (!stillSays(row.finish, times.finish(pos), dayFinishSecs))
            setCell(cells, finishColumn, writtenMoment(times.finish(pos), dayFinishSecs, withTimes));
        if (plan.task(pos)->isParent() && row.hasDuration)
            setCell(cells, rows.columns[planrows::Length], durationOf(plan, pos));
    }
    return csv::toBytes(table);
}
}
