#include "diff.h"
#include "datetext.h"
#include "exchange/csvplan.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "sheettext.h"
#include "shown.h"
#include "texts.h"
#include "texttable.h"
#include "textwidth.h"
#include <QHash>

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

// Texts of the values that are compared as they are shown.
struct Value
{
    const char *name;
    QString (*text)(const Plan &, int pos);
};

const Value values[] = {
    {"duration",
     [](const Plan &plan, int pos) {
         const KWTaskInfo *task = plan.task(pos);
         return task->isParent()
                    ? QString()
                    : datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(plan.document.get(), task),
                                             task->DurationUnits);
     }},
    {"done",
     [](const Plan &plan, int pos) {
         return QString::number(qRound(plan.task(pos)->Percent * 100)) + QLatin1Char('%');
     }},
    {"cost", [](const Plan &plan, int pos) { return sheettext::moneyText(plan.task(pos)->Cost); }},
    {"resources",
     [](const Plan &plan, int pos) { return csvplan::resourceNames(*plan.document, *plan.task(pos)); }},
    {"notes", [](const Plan &plan, int pos) { return plan.task(pos)->Notes; }},
    {"predecessors",
     [](const Plan &plan, int pos) {
         QStringList names;
         for (const quint32 id : plan.task(pos)->Predecessors) {
             const int other = plan.posOf(id);
             names.append(other < 0 ? QString() : nameOf(plan, other));
         }
         names.sort();
         return names.join(QLatin1String("; "));
     }},
};

class Comparer
{
public:
    Comparer(const Plan &before, const Plan &after)
        : m_before(before)
        , m_after(after)
        , m_oldTimes(before)
        , m_newTimes(after)
        , m_older(partnersOf(before, after))
    {
    }

    std::vector<Change> run()
    {
        std::vector<bool> stays(std::size_t(m_before.taskCount()), false);
        for (int pos = 0; pos < m_after.taskCount(); ++pos) {
            const int old = m_older[std::size_t(pos)];
            if (old == nobody) {
                add("added", nobody, pos, QString());
                continue;
            }
            stays[std::size_t(old)] = true;
            compare(old, pos);
        }
        for (int pos = 0; pos < m_before.taskCount(); ++pos)
            if (!stays[std::size_t(pos)])
                add("gone", pos, nobody, QString());
        return m_changes;
    }

private:
    void add(const char *kind, int before, int after, const QString &what)
    {
        m_changes.push_back({kind, before, after, what});
    }

    void compare(int old, int pos)
    {
        if (nameOf(m_before, old) != nameOf(m_after, pos))
            add("renamed", old, pos, arrow(nameOf(m_before, old), nameOf(m_after, pos)));
        const int oldParent = m_before.posOf(m_before.task(old)->ParentID);
        const int newParent = m_after.posOf(m_after.task(pos)->ParentID);
        if (oldParent != (newParent < 0 ? nobody : m_older[std::size_t(newParent)]))
            add("placed", old, pos,
                newParent < 0 ? t("at the top") : t("below \"%1\"").arg(nameOf(m_after, newParent)));
        compareDates(old, pos);
        for (const Value &value : values) {
            const QString was = value.text(m_before, old);
            const QString is = value.text(m_after, pos);
            if (was != is)
                add("changed", old, pos, t(value.name) + QLatin1Char(' ') + arrow(was, is));
        }
    }

    void compareDates(int old, int pos)
    {
        const shown::Clock oldFinish = m_oldTimes.finish(old);
        const shown::Clock newFinish = m_newTimes.finish(pos);
        if (oldFinish < newFinish)
            add("slipped", old, pos, t("finish %1").arg(arrow(oldFinish.text(), newFinish.text())));
        else if (oldFinish != newFinish)
            add("moved", old, pos, t("finish %1").arg(arrow(oldFinish.text(), newFinish.text())));
        if (m_oldTimes.start(old) != m_newTimes.start(pos))
            add("moved", old, pos,
                t("start %1").arg(arrow(m_oldTimes.start(old).text(), m_newTimes.start(pos).text())));
    }

    const Plan &m_before;
    const Plan &m_after;
    shown::Times m_oldTimes;
    shown::Times m_newTimes;
    std::vector<int> m_older;
    std::vector<Change> m_changes;
};
}

std::vector<Change> between(const Plan &before, const Plan &after)
{
    return Comparer(before, after).run();
}

QString text(const Plan &before, const Plan &after, const std::vector<Change> &changes, const Style &style)
{
    if (changes.empty())
        return t("no difference") + QLatin1Char('\n');
    constexpr int longestName = 40;
    TextTable table({QStringLiteral(">#"), t("Task"), t("Change"), QString()});
    for (const Change &change : changes) {
        const bool gone = change.after == nobody;
        const QString name = gone ? nameOf(before, change.before) : nameOf(after, change.after);
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
    if (oldCost != newCost)
        summary += t("; cost %1 %2 %3")
                       .arg(sheettext::moneyText(oldCost), style.arrow, sheettext::moneyText(newCost));
    return table.text() + summary + QLatin1Char('\n');
}

QByteArray json(const Plan &before, const Plan &after, const std::vector<Change> &changes)
{
    QByteArray bytes =
        "{\n  \"costBefore\": " + sheettext::numberText(before.document->getToltalCost()).toUtf8() +
        ",\n  \"costAfter\": " + sheettext::numberText(after.document->getToltalCost()).toUtf8() +
        ",\n  \"changes\": [";
    const auto id = [](const Plan &plan, int pos) {
        return pos == nobody ? QByteArray("null") : QByteArray::number(plan.task(pos)->ID.value());
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const Change &change = changes[i];
        bytes += (i ? ",\n" : "\n") + QByteArray("    {\"change\": \"") + change.kind +
                 "\", \"idBefore\": " + id(before, change.before) +
                 ", \"idAfter\": " + id(after, change.after) + ", \"name\": " +
                 machine::jsonText(change.after == nobody ? nameOf(before, change.before)
                                                          : nameOf(after, change.after)) +
                 ", \"what\": " + machine::jsonText(change.what) + "}";
    }
    return bytes + "\n  ]\n}\n";
}
}
