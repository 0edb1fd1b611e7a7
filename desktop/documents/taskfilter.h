#pragma once
#include <QString>
#include <QVector>

class KWDocument;
class KWTaskInfo;

// Which tasks somebody wants to see: the critical ones, the late ones, those of a resource.
namespace taskfilter {

enum Kind { Critical, Late, BehindBaseline, Milestones, Unassigned, OfResource, kindCount };

struct Filter
{
    Kind kind = Critical;
    QString resource; // for OfResource: its name
};

QString title(const Filter &filter);
// All of the document that it lets through: one for each kind, and one for each entry of the resource sheet.
QVector<Filter> all(const KWDocument &document);
// Of summaries only those that answer for themselves: resources and milestones are never theirs.
bool matches(KWDocument &document, const KWTaskInfo &task, const Filter &filter);
// What there is to say beside the name of one that matches: its finish, or how far it is behind.
QString remark(KWDocument &document, const KWTaskInfo &task, const Filter &filter);
}
