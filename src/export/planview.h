#pragma once
#include "chart/plan.h"
#include "engine/time/timescale.h"
#include "export/exportoptions.h"
#include "export/textshaper.h"
#include "table/customtable.h"
#include <QDateTime>
#include <memory>

class KWDocument;

// A document as the plain values that a chart is laid out from.
//
// Valid while the document does not change.
class PlanView
{
public:
    // The shaper must outlive it; rows may add fonts to it.
    PlanView(KWDocument &document, const KWExportOptions &options, TextShaper &shaper);
    ~PlanView();
    PlanView(const PlanView &) = delete;
    PlanView &operator=(const PlanView &) = delete;

    // Fills the rows first..last and what links lead to and from them; the others are left out.
    void load(int first, int last);
    void loadAll();
    // How much room labels need right of the axis; asks for all rows.
    void makeRoom();

    chart::Plan &plan() { return m_plan; }
    const chart::Plan &plan() const { return m_plan; }
    const KWTaskInfo *task(int row) const;
    QString nameOf(int row) const;
    // Where a moment of the wall clock stands, outside the working hours at the nearer end of its day.
    double positionOf(const QDateTime &moment) const;
    // The row at that height of the picture; clamped to the rows there are.
    int rowAt(double y) const;
    // The part of the axis that the options ask for.
    double from() const { return m_from; }
    double to() const { return m_to; }

private:
    void chooseRows();
    void makeAxis();
    void makeColumns();
    void fitColumns();
    void chooseDates();
    chart::Row rowOf(int row, double top);
    void addLinks(int first, int last);
    int fontFor(const QFont &font, double height);
    int rowOfTask(quint32 id) const; // -1: not drawn
    double rowTop(int row) const;
    double rowHeight(int row) const;
    QString labelOf(int row) const;

    KWDocument &m_document;
    const KWExportOptions &m_options;
    TextShaper &m_shaper;
    chart::Plan m_plan;
    std::unique_ptr<timescale::Scale> m_scale;
    std::unique_ptr<CustomTable> m_table;
    bool m_isFiltered = false;
    std::vector<int> m_rows;    // of the document, those drawn, in their order; when filtered
    std::vector<double> m_tops; // when filtered
    std::vector<std::pair<QFont, int>> m_fonts;
    QFont m_usualFont;
    double m_from = 0;
    double m_to = 0;
};
