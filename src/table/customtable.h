#pragma once
#include "kwgantt_export.h"
#include <QList>
#include <QMap>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

class KWDocument;
class KWTaskInfo;
class ResourceInfo;
namespace celltext {
struct Style;
}
namespace worktime {
class WorkCalendar;
}

// The head of one column. Lengths of a table are pixels at the current screen scale, with the table's left
// edge at 0 and the chart's top at 0, so that rows and bars have one y.
class KWGANTT_EXPORT HeadItem
{
public:
    QString title;
    int type = 0; // column type of a task's field, key of a resource's
    double x = 0; // left edge
    double width = 0;
    bool isRightAligned = false; // numbers
    double right() const { return x + width; }
};

// One cell.
class KWGANTT_EXPORT Cell
{
public:
    enum Fold { NoFold, Open, Folded };

    QString text;
    QRectF rect;
    int type = 0; // of its column
    bool isRightAligned = false;
    bool isMuted = false; // nothing worth a look: no percent
    bool isBold = false;  // a summary's
    // Of the column with the names: where the text begins behind the cell's edge, and the mark of a summary.
    double indent = 0;
    Fold fold = NoFold;
};

// Where a row stands.
struct RowPlace
{
    int row = -1; // of tasks as RowColumnData counts them, of resources the place in the sheet
    double top = 0;
    double bottom = 0;
    double height() const { return bottom - top; }
};

// One row of the table of tasks.
class KWGANTT_EXPORT TableRow : public RowPlace
{
public:
    const KWTaskInfo *task = nullptr; // the document's
};

// One row of the table of resources.
class KWGANTT_EXPORT ResourceTableRow : public RowPlace
{
public:
    const ResourceInfo *resource = nullptr; // the document's
};

// The geometry of a table as exports draw it: what is where, and what stands in it.
//
// Heads, rows and cells are made when asked for; a table of any length costs as much as its columns. It takes
// the columns and the working time as they are when it is made: make a new one after the document has
// changed.
class KWGANTT_EXPORT CustomTable
{
public:
    enum Kind { Tasks, Resources };
    static constexpr double headHeight = 40;     // pixels at 96 dpi
    static constexpr double resourceHeight = 30; // of a row of the table of resources
    static constexpr double indentWidth = 16;    // for each level of the outline
    static constexpr int maxIndentLevels = 8;    // deeper tasks stand no further in
    static constexpr double foldMarkWidth = 12;  // before the name of every task
    static constexpr double minimumWidth = 8;    // of a column; a file may have any

    // Of tasks, with the columns that the document shows. Empty without a document, as are the others.
    explicit CustomTable(KWDocument *document);
    // Of tasks, with columns of these types, whether the document shows them or not. Types that there are not
    // are left out.
    CustomTable(KWDocument *document, const std::vector<int> &columnTypes);
    // Of resources, with a column for each title; their keys are those of ExcelTitles::s_resourcNames.
    CustomTable(KWDocument *document, const QMap<int, QString> &titles);
    ~CustomTable();
    CustomTable(const CustomTable &) = delete;
    CustomTable &operator=(const CustomTable &) = delete;

    Kind kind() const { return m_kind; }

    // ---- Columns ------------------------------------------------------------------------------------------
    int columnCount() const { return int(m_heads.size()); }
    const std::vector<HeadItem> &heads() const { return m_heads; }
    // A title as it is drawn, in charts and exports too; a host may fill in those of another language, by the
    // titles that files have. The others are drawn as they are.
    static QString shownTitle(const QString &title) { return s_shownTitles.value(title, title); }
    static QMap<QString, QString> s_shownTitles;
    QString shownTitleOf(int column) const; // of a column that there is
    // Whether tasks are named by their places in the plan, from 1, also those that are folded away, in place
    // of IDs and of tags in the columns of IDs and of predecessors.
    bool countsTasks() const { return m_countsTasks; }
    void setCountsTasks(bool countsTasks) { m_countsTasks = countsTasks; }
    static constexpr const char *placeTitle = "No."; // of the column of IDs then
    static QString placesOf(const KWDocument &document, const QList<quint32> &tasks); // "3; 5"
    double width() const { return m_heads.empty() ? 0 : m_heads.back().right(); }
    int columnAtX(double x) const; // left <= x < right; -1 beside the table

    // ---- Rows ---------------------------------------------------------------------------------------------
    int rowCount() const;
    double headBottom() const; // where the first row begins
    double bottom() const;     // of the last row
    double rowTop(int row) const;
    double rowBottom(int row) const; // as KWDocument::getRowYByRow
    int rowAtY(double y) const;      // top < y <= bottom, as KWDocument::getRowByPtY; -1 outside the rows
    // Of a table of that kind; without a task or resource, and with the row -1, when there is no such row.
    TableRow taskRow(int row) const;
    ResourceTableRow resourceRow(int row) const;

    // ---- Cells --------------------------------------------------------------------------------------------
    // Empty when there is no such row or column. A task's text is that of RowColumnData::itemText.
    Cell cell(int row, int column) const;
    Cell cell(const TableRow &row, int column) const; // quicker for many cells of one row
    Cell cell(const ResourceTableRow &row, int column) const;

private:
    CustomTable(KWDocument *document, Kind kind);
    void addTaskColumn(int type, const QString &title, double width);
    void add(HeadItem head);
    RowPlace placeOf(int row) const;
    Cell emptyCell(const RowPlace &row, int column) const;

    KWDocument *m_document; // not owned; may be null
    Kind m_kind;
    double m_scale;
    bool m_countsTasks = false;
    std::vector<HeadItem> m_heads;
    std::unique_ptr<celltext::Style> m_style;
    const worktime::WorkCalendar *m_calendar = nullptr; // as it stood when the table was made
};
