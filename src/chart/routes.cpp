// How links run: along the gutters between the rows, through no bar and no label.
#include "chart/layout.h"
#include <algorithm>
#include <cmath>
#include <numeric>

namespace chart {

namespace {

// Pixels.
constexpr double stub = 6;      // out of a bar's end
constexpr double approach = 8;  // before a bar's begin
constexpr double clearance = 2; // between a line and what it passes
constexpr double shortEnd = 9;  // of a link that is not drawn in full

constexpr int bandRows = 64;
// Rows that a link may run over; fewer where all links together would take too long to lay out.
constexpr int longestRuns[] = {2000, 400, 80, 16};
constexpr qint64 mostRowsOfAllRuns = 20000000;

QVector<QPointF> withoutRepeats(const QVector<QPointF> &corners)
{
    QVector<QPointF> line;
    for (const QPointF &corner : corners) {
        if (!line.isEmpty() && line.last() == corner)
            continue;
        // Three on one line are two, unless the line turns back.
        const int count = line.size();
        if (count >= 2) {
            const QPointF &a = line[count - 2], &b = line[count - 1];
            const bool goesOn =
                (a.x() == b.x() && b.x() == corner.x() && (b.y() - a.y()) * (corner.y() - b.y()) > 0) ||
                (a.y() == b.y() && b.y() == corner.y() && (b.x() - a.x()) * (corner.x() - b.x()) > 0);
            if (goesOn) {
                line[count - 1] = corner;
                continue;
            }
        }
        line.append(corner);
    }
    return line;
}
}

Layout::Layout(const Plan &plan)
    : m_plan(plan)
    , m_head(headOf(plan))
    , m_longestRun(longestRuns[0])
    , m_order(plan.links.size())
    , m_groupOfLink(plan.links.size())
    , m_routes(plan.links.size())
    , m_labels(plan.rows.size())
    , m_isPlaced(plan.rows.size(), false)
    , m_obstacles(plan.rows.size())
{
    const std::vector<Link> &links = plan.links;
    const auto run = [&](int link) {
        return std::abs(links[std::size_t(link)].to - links[std::size_t(link)].from);
    };
    for (const int longest : longestRuns) {
        m_longestRun = longest;
        qint64 rows = 0;
        for (int link = 0; link < int(links.size()); ++link)
            rows += run(link) <= longest ? run(link) : 0;
        if (rows <= mostRowsOfAllRuns)
            break;
    }
    std::iota(m_order.begin(), m_order.end(), 0);
    std::sort(m_order.begin(), m_order.end(), [&](int a, int b) {
        const Link &one = links[std::size_t(a)], &other = links[std::size_t(b)];
        if (one.from != other.from)
            return one.from < other.from;
        return run(a) != run(b) ? run(a) < run(b) : one.to < other.to;
    });
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        const std::size_t link = std::size_t(m_order[i]);
        if (i == 0 || links[link].from != links[std::size_t(m_order[i - 1])].from)
            m_groups.push_back(int(i));
        m_groupOfLink[link] = int(m_groups.size()) - 1;
    }
    m_isRouted.resize(m_groups.size(), false);
    m_groups.push_back(int(m_order.size()));

    const int bands = int(plan.rows.size()) / bandRows + 1;
    m_linksOfBand.resize(std::size_t(bands));
    const auto bandOf = [&](int row) { return std::clamp((row - plan.firstRow) / bandRows, 0, bands - 1); };
    for (const int link : m_order) {
        const auto [low, high] = std::minmax(links[std::size_t(link)].from, links[std::size_t(link)].to);
        const int first = bandOf(low), last = bandOf(high);
        if (run(link) > m_longestRun) { // only its ends are drawn
            m_linksOfBand[std::size_t(first)].push_back(link);
            if (last != first)
                m_linksOfBand[std::size_t(last)].push_back(link);
            continue;
        }
        for (int band = first; band <= last; ++band)
            m_linksOfBand[std::size_t(band)].push_back(link);
    }
}

const Layout::Obstacles &Layout::obstacles(int row) const
{
    Obstacles &its = m_obstacles[std::size_t(row - m_plan.firstRow)];
    if (!its.isKnown) {
        const QRectF bar = barRect(row);
        const LabelBox box = label(row);
        its.bar = {bar.left() - clearance, bar.right() + clearance};
        its.label = {box.x - clearance, box.x + box.width + clearance};
        its.hasLabel = box.isSet();
        its.isKnown = true;
    }
    return its;
}

bool Layout::isFree(double x, int first, int last) const
{
    for (int row = first; row <= last; ++row) {
        const Obstacles &its = obstacles(row);
        if ((x > its.bar.from && x < its.bar.to) || (its.hasLabel && x > its.label.from && x < its.label.to))
            return false;
    }
    return true;
}

// The nearest free place at x or to one side of it: pushed out of what is in the way until nothing is. Each
// round looks at all rows once. The bars of a plan mostly stand one behind the other, so few rounds do, and
// sorting them for each link would take longer; only where they do not, they are sorted.
double Layout::nearestFree(double x, bool toTheRight, int first, int last) const
{
    constexpr int mostRounds = 12;
    // The left side is the right one in a mirror.
    const auto mirrored = [toTheRight](const Interval &its) {
        return toTheRight ? its : Interval{-its.to, -its.from};
    };
    double at = toTheRight ? x : -x;
    const auto push = [&](const Interval &its) {
        const Interval taken = mirrored(its);
        if (!(at > taken.from && at < taken.to))
            return false;
        at = taken.to;
        return true;
    };
    bool isPushed = true;
    for (int round = 0; isPushed && round < mostRounds; ++round) {
        isPushed = false;
        for (int i = first; i <= last; ++i) {
            const Obstacles &its = obstacles(round % 2 == 0 ? i : first + last - i);
            isPushed |= push(its.bar);
            isPushed |= its.hasLabel && push(its.label);
        }
    }
    if (isPushed) {
        std::vector<Interval> taken;
        for (int row = first; row <= last; ++row) {
            const Obstacles &its = obstacles(row);
            taken.push_back(mirrored(its.bar));
            if (its.hasLabel)
                taken.push_back(mirrored(its.label));
        }
        std::sort(taken.begin(), taken.end(),
                  [](const Interval &a, const Interval &b) { return a.from < b.from; });
        for (const Interval &each : taken)
            if (at > each.from && at < each.to)
                at = each.to;
    }
    return toTheRight ? at : -at;
}

// The first free of: the two places, one between them, the one with the shortest way from both. Where there
// is none, the wanted place.
double Layout::freeX(double wanted, double other, int first, int last) const
{
    if (isFree(wanted, first, last))
        return wanted;
    if (isFree(other, first, last))
        return other;
    const double low = std::min(wanted, other), high = std::max(wanted, other);
    const double leftmost = 1, rightmost = m_plan.width() - 1;
    const double right = nearestFree(low, true, first, last);
    if (right <= high && right >= leftmost && right <= rightmost)
        return right;
    const double left = nearestFree(low, false, first, last);
    const bool hasLeft = left >= leftmost && left <= rightmost,
               hasRight = right >= leftmost && right <= rightmost;
    if (hasLeft && (!hasRight || low - left <= right - high))
        return left;
    return hasRight ? right : wanted;
}

QPointF Layout::outOf(int row) const
{
    const QRectF bar = barRect(row);
    return QPointF(bar.right(), bar.center().y());
}

// `trunk` is where the links of this predecessor already run down (or up), free as far as row `trunkEnd`.
Layout::Route Layout::routed(const Link &link, double &trunk, int &trunkEnd) const
{
    Route route;
    const bool hasFrom = m_plan.has(link.from), hasTo = m_plan.has(link.to);
    const bool goesDown = link.to > link.from;
    const bool isWhole = hasFrom && hasTo && std::abs(link.to - link.from) <= m_longestRun;

    QVector<QPointF> out;
    double outX = 0, outGutter = 0;
    if (hasFrom) {
        const Row &row = m_plan.at(link.from);
        const QPointF start = outOf(link.from);
        outX = start.x() + stub;
        outGutter = goesDown ? row.bottom() : row.top;
        out = {start, QPointF(outX, start.y()), QPointF(outX, outGutter)};
    }
    QVector<QPointF> in;
    double inX = 0, inGutter = 0;
    bool entersFromAbove = goesDown;
    if (hasTo) {
        const Row &row = m_plan.at(link.to);
        const QRectF bar = barRect(link.to);
        if (row.kind == RowKind::Milestone) {
            entersFromAbove = true;
            inX = bar.center().x();
            inGutter = row.top;
            in = {QPointF(inX, inGutter), QPointF(inX, bar.top())};
        } else {
            inX = std::max(1.0, bar.left() - approach);
            inGutter = entersFromAbove ? row.top : row.bottom();
            in = {QPointF(inX, inGutter), QPointF(inX, bar.center().y()),
                  QPointF(bar.left(), bar.center().y())};
        }
    }
    if (!isWhole) {
        // An arrow says where it goes on.
        if (hasFrom)
            route.line = out << QPointF(outX, outGutter + (goesDown ? shortEnd : -shortEnd));
        if (hasTo) {
            in.prepend(QPointF(inX, inGutter + (entersFromAbove ? -shortEnd : shortEnd)));
            route.arrival = withoutRepeats(in);
        }
        route.line = withoutRepeats(route.line);
        return route;
    }
    // The rows that the vertical line passes from gutter to gutter.
    const int first = goesDown ? link.from + 1 : entersFromAbove ? link.to : link.to + 1;
    const int last = goesDown ? link.to - 1 : link.from - 1;
    QVector<QPointF> corners = out;
    if (first <= last) {
        const int newFirst = goesDown ? std::max(first, trunkEnd + 1) : first;
        const int newLast = goesDown ? last : std::min(last, trunkEnd - 1);
        const bool sharesTrunk = trunk < nowhere && (newFirst > newLast || isFree(trunk, newFirst, newLast));
        if (!sharesTrunk)
            trunk = freeX(inX, outX, first, last);
        trunkEnd = goesDown ? last : first;
        corners << QPointF(trunk, outGutter) << QPointF(trunk, inGutter);
    }
    corners += in;
    route.line = withoutRepeats(corners);
    return route;
}

void Layout::routeFrom(int group) const
{
    const Link &any = m_plan.links[std::size_t(m_order[std::size_t(m_groups[std::size_t(group)])])];
    double down = nowhere, up = nowhere;
    int downEnd = any.from, upEnd = any.from;
    for (int i = m_groups[std::size_t(group)]; i < m_groups[std::size_t(group) + 1]; ++i) {
        const int number = m_order[std::size_t(i)];
        const Link &link = m_plan.links[std::size_t(number)];
        const bool goesDown = link.to > link.from;
        m_routes[std::size_t(number)] = goesDown ? routed(link, down, downEnd) : routed(link, up, upEnd);
    }
    m_isRouted[std::size_t(group)] = true;
}

const Layout::Route &Layout::route(int link) const
{
    const int group = m_groupOfLink[std::size_t(link)];
    if (!m_isRouted[std::size_t(group)])
        routeFrom(group);
    return m_routes[std::size_t(link)];
}

void Layout::addLinks(Marks &marks, int first, int last, double x0, double x1) const
{
    if (m_plan.links.empty())
        return;
    const double top = m_plan.at(first).top, bottom = m_plan.at(last).bottom();
    const int firstBand = (first - m_plan.firstRow) / bandRows,
              lastBand = (last - m_plan.firstRow) / bandRows;
    std::vector<int> found;
    for (int band = firstBand; band <= lastBand; ++band) {
        for (const int number : m_linksOfBand[std::size_t(band)]) {
            const Link &link = m_plan.links[std::size_t(number)];
            // A stub or the way into a milestone may reach into a neighbouring row.
            constexpr int reach = 1;
            if (std::min(link.from, link.to) - reach <= last && std::max(link.from, link.to) + reach >= first)
                found.push_back(number);
        }
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());

    const auto add = [&](const QVector<QPointF> &corners, const Link &link) {
        if (corners.size() < 2)
            return;
        double left = nowhere, right = -nowhere, high = nowhere, low = -nowhere;
        for (const QPointF &corner : corners) {
            left = std::min(left, corner.x());
            right = std::max(right, corner.x());
            high = std::min(high, corner.y());
            low = std::max(low, corner.y());
        }
        if (right < x0 || left > x1 || low < top || high > bottom)
            return;
        Mark mark;
        mark.kind = Kind::Link;
        mark.shape = Shape::Line;
        mark.style = link.isCritical ? Style::CriticalLink : Style::Link;
        mark.task = m_plan.has(link.to) ? m_plan.at(link.to).id : 0;
        mark.points = corners;
        mark.rect = QRectF(QPointF(left, high), QPointF(right, low));
        if (link.isHighlighted) {
            Mark halo = mark;
            halo.kind = Kind::Highlight;
            halo.style = Style::ActiveHalo;
            marks.push_back(std::move(halo));
        }
        marks.push_back(std::move(mark));
    };
    // What matters more is drawn later.
    for (int importance = 0; importance < 3; ++importance) {
        for (const int number : found) {
            const Link &link = m_plan.links[std::size_t(number)];
            if ((link.isHighlighted ? 2 : link.isCritical ? 1 : 0) != importance)
                continue;
            const Route &its = route(number);
            add(its.line, link);
            add(its.arrival, link);
        }
    }
}
}
