#pragma once
#include "datetext.h"
#include "exchange/csvtext.h"
#include "exchange/importedplan.h"
#include "filelock.h"
#include "model/kwdocument.h"
#include <QHash>
#include <QSet>
#include <functional>
#include <memory>
#include <vector>

class Findings;
class KWTaskInfo;

// A loaded plan: the library's document, where it came from, and what only the file says.
struct Plan
{
    using Progress = std::function<void(const QString &work, qint64 done, qint64 total)>;

    Plan() = default;
    Plan(const Plan &) = delete;
    Plan &operator=(const Plan &) = delete;
    ~Plan();
    // Set by a process that ends with its command: all of its memory goes back at once then, which is quicker
    // than taking 100,000 tasks apart.
    static bool isLast;

    // One task that scheduling or edits moved, with the task that pushed it (0: it went with its summary,
    // with all others to the project's start, or the edit itself moved it).
    struct Move
    {
        int pos = 0;
        quint32 oldStart = 0;
        quint32 oldFinish = 0;
        quint32 pushedBy = 0;
        bool byEdit = false;
    };

    std::unique_ptr<KWDocument> document = std::make_unique<KWDocument>();
    QString name;        // of the project, for people
    QString projectName; // where the plan's file or its calendar's names it
    QString file;        // as the user wrote it
    csv::Table table;    // the file's cells, where they are to be written again
    ImportedPlan imported;
    unsigned int slackUnit = duration::Day; // or a smaller one
    quint32 start = 0;                      // of the project; seconds on the day clock
    int withoutStart = 0;                   // tasks that the file gives no start
    int links = 0;
    int refusedLinks = 0;
    std::vector<int> tightest; // for each task the one below it, or itself, with the least slack
    std::vector<Move> moves;   // of schedule(), or of the edits that a MoveWatch saw
    FileLock lock;             // of a file that is going to be written in place
    bool isPackage = false;
    quint32 majorUnit = 0; // of a package's chart, as the file has them
    quint32 minorUnit = 0;
    quint32 finishBefore = 0; // the project's finish before those

    int taskCount() const { return document->taskCount(); }
    KWTaskInfo *task(int pos) const { return document->taskList().at(pos); }
    // The task whose slack decides about a row: a summary is as urgent as the most urgent task below it.
    KWTaskInfo *urgent(int pos) const { return task(tightest[std::size_t(pos)]); }
    int posOf(quint32 id) const { return document->getPosByID(id); }
};

// Remembers where the tasks of a plan stand, to tell later what moved and because of what.
class MoveWatch
{
public:
    explicit MoveWatch(Plan &plan);

    void pushed(quint32 task, quint32 by) { m_pushedBy.insert(task, by); }
    void edited(quint32 task) { m_edited.insert(task); }
    // Fills the plan's `moves` with the tasks that are still there and begin or end at another working
    // moment.
    void tell() const;

private:
    struct Dates
    {
        quint32 task;
        quint32 start;
        quint32 finish;
    };
    Plan &m_plan;
    std::vector<Dates> m_before;
    QHash<quint32, quint32> m_pushedBy;
    QSet<quint32> m_edited;
};

namespace plan {

// A typed moment on the day clock, off the days off: as a start, and as a finish (a date alone means its
// end).
quint32 startSecs(KWDocument &document, const datetext::Moment &moment);
quint32 finishSecs(KWDocument &document, const datetext::Moment &moment);
// Where tasks stand before they are pushed: where the file puts them, or all at the project's start.
enum Beginning { AsGiven, AsSoonAsPossible };
// Pushes every task behind its predecessors and fills `moves`.
void schedule(Plan &plan, Beginning beginning, const Plan::Progress &progress);
// Dates and progress of summaries, late dates, slack and bars, from the tasks as they stand.
void refresh(Plan &plan, const Plan::Progress &progress);
// Slack is measured in the minor unit of the chart: 4 day, 5 hour, 6 minute.
void countSlackIn(Plan &plan, unsigned int unit);

// The project's ends on the day clock; 0 without tasks.
quint32 firstStart(const Plan &plan);
quint32 lastFinish(const Plan &plan);
// Whole working minutes from one moment to another, negative when they stand the other way round.
qint64 workingMinutes(const Plan &plan, quint32 from, quint32 to);
// The task's work in hours; that of a leaf is kept in the unit of its duration.
double workHours(const Plan &plan, const KWTaskInfo &task);
}
