// Where the rows stand on the chart, which task is under a point, and which rows a collapsed summary hides.
#include "format/unitutil.h"
#include "model/kwdocument.h"
#include "model/kwdocument_caches.h"
#include "model/kwtaskinfo.h"
#include "table/rowcolumndata.h"
#include <algorithm>

namespace {

// Pixels at 96 dpi.
constexpr double headHeight = 40; // above the first row
constexpr double textHeight = 15; // one line of text
constexpr double barMargin = 2;   // beside a bar that still counts as the bar
constexpr double milestoneWidth = 15;

double firstRowTop()
{
    return headHeight * UnitUtil::dpiScale96();
}

// From a milestone's x1 to its diamond, in pixels at 96 dpi: the middle of a unit, or what fits in it.
double milestoneOffset(int unitWidth)
{
    switch (unitWidth) {
    case 100:
        return 42.5;
    case 60:
        return 22.5;
    case 20:
        return 2.5;
    default:
        return 0;
    }
}

bool isOnBar(const KWTaskInfo &task, double x, int unitWidth)
{
    const double scale = UnitUtil::dpiScale96();
    if (task.Milestone) {
        const double left = task.x1 + milestoneOffset(unitWidth) * scale;
        return x >= left && x <= left + milestoneWidth * scale;
    }
    return x >= task.x1 - barMargin * scale && x <= task.x2 + barMargin * scale;
}
}

KWDocument::Caches &KWDocument::withBottoms() const
{
    Caches &caches = withRows();
    const double scale = UnitUtil::dpiScale96();
    const std::size_t heightCount = m_rowColumnData->rowHeights().size();
    if (caches.bottomsAt != m_hideRevision || caches.bottomsHeightsAt != m_rowColumnData->revision() ||
        caches.bottomsScale != scale) {
        caches.bottoms.clear();
        caches.ascending = true;
        caches.bottomsAt = m_hideRevision;
        caches.bottomsHeightsAt = m_rowColumnData->revision();
        caches.bottomsScale = scale;
    } else if (caches.bottoms.size() > caches.bottomsHeightCount && heightCount > caches.bottomsHeightCount) {
        // Tasks that had no height yet have got one.
        caches.bottoms.resize(caches.bottomsHeightCount);
    }
    caches.bottomsHeightCount = heightCount;

    // Added one by one from the top: bar positions are cut to whole pixels, so another order could move one
    // by a pixel.
    double bottom = caches.bottoms.empty() ? firstRowTop() : caches.bottoms.back();
    for (int pos = int(caches.bottoms.size()); pos < m_tasks.size(); ++pos) {
        const double top = bottom;
        if (caches.isVisible(std::size_t(pos)))
            bottom += m_rowColumnData->getRowHeightByPos(pos, true);
        if (!(bottom >= top))
            caches.ascending = false;
        caches.bottoms.push_back(bottom);
    }
    return caches;
}

double KWDocument::getRowYByPos(int pos, bool centre) const
{
    if (!m_rowColumnData || pos < 0 || m_tasks.isEmpty())
        return firstRowTop();
    const std::vector<double> &bottoms = withBottoms().bottoms;
    const KWTaskInfo *task = getTaskInfoAt(pos);
    const double bottom = task ? bottoms[pos] : bottoms.back();
    if (!centre)
        return bottom;

    double top = bottom;
    double height = 0;
    if (task && task->HideID == 0) {
        top = pos == 0 ? firstRowTop() : bottoms[pos - 1];
        height = m_rowColumnData->getRowHeightByPos(pos, true);
    }
    return top + (height - textHeight * UnitUtil::dpiScale96()) / 2;
}

double KWDocument::getRowYByRow(int row, bool centre) const
{
    return getRowYByPos(getPosByRow(row), centre);
}

std::vector<double> KWDocument::rowYs(bool centre) const
{
    if (!m_rowColumnData || m_tasks.isEmpty())
        return std::vector<double>(std::size_t(m_tasks.size()), firstRowTop());
    const Caches &caches = withBottoms();
    if (!centre)
        return caches.bottoms;
    // Whether a task is hidden is read off the row numbers: the tasks themselves are spread over the memory.
    const double textHeightHere = textHeight * UnitUtil::dpiScale96();
    std::vector<double> ys(caches.bottoms.size());
    double top = firstRowTop();
    int rowBefore = -1;
    for (std::size_t pos = 0; pos < ys.size(); ++pos) {
        const bool isVisible = caches.rowOfPos[pos] != rowBefore;
        const double height = isVisible ? m_rowColumnData->getRowHeightByPos(int(pos), true) : 0;
        ys[pos] = top + (height - textHeightHere) / 2;
        top = caches.bottoms[pos];
        rowBefore = caches.rowOfPos[pos];
    }
    return ys;
}

int KWDocument::getRowByPtY(double y, bool clampToLast) const
{
    if (!m_rowColumnData || m_tasks.isEmpty())
        return -1;
    const Caches &caches = withBottoms();
    const std::vector<double> &bottoms = caches.bottoms;
    if (caches.ascending) {
        const auto bottom = std::lower_bound(bottoms.begin(), bottoms.end(), y);
        if (bottom != bottoms.end() && y > firstRowTop())
            return caches.rowOfPos[bottom - bottoms.begin()];
    } else {
        double top = firstRowTop();
        for (int row = 0; row < int(caches.posOfRow.size()); ++row) {
            const double bottom = bottoms[caches.posOfRow[row]];
            if (top < y && y <= bottom)
                return row;
            top = bottom;
        }
    }
    return clampToLast && y > bottoms.back() ? m_rowColumnData->rowCount() - 1 : -1;
}

KWTaskInfo *KWDocument::getTaskInfoByToScenePoint(const QPointF &point, bool onBar) const
{
    KWTaskInfo *task = getTaskInfoByRow(getRowByPtY(point.y(), false));
    return task && (!onBar || isOnBar(*task, point.x(), UnitWidth)) ? task : nullptr;
}

bool KWDocument::expandTaskInfo(KWTaskInfo *task)
{
    if (!task || !task->IsToggler)
        return false;
    task->IsToggler = false;
    setModified(true);
    constexpr bool hide = false;
    return task->recurveShowOrHide(this, task, task, hide);
}

bool KWDocument::collapseTaskInfo(KWTaskInfo *task)
{
    if (!task || task->IsToggler)
        return false;
    task->IsToggler = true;
    setModified(true);
    constexpr bool hide = true;
    return task->recurveShowOrHide(this, task, task, hide);
}
