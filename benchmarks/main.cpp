// Measures the scheduling operations on generated projects, each on one core.
//
// Every line gives the best of several runs: seconds of processor time, microseconds a task, the growth from
// the size before, and the time divided by a bare kernel's in the same run where the two do the same work.
#include "costs.h"
#include "engine/time/worktime.h"
#include "generator.h"
#include "kernel.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "tableedits.h"
#include <QGuiApplication>
#include <cstdio>

namespace {

class Snapshot
{
public:
    explicit Snapshot(const KWDocument &document)
    {
        for (const KWTaskInfo *task : document.taskList())
            m_tasks.push_back(*task);
    }
    void restore(const KWDocument &document) const
    {
        for (int pos = 0; pos < document.taskCount(); ++pos)
            *document.getTaskInfoAt(pos) = m_tasks[size_t(pos)];
    }
    int changed(const KWDocument &document) const
    {
        int count = 0;
        for (int pos = 0; pos < document.taskCount(); ++pos)
            count += document.getTaskInfoAt(pos)->Finish != m_tasks[size_t(pos)].Finish;
        return count;
    }

private:
    std::vector<KWTaskInfo> m_tasks;
};

void reschedule(KWDocument &document)
{
    KWTaskCollection &scale = *document.taskCollection();
    scale.pushAllSuccessors();
    scale.updateOptionTaskTime();
    document.updateAllTaskEarlyLate();
    scale.updateRageAndTaskPoint();
}

void measure(Report &report, int tasks)
{
    const int runs = tasks >= 100000 ? 5 : 9;
    generator::Shape shape;
    shape.tasks = tasks;
    const generator::Plan plan = generator::plan(shape);
    std::unique_ptr<KWDocument> document;
    const auto nothing = [] {};

    report.line("build", tasks,
                best(
                    3, [&] { document.reset(); }, [&] { document = generator::document(plan, shape); }));
    KWTaskCollection &scale = *document->taskCollection();
    const Snapshot fresh(*document);

    // The look-up alone: reading the record found would measure the memory, not the look-up.
    quint64 sum = 0;
    const auto found = [&sum](const KWTaskInfo *task) { sum += quint64(task != nullptr); };
    report.line("look-up by ID", tasks, best(runs, nothing, [&] {
                    for (int i = 1; i <= tasks; ++i)
                        found(document->getTaskInfoByID(quint32(i)));
                }));
    report.line("look-up by pos", tasks, best(runs, nothing, [&] {
                    for (int i = 0; i < tasks; ++i) {
                        found(document->getTaskInfoAt(i));
                        sum += quint64(document->getRowByPos(i));
                    }
                }));
    report.line("look-up by row", tasks, best(runs, nothing, [&] {
                    for (int i = 0; i < tasks; ++i)
                        found(document->getTaskInfoByRow(i));
                }));
    report.line("look-up by tag", tasks, best(runs, nothing, [&] {
                    for (int i = 1; i <= tasks; ++i)
                        found(document->getTaskByTag(i));
                }));

    const double kernelSeconds =
        best(runs, nothing, [&] { sum += kernel::reschedule(plan, shape).checksum; });
    report.line("(bare kernel) reschedule", tasks, kernelSeconds);

    const auto restore = [&] { fresh.restore(*document); };
    report.line("push of all successors", tasks, best(runs, restore, [&] { scale.pushAllSuccessors(); }));
    report.line("roll-up of all summaries", tasks,
                best(runs, nothing, [&] { scale.updateOptionTaskTime(); }));
    report.line("late dates and critical path", tasks,
                best(runs, nothing, [&] { document->updateAllTaskEarlyLate(); }));
    report.line("updateRageAndTaskPoint", tasks,
                best(runs, nothing, [&] { scale.updateRageAndTaskPoint(); }));
    report.line("full reschedule", tasks, best(runs, restore, [&] { reschedule(*document); }), kernelSeconds);

    // A critical leaf in the middle grows by two working days, with everything that follows from it.
    reschedule(*document);
    const Snapshot scheduled(*document);
    KWTaskInfo *middle = nullptr;
    for (int step = 0; !middle && step < tasks / 2; ++step) {
        KWTaskInfo *task = document->getTaskInfoAt(tasks / 2 + (step % 2 ? step / 2 : -step / 2));
        if (!task->isParent() && task->CriticalPath)
            middle = task;
    }
    const auto restoreScheduled = [&] { scheduled.restore(*document); };
    const quint32 finishBefore = document->getMaxFinishSecs();
    report.line("stretch in the middle", tasks, best(runs, restoreScheduled, [&] {
                    middle->stretch(document.get(), middle->x2 + 4.0 * document->UnitWidth, true);
                    scale.updateRageAndTaskPoint();
                }));
    std::printf("    (%d tasks moved, the project's finish by %.1f days)\n", scheduled.changed(*document),
                (double(document->getMaxFinishSecs()) - finishBefore) / 86400);
    report.line("late dates after that edit", tasks,
                best(runs, nothing, [&] { document->updateAllTaskEarlyLate(); }));
    if (sum == 42)
        std::printf(" ");
}

void measureExtremes(Report &report)
{
    generator::Shape shape;
    shape.linksPerTask = 1;
    for (int length : {1000, 10000, 100000}) {
        const generator::Plan plan = generator::chain(length);
        shape.tasks = length;
        shape.years = 0; // the chain runs for centuries; its dates end at the clock's last day
        auto document = generator::document(plan, shape);
        const Snapshot fresh(*document);
        report.line("chain: push and late dates", length,
                    best(
                        3, [&] { fresh.restore(*document); },
                        [&] {
                            document->taskCollection()->pushAllSuccessors();
                            document->updateAllTaskEarlyLate();
                        }));
    }
    for (int width : {1, 10}) { // 1 and 10^30 paths over the same number of tasks
        const int layers = width == 1 ? 300 : 30;
        auto document = generator::document(generator::layered(layers, width), shape);
        document->taskCollection()->pushAllSuccessors();
        report.line(width == 1 ? "300 tasks, one path" : "300 tasks, 10^30 paths", 300,
                    best(
                        9, [] {}, [&] { document->updateAllTaskEarlyLate(); }));
    }
}
}

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const int largest = argc > 1 ? std::atoi(argv[1]) : 100000;
    Report report;
    for (int tasks = 1000; tasks <= largest; tasks *= 10)
        measure(report, tasks);
    for (int tasks = 1000; tasks <= largest; tasks *= 10)
        costs::measure(report, tasks);
    for (int tasks = 1000; tasks <= largest; tasks *= 10)
        tableedits::measure(report, tasks);
    measureExtremes(report);
    return 0;
}
