// What 'set' can set of a task.
#include "datetext.h"
#include "edit.h"
#include "editing/kwhyperlink.h"
#include "model/kwtaskinfo.h"
#include "taskref.h"
#include "texts.h"

namespace editverbs {

namespace {

// Fills one value from its text; `unit` is that of a length without one.
struct Reading
{
    Edit &edit;
    const QString &text;
    quint32 unit;
    TaskValues &values;
};

bool readMoment(Edit &edit, const QString &text, datetext::Moment &moment)
{
    return datetext::parseMoment(text, moment) ||
           edit.refuse(t("'%1' is not a date").arg(text), t("write it as 2026-02-28 or 2026-02-28T17:00"));
}

template <std::optional<QString> TaskValues::*member>
bool readText(const Reading &r)
{
    r.values.*member = r.text;
    return true;
}

template <std::optional<quint32> TaskValues::*member, quint32 (*secs)(KWDocument &, const datetext::Moment &),
          bool mayBeEmpty>
bool readDate(const Reading &r)
{
    datetext::Moment moment;
    if (mayBeEmpty && r.text.isEmpty()) {
        r.values.*member = 0;
        return true;
    }
    if (!readMoment(r.edit, r.text, moment))
        return false;
    r.values.*member = secs(r.edit.document, moment);
    return true;
}

bool readDuration(const Reading &r)
{
    datetext::Duration length;
    if (!datetext::parseDuration(r.text, length, r.unit))
        return r.edit.refuse(t("'%1' is not a duration").arg(r.text),
                             t("write it as 3d, 12h, 30min, 1.5w or 2mon"));
    r.values.length = TaskLength{length.value, length.unit};
    return true;
}

bool readMilestone(const Reading &r)
{
    r.values.isMilestone =
        r.text == QLatin1String("yes") || r.text == QLatin1String("1") || r.text == QLatin1String("true");
    return true;
}

bool readPercent(const Reading &r)
{
    bool ok = false;
    const double percent = QString(r.text).remove(QLatin1Char('%')).toDouble(&ok);
    if (!ok || !(percent >= 0 && percent <= 100))
        return r.edit.refuse(t("'%1' is not a percentage").arg(r.text), t("write a number from 0 to 100"));
    r.values.percent = percent / 100;
    return true;
}

bool readPriority(const Reading &r)
{
    bool ok = false;
    r.values.priority = r.text.toInt(&ok);
    return ok || r.edit.refuse(t("'%1' is not a whole number").arg(r.text));
}

bool readHeight(const Reading &r)
{
    bool ok = false;
    r.values.rowHeight = r.text.toDouble(&ok);
    return ok || r.edit.refuse(t("'%1' is no row height").arg(r.text), t("write a number of pixels"));
}

bool readHyperlinks(const Reading &r)
{
    QVector<KWHyperlink> links;
    for (const QString &part : r.text.split(QLatin1Char(';'))) {
        if (part.trimmed().isEmpty())
            continue;
        KWHyperlink link;
        link.address = part.trimmed();
        link.type = KWHyperlink::hyperlinkType(link.address);
        links.append(link);
    }
    r.values.hyperlinks = links;
    return true;
}

bool readBaseCost(const Reading &r)
{
    bool ok = r.text.isEmpty();
    if (!ok)
        r.text.toDouble(&ok);
    r.values.baseCost = r.text;
    return ok || r.edit.refuse(t("'%1' is no amount").arg(r.text), t("write a number"));
}

struct TaskField
{
    const char *name;
    const char *value;
    bool (*read)(const Reading &);
};

constexpr TaskField fieldTable[] = {
    {"name", "TEXT", readText<&TaskValues::name>},
    {"start", "DATE", readDate<&TaskValues::start, plan::startSecs, false>},
    {"finish", "DATE", readDate<&TaskValues::finish, plan::finishSecs, false>},
    {"duration", "3d|12h|30min|1.5w|2mon", readDuration},
    {"percent", "0..100", readPercent},
    {"milestone", "yes|no", readMilestone},
    {"priority", "NUMBER", readPriority},
    {"notes", "TEXT", readText<&TaskValues::notes>},
    {"hyperlinks", "ADDRESS;ADDRESS...", readHyperlinks},
    {"height", "PIXELS", readHeight},
    {"base-start", "DATE", readDate<&TaskValues::baseStart, plan::startSecs, true>},
    {"base-finish", "DATE", readDate<&TaskValues::baseFinish, plan::finishSecs, true>},
    {"base-cost", "NUMBER", readBaseCost},
};

const TaskField *fieldNamed(const QString &name)
{
    for (const TaskField &field : fieldTable)
        if (name == QLatin1String(field.name))
            return &field;
    return nullptr;
}
}

const QStringList &taskFields()
{
    static const QStringList names = [] {
        QStringList all;
        for (const TaskField &field : fieldTable)
            all.append(QLatin1String(field.name));
        return all;
    }();
    return names;
}

QString taskFieldsHelp()
{
    QStringList texts;
    for (const TaskField &field : fieldTable)
        texts.append(QLatin1String(field.name) + QLatin1Char('=') + QLatin1String(field.value));
    return texts.join(QLatin1Char(' '));
}

bool readTaskFields(Edit &edit, const editline::Pairs &pairs, quint32 unit, TaskValues &values)
{
    for (const auto &[name, text] : pairs) {
        if (!fieldNamed(name)->read({edit, text, unit, values}))
            return false;
    }
    return true;
}
}
