// The chart's time axis: range, unit boundaries, width, bar points.
#include "schedule/kwtaskcollection.h"
#include "engine/network/keptlatedates.h"
#include "engine/network/keptnetwork.h"
#include "engine/record/outline.h"
#include "engine/record/taskahead.h"
#include "engine/time/timerange.h"
#include "engine/time/timescale.h"
#include "format/unitutil.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "model/worktimesource.h"
#include "support/kwclock.h"
#include <algorithm>

namespace {

timescale::Zoom zoomOf(const KWDocument &document)
{
    return {document.MajorUnit, document.MinorUnit, document.UnitWidth};
}
}

// With the working time that they were worked out in.
struct KWTaskCollection::LateDates
{
    latedates::Kept kept;
    const worktime::WorkCalendar *calendar = nullptr;
    quint64 digest = 0;
    std::shared_ptr<const LocalClock> clock;
};

KWTaskCollection::KWTaskCollection(KWDocument *document)
    : m_document(document)
{
}

KWTaskCollection::~KWTaskCollection() = default;

timescale::Scale KWTaskCollection::scale() const
{
    return timescale::Scale(m_document->workCalendar(), m_document->getMinorUnit(), m_minDateStart,
                            m_maxDateFinish, m_totalWidth, m_document->UnitWidth, UnitUtil::dpiScale96());
}

latedates::Kept &KWTaskCollection::keptLateDates()
{
    if (!m_lateDates)
        m_lateDates = std::make_unique<LateDates>();
    // A calendar made anew may stand where another one stood.
    const KWDocument &document = *m_document;
    const worktime::WorkCalendar *calendar = &document.workCalendar();
    const quint64 digest = worktime::WorkCalendar::digest(worktimeSource(document));
    std::shared_ptr<const LocalClock> clock = LocalClock::current();
    LateDates &late = *m_lateDates;
    if (late.calendar != calendar || late.digest != digest || late.clock != clock) {
        late.kept.reset();
        late.calendar = calendar;
        late.digest = digest;
        late.clock = std::move(clock);
    }
    return late.kept;
}

linkgraph::KeptNetwork &KWTaskCollection::keptNetwork()
{
    if (!m_network)
        m_network = std::make_unique<linkgraph::KeptNetwork>();
    return *m_network;
}

// ---- Range ------------------------------------------------------------------------------------------------

KWTaskCollection::Span KWTaskCollection::taskSpan() const
{
    if (!m_document || m_document->taskCount() == 0) {
        const quint32 today = worktime::clampSecs(KWClock::now().date().startOfDay().toSecsSinceEpoch());
        return {today, today};
    }
    const QList<KWTaskInfo *> &tasks = m_document->taskList();
    Span span{tasks.first()->Start, tasks.first()->Finish};
    for (const KWTaskInfo *task : tasks) {
        span.start = std::min(span.start, task->Start);
        span.finish = std::max(span.finish, task->Finish);
    }
    return span;
}

quint32 KWTaskCollection::getMinTaskStartSecs() const
{
    return taskSpan().start;
}

quint32 KWTaskCollection::getMaxTaskFinishSecs() const
{
    return taskSpan().finish;
}

void KWTaskCollection::updateRange()
{
    if (!m_document)
        return;
    const Span span = taskSpan();
    updateRangeOf(span.start, span.finish);
}

void KWTaskCollection::updateRangeOf(quint32 firstStart, quint32 lastFinish)
{
    if (!m_document)
        return;
    const unsigned int minor = m_document->getMinorUnit();
    m_minDateStart = updateMinDateStartSecs(firstStart, minor);
    m_maxDateFinish = updateMaxDateFinishSecs(lastFinish, minor);
}

quint32 KWTaskCollection::updateMinDateStartSecs(quint32 secs, unsigned int minor) const
{
    return timerange::rangeStart(*LocalClock::current(), secs, minor);
}

quint32 KWTaskCollection::updateMaxDateFinishSecs(quint32 secs, unsigned int minor) const
{
    return timerange::rangeEnd(*LocalClock::current(), secs, m_minDateStart, minor);
}

quint32 KWTaskCollection::getQuarterMinDateStartSecs(quint32 secs) const
{
    return timerange::unitStart(*LocalClock::current(), secs, duration::Quarter);
}

quint32 KWTaskCollection::getMonthMinDateStartSecs(quint32 secs) const
{
    return timerange::unitStart(*LocalClock::current(), secs, duration::Month);
}

quint32 KWTaskCollection::getWeekMinDateStartSecs(quint32 secs) const
{
    return timerange::mondayOf(*LocalClock::current(), secs);
}

void KWTaskCollection::setMinDateStart(quint32 secs)
{
    m_minDateStart = secs;
}

// ---- Unit boundaries --------------------------------------------------------------------------------------

void KWTaskCollection::appendMinorTypeDateTime()
{
    setStDateToFiDate(QDateTime::fromSecsSinceEpoch(m_minDateStart),
                      QDateTime::fromSecsSinceEpoch(m_maxDateFinish));
}

void KWTaskCollection::setStDateToFiDate(const QDateTime &start, const QDateTime &finish)
{
    m_listsStart = start;
    m_listsFinish = finish;
}

timerange::UnitDates KWTaskCollection::unitDates() const
{
    return timerange::UnitDates(m_listsStart, m_listsFinish);
}

QDateTime KWTaskCollection::getYearDateListAt(int index) const
{
    return unitDates().at(duration::Year, index);
}

QDateTime KWTaskCollection::getQuarterDateListAt(int index) const
{
    return unitDates().at(duration::Quarter, index);
}

QDateTime KWTaskCollection::getMonthDateListAt(int index) const
{
    return unitDates().at(duration::Month, index);
}

QDateTime KWTaskCollection::getWeekDateListAt(int index) const
{
    return unitDates().at(duration::Week, index);
}

QDateTime KWTaskCollection::getDayDateListAt(int index) const
{
    return unitDates().at(duration::Day, index);
}

int KWTaskCollection::unitCount(unsigned int minor) const
{
    return unitDates().count(minor);
}

// ---- Width ------------------------------------------------------------------------------------------------

void KWTaskCollection::updateTotalWidth()
{
    if (!m_document)
        return;
    appendMinorTypeDateTime();
    const unsigned int minor = m_document->getMinorUnit();
    m_totalWidth = timescale::chartWidth(m_document->workCalendar(), minor, unitCount(minor),
                                         m_document->UnitWidth, UnitUtil::dpiScale96());
}

void KWTaskCollection::updateTooSmallTotalWidth(int viewWidth)
{
    if (!m_document || m_totalWidth <= 0 || m_totalWidth >= viewWidth)
        return;
    const unsigned int minor = m_document->getMinorUnit();
    const worktime::WorkCalendar &calendar = m_document->workCalendar();
    const int units =
        timescale::unitsFor(calendar, minor, viewWidth, m_document->UnitWidth, UnitUtil::dpiScale96());
    const int missing = units - unitCount(minor);
    if (missing <= 0)
        return;
    m_maxDateFinish = timerange::laterRangeEnd(calendar.clock(), m_maxDateFinish, minor, missing);
    updateTotalWidth();
    updateTaskPoint();
}

void KWTaskCollection::firstOpenFitWidth()
{
    if (!m_document || !m_document->AutoZoom)
        return;
    const worktime::WorkCalendar &calendar = m_document->workCalendar();
    const Span span = taskSpan();
    timescale::Zoom zoom = zoomOf(*m_document);
    const bool isNewRange = span.start != m_minDateStart || span.finish != m_maxDateFinish;
    if (isNewRange)
        zoom = timescale::chosen(calendar.clock(), zoom, span.start, span.finish);
    zoom = timescale::narrowed(calendar, zoom, span.start, span.finish, UnitUtil::dpiScale96());

    const timescale::Zoom before = zoomOf(*m_document);
    if (zoom.majorUnit != before.majorUnit || zoom.storedMinor != before.storedMinor ||
        zoom.unitWidth != before.unitWidth)
        m_document->setModified(true);
    m_document->MajorUnit = zoom.majorUnit;
    m_document->MinorUnit = zoom.storedMinor;
    m_document->UnitWidth = zoom.unitWidth;
    updateRageAndTaskPoint();
}

// ---- Bars -------------------------------------------------------------------------------------------------

void KWTaskCollection::updateTaskPoint()
{
    const ChangeWatch watch(m_document);
    if (!m_document)
        return;
    const timescale::Scale scale = this->scale();
    const std::vector<double> rowYs = m_document->rowYs(true);
    const QList<KWTaskInfo *> &tasks = m_document->taskList(); // no index is needed
    for (int pos = 0; pos < tasks.size(); ++pos) {
        fetchTaskAhead(tasks, pos + tasksAhead);
        TaskRecord &task = *tasks[pos];
        if (task.HideID == 0) {
            scale.placeBar(task);
            task.y1 = task.y2 = timescale::wholePixels(rowYs[std::size_t(pos)]);
        }
        // As updateAllTaskFirstWidth, without a second walk over the tasks.
        task.FirstWidth = scale.finishedWidth(task);
    }
}

void KWTaskCollection::updateRageAndTaskPoint()
{
    updateRange();
    updateTotalWidth();
    updateTaskPoint();
}

void KWTaskCollection::updateTaskCollection()
{
    updateOptionTaskTime();
    updateRageAndTaskPoint();
    firstOpenFitWidth();
}

double KWTaskCollection::getTaskPtBeginX(const KWTaskInfo *task) const
{
    return m_document && task ? scale().point(*task, true) : 0.0;
}

double KWTaskCollection::getTaskPtEndX(const KWTaskInfo *task) const
{
    return m_document && task ? scale().point(*task, false) : 0.0;
}

// ---- Mapping ----------------------------------------------------------------------------------------------

quint32 KWTaskCollection::secsFromPosition(double x) const
{
    return m_document ? scale().secsAt(x) : 0;
}

double KWTaskCollection::positionFromSecs(quint32 secs) const
{
    return m_document ? scale().position(secs) : 0.0;
}

double KWTaskCollection::dayPositionFromSecs(quint32 secs) const
{
    return m_document ? scale().dayPosition(secs) : 0.0;
}

double KWTaskCollection::hourPositionFromSecs(quint32 hourSecs) const
{
    if (!m_document)
        return 0.0;
    const LocalClock::Wall shown = m_document->workCalendar().clock().wall(hourSecs);
    return scale().hourPosition({shown.day, shown.secs});
}

double KWTaskCollection::minutePositionFromSecs(quint32 hourSecs) const
{
    if (!m_document)
        return 0.0;
    const LocalClock::Wall shown = m_document->workCalendar().clock().wall(hourSecs);
    return scale().minutePosition({shown.day, shown.secs});
}
