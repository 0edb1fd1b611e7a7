#pragma once
#include "engine/cost/cost.h"
#include "engine/record/taskindex.h"
#include "engine/text/showndates.h"
#include "exchange/exceltitles.h"
#include <QDateTime>
#include <QHash>
#include <QString>
#include <functional>
#include <vector>

class Findings;
class KWDocument;
class KWTaskInfo;
class Resource;
class ResourceInfo;

// What the three sheets of a workbook hold, row by row; knows no kind of workbook.
namespace planexport {

// How a program is to show the number behind a text.
enum class Value { None, Number, Money, Work, Percent, Moment };

struct Cell
{
    QString text;
    Value value = Value::None;
    // A moment counts days from 30 December 1899, a percentage is a fraction, work counts in hours.
    double number = 0;
};

// As a cell can hold it: without control characters, cut to `maxUnits`, not within a pair. Null stays null.
QString cellText(const QString &text);
constexpr int maxUnits = 32767; // UTF-16

// The field of each title of the workbook: a column type, a key of a resource or of an assignment; -1 for
// none.
std::vector<int> fieldsOf(exceltitles::Sheet sheet);
// What the columns of the workbook's titles show besides texts, one entry for each title of each sheet.
std::vector<Value> valuesOfTitles();

// Takes the rows of one sheet.
class RowSink
{
public:
    virtual ~RowSink() = default;
    // Before the rows: how many there will be, the titles included. Both are 0 for a sheet without titles.
    virtual void begin(int rows, int columns) = 0;
    // Rows come in order, counted from 1, the titles. One cell for each title; `depth` is that of the
    // outline, 0 at the top.
    virtual void row(int row, int depth, const std::vector<Cell> &cells) = 0;
};

// One row of the assignment sheet.
struct Assignment
{
    const KWTaskInfo *task = nullptr;  // of the row: the owner, or a summary above it
    const KWTaskInfo *owner = nullptr; // whose unit the work counts in
    const Resource *resource = nullptr;
};

// The rows of a plan as it is now; valid while it does not change.
class Rows
{
public:
    // Evenings: see ImportedPlan.
    explicit Rows(KWDocument &document, const QHash<quint32, quint32> &evenings = {});

    // Tasks in the order they are written: depth-first along the lists of children.
    const std::vector<const KWTaskInfo *> &tasks() const { return m_tasks; }
    // Below the titles; counting assignments stops at `limit`.
    int count(exceltitles::Sheet sheet, int limit) const;
    // Those that no list of children leads to from the top; they are not written.
    int unreachedTasks() const;
    int deepest() const; // depth of the outline; 0 for a flat one
    // Tasks with assignments whose names others have, too: by name alone nobody can tell them apart.
    int sharedNames() const;

    // Texts of one field: a column type, a key of a resource or of an assignment. Null for a field that there
    // is not.
    QString taskText(const KWTaskInfo &task, int type) const;
    QString resourceText(const ResourceInfo &resource, int key) const;
    QString assignmentText(const Assignment &assignment, int key) const;

    // At most `maxRows` rows, the titles included; true when that was enough. The columns are those of the
    // workbook's titles, see ExcelTitles. Values are made only when asked for. Numbers that lose digits are
    // told, with the sheet's name as the place.
    bool write(exceltitles::Sheet sheet, RowSink &sink, int maxRows, bool withValues = false,
               Findings *findings = nullptr, const QString &place = QString()) const;

private:
    void collectTasks();
    void collectAssignments();
    bool forEachAssignment(const std::function<bool(const Assignment &)> &visit) const;
    QString predecessorText(const KWTaskInfo &task) const;
    QDateTime shownMoment(const KWTaskInfo &task, int type) const;
    bool isCut(const KWTaskInfo &task, int type) const;
    bool isCut(const ResourceInfo &resource, int key) const;
    bool isCut(const Assignment &assignment, int key) const;
    Cell taskCell(const KWTaskInfo &task, int type, bool withValue) const;
    Cell resourceCell(const ResourceInfo &resource, int key, bool withValue) const;
    Cell assignmentCell(const Assignment &assignment, int key, bool withValue) const;

    KWDocument &m_document;
    cost::Measures m_measures;
    ShownDates m_dates;
    QString m_dateFormat;
    std::vector<const KWTaskInfo *> m_tasks;
    // Of m_tasks, one entry each, one more for the assignments.
    std::vector<int> m_depths;
    std::vector<int> m_ends; // the row behind the last descendant
    std::vector<std::size_t> m_firstAssignment;
    std::vector<Assignment> m_assignments; // of the leaves among m_tasks
    TaskIndex m_rowOfId;                   // from 0, the first row below the titles
    bool m_isTree = true;                  // no task stands in two lists of children
};
}
