#pragma once
#include "engine/time/localclock.h"
#include "exchange/mspdi/calendar.h"
#include "exchange/mspdi/codes.h"
#include <QString>
#include <vector>

class KWTaskInfo;
class PartWriter;
class Resource;
class ResourceInfo;

// The elements of a project XML file: what each record consists of, and what is written for one.
namespace mspdi {

struct WrittenException
{
    Dates dates;
    QString name;
    bool works = false;
    Hours hours; // of a date that works
};

struct TaskRow
{
    const KWTaskInfo *task = nullptr; // null for the project itself
    qint64 uid = 0;
    int number = 0; // the row's, from 1
    QString name;
    QByteArray outlineNumber;
    int level = 0;
    bool hasDates = false;
    LocalClock::Wall start;
    LocalClock::Wall finish;
    double minutes = 0; // its length
    int format = formatDays;
    double workMinutes = 0;
    int percent = 0;
    bool isSummary = false;
    bool isMilestone = false;
    bool isMoment = false; // a milestone without any length
    bool isFixed = false;  // at its start: no predecessor brings it there
    double cost = 0;
    std::vector<qint64> predecessors; // UIDs
    bool hasBaseline = false;
    LocalClock::Wall baseStart;
    LocalClock::Wall baseFinish;
};

struct ResourceRow
{
    const ResourceInfo *info = nullptr; // never null
    qint64 uid = 0;
    int number = 0;
    QString name;
    WorkTerms terms;
};

struct AssignmentRow
{
    const TaskRow *task = nullptr;
    const ::Resource *resource = nullptr; // null: nobody, or one that the task only names
    int uid = 0;
    qint64 resourceUid = noResource;
    double minutes = 0;
    double cost = 0;
};

struct ProjectRow
{
    QString name;
    bool hasDates = false;
    LocalClock::Wall start;
    LocalClock::Wall finish;
    Hours hours;
    WorkTerms terms;
};

// All of them together, with the declaration, are a file. False when the device did not take all of it.
struct WrittenPlan
{
    ProjectRow project;
    Week week;
    std::vector<WrittenException> exceptions;
    std::vector<TaskRow> tasks;
    std::vector<ResourceRow> resources;
    std::vector<AssignmentRow> assignments;
};
bool writeElements(PartWriter &part, const WrittenPlan &plan);
}
