#pragma once
#include <QDateTime>
#include <QString>

class KWDocument;
class KWTaskInfo;
namespace worktime {
class WorkCalendar;
}

// A task's values as texts, for the table on the screen and for workbooks.
namespace celltext {

struct Style
{
    QString dateFormat;
    bool linkAddresses = false; // hyperlinks by address, else by name
    // Of the document, for whoever asks for many cells: the document would look for changes at each of them.
    const worktime::WorkCalendar *calendar = nullptr;
};

// What KWTaskInfo::showDateTime shows, as date and time alone: the zone of the result is UTC. Quicker.
QDateTime shownMoment(KWDocument &document, const worktime::WorkCalendar &calendar, quint32 secs, bool start);
// The text of one column type; empty for a type that there is not.
QString ofType(KWDocument &document, const KWTaskInfo &task, int type, const Style &style);
}
