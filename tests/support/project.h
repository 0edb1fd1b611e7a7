#pragma once
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include <memory>
#include <string>

// A scheduled project written as text, for tests that want to show what they are about.
//
//   Project p("Mon-Fri 8-12 13-17, start 2024-03-04, off 2024-03-08",
//             "Build\n"
//             "  Walls  2d\n"
//             "  Roof 3d after Walls\n");
//
// Settings are a CalendarText with commas; without a start the project begins on 4 March 2024, a Monday.
//
// Tasks, one a line, two blanks of indent for each level: a name, then in any order a duration (d h w min mon
// q y), "milestone", "NN%", "start DATE [HH:MM]" (clock time); "after NAME, NAME" comes last. A leaf without
// a duration lasts a day. Tasks get the IDs 1, 2, 3... in the order of the lines and start with the project.
//
// A text that makes no sense throws std::invalid_argument, an unknown name std::out_of_range.
class Project
{
public:
    Project(const char *settings, const char *tasks);
    ~Project();

    // The row of one task, for changes that schedule the rest anew.
    class Row
    {
    public:
        void setDuration(const char *duration);
        void setStart(const char *date); // "2024-03-05" or "2024-03-05 10:30"

    private:
        friend class Project;
        Row(Project &project, KWTaskInfo &task)
            : m_project(project)
            , m_task(task)
        {
        }
        Project &m_project;
        KWTaskInfo &m_task;
    };

    KWDocument &document() { return *m_document; }
    KWTaskInfo &task(const char *name) const;
    Row rowOf(const char *name) { return Row(*this, task(name)); }
    // Links two tasks and schedules; whether the link was made.
    bool link(const char *predecessor, const char *successor);
    // Assigns a new entry of the resource sheet to a task.
    void assign(const char *task, const char *resource);
    // Pushes, rolls dates and percents up, and works out late dates and the chart.
    void schedule();

    // Each task as "Roof 8 Mar - 12 Mar", indented by level; the clock time only where it is not the border
    // of a day ("8 Mar 13:00 - 12 Mar"); a milestone has one date, a task without dates none.
    std::string dates() const;
    // Each task's name, indented by level.
    std::string outline() const;

private:
    KWTaskInfo &add(const QString &line);
    void readSettings(const QString &text);
    quint32 moment(const QString &date) const; // seconds on the day clock
    void setDuration(KWTaskInfo &task, const QString &duration);

    std::unique_ptr<KWDocument> m_document;
    QList<QPair<quint32, QString>> m_after; // task and the names of its predecessors
};
