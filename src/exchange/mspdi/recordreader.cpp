#include "exchange/mspdi/recordreader.h"
#include "support/kwlimits.h"
#include "support/longwork.h"
#include "support/said.h"
#include "support/xmlpull.h"
#include <QTextCodec>
#include <algorithm>
#include <limits>

namespace mspdi {
namespace {

constexpr char formatNamespace[] = "http://schemas.microsoft.com/project";

constexpr int maxSpoilt = 1000;

int toInt(std::optional<qint64> number, int otherwise)
{
    if (!number)
        return otherwise;
    return int(std::clamp<qint64>(*number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

class RecordReader
{
public:
    RecordReader(const QByteArray &utf8, File &file)
        : m_xml(utf8)
        , m_file(file)
    {
    }

    bool readAll(QString &error)
    {
        const bool isWhole = m_xml.next() == XmlPull::Begin && children(m_file, projectElements()) &&
                             m_xml.next() == XmlPull::Finished;
        if (!isWhole)
            error = m_limit.isEmpty() ? m_xml.error() : m_limit;
        if (!isWhole && error.isEmpty())
            error = KW_TEXT("the XML ends early");
        return isWhole;
    }

private:
    // What an element means for a record. Values that may stand several times are lists.
    template <typename Record>
    struct Element
    {
        std::string_view name;
        void (*read)(RecordReader &, Record &);
        bool isList = false;
    };
    template <typename Record>
    using Elements = std::vector<Element<Record>>;

    // ---- The walk -----------------------------------------------------------------------------------------
    // The children of the element that has begun, up to its end.
    template <typename Record>
    bool children(Record &record, const Elements<Record> &elements)
    {
        quint64 seen = 0;
        static_assert(sizeof(seen) * 8 >= 64, "one bit for each element of a table");
        for (XmlPull::Token token = m_xml.next();; token = m_xml.next()) {
            if (token == XmlPull::End)
                return true;
            if (token == XmlPull::Text)
                continue;
            if (token != XmlPull::Begin || !m_limit.isEmpty())
                return false;
            const std::string_view name = m_xml.name();
            const auto found = std::lower_bound(elements.begin(), elements.end(), name,
                                                [](const Element<Record> &element, std::string_view wanted) {
                                                    return element.name < wanted;
                                                });
            if (found == elements.end() || found->name != name) {
                if (!m_xml.skip())
                    return false;
                continue;
            }
            const quint64 bit = quint64(1) << (found - elements.begin());
            if (!found->isList && (seen & bit)) {
                if (!m_xml.skip())
                    return false;
                continue;
            }
            seen |= bit;
            m_element = found->name;
            found->read(*this, record);
            if (!m_xml.error().isEmpty() || !m_limit.isEmpty())
                return false;
        }
    }

    template <typename Record>
    static Elements<Record> sorted(Elements<Record> elements)
    {
        std::sort(elements.begin(), elements.end(),
                  [](const Element<Record> &a, const Element<Record> &b) { return a.name < b.name; });
        Q_ASSERT(elements.size() <= 64);
        return elements;
    }

    // The records of a list, each of them an element of that name.
    template <typename Record>
    void list(std::vector<Record> &records, const char *name, const Elements<Record> &elements,
              std::size_t most, Spoilt::List which, bool &isRead)
    {
        if (isRead) {
            ++m_file.repeatedLists;
            m_xml.skip();
            return;
        }
        isRead = true;
        m_list = which;
        while (m_limit.isEmpty()) {
            constexpr std::size_t recordsBetween = 256;
            if (records.size() % recordsBetween == 0 &&
                !LongWork::goesOn(LongWork::Reading, m_xml.bytesRead(), m_xml.bytes())) {
                m_limit = KW_TEXT("given up");
                break;
            }
            const XmlPull::Token token = m_xml.next();
            if (token == XmlPull::Text)
                continue;
            if (token != XmlPull::Begin)
                break;
            if (!m_xml.is(name)) {
                if (!m_xml.skip())
                    break;
                continue;
            }
            if (records.size() == most) {
                m_limit = KW_TEXT("it has more than %1 %2s").arg(most).arg(QLatin1String(name));
                return;
            }
            records.emplace_back();
            m_place = records.size() - 1;
            if (!children(records.back(), elements))
                break;
        }
        m_list = Spoilt::OfProject;
        m_place = 0;
    }

    // ---- Values -------------------------------------------------------------------------------------------
    std::string_view text() { return m_xml.utf8OfElement(m_buffer); }
    QString string() { return m_xml.textOfElement(); }

    void spoil(std::string_view text)
    {
        ++m_file.spoiltCount;
        if (m_file.spoilt.size() >= maxSpoilt)
            return;
        constexpr int longest = 40;
        Spoilt spoilt;
        spoilt.list = m_list;
        spoilt.place = m_place;
        spoilt.element = QString::fromLatin1(m_element.data(), int(m_element.size()));
        spoilt.text = QString::fromUtf8(text.data(), int(text.size())).simplified().left(longest);
        m_file.spoilt.push_back(spoilt);
    }
    // An empty element says nothing.
    static bool isEmpty(std::string_view text) { return text.find_first_not_of(" \t\r\n") == text.npos; }
    template <typename Value>
    std::optional<Value> value(std::optional<Value> (*parse)(std::string_view))
    {
        const std::string_view found = text();
        const std::optional<Value> result = parse(found);
        if (!result && !isEmpty(found))
            spoil(found);
        return result;
    }
    // Sums of them stay exact enough to be shown.
    static std::optional<double> amount(std::string_view text)
    {
        constexpr double most = 1e15;
        const std::optional<double> number = real(text);
        return number && *number >= -most && *number <= most ? number : std::nullopt;
    }
    void read(QString &to) { to = string(); }
    void read(Moment &to)
    {
        const std::string_view found = text();
        to = moment(found);
        // Writers say "NA" for none.
        if (to.state == Moment::Spoilt && found == "NA")
            to.state = Moment::None;
        if (to.state == Moment::Spoilt)
            spoil(found);
    }
    void read(qint64 &to) { to = value(whole).value_or(to); }
    void read(int &to) { to = toInt(value(whole), to); }
    void read(double &to) { to = value(amount).value_or(to); }
    void read(bool &to) { to = value(flag).value_or(to); }
    void read(std::optional<bool> &to) { to = value(flag); }
    void read(std::optional<double> &to) { to = value(amount); }
    void read(std::optional<int> &to)
    {
        if (const std::optional<qint64> number = value(whole))
            to = toInt(number, 0);
    }
    void readMinutes(std::optional<double> &to)
    {
        to = value(minutes);
        constexpr double most = 136.0 * 366 * 24 * 60; // all time that there is
        if (to && (*to > most || *to < 0)) {
            spoil(*to < 0 ? "a negative length" : "a length beyond all dates");
            to.reset();
        }
    }

    template <auto member, typename Record>
    static void field(RecordReader &reader, Record &record)
    {
        reader.read(record.*member);
    }
    template <auto member, typename Record>
    static void length(RecordReader &reader, Record &record)
    {
        reader.readMinutes(record.*member);
    }

    // ---- Calendars ----------------------------------------------------------------------------------------
    struct Period
    {
        Moment from;
        Moment to;
    };
    struct Times
    {
        std::optional<int> from;
        std::optional<int> to;
    };

    template <typename Record>
    static void period(RecordReader &reader, Record &record)
    {
        static const Elements<Period> elements = sorted<Period>({
            {"FromDate", field<&Period::from>},
            {"ToDate", field<&Period::to>},
        });
        Period found;
        if (reader.children(found, elements)) {
            record.from = found.from;
            record.to = found.to;
        }
    }
    template <std::optional<int> Times::*member>
    static void time(RecordReader &reader, Times &times)
    {
        times.*member = reader.value(timeOfDay);
    }
    template <typename Record>
    static void workingTimes(RecordReader &reader, Record &record)
    {
        static const Elements<Times> elements = sorted<Times>({
            {"FromTime", time<&Times::from>},
            {"ToTime", time<&Times::to>},
        });
        static const Elements<Record> intervals = sorted<Record>({
            {"WorkingTime",
             [](RecordReader &inner, Record &of) {
                 Times times;
                 constexpr std::size_t most = 100; // the format has five
                 if (inner.children(times, elements) && times.from && times.to && of.hours.size() < most)
                     of.hours.push_back({*times.from, *times.to});
             },
             true},
        });
        reader.children(record, intervals);
    }

    static void weekDays(RecordReader &reader, Calendar &calendar)
    {
        static const Elements<WeekDay> elements = sorted<WeekDay>({
            {"DayType", field<&WeekDay::dayType>},
            {"DayWorking", field<&WeekDay::works>},
            {"TimePeriod", period<WeekDay>},
            {"WorkingTimes", workingTimes<WeekDay>},
        });
        static const Elements<Calendar> days = sorted<Calendar>({
            {"WeekDay",
             [](RecordReader &inner, Calendar &of) {
                 WeekDay day;
                 if (inner.countException() && inner.children(day, elements))
                     keep(day, of);
             },
             true},
        });
        reader.children(calendar, days);
    }
    static void keep(const WeekDay &day, Calendar &calendar)
    {
        constexpr int lastType = 7;
        const bool isSaid = std::any_of(calendar.week.begin(), calendar.week.end(),
                                        [&](const WeekDay &other) { return other.dayType == day.dayType; });
        if (day.dayType == 0)
            calendar.dated.push_back(day);
        else if (day.dayType > 0 && day.dayType <= lastType && !isSaid)
            calendar.week.push_back(day);
    }
    static void exceptions(RecordReader &reader, Calendar &calendar)
    {
        static const Elements<Exception> elements = sorted<Exception>({
            {"DayWorking", field<&Exception::works>},
            {"DaysOfWeek", field<&Exception::daysOfWeek>},
            {"EnteredByOccurrences", field<&Exception::countsOccurrences>},
            {"Month", field<&Exception::month>},
            {"MonthDay", field<&Exception::monthDay>},
            {"MonthItem", field<&Exception::monthItem>},
            {"MonthPosition", field<&Exception::monthPosition>},
            {"Name", field<&Exception::name>},
            {"Occurrences", field<&Exception::occurrences>},
            {"Period", field<&Exception::period>},
            {"TimePeriod", period<Exception>},
            {"Type", field<&Exception::type>},
            {"WorkingTimes", workingTimes<Exception>},
        });
        static const Elements<Calendar> list = sorted<Calendar>({
            {"Exception",
             [](RecordReader &inner, Calendar &of) {
                 of.exceptions.emplace_back();
                 if (inner.countException())
                     inner.children(of.exceptions.back(), elements);
             },
             true},
        });
        reader.children(calendar, list);
    }
    static void workWeeks(RecordReader &reader, Calendar &calendar)
    {
        static const Elements<Calendar> weeks = sorted<Calendar>({
            {"WorkWeek",
             [](RecordReader &inner, Calendar &of) {
                 ++of.workWeeks;
                 inner.m_xml.skip();
             },
             true},
        });
        reader.children(calendar, weeks);
    }
    static const Elements<Calendar> &calendarElements()
    {
        static const Elements<Calendar> elements = sorted<Calendar>({
            {"BaseCalendarUID", field<&Calendar::base>},
            {"Exceptions", exceptions},
            {"IsBaseCalendar", field<&Calendar::isBase>},
            {"Name", field<&Calendar::name>},
            {"UID", field<&Calendar::uid>},
            {"WeekDays", weekDays},
            {"WorkWeeks", workWeeks},
        });
        return elements;
    }
    bool countException()
    {
        if (++m_exceptions > maxExceptions)
            m_limit = KW_TEXT("its calendars have more than %1 days").arg(maxExceptions);
        return m_limit.isEmpty();
    }

    // ---- Tasks --------------------------------------------------------------------------------------------
    // Codes of one's own may stand in place of numbers, and tell no depth.
    template <int Task::*depth>
    static void outlineNumber(RecordReader &reader, Task &task)
    {
        const std::string_view found = reader.text();
        if (isEmpty(found) || found.find_first_not_of("0123456789. \t\r\n") != found.npos)
            return;
        constexpr int deepest = 1000000;
        task.*depth =
            found == "0"
                ? 0
                : 1 + int(std::min<std::ptrdiff_t>(deepest, std::count(found.begin(), found.end(), '.')));
    }
    static void predecessor(RecordReader &reader, Task &task)
    {
        static const Elements<Link> elements = sorted<Link>({
            {"CrossProject", field<&Link::isAcross>},
            {"CrossProjectName", field<&Link::project>},
            {"LagFormat", field<&Link::lagFormat>},
            {"LinkLag", field<&Link::lag>},
            {"PredecessorUID", field<&Link::predecessor>},
            {"Type", field<&Link::type>},
        });
        if (++reader.m_links > maxLinks) {
            reader.m_limit = KW_TEXT("it has more than %1 links").arg(maxLinks);
            return;
        }
        Link link;
        if (reader.children(link, elements))
            task.links.push_back(std::move(link));
    }
    static void baseline(RecordReader &reader, Task &task)
    {
        static const Elements<Baseline> elements = sorted<Baseline>({
            {"Cost", field<&Baseline::cost>},
            {"Finish", field<&Baseline::finish>},
            {"Number", field<&Baseline::number>},
            {"Start", field<&Baseline::start>},
        });
        Baseline found;
        if (!reader.children(found, elements))
            return;
        if (found.number != 0)
            task.hasFurtherBaselines = true;
        else if (!task.baseline)
            task.baseline = found;
    }
    template <typename Record>
    static void timephased(RecordReader &reader, Record &record)
    {
        record.hasTimephased = true;
        reader.m_xml.skip();
    }
    template <typename Record>
    static void custom(RecordReader &reader, Record &)
    {
        ++reader.m_file.customValues;
        reader.m_xml.skip();
    }
    static const Elements<Task> &taskElements()
    {
        static const Elements<Task> elements = sorted<Task>({
            {"Active", field<&Task::isActive>},
            {"Baseline", baseline, true},
            {"CalendarUID", field<&Task::calendar>},
            {"ConstraintType", field<&Task::constraint>},
            {"Cost", field<&Task::cost>},
            {"Deadline", field<&Task::deadline>},
            {"Duration", length<&Task::minutes>},
            {"DurationFormat", field<&Task::durationFormat>},
            {"DurationText", field<&Task::durationText>},
            {"ExtendedAttribute", custom<Task>, true},
            {"ExternalTask", field<&Task::isExternal>},
            {"Finish", field<&Task::finish>},
            {"FinishText", field<&Task::finishText>},
            {"Hyperlink", field<&Task::hyperlink>},
            {"HyperlinkAddress", field<&Task::hyperlinkAddress>},
            {"HyperlinkSubAddress", field<&Task::hyperlinkSubAddress>},
            {"ID", field<&Task::id>},
            {"IsNull", field<&Task::isNull>},
            {"IsSubproject", field<&Task::isSubproject>},
            {"Manual", field<&Task::isManual>},
            {"Milestone", field<&Task::isMilestone>},
            {"Name", field<&Task::name>},
            {"Notes", field<&Task::notes>},
            {"OutlineCode", custom<Task>, true},
            {"OutlineLevel", field<&Task::level>},
            {"OutlineNumber", outlineNumber<&Task::outlineDepth>},
            {"PercentComplete", field<&Task::percent>},
            {"PredecessorLink", predecessor, true},
            {"Priority", field<&Task::priority>},
            {"Recurring", field<&Task::isRecurring>},
            {"Start", field<&Task::start>},
            {"StartText", field<&Task::startText>},
            {"Summary", field<&Task::isSummary>},
            {"TimephasedData", timephased<Task>, true},
            {"UID", field<&Task::uid>},
            {"WBS", outlineNumber<&Task::wbsDepth>},
        });
        return elements;
    }

    // ---- Resources and assignments ------------------------------------------------------------------------
    struct RateRow
    {
        int table = 0;
        Moment from;
        double standard = 0;
        double overtime = 0;
        double perUse = 0;
    };
    // Most planners write all five tables of every resource, four of them with noughts.
    static void rates(RecordReader &reader, Resource &resource)
    {
        static const Elements<RateRow> elements = sorted<RateRow>({
            {"CostPerUse", field<&RateRow::perUse>},
            {"OvertimeRate", field<&RateRow::overtime>},
            {"RateTable", field<&RateRow::table>},
            {"RatesFrom", field<&RateRow::from>},
            {"StandardRate", field<&RateRow::standard>},
        });
        struct Rows
        {
            int ofFirstTable = 0;
            bool hasOthers = false;
        };
        static const Elements<Rows> list = sorted<Rows>({
            {"Rate",
             [](RecordReader &inner, Rows &rows) {
                 RateRow row;
                 if (!inner.children(row, elements))
                     return;
                 if (row.table == 0)
                     ++rows.ofFirstTable;
                 else
                     rows.hasOthers =
                         rows.hasOthers || row.standard != 0 || row.overtime != 0 || row.perUse != 0;
             },
             true},
        });
        Rows rows;
        reader.children(rows, list);
        resource.hasFurtherRates = rows.hasOthers || rows.ofFirstTable > 1;
    }
    static void availability(RecordReader &reader, Resource &resource)
    {
        struct Rows
        {
            int count = 0;
        };
        static const Elements<Rows> list = sorted<Rows>({
            {"AvailabilityPeriod",
             [](RecordReader &inner, Rows &rows) {
                 ++rows.count;
                 inner.m_xml.skip();
             },
             true},
        });
        Rows rows;
        reader.children(rows, list);
        resource.hasAvailability = rows.count > 1;
    }
    static const Elements<Resource> &resourceElements()
    {
        static const Elements<Resource> elements = sorted<Resource>({
            {"AvailabilityPeriods", availability},
            {"CalendarUID", field<&Resource::calendar>},
            {"CostPerUse", field<&Resource::costPerUse>},
            {"EmailAddress", field<&Resource::email>},
            {"ExtendedAttribute", custom<Resource>, true},
            {"Group", field<&Resource::group>},
            {"ID", field<&Resource::id>},
            {"IsCostResource", field<&Resource::isCost>},
            {"IsNull", field<&Resource::isNull>},
            {"MaxUnits", field<&Resource::maxUnits>},
            {"Name", field<&Resource::name>},
            {"Notes", field<&Resource::notes>},
            {"OutlineCode", custom<Resource>, true},
            {"OvertimeRate", field<&Resource::overtimeRate>},
            {"OvertimeRateFormat", field<&Resource::overtimeFormat>},
            {"Rates", rates},
            {"StandardRate", field<&Resource::standardRate>},
            {"StandardRateFormat", field<&Resource::standardFormat>},
            {"Type", field<&Resource::type>},
            {"UID", field<&Resource::uid>},
        });
        return elements;
    }
    static void overtime(RecordReader &reader, Assignment &assignment)
    {
        assignment.overtimeWork = reader.value(minutes).value_or(0);
    }
    static const Elements<Assignment> &assignmentElements()
    {
        static const Elements<Assignment> elements = sorted<Assignment>({
            {"Cost", field<&Assignment::cost>},
            {"CostRateTable", field<&Assignment::rateTable>},
            {"Delay", field<&Assignment::delay>},
            {"ExtendedAttribute", custom<Assignment>, true},
            {"OvertimeWork", overtime},
            {"ResourceUID", field<&Assignment::resource>},
            {"TaskUID", field<&Assignment::task>},
            {"TimephasedData", timephased<Assignment>, true},
            {"UID", field<&Assignment::uid>},
            {"Units", field<&Assignment::units>},
            {"Work", length<&Assignment::work>},
            {"WorkContour", field<&Assignment::contour>},
        });
        return elements;
    }

    // ---- The file -----------------------------------------------------------------------------------------
    static const Elements<File> &projectElements()
    {
        static const Elements<File> elements = sorted<File>({
            {"Assignments",
             [](RecordReader &reader, File &file) {
                 reader.list(file.assignments, "Assignment", assignmentElements(), maxAssignments,
                             Spoilt::OfAssignment, reader.m_hasAssignments);
             },
             true},
            {"CalendarUID", field<&File::calendar>},
            {"Calendars",
             [](RecordReader &reader, File &file) {
                 reader.list(file.calendars, "Calendar", calendarElements(), maxCalendars, Spoilt::OfCalendar,
                             reader.m_hasCalendars);
             },
             true},
            {"DaysPerMonth", field<&File::daysPerMonth>},
            {"DurationFormat", field<&File::durationFormat>},
            {"FinishDate", field<&File::finish>},
            {"MinutesPerDay", field<&File::minutesPerDay>},
            {"MinutesPerWeek", field<&File::minutesPerWeek>},
            {"Name", field<&File::name>},
            {"Resources",
             [](RecordReader &reader, File &file) {
                 reader.list(file.resources, "Resource", resourceElements(), maxResources, Spoilt::OfResource,
                             reader.m_hasResources);
             },
             true},
            {"ScheduleFromStart", field<&File::isScheduledFromStart>},
            {"StartDate", field<&File::start>},
            {"Tasks",
             [](RecordReader &reader, File &file) {
                 reader.list(file.tasks, "Task", taskElements(), maxTasks, Spoilt::OfTask, reader.m_hasTasks);
             },
             true},
            {"Title", field<&File::title>},
        });
        return elements;
    }

    XmlPull m_xml;
    File &m_file;
    QByteArray m_buffer;
    QString m_limit; // which one is passed; empty: none
    std::string_view m_element;
    Spoilt::List m_list = Spoilt::OfProject;
    std::size_t m_place = 0;
    int m_links = 0;
    int m_exceptions = 0;
    bool m_hasCalendars = false;
    bool m_hasTasks = false;
    bool m_hasResources = false;
    bool m_hasAssignments = false;
};

// The encoding that the text names itself, where it is not UTF-8; null for UTF-8 and for no name.
QTextCodec *namedCodec(const QByteArray &bytes)
{
    constexpr int longest = 200; // of a declaration
    const QByteArray beginning = bytes.left(longest);
    const int end = beginning.indexOf("?>");
    const int at = beginning.indexOf("encoding");
    if (!beginning.startsWith("<?xml") || end < 0 || at < 0 || at > end)
        return nullptr;
    const int quote = beginning.indexOf(
        beginning.indexOf('"', at) > at && beginning.indexOf('"', at) < end ? '"' : '\'', at);
    const int close = quote < 0 ? -1 : beginning.indexOf(beginning.at(quote), quote + 1);
    if (close < 0)
        return nullptr;
    const QByteArray name = beginning.mid(quote + 1, close - quote - 1).trimmed().toLower();
    if (name == "utf-8" || name == "utf8" || name.startsWith("utf-16") || name.isEmpty())
        return nullptr;
    return QTextCodec::codecForName(name);
}

QByteArray decoded(const QByteArray &bytes)
{
    const QByteArray text = XmlPull::toUtf8(bytes);
    QTextCodec *const codec = namedCodec(text);
    return codec ? codec->toUnicode(text).toUtf8() : text;
}

// From the root's "<" on; -1 when the text is cut before it. Declarations and comments stand before it.
int rootAt(const QByteArray &text)
{
    int at = 0;
    for (;;) {
        at = text.indexOf('<', at);
        if (at < 0 || at + 1 >= text.size())
            return -1;
        const char *close = text.at(at + 1) == '?' ? "?>" : text.mid(at, 4) == "<!--" ? "-->" : nullptr;
        if (!close && text.at(at + 1) == '!')
            close = ">";
        if (!close)
            return at;
        at = text.indexOf(close, at + 2);
        if (at < 0)
            return -1;
    }
}
}

bool isProject(const QByteArray &beginning)
{
    const QByteArray text = decoded(beginning);
    const int begin = rootAt(text);
    const int end = begin < 0 ? -1 : text.indexOf('>', begin);
    if (end < 0)
        return false;
    XmlPull root(text.mid(begin, end + 1 - begin));
    if (root.next() != XmlPull::Begin || !root.is("Project"))
        return false;
    const QByteArray tag = text.mid(begin + 1, end - begin);
    const int colon = tag.indexOf(':');
    const bool hasPrefix = colon > 0 && colon < tag.indexOf("Project");
    const QByteArray attribute = hasPrefix ? "xmlns:" + tag.left(colon) : QByteArrayLiteral("xmlns");
    const QString name =
        root.attribute(std::string_view(attribute.constData(), std::size_t(attribute.size())));
    return name.isEmpty() || name.startsWith(QLatin1String(formatNamespace));
}

bool readFile(const QByteArray &bytes, File &file, QString &error)
{
    file = File();
    if (!isProject(bytes.left(int(beginningBytes)))) {
        error = KW_TEXT("it is no project XML: its root is no Project of that format");
        return false;
    }
    RecordReader reader(decoded(bytes), file);
    return reader.readAll(error);
}
}
