#include "machine.h"
#include "exchange/csvplan.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "sheettext.h"
#include "shown.h"
#include "support/findings.h"
#include "workingtime.h"
#include <QTimeZone>

namespace machine {

namespace {

// What only the JSON form says of a task.
struct Field
{
    const char *name;
    double (*number)(const Plan &plan, const KWTaskInfo &task);
};

const Field fields[] = {
    {"workHours", [](const Plan &plan, const KWTaskInfo &task) { return plan::workHours(plan, task); }},
    {"cost", [](const Plan &, const KWTaskInfo &task) { return task.Cost; }},
    {"remainingCost", [](const Plan &, const KWTaskInfo &task) { return task.RemainingCost; }},
    {"baselineCost", [](const Plan &, const KWTaskInfo &task) { return task.BaselineCost.toDouble(); }},
};

ImportedPlan from(const Plan &plan)
{
    ImportedPlan imported = plan.imported;
    imported.start = plan.start;
    return imported;
}

QByteArray member(const char *name, const QByteArray &value)
{
    return "  \"" + QByteArray(name) + "\": " + value;
}

// The members that describe the whole plan.
QByteArray planMembers(const Plan &plan)
{
    const shown::Times times(plan);
    shown::Clock first, last;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        if (!first.date.isValid() || times.start(pos) < first)
            first = times.start(pos);
        if (!last.date.isValid() || last < times.finish(pos))
            last = times.finish(pos);
    }
    const double days =
        plan.document->getDurationValue(plan::firstStart(plan), plan::lastFinish(plan), duration::Day, true);
    QByteArrayList members{
        member("name", jsonText(plan.name)),
        member("timeZone", jsonText(QString::fromLatin1(QTimeZone::systemTimeZoneId()))),
        member("workingTime", jsonText(workingtime::describe(workingtime::of(*plan.document))))};
    if (first.date.isValid()) {
        members.append(member("projectStart", jsonText(shown::startOf(plan, plan.start).iso())));
        members.append(member("start", jsonText(first.iso())));
        members.append(member("finish", jsonText(last.iso())));
        members.append(member("lengthDays", QByteArray::number(days)));
        members.append(member("lengthMin", QByteArray::number(plan::workingMinutes(
                                               plan, plan::firstStart(plan), plan::lastFinish(plan)))));
    }
    members.append(member("taskCount", QByteArray::number(plan.taskCount())));
    members.append(member("linkCount", QByteArray::number(plan.links)));
    members.append(member("cost", sheettext::numberText(plan.document->getToltalCost()).toUtf8()));
    return members.join(",\n");
}

QByteArray moveJson(const Plan &plan, const Plan::Move &move)
{
    const KWTaskInfo *task = plan.task(move.pos);
    const shown::Clock oldStart = shown::startOf(plan, move.oldStart);
    const shown::Clock oldFinish = shown::endOf(plan, move.oldFinish);
    QByteArray text = "    {\"id\": " + QByteArray::number(quint32(task->ID));
    text += ", \"oldStart\": " + jsonText(oldStart.iso());
    text += ", \"oldFinish\": " + jsonText((oldFinish < oldStart ? oldStart : oldFinish).iso());
    text += ", \"pushedBy\": " + (move.pushedBy ? QByteArray::number(move.pushedBy) : QByteArray("null"));
    return text + "}";
}
}

QByteArray jsonText(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size() + 2);
    for (const QChar c : text) {
        if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            escaped += QLatin1Char('\\') + c;
        else if (c == QLatin1Char('\n'))
            escaped += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            escaped += QLatin1String("\\t");
        else if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            escaped += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            escaped += c;
    }
    return '"' + escaped.toUtf8() + '"';
}

bool writeCsv(const Plan &plan, const std::function<bool(const QByteArray &)> &take)
{
    return csvplan::Rows(*plan.document, from(plan)).write(take);
}

QByteArray json(const Plan &plan)
{
    const csvplan::Rows rows(*plan.document, from(plan));
    const std::vector<csvplan::Column> &columns = csvplan::columns();
    QByteArray bytes = "{\n" + planMembers(plan) + ",\n  \"tasks\": [";
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        QByteArrayList members;
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const QString text = rows.text(pos, column);
            members.append('"' + QByteArray(columns[column].name) +
                           "\": " + (columns[column].isNumber ? text.toUtf8() : jsonText(text)));
        }
        for (const Field &field : fields)
            members.append('"' + QByteArray(field.name) +
                           "\": " + csvplan::numberText(field.number(plan, *plan.task(pos))).toUtf8());
        bytes += (pos ? ",\n    {" : "\n    {") + members.join(", ") + '}';
    }
    bytes += "\n  ],\n  \"moved\": [";
    for (std::size_t i = 0; i < plan.moves.size(); ++i)
        bytes += (i ? ",\n" : "\n") + moveJson(plan, plan.moves[i]);
    return bytes + "\n  ]\n}\n";
}

namespace {

// How much of everything the document holds, for those who count the file's.
QByteArray countMembers(const Plan &plan)
{
    const KWDocument &document = *plan.document;
    int assignments = 0;
    int exceptions = 0;
    int intervals = document.workTimes.size();
    for (const KWTaskInfo *task : document.taskList())
        assignments += task->resourceList.size();
    for (const KWCalendar *calendar : document.calendars) {
        exceptions += calendar->isException;
        intervals += calendar->dayTimes.size();
    }
    QByteArray members;
    for (const auto &[name, count] : {std::pair("assignments", assignments),
                                      std::pair("exceptions", exceptions), std::pair("intervals", intervals),
                                      std::pair("resources", document.resourceInfoData()->infos.size())})
        members += member(name, QByteArray::number(count)) + ",\n";
    return members;
}
}

QByteArray summaryJson(const Plan &plan, const Findings &findings, int earlyTasks,
                       const QStringList &refusals)
{
    QByteArray bytes = "{\n" + planMembers(plan) + ",\n" +
                       member("earlyTasks", QByteArray::number(earlyTasks)) + ",\n" + countMembers(plan) +
                       member("findingCount", QByteArray::number(findings.count())) + ",\n  \"findings\": [";
    for (int i = 0; i < findings.list().size(); ++i) {
        const Finding &finding = findings.list().at(i);
        bytes += (i ? ",\n" : "\n") + QByteArray("    {\"place\": ") + jsonText(finding.place) +
                 ", \"what\": " + jsonText(finding.what) + ", \"hint\": " + jsonText(finding.hint) +
                 ", \"kind\": \"" + Finding::kindName(finding.kind) + "\"}";
    }
    bytes += "\n  ],\n  \"refusals\": [";
    for (int i = 0; i < refusals.size(); ++i)
        bytes += (i ? ", " : "") + jsonText(refusals.at(i));
    return bytes + "]\n}\n";
}
}
