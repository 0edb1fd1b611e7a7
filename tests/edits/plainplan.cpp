#include "edits/plainplan.h"
#include "edits/plancheck.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "schedule/kwtaskcollection.h"
#include <cmath>
#include <map>
#include <set>

namespace plainplan {

namespace {

class Reader
{
public:
    explicit Reader(KWDocument &document)
        : m_document(document)
    {
        for (KWTaskInfo *task : document.taskList())
            m_finish = isDated(*task) ? std::max(m_finish, task->Finish) : m_finish;
    }

    std::string run()
    {
        for (const plancheck::Finding &finding : plancheck::check(m_document))
            m_faults += "check: fault " + std::to_string(finding.fault) + " at " +
                        std::to_string(finding.pos) + " with " + std::to_string(finding.other) + "\n";
        std::vector<quint32> inOrder;
        for (const KWTaskInfo *task : m_document.taskList()) {
            if (task->ParentID == 0)
                appendBranch(*task, inOrder);
        }
        for (int pos = 0; pos < m_document.taskCount(); ++pos) {
            const KWTaskInfo &task = *m_document.getTaskInfoAt(pos);
            if (pos >= int(inOrder.size()) || inOrder[std::size_t(pos)] != task.ID)
                fail(task, "stands outside the outline's order");
            checkShown(task);
            checkLinks(task);
            if (task.isParent())
                checkSummary(task);
            else
                checkLeaf(task);
            checkLate(task);
        }
        return m_faults;
    }

private:
    static bool isDated(const KWTaskInfo &task) { return task.Start != 0 && task.Finish != 0; }
    KWTaskInfo *byId(quint32 id) const { return id == 0 ? nullptr : m_document.getTaskInfoByID(id); }
    void fail(const KWTaskInfo &task, const std::string &what)
    {
        m_faults += std::to_string(task.ID) + " \"" + task.Name.toStdString() + "\" " + what + "\n";
    }
    void appendBranch(const KWTaskInfo &task, std::vector<quint32> &ids) const
    {
        ids.push_back(task.ID);
        for (const quint32 id : task.Childs)
            appendBranch(*byId(id), ids);
    }
    void leavesBelow(const KWTaskInfo &task, std::vector<KWTaskInfo *> &leaves) const
    {
        for (const quint32 id : task.Childs) {
            KWTaskInfo *child = byId(id);
            if (child->isParent())
                leavesBelow(*child, leaves);
            else
                leaves.push_back(child);
        }
    }

    void checkShown(const KWTaskInfo &task)
    {
        const KWTaskInfo *hider = byId(task.ParentID);
        while (hider && !hider->IsToggler)
            hider = byId(hider->ParentID);
        if (task.HideID != (hider ? hider->ID.value() : 0))
            fail(task, "is hidden by " + std::to_string(task.HideID));
        if (task.IsToggler && !task.isParent())
            fail(task, "is collapsed and no summary");
        if (task.isParent() && task.font.weight() != QFont::Bold)
            fail(task, "is a summary that is not bold");
    }

    void checkLinks(const KWTaskInfo &task)
    {
        for (const KWTaskInfo *holder = &task; holder; holder = byId(holder->ParentID)) {
            for (const quint32 id : holder->Predecessors) {
                const KWTaskInfo *before = byId(id);
                if (isDated(*before) && isDated(task) && before->Finish > task.Start + 59)
                    fail(task, "starts " + std::to_string(before->Finish - task.Start) +
                                   " s before the finish of " + std::to_string(id));
            }
        }
    }

    template <typename T>
    void same(const KWTaskInfo &task, const char *what, const T &wanted, const T &is)
    {
        if (!(wanted == is))
            fail(task, std::string(what) + " is " + text(is) + ", not " + text(wanted));
    }
    static std::string text(const QString &value) { return value.toStdString(); }
    static std::string text(double value) { return QString::number(value, 'g', 17).toStdString(); }
    static std::string text(quint32 value) { return std::to_string(value); }

    void checkSummary(const KWTaskInfo &task)
    {
        quint32 start = 0;
        quint32 finish = 0;
        double weighted = 0;
        double total = 0;
        for (const quint32 id : task.Childs) {
            const KWTaskInfo *child = byId(id);
            if (isDated(*child)) {
                start = start == 0 ? child->Start : std::min(start, child->Start);
                finish = std::max(finish, child->Finish);
            }
            if (child->Milestone)
                continue;
            const double length = KWTaskInfo::getDurValueByTaskInfo(&m_document, child);
            weighted += length * child->Percent;
            total += length;
        }
        if (start != 0) {
            same(task, "start", start, task.Start);
            same(task, "finish", finish, task.Finish);
        }
        same(task, "percent", weighted > 0 ? weighted / total : 0.0, task.Percent);

        std::vector<KWTaskInfo *> leaves;
        leavesBelow(task, leaves);
        double cost = 0, work = 0, remaining = 0, baseline = 0;
        quint32 baseStart = 0, baseFinish = 0;
        bool hasBaseline = false;
        QStringList names;
        for (const KWTaskInfo *leaf : leaves) {
            cost += leaf->Cost;
            work += leaf->transforHourWork(&m_document, leaf->Work);
            remaining += leaf->isHaveResource() ? leaf->RemainingCost : 0;
            if (leaf->BaseStart != 0)
                baseStart = baseStart == 0 ? leaf->BaseStart : std::min(baseStart, leaf->BaseStart);
            baseFinish = std::max(baseFinish, leaf->BaseFinish);
            hasBaseline = hasBaseline || !leaf->BaselineCost.isEmpty();
            baseline += leaf->BaselineCost.toDouble();
            for (const Resource *assigned : leaf->resourceList) {
                if (!names.contains(assigned->name.trimmed()))
                    names.append(assigned->name.trimmed());
            }
        }
        same(task, "cost", cost, task.Cost);
        same(task, "work", work, task.Work);
        same(task, "remaining cost", remaining, task.RemainingCost);
        same(task, "names", names.join(QLatin1String("; ")), task.Resources);
        same(task, "baseline start", baseStart, task.BaseStart);
        same(task, "baseline finish", baseFinish, task.BaseFinish);
        same(task, "baseline cost", hasBaseline ? QString::number(baseline, 'g', 15) : QString(),
             task.BaselineCost);
        if (task.isHaveResource() || task.Milestone)
            fail(task, "is a summary with assignments or a milestone");
    }

    void checkLeaf(const KWTaskInfo &task)
    {
        double cost = 0, work = 0, fixed = 0;
        QStringList names;
        for (const Resource *assigned : task.resourceList) {
            cost += task.resourceCost(&m_document, assigned);
            work += task.resourceWork(&m_document, assigned);
            fixed += assigned->type == 0 ? assigned->percent * assigned->costPer : assigned->costPer;
            names.append(assigned->name.trimmed());
            if (assigned->type == 0)
                same(task, "work of an assignment", quint32(task.DurationSecs * assigned->percent),
                     assigned->workSecs);
        }
        const double left = task.Percent > 0 ? (cost - fixed) * (1 - task.Percent) : cost;
        same(task, "cost", cost, task.Cost);
        same(task, "work", work, task.Work);
        if (std::abs(left - task.RemainingCost) > 1e-9 * (1 + cost))
            same(task, "remaining cost", left, task.RemainingCost);
        same(task, "names", names.join(QLatin1String("; ")), task.Resources);
        if (isDated(task))
            same(task, "length",
                 KWTaskInfo::durationSecs(&m_document, task.Start, task.Finish, task.DurationUnits),
                 task.DurationSecs);
    }

    // ---- Late dates
    // -------------------------------------------------------------------------------------------------

    unsigned int unit() const { return std::max(4u, m_document.getMinorUnit()); }
    quint32 lengthOf(const KWTaskInfo &task) const
    {
        return KWTaskInfo::durationSecs(&m_document, task.Start, task.Finish, unit());
    }
    // The longest way through what follows the task and the summaries above it; -1: nothing follows.
    qint64 longestAfter(const KWTaskInfo &task)
    {
        const auto known = m_after.find(task.ID);
        if (known != m_after.end())
            return known->second;
        qint64 longest = -1;
        for (const KWTaskInfo *holder = &task; holder; holder = byId(holder->ParentID)) {
            for (const quint32 id : holder->Depends) {
                const KWTaskInfo *next = byId(id);
                if (isDated(*holder) && isDated(*next))
                    longest = std::max(longest, lengthOf(*next) + std::max<qint64>(0, longestAfter(*next)));
            }
        }
        return m_after[task.ID] = longest;
    }
    quint32 beforeFinish(qint64 secs)
    {
        return KWTaskInfo::backwardsDateTime(
            &m_document, m_finish, -KWTaskInfo::getDurationValue(&m_document, quint32(secs), unit()), unit());
    }
    bool isCritical(const KWTaskInfo &task)
    {
        if (isDated(task) && m_document.getDurationValue(task.Finish, lateFinish(task), unit(), true) == 0)
            return true;
        for (const quint32 id : task.Childs) {
            if (isCritical(*byId(id)))
                return true;
        }
        return false;
    }
    quint32 lateFinish(const KWTaskInfo &task)
    {
        const qint64 after = longestAfter(task);
        return after < 0 ? m_finish : beforeFinish(after);
    }

    void checkLate(const KWTaskInfo &task)
    {
        if (!isDated(task)) {
            same(task, "late finish", 0u, task.LateFinish);
            same(task, "slack", QString(), task.EarlySlack + task.LateSlack);
            return;
        }
        const qint64 after = longestAfter(task);
        const bool isLast = after < 0 && task.Finish == m_finish;
        same(task, "late finish", lateFinish(task), task.LateFinish);
        same(task, "late start",
             isLast ? task.Start : beforeFinish(std::max<qint64>(after, 0) + lengthOf(task)), task.LateStart);
        if (isCritical(task) != task.CriticalPath)
            fail(task, task.CriticalPath ? "is shown critical" : "is not shown critical");
    }

    KWDocument &m_document;
    quint32 m_finish = 0;
    std::map<quint32, qint64> m_after;
    std::string m_faults;
};
}

std::string faults(KWDocument &document)
{
    return Reader(document).run();
}
}
