#include "edits/editanswer.h"

namespace {

struct Text
{
    EditRefusal refusal;
    const char *sentence;
    const char *hint;
};

constexpr Text texts[] = {
    {EditRefusal::NoSuchTask, "no task has the ID %1", ""},
    {EditRefusal::NoTasks, "no task is named", "name at least one"},
    {EditRefusal::NoTaskBefore, "%1 has no task before it on its level", ""},
    {EditRefusal::NoTaskAfter, "%1 has no task after it on its level",
     "a task moves among the tasks of its summary"},
    {EditRefusal::TopLevel, "%1 is at the top level already",
     "only a task below a summary can move one level up"},
    {EditRefusal::NoSummary, "%1 is no summary", "only a task with tasks below it can be collapsed"},
    {EditRefusal::OfSummary, "%1 is a summary: that comes from the tasks below it", "set it on those"},
    {EditRefusal::BadMoment, "%1 cannot start so late", "dates reach up to the year 2105"},
    {EditRefusal::FinishBeforeStart, "the finish lies before the start of %1",
     "set start first; it takes the finish along"},
    {EditRefusal::NoStart, "%1 has no start", "set its start first"},
    {EditRefusal::BadLength, "that is no length for %1", "write a number from 0 to a hundred years"},
    {EditRefusal::BadUnit, "that is no unit of time", "from years to minutes"},
    {EditRefusal::BadPercent, "that is not a percentage", "write a number from 0 to 100"},
    {EditRefusal::BadAmount, "'%1' is no amount", "write a number"},
    {EditRefusal::BadHeight, "that is no row height", "write a number of pixels up to 10000"},
    {EditRefusal::LinkToItself, "%1: the task is its own predecessor", ""},
    {EditRefusal::LinkTwice, "%1: predecessor %2 stands twice", ""},
    {EditRefusal::LinkToOwnTask, "%1: predecessor %2 lies below this summary, which ends with it",
     "link the tasks below the summary"},
    {EditRefusal::LinkToOwnSummary, "%1: predecessor %2 is the summary that holds this task",
     "link the tasks below the summary"},
    {EditRefusal::LinkInRing, "%1: tasks would wait for each other: %2", "remove one of these links"},
    {EditRefusal::NotLinked, "%1 does not wait for %2", ""},
    {EditRefusal::NoSuchResource, "no resource '%1'", ""},
    {EditRefusal::NoResourceName, "a resource needs a name", ""},
    {EditRefusal::ResourceExists, "there is a resource '%1' already", ""},
    {EditRefusal::AssignmentOfSummary, "%1 is a summary", "assign resources to the tasks below it"},
    {EditRefusal::NotAssigned, "'%1' is not assigned to %2", ""},
    {EditRefusal::BadUnits, "these are no units", "50% of the time, or a number of a material"},
    {EditRefusal::BadCostUnit, "that is no unit of a rate", "from minutes to months"},
    {EditRefusal::NoWorkingTime, "no working time is left", "at least one weekday and one hour must work"},
    {EditRefusal::BadHours, "these are no working hours",
     "intervals in order that do not overlap, each ending after it begins"},
    {EditRefusal::BadDates, "these are not two dates in order", ""},
    {EditRefusal::NoException, "no holiday or workday holds %1", ""},
    {EditRefusal::NoSuchColumn, "no column '%1'", ""},
    {EditRefusal::BadWidth, "that is no width of a column", "write a number of pixels up to 10000"},
    {EditRefusal::NothingToPaste, "nothing to paste", "copy or cut tasks first"},
    {EditRefusal::ClipboardFailed, "the tasks cannot be copied", ""},
    {EditRefusal::GivenUp, "cancelled: the plan is as it was", ""},
};

QMap<EditRefusal, QString> table(const char *const Text::*member)
{
    QMap<EditRefusal, QString> map;
    for (const Text &text : texts)
        map.insert(text.refusal, QString::fromLatin1(text.*member));
    return map;
}
}

QMap<EditRefusal, QString> EditAnswer::s_sentences = table(&Text::sentence);
QMap<EditRefusal, QString> EditAnswer::s_hints = table(&Text::hint);

QString EditAnswer::sentence() const
{
    QString text = s_sentences.value(refusal);
    // One after the other would take a "%2" inside a name for a place.
    switch (arguments.size()) {
    case 0:
        return text;
    case 1:
        return text.arg(arguments.at(0));
    default:
        return text.arg(arguments.at(0), arguments.at(1));
    }
}

QString EditAnswer::hint() const
{
    return s_hints.value(refusal);
}
