#include "model/loadcheck.h"
#include "engine/record/recordfaults.h"
#include "engine/time/dayhours.h"
#include "engine/time/worktime.h"
#include "kwversion.h"
#include "model/documentschema.h"
#include "model/kwdocument.h"
#include "model/kwdocument_xml.h"
#include "support/findings.h"
#include "support/said.h"
#include <QHash>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>

namespace loadcheck {

namespace {

using documentschema::Attribute;
using documentschema::Element;
using documentschema::Kind;
using documentschema::Twice;

constexpr int longestQuote = 40;

QString quoted(const QString &text)
{
    return QLatin1Char('\'') +
           (text.size() > longestQuote ? text.left(longestQuote) + QStringLiteral("...") : text) +
           QLatin1Char('\'');
}

QString taskPlace(int pos)
{
    return KW_TEXT("task %1").arg(pos + 1);
}

pugi::xml_node elementFrom(pugi::xml_node node)
{
    while (node && node.type() != pugi::node_element)
        node = node.next_sibling();
    return node;
}

int elementsIn(pugi::xml_node element)
{
    int count = 0;
    for (pugi::xml_node child = elementFrom(element.first_child()); child;
         child = elementFrom(child.next_sibling()))
        ++count;
    return count;
}

// ---- Values -----------------------------------------------------------------------------------------------

bool isDigits(const char *text, int size, int most = 9)
{
    return size > 0 && size <= most &&
           std::all_of(text, text + size, [](char letter) { return letter >= '0' && letter <= '9'; });
}

// Ten digits that fit: moments have so many.
bool isMoment(const char *text, int size)
{
    constexpr char greatest[] = "4294967295";
    constexpr int digits = int(sizeof(greatest)) - 1;
    return size == digits && isDigits(text, size, digits) && std::memcmp(text, greatest, digits) <= 0;
}

// Numbers that always fit, between semicolons; there need be none.
bool areShortIds(const char *text, int size)
{
    constexpr int most = 9;
    int digits = 0;
    return std::all_of(text, text + size, [&digits](char letter) {
        const bool isDigit = letter >= '0' && letter <= '9';
        digits = isDigit ? digits + 1 : 0;
        return digits <= most && (isDigit || letter == ';');
    });
}

enum class Type { Whole, Short, Unsigned, Positive, Number };

bool isOf(Type type, const XmlText &text)
{
    if (isDigits(text.data(), text.size()))
        return type != Type::Short || text.toInt() <= 32767;
    if (type == Type::Unsigned && isMoment(text.data(), text.size()))
        return true;
    if (type == Type::Number && text.isPlainNumber())
        return true;
    bool ok = false;
    const QString number = text.toString();
    switch (type) {
    case Type::Whole:
        number.toInt(&ok);
        return ok;
    case Type::Short:
        number.toShort(&ok);
        return ok;
    case Type::Unsigned:
        number.toUInt(&ok);
        return ok;
    case Type::Positive:
        return number.toUInt(&ok) <= 2147483647u && ok;
    case Type::Number:
        break;
    }
    return std::isfinite(number.toDouble(&ok)) && ok;
}

// The first part that is no number, as it is told; empty when all are.
QString badPart(const XmlText &text, Type type, Qt::SplitBehaviorFlags empty)
{
    QString bad;
    int place = 0;
    text.split(';', empty, [&](const XmlText &part) {
        ++place;
        if (bad.isEmpty() && !isOf(type, part))
            bad = KW_TEXT("%1 at place %2 is no number: 0 is taken").arg(quoted(part.toString())).arg(place);
    });
    return bad;
}

QString badDays(const XmlText &text)
{
    QString bad;
    int count = 0;
    text.split(';', Qt::KeepEmptyParts, [&](const XmlText &part) {
        ++count;
        if (bad.isEmpty() && !(part == "1") && !(part == "0"))
            bad = KW_TEXT("%1 for day %2 is neither 1 nor 0: a day off is taken")
                      .arg(quoted(part.toString()))
                      .arg(count);
    });
    if (bad.isEmpty() && count != 7)
        bad = count < 7 ? KW_TEXT("%1 flags for seven days: the others stay as they were").arg(count)
                        : KW_TEXT("%1 flags for seven days: the first seven are taken").arg(count);
    return bad;
}

// What is wrong with the text as a value of the kind, and what is taken; empty when nothing is.
QString badValue(Kind kind, const XmlText &text)
{
    if (text.isEmpty() || kind == Kind::Text)
        return {};
    const auto unless = [&](Type type, const char *words) {
        return isOf(type, text) ? QString() : QString::fromLatin1(words).arg(quoted(text.toString()));
    };
    switch (kind) {
    case Kind::Text:
        break;
    case Kind::Flag:
        return unless(Type::Whole, QT_TR_NOOP("%1 is neither 1 nor 0: no is taken"));
    case Kind::Whole:
        return unless(Type::Whole, QT_TR_NOOP("%1 is no whole number: 0 is taken"));
    case Kind::Short:
        return unless(Type::Short, QT_TR_NOOP("%1 is no such number: passed over"));
    case Kind::Kept:
        return unless(Type::Whole, QT_TR_NOOP("%1 is no whole number: passed over"));
    case Kind::Unsigned:
        return unless(Type::Unsigned, QT_TR_NOOP("%1 is no number from 0 to 4294967295: 0 is taken"));
    case Kind::Positive:
        return unless(Type::Positive, QT_TR_NOOP("%1 is no number from 0 to 2147483647: 0 is taken"));
    case Kind::Number:
        return unless(Type::Number, QT_TR_NOOP("%1 is no number: 0 is taken"));
    case Kind::Ids:
        return badPart(text, Type::Unsigned, Qt::SkipEmptyParts);
    case Kind::Numbers:
        return badPart(text, Type::Number, Qt::SkipEmptyParts);
    case Kind::Secs:
        return badPart(text, Type::Unsigned, Qt::KeepEmptyParts);
    case Kind::Days:
        return badDays(text);
    }
    return {};
}

}

bool isOfKind(Kind kind, const XmlText &text)
{
    if (kind == Kind::Ids && areShortIds(text.data(), text.size()))
        return true;
    return badValue(kind, text).isEmpty();
}

// ---- The XML ----------------------------------------------------------------------------------------------

class XmlLook::Walk
{
public:
    explicit Walk(Findings &findings)
        : m_findings(findings)
    {
    }

    bool run(pugi::xml_node root, const Tasks &tasks)
    {
        m_tasks = tasks;
        element(root, documentschema::document());
        return m_goesOn;
    }

    void finish(pugi::xml_node root, const KWDocument &document)
    {
        missingLists(root, document);
        version(QString::fromUtf8(root.attribute("Version").value()));
        for (const auto &[key, seen] : m_repeated) {
            QString words = seen.words;
            if (seen.count > 1)
                words = KW_TEXT("%1, in %2 places").arg(words, QString::number(seen.count));
            m_findings.add(seen.kind, seen.place, words);
        }
    }

private:
    // What is alike in many elements is told once.
    struct Repeated
    {
        Finding::Kind kind;
        QString place; // of the first
        QString words;
        int count;
    };

    // "task 7, Resource 2": made only when something is to be told.
    QString place() const
    {
        QStringList parts;
        for (const Step &step : m_path) {
            if (step.schema->shown)
                parts.append(QStringLiteral("%1 %2").arg(QLatin1String(step.schema->shown)).arg(step.number));
            else if (parts.isEmpty() && step.schema->children.empty())
                parts.append(QLatin1String(step.schema->name));
        }
        return parts.join(QLatin1String(", "));
    }
    void tell(Finding::Kind kind, const QString &words) { m_findings.add(kind, place(), words); }
    void tellOnce(Finding::Kind kind, const Element &schema, const char *name, const QString &words)
    {
        const auto [seen, isNew] =
            m_repeated.try_emplace({&schema, QByteArray(name)}, Repeated{kind, QString(), words, 0});
        if (isNew)
            seen->second.place = place();
        ++seen->second.count;
    }

    // As deep as the schema, not as the file.
    void element(pugi::xml_node node, const Element &schema, int number = 0)
    {
        m_path.push_back({&schema, number});
        attributes(node, schema);
        children(node, schema);
        m_path.pop_back();
    }

    void attributes(pugi::xml_node node, const Element &schema)
    {
        // Attributes stand in the order of the tables, nearly always.
        auto expected = schema.attributes.begin();
        for (pugi::xml_attribute one = node.first_attribute(); one; one = one.next_attribute()) {
            const auto known = find(schema.attributes, expected, one.name());
            if (known == schema.attributes.end()) {
                tellOnce(Finding::Lost, schema, one.name(),
                         KW_TEXT("the attribute %1 of '%2' is not known: passed over")
                             .arg(quoted(QString::fromUtf8(one.name())), QLatin1String(schema.name)));
                continue;
            }
            expected = known + 1;
            const char *const value = one.value();
            if (known->kind == Kind::Text)
                continue;
            const XmlText text(value, int(std::strlen(value)));
            if (isDigits(text.data(), text.size()) && known->kind != Kind::Days && known->kind != Kind::Short)
                continue;
            const QString bad = badValue(known->kind, text);
            if (!bad.isEmpty())
                tell(Finding::Changed,
                     (std::strcmp(known->name, "V") == 0 ? QString()
                                                         : QLatin1String(known->name) + QLatin1String(": ")) +
                         bad);
        }
    }

    static std::vector<Attribute>::const_iterator find(const std::vector<Attribute> &attributes,
                                                       std::vector<Attribute>::const_iterator expected,
                                                       const char *name)
    {
        const auto isIt = [name](const Attribute &one) { return std::strcmp(one.name, name) == 0; };
        const auto after = std::find_if(expected, attributes.end(), isIt);
        if (after != attributes.end())
            return after;
        const auto before = std::find_if(attributes.begin(), expected, isIt);
        return before == expected ? attributes.end() : before;
    }

    void children(pugi::xml_node node, const Element &schema)
    {
        std::vector<std::pair<const Element *, pugi::xml_node>> seen;
        int number = 0;
        for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
            if (child.type() == pugi::node_pcdata)
                tellOnce(Finding::Lost, schema, "",
                         KW_TEXT("text beside the elements of '%1' is passed over")
                             .arg(QLatin1String(schema.name)));
            if (child.type() != pugi::node_element)
                continue;
            ++number;
            const Element *const known = childOf(schema, child.name());
            if (!known) {
                unknownChild(child, schema);
                continue;
            }
            if (std::strcmp(known->name, child.name()) != 0)
                tellOnce(Finding::Changed, schema, child.name(),
                         KW_TEXT("an element %1 is read as a '%2'")
                             .arg(quoted(QString::fromUtf8(child.name())), QLatin1String(known->name)));
            if (known->twice != Twice::IsOneMore) {
                const auto first = std::find_if(seen.begin(), seen.end(),
                                                [known](const auto &one) { return one.first == known; });
                if (first == seen.end()) {
                    seen.push_back({known, child});
                } else {
                    second(*known, first->second, child);
                    first->second = child;
                }
            }
            element(child, *known, number);
        }
        if (m_tasks && std::strcmp(schema.name, "TaskList") == 0)
            m_goesOn = m_tasks([&](const TreeSource &task) { listed(task.node(), schema, ++number); });
    }

    // A child of a list that takes any name.
    void listed(pugi::xml_node child, const Element &schema, int number)
    {
        const Element &known = schema.children.front();
        if (!child)
            return;
        if (std::strcmp(known.name, child.name()) != 0)
            tellOnce(Finding::Changed, schema, child.name(),
                     KW_TEXT("an element %1 is read as a '%2'")
                         .arg(quoted(QString::fromUtf8(child.name())), QLatin1String(known.name)));
        element(child, known, number);
    }

    static const Element *childOf(const Element &schema, const char *name)
    {
        for (const Element &child : schema.children) {
            if (schema.takesAnyName || std::strcmp(child.name, name) == 0)
                return &child;
        }
        return nullptr;
    }

    void unknownChild(pugi::xml_node child, const Element &schema)
    {
        const int inside = elementsIn(child);
        const QString name = quoted(QString::fromUtf8(child.name()));
        const QLatin1String parent(schema.name);
        tellOnce(Finding::Lost, schema, child.name(),
                 inside > 0
                     ? KW_TEXT("the element %1 in '%2' is not known: passed over with the %3 elements in it")
                           .arg(name, parent, QString::number(inside))
                     : KW_TEXT("the element %1 in '%2' is not known: passed over").arg(name, parent));
    }

    void second(const Element &known, pugi::xml_node first, pugi::xml_node)
    {
        const QString name = QLatin1String(known.name);
        const int inside = elementsIn(first);
        if (known.twice == Twice::Joins)
            tell(Finding::Changed, KW_TEXT("'%1' stands twice: intervals of both are taken, of other "
                                           "values the last")
                                       .arg(name));
        else if (known.twice == Twice::IsIgnored)
            tell(Finding::Lost, KW_TEXT("'%1' stands twice: the first one is taken").arg(name));
        else if (inside > 0)
            tell(Finding::Lost, KW_TEXT("'%1' stands twice: the last one is taken, and the %2 elements of "
                                        "the one before are not")
                                    .arg(name)
                                    .arg(inside));
        else
            tell(Finding::Changed, KW_TEXT("'%1' stands twice: the last one is taken").arg(name));
    }

    // Lists without entries are not written; what else is missing was taken away.
    void missingLists(pugi::xml_node root, const KWDocument &document)
    {
        bool hasAny = false;
        for (const Element &list : documentschema::document().children)
            hasAny = hasAny || root.child(list.name);
        if (!hasAny) {
            m_findings.add(Finding::Lost, QString(), KW_TEXT("the file has none of the lists of a plan"));
            return;
        }
        const auto tellMissing = [&](const char *name, const char *words) {
            if (!root.child(name))
                m_findings.add(Finding::Changed, QString(),
                               QString::fromLatin1(words).arg(QLatin1String(name)));
        };
        tellMissing("GanttOption",
                    QT_TR_NOOP("there is no '%1': the plan has no working hours, and the usual options"));
        tellMissing("ResourceInfo", QT_TR_NOOP("there is no '%1': the plan's resources stay as they were"));
        tellMissing("RowColumn", QT_TR_NOOP("there is no '%1': the plan's columns stay as they were"));
        tellMissing("PrintCfg", QT_TR_NOOP("there is no '%1': the page stays as it was"));
        int heights = 0;
        const char *const text =
            root.child("RowColumn").child("RowHeightList").attribute("RowHeight").value();
        XmlText(text, int(std::strlen(text))).split(';', Qt::SkipEmptyParts, [&](const XmlText &) {
            ++heights;
        });
        if (heights != 0 && heights != document.taskCount())
            m_findings.add(document.taskCount() < heights ? Finding::Lost : Finding::Changed, QString(),
                           KW_TEXT("there are %1 tasks in the file and %2 row heights")
                               .arg(document.taskCount())
                               .arg(heights));
    }

    void version(const QString &text)
    {
        const KWVersion version(text);
        const KWVersion current(QString::fromLatin1(documentxml::currentVersion));
        if (version.major() <= 0 || version.minor() < 0)
            m_findings.add(QString(), KW_TEXT("the version %1 is none: %2 is taken")
                                          .arg(quoted(text), QLatin1String(documentxml::currentVersion)));
        else if (version.major() > current.major() ||
                 (version.major() == current.major() && version.minor() > current.minor()))
            m_findings.add(Finding::Read, QString(),
                           KW_TEXT("the file has version %1, and what a version after %2 added is not known")
                               .arg(text, QLatin1String(documentxml::currentVersion)));
    }

    struct Step
    {
        const Element *schema;
        int number; // among its siblings, from 1
    };
    Findings &m_findings;
    Tasks m_tasks;
    bool m_goesOn = true;
    std::vector<Step> m_path;
    std::map<std::pair<const Element *, QByteArray>, Repeated> m_repeated;
};

namespace {

// ---- The document -----------------------------------------------------------------------------------------

int partsIn(const char *text)
{
    int count = 0;
    XmlText(text, int(std::strlen(text))).split(';', Qt::KeepEmptyParts, [&](const XmlText &) { ++count; });
    return count;
}

class DocumentLook
{
public:
    DocumentLook(const KWDocument &document, Findings &findings)
        : m_document(document)
        , m_findings(findings)
    {
    }

    void run(pugi::xml_node root)
    {
        workingTime(root.child("GanttOption"));
        exceptions(lastChild(root, "CdCalendarList"));
        sheet();
        columns();
        tasks();
    }

private:
    static pugi::xml_node lastChild(pugi::xml_node node, const char *name)
    {
        pugi::xml_node last;
        for (pugi::xml_node child = node.child(name); child; child = child.next_sibling(name))
            last = child;
        return last;
    }

    void tell(Finding::Kind kind, const QString &place, const QString &words)
    {
        m_findings.add(kind, place, words);
    }

    void counts(const QString &place, const char *starts, const char *finishes)
    {
        const int begun = partsIn(starts);
        const int ended = partsIn(finishes);
        if (begun > ended)
            tell(Finding::Changed, place,
                 KW_TEXT("%1 starts and %2 finishes: intervals without one end at 12:00")
                     .arg(begun)
                     .arg(ended));
        else if (ended > begun)
            tell(Finding::Lost, place,
                 KW_TEXT("%1 starts and %2 finishes: the surplus is passed over").arg(begun).arg(ended));
    }

    // Whether there was something to tell.
    bool intervals(const QString &place, const QList<KWDayTime *> &hours)
    {
        static constexpr const char *texts[] = {
            "the interval %1 lies past midnight: it counts up to 24:00",
            "the interval %1 ends before it begins: it counts as nothing",
            "the interval %1 has no length",
            "the interval %1 overlaps one before it: the hours of both count",
            "the interval %1 lies before one that stands ahead of it: breaks are counted in the order of the "
            "list",
            ("the interval %1 is not made of whole hours: the hours that it touches at its end do not count, "
             "those at its "
             "beginning do"),
        };
        const QVector<dayhours::Found> found = dayhours::faults(hours);
        for (const dayhours::Found &one : found)
            tell(one.fault == dayhours::PastMidnight || one.fault == dayhours::PartHour ? Finding::Changed
                                                                                        : Finding::Read,
                 place, QString::fromLatin1(texts[one.fault]).arg(dayhours::text(*hours.at(one.index))));
        return !found.isEmpty();
    }

    void workingTime(pugi::xml_node options)
    {
        const QString place = KW_TEXT("working time");
        counts(place, lastChild(options, "StartTime").attribute("V").value(),
               lastChild(options, "FinishTime").attribute("V").value());
        const bool isOdd = intervals(place, m_document.workTimes);
        const worktime::WorkCalendar &calendar = m_document.workCalendar();
        if (calendar.hoursPerDay() <= 0)
            tell(Finding::Refused, place, KW_TEXT("a day has no hours of work: nothing can be scheduled"));
        else if (isOdd)
            tell(Finding::Changed, place,
                 KW_TEXT("a day counts as %1 hours of work from %2:00 to %3:00")
                     .arg(calendar.hoursPerDay())
                     .arg(calendar.startHour())
                     .arg(calendar.finishHour()));
        if (!calendar.hasWorkday())
            tell(Finding::Refused, place,
                 KW_TEXT("no day of the week is a working day: nothing can be scheduled"));
    }

    void exceptions(pugi::xml_node list)
    {
        pugi::xml_node element = elementFrom(list.first_child());
        for (int i = 0; i < m_document.calendars.size() && element; ++i) {
            exception(*m_document.calendars.at(i), element, i);
            element = elementFrom(element.next_sibling());
        }
    }

    void exception(const KWCalendar &calendar, pugi::xml_node element, int number)
    {
        const QString place =
            calendar.name.isEmpty()
                ? KW_TEXT("exception %1").arg(number + 1)
                : QStringLiteral("exception %1 %2").arg(number + 1).arg(quoted(calendar.name));
        bool hasDates = true;
        for (const auto &[name, end] :
             {std::pair("CdStartDate", "start"), std::pair("CdFinishDate", "finish")}) {
            const QLatin1String date(element.attribute(name).value());
            if (date.isEmpty())
                tell(Finding::Changed, place,
                     KW_TEXT("there is no %1: today is taken").arg(QLatin1String(end)));
            else if (date == QLatin1String("0"))
                tell(Finding::Read, place,
                     KW_TEXT("there is no %1 (0): 1 January 1970 is taken").arg(QLatin1String(end)));
            else
                continue;
            hasDates = false;
        }
        if (hasDates && calendar.startDate > calendar.finishDate)
            tell(Finding::Read, place,
                 KW_TEXT("it begins on %1 and ends on %2: it covers no date")
                     .arg(calendar.startDate.toString(Qt::ISODate),
                          calendar.finishDate.toString(Qt::ISODate)));
        if (!element.attribute("CdIsException"))
            tell(
                Finding::Changed, place,
                KW_TEXT("nothing says that it is an exception: it makes no date a day off or a working day"));
        counts(place, element.attribute("CdStartTime").value(), element.attribute("CdFinishTime").value());
        intervals(place, calendar.dayTimes);
        const int hours = dayhours::wholeHours(calendar.dayTimes);
        const int usual = m_document.workCalendar().hoursPerDay();
        if (calendar.isException && calendar.isWork && !calendar.dayTimes.isEmpty() && hours != usual)
            tell(Finding::Changed, place,
                 KW_TEXT("its hours %1 are not kept: a whole working day of %2 hours is counted")
                     .arg(dayhours::text(calendar.dayTimes))
                     .arg(usual));
    }

    void sheet()
    {
        QHash<qint32, int> ids;
        QHash<QString, int> names;
        const QVector<ResourceInfo *> &infos = m_document.resourceInfoData()->infos;
        for (int i = 0; i < infos.size(); ++i) {
            const ResourceInfo &info = *infos.at(i);
            const QString place = KW_TEXT("resource %1").arg(i + 1);
            for (const recordfaults::Found &found : recordfaults::of(info))
                tell(Finding::Read, place, entryWords(found.fault));
            const int sameId = info.ID == 0 ? i : ids.value(info.ID, i);
            ids.insert(info.ID, sameId);
            if (sameId != i)
                tell(Finding::Read, place,
                     KW_TEXT("ID %1 is that of resource %2, too: resources are told apart by their names")
                         .arg(info.ID)
                         .arg(sameId + 1));
            const QString name = info.name.trimmed();
            const int sameName = names.value(name, i);
            names.insert(name, sameName);
            if (sameName != i && !name.isEmpty())
                tell(Finding::Read, place,
                     KW_TEXT("%1 is the name of resource %2, too: tasks mean that one")
                         .arg(quoted(name))
                         .arg(sameName + 1));
        }
    }

    static QString entryWords(recordfaults::Fault fault)
    {
        if (fault == recordfaults::NoName)
            return KW_TEXT("it has no name");
        if (fault == recordfaults::NegativeUnits)
            return KW_TEXT("its units are negative");
        return KW_TEXT("the unit of its rate is not known: it costs nothing");
    }

    void columns()
    {
        if (RowColumnData::s_columnNames.isEmpty())
            return; // the host has not filled them
        const QList<RowColumnData::ColumnData *> &all = m_document.rowColumnData()->columns();
        for (int i = 0; i < all.size(); ++i) {
            if (QString(all.at(i)->title).isEmpty())
                tell(Finding::Changed, KW_TEXT("column %1").arg(i + 1),
                     KW_TEXT("there is no column of its kind: it stays empty"));
        }
    }

    void tasks()
    {
        for (int pos = 0; pos < m_document.taskCount(); ++pos) {
            const KWTaskInfo &task = *m_document.taskList().at(pos);
            for (const recordfaults::Found &found : recordfaults::of(task))
                tell(Finding::Read, taskPlace(pos), taskWords(task, found));
            for (const Resource *assigned : task.resourceList) {
                for (const recordfaults::Found &found : recordfaults::of(*assigned))
                    tell(Finding::Read,
                         taskPlace(pos) + QLatin1String(", resource ") + quoted(assigned->name),
                         entryWords(found.fault));
            }
        }
    }

    static QString taskWords(const KWTaskInfo &task, const recordfaults::Found &found)
    {
        switch (found.fault) {
        case recordfaults::PercentOutside:
            return KW_TEXT("%1 done is not within 0 to 1 (100 %): kept").arg(task.Percent);
        case recordfaults::NoStart:
            return KW_TEXT("it has a finish and no start: kept, as if it began in 1970");
        case recordfaults::NoFinish:
            return KW_TEXT("it has a start and no finish: kept");
        case recordfaults::FinishFirst:
            return KW_TEXT("it finishes before it starts: kept");
        case recordfaults::LongMilestone:
            return KW_TEXT("a milestone that takes time: kept, and shown without its length");
        case recordfaults::UnknownUnit:
            return KW_TEXT("%1 is no unit of durations: kept, and counted in days").arg(task.DurationUnits);
        case recordfaults::RepeatedPredecessor:
            return KW_TEXT("it names the predecessor %1 twice: kept").arg(found.other);
        case recordfaults::RepeatedSuccessor:
            return KW_TEXT("it names the successor %1 twice: kept").arg(found.other);
        default:
            return KW_TEXT("there is nothing in it: saving leaves it out");
        }
    }

    const KWDocument &m_document;
    Findings &m_findings;
};
}

XmlLook::XmlLook(Findings &findings)
    : m_walk(std::make_unique<Walk>(findings))
{
}

XmlLook::~XmlLook() = default;

bool XmlLook::lookAtElements(const TreeSource &root, const Tasks &tasks)
{
    return m_walk->run(root.node(), tasks);
}

void XmlLook::lookAtLists(const TreeSource &root, const KWDocument &document)
{
    m_walk->finish(root.node(), document);
}

void lookAtDocument(const TreeSource &root, const KWDocument &document, Findings &findings)
{
    DocumentLook(document, findings).run(root.node());
}

QVector<quint32> midnights(const TreeSource &root)
{
    QVector<quint32> all;
    for (pugi::xml_node list = root.node().child("CdCalendarList"); list;
         list = list.next_sibling("CdCalendarList")) {
        all.clear();
        for (pugi::xml_node one = elementFrom(list.first_child()); one;
             one = elementFrom(one.next_sibling())) {
            for (const char *name : {"CdStartDate", "CdFinishDate"}) {
                const char *const text = one.attribute(name).value();
                all.append(XmlText(text, int(std::strlen(text))).toUInt());
            }
        }
    }
    return all;
}
}
