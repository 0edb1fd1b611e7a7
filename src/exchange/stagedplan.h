#pragma once
#include "engine/network/links.h"
#include "engine/record/codes.h"
#include "engine/time/shownmoment.h"
#include "exchange/importedplan.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include <QDate>
#include <QString>
#include <array>
#include <memory>
#include <optional>
#include <vector>

class Findings;
class KWDocument;

// A plan that has been read from somewhere and that no document holds yet.
//
// Readers of any format fill in what their file says and nothing else; planimport::replace makes the document
// of it, by the same rules whatever the format.
namespace staged {

// As the file has it: on the clock on the wall, as tasks store it, or not at all.
struct Moment
{
    enum Kind : quint8 { None, Shown, Stored };

    Moment() = default;
    Moment(const shownmoment::Moment &moment)
        : kind(Shown)
        , hasTime(moment.hasTime)
        , day(moment.day)
        , secs(quint32(moment.secs))
    {
    }
    static Moment ofStored(quint32 secs)
    {
        Moment moment;
        moment.kind = Stored;
        moment.secs = secs;
        return moment;
    }
    bool isGiven() const { return kind != None; }
    shownmoment::Moment shown() const { return {day, int(secs), hasTime}; }

    Kind kind = None;
    bool hasTime = false; // of a shown one
    int day = 0;
    quint32 secs = 0; // of the day, or since 1970 of a stored one
};

struct Length
{
    double value = 0;
    unsigned int unit = duration::Day;
};

// The moments of a task, in the order of their rules: which the file shows as a start, which as a finish.
enum MomentField { Start, Finish, LateStart, LateFinish, BaseStart, BaseFinish, momentFields };

struct Task
{
    int number = 0; // of its row, as links count rows
    int row = 0; // where findings place it: a row of the sheet, a line of the file, the number of an element
    quint32 id = 0; // as the file has it; 0: none
    QString code;   // its number in the outline as the file writes it, "1.2"; kept for those who show it
    std::array<Moment, momentFields> moments;
    std::optional<Length> length;
    bool hasUnit = false;     // the unit of the length is given, even where its value is not
    bool isMilestone = false; // the file says so
    bool hasPlace = true;     // false: nothing but a name and a length, as in a row of totals
    // All that needs no rule: name, level, percentage, priority, notes, hyperlinks, texts, baseline cost.
    // Moments, length, links and the place in the outline are set from the fields above.
    std::unique_ptr<KWTaskInfo> task;
};

// Finish to start, by places in the list of tasks.
using Link = links::Places;

struct Assignment
{
    int row = 0;
    int task = -1;               // place in the list; -1: by its name
    QString taskName;            // the first task of that name, compared trimmed
    QString resource;            // trimmed
    std::optional<double> units; // a fraction; the quantity of a material
    std::optional<double> work;
    unsigned int workUnit = 5; // see duration::Unit
};

struct Interval
{
    quint32 startSecs = 0; // since midnight
    quint32 finishSecs = 0;

    bool operator==(const Interval &other) const
    {
        return startSecs == other.startSecs && finishSecs == other.finishSecs;
    }
};

struct CalendarException
{
    QString name;
    QDate from;
    QDate to; // inclusive
    bool works = false;
    std::vector<Interval> hours; // of the covered dates; empty: the usual ones
};

struct Calendar
{
    std::array<bool, 7> week{{true, true, true, true, true, false, false}}; // Monday first
    std::vector<Interval> hours;
    std::vector<CalendarException> exceptions; // the first one that covers a date decides
};

struct Plan
{
    std::vector<Task> tasks; // in the order of the outline
    std::vector<Link> links;
    // What the file does not have stays as it is in the document.
    std::optional<Calendar> calendar;
    std::optional<std::vector<std::unique_ptr<ResourceInfo>>> resources;
    std::vector<Assignment> assignments;
    Moment start;         // of the project
    bool hasDates = true; // false: the file has no place for dates and lengths, so that none is missing
    int refusedLinks = 0; // of which the file's reader has told already
};
}

namespace planimport {

// What a length says beside a start and a finish.
enum class LengthRule : quint8 {
    Measured,  // its unit; how long the task is follows from the dates, of which a finish is the end of its
               // date
    OnItsDate, // also when on its date a task ends whose finish has no time
    Decides,   // the finish, where they contradict each other
};

// How a file is meant where the formats differ.
struct Rules
{
    LengthRule length = LengthRule::OnItsDate;
    // IDs that are taken are replaced and names made unique one row after the other; else all IDs that stand
    // in the file are kept before others are given, and names may repeat.
    bool uniqueNames = false;
    // Tasks without dates are placed behind their predecessors; else at the project's start.
    bool placesBehind = true;
    // A resource that the sheet does not have is not assigned, and nobody twice to a task; else the last row
    // counts.
    bool assignsOnce = false;
    // Work follows from the task's length and the units, and what the file says of it is only compared.
    bool comparesWork = false;
    QString place =
        QStringLiteral("row"); // the word before a row's number in findings, with the sheet's name
    QString assignmentPlace = QStringLiteral("assignment sheet, row");
};

// Replaces the document's working time.
KWGANTT_EXPORT void setCalendar(KWDocument &document, const staged::Calendar &calendar);
// Replaces the document's tasks, and its working time, resources and assignments where the plan has them. The
// plan is used up. What is changed or left out is added to the findings, which may be null.
ImportedPlan replace(KWDocument &document, staged::Plan &plan, const Rules &rules, Findings *findings);
}
