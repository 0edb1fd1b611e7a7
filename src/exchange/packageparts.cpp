#include "exchange/packageparts.h"
#include "exchange/partwriter.h"
#include <QtEndian>

namespace packageparts {
namespace {

struct ThemeColor
{
    const char *role;
    const char *systemName; // null: a fixed colour
    const char *rgb;
};
constexpr ThemeColor colors[] = {
    {"a:dk1", "windowText", "000000"}, {"a:lt1", "window", "FFFFFF"},    {"a:dk2", nullptr, "1F497D"},
    {"a:lt2", nullptr, "EEECE1"},      {"a:accent1", nullptr, "4F81BD"}, {"a:accent2", nullptr, "C0504D"},
    {"a:accent3", nullptr, "9BBB59"},  {"a:accent4", nullptr, "8064A2"}, {"a:accent5", nullptr, "4BACC6"},
    {"a:accent6", nullptr, "F79646"},  {"a:hlink", nullptr, "0000FF"},   {"a:folHlink", nullptr, "800080"},
};

void writeColors(PartWriter &part)
{
    part.open("a:clrScheme").attribute("name", "Office");
    for (const ThemeColor &color : colors) {
        part.open(color.role);
        if (color.systemName)
            part.element("a:sysClr", {"val", color.systemName, "lastClr", color.rgb});
        else
            part.element("a:srgbClr", {"val", color.rgb});
        part.close();
    }
    part.close();
}

void writeFonts(PartWriter &part)
{
    part.open("a:fontScheme").attribute("name", "Office");
    for (const auto &[set, latin] :
         {std::pair("a:majorFont", "Cambria"), std::pair("a:minorFont", "Calibri")}) {
        part.open(set).element("a:latin", {"typeface", latin});
        part.element("a:ea", {"typeface", ""}).element("a:cs", {"typeface", ""});
        part.open("a:font")
            .attribute("script", "Hans")
            .attribute("typeface", QString::fromUtf8("宋体"))
            .close();
        part.close();
    }
    part.close();
}

// The colour that the theme's user chooses, as it is.
void writePlainFill(PartWriter &part)
{
    part.open("a:solidFill").element("a:schemeClr", {"val", "phClr"}).close();
}

void writeFormats(PartWriter &part)
{
    constexpr int variants = 3; // subtle, moderate, intense
    part.open("a:fmtScheme").attribute("name", "Office");
    part.open("a:fillStyleLst");
    for (int i = 0; i < variants; ++i)
        writePlainFill(part);
    part.close().open("a:lnStyleLst");
    for (const char *width : {"9525", "25400", "38100"}) {
        part.open("a:ln").attribute("w", width).attribute("cap", "flat").attribute("cmpd", "sng");
        part.attribute("algn", "ctr");
        writePlainFill(part);
        part.element("a:prstDash", {"val", "solid"}).close();
    }
    part.close().open("a:effectStyleLst");
    for (int i = 0; i < variants; ++i)
        part.open("a:effectStyle").element("a:effectLst").close();
    part.close().open("a:bgFillStyleLst");
    for (int i = 0; i < variants; ++i)
        writePlainFill(part);
    part.close().close();
}
}

void writeTheme(PartWriter &part)
{
    part.open("a:theme").attribute("xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main");
    part.attribute("name", "Office").open("a:themeElements");
    writeColors(part);
    writeFonts(part);
    writeFormats(part);
    part.close().element("a:objectDefaults").element("a:extraClrSchemeLst").close();
}

QByteArray printerSettings()
{
    constexpr int recordBytes = 220;
    struct Field
    {
        int offset;
        quint16 value;
    };
    constexpr Field fields[] = {
        {64, 0x0401},      // version of the record
        {68, recordBytes}, //
        {72, 0x0003},      // which of the following count: orientation and paper
        {76, 1},           // upright
        {78, 9},           // A4
    };
    QByteArray record(recordBytes, '\0');
    for (const Field &field : fields)
        qToLittleEndian(field.value, record.data() + field.offset);
    return record;
}
}
