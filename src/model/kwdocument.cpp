// The document: construction, the task list and the file names.
#include "model/kwdocument.h"
#include "kwfilepathmanager.h"
#include "model/calendarhold.h"
#include "model/kwdocument_caches.h"
#include "model/kwtaskinfo.h"
#include "model/worktimesource.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include "table/rowcolumndata.h"
#include <QFile>
#include <QFileInfo>
#include <QUuid>

KWConfig KWDocument::s_config;
bool KWDocument::s_isOldVersion = false;
QString KWDocument::s_mediaPath;
QDomElement KWDocument::s_relsNode;

KWDocument::KWDocument()
    : DocGuid(QUuid::createUuid().toString())
    , workTimes{new KWDayTime(28800, 43200), new KWDayTime(46800, 61200)}
    , m_taskCollection(nullptr)
    , m_resourceInfoData(nullptr)
    , m_rowColumnData(nullptr)
    , m_caches(std::make_unique<Caches>())
{
    m_actions.setDocument(this);
    m_clipboard.setDocument(this);
    m_taskCollection = new KWTaskCollection(this);
    m_resourceInfoData = new ResourceInfoData(this);
    m_rowColumnData = new RowColumnData(this);
    initThemeColor();
    m_modified = false; // the columns are there from the beginning
}

KWDocument::~KWDocument()
{
    delete m_taskCollection;
    m_taskCollection = nullptr;
    delete m_resourceInfoData;
    m_resourceInfoData = nullptr;
    delete m_rowColumnData;
    m_rowColumnData = nullptr;
    clearTaskInfoList();
    clearCalendar();
    qDeleteAll(workTimes);
    m_themeColors.clear();
    // Kept on purpose: autosave writes the same name with another extension, and that file stays.
    if (!m_backupName.isEmpty()) {
        QFile::remove(KWFilePathManager::configDir(QStringLiteral("autosave")) + QLatin1Char('/') +
                      m_backupName + QLatin1String(".hbnx"));
    }
}

void KWDocument::clearCalendar()
{
    if (!calendars.isEmpty())
        setModified(true);
    qDeleteAll(calendars);
    calendars.clear();
}

const worktime::WorkCalendar &KWDocument::workCalendar() const
{
    if (const worktime::WorkCalendar *const held = CalendarHold::of(*this))
        return *held;
    return m_caches->calendar.get(worktimeSource(*this));
}

// ---- The task list ----------------------------------------------------------------------------------------

void KWDocument::listChanged()
{
    ++m_idRevision;
    ++m_hideRevision;
    setModified(true);
}

void KWDocument::join(KWTaskInfo *task)
{
    ++task->m_places;
}

// The caller has taken the task out of one place of the list.
void KWDocument::leave(KWTaskInfo *task, bool destroy)
{
    if (--task->m_places > 0)
        return;
    if (m_taskCollection)
        m_taskCollection->forgetTask(task);
    task->ID.attach(nullptr);
    task->HideID.attach(nullptr);
    if (destroy)
        delete task;
}

void KWDocument::appendTaskInfoList(KWTaskInfo *task)
{
    if (!task)
        return;
    join(task);
    m_tasks.append(task);
    setModified(true);
}

void KWDocument::insertTaskInfoList(int row, KWTaskInfo *task)
{
    if (!task)
        return;
    const int pos = getPosByRow(qMax(row, 0));
    if (pos < 0) {
        appendTaskInfoList(task);
        return;
    }
    join(task);
    m_tasks.insert(pos, task);
    listChanged();
}

void KWDocument::insertTasks(int pos, const QList<KWTaskInfo *> &tasks, const QList<double> &heights)
{
    const int place = qBound(0, pos, m_tasks.size());
    if (m_rowColumnData) {
        m_rowColumnData->setRowHeightCount(m_tasks.size());
        QList<double> rows = heights.mid(0, tasks.size());
        while (rows.size() < tasks.size())
            rows.append(RowColumnData::defaultRowHeight);
        m_rowColumnData->insertRowHeights(place, rows);
    }
    for (KWTaskInfo *task : tasks)
        join(task);
    Caches &caches = *m_caches;
    const bool knowsIds = caches.knowsIds(m_tasks.size(), m_idRevision);
    const bool knowsRows = caches.knowsRows(m_tasks.size(), m_hideRevision);
    m_tasks = m_tasks.mid(0, place) + tasks + m_tasks.mid(place);
    listChanged();
    if (knowsIds)
        caches.insertIds(place, tasks, m_idRevision);
    if (knowsRows)
        caches.insertRows(place, tasks, m_hideRevision);
}

void KWDocument::replaceByID(quint32 id, KWTaskInfo *task)
{
    if (id != 0)
        replaceAt(getPosByID(id), task);
}

void KWDocument::replaceAt(int pos, KWTaskInfo *task)
{
    if (pos < 0 || pos >= m_tasks.size() || !task)
        return;
    KWTaskInfo *replaced = m_tasks[pos];
    join(task);
    m_tasks[pos] = task;
    listChanged();
    leave(replaced, false);
}

void KWDocument::removeAt(int pos)
{
    if (m_rowColumnData)
        m_rowColumnData->removeRowHeightAt(pos);
    KWTaskInfo *task = m_tasks.takeAt(pos);
    listChanged();
    leave(task, true);
}

void KWDocument::removeTaskInfoByID(quint32 id)
{
    for (int pos = m_tasks.size() - 1; pos >= 0; --pos) {
        if (m_tasks[pos]->ID == id) {
            removeAt(pos);
            return;
        }
    }
}

void KWDocument::removeTaskInfoAt(int row)
{
    const int pos = getPosByRow(row);
    if (pos >= 0)
        removeAt(pos);
}

void KWDocument::clearTaskInfoList()
{
    // First, while the tasks that it marks are still there.
    if (m_taskCollection && m_taskCollection->getTaskInfoActive())
        m_taskCollection->forgetTask(m_taskCollection->getTaskInfoActive());
    QList<KWTaskInfo *> leaving;
    leaving.swap(m_tasks);
    listChanged();
    while (!leaving.isEmpty())
        leave(leaving.takeLast(), true);
}

void KWDocument::replaceTaskInfoList(const QList<KWTaskInfo *> &tasks)
{
    for (KWTaskInfo *task : tasks)
        join(task);
    const QList<KWTaskInfo *> replaced = m_tasks;
    m_tasks = tasks;
    listChanged();
    constexpr bool destroy = true;
    for (KWTaskInfo *task : replaced)
        leave(task, destroy);
}

// ---- Files ------------------------------------------------------------------------------------------------

void KWDocument::setFilePath(const QString &path, const QString &secondPath)
{
    m_filePath = secondPath.isEmpty() ? path : secondPath;
    m_secondPath = secondPath;
    m_fileName = QFileInfo(m_filePath).completeBaseName();
    makeBackupName();
}

void KWDocument::setFileName(const QString &name)
{
    m_fileName = name;
    if (m_backupName.isEmpty())
        makeBackupName();
}

void KWDocument::makeBackupName()
{
    m_backupName = m_fileName + QLatin1String("_backup_") + KWFilePathManager::shortRandName();
}

QString KWDocument::fileSaveName() const
{
    return QFileInfo(m_filePath).fileName();
}
