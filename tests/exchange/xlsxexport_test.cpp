// Exported workbooks: sound packages, every text as a reader gets it, files replaced in one step.
#include "exchange/XLSXDataEngine.h"
#include "kwzip.h"
#include "resources/resourceinfodata.h"
#include "support/folder.h"
#include "support/kwclock.h"
#include "support/project.h"
#include "support/sortedxml.h"
#include "support/workbooktitles.h"
#include "support/xlsxcheck.h"
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class XlsxExport : public testing::Test
{
protected:
    XlsxExport()
    {
        WorkbookTitles::choose(exceltitles::TaskSheet, "T0 T1 T2 T5 T19");
        WorkbookTitles::choose(exceltitles::ResourceSheet, "R0 R1");
        WorkbookTitles::choose(exceltitles::AssignmentSheet, "A0 A1 A2 A3 A4");
        XLSXDataBase::s_xmlNameList = QStringList{"Tasks", "Resources", "Assignments"};
        KWClock::set(QDateTime(QDate(2024, 6, 3), QTime(9, 30), Qt::UTC));
    }
    ~XlsxExport() override { KWClock::set(QDateTime()); }
    QString folder() const { return m_folder.path() + "/x"; }

    const WorkbookTitles m_titles;
    QTemporaryDir m_folder;
};

constexpr char plan[] = "House\n  Walls 2d\n  Roof 1d 40% after Walls\n";
constexpr char week[] = "Mon-Fri 8-12 13-17, start 2024-06-03";

TEST_F(XlsxExport, IsASoundPackageThatASecondExportRepeats)
{
    Project p(week, plan);
    p.assign("Walls", "Ann");
    p.document().resourceInfoData()->infos.first()->name = "=cmd|' /C calc'!A0";
    for (const bool isRich : {false, true}) {
        SCOPED_TRACE(isRich);
        XLSXDataEngine engine(&p.document());
        engine.setRich(isRich);
        EXPECT_TRUE(engine.exportData(folder()));
        EXPECT_EQ(xlsxcheck::faults(folder()), "");
        const std::string first = folder::tree(folder());
        EXPECT_TRUE(engine.exportData(folder() + '/'));
        EXPECT_EQ(folder::tree(folder()), first);
        EXPECT_TRUE(engine.findings().isEmpty());
        // Neither an empty plan nor one without titles leaves a part out.
        KWDocument nothing;
        XLSXDataEngine empty(&nothing);
        empty.setRich(isRich);
        EXPECT_TRUE(empty.exportData(folder()));
        EXPECT_EQ(xlsxcheck::faults(folder()), "");
        EXPECT_EQ(xlsxcheck::cells(folder(), 2), isRich ? "R0{4}|R1{4}\n" : "R0|R1\n");
    }
    WorkbookTitles::choose(exceltitles::TaskSheet, "");
    XLSXDataEngine(&p.document()).exportData(folder());
    EXPECT_EQ(xlsxcheck::faults(folder()), "");
    EXPECT_TRUE(folder::get(folder() + "/xl/worksheets/sheet1.xml").contains("<dimension ref=\"A1\"/>"));
}

TEST_F(XlsxExport, WritesTextsOrInReadableSheetsValues)
{
    Project p(week, plan);
    p.assign("Walls", "Ann");
    XLSXDataEngine engine(&p.document());
    engine.exportData(folder());
    EXPECT_EQ(xlsxcheck::cells(folder(), 1), "T0|T1|T2|T5|T19\n"
                                             "1|House|2024-06-03 08:00|13.3%|\n"
                                             "2|Walls|2024-06-03 08:00|0%|\n"
                                             "3|Roof|2024-06-05 08:00|40%|\n");
    EXPECT_EQ(xlsxcheck::cells(folder(), 3), "A0|A1|A2|A3|A4\n"
                                             "House|Ann|13.3%|16 h|100%\n"
                                             "Walls|Ann|0%|16 h|100%\n");
    EXPECT_FALSE(folder::get(folder() + "/xl/styles.xml").contains("numFmt "));
    const QByteArray strings = folder::get(folder() + "/xl/sharedStrings.xml");
    EXPECT_TRUE(strings.contains("count=\"39\" uniqueCount=\"27\"")) << strings.left(200).toStdString();

    engine.setRich(true);
    engine.exportData(folder());
    EXPECT_EQ(xlsxcheck::cells(folder(), 1), "T0{4}|T1{4}|T2{4}|T5{4}|T19{4}\n"
                                             "#1|House|#45446.333333333336{1}|#0.13333333333333333{2}\n"
                                             "#2|Walls|#45446.333333333336{1}|#0{2}\n"
                                             "#3|Roof|#45448.333333333336{1}|#0.4{2}\n");
    const QByteArray sheet = folder::get(folder() + "/xl/worksheets/sheet1.xml");
    for (const char *part :
         {"state=\"frozen\"", "<autoFilter ref=\"A1:E4\"/>", "outlineLevel=\"1\"", "<cols>"})
        EXPECT_TRUE(sheet.contains(part)) << part;
}

TEST_F(XlsxExport, KeepsEveryCharacterThatACellCanHold)
{
    struct Text
    {
        QString written;
        QString read;
    };
    const QString emoji = QString::fromUtf8("🏗");
    const Text texts[] = {
        {QString::fromUtf8("项目 ") + emoji, QString::fromUtf8("项目 ") + emoji},
        {" two\nlines\t", " two\nlines\t"},
        {"<a href=\"&\">'>]]>", "<a href=\"&\">'>]]>"},
        {QString("bell\x07 and nul") + QChar(0) + QChar(0xffff), "bell and nul"},
        {QString("half ") + QChar(0xd83c) + " and " + QChar(0xdf00), "half  and "},
        {QString(40000, 'x'), QString(32767, 'x')},
        {QString(32766, 'x') + emoji, QString(32766, 'x')},
        {"=1+1", "=1+1"},
    };
    Project p(week, "A\n");
    for (const Text &text : texts) {
        p.task("A").Notes = text.written;
        XLSXDataEngine(&p.document()).exportData(folder());
        EXPECT_EQ(xlsxcheck::faults(folder()), "");
        EXPECT_EQ(xlsxcheck::cells(folder(), 1),
                  "T0|T1|T2|T5|T19\n1|A|2024-06-03 08:00|0%|" + text.read.toStdString() + '\n');
    }
}

TEST_F(XlsxExport, GivesTheSameSheetsAsADom)
{
    Project p(week, plan);
    p.assign("Walls", "Ann");
    XLSXDataEngine engine(&p.document());
    engine.exportData(folder());
    for (int sheet = 0; sheet < 3; ++sheet) {
        const QByteArray streamed =
            folder::get(folder() + QString("/xl/worksheets/sheet%1.xml").arg(sheet + 1));
        EXPECT_EQ(sortedXml(engine.sheetDocument(sheet).documentElement()), sortedXml(streamed));
    }
    // Rows that stand already are used again, wherever they are.
    QDomDocument sheet = engine.sheetDocument(0);
    QDomElement data = sheet.documentElement().firstChildElement("sheetData");
    int counter = 0;
    for (const int row : {2, 9, 6, 9})
        engine.setCellCont("Walls", counter, row, 6, data, sheet);
    EXPECT_EQ(counter, 4);
    EXPECT_EQ(data.elementsByTagName("row").size(), 6);
    EXPECT_EQ(XLSXDataEngine::findRow(data, 2).lastChildElement().attribute("r"), "F2");
    EXPECT_EQ(XLSXDataEngine::findRow(data, 9).attribute("spans"), "1:5");
    EXPECT_TRUE(XLSXDataEngine::findRow(data, 7).isNull());
}

TEST_F(XlsxExport, KeepsColumnsPastZButMakesNoFileOfThem)
{
    WorkbookTitles::choose(exceltitles::TaskSheet, QString("T1 ").repeated(27));
    Project p(week, "A\n");
    XLSXDataEngine engine(&p.document());
    EXPECT_TRUE(engine.exportData(folder()));
    EXPECT_TRUE(folder::get(folder() + "/xl/worksheets/sheet1.xml").contains("<c r=\"[2\" t=\"s\">"));
    EXPECT_FALSE(engine.exportFile(m_folder.filePath("a.xlsx")));
    EXPECT_EQ(engine.findings().list().value(0).what.toStdString(), "there are more than 26 columns");
    EXPECT_FALSE(QFile::exists(m_folder.filePath("a.xlsx")));
}

TEST_F(XlsxExport, ReplacesTheFileOrLeavesItAsItWas)
{
    Project p(week, plan);
    XLSXDataEngine engine(&p.document());
    const QString path = m_folder.filePath("plan.xlsx");
    folder::put(path, "old");
    EXPECT_TRUE(engine.exportFile(path));
    const QTemporaryDir unpacked;
    EXPECT_TRUE(KWZip::unZip(path, unpacked.path()));
    EXPECT_EQ(xlsxcheck::faults(unpacked.path()), "");

    EXPECT_FALSE(engine.exportFile(m_folder.filePath("no/such/folder.xlsx")));
    EXPECT_EQ(engine.findings().count(), 1);
    QDir().mkdir(m_folder.filePath("dir.xlsx"));
    EXPECT_FALSE(engine.exportFile(m_folder.filePath("dir.xlsx")));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden),
              (QStringList{"dir.xlsx", "plan.xlsx"}));
    EXPECT_FALSE(XLSXDataEngine(nullptr).exportFile(path));
    EXPECT_TRUE(XLSXDataEngine(nullptr).exportData(m_folder.filePath("none")));
}

struct NameCase
{
    QStringList given;
    QStringList used;
};

TEST(SheetNames, AreWhatEveryProgramTakes)
{
    const QString longName(40, 'n');
    const NameCase cases[] = {
        {{}, {"Sheet1", "Sheet2", "Sheet3"}},
        {{"A", "a", "A"}, {"A", "a (2)", "A (3)"}},
        {{"[x]:*?/\\", "'", " b' "}, {"x", "Sheet2", "b"}},
        {{longName, longName, "Sheet1"}, {longName.left(31), longName.left(27) + " (2)", "Sheet1"}},
        {{"Sheet2", "", "c", "d"}, {"Sheet2", "Sheet2 (2)", "c"}},
        {{QString(30, 'n') + QString::fromUtf8("🏗"), "b\n", "c"}, {QString(30, 'n'), "b", "c"}},
    };
    for (const NameCase &c : cases) {
        XLSXDataBase::s_xmlNameList = c.given;
        EXPECT_EQ(XLSXDataBase::sheetNames().join('|').toStdString(), c.used.join('|').toStdString());
    }
    XLSXDataBase::s_xmlNameList.clear();
}

TEST(ColumnLetters, AreOneOrTwoCapitals)
{
    const std::pair<const char *, int> cases[] = {
        {"A1", 1}, {"Z", 26}, {"AA7", 27}, {"ZZ1048576", 702}, {"AAA1", 0},
        {"a1", 0}, {"", 0},   {"12", 0},   {"$A$1", 0},        {"\xc3\x84", 0}};
    for (const auto &[reference, number] : cases)
        EXPECT_EQ(XLSXDataBase::convertCharToNum(QString::fromUtf8(reference)), number) << reference;
}
}
