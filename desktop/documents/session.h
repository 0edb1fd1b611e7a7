#pragma once
#include "documents/recovery.h"
#include "edits/planedits.h"
#include "plan.h"
#include "support/findings.h"
#include <QDateTime>
#include <QObject>
#include <functional>
#include <memory>

class QLockFile;

// One open plan: its file, its edits, and what everybody who shows it must hear.
//
// Every change goes through edit() or tryOut(), so each is one step of the undo menu.
class Session : public QObject
{
    Q_OBJECT
public:
    using Change = std::function<EditAnswer(PlanEdits &)>;

    explicit Session(QObject *parent = nullptr);
    ~Session() override;

    KWDocument &document() const { return *m_plan->document; }
    Plan &plan() { return *m_plan; }

    // ---- Files --------------------------------------------------------------------------------------------
    // Any plan that kwgantt reads. The plan that was open stays when false comes back, with the reason;
    // without one when a LongWork was given up. What
    // was not taken as it stands is in findings().
    bool open(const QString &path, QString &error);
    bool openCopy(const recovery::Copy &copy, QString &error);
    void startAnew(); // with three tasks to try things on
    // As a package. The reason of a false is in `error`; the old file is whole then.
    bool save(const QString &path, QString &error);
    const QString &path() const { return m_path; }     // where save() writes; empty: nowhere yet
    const QString &source() const { return m_source; } // what was opened, whatever its format
    QString name() const;                              // for a window's title
    bool isModified() const { return document().isModified(); }
    // Whether another program wrote the file since it was opened or saved.
    bool wasChangedMeanwhile() const;
    // A change that is no step, so that no undo leads back to what is saved.
    void changeBesideSteps();
    void acceptChangeMeanwhile() { rememberFile(); }
    // Who has the plan open as well; empty: nobody.
    const QString &otherUser() const { return m_otherUser; }
    bool keepCopy(); // for a crash, while the plan is modified
    const Findings &findings() const { return m_findings; }
    int tasksWithoutStart() const { return m_withoutStart; } // that were scheduled when the plan was opened

    // ---- Edits --------------------------------------------------------------------------------------------
    // Who shows how far work is that may last: calls the work, watched as LongWork tells.
    using Watcher = std::function<void(const QString &what, const std::function<void()> &work)>;
    void setWatcher(const Watcher &watcher) { m_watcher = watcher; }
    // While long work goes on the plan is nobody else's: edits and saving are refused, undo does nothing.
    class Hold
    {
    public:
        explicit Hold(Session &session)
            : m_session(session)
        {
            ++m_session.m_holds;
        }
        ~Hold() { --m_session.m_holds; }
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;

    private:
        Session &m_session;
    };
    bool isHeld() const { return m_holds > 0; }
    // One step, or nothing at all when it is refused or given up.
    EditAnswer edit(const QString &name, const Change &change);
    // The same on trial: the plan shows what would be, until the trial is kept or dropped or another takes
    // its place.
    EditAnswer tryOut(const QString &name, const Change &change);
    bool isTrying() const { return m_trial != nullptr; }
    void keepTrial();
    void dropTrial();
    void undo();
    void redo();
    QString undoName() const; // empty: there is nothing to undo
    QString redoName() const;
    // Puts what one call answered to what the calls before it did.
    static void join(EditAnswer &all, const EditAnswer &part);

    // ---- What the chart's scale leaves behind -------------------------------------------------------------
    // The scale is part of the plan but changing it is no edit: neither undoable nor a reason to save.
    void setScale(quint32 minorUnit, int unitWidth);
    // The chart begins at that moment at the latest, although no task may stand there.
    void beginChartAt(quint32 secs);
    // Places the bars that are saved with the plan; the chart is as long as the plan again.
    void settleBars();

Q_SIGNALS:
    void replaced();                       // there is another document
    void edited(const EditAnswer &answer); // also by a trial; undo and redo do not know what they moved
    void rescaled();                       // settleBars() has changed the chart
    void stateChanged();                   // modified, undo, redo, file

private:
    void take(std::unique_ptr<Plan> plan);
    void finishStep(PlanEdits &edits, bool wasModified);
    void goSteps(bool isBack);
    void rememberFile();
    void lockFile();
    bool writeCopy();

    std::unique_ptr<Plan> m_plan;
    std::unique_ptr<PlanEdits> m_trial;
    Watcher m_watcher;
    int m_holds = 0;
    bool m_wasModified = false; // before the trial
    int m_savedStep = -1;       // steps on the undo stack when the plan was as it is saved; -1: out of reach
    bool m_barsAreOld = false;
    QString m_path;
    QString m_source;
    QString m_otherUser;
    std::unique_ptr<QLockFile> m_lock;
    recovery::FileState m_seen; // the file at m_path
    Findings m_findings;
    int m_withoutStart = 0;
    recovery::Owner m_copy;
};
