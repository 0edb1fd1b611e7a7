#include "machine.h"
#include "exchange/csvplan.h"
#include "model/calendarhold.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "sheettext.h"
#include "shown.h"
#include "support/findings.h"
#include "writtencalendar.h"
#include <QTimeZone>
#include <algorithm>

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
        member("workingTime", jsonText(writtencalendar::describe(writtencalendar::of(*plan.document))))};
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

// The text in quotes, behind what the bytes hold.
void addJsonText(QByteArray &bytes, const QByteArray &utf8)
{
    const auto isEscaped = [](char sign) {
        return sign == '"' || sign == '\\' || (uchar(sign) < 0x20) || sign == 0x7F;
    };
    bytes += '"';
    if (std::none_of(utf8.begin(), utf8.end(), isEscaped)) {
        bytes += utf8;
        bytes += '"';
        return;
    }
    for (const char sign : utf8) {
        if (sign == '"' || sign == '\\')
            bytes.append('\\').append(sign);
        else if (sign == '\n')
            bytes += "\\n";
        else if (sign == '\t')
            bytes += "\\t";
        else if (isEscaped(sign))
            bytes += "\\u" + QByteArray::number(sign, 16).rightJustified(4, '0');
        else
            bytes += sign;
    }
    bytes += '"';
}
}

QByteArray jsonText(const QString &text)
{
    QByteArray bytes;
    addJsonText(bytes, text.toUtf8());
    return bytes;
}

bool writeCsv(const Plan &plan, const std::function<bool(const QByteArray &)> &take)
{
    return csvplan::Rows(*plan.document, from(plan)).write(take);
}

bool writeJson(const Plan &plan, const std::function<bool(const QByteArray &)> &take)
{
    constexpr int pieceBytes = 256 << 10;
    const CalendarHold hold(*plan.document);
    const csvplan::Rows rows(*plan.document, from(plan));
    const std::vector<csvplan::Column> &columns = csvplan::columns();
    QByteArray bytes;
    bytes.reserve(pieceBytes + pieceBytes / 4);
    const auto isTaken = [&bytes, &take] {
        if (bytes.size() < pieceBytes)
            return true;
        const bool goesOn = take(bytes);
        bytes.resize(0);
        return goesOn;
    };
    bytes += "{\n" + planMembers(plan) + ",\n  \"tasks\": [";
    QByteArray cell;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        bytes += pos ? ",\n    {" : "\n    {";
        for (std::size_t column = 0; column < columns.size(); ++column) {
            bytes += column ? ", \"" : "\"";
            bytes += columns[column].name;
            bytes += "\": ";
            if (columns[column].isNumber) {
                rows.add(pos, column, bytes);
                continue;
            }
            cell.resize(0);
            rows.add(pos, column, cell);
            addJsonText(bytes, cell);
        }
        for (const Field &field : fields) {
            bytes += ", \"";
            bytes += field.name;
            bytes += "\": ";
            bytes += csvplan::numberText(field.number(plan, *plan.task(pos))).toLatin1();
        }
        bytes += '}';
        if (!isTaken())
            return false;
    }
    bytes += "\n  ],\n  \"moved\": [";
    for (std::size_t i = 0; i < plan.moves.size(); ++i) {
        bytes += (i ? ",\n" : "\n") + moveJson(plan, plan.moves[i]);
        if (!isTaken())
            return false;
    }
    bytes += "\n  ]\n}\n";
    return take(bytes);
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
