#pragma once
#include "table/customtable.h"
#include <QByteArray>
#include <QDateTime>
#include <QJsonArray>
#include <vector>

class KWDocument;
class KWExportOptions;
class KWTaskInfo;
namespace worktime {
class WorkCalendar;
}

// What a page for a browser knows of a plan, as JSON: the axis, the columns, the words, and a row for each
// task.
//
// Valid while the document does not change. Moments are seconds from the first date of the axis on the clock
// in which tasks are stored, where a working day fills the whole of its date.
class PlanPage
{
public:
    PlanPage(KWDocument &document, const KWExportOptions &options, const QDateTime &now);

    int rowCount() const { return int(m_tasks.size()); }
    // The object but its rows, which follow one by one; as text that stands inside an element of a page.
    QByteArray head() const;
    QByteArray row(int row) const;

    static QStringList texts(); // what the page says beside the plan, in English

private:
    void chooseTasks();
    void chooseDates();
    double secsOf(quint32 moment) const; // from the axis' first date; -1 for no moment
    QJsonArray exceptions() const;

    KWDocument &m_document;
    const KWExportOptions &m_options;
    QDateTime m_now;
    const worktime::WorkCalendar &m_calendar;
    int m_shownColumns = 0; // the first ones of the table: it counts them when it is made
    CustomTable m_table;    // all columns that the page knows
    std::vector<const KWTaskInfo *> m_tasks;
    std::vector<int> m_positions; // in the document's list
    std::vector<int> m_parents;   // rows; -1: none
    std::vector<int> m_levels;
    std::vector<int> m_rowOfPos; // -1: not on the page
    int m_firstDay = 0;          // since 1970-01-01
    int m_dayCount = 1;
    quint32 m_projectStart = 0;
};
