// The parts of a package around its sheets.
#include "exchange/XLSXDataBase.h"
#include "exchange/packageparts.h"
#include "exchange/partwriter.h"
#include "exchange/planexport.h"
#include "exchange/xlsxsheet.h"
#include "support/kwclock.h"
#include "support/said.h"
#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

constexpr char mainNamespace[] = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
constexpr char officeRelations[] = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
constexpr char packageRelations[] = "http://schemas.openxmlformats.org/package/2006/relationships";
constexpr char variantTypes[] = "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes";

constexpr char sheetPart[] = "worksheets/sheet%1.xml";
constexpr char sheetType[] = "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml";

struct FileKind
{
    const char *extension;
    const char *type;
};
constexpr FileKind fileKinds[] = {
    {"rels", "application/vnd.openxmlformats-package.relationships+xml"},
    {"xml", "application/xml"},
    {"bin", "application/vnd.openxmlformats-officedocument.spreadsheetml.printerSettings"},
};

// The parts with a type of their own, but the sheets, which stand behind the workbook.
struct PartKind
{
    const char *name;
    const char *type;
};
constexpr PartKind partKinds[] = {
    {"/xl/workbook.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"},
    {"/xl/theme/theme1.xml", "application/vnd.openxmlformats-officedocument.theme+xml"},
    {"/xl/styles.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"},
    {"/xl/sharedStrings.xml",
     "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml"},
    {"/docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml"},
    {"/docProps/app.xml", "application/vnd.openxmlformats-officedocument.extended-properties+xml"},
};

struct Relation
{
    QString target;
    const char *type; // below officeRelations, unless it is a whole address
    int number;       // of the id
};

QString numbered(const char *pattern, int number)
{
    return QString::fromLatin1(pattern).arg(number);
}

void writeRelations(PartWriter &part, const QList<Relation> &relations)
{
    part.open("Relationships").attribute("xmlns", packageRelations);
    for (const Relation &relation : relations) {
        const QString type = QString::fromLatin1(relation.type);
        part.open("Relationship").attribute("Id", numbered("rId%1", relation.number));
        part.attribute("Type", type.contains(QLatin1Char(':'))
                                   ? type
                                   : QString::fromLatin1(officeRelations) + QLatin1Char('/') + type);
        part.attribute("Target", relation.target).close();
    }
    part.close();
}

void writeText(PartWriter &part, const char *element, const QString &text)
{
    part.open(element).text(text).close();
}

// A text whose blanks at the ends and line breaks a reader would otherwise drop.
bool isBlankSensitive(const QString &text)
{
    return !text.isEmpty() && (text.at(0).isSpace() || text.at(text.size() - 1).isSpace() ||
                               text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r')));
}
}

// ---- The folder -------------------------------------------------------------------------------------------

void XLSXDataBase::startExport()
{
    m_sharedStrings.clear();
    m_stringIndex.clear();
    m_stringCells = 0;
    m_numberFormats.clear();
    m_findings.clear();
    m_isWhole = true;
}

void XLSXDataBase::fail(const QString &place, const QString &what)
{
    m_findings.add(place, what);
    m_isWhole = false;
}

void XLSXDataBase::writePart(const QString &name, const std::function<void(PartWriter &)> &write)
{
    QFile file(m_path + name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        fail(name, file.errorString());
        return;
    }
    PartWriter part(file);
    write(part);
    if (!part.finish() || !file.flush() || file.error() != QFileDevice::NoError)
        fail(name, file.errorString());
}

void XLSXDataBase::initExport(const QString &path)
{
    m_path = withSlash(path);
    for (const char *folder : {"", "_rels/", "docProps/", "xl/", "xl/worksheets/", "xl/worksheets/_rels/",
                               "xl/theme/", "xl/printerSettings/", "xl/_rels/"}) {
        if (!QDir().mkpath(m_path + QLatin1String(folder)))
            fail(QString::fromLatin1(folder), KW_TEXT("the folder cannot be made"));
    }
    createContent();
    createApp();
    createCore();
    createOthers();
}

// ---- What the package is made of --------------------------------------------------------------------------

void XLSXDataBase::createContent()
{
    writePart(QStringLiteral("[Content_Types].xml"), [](PartWriter &part) {
        part.open("Types").attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/content-types");
        for (const FileKind &kind : fileKinds)
            part.element("Default", {"Extension", kind.extension, "ContentType", kind.type});
        for (const PartKind &kind : partKinds) {
            part.element("Override", {"PartName", kind.name, "ContentType", kind.type});
            for (int sheet = 1; &kind == partKinds && sheet <= sheetCount; ++sheet) {
                part.open("Override")
                    .attribute("PartName", QLatin1String("/xl/") + numbered(sheetPart, sheet));
                part.attribute("ContentType", sheetType).close();
            }
        }
        part.close();
    });
}

void XLSXDataBase::createApp()
{
    writePart(QStringLiteral("docProps/app.xml"), [](PartWriter &part) {
        part.open("Properties");
        part.attribute("xmlns", "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties");
        part.attribute("xmlns:vt", variantTypes);
        part.open("Application").text("Microsoft Excel").close();
        part.open("DocSecurity").text("0").close();
        part.open("ScaleCrop").text("false").close();
        part.open("HeadingPairs").open("vt:vector").attribute("size", "2").attribute("baseType", "variant");
        part.open("vt:variant").open("vt:lpstr").text("Work Sheets").close().close();
        part.open("vt:variant").open("vt:i4").text(sheetCount).close().close();
        part.close().close();
        part.open("TitlesOfParts").open("vt:vector");
        part.attribute("size", sheetCount).attribute("baseType", "lpstr");
        for (const QString &name : sheetNames())
            writeText(part, "vt:lpstr", name);
        part.close().close();
        for (const char *flag : {"LinksUpToDate", "SharedDoc", "HyperlinksChanged"})
            part.open(flag).text("false").close();
        part.open("AppVersion").text("15.0300").close();
        part.close();
    });
}

void XLSXDataBase::createCore()
{
    writePart(QStringLiteral("docProps/core.xml"), [](PartWriter &part) {
        part.open("cp:coreProperties");
        part.attribute("xmlns:cp", "http://schemas.openxmlformats.org/package/2006/metadata/core-properties");
        part.attribute("xmlns:dc", "http://purl.org/dc/elements/1.1/");
        part.attribute("xmlns:dcterms", "http://purl.org/dc/terms/");
        part.attribute("xmlns:dcmitype", "http://purl.org/dc/dcmitype/");
        part.attribute("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
        for (const char *person : {"dc:creator", "cp:lastModifiedBy"})
            writeText(part, person, QCoreApplication::applicationName());
        const QString now = KWClock::now().toUTC().toString(QStringLiteral("yyyy-MM-ddThh:mm:ssZ"));
        for (const char *moment : {"dcterms:created", "dcterms:modified"})
            part.open(moment).attribute("xsi:type", "dcterms:W3CDTF").text(now).close();
        part.close();
    });
}

void XLSXDataBase::createOthers()
{
    writePart(QStringLiteral("xl/workbook.xml"), [](PartWriter &part) {
        part.open("workbook").attribute("xmlns", mainNamespace).attribute("xmlns:r", officeRelations);
        part.attribute("xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006");
        part.attribute("mc:Ignorable", "x15");
        part.attribute("xmlns:x15", "http://schemas.microsoft.com/office/spreadsheetml/2010/11/main");
        part.element("fileVersion",
                     {"appName", "xl", "lastEdited", "6", "lowestEdited", "4", "rupBuild", "14420"});
        part.element("workbookPr", {"filterPrivacy", "1", "defaultThemeVersion", "124226"});
        part.open("bookViews")
            .element("workbookView",
                     {"xWindow", "240", "yWindow", "105", "windowWidth", "14805", "windowHeight", "8010"});
        part.close().open("sheets");
        const QStringList names = sheetNames();
        for (int sheet = 1; sheet <= sheetCount; ++sheet) {
            part.open("sheet").attribute("name", names.at(sheet - 1)).attribute("sheetId", sheet);
            part.attribute("r:id", numbered("rId%1", sheet)).close();
        }
        part.close();
        part.element("calcPr", {"calcId", "122211"}).element("fileRecoveryPr", {"repairLoad", "1"}).close();
    });

    QList<Relation> relations;
    for (int sheet = 1; sheet <= sheetCount; ++sheet)
        relations.append({numbered(sheetPart, sheet), "worksheet", sheet});
    relations.append({QStringLiteral("styles.xml"), "styles", sheetCount + 1});
    relations.append({QStringLiteral("theme/theme1.xml"), "theme", sheetCount + 2});
    relations.append({QStringLiteral("sharedStrings.xml"), "sharedStrings", sheetCount + 3});
    writePart(QStringLiteral("xl/_rels/workbook.xml.rels"),
              [&](PartWriter &part) { writeRelations(part, relations); });

    relations = {{QStringLiteral("docProps/app.xml"), "extended-properties", 3},
                 {QStringLiteral("docProps/core.xml"),
                  "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties", 2},
                 {QStringLiteral("xl/workbook.xml"), "officeDocument", 1}};
    writePart(QStringLiteral("_rels/.rels"), [&](PartWriter &part) { writeRelations(part, relations); });

    writePart(QStringLiteral("xl/theme/theme1.xml"), packageparts::writeTheme);
    for (int sheet = 1; sheet <= sheetCount; ++sheet) {
        // The sheets' page setup refers to it.
        relations = {{numbered("../printerSettings/printerSettings%1.bin", sheet), "printerSettings", 1}};
        writePart(numbered("xl/worksheets/_rels/sheet%1.xml.rels", sheet),
                  [&](PartWriter &part) { writeRelations(part, relations); });
        const QString name = numbered("xl/printerSettings/printerSettings%1.bin", sheet);
        const QByteArray record = packageparts::printerSettings();
        QFile file(m_path + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(record) != record.size() || !file.flush())
            fail(name, file.errorString());
    }
}

// ---- Shared strings ---------------------------------------------------------------------------------------

int XLSXDataBase::sharedStringIndex(const QString &text)
{
    const QString cleaned = planexport::cellText(text);
    const auto known = m_stringIndex.constFind(cleaned);
    if (known != m_stringIndex.constEnd())
        return *known;
    if (text.size() > planexport::maxUnits && cleaned.size() >= planexport::maxUnits - 1) {
        constexpr int shownUnits = 30;
        m_findings.add(cleaned.left(shownUnits) + QChar(0x2026),
                       KW_TEXT("a cell holds %1 characters, and there are more").arg(planexport::maxUnits),
                       QStringLiteral("cut"));
    }
    const int index = m_sharedStrings.size();
    m_stringIndex.insert(cleaned, index);
    m_sharedStrings.append(cleaned);
    return index;
}

void XLSXDataBase::createSharedString()
{
    writePart(QStringLiteral("xl/sharedStrings.xml"), [this](PartWriter &part) {
        part.open("sst").attribute("xmlns", mainNamespace);
        part.attribute("count", m_stringCells).attribute("uniqueCount", m_sharedStrings.size());
        for (const QString &text : qAsConst(m_sharedStrings)) {
            part.raw(isBlankSensitive(text) ? "<si><t xml:space=\"preserve\">" : "<si><t>")
                .text(xlsx::withEscapes(text));
            part.raw("</t><phoneticPr fontId=\"0\" type=\"noConversion\"/></si>");
        }
        part.close();
    });
}
