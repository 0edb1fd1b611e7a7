#pragma once
#include <QString>

class KWDocument;
class KWTaskInfo;

// A task's values as texts, for the table on the screen and for workbooks.
namespace celltext {

struct Style
{
    QString dateFormat;
    bool linkAddresses = false; // hyperlinks by address, else by name
};

// The text of one column type; empty for a type that there is not.
QString ofType(KWDocument &document, const KWTaskInfo &task, int type, const Style &style);
}
