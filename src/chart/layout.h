#pragma once
#include "chart/axis.h"
#include "chart/mark.h"
#include "chart/plan.h"
#include <utility>
#include <vector>

// From a plan to the marks of its visible part.
namespace chart {

// Where a row's label stands; no width: nowhere.
struct LabelBox
{
    double x = 0;
    double width = 0;
    bool isSet() const { return width > 0; }
};

// Remembers what several calls for the same plan need: where labels stand and how links run. Both depend on
// the plan alone, so a part looks the same whatever else is visible. The plan must outlive it.
class Layout
{
public:
    explicit Layout(const Plan &plan);
    Layout(const Layout &) = delete;
    Layout &operator=(const Layout &) = delete;

    // The chart of rows first..last between x0 and x1, and its head.
    Marks body(int first, int last, double x0, double x1) const;
    Marks head(double x0, double x1) const;
    // The columns one beside the other from `left` on, and their titles.
    Marks table(int first, int last, const std::vector<int> &columns, double left) const;
    Marks tableHead(const std::vector<int> &columns, double left) const;

    QRectF barRect(int row) const; // of a milestone its diamond
    LabelBox label(int row) const;
    QString labelText(int row) const; // as it is drawn
    // The corners of plan.links[link]; two lines where it is too long to be drawn: the second one begins
    // behind an empty place. Empty when neither end is at hand.
    struct Route
    {
        QVector<QPointF> line;
        QVector<QPointF> arrival; // of a link too long to be drawn: its end
    };
    const Route &route(int link) const;
    const Plan &plan() const { return m_plan; }

private:
    struct Interval
    {
        double from;
        double to;
    };
    void addBar(Marks &low, Marks &marks, int row) const;
    void addLabel(Marks &marks, int row) const;
    void addLinks(Marks &marks, int first, int last, double x0, double x1) const;
    // What of a row a link must not run through.
    struct Obstacles
    {
        bool isKnown = false;
        bool hasLabel = false;
        Interval bar{0, 0};
        Interval label{0, 0};
    };
    const Obstacles &obstacles(int row) const;
    bool isFree(double x, int first, int last) const;
    double nearestFree(double x, bool toTheRight, int first, int last) const;
    double freeX(double wanted, double other, int first, int last) const;
    void routeFrom(int group) const;
    Route routed(const Link &link, double &trunk, int &trunkEnd) const;
    LabelBox placed(int row) const;
    QPointF outOf(int row) const;
    std::pair<double, double> sheetAt(double x) const; // left and right edge

    const Plan &m_plan;
    Head m_head;
    int m_longestRun;
    std::vector<int> m_order;  // links by predecessor, the nearest successor first
    std::vector<int> m_groups; // where each predecessor begins in m_order, and the end
    std::vector<int> m_groupOfLink;
    std::vector<std::vector<int>> m_linksOfBand; // by rows / bandRows, from the first row at hand
    mutable std::vector<Route> m_routes;
    mutable std::vector<bool> m_isRouted; // by group
    mutable std::vector<LabelBox> m_labels;
    mutable std::vector<bool> m_isPlaced;
    mutable std::vector<Obstacles> m_obstacles;
};

// All of the above for a part of the picture: the table too when x0 lies left of the chart.
Marks marks(const Plan &plan, int first, int last, double x0, double x1);

// What a plan's picture holds, for its legend.
struct Used
{
    bool done = false;
    bool toDo = false;
    bool critical = false;
    bool slack = false;
    bool baseline = false;
    bool summary = false;
    bool milestone = false;
    bool link = false;
    bool dayOff = false;
    bool today = false;
};
Used usedIn(const Plan &plan);
// One line, or several where `width` is narrow, from (left, top) on. `height` becomes what they take.
Marks legend(const Plan &plan, const Used &used, double left, double top, double width, double *height);
}
