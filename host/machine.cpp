#include "machine.h"
#include "csv.h"
#include "datetext.h"
#include "format/dataformat.h"
#include "model/kwtaskinfo.h"
#include "sheetfile.h"
#include "sheettext.h"
#include "shown.h"
#include "support/findings.h"
#include <QTimeZone>

namespace machine {

namespace {

// A field of one task: its name in both forms and whether its text is a bare JSON value.
struct Field
{
    const char *csvTitle; // empty: not part of the CSV form
    const char *jsonName;
    bool bare;
    QString (*text)(const Plan &plan, const shown::Times &times, int pos);
};

QString number(qint64 value)
{
    return QString::number(value);
}

QString flag(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString joined(const QList<quint32> &ids)
{
    QStringList texts;
    for (const quint32 id : ids)
        texts.append(QString::number(id));
    return texts.join(QLatin1Char(';'));
}

const Field fields[] = {
    {"ID", "id", true, [](const Plan &p, const shown::Times &, int pos) { return number(p.task(pos)->ID); }},
    {"WBS", "wbs", false,
     [](const Plan &p, const shown::Times &, int pos) { return p.rows.rows[std::size_t(pos)].wbs; }},
    {"Level", "level", true,
     [](const Plan &p, const shown::Times &, int pos) { return number(p.task(pos)->Level); }},
    {"Name", "name", false, [](const Plan &p, const shown::Times &, int pos) { return p.task(pos)->Name; }},
    {"Start", "start", false,
     [](const Plan &, const shown::Times &t, int pos) { return t.start(pos).iso(); }},
    {"Finish", "finish", false,
     [](const Plan &, const shown::Times &t, int pos) { return t.finish(pos).iso(); }},
    {"Duration", "duration", false,
     [](const Plan &p, const shown::Times &, int pos) {
         const KWTaskInfo *task = p.task(pos);
         return datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(p.document.get(), task),
                                       task->DurationUnits);
     }},
    {"Percent", "percent", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return DataFormat::formatNumber(p.task(pos)->Percent * 100, 0, 2, 1);
     }},
    {"Predecessors", "predecessors", false,
     [](const Plan &p, const shown::Times &, int pos) { return joined(p.task(pos)->Predecessors); }},
    {"Resources", "resources", false,
     [](const Plan &p, const shown::Times &, int pos) { return sheetfile::columnText(p, *p.task(pos)); }},
    {"Summary", "summary", true,
     [](const Plan &p, const shown::Times &, int pos) { return flag(p.task(pos)->isParent()); }},
    {"Milestone", "milestone", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return flag(p.task(pos)->Milestone && !p.task(pos)->isParent());
     }},
    {"Notes", "notes", false,
     [](const Plan &p, const shown::Times &, int pos) { return p.task(pos)->Notes; }},
    {"Critical", "critical", true,
     [](const Plan &p, const shown::Times &, int pos) { return flag(p.task(pos)->CriticalPath); }},
    {"LateStart", "lateStart", false,
     [](const Plan &, const shown::Times &t, int pos) { return t.lateStart(pos).iso(); }},
    {"LateFinish", "lateFinish", false,
     [](const Plan &, const shown::Times &t, int pos) { return t.lateFinish(pos).iso(); }},
    {"StartSlack", "startSlack", false,
     [](const Plan &p, const shown::Times &, int pos) { return p.task(pos)->EarlySlack; }},
    {"FinishSlack", "finishSlack", false,
     [](const Plan &p, const shown::Times &, int pos) { return p.task(pos)->LateSlack; }},
    {"StartMin", "startMin", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return number(plan::workingMinutes(p, p.start, p.task(pos)->Start));
     }},
    {"FinishMin", "finishMin", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return number(plan::workingMinutes(p, p.start, p.task(pos)->Finish));
     }},
    {"LateStartMin", "lateStartMin", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return number(plan::workingMinutes(p, p.start, p.task(pos)->LateStart));
     }},
    {"LateFinishMin", "lateFinishMin", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return number(plan::workingMinutes(p, p.start, p.task(pos)->LateFinish));
     }},
    {"SlackMin", "slackMin", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return number(
             qMax<qint64>(0, plan::workingMinutes(p, p.task(pos)->Finish, p.task(pos)->LateFinish)));
     }},
    {"", "workHours", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return sheettext::numberText(plan::workHours(p, *p.task(pos)));
     }},
    {"", "cost", true,
     [](const Plan &p, const shown::Times &, int pos) { return sheettext::numberText(p.task(pos)->Cost); }},
    {"", "remainingCost", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return sheettext::numberText(p.task(pos)->RemainingCost);
     }},
    {"", "baselineCost", true,
     [](const Plan &p, const shown::Times &, int pos) {
         return sheettext::numberText(p.task(pos)->BaselineCost.toDouble());
     }},
};

QByteArray member(const char *name, const QByteArray &value)
{
    return "  \"" + QByteArray(name) + "\": " + value;
}

// The members that describe the whole plan.
QByteArray planMembers(const Plan &plan)
{
    constexpr unsigned int day = 4;
    const shown::Times times(plan);
    shown::Clock first, last;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        if (!first.date.isValid() || times.start(pos) < first)
            first = times.start(pos);
        if (!last.date.isValid() || last < times.finish(pos))
            last = times.finish(pos);
    }
    const double days =
        plan.document->getDurationValue(plan::firstStart(plan), plan::lastFinish(plan), day, true);
    QByteArrayList members{member("name", jsonText(plan.name)),
                           member("timeZone", jsonText(QString::fromLatin1(QTimeZone::systemTimeZoneId()))),
                           member("workingTime", jsonText(workingtime::describe(plan.workingTime)))};
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

QByteArray csv(const Plan &plan)
{
    const shown::Times times(plan);
    QStringList titles;
    for (const Field &field : fields)
        if (*field.csvTitle)
            titles.append(QLatin1String(field.csvTitle));
    QByteArray bytes = titles.join(QLatin1Char(',')).toUtf8() + '\n';
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        QStringList cells;
        for (const Field &field : fields)
            if (*field.csvTitle)
                cells.append(::csv::quoted(field.text(plan, times, pos)));
        bytes += cells.join(QLatin1Char(',')).toUtf8() + '\n';
    }
    return bytes;
}

QByteArray json(const Plan &plan)
{
    const shown::Times times(plan);
    QByteArray bytes = "{\n" + planMembers(plan) + ",\n  \"tasks\": [";
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        bytes += pos ? ",\n    {" : "\n    {";
        bool firstField = true;
        for (const Field &field : fields) {
            const QString text = field.text(plan, times, pos);
            bytes += firstField ? "\"" : ", \"";
            bytes += QByteArray(field.jsonName) + "\": " + (field.bare ? text.toUtf8() : jsonText(text));
            firstField = false;
        }
        bytes += '}';
    }
    bytes += "\n  ],\n  \"moved\": [";
    for (std::size_t i = 0; i < plan.moves.size(); ++i)
        bytes += (i ? ",\n" : "\n") + moveJson(plan, plan.moves[i]);
    return bytes + "\n  ]\n}\n";
}

QByteArray summaryJson(const Plan &plan, const Findings &findings, int earlyTasks)
{
    QByteArray bytes = "{\n" + planMembers(plan) + ",\n" +
                       member("earlyTasks", QByteArray::number(earlyTasks)) + ",\n" +
                       member("findingCount", QByteArray::number(findings.count())) + ",\n  \"findings\": [";
    for (int i = 0; i < findings.list().size(); ++i) {
        const Finding &finding = findings.list().at(i);
        bytes += (i ? ",\n" : "\n") + QByteArray("    {\"place\": ") + jsonText(finding.place) +
                 ", \"what\": " + jsonText(finding.what) + ", \"hint\": " + jsonText(finding.hint) + "}";
    }
    return bytes + "\n  ]\n}\n";
}
}
