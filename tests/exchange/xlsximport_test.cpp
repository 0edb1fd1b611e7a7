// Worksheets as different programs write them, and whole packages.
#include "exchange/XLSXDataEngine.h"
#include "exchange/exceltitles.h"
#include "exchange/xlsxsheet.h"
#include "kwfilepathmanager.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "support/workbooktitles.h"
#include "table/rowcolumndata.h"
#include <QDir>
#include <QDomDocument>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct SheetCase
{
    const char *name;
    const char *data; // of the sheetData element
    const char *rows; // "row: column text", numbers with "="
};

std::string shown(sheetrows::Source &source)
{
    std::string text;
    sheetrows::Row row;
    while (source.next(row)) {
        text += std::to_string(row.number) + ':';
        for (const sheetrows::Cell &cell : row.cells)
            text += ' ' + std::to_string(cell.column) + (cell.isNumber ? "=" : " ") + cell.text.toStdString();
        text += '\n';
    }
    return text;
}

QByteArray worksheet(const QByteArray &data)
{
    return "<?xml version=\"1.0\"?>\n<worksheet><dimension ref=\"A1\"/><sheetData>" + data +
           "</sheetData><mergeCells><row r=\"9\"/></mergeCells></worksheet>";
}

const char *const sharedStrings =
    "<sst count='9'><extLst/><si><t>zero</t></si><si/><si><t>a</t><rPh sb='0' eb='1'><t>XX</t></rPh></si>"
    "<si><r><rPr><b/></rPr><t xml:space='preserve'>b </t></r><r><t>&amp;&#x63;&lt;d&gt;\r\ne</t></r></si>"
    "<si><t>x_x000D_y_x005F_x000D_z_x0041__x0001_</t></si></sst>";

// The stream and the DOM give the same cells.
TEST(Worksheet, GivesItsCells)
{
    const SheetCase cases[] = {
        {"SharedStrings",
         "<row r='2'><c r='A2' t='s'><v>0</v></c><c r='C2' t='s'><v>1</v></c><c r='D2' t='s'><v>2</v></c>"
         "<c r='E2' t='s'><v>3</v></c><c r='F2' t='s'><v> 0 </v></c></row>",
         "2: 1 zero 3  4 a 5 b &c<d>\ne 6 zero\n"},
        {"EscapedControlCharacters", "<row><c t='s'><v>4</v></c></row>", "1: 1 x\ry_x000D_z_x0041_\n"},
        {"StringIndexesOutsideTheTable",
         "<row><c t='s'><v>5</v></c><c t='s'><v>-1</v></c><c t='s'><v>1e0</v></c><c t='s'/></row>",
         "1: 1  2  3 \n"},
        {"InlineStrings",
         "<row r='1'><c r='A1' t='inlineStr'><is><t>in</t></is><v>0</v></c><c r='B1'><is><r><t>a</t></r>"
         "<r><t> b</t></r><rPh><t>X</t></rPh></is></c><c r='C1' t='inlineStr'><is/></c></row>",
         "1: 1 in 2 a b 3 \n"},
        {"CellKinds",
         "<row r='1'><c r='A1'><v> 1.5e3 </v></c><c r='B1' t='n'><v>nan</v></c><c r='C1' "
         "t='b'><v>1</v></c>"
         "<c r='D1' t='str'><f>A1</f><v>ab</v><v>c</v></c><c r='E1' t='e'><v>#N/A</v></c>"
         "<c r='F1' t='d'><v>2026-03-16T08:30:00.000Z</v></c><c><v>\x0f"
         "46</v></c></row>",
         "1: 1=1.5e3 2 nan 3 1 4 ab 5 #N/A 6 2026-03-16 08:30:00 7=46\n"},
        {"MissingAndOddReferences",
         "<row><c><v>1</v></c><c r='AAA1'><v>2</v></c><c r='a1'><v>3</v></c><c><v>4</v></c>"
         "<c r='ZZ9'><v>5</v></c></row><row r='0'/><row r='7'><c r=''><v>6</v></c></row><row/>",
         "1: 1=1 2=4 702=5\n2:\n7:\n8:\n"},
        {"Prefixes",
         "<x:row xmlns:x='u' r='3'><x:c r='B3' t='inlineStr'><x:is><x:t>p</x:t></x:is></x:c></x:row>"
         "<!-- <row/> --><row r='1'><c r='A1'><v><![CDATA[<9>]]></v></c></row>",
         "3: 2 p\n1: 1 <9>\n"}};
    for (const SheetCase &row : cases) {
        SCOPED_TRACE(row.name);
        QStringList strings;
        ASSERT_TRUE(xlsx::readSharedStrings(sharedStrings, strings, nullptr));
        xlsx::SheetSource stream(worksheet(row.data), strings);
        EXPECT_TRUE(stream.isWorksheet());
        EXPECT_EQ(shown(stream), row.rows);
        EXPECT_EQ(stream.error().toStdString(), "");
        QDomDocument document;
        ASSERT_TRUE(document.setContent(QString::fromUtf8(worksheet(row.data))));
        const QDomElement sheetData = document.documentElement().firstChildElement("sheetData");
        xlsx::DomSheetSource dom(sheetData.childNodes(), strings);
        EXPECT_EQ(shown(dom), row.rows);
    }
}

TEST(Worksheet, TellsWhatItLeavesOut)
{
    const SheetCase cases[] = {
        {"sound",
         "<row><c r='A1'><v>1</v></c><c><v>2</v></c><c r='C1'><f>A1</f><v>3</v></c><c r='D1'/></row>", ""},
        {"references", "<row r='3'><c r='a3'><v>1</v></c><c r='$A$3'><v>1</v></c><c r=''><v>1</v></c></row>",
         "the places of 3 cells are not understood, the first is \"a3\" in row 3\n"},
        {"rows", "<row r='3'><c r='A0'><v>1</v></c><c r='B'><v>1</v></c></row>",
         "the places of 2 cells name no row, the first is \"A0\" in row 3\n"},
        {"formulas", "<row r='2'><c r='A2'><f>B2</f></c></row><row><c><f>1</f><v/></c></row>",
         "2 formulas have no value, the first in row 2\n"},
        {"noCharacters", "<row><c t='str'><v>&#7;a&foo;&amp;&#xd800;</v></c></row>",
         "3 references in texts stand for no character\n"}};
    for (const SheetCase &row : cases) {
        xlsx::SheetSource source(worksheet(row.data), {});
        shown(source);
        Findings findings;
        source.doubts().addTo(findings, QString());
        std::string told;
        for (const Finding &finding : findings.list())
            told += finding.what.toStdString() + '\n';
        EXPECT_EQ(told, row.rows) << row.name;
    }
}

TEST(Xlsx, RefusesWhatIsNoSoundXml)
{
    QStringList strings;
    for (const char *part : {"", "<worksheet>", "<worksheet></sheet>", "<worksheet/><worksheet/>",
                             "<a><b></a></b>", "<worksheet x=1/>", "<worksheet x='' y='' x=''/>",
                             "<!DOCTYPE worksheet><worksheet/>", "<worksheet/>x"}) {
        xlsx::SheetSource source(part, strings);
        EXPECT_EQ(shown(source), "") << part;
        EXPECT_NE(source.error().toStdString(), "") << part;
    }
    const QString text = QStringLiteral(
        "<worksheet><sheetData><row><c t='str'><v>\u4e2d</v></c></row></sheetData></worksheet>");
    QByteArray bytes(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
    xlsx::SheetSource twoBytes(XmlPull::toUtf8("\xff\xfe" + bytes), strings);
    EXPECT_EQ(shown(twoBytes), "1: 1 \u4e2d\n");
}

TEST(Xlsx, TurnsNumberFormatsIntoDateFormats)
{
    const char *const cases[][2] = {{"yyyy/m/d h:mm", "yyyy/M/d h:mm"},
                                    {"[$-F800]dddd, mmmm dd, yyyy", "dddd, MMMM dd, yyyy"},
                                    {"yyyy\"\u5e74\"m\"\u6708\"d\"\u65e5\";@", "yyyy-MM-dd"},
                                    {"0\u5e74", "yyyy-MM-dd"},
                                    {"m\u6708d\u65e5 h:mm", "yyyy-MM-dd"},
                                    {"d\u65e5", ""},
                                    {"yy\\-mm\\-dd\\ hh:mm am/pm;@", "yy-MM-dd hh:mm ap"},
                                    {"mm", "mm"},
                                    {"mm:ss", "mm:ss"},
                                    {"mmm", "MMM"},
                                    {"hhmmss", "hhMMss"},
                                    {"0.00_);(0.00)", ""},
                                    {"General", ""}};
    for (const auto &each : cases)
        EXPECT_EQ(XLSXDataEngine::parseFormatType(QString::fromUtf8(each[0])).toStdString(), each[1])
            << each[0];
}

class Package : public testing::Test
{
protected:
    Package()
    {
        RowColumnData::s_columnNames = {{1, "Name"}, {2, "Start"}, {23, "Level"}, {24, "After"}};
        put("xl/worksheets/sheet2.xml",
            worksheet("<row><c t='str'><v>Name</v></c><c t='str'><v>Start</v></c></row>"
                      "<row><c t='str'><v>A</v></c><c><v>43894</v></c></row>"));
        put("xl/worksheets/sheet10.xml", worksheet("<row><c t='str'><v>Level</v></c></row>"));
        put("xl/worksheets/chart.xml", "<chart/>");
        put("xl/workbook.xml", "<x:workbook xmlns:x='u'><x:workbookPr date1904='true'/></x:workbook>");
        put("xl/styles.xml",
            "<styleSheet><numFmts><numFmt numFmtId='164' formatCode='m/d'/></numFmts></styleSheet>");
    }
    void put(const QString &part, const QByteArray &text)
    {
        QFile file(folder.filePath("package/" + part));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QString packed()
    {
        const QString book = folder.filePath("book.xlsx");
        EXPECT_TRUE(KWZip::zip(book, folder.filePath("package")));
        return book;
    }
    const WorkbookTitles titles;
    const QTemporaryDir folder;
};

TEST_F(Package, TakesSheetsByTheNumbersOfTheirFiles)
{
    KWDocument document;
    XLSXDataEngine engine(&document);
    ASSERT_TRUE(engine.initExcelTitles(packed()));
    EXPECT_EQ(ExcelTitles::s_excelTaskTitles.size(), 2);
    EXPECT_EQ(ExcelTitles::s_excelResourceTitles.size(), 1);
    EXPECT_EQ(ExcelTitles::s_excelWorkTitles.size(), 0);
    EXPECT_EQ(document.taskCount(), 0);
    ASSERT_TRUE(engine.importData(packed()));
    ASSERT_EQ(document.taskCount(), 1);
    const KWTaskInfo *task = document.getTaskInfoAt(0);
    EXPECT_EQ(task->Name.toStdString(), "A");
    EXPECT_EQ(KWTaskInfo::showDateTime(&document, task->Start, true).date(), QDate(2024, 3, 5));
    EXPECT_EQ(engine.dateFormats(), (QMap<int, QString>{{164, "M/d"}}));
}

TEST_F(Package, LeavesThePlanAloneWhenTheMainPartsCannotBeRead)
{
    KWDocument document;
    XLSXDataEngine engine(&document);
    ASSERT_TRUE(engine.importData(packed()));
    document.setModified(false);
    EXPECT_FALSE(engine.importData(folder.filePath("missing.xlsx")));
    put("xl/worksheets/sheet1.xml", "<worksheet><sheetData>");
    EXPECT_FALSE(engine.importData(packed()));
    put("xl/worksheets/sheet1.xml", worksheet("<row><c t='str'><v>name</v></c></row>"));
    EXPECT_FALSE(engine.importData(packed()));
    QFile::remove(folder.filePath("package/xl/worksheets/sheet1.xml"));
    put("xl/SharedStrings.xml", "<sst><si>"); // so some programs name it
    EXPECT_FALSE(engine.importData(packed()));
    EXPECT_EQ(document.taskCount(), 1);
    EXPECT_FALSE(document.isModified());
    EXPECT_FALSE(engine.findings().isEmpty());
}

TEST_F(Package, FindsItsSheetsByTheWorkbookWhereTheirFolderHasNone)
{
    QDir(folder.filePath("package/xl/worksheets")).removeRecursively();
    KWDocument document;
    XLSXDataEngine engine(&document);
    EXPECT_FALSE(engine.importData(packed()));
    ASSERT_EQ(engine.findings().count(), 1);
    EXPECT_EQ(engine.findings().list().first().what.toStdString(), "the workbook has no worksheet");
    put("xl/tasks.xml", worksheet("<row><c t='str'><v>Name</v></c></row><row><c t='str'><v>A</v></c></row>"));
    put("xl/workbook.xml",
        "<workbook><sheets><sheet r:id='none'/><sheet r:id='out'/><sheet r:id='t'/></sheets>"
        "</workbook>");
    put("xl/_rels/workbook.xml.rels",
        "<Relationships><Relationship Id='out' Type='x/worksheet' Target='../../../secret.xml'/>"
        "<Relationship Id='t' Type='x/worksheet' Target='/xl/tasks.xml'/></Relationships>");
    ASSERT_TRUE(engine.importData(packed()));
    EXPECT_EQ(document.taskCount(), 1);
}

// An empty path would be the root of all files.
TEST_F(Package, IsNotUnpackedWithoutATemporaryFolder)
{
    const auto back = qScopeGuard([old = KWFilePathManager::configDir(), temporary = qgetenv("TMPDIR")] {
        KWFilePathManager::setConfigRoot(old);
        temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    });
    const QString book = packed();
    put("file", "no folder");
    const QString noFolder = folder.filePath("package/file");
    KWFilePathManager::setConfigRoot(noFolder);
    qputenv("TMPDIR", QFile::encodeName(noFolder));
    KWDocument document;
    XLSXDataEngine engine(&document);
    EXPECT_FALSE(engine.initExcelTitles(book));
    EXPECT_FALSE(engine.importData(book));
    ASSERT_EQ(engine.findings().count(), 1);
    EXPECT_TRUE(engine.findings().list().first().what.contains("temporary folder"));
    EXPECT_FALSE(QFileInfo::exists("/xl/worksheets/sheet2.xml"));
}

// One sheet held in a DOM gives the plan that the file gives.
TEST_F(Package, BuildsFromADomLikeFromAFile)
{
    const QByteArray sheet = worksheet(
        "<row><c t='str'><v>Name</v></c><c t='str'><v>Level</v></c><c t='str'><v>After</v></c></row>"
        "<row><c t='str'><v>A</v></c><c><v>1</v></c></row>"
        "<row><c t='str'><v>B</v></c><c><v>2</v></c></row>"
        "<row><c t='str'><v>C</v></c><c><v>2</v></c><c t='str'><v>2</v></c></row>");
    put("xl/worksheets/sheet1.xml", sheet);
    KWDocument streamed;
    ASSERT_TRUE(XLSXDataEngine(&streamed).importData(packed()));
    QDomDocument dom;
    ASSERT_TRUE(dom.setContent(QString::fromUtf8(sheet)));
    KWDocument built;
    built.appendTaskInfoList(new KWTaskInfo);
    const QDomNodeList rows = dom.documentElement().firstChildElement("sheetData").childNodes();
    XLSXDataEngine(&built).createDocTaskInfo(4, 0, rows, {});
    EXPECT_EQ(built.taskCount(), 1);
    XLSXDataEngine(&built).createDocTaskInfo(4, 3, rows, {});
    for (const KWDocument *document : {&streamed, &built}) {
        std::string text;
        for (const KWTaskInfo *task : document->taskList())
            text += task->Name.toStdString() + std::to_string(task->ParentID) +
                    std::to_string(task->Predecessors.value(0)) + ' ';
        EXPECT_EQ(text, "A00 B10 C12 ");
    }
    auto *task = new KWTaskInfo;
    task->ID = 9;
    task->Level = 3;
    XLSXDataEngine(&built).updateTaskInfoParentID(task);
    built.appendTaskInfoList(task);
    EXPECT_EQ(task->ParentID, 3u);
    EXPECT_EQ(built.getTaskInfoByID(3)->Childs, QList<quint32>{9});
}
}
