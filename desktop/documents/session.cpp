#include "documents/session.h"
#include "console.h"
#include "editing/kwopeaction.h"
#include "edits/planreasons.h"
#include "edits/settle.h"
#include "format/unitutil.h"
#include "kwpxfile.h"
#include "kwzip.h"
#include "model/kwtaskinfo.h"
#include "planfile.h"
#include "schedule/kwtaskcollection.h"
#include "support/kwclock.h"
#include "support/longwork.h"
#include "table/rowcolumndata.h"
#include "texts.h"
#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace {

constexpr unsigned int day = 4;

// The words of a reader, without those that are meant for a terminal.
QString plainError(const QByteArray &said)
{
    QStringList lines;
    for (QString line : QString::fromUtf8(said).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        line = line.trimmed();
        if (line.startsWith(QLatin1String("kwgantt: ")))
            line = line.mid(int(sizeof "kwgantt: ") - 1);
        // An option of the command line is no help here.
        if (line.startsWith(QLatin1String("hint: ")) && line.contains(QLatin1String("--")))
            continue;
        lines.append(line);
    }
    return lines.join(QLatin1Char('\n'));
}

// A plan that brings no table of its own gets one that leaves room for the chart.
void narrowColumns(KWDocument &document)
{
    const struct
    {
        int type;
        double pixels; // at 96 dpi
    } widths[] = {{1, 210}, {2, 92}, {3, 92}, {4, 84}, {5, 92}, {7, 150}};
    for (const auto &[type, pixels] : widths)
        if (RowColumnData::ColumnData *column =
                document.rowColumnData()->getColumnDataByName(RowColumnData::s_columnNames.value(type)))
            column->width = pixels * UnitUtil::dpiScale96();
}

// The numbers of all rows can be read, also those of some tasks that may follow.
void widenNumbers(KWDocument &document)
{
    constexpr double margins = 22, pixelsOfDigit = 8.5, forTitle = 48;
    constexpr int toFollow = 9;
    const int digits = QString::number(document.taskCount() + toFollow).size();
    RowColumnData::ColumnData *numbers =
        document.rowColumnData()->getColumnDataByName(RowColumnData::s_columnNames.value(0));
    if (numbers)
        numbers->width =
            qMax(numbers->width, qMax(forTitle, margins + digits * pixelsOfDigit) * UnitUtil::dpiScale96());
}
}

Session::Session(QObject *parent)
    : QObject(parent)
    , m_plan(std::make_unique<Plan>())
{
}

Session::~Session()
{
    dropTrial();
}

// ---- Files ------------------------------------------------------------------------------------------------

bool Session::open(const QString &path, QString &error)
{
    auto plan = std::make_unique<Plan>();
    KWDocument &document = *plan->document;
    Findings findings;
    const bool isPackage = kwpxfile::isPackage(path);
    if (isPackage) {
        // Straight, without what the command line keeps beside a document.
        if (!document.loadFromKWGT(path)) {
            if (LongWork::wasGivenUp())
                return false;
            const QString why = texts::said(KWZip::lastError());
            error = tr("%1 is no plan: %2")
                        .arg(QFileInfo(path).fileName(), why.isEmpty() ? tr("it cannot be read") : why);
            return false;
        }
        for (const Finding &finding : document.loadFindings().list())
            findings.add(finding.place, finding.what, finding.hint);
        plan->file = path;
        plan->isPackage = true;
        plan->start = plan::firstStart(*plan);
        for (const KWTaskInfo *task : document.taskList())
            plan->withoutStart += task->Start == 0 && !task->isParent();
    } else {
        QByteArray out, said;
        Console console(Console::Surroundings(), &out, &said);
        console.follow(Options());
        if (planfile::load(path, console, *plan, findings) != Console::Done) {
            if (!LongWork::wasGivenUp())
                error = plainError(said);
            return false;
        }
        document.setFileName(QFileInfo(path).completeBaseName());
    }
    const int withoutStart = plan->withoutStart;
    if (withoutStart > 0)
        plan::schedule(*plan, plan::AsGiven, nullptr);
    settling::settle(document, {settling::AsItStands, {}, {}});
    if (LongWork::wasGivenUp())
        return false;
    if (!isPackage)
        narrowColumns(document);
    widenNumbers(document);
    document.actionManager().prepareReplacement(); // opening is no step
    document.setModified(withoutStart > 0);
    m_findings = findings;
    m_withoutStart = withoutStart;
    m_source = QFileInfo(path).absoluteFilePath();
    m_path = isPackage ? m_source : QString();
    take(std::move(plan));
    return true;
}

bool Session::openCopy(const recovery::Copy &copy, QString &error)
{
    if (!open(copy.file, error))
        return false;
    document().setFilePath(copy.original, QString());
    document().setFileName(copy.name);
    document().setModified(true);
    m_path = m_source = copy.original;
    take(std::move(m_plan));
    m_seen = copy.seen; // what was written there since is asked about before it is replaced
    // Only now that this session keeps a copy of its own.
    if (writeCopy())
        recovery::discard(copy);
    return true;
}

void Session::startAnew()
{
    auto plan = std::make_unique<Plan>();
    KWDocument &document = *plan->document;
    document.setFileName(tr("Untitled"));
    {
        PlanEdits edits(document, tr("Begin"));
        const QDate today = KWClock::now().date();
        const QDateTime monday(today.addDays(8 - today.dayOfWeek()), QTime(0, 0));
        QVector<quint32> chain;
        const std::pair<QString, double> tasks[] = {
            {tr("First task"), 3}, {tr("Next task"), 2}, {tr("Done"), 0}};
        for (const auto &[name, days] : tasks) {
            TaskValues values;
            values.name = name;
            values.start = quint32(monday.toSecsSinceEpoch());
            values.length = TaskLength{days, day};
            chain += edits.add(values).tasks;
        }
        edits.link(chain);
    }
    narrowColumns(document);
    widenNumbers(document);
    document.actionManager().prepareReplacement();
    document.setModified(false);
    m_findings.clear();
    m_withoutStart = 0;
    m_path.clear();
    m_source.clear();
    take(std::move(plan));
}

void Session::take(std::unique_ptr<Plan> plan)
{
    m_trial.reset();
    m_lock.reset();
    m_otherUser.clear();
    m_barsAreOld = false;
    m_savedStep = -1;
    m_plan.swap(plan);
    if (m_plan->document->backupName().isEmpty())
        m_plan->document->setFileName(name());
    m_copy.own(*m_plan->document);
    rememberFile();
    lockFile();
    Q_EMIT replaced();
    Q_EMIT stateChanged();
}

// Others are told, not kept out: a file server may keep a lock of somebody who is long gone.
void Session::lockFile()
{
    m_lock.reset();
    m_otherUser.clear();
    if (m_path.isEmpty())
        return;
    const QFileInfo info(m_path);
    m_lock = std::make_unique<QLockFile>(
        info.dir().filePath(QLatin1String(".~lock.") + info.fileName() + QLatin1Char('#')));
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0) || m_lock->error() != QLockFile::LockFailedError)
        return;
    qint64 process = 0;
    QString host, program;
    m_lock->getLockInfo(&process, &host, &program);
    m_otherUser = tr("%1 on %2").arg(program.isEmpty() ? tr("another program") : program, host);
}

void Session::rememberFile()
{
    m_seen = recovery::FileState::of(m_path);
}

bool Session::wasChangedMeanwhile() const
{
    return m_seen.wasWrittenSince(m_path);
}

QString Session::name() const
{
    if (!m_source.isEmpty())
        return QFileInfo(m_source).fileName();
    return tr("Untitled");
}

bool Session::save(const QString &path, QString &error)
{
    if (isHeld())
        return false;
    dropTrial();
    settleBars();
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        error = tr("%1 is no plain file").arg(path);
        return false;
    }
    if (!document().save(path)) {
        const QString why = texts::said(KWZip::lastError());
        error = tr("%1 cannot be written: %2")
                    .arg(QDir::toNativeSeparators(path),
                         why.isEmpty() ? tr("the folder must exist and have room") : why);
        return false;
    }
    const bool isElsewhere = QFileInfo(path).absoluteFilePath() != m_path;
    m_path = m_source = QFileInfo(path).absoluteFilePath();
    m_copy.release(); // the copy is older than the file now
    m_copy.own(document());
    rememberFile();
    if (isElsewhere)
        lockFile();
    Q_EMIT stateChanged();
    return true;
}

bool Session::keepCopy()
{
    if (isTrying() || isHeld())
        return true; // what is tried out is not wanted yet, and what is made is not whole
    return writeCopy();
}

bool Session::writeCopy()
{
    settleBars();
    m_copy.own(document());
    return recovery::keep(document(), m_path, m_seen);
}

// ---- Edits ------------------------------------------------------------------------------------------------

void Session::join(EditAnswer &all, const EditAnswer &part)
{
    if (!part.isDone()) {
        all.refusal = part.refusal;
        all.arguments = part.arguments;
        all.ring = part.ring;
        return;
    }
    all.tasks += part.tasks;
    all.moves += part.moves;
    all.losses += part.losses;
}

namespace {

EditAnswer givenUp()
{
    EditAnswer answer;
    answer.refusal = EditRefusal::GivenUp;
    return answer;
}
}

EditAnswer Session::edit(const QString &name, const Change &change)
{
    if (isHeld())
        return givenUp();
    dropTrial();
    const bool wasModified = isModified();
    PlanEdits edits(document(), name);
    EditAnswer answer;
    const auto work = [&] {
        answer = change(edits);
        if (LongWork::wasGivenUp() && answer.isDone())
            answer = givenUp();
    };
    {
        const Hold hold(*this);
        if (m_watcher)
            m_watcher(name, work);
        else
            work();
    }
    if (answer.isDone()) {
        finishStep(edits, wasModified);
        m_plan->moves.clear(); // what opening has moved is told no longer
        Q_EMIT edited(answer);
    } else {
        edits.cancel();
        document().setModified(wasModified);
    }
    Q_EMIT stateChanged();
    return answer;
}

EditAnswer Session::tryOut(const QString &name, const Change &change)
{
    if (isHeld())
        return givenUp();
    if (m_trial) {
        m_trial->cancel();
    } else {
        m_wasModified = isModified();
        m_trial = std::make_unique<PlanEdits>(document(), name);
    }
    const EditAnswer answer = change(*m_trial);
    if (!answer.isDone()) {
        m_trial->cancel();
        document().setModified(m_wasModified);
    }
    Q_EMIT edited(answer);
    return answer;
}

void Session::keepTrial()
{
    if (!m_trial)
        return;
    finishStep(*m_trial, m_wasModified);
    m_trial.reset();
    Q_EMIT stateChanged();
}

void Session::dropTrial()
{
    if (!m_trial)
        return;
    m_trial->cancel();
    m_trial.reset();
    document().setModified(m_wasModified);
    Q_EMIT edited(EditAnswer());
    Q_EMIT stateChanged();
}

// What is not modified is as it is saved: that step is noted before the next one changes it.
void Session::finishStep(PlanEdits &edits, bool wasModified)
{
    const QList<KWOpeAction *> &steps = document().actionManager().undoActions();
    const int before = steps.size();
    if (!wasModified)
        m_savedStep = before;
    if (!edits.finish()) {
        document().setModified(wasModified);
        return;
    }
    // What could be made again is gone, and the oldest step where no more are kept.
    if (m_savedStep > before)
        m_savedStep = -1;
    else if (steps.size() == before && m_savedStep >= 0)
        --m_savedStep;
}

void Session::goSteps(bool isBack)
{
    if (isHeld())
        return;
    dropTrial();
    ActionManager &manager = document().actionManager();
    const QList<KWOpeAction *> &back = manager.undoActions(), &ahead = manager.redoActions();
    const int before = back.size(), aheadBefore = ahead.size();
    if ((isBack ? before : aheadBefore) == 0)
        return;
    if (!isModified())
        m_savedStep = before;
    if (isBack)
        manager.undo(1);
    else
        manager.redo();
    const int step = isBack ? -1 : 1;
    if (back.size() != before + step || ahead.size() != aheadBefore - step)
        m_savedStep = -1; // the step failed, or the oldest had to go
    document().setModified(back.size() != m_savedStep);
    Q_EMIT edited(EditAnswer());
    Q_EMIT stateChanged();
}

void Session::undo()
{
    goSteps(true);
}

void Session::redo()
{
    goSteps(false);
}

void Session::changeBesideSteps()
{
    m_savedStep = -1;
    document().setModified(true);
    Q_EMIT stateChanged();
}

QString Session::undoName() const
{
    return document().actionManager().undoActionNames().value(0);
}

QString Session::redoName() const
{
    const QList<KWOpeAction *> &actions = document().actionManager().redoActions();
    return actions.isEmpty() ? QString() : actions.last()->name();
}

// ---- The scale --------------------------------------------------------------------------------------------

void Session::setScale(quint32 minorUnit, int unitWidth)
{
    const bool wasModified = isModified();
    KWDocument &plan = document();
    constexpr quint32 coarsestMajor = 0, finestMajor = 3;
    plan.MajorUnit = minorUnit == 0 ? coarsestMajor : qMin(minorUnit - 1, finestMajor);
    // Below the year the stored unit counts from the one after the major unit.
    plan.MinorUnit = plan.MajorUnit == 0 ? minorUnit : minorUnit - plan.MajorUnit - 1;
    plan.UnitWidth = unitWidth;
    plan.taskCollection()->updateRange();
    plan.taskCollection()->updateTotalWidth();
    plan.setModified(wasModified);
    m_barsAreOld = true;
}

void Session::beginChartAt(quint32 secs)
{
    KWTaskCollection &collection = *document().taskCollection();
    if (secs == 0 || secs >= collection.minDateStart())
        return;
    const bool wasModified = isModified();
    collection.updateRangeOf(secs, collection.getMaxTaskFinishSecs());
    collection.updateTotalWidth();
    document().setModified(wasModified);
    m_barsAreOld = true;
}

void Session::settleBars()
{
    if (!m_barsAreOld)
        return;
    const bool wasModified = isModified();
    settling::settleChart(document());
    document().setModified(wasModified);
    m_barsAreOld = false;
    Q_EMIT rescaled();
}
