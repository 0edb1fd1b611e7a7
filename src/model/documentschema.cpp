#include "model/documentschema.h"
#include "editing/hyperlinkxml.h"
#include "engine/record/fieldxml.h"
#include "engine/record/resourcefields.h"
#include "engine/record/taskfields.h"
#include "model/kwdocument_options.h"

namespace documentschema {

namespace {

constexpr bool anyName = true;

Element oneOf(const char *name, const std::vector<Attribute> &attributes, const char *shown)
{
    return {name, attributes, {}, Twice::IsOneMore, false, shown};
}

Kind kindOf(const QString &)
{
    return Kind::Text;
}
constexpr Kind kindOf(bool)
{
    return Kind::Flag;
}
constexpr Kind kindOf(qint32)
{
    return Kind::Whole;
}
constexpr Kind kindOf(quint32)
{
    return Kind::Unsigned;
}
constexpr Kind kindOf(double)
{
    return Kind::Number;
}
Kind kindOf(const QList<quint32> &)
{
    return Kind::Ids;
}

template <typename Record, typename Table>
std::vector<Attribute> attributesOf(const Table &table)
{
    std::vector<Attribute> attributes;
    const Record record;
    fields::forEach(table, fields::Xml, [&](const auto &row) {
        attributes.push_back({row.name, kindOf(fields::plain(record.*row.member))});
    });
    return attributes;
}

Element option(const char *name, Kind kind, Twice twice = Twice::Replaces)
{
    return {name, {{"V", kind}}, {}, twice};
}

// Options are read as unsigned numbers, whatever holds them.
template <typename Table>
void addOptions(const Table &table, std::vector<Element> &options)
{
    const auto add = [&](const auto &row) {
        const Kind kind = kindOf(std::decay_t<decltype(std::declval<KWDocument>().*row.member)>());
        options.push_back(option(row.name, kind == Kind::Whole ? Kind::Positive : kind));
    };
    std::apply([&](const auto &...rows) { (add(rows), ...); }, table);
}

Element options()
{
    std::vector<Element> all{option("WorkDay", Kind::Days), option("StartTime", Kind::Secs, Twice::Joins),
                             option("FinishTime", Kind::Secs)};
    addOptions(optionsxml::units, all);
    addOptions(optionsxml::display, all);
    return {"GanttOption", {}, all, Twice::Joins};
}

Element task()
{
    std::vector<Element> texts;
    for (const hyperlinkxml::TextField &field : hyperlinkxml::textFields)
        texts.push_back({field.element, {{"V", Kind::Text}}, {}, Twice::Replaces});
    Element link = oneOf(
        "Hyperlink",
        {{"Name", Kind::Text}, {"ID", Kind::Kept}, {"Type", Kind::Kept}, {"Default", Kind::Text}}, "link");
    link.children = texts;
    const Element format{"Format",
                         {{"Family", Kind::Text},
                          {"PointSize", Kind::Kept},
                          {"Bold", Kind::Flag},
                          {"Italic", Kind::Flag},
                          {"Underline", Kind::Flag},
                          {"StrikeOut", Kind::Flag}},
                         {},
                         Twice::Replaces};
    const Element assignment = oneOf("Resource", attributesOf<Resource>(fields::resourceFields), "resource");
    Element task = oneOf("Task", attributesOf<TaskRecord>(fields::taskFields), "task");
    task.children = {format,
                     {"Hyperlinks", {}, {link}, Twice::Replaces},
                     {"ResourceList", {}, {assignment}, Twice::Replaces, anyName}};
    return task;
}

Element table()
{
    const Element column =
        oneOf("Column", {{"IsHide", Kind::Flag}, {"Key", Kind::Whole}, {"Width", Kind::Number}}, "column");
    return {"RowColumn",
            {},
            {{"RowHeightList", {{"RowHeight", Kind::Numbers}}, {}, Twice::Replaces},
             {"ColumnList", {}, {column}, Twice::Replaces, anyName}},
            Twice::Replaces};
}

Element page()
{
    const std::vector<Attribute> setup{
        {"Portrait", Kind::Text},   {"FittoSheet", Kind::Text}, {"HSheet", Kind::Short},
        {"VSheet", Kind::Short},    {"Zoom", Kind::Whole},      {"Toggle", Kind::Text},
        {"Background", Kind::Text}, {"Left", Kind::Number},     {"Top", Kind::Number},
        {"Width", Kind::Number},    {"Height", Kind::Number},   {"Unit", Kind::Text}};
    return {"PrintCfg", setup, {{"PrintSetup", setup, {}, Twice::IsIgnored}}, Twice::Replaces};
}

Element calendars()
{
    const Element calendar = oneOf("CdCalendar",
                                   {{"CdExceptionName", Kind::Text},
                                    {"CdStartDate", Kind::Unsigned},
                                    {"CdFinishDate", Kind::Unsigned},
                                    {"CdIsException", Kind::Flag},
                                    {"CdIsWork", Kind::Flag},
                                    {"CdStartTime", Kind::Secs},
                                    {"CdFinishTime", Kind::Secs}},
                                   "exception");
    return {"CdCalendarList", {}, {calendar}, Twice::Replaces, anyName};
}

Element sheet()
{
    return {"ResourceInfo",
            {},
            {oneOf("Column", attributesOf<ResourceEntry>(fields::resourceInfoFields), "resource")},
            Twice::Replaces,
            anyName};
}
}

const Element &document()
{
    static const Element root{"Document",
                              {{"DocGuid", Kind::Text}, {"Version", Kind::Text}},
                              {options(),
                               {"TaskList", {}, {task()}, Twice::Replaces, anyName},
                               sheet(),
                               table(),
                               page(),
                               calendars()}};
    return root;
}
}
