#include "documents/cellinput.h"
#include "documents/session.h"
#include "edit.h"
#include "exchange/csvplan.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "sheettext.h"
#include "table/customtable.h"
#include <QCoreApplication>
#include <QRegularExpression>

namespace cellinput {

namespace {

// The fields of the command line, whose readers read the cells, too.
struct Field
{
    int type;
    const char *name;
    const char *step; // of the undo menu
};
constexpr Field fields[] = {
    {nameType, "name", QT_TRANSLATE_NOOP("cellinput", "Rename task")},
    {2, "start", QT_TRANSLATE_NOOP("cellinput", "Change start")},
    {3, "finish", QT_TRANSLATE_NOOP("cellinput", "Change finish")},
    {4, "duration", QT_TRANSLATE_NOOP("cellinput", "Change duration")},
    {5, "percent", QT_TRANSLATE_NOOP("cellinput", "Change progress")},
    {6, "priority", QT_TRANSLATE_NOOP("cellinput", "Change priority")},
    {resourcesType, "", QT_TRANSLATE_NOOP("cellinput", "Assign resources")},
    {8, "hyperlinks", QT_TRANSLATE_NOOP("cellinput", "Change hyperlinks")},
    {19, "notes", QT_TRANSLATE_NOOP("cellinput", "Change notes")},
    {20, "base-start", QT_TRANSLATE_NOOP("cellinput", "Change baseline")},
    {21, "base-finish", QT_TRANSLATE_NOOP("cellinput", "Change baseline")},
    {22, "base-cost", QT_TRANSLATE_NOOP("cellinput", "Change baseline")},
    {predecessorsType, "", QT_TRANSLATE_NOOP("cellinput", "Change predecessors")},
};

QString words(const char *text)
{
    return QCoreApplication::translate("cellinput", text);
}

const Field *fieldOf(int type)
{
    for (const Field &field : fields)
        if (field.type == type)
            return &field;
    return nullptr;
}

// A date, with the time where it is not the day's usual one.
QString momentText(Session &session, quint32 secs, bool isStart)
{
    if (secs == 0)
        return QString();
    KWDocument &document = session.document();
    QDateTime shown = KWTaskInfo::showDateTime(&document, secs, isStart);
    const int usualHour = int(KWTaskInfo::startOrFinishHour(&document, isStart));
    const bool isUsual = isStart ? shown.time() == QTime(usualHour % 24, 0)
                                 : shown.time().addSecs(1) == QTime(usualHour % 24, 0) ||
                                       shown.time() == QTime(usualHour % 24, 0);
    return shown.toString(isUsual ? QStringLiteral("yyyy-MM-dd") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

Outcome refused(const options::Fault &fault)
{
    Outcome outcome;
    outcome.isDone = false;
    outcome.what = fault.what;
    outcome.hint = fault.hint;
    return outcome;
}

// The value of one field; nothing changes.
bool read(Session &session, const Field &field, const QString &text, quint32 unit, TaskValues &values,
          options::Fault &fault)
{
    PlanEdits reading(session.document(), QStringLiteral("read"));
    editverbs::Outcome outcome;
    Edit edit{session.plan(), session.document(), reading, {}, {}, fault, outcome};
    return editverbs::readTaskFields(edit, {{QLatin1String(field.name), text}}, unit, values);
}

struct Wanted
{
    QString name;
    std::optional<double> units;
};

// "Ann[50%]; Crane"
bool readResources(const QString &text, QVector<Wanted> &wanted, options::Fault &fault)
{
    static const QRegularExpression form(QStringLiteral("^([^\\[\\]]+?)\\s*(?:\\[([^\\[\\]]*)\\])?$"));
    for (const QString &part : text.split(QLatin1Char(';'))) {
        const QString trimmed = part.trimmed();
        if (trimmed.isEmpty())
            continue;
        const QRegularExpressionMatch match = form.match(trimmed);
        Wanted resource{match.captured(1).trimmed(), std::nullopt};
        double units = 1;
        const bool isRead = match.lastCapturedIndex() < 2 || sheettext::parseUnits(match.captured(2), units);
        if (match.lastCapturedIndex() >= 2)
            resource.units = units;
        if (!match.hasMatch() || !isRead) {
            fault = {words("'%1' is no resource").arg(trimmed),
                     words("write names, with units: Ann[50%]; Crane")};
            return false;
        }
        wanted.append(resource);
    }
    return true;
}

// Assigns what is named and takes away what is not; names that the sheet does not know join it.
EditAnswer assign(Session &session, PlanEdits &edits, quint32 id, const QVector<Wanted> &wanted,
                  QStringList &added)
{
    EditAnswer all;
    const KWDocument &document = session.document();
    QStringList before;
    for (const Resource *resource : document.getTaskInfoByID(id)->resourceList)
        before.append(resource->name.trimmed());
    for (const Wanted &resource : wanted) {
        before.removeAll(resource.name);
        if (!document.resourceInfoData()->getResourceInfoByName(resource.name)) {
            added.append(resource.name);
            Session::join(all, edits.addResource(resource.name));
        }
        if (all.isDone())
            Session::join(all, edits.assign(id, resource.name, resource.units));
    }
    for (const QString &name : qAsConst(before)) {
        if (all.isDone())
            Session::join(all, edits.unassign(id, name));
    }
    return all;
}

// "3; 5", the numbers of tasks.
bool readPredecessors(const KWDocument &document, const QString &text, QVector<quint32> &wanted,
                      options::Fault &fault)
{
    static const QRegularExpression between(QStringLiteral("[;,\\s]+"));
    for (const QString &part : text.split(between, Qt::SkipEmptyParts)) {
        bool isNumber = false;
        const KWTaskInfo *task = document.getTaskInfoAt(part.toInt(&isNumber) - 1);
        if (!isNumber || !task) {
            fault = {words("'%1' is no task").arg(part), words("write the numbers of tasks: 3; 5")};
            return false;
        }
        wanted.append(task->ID);
    }
    return true;
}

EditAnswer waitFor(const KWDocument &document, PlanEdits &edits, quint32 id, const QVector<quint32> &wanted)
{
    EditAnswer all;
    const QList<quint32> before = document.getTaskInfoByID(id)->Predecessors;
    for (const quint32 predecessor : before) {
        if (all.isDone() && !wanted.contains(predecessor))
            Session::join(all, edits.unlink({predecessor, id}));
    }
    for (const quint32 predecessor : wanted) {
        if (all.isDone() && !before.contains(predecessor))
            Session::join(all, edits.link({predecessor, id}));
    }
    return all;
}

EditAnswer setValue(PlanEdits &edits, quint32 &id, const TaskValues &values)
{
    if (id != 0)
        return edits.set({id}, values);
    const EditAnswer answer = edits.add(values);
    id = answer.tasks.value(0);
    return answer;
}
}

bool isEditable(int type)
{
    return fieldOf(type) != nullptr;
}

QString text(Session &session, const KWTaskInfo &task, int type)
{
    constexpr int hundred = 100;
    switch (type) {
    case nameType:
        return task.Name;
    case 2:
        return momentText(session, task.Start, true);
    case 3:
        return momentText(session, task.Finish, false);
    case 4:
        return datetext::durationText(KWTaskInfo::getDurValueByTaskInfo(&session.document(), &task),
                                      task.DurationUnits);
    case 5:
        return QString::number(qRound(task.Percent * hundred)) + QLatin1Char('%');
    case 6:
        return QString::number(task.Priority);
    case resourcesType:
        return csvplan::resourceNames(session.document(), task);
    case 8: {
        QStringList addresses;
        for (int i = 0; i < task.hyperlinks.count(); ++i)
            addresses.append(task.hyperlinks.getAt(i)->address);
        return addresses.join(QLatin1String("; "));
    }
    case 19:
        return task.Notes;
    case 20:
        return momentText(session, task.BaseStart, true);
    case 21:
        return momentText(session, task.BaseFinish, false);
    case 22:
        return task.BaselineCost;
    case predecessorsType:
        return CustomTable::placesOf(session.document(), task.Predecessors);
    default:
        return QString();
    }
}

Outcome outcomeOf(const EditAnswer &answer)
{
    Outcome outcome;
    outcome.answer = answer;
    outcome.isDone = answer.isDone();
    if (!outcome.isDone) {
        outcome.what = answer.sentence();
        outcome.hint = answer.hint();
    }
    return outcome;
}

Outcome enter(Session &session, quint32 id, int type, const QString &typed)
{
    const Field *field = fieldOf(type);
    const KWTaskInfo *task = session.document().getTaskInfoByID(id);
    const QString entered = type == 19 ? typed : typed.trimmed();
    if (!field || (id != 0 && !task) || (task && entered == text(session, *task, type)) ||
        (!task && entered.isEmpty()))
        return Outcome();
    options::Fault fault;
    const QString step = task ? words(field->step) : words(QT_TRANSLATE_NOOP("cellinput", "Add task"));
    if (type == predecessorsType) {
        QVector<quint32> wanted;
        if (!readPredecessors(session.document(), entered, wanted, fault))
            return refused(fault);
        return outcomeOf(session.edit(step, [&](PlanEdits &edits) {
            EditAnswer all;
            quint32 at = id;
            if (at == 0)
                all = setValue(edits, at, TaskValues());
            if (all.isDone())
                Session::join(all, waitFor(session.document(), edits, at, wanted));
            return all;
        }));
    }
    if (type == resourcesType) {
        QVector<Wanted> wanted;
        if (!readResources(entered, wanted, fault))
            return refused(fault);
        QStringList added;
        Outcome outcome = outcomeOf(session.edit(step, [&](PlanEdits &edits) {
            EditAnswer all;
            quint32 at = id;
            if (at == 0)
                all = setValue(edits, at, TaskValues());
            if (all.isDone())
                Session::join(all, assign(session, edits, at, wanted, added));
            return all;
        }));
        if (outcome.isDone && !added.isEmpty())
            outcome.note = words("%1 joined the resource sheet").arg(added.join(QLatin1String(", ")));
        return outcome;
    }
    TaskValues values;
    if (!read(session, *field, entered, task ? task->DurationUnits : session.document().ProjectUnit, values,
              fault))
        return refused(fault);
    return outcomeOf(session.edit(step, [&](PlanEdits &edits) { return setValue(edits, id, values); }));
}

Outcome enterLines(Session &session, quint32 after, const QString &lines, const QVector<int> &types)
{
    struct Line
    {
        int level;
        TaskValues values;
        QVector<Wanted> resources;
    };
    QVector<Line> read;
    options::Fault fault;
    int number = 0;
    for (QString line : lines.split(QLatin1Char('\n'))) {
        ++number;
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        if (line.trimmed().isEmpty())
            continue;
        // A table that is copied from elsewhere begins with a cell that is not blank.
        int blanks = 0;
        while (blanks < line.size() && line.at(blanks) == QLatin1Char(' '))
            ++blanks;
        constexpr int blanksOfLevel = 2;
        Line next{blanks / blanksOfLevel, {}, {}};
        const QStringList cells = line.mid(blanks).split(QLatin1Char('\t'));
        for (int i = 0; i < cells.size() && i < types.size(); ++i) {
            const QString cell = cells.at(i).trimmed();
            const Field *field = fieldOf(types.at(i));
            // Numbers of rows mean others where they come from.
            if (!field || cell.isEmpty() || types.at(i) == predecessorsType)
                continue;
            const bool isRead = types.at(i) == resourcesType
                                    ? readResources(cell, next.resources, fault)
                                    : cellinput::read(session, *field, cell, session.document().ProjectUnit,
                                                      next.values, fault);
            if (!isRead) {
                fault.what = words("line %1: %2").arg(number).arg(fault.what);
                return refused(fault);
            }
        }
        read.append(next);
    }
    if (read.isEmpty())
        return Outcome();
    QStringList added;
    Outcome outcome = outcomeOf(session.edit(words("Paste lines"), [&](PlanEdits &edits) {
        EditAnswer all;
        QVector<quint32> lastOfLevel; // where the next task of each level goes
        const auto join = [&all](const EditAnswer &part) {
            Session::join(all, part);
            return all.isDone();
        };
        for (const Line &line : qAsConst(read)) {
            const int level = qMin(line.level, lastOfLevel.size());
            lastOfLevel.resize(qMin(lastOfLevel.size(), level + 1));
            EditAnswer made;
            if (level < lastOfLevel.size())
                made = edits.insert(lastOfLevel.at(level), PlanEdits::Below, line.values);
            else if (level > 0)
                made = edits.insert(lastOfLevel.last(), PlanEdits::LastChild, line.values);
            else
                made =
                    after == 0 ? edits.add(line.values) : edits.insert(after, PlanEdits::Below, line.values);
            if (!join(made))
                return all;
            const quint32 id = made.tasks.value(0);
            if (level < lastOfLevel.size())
                lastOfLevel[level] = id;
            else
                lastOfLevel.append(id);
            if (!line.resources.isEmpty() && !join(assign(session, edits, id, line.resources, added)))
                return all;
        }
        return all;
    }));
    if (outcome.isDone && !added.isEmpty())
        outcome.note = words("%1 joined the resource sheet").arg(added.join(QLatin1String(", ")));
    return outcome;
}
}
