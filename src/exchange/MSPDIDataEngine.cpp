#include "exchange/MSPDIDataEngine.h"
#include "edits/settle.h"
#include "engine/time/shownmoment.h"
#include "exchange/mspdi/planreader.h"
#include "exchange/mspdi/planwriter.h"
#include "exchange/mspdi/recordreader.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/atomicfile.h"
#include "support/kwlimits.h"
#include "support/longwork.h"
#include "support/said.h"
#include <QFile>
#include <QFileInfo>
#include <cmath>
#include <vector>

namespace {

constexpr double hundredths = 100;

// All bytes of a file that is no longer than the limit.
bool readAll(const QString &path, QByteArray &bytes, QString &error)
{
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        error = KW_TEXT("there is no such file");
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    if (file.size() > mspdi::maxFileBytes) {
        error = KW_TEXT("it is longer than %1 MB").arg(mspdi::maxFileBytes >> 20);
        return false;
    }
    bytes = file.read(mspdi::maxFileBytes);
    if (file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return false;
    }
    return true;
}

QString placeOf(const KWTaskInfo &task, int pos)
{
    return KW_TEXT("task %1 \"%2\"").arg(pos + 1).arg(task.Name.simplified());
}

// What staged plans have no word for.
void keepMarks(KWDocument &document, const mspdi::PlanOfFile &plan)
{
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        KWTaskInfo &task = *document.getTaskInfoAt(pos);
        const mspdi::PlanOfFile::Kept &kept = plan.kept[std::size_t(pos)];
        task.Milestone = kept.isMilestone;
        if (kept.isInactive)
            task.font.setStrikeOut(true);
    }
}

// Summaries follow their subtasks; where the file has other dates or another progress for them, that is told.
void followSubtasks(KWDocument &document, const mspdi::PlanOfFile &plan, mspdi::FindingList &findings)
{
    using mspdi::Kind;
    struct Span
    {
        quint32 start;
        quint32 finish;
    };
    std::vector<Span> before;
    before.reserve(std::size_t(document.taskCount()));
    for (const KWTaskInfo *task : document.taskList())
        before.push_back({task->Start, task->Finish});
    const LongWork toTheEnd; // the plan has been replaced already
    settling::settle(document, {settling::AsItStands, {}, {}});
    const worktime::WorkCalendar &calendar = document.workCalendar();
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        const KWTaskInfo &task = *document.getTaskInfoAt(pos);
        const Span &span = before[std::size_t(pos)];
        if (task.isParent() && (!shownmoment::isSame(calendar, span.start, task.Start) ||
                                !shownmoment::isSame(calendar, span.finish, task.Finish)))
            findings.add(Kind::SummaryDates, placeOf(task, pos));
        constexpr double whole = 100;
        constexpr double rounding = 1.01; // the file has whole numbers, cut or rounded
        const std::optional<int> &given = plan.kept[std::size_t(pos)].percent;
        if (task.isParent() && given && std::abs(task.Percent * whole - *given) > rounding)
            findings.add(Kind::SummaryPercent, placeOf(task, pos));
    }
}

// Amounts are rounded one by one in the file.
bool isSameMoney(double a, double b, std::size_t amounts)
{
    constexpr double cent = 0.01;
    constexpr double share = 1e-6;
    return std::abs(a - b) <= cent * double(amounts + 1) + share * std::max(std::abs(a), std::abs(b));
}
}

MSPDIDataEngine::MSPDIDataEngine(KWDocument *document)
    : m_document(document)
{
}

bool MSPDIDataEngine::fail(const QString &path, const QString &what, const QString &hint)
{
    m_findings.add(path, what, hint);
    return false;
}

bool MSPDIDataEngine::isProjectFile(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
           mspdi::isProject(file.read(mspdi::beginningBytes));
}

bool MSPDIDataEngine::importFile(const QString &path)
{
    m_findings.clear();
    QByteArray bytes;
    QString error;
    if (!readAll(path, bytes, error))
        return fail(path, error, KW_TEXT("nothing imported"));
    return importBytes(bytes, path);
}

bool MSPDIDataEngine::importBytes(const QByteArray &bytes, const QString &place)
{
    m_findings.clear();
    m_projectName.clear();
    m_projectStart = 0;
    m_customValues = 0;
    QString error;
    mspdi::File file;
    if (!m_document)
        return fail(place, QStringLiteral("there is no document"));
    if (!mspdi::readFile(bytes, file, error))
        return fail(place, error, KW_TEXT("nothing imported"));
    mspdi::FindingList list;
    mspdi::PlanOfFile plan = mspdi::toPlan(file, list);
    m_customValues = file.customValues;
    m_projectName = plan.name;
    file = mspdi::File();

    planimport::Rules rules;
    rules.placesBehind = false;
    rules.place = QStringLiteral("task");
    rules.assignmentPlace = QStringLiteral("assignment");
    const std::size_t amounts = plan.plan.assignments.size();
    Findings ofPlan;
    const bool hasStart = plan.plan.start.isGiven();
    const ImportedPlan imported = planimport::replace(*m_document, plan.plan, rules, &ofPlan);
    if (hasStart)
        m_projectStart = imported.start;
    keepMarks(*m_document, plan);
    followSubtasks(*m_document, plan, list);

    list.tell(m_findings);
    const double ours = m_document->getToltalCost();
    if (plan.cost && !isSameMoney(*plan.cost / hundredths, ours, amounts))
        m_findings.add(QString(),
                       KW_TEXT("the file's costs of %1 are %2 here")
                           .arg(*plan.cost / hundredths, 0, 'f', 2)
                           .arg(ours, 0, 'f', 2),
                       KW_TEXT("fixed costs, overtime and rates that change are not counted"));
    for (const Finding &finding : ofPlan.list())
        m_findings.add(finding.place, finding.what, finding.hint);
    return true;
}

bool MSPDIDataEngine::exportFile(const QString &path)
{
    m_findings.clear();
    if (!m_document)
        return fail(path, QStringLiteral("there is no document"));
    mspdi::Heading heading{m_projectName, m_projectStart, m_evenings};
    if (heading.name.isEmpty())
        heading.name = QFileInfo(path).completeBaseName();
    mspdi::FindingList list;
    QString error;
    const auto write = [&](QIODevice &device) { return mspdi::write(device, *m_document, heading, list); };
    if (!atomicfile::replace(path, write, &error))
        return fail(path, KW_TEXT("cannot be written: %1").arg(error));
    list.tell(m_findings);
    return true;
}

bool MSPDIDataEngine::exportTo(QIODevice &device)
{
    m_findings.clear();
    mspdi::FindingList list;
    const bool isWritten =
        m_document && mspdi::write(device, *m_document, {m_projectName, m_projectStart, m_evenings}, list);
    list.tell(m_findings);
    return isWritten;
}
