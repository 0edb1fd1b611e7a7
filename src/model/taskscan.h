#pragma once
#include "model/documentschema.h"
#include "model/kwtaskinfo_xml.h"
#include <QByteArray>
#include <string>
#include <string_view>
#include <vector>

// Reads tasks straight from the text of a "document.xml", as saving writes them: elements and attributes in
// that order, some of them left out, and values of their kind. Of nearly all files these are all tasks, and
// no tree and no look at one is needed to know that nothing of them is passed over.
class TaskScan
{
public:
    TaskScan();
    TaskScan(const TaskScan &) = delete;
    TaskScan &operator=(const TaskScan &) = delete;

    // Reads the element at `at` into a new task; returns where it ends. Null when anything in it is
    // otherwise: the task is not to be used then. The text has passed xmlguard::isSafe, and something stands
    // behind it, if only the zero that ends it.
    const char *read(const char *at, KWTaskInfo &task);

private:
    struct Name
    {
        std::string_view text;
        documentschema::Kind kind;
    };
    // An element without children that are not elements of their own.
    struct Shape
    {
        std::string_view tag; // "<Task"
        std::vector<Name> names;
        std::vector<std::string> opened; // the names up to their values: "ID=\""
    };
    static Shape shapeOf(const documentschema::Element &element, const char *tag);
    const char *attributes(const char *at, const Shape &shape);
    bool unescape(const char *begin, const char *end, fields::Piece &value);
    const char *format(const char *at, KWTaskInfo &task);
    const char *resources(const char *at, KWTaskInfo &task);

    const Shape m_task;
    const Shape m_format;
    const Shape m_resource;
    std::vector<fields::Piece> m_values; // of the element read last, in the order of its names
    std::vector<QByteArray> m_unescaped; // what values point into that had escapes
    taskxml::FontMemo m_fontMemo;
    std::string m_formatText; // the element that the memo was made from
};
