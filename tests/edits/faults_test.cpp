// What edits once got wrong, each as one row of a table.
#include "editing/actionmanager.h"
#include "edits/planedits.h"
#include "edits/planreasons.h"
#include "edits/settle.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include <QDate>
#include <QDateTime>
#include <functional>
#include <gtest/gtest.h>

namespace {

// A plan that is edited one step after the other; tasks have the IDs 1, 2, 3... and their names.
class Plan
{
public:
    Plan() { document.AutoZoom = false; }

    KWDocument document;

    EditAnswer edit(const std::function<EditAnswer(PlanEdits &)> &call)
    {
        PlanEdits edits(document, QStringLiteral("Edit"));
        const EditAnswer answer = call(edits);
        said += answer.sentence().toStdString();
        for (const EditLoss &loss : answer.losses) {
            const char *const kinds[] = {"assignment", "baseline", "link"};
            said += "[lost " + std::string(kinds[loss.kind]) + " " + loss.name.toStdString() + " of " +
                    task(loss.task).Name.toStdString() + "]";
        }
        return answer;
    }
    // Level 1 at the end of the plan.
    void add(const char *name, int startDay = 0, double days = 1, quint32 unit = 4)
    {
        TaskValues values;
        values.name = QString::fromLatin1(name);
        values.start = moment(startDay);
        values.length = TaskLength{days, unit};
        const quint32 last = document.taskCount() ? lastTop() : 0;
        edit([&](PlanEdits &e) { return last ? e.insert(last, PlanEdits::Below, values) : e.add(values); });
    }
    void addUnder(quint32 summary, const char *name, int startDay = 0, double days = 1)
    {
        TaskValues values;
        values.name = QString::fromLatin1(name);
        values.start = moment(startDay);
        values.length = TaskLength{days, 4};
        edit([&](PlanEdits &e) { return e.insert(summary, PlanEdits::LastChild, values); });
    }
    void set(quint32 id, const TaskValues &values)
    {
        edit([&](PlanEdits &e) { return e.set({id}, values); });
    }
    void baseline(quint32 id, const char *cost)
    {
        TaskValues values;
        values.baseCost = QString::fromLatin1(cost);
        set(id, values);
    }
    void assign(quint32 id, const char *name, double cost, qint32 unit = 2)
    {
        ResourceValues rate;
        rate.cost = cost;
        rate.costUnit = unit;
        const QString resource = QString::fromLatin1(name);
        if (!document.resourceInfoData()->getResourceInfoByName(resource))
            edit([&](PlanEdits &e) { return e.addResource(resource, rate); });
        edit([&](PlanEdits &e) { return e.assign(id, resource); });
    }
    void link(quint32 before, quint32 after)
    {
        edit([&](PlanEdits &e) { return e.link({before, after}); });
    }
    void undo() { document.actionManager().undo(1); }

    KWTaskInfo &task(quint32 id) const { return *document.getTaskInfoByID(id); }
    // Monday 2 March 2026 and later.
    static quint32 moment(int day)
    {
        return quint32(QDate(2026, 3, 2).addDays(day).startOfDay().toSecsSinceEpoch());
    }
    // "Name=value" of each task, in their order.
    std::string each(const std::function<QString(const KWTaskInfo &)> &value) const
    {
        QStringList texts;
        for (const KWTaskInfo *task : document.taskList())
            texts.append(task->Name + QLatin1Char('=') + value(*task));
        return texts.join(QLatin1Char(' ')).toStdString();
    }
    std::string days() const
    {
        return each([](const KWTaskInfo &task) {
            const auto text = [](quint32 secs) {
                return secs == 0 ? QStringLiteral("-")
                                 : QDateTime::fromSecsSinceEpoch(secs).toString(QStringLiteral("d"));
            };
            return text(task.Start) + QLatin1Char('.') + text(task.Finish);
        });
    }
    std::string costs() const
    {
        return each([](const KWTaskInfo &task) { return QString::number(task.Cost); });
    }
    std::string baselines() const
    {
        return each([](const KWTaskInfo &task) { return task.BaselineCost; });
    }
    std::string hidden() const
    {
        return each([](const KWTaskInfo &task) { return QString::number(task.HideID); });
    }
    std::string slack() const
    {
        return each([](const KWTaskInfo &task) {
            return task.LateSlack + (task.CriticalPath ? QLatin1String("!") : QLatin1String(""));
        });
    }

    std::string said; // refusals and losses

private:
    quint32 lastTop() const
    {
        quint32 last = 0;
        for (const KWTaskInfo *task : document.taskList())
            last = task->ParentID == 0 ? task->ID.value() : last;
        return last;
    }
};

struct Fault
{
    const char *name;
    std::string (*run)(Plan &);
    const char *outcome;
};

TaskValues length(double days)
{
    TaskValues values;
    values.length = TaskLength{days, 4};
    return values;
}

TaskValues start(int day)
{
    TaskValues values;
    values.start = day < 0 ? 0 : Plan::moment(day);
    return values;
}

const Fault faults[] = {
    {"a pushed month costs what it costs where it is",
     [](Plan &p) {
         p.add("Wait", 0, 4);
         p.add("Run", 0, 1, 2);
         p.assign(2, "Ann", 100);
         p.link(1, 2);
         const std::string pushed = p.costs();
         p.set(2, [] {
             TaskValues same;
             same.length = TaskLength{1, 2};
             return same;
         }());
         return pushed + " then " + p.costs();
     },
     "Wait=0 Run=2100 then Wait=0 Run=2100"},
    {"a stretched task costs more, and so does its summary",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A");
         p.assign(2, "Ann", 80);
         p.set(2, length(2));
         return p.costs();
     },
     "S=160 A=160"},
    {"a task below a linked summary is critical with it",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A", 0, 2);
         p.add("B", 0, 3);
         p.link(1, 3);
         const planreasons::Reasons why = planreasons::of(p.document, 3);
         return p.slack() +
                (why.isDriven() ? " driven by " + std::to_string(why.waitsFor.first().predecessor) : "");
     },
     "S=0 d! A=0 d! B=0 d! driven by 1"},
    {"a summary that waits as one task counts with its whole length",
     [](Plan &p) {
         p.add("A", 0, 1);
         p.add("S");
         p.addUnder(2, "X", 0, 4);
         p.addUnder(2, "Y", 0, 1);
         p.link(1, 2);
         return p.slack();
     },
     "A=0 d! S=0 d! X=0 d! Y=3 d"},
    {"indent and outdent leave a baseline with the task that has it",
     [](Plan &p) {
         p.add("a");
         p.add("b");
         p.baseline(1, "100");
         p.baseline(2, "50");
         p.edit([](PlanEdits &e) { return e.indent({2}); });
         const std::string inside = p.baselines();
         p.edit([](PlanEdits &e) { return e.outdent({2}); });
         return inside + " then " + p.baselines() + p.said;
     },
     "a=50 b=50 then a= b=50[lost baseline 100 of a]"},
    {"only the summaries that a task leaves lose its baseline",
     [](Plan &p) {
         p.add("1");
         p.addUnder(1, "2");
         p.addUnder(2, "3");
         p.baseline(3, "50");
         p.edit([](PlanEdits &e) { return e.outdent({3}); });
         return p.baselines();
     },
     "1=50 2= 3=50"},
    {"a task without a baseline is none from 1970",
     [](Plan &p) {
         p.add("1");
         p.addUnder(1, "2", 0);
         p.addUnder(1, "3", 1);
         p.edit([](PlanEdits &e) { return e.setBaseline(); });
         p.addUnder(1, "4", 2);
         p.edit([](PlanEdits &e) { return e.outdent({3}); });
         return p.each([](const KWTaskInfo &task) {
             return task.BaseStart ? QString::number((task.BaseStart - Plan::moment(0)) / 86400) : QString();
         }) + p.said;
     },
     "1=0 2=0 3= 4=[lost baseline 0 of 3]"},
    {"a baseline typed on a summary is refused",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A");
         p.baseline(1, "7");
         return p.baselines() + p.said;
     },
     "S= A=1 \"S\" is a summary: that comes from the tasks below it"},
    {"what is indented below a collapsed summary is hidden, and goes with it",
     [](Plan &p) {
         p.add("1");
         p.addUnder(1, "2");
         p.add("3");
         p.add("4");
         p.edit([](PlanEdits &e) { return e.collapse({1}); });
         p.edit([](PlanEdits &e) { return e.indent({3}); });
         const std::string before = p.hidden();
         p.edit([](PlanEdits &e) { return e.outdent({3}); });
         const std::string out = p.hidden();
         p.edit([](PlanEdits &e) { return e.remove({1}); });
         return before + " then " + out + " then " + p.hidden();
     },
     "1=0 2=1 3=1 4=0 then 1=0 2=1 3=0 4=0 then 3=0 4=0"},
    {"removing a collapsed summary keeps what is shown below it",
     [](Plan &p) {
         p.add("1");
         p.addUnder(1, "2");
         p.addUnder(2, "3");
         p.edit([](PlanEdits &e) { return e.collapse({1}); });
         p.task(3).HideID = 0; // as an interface call leaves it
         p.edit([](PlanEdits &e) { return e.remove({1}); });
         return p.each([](const KWTaskInfo &task) { return QString::number(task.Level); });
     },
     "3=1"},
    {"a leaf that becomes a summary says whom it loses, and undo brings them back",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "B");
         p.addUnder(1, "C");
         p.assign(2, "Ann", 240);
         p.edit([](PlanEdits &e) { return e.outdent({2}); });
         const std::string after = p.costs();
         p.undo();
         return after + p.said + " then " + p.costs();
     },
     "S=0 B=0 C=0[lost assignment Ann of B] then S=240 B=240 C=0"},
    {"a new task is rolled up",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A", 0, 1);
         p.edit([](PlanEdits &e) {
             TaskValues late = start(7);
             late.name = QStringLiteral("C");
             return e.add(late);
         });
         return p.days();
     },
     "S=2.10 A=2.3 C=9.10"},
    {"no task comes out of a summary before its own predecessor",
     [](Plan &p) {
         p.add("P", 0, 3);
         p.add("S");
         p.addUnder(2, "A", 3, 2);
         p.addUnder(2, "B", 0, 1);
         p.link(1, 3);
         p.edit([](PlanEdits &e) { return e.outdent({3}); });
         return p.days();
     },
     "P=2.5 S=2.7 A=5.6 B=5.6"},
    {"a task without dates freezes no summary and has no slack",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A", 0, 1);
         p.addUnder(1, "B", 0, 1);
         p.set(3, start(-1));
         p.set(2, start(7));
         return p.days() + " " + p.slack() +
                (p.document.taskCollection()->minDateStart() < Plan::moment(-30) ? " wide" : "");
     },
     "S=9.10 A=9.10 B=-.- S=0 d! A=0 d! B="},
    {"undo of a rate brings the money back",
     [](Plan &p) {
         p.add("A");
         p.assign(1, "Ann", 80);
         p.edit([](PlanEdits &e) {
             ResourceValues rate;
             rate.cost = 99.0;
             rate.costUnit = 1;
             return e.setResource(QStringLiteral("Ann"), rate);
         });
         const std::string dear = p.costs();
         p.undo();
         const std::string cheap = p.costs();
         p.edit([](PlanEdits &e) { return e.removeResource(QStringLiteral("Ann")); });
         p.undo();
         return dear + " " + cheap + " " + p.costs() + p.said;
     },
     "A=792 A=80 A=80[lost assignment Ann of A]"},
    {"a resource does not take the name of another one",
     [](Plan &p) {
         p.add("A");
         p.assign(1, "Ann", 80);
         p.assign(1, "Bob", 10);
         p.edit(
             [](PlanEdits &e) { return e.renameResource(QStringLiteral("Ann"), QStringLiteral(" Bob ")); });
         p.edit([](PlanEdits &e) { return e.renameResource(QStringLiteral("Ann"), QStringLiteral("  ")); });
         return p.task(1).Resources.toStdString() + ": " + p.said;
     },
     "Ann; Bob: there is a resource 'Bob' alreadya resource needs a name"},
    {"an insertion leaves the user's scale alone",
     [](Plan &p) {
         p.add("A", 0, 40);
         p.document.AutoZoom = true;
         p.document.UnitWidth = 100;
         p.edit([](PlanEdits &e) { return e.insert(1, PlanEdits::Above); });
         return std::to_string(p.document.UnitWidth);
     },
     "100"},
    {"a new task does not inherit the links of a removed one",
     [](Plan &p) {
         p.add("1");
         p.add("2", 0, 5);
         p.add("3");
         p.task(2).Depends.append(3); // as a damaged file has it: 3 knows nothing of it
         p.edit([](PlanEdits &e) { return e.remove({3}); });
         p.add("new", 0);
         p.set(2, length(6));
         return p.days();
     },
     "1=2.3 2=2.10 new=2.3"},
    {"expanding the outer summary does not show what the inner one hides",
     [](Plan &p) {
         p.add("1");
         p.addUnder(1, "2");
         p.addUnder(2, "3");
         p.edit([](PlanEdits &e) { return e.collapse({1}); });
         p.edit([](PlanEdits &e) { return e.collapse({2}); });
         p.edit([](PlanEdits &e) { return e.expand({1}); });
         return p.hidden();
     },
     "1=0 2=0 3=2"},
    {"a summary above a pushed task pushes what waits for it",
     [](Plan &p) {
         p.add("S");
         p.addUnder(1, "A", 0, 1);
         p.add("B", 1, 1);
         p.link(1, 3);
         const EditAnswer answer = p.edit([](PlanEdits &e) { return e.set({2}, length(3)); });
         std::string moves = p.days();
         for (const EditMove &move : answer.moves)
             moves += " " + std::to_string(move.task) + "<-" + std::to_string(move.pushedBy);
         return moves;
     },
     "S=2.5 A=2.5 B=5.6 1<-0 2<-0 3<-1"},
    {"gaps are closed for linked tasks that have not begun",
     [](Plan &p) {
         p.add("A", 0, 5);
         p.add("B");
         p.add("C", 9);
         p.add("D");
         p.link(1, 2);
         p.link(1, 4);
         TaskValues begun;
         begun.percent = 0.5;
         p.set(4, begun);
         p.set(1, length(2));
         p.edit([](PlanEdits &e) { return e.schedule(PlanEdits::WithoutGaps); });
         return p.days();
     },
     "A=2.4 B=4.5 C=11.12 D=9.10"},
    {"an edit leaves violated links alone that it does not reach",
     [](Plan &p) {
         p.add("A", 0, 5);
         p.add("B", 0, 1);
         p.add("C", 0, 1);
         p.link(2, 3);
         p.task(1).Depends.append(2); // as a file has it
         p.task(2).Predecessors.append(1);
         p.set(3, length(2));
         const std::string before = p.days();
         p.set(1, length(3));
         return before + " then " + p.days();
     },
     "A=2.7 B=2.3 C=3.5 then A=2.5 B=5.6 C=6.10"},
};

TEST(MendedFaults, stayMended)
{
    for (const Fault &fault : faults) {
        SCOPED_TRACE(fault.name);
        Plan plan;
        EXPECT_EQ(fault.run(plan), fault.outcome);
    }
}
}
