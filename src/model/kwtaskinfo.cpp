// The task as a record: construction, copies, ID lists, progress levels, the font of its row, the XML
// element.
#include "model/kwtaskinfo.h"
#include "engine/record/idlist.h"
#include "engine/record/resource.h"
#include "engine/record/rowfont.h"
#include "engine/record/taskfields.h"
#include "engine/time/duration.h"
#include "model/changewatch.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo_xml.h"
#include "support/xmlsink.h"
#include "support/xmlsource.h"
#include <QStringList>
#include <array>
#include <cmath>

bool KWTaskInfo::s_isSetTime = false;

// ---- Construction and copies ------------------------------------------------------------------------------

KWTaskInfo::KWTaskInfo() = default;

KWTaskInfo::KWTaskInfo(const KWTaskInfo &other)
    : TaskRecord()
{
    *this = other;
}

KWTaskInfo::~KWTaskInfo()
{
    clearResources();
}

KWTaskInfo &KWTaskInfo::operator=(const KWTaskInfo &other)
{
    if (this != &other) {
        fields::copy(fields::taskFields, fields::Copy, other, *this);
        copyOwned(other);
    }
    return *this;
}

void KWTaskInfo::assign(const KWTaskInfo &other)
{
    if (this != &other) {
        fields::copy(fields::taskFields, fields::Assign, other, *this);
        copyOwned(other);
    }
}

void KWTaskInfo::copyOwned(const KWTaskInfo &other)
{
    hyperlinks.assign(other.hyperlinks);
    // The new uses come first: both tasks may hold the same records.
    for (Resource *resource : other.resourceList)
        resource->use();
    clearResources();
    resourceList = other.resourceList;
}

void KWTaskInfo::clear()
{
    fields::reset(fields::taskFields, *this);
}

bool KWTaskInfo::isEmpty() const
{
    return Priority == 0 && Progress == 0 && DurationSecs == 0 && Resources.isEmpty() && Name.isEmpty() &&
           !Milestone && !IsToggler && Childs.isEmpty() && Depends.isEmpty() && Predecessors.isEmpty() &&
           Level <= 0 && ID == 0;
}

QString KWTaskInfo::unitString(unsigned int unit)
{
    return QString::fromLatin1(duration::unitName(unit));
}

// ---- Children and links -----------------------------------------------------------------------------------

quint32 KWTaskInfo::getTaskChildIDAt(int index) const
{
    return idlist::at(Childs, index);
}

quint32 KWTaskInfo::getTaskChildIDByID(quint32 id) const
{
    return Childs.contains(id) ? id : 0;
}

void KWTaskInfo::removeTaskChildIDAt(int index)
{
    idlist::removeAt(Childs, index);
}

void KWTaskInfo::removeTaskChildIDByID(quint32 id)
{
    Childs.removeOne(id);
}

void KWTaskInfo::replaceChlidIDAt(int index, quint32 id)
{
    idlist::replaceAt(Childs, index, id);
}

void KWTaskInfo::replaceChlidIDByID(quint32 oldId, quint32 newId)
{
    idlist::replace(Childs, oldId, newId);
}

void KWTaskInfo::insertTaskChildID(int index, quint32 id)
{
    idlist::insert(Childs, index, id);
}

void KWTaskInfo::addTaskInfoChildID(KWDocument *document, quint32 id)
{
    const ChangeWatch watch(document, this, ChangeWatch::Alone);
    const int pos = document ? document->getPosByID(id) : -1;
    if (pos < 0)
        return;
    // Kept on purpose: only the last child is looked at, so children that arrive from last to first end up in
    // another order than the task list.
    const bool beforeLast = !Childs.isEmpty() && pos < document->getPosByID(Childs.last());
    idlist::insert(Childs, beforeLast ? Childs.size() - 1 : Childs.size(), id);
}

quint32 KWTaskInfo::getDependIDAt(int index) const
{
    return idlist::at(Depends, index);
}

void KWTaskInfo::replaceDependIDAt(int index, quint32 id)
{
    idlist::replaceAt(Depends, index, id);
}

void KWTaskInfo::removeDependIDByID(quint32 id)
{
    Depends.removeOne(id);
}

void KWTaskInfo::insertDependID(int index, quint32 id)
{
    idlist::insert(Depends, index, id);
}

quint32 KWTaskInfo::getDependOnIDAt(int index) const
{
    return idlist::at(Predecessors, index);
}

void KWTaskInfo::replaceDependOnIDAt(int index, quint32 id)
{
    idlist::replaceAt(Predecessors, index, id);
}

void KWTaskInfo::removeDependOnIDByID(quint32 id)
{
    Predecessors.removeOne(id);
}

void KWTaskInfo::insertDependOnID(int index, quint32 id)
{
    idlist::insert(Predecessors, index, id);
}

// ---- Display ----------------------------------------------------------------------------------------------

QString KWTaskInfo::getDependOnListTagContent(KWDocument *document, bool predecessors) const
{
    if (!document)
        return QString();
    QStringList tags;
    for (quint32 id : predecessors ? Predecessors : Depends) {
        const int tag = document->getTagByTaskID(id);
        if (tag >= 1)
            tags.append(QString::number(tag));
    }
    return tags.join(QLatin1String("; "));
}

QString KWTaskInfo::getHyperlinksContent(bool addresses) const
{
    return hyperlinks.content(addresses);
}

void KWTaskInfo::initFont()
{
    rowfont::set(*this);
}

void KWTaskInfo::move(int dx)
{
    x1 += dx;
    x2 += dx;
}

// ---- Progress levels --------------------------------------------------------------------------------------

namespace {

struct ProgressLevel
{
    double fraction;
    const char *label;
};

constexpr std::array<ProgressLevel, 9> progressLevels{{{0.0, "nostart"},
                                                       {0.125, "12.5%"},
                                                       {0.25, "25%"},
                                                       {0.375, "37.5%"},
                                                       {0.5, "50%"},
                                                       {0.625, "62.5%"},
                                                       {0.75, "75%"},
                                                       {0.875, "87.5%"},
                                                       {1.0, "100%"}}};
}

void KWTaskInfo::setPercent(double percent)
{
    Percent = std::isnan(percent) ? 0.0 : qBound(0.0, percent, 1.0);
}

double KWTaskInfo::percentOfIndex(int index)
{
    return index >= 0 && index < int(progressLevels.size()) ? progressLevels[index].fraction : 0.0;
}

double KWTaskInfo::percentOfIndex(const QString &label)
{
    if (label == QLatin1String("finished"))
        return 1.0;
    for (const ProgressLevel &level : progressLevels) {
        if (label == QLatin1String(level.label))
            return level.fraction;
    }
    return 0.0;
}

bool KWTaskInfo::isPercentOfIndex(double fraction)
{
    return std::any_of(progressLevels.begin(), progressLevels.end(),
                       [fraction](const ProgressLevel &level) { return level.fraction == fraction; });
}

// Kept on purpose: counts from 1 where percentOfIndex counts from 0.
int KWTaskInfo::indexFromPercent(double fraction)
{
    if (!(fraction >= 0.0 && fraction <= 1.0))
        return 1;
    for (int index = 1; index < int(progressLevels.size()); ++index) {
        // A tie goes to the higher level.
        if (fraction < (progressLevels[index - 1].fraction + progressLevels[index].fraction) / 2)
            return index;
    }
    return int(progressLevels.size());
}

// ---- XML --------------------------------------------------------------------------------------------------

void KWTaskInfo::saveTo(QDomElement &parent, unsigned int) const
{
    DomSink sink(parent);
    taskxml::write(sink, *this);
}

bool KWTaskInfo::parse(const QDomElement &element, unsigned int)
{
    DomSource source(element);
    taskxml::read(source, *this);
    return true;
}
