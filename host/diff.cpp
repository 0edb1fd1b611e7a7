#include "diff.h"
#include "datetext.h"
#include "exchange/csvplan.h"
#include "machine.h"
#include "model/calendarhold.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwcalendar.h"
#include "sheettext.h"
#include "shown.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include "texttable.h"
#include "textwidth.h"
#include "writtencalendar.h"
#include <QHash>
#include <QSet>
#include <algorithm>

namespace diff {

namespace {

constexpr int nobody = -1;

QString nameOf(const Plan &plan, int pos)
{
    return plan.task(pos)->Name.trimmed();
}

// Names that stand once, with their positions, of the tasks that have no partner yet.
QHash<QString, int> lonelyNames(const Plan &plan, const std::vector<int> &partners)
{
    QHash<QString, int> places;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        if (partners[std::size_t(pos)] != nobody)
            continue;
        const QString name = nameOf(plan, pos);
        places.insert(name, places.contains(name) ? nobody : pos);
    }
    return places;
}

// For each task of the newer plan its place in the older one.
std::vector<int> partnersOf(const Plan &before, const Plan &after)
{
    std::vector<int> older(std::size_t(after.taskCount()), nobody);
    std::vector<int> newer(std::size_t(before.taskCount()), nobody);
    const auto join = [&](int oldPos, int newPos) {
        older[std::size_t(newPos)] = oldPos;
        newer[std::size_t(oldPos)] = newPos;
    };
    const auto joinById = [&](bool sameName) {
        for (int pos = 0; pos < after.taskCount(); ++pos) {
            const int other = before.posOf(after.task(pos)->ID);
            if (other >= 0 && older[std::size_t(pos)] == nobody && newer[std::size_t(other)] == nobody &&
                (!sameName || nameOf(before, other) == nameOf(after, pos)))
                join(other, pos);
        }
    };
    joinById(true);
    const QHash<QString, int> oldNames = lonelyNames(before, newer);
    const QHash<QString, int> newNames = lonelyNames(after, older);
    for (auto name = newNames.begin(); name != newNames.end(); ++name) {
        const int other = oldNames.value(name.key(), nobody);
        if (name.value() != nobody && other != nobody)
            join(other, name.value());
    }
    joinById(false);
    return older;
}

QString arrow(const QString &from, const QString &to)
{
    return from + QString::fromUtf8(" \u2192 ") + to;
}

// One task in both plans.
struct Both
{
    const Plan &before;
    const Plan &after;
    const KWTaskInfo &old;
    const KWTaskInfo &now;
    bool isCalendarSame;
};

// Texts of the values that are compared as they are shown. Nearly all are the same, and what they are made
// from tells that of most without making them: false where it does not.
struct Value
{
    const char *name;
    const char *topic;
    QString (*text)(const Plan &, int pos);
    bool (*isSame)(const Both &) = nullptr;
};

bool haveSamePredecessors(const Both &both)
{
    if (both.old.Predecessors != both.now.Predecessors)
        return false;
    for (const quint32 id : both.old.Predecessors) {
        const int old = both.before.posOf(id);
        const int now = both.after.posOf(id);
        if (old < 0 || now < 0 || both.before.task(old)->Name != both.after.task(now)->Name)
            return false;
    }
    return true;
}

QString momentText(const Plan &plan, quint32 secs)
{
    return secs == 0 ? QString() : shown::startOf(plan, secs).text();
}

const Value values[] = {
    {QT_TR_NOOP("duration"), "dates",
     [](const Plan &plan, int pos) {
         const KWTaskInfo *task = plan.task(pos);
         return task->isParent()
                    ? QString()
                    : datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(plan.document.get(), task),
                                             task->DurationUnits);
     },
     [](const Both &both) {
         return both.isCalendarSame && both.old.Start == both.now.Start &&
                both.old.Finish == both.now.Finish && both.old.DurationUnits == both.now.DurationUnits &&
                both.old.Milestone == both.now.Milestone && both.old.isParent() == both.now.isParent();
     }},
    {QT_TR_NOOP("done"), "progress",
     [](const Plan &plan, int pos) {
         return QString::number(qRound(plan.task(pos)->Percent * 100)) + QLatin1Char('%');
     },
     [](const Both &both) { return both.old.Percent == both.now.Percent; }},
    {QT_TR_NOOP("cost"), "cost",
     [](const Plan &plan, int pos) { return sheettext::moneyText(plan.task(pos)->Cost); },
     [](const Both &both) { return both.old.Cost == both.now.Cost; }},
    {QT_TR_NOOP("resources"), "resources",
     [](const Plan &plan, int pos) { return csvplan::resourceNames(*plan.document, *plan.task(pos)); },
     [](const Both &both) {
         const auto hasNone = [](const KWTaskInfo &task) {
             return task.resourceList.isEmpty() && task.Resources.isEmpty();
         };
         return hasNone(both.old) && hasNone(both.now);
     }},
    {QT_TR_NOOP("notes"), "texts", [](const Plan &plan, int pos) { return plan.task(pos)->Notes; }},
    {QT_TR_NOOP("predecessors"), "links",
     [](const Plan &plan, int pos) {
         QStringList names;
         for (const quint32 id : plan.task(pos)->Predecessors) {
             const int other = plan.posOf(id);
             names.append(other < 0 ? QString() : nameOf(plan, other));
         }
         names.sort();
         return names.join(QLatin1String("; "));
     },
     haveSamePredecessors},
    {QT_TR_NOOP("milestone"), "dates",
     [](const Plan &plan, int pos) { return plan.task(pos)->Milestone ? t("yes") : t("no"); },
     [](const Both &both) { return both.old.Milestone == both.now.Milestone; }},
    {QT_TR_NOOP("priority"), "texts",
     [](const Plan &plan, int pos) { return QString::number(plan.task(pos)->Priority); },
     [](const Both &both) { return both.old.Priority == both.now.Priority; }},
    {QT_TR_NOOP("hyperlinks"), "texts",
     [](const Plan &plan, int pos) {
         QStringList links;
         for (int i = 0; i < plan.task(pos)->hyperlinks.count(); ++i) {
             const KWHyperlink &link = *plan.task(pos)->hyperlinks.getAt(i);
             links.append(QStringList{link.name, link.address, link.subAddress, link.description}
                              .join(QLatin1Char(' '))
                              .simplified());
         }
         return links.join(QLatin1String("; "));
     },
     [](const Both &both) { return both.old.hyperlinks.isEmpty() && both.now.hyperlinks.isEmpty(); }},
    {QT_TR_NOOP("baseline start"), "baseline",
     [](const Plan &plan, int pos) { return momentText(plan, plan.task(pos)->BaseStart); },
     [](const Both &both) { return both.old.BaseStart == 0 && both.now.BaseStart == 0; }},
    {QT_TR_NOOP("baseline finish"), "baseline",
     [](const Plan &plan, int pos) { return momentText(plan, plan.task(pos)->BaseFinish); },
     [](const Both &both) { return both.old.BaseFinish == 0 && both.now.BaseFinish == 0; }},
    {QT_TR_NOOP("baseline cost"), "baseline",
     [](const Plan &plan, int pos) { return plan.task(pos)->BaselineCost; }},
};

// Texts that belong to the plan and not to a task, by what they are called.
QStringList exceptionsOf(const Plan &plan)
{
    QStringList texts;
    for (const KWCalendar *calendar : plan.document->calendars) {
        if (calendar->isException)
            texts.append(QStringList{calendar->startDate.toString(Qt::ISODate),
                                     calendar->finishDate == calendar->startDate
                                         ? QString()
                                         : QLatin1String("..") + calendar->finishDate.toString(Qt::ISODate),
                                     calendar->isWork ? QLatin1String(" ") + t("works") : QString(),
                                     calendar->name.isEmpty() ? QString() : QLatin1Char(' ') + calendar->name}
                             .join(QString()));
    }
    return texts;
}

QStringList sheetOf(const Plan &plan)
{
    QStringList texts;
    for (const ResourceInfo *info : qAsConst(plan.document->resourceInfoData()->infos)) {
        QStringList parts{info->name.trimmed(),
                          info->type == 0 ? t("work") : t("material"),
                          sheettext::rateText({info->cost, info->costUnit}),
                          sheettext::rateText({info->overtimeCost, info->overtimeUnit}),
                          sheettext::numberText(info->costPer),
                          sheettext::numberText(info->unit * 100) + QLatin1Char('%'),
                          info->group,
                          info->email,
                          info->notes};
        texts.append(parts.join(QLatin1Char(' ')).simplified());
    }
    return texts;
}

// In their order; those that are shown, or all.
QStringList columnsOf(const Plan &plan, bool isAll)
{
    QStringList titles;
    for (const RowColumnData::ColumnData *column : plan.document->rowColumnData()->columns())
        if (isAll || !column->isHide.value())
            titles.append(column->title);
    return titles;
}

// The options that files keep, by what the edits call them. The scale is that of packages alone.
QVector<QPair<const char *, QString>> optionsOf(const Plan &plan)
{
    const KWDocument &document = *plan.document;
    const auto flag = [](bool value) { return value ? t("yes") : t("no"); };
    return {{QT_TR_NOOP("unit"), datetext::durationText(1, document.ProjectUnit)},
            {QT_TR_NOOP("unit width"), QString::number(document.UnitWidth)},
            {QT_TR_NOOP("auto zoom"), flag(document.AutoZoom)},
            {QT_TR_NOOP("auto progress"), flag(document.Auto)},
            {QT_TR_NOOP("theme"), QString::number(document.ThemeIndex)},
            {QT_TR_NOOP("baseline cost of the plan"), sheettext::numberText(document.BaselineCost)},
            {QT_TR_NOOP("start of the plan"), momentText(plan, document.StartDate)},
            {QT_TR_NOOP("finish of the plan"), momentText(plan, document.FinishDate)},
            {QT_TR_NOOP("scale"),
             plan.isPackage ? QStringLiteral("%1/%2").arg(plan.majorUnit).arg(plan.minorUnit) : QString()}};
}

// The places of the older tasks whose order among each other is another one: all but a longest row of them
// that stand as before.
std::vector<bool> reordered(const std::vector<int> &older)
{
    std::vector<int> ends; // place in the newer plan that ends a row of each length, at best
    std::vector<int> before(older.size(), nobody); // the place before it in that row
    for (std::size_t pos = 0; pos < older.size(); ++pos) {
        if (older[pos] == nobody)
            continue;
        const auto at = std::lower_bound(ends.begin(), ends.end(), older[pos], [&](int place, int value) {
            return older[std::size_t(place)] < value;
        });
        before[pos] = at == ends.begin() ? nobody : *(at - 1);
        if (at == ends.end())
            ends.push_back(int(pos));
        else
            *at = int(pos);
    }
    std::vector<bool> moved(older.size(), false);
    for (std::size_t pos = 0; pos < older.size(); ++pos)
        moved[pos] = older[pos] != nobody;
    for (int pos = ends.empty() ? nobody : ends.back(); pos != nobody; pos = before[std::size_t(pos)])
        moved[std::size_t(pos)] = false;
    return moved;
}

class Comparer
{
public:
    Comparer(const Plan &before, const Plan &after)
        : m_before(before)
        , m_after(after)
        , m_oldTimes(before)
        , m_newTimes(after)
        , m_older(partnersOf(before, after))
        , m_isCalendarChanged(exceptionsOf(before) != exceptionsOf(after) ||
                              writtencalendar::describe(writtencalendar::of(*before.document)) !=
                                  writtencalendar::describe(writtencalendar::of(*after.document)))
    {
    }

    std::vector<Change> run()
    {
        std::vector<bool> stays(std::size_t(m_before.taskCount()), false);
        for (int pos = 0; pos < m_after.taskCount(); ++pos) {
            const int old = m_older[std::size_t(pos)];
            if (old == nobody) {
                add(QT_TR_NOOP("added"), "tasks", nobody, pos, QString());
                continue;
            }
            stays[std::size_t(old)] = true;
            compare(old, pos);
        }
        for (int pos = 0; pos < m_before.taskCount(); ++pos)
            if (!stays[std::size_t(pos)])
                add(QT_TR_NOOP("gone"), "tasks", pos, nobody, QString());
        const std::vector<bool> moved = reordered(m_older);
        for (int pos = 0; pos < m_after.taskCount(); ++pos)
            if (moved[std::size_t(pos)])
                add(QT_TR_NOOP("placed"), "outline", m_older[std::size_t(pos)], pos,
                    t("row %1").arg(
                        arrow(QString::number(m_older[std::size_t(pos)] + 1), QString::number(pos + 1))));
        compareText(QT_TR_NOOP("working time"), "calendar",
                    writtencalendar::describe(writtencalendar::of(*m_before.document)),
                    writtencalendar::describe(writtencalendar::of(*m_after.document)));
        compareLists(QT_TR_NOOP("exception"), "calendar", exceptionsOf(m_before), exceptionsOf(m_after));
        compareLists(QT_TR_NOOP("resource"), "sheet", sheetOf(m_before), sheetOf(m_after));
        compareText(QT_TR_NOOP("order of the columns"), "table",
                    columnsOf(m_before, true).join(QLatin1String(", ")),
                    columnsOf(m_after, true).join(QLatin1String(", ")));
        const QStringList wereShown = columnsOf(m_before, false);
        const QStringList areShown = columnsOf(m_after, false);
        addColumns(t("columns now shown: %1"), areShown, wereShown);
        addColumns(t("columns now hidden: %1"), wereShown, areShown);
        const auto was = optionsOf(m_before);
        const auto is = optionsOf(m_after);
        const bool areOfOneKind = m_before.isPackage == m_after.isPackage;
        for (int i = 0; i < was.size(); ++i)
            if (areOfOneKind || !(was[i].second.isEmpty() || is[i].second.isEmpty()))
                compareText(was[i].first, "options", was[i].second, is[i].second);
        return m_changes;
    }

private:
    void add(const char *kind, const char *topic, int before, int after, const QString &what)
    {
        m_changes.push_back({kind, before, after, what, topic});
    }
    void compareText(const char *name, const char *topic, const QString &was, const QString &is)
    {
        if (was != is)
            add(QT_TR_NOOP("changed"), topic, nobody, nobody, t(name) + QLatin1Char(' ') + arrow(was, is));
    }
    void addColumns(const QString &words, QStringList titles, const QStringList &others)
    {
        for (const QString &title : others)
            titles.removeAll(title);
        if (!titles.isEmpty())
            add(QT_TR_NOOP("changed"), "table", nobody, nobody, words.arg(titles.join(QLatin1String(", "))));
    }
    void compareLists(const char *name, const char *topic, const QStringList &was, const QStringList &is)
    {
        const QSet<QString> old(was.begin(), was.end());
        const QSet<QString> now(is.begin(), is.end());
        for (const QString &one : was)
            if (!now.contains(one))
                add(QT_TR_NOOP("gone"), topic, nobody, nobody, t(name) + QLatin1Char(' ') + one);
        for (const QString &one : is)
            if (!old.contains(one))
                add(QT_TR_NOOP("added"), topic, nobody, nobody, t(name) + QLatin1Char(' ') + one);
    }

    void compare(int old, int pos)
    {
        if (nameOf(m_before, old) != nameOf(m_after, pos))
            add(QT_TR_NOOP("renamed"), "names", old, pos, arrow(nameOf(m_before, old), nameOf(m_after, pos)));
        const int oldParent = m_before.posOf(m_before.task(old)->ParentID);
        const int newParent = m_after.posOf(m_after.task(pos)->ParentID);
        if (oldParent != (newParent < 0 ? nobody : m_older[std::size_t(newParent)]))
            add(QT_TR_NOOP("placed"), "outline", old, pos,
                newParent < 0 ? t("at the top") : t("below \"%1\"").arg(nameOf(m_after, newParent)));
        compareDates(old, pos);
        const Both both{m_before, m_after, *m_before.task(old), *m_after.task(pos), !m_isCalendarChanged};
        for (const Value &value : values) {
            if (value.isSame && value.isSame(both))
                continue;
            const QString was = value.text(m_before, old);
            const QString is = value.text(m_after, pos);
            if (was != is)
                add(QT_TR_NOOP("changed"), value.topic, old, pos,
                    t(value.name) + QLatin1Char(' ') + arrow(was, is));
        }
    }

    // Where nothing of the task itself has changed the dates: it begins on a day that is off now, or its
    // length takes another time.
    QString calendarReason(int old, int pos, bool isStartMoved) const
    {
        if (!m_isCalendarChanged || m_after.task(pos)->isParent())
            return QString();
        const QDate start = m_oldTimes.start(old).date;
        const bool isOff = !KWTaskInfo::isWorkday(m_after.document.get(), start.startOfDay());
        const auto length = values[0].text;
        const bool isReason = isStartMoved ? isOff : length(m_before, old) == length(m_after, pos) && !isOff;
        return isReason ? t(" (by the calendar)") : QString();
    }

    void compareDates(int old, int pos)
    {
        const shown::Clock oldFinish = m_oldTimes.finish(old);
        const shown::Clock newFinish = m_newTimes.finish(pos);
        const bool isStartMoved = m_oldTimes.start(old) != m_newTimes.start(pos);
        const QString reason = calendarReason(old, pos, isStartMoved);
        if (oldFinish != newFinish)
            add(oldFinish < newFinish ? QT_TR_NOOP("slipped") : QT_TR_NOOP("moved"), "dates", old, pos,
                t("finish %1").arg(arrow(oldFinish.text(), newFinish.text())) +
                    (isStartMoved ? QString() : reason));
        if (isStartMoved)
            add(QT_TR_NOOP("moved"), "dates", old, pos,
                t("start %1").arg(arrow(m_oldTimes.start(old).text(), m_newTimes.start(pos).text())) +
                    reason);
    }

    const Plan &m_before;
    const Plan &m_after;
    shown::Times m_oldTimes;
    shown::Times m_newTimes;
    std::vector<int> m_older;
    const bool m_isCalendarChanged;
    std::vector<Change> m_changes;
};
}

std::vector<Change> between(const Plan &before, const Plan &after, const QStringList &only)
{
    const CalendarHold holdBefore(*before.document);
    const CalendarHold holdAfter(*after.document);
    std::vector<Change> changes = Comparer(before, after).run();
    if (!only.isEmpty())
        changes.erase(std::remove_if(changes.begin(), changes.end(),
                                     [&only](const Change &change) {
                                         return !only.contains(QLatin1String(change.topic));
                                     }),
                      changes.end());
    return changes;
}

namespace {

bool isOfPlan(const Change &change)
{
    return change.before == nobody && change.after == nobody;
}

QString nameOf(const Plan &before, const Plan &after, const Change &change)
{
    if (isOfPlan(change))
        return t("(the plan)");
    return change.after == nobody ? nameOf(before, change.before) : nameOf(after, change.after);
}

double workOf(const Plan &plan)
{
    double hours = 0;
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        if (!plan.task(pos)->isParent())
            hours += plan::workHours(plan, *plan.task(pos));
    }
    return hours;
}

QString finishOf(const Plan &plan)
{
    return plan.taskCount() == 0 ? t("none") : shown::endOf(plan, plan::lastFinish(plan)).text();
}
}

QString text(const Plan &before, const Plan &after, const std::vector<Change> &changes, const Style &style)
{
    if (changes.empty())
        return t("no difference") + QLatin1Char('\n');
    constexpr int longestName = 40;
    TextTable table({QStringLiteral(">#"), t("Task"), t("Change"), QString()});
    for (const Change &change : changes) {
        const bool gone = change.after == nobody;
        const QString name = nameOf(before, after, change);
        table.add(
            {gone ? QStringLiteral("-") : QString::number(change.after + 1),
             textwidth::elided(textwidth::oneLine(name, style.ascii), longestName, style.cut), t(change.kind),
             textwidth::oneLine(style.ascii ? QString(change.what).replace(QChar(0x2192), QLatin1String("->"))
                                            : change.what,
                                style.ascii)});
    }
    const double oldCost = before.document->getToltalCost();
    const double newCost = after.document->getToltalCost();
    QString summary = counted(qint64(changes.size()), "%1 difference", "%1 differences");
    const auto total = [&](const QString &name, const QString &was, const QString &is) {
        summary += t("; ") + name + QLatin1Char(' ') +
                   (was == is ? was + QLatin1Char(' ') + t("(unchanged)")
                              : was + QLatin1Char(' ') + style.arrow + QLatin1Char(' ') + is);
    };
    total(t("project finish"), finishOf(before), finishOf(after));
    total(t("work"), sheettext::numberText(workOf(before)) + t(" h"),
          sheettext::numberText(workOf(after)) + t(" h"));
    total(t("cost"), sheettext::moneyText(oldCost), sheettext::moneyText(newCost));
    return table.text() + summary + QLatin1Char('\n');
}

QByteArray json(const Plan &before, const Plan &after, const std::vector<Change> &changes)
{
    QByteArray bytes =
        "{\n  \"costBefore\": " + sheettext::numberText(before.document->getToltalCost()).toUtf8() +
        ",\n  \"costAfter\": " + sheettext::numberText(after.document->getToltalCost()).toUtf8() +
        ",\n  \"workBefore\": " + sheettext::numberText(workOf(before)).toUtf8() +
        ",\n  \"workAfter\": " + sheettext::numberText(workOf(after)).toUtf8() +
        ",\n  \"finishBefore\": " + machine::jsonText(finishOf(before)) +
        ",\n  \"finishAfter\": " + machine::jsonText(finishOf(after)) + ",\n  \"changes\": [";
    const auto id = [](const Plan &plan, int pos) {
        return pos == nobody ? QByteArray("null") : QByteArray::number(plan.task(pos)->ID.value());
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const Change &change = changes[i];
        bytes +=
            (i ? ",\n" : "\n") + QByteArray("    {\"change\": \"") + change.kind +
            "\", \"idBefore\": " + id(before, change.before) + ", \"idAfter\": " + id(after, change.after) +
            ", \"name\": " + machine::jsonText(isOfPlan(change) ? QString() : nameOf(before, after, change)) +
            ", \"topic\": \"" + change.topic + "\", \"what\": " + machine::jsonText(change.what) + "}";
    }
    return bytes + "\n  ]\n}\n";
}
}
