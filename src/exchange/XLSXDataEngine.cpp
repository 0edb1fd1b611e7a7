// What a workbook's cells look like; a plain one has no look at all.
#include "exchange/XLSXDataEngine.h"
#include "exchange/partwriter.h"
#include "exchange/planexport.h"
#include "format/dataformat.h"

using planexport::Value;

namespace {

constexpr char mainNamespace[] = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr char extensions2009[] = "http://schemas.microsoft.com/office/spreadsheetml/2009/9/main";
constexpr char extensions2010[] = "http://schemas.microsoft.com/office/spreadsheetml/2010/11/main";
constexpr char amountFormat[] = "0.00_);(0.00)";
constexpr int firstOwnFormat = 164; // lower ids are built into the programs
constexpr int percentFormat = 9;    // "0%"

struct Font
{
    const char *size;
    bool bold;
};
constexpr Font fonts[] = {{"11", false}, {"9", false}, {"11", true}}; // cells, phonetic texts, titles
constexpr int plainFonts = 2;

void writeFonts(PartWriter &part, int count)
{
    part.open("fonts").attribute("count", count).attribute("x14ac:knownFonts", "1");
    for (int i = 0; i < count; ++i) {
        part.open("font");
        if (fonts[i].bold)
            part.element("b");
        part.element("sz", {"val", fonts[i].size}).element("color", {"theme", "1"});
        part.open("name").attribute("val", QString::fromUtf8("宋体")).close();
        part.element("family", {"val", "2"}).element("charset", {"val", "134"});
        part.element("scheme", {"val", "minor"}).close();
    }
    part.close();
}

void writeExtension(PartWriter &part, const char *uri, const char *prefix, const char *address,
                    const char *element, const char *attribute, const char *value)
{
    part.open("ext").attribute("uri", uri).attribute(prefix, address);
    part.element(element, {attribute, value}).close();
}

void writeFormat(PartWriter &part, int numberFormat, int font)
{
    part.open("xf").attribute("numFmtId", numberFormat).attribute("fontId", font);
    part.attribute("fillId", "0").attribute("borderId", "0").attribute("xfId", "0");
    if (numberFormat != 0)
        part.attribute("applyNumberFormat", "1");
    if (font != 0)
        part.attribute("applyFont", "1");
    part.close();
}

// The document's own currency, in the code that shows numbers with it.
QString currencyFormat()
{
    const QStringList around = DataFormat::currencyText(QStringLiteral("\n")).split(QLatin1Char('\n'));
    const auto quoted = [](QString text) {
        text.remove(QLatin1Char('"'));
        return text.isEmpty() ? text : QLatin1Char('"') + text + QLatin1Char('"');
    };
    return quoted(around.first()) + QLatin1String("#,##0.00") + quoted(around.last());
}
}

XLSXDataEngine::XLSXDataEngine(KWDocument *document)
    : XLSXDataBase(document)
{
    m_currencyFormat = QString::fromUtf8("\"￥\"#,##0.00_);(\"￥\"#,##0.00)");
    m_dateTimeFormat = DataFormat::dateFormat() + QLatin1String(" hh:mm");
}

XLSXDataEngine::~XLSXDataEngine() = default;

QPair<int, QString> XLSXDataEngine::numberFormatOf(Value value) const
{
    switch (value) {
    case Value::Money:
        return {firstOwnFormat, m_isRich ? currencyFormat() : m_currencyFormat};
    case Value::Work:
        return {firstOwnFormat, QString::fromLatin1(amountFormat)};
    case Value::Moment:
        return {firstOwnFormat, m_dateTimeFormat};
    case Value::Percent:
        return {percentFormat, QStringLiteral("0%")};
    case Value::None:
    case Value::Number:
        break;
    }
    return {0, QString()};
}

// Which place in the list a value's format has; -1 when there is none.
int XLSXDataEngine::numberFormatIndex(Value value) const
{
    const QString code = numberFormatOf(value).second;
    for (int i = 0; i < m_numberFormats.size(); ++i) {
        if (m_numberFormats.at(i).second == code)
            return i;
    }
    return -1;
}

void XLSXDataEngine::combineExportFormat()
{
    m_numberFormats.clear();
    int nextId = firstOwnFormat;
    for (const Value value : planexport::valuesOfTitles()) {
        QPair<int, QString> format = numberFormatOf(value);
        if (format.second.isEmpty() || numberFormatIndex(value) >= 0)
            continue;
        if (format.first == firstOwnFormat)
            format.first = nextId++;
        m_numberFormats.append(format);
    }
}

// The styles of cells: the default one, one for each number format, and in readable sheets one for titles.
int XLSXDataEngine::styleOf(Value value) const
{
    return numberFormatIndex(value) + 1;
}

int XLSXDataEngine::titleStyle() const
{
    return m_numberFormats.size() + 1;
}

void XLSXDataEngine::createStyles()
{
    writePart(QStringLiteral("xl/styles.xml"), [this](PartWriter &part) {
        part.open("styleSheet").attribute("xmlns", mainNamespace);
        part.attribute("xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006");
        part.attribute("mc:Ignorable", "x14ac");
        part.attribute("xmlns:x14ac", "http://schemas.microsoft.com/office/spreadsheetml/2009/9/ac");

        int ownFormats = 0;
        for (const auto &format : qAsConst(m_numberFormats))
            ownFormats += format.first >= firstOwnFormat;
        if (ownFormats > 0) { // an empty list is against the rules of the format
            part.open("numFmts").attribute("count", ownFormats);
            for (const auto &[id, code] : qAsConst(m_numberFormats)) {
                if (id >= firstOwnFormat)
                    part.open("numFmt").attribute("numFmtId", id).attribute("formatCode", code).close();
            }
            part.close();
        }
        const int fontCount = m_isRich ? int(std::size(fonts)) : plainFonts;
        writeFonts(part, fontCount);
        part.open("fills").attribute("count", "2");
        for (const char *pattern : {"none", "gray125"})
            part.open("fill").element("patternFill", {"patternType", pattern}).close();
        part.close().open("borders").attribute("count", "1").open("border");
        for (const char *edge : {"left", "right", "top", "bottom", "diagonal"})
            part.element(edge);
        part.close().close().open("cellStyleXfs").attribute("count", "1");
        part.element("xf", {"numFmtId", "0", "fontId", "0", "fillId", "0", "borderId", "0"}).close();

        part.open("cellXfs").attribute("count", 1 + m_numberFormats.size() + int(m_isRich));
        writeFormat(part, 0, 0);
        for (const auto &format : qAsConst(m_numberFormats))
            writeFormat(part, format.first, 0);
        if (m_isRich)
            writeFormat(part, 0, fontCount - 1);
        part.close().open("cellStyles").attribute("count", "1");
        part.open("cellStyle").attribute("name", QString::fromUtf8("常规")).attribute("xfId", "0");
        part.attribute("builtinId", "0").close().close();
        part.element("dxfs", {"count", "0"});
        part.element("tableStyles", {"count", "0", "defaultTableStyle", "TableStyleMedium2",
                                     "defaultPivotStyle", "PivotStyleMedium9"});
        part.open("extLst");
        writeExtension(part, "{EB79DEF2-80B8-43e5-95BD-54CBDDF9020C}", "xmlns:x14", extensions2009,
                       "x14:slicerStyles", "defaultSlicerStyle", "SlicerStyleLight1");
        writeExtension(part, "{9260A510-F301-46a8-8635-F512D64BE5F5}", "xmlns:x15", extensions2010,
                       "x15:timelineStyles", "defaultTimelineStyle", "TimeSlicerStyleLight1");
        part.close().close();
    });
}
