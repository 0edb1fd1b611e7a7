#include "model/taskscan.h"
#include "model/loadcheck.h"
#include "support/xmlencode.h"
#include <algorithm>
#include <array>
#include <cstring>

using documentschema::Element;
using documentschema::Kind;
using fields::Piece;

namespace {

const Element &childOf(const Element &element, const char *name)
{
    for (const Element &child : element.children) {
        if (std::strcmp(child.name, name) == 0)
            return child;
    }
    return element; // of no use to a scan, which then finds nothing as it is written
}

const Element &taskElement()
{
    return childOf(childOf(documentschema::document(), "TaskList"), "Task");
}

bool startsWith(const char *at, std::string_view text)
{
    return std::strncmp(at, text.data(), text.size()) == 0;
}

const char *skipBlanks(const char *at)
{
    while (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t')
        ++at;
    return at;
}

// Behind the text; null when something else stands there.
const char *past(const char *at, std::string_view text)
{
    return at && startsWith(at, text) ? at + text.size() : nullptr;
}

// What says nothing but digits is a value of nearly every kind.
bool takesDigits(Kind kind)
{
    return kind != Kind::Days && kind != Kind::Short;
}

// What a byte of a value is.
enum Sign : quint8 { Plain = 0, NoDigit = 1, Escape = 2, Stop = 4 };

const struct Signs
{
    std::array<quint8, 256> of;
    Signs()
    {
        of.fill(NoDigit);
        // Blanks other than " " would be read as such.
        std::fill_n(of.begin(), 0x20, quint8(Stop));
        std::fill_n(of.begin() + '0', 10, quint8(Plain));
        of[uchar('<')] = of[uchar('"')] = Stop;
        of[uchar('&')] = NoDigit | Escape;
    }
} signs;

// The values of an element for those who ask by name, in the order of the names.
class PieceSource
{
public:
    template <typename Names>
    PieceSource(const Names &names, const std::vector<Piece> &values)
        : m_values(values)
    {
        for (const auto &name : names)
            m_names.push_back(name.text);
    }
    XmlText text(const char *name)
    {
        for (std::size_t i = 0; i < m_names.size(); ++i) {
            if (m_names[i] == name)
                return XmlText(m_values[i].data, m_values[i].size);
        }
        return XmlText();
    }

private:
    std::vector<std::string_view> m_names;
    const std::vector<Piece> &m_values;
};
}

TaskScan::Shape TaskScan::shapeOf(const Element &element, const char *tag)
{
    Shape shape;
    shape.tag = tag;
    for (const documentschema::Attribute &attribute : element.attributes)
        shape.names.push_back({attribute.name, attribute.kind});
    shape.opened.reserve(shape.names.size());
    for (const Name &name : shape.names)
        shape.opened.push_back(std::string(name.text) + "=\"");
    return shape;
}

TaskScan::TaskScan()
    : m_task(shapeOf(taskElement(), "<Task"))
    , m_format(shapeOf(childOf(taskElement(), "Format"), "<Format"))
    , m_resource(shapeOf(childOf(childOf(taskElement(), "ResourceList"), "Resource"), "<Resource"))
{
}

bool TaskScan::unescape(const char *begin, const char *end, Piece &value)
{
    QByteArray text;
    text.reserve(int(end - begin));
    for (const char *at = begin; at != end;) {
        if (*at != '&') {
            text.append(*at++);
            continue;
        }
        char sign = 0;
        at = xmlencode::readEscape(at, sign);
        if (!at)
            return false;
        text.append(sign);
    }
    m_unescaped.push_back(text);
    value = {m_unescaped.back().constData(), text.size()};
    return true;
}

// From the blank behind the tag to the end of the tag; all values of the shape are set.
const char *TaskScan::attributes(const char *at, const Shape &shape)
{
    constexpr std::ptrdiff_t mostDigits = 9;
    m_values.resize(shape.names.size());
    std::size_t next = 0;
    while (*at == ' ') {
        ++at;
        const char *value = nullptr;
        while (!value) {
            if (next == shape.names.size())
                return nullptr;
            value = past(at, shape.opened[next]);
            m_values[next++] = Piece();
        }
        quint8 seen = Plain;
        quint8 sign = Plain;
        for (at = value; ((sign = signs.of[uchar(*at)]) & Stop) == 0; ++at)
            seen |= sign;
        if (*at != '"')
            return nullptr;
        const bool areDigits = (seen & NoDigit) == 0;
        const bool hasEscape = (seen & Escape) != 0;
        const Kind kind = shape.names[next - 1].kind;
        Piece &piece = m_values[next - 1];
        piece = {value, int(at - value)};
        if (hasEscape && (kind != Kind::Text || !unescape(value, at, piece)))
            return nullptr;
        const bool isShort = areDigits && at - value <= mostDigits && takesDigits(kind);
        if (kind != Kind::Text && !isShort && !loadcheck::isOfKind(kind, XmlText(piece.data, piece.size)))
            return nullptr;
        ++at;
    }
    std::fill(m_values.begin() + std::ptrdiff_t(next), m_values.end(), Piece());
    return at;
}

const char *TaskScan::format(const char *at, KWTaskInfo &task)
{
    if (!m_formatText.empty() && startsWith(at, m_formatText) && m_fontMemo.before == task.font) {
        task.font = m_fontMemo.after;
        return at + m_formatText.size();
    }
    const char *const end = past(attributes(at + m_format.tag.size(), m_format), "/>");
    if (!end)
        return nullptr;
    PieceSource source(m_format.names, m_values);
    taskxml::readFont(source, task.font, &m_fontMemo);
    m_formatText.assign(at, end);
    return end;
}

// From its first entry to behind the end of the list.
const char *TaskScan::resources(const char *at, KWTaskInfo &task)
{
    task.clearResources();
    for (;;) {
        at = skipBlanks(at);
        if (!startsWith(at, m_resource.tag))
            return past(at, "</ResourceList>");
        at = past(attributes(at + m_resource.tag.size(), m_resource), "/>");
        if (!at)
            return nullptr;
        auto *resource = new Resource;
        task.resourceList.append(resource);
        fields::readAll(m_values, fields::resourceFields, *resource);
    }
}

const char *TaskScan::read(const char *at, KWTaskInfo &task)
{
    m_unescaped.clear();
    at = past(at, m_task.tag);
    at = at ? attributes(at, m_task) : nullptr;
    if (!at)
        return nullptr;
    fields::readAll(m_values, fields::taskFields, task);
    if (const char *const end = past(at, "/>"))
        return end;
    at = past(at, ">");
    if (!at)
        return nullptr;
    at = skipBlanks(at);
    if (startsWith(at, m_format.tag)) {
        at = format(at, task);
        if (!at)
            return nullptr;
        at = skipBlanks(at);
    }
    if (const char *const list = past(at, "<ResourceList>")) {
        at = resources(list, task);
        if (!at)
            return nullptr;
        at = skipBlanks(at);
    }
    return past(at, "</Task>");
}
