// The document as a package: what is written, what comes back, what a failure leaves alone.
#include "engine/record/resource.h"
#include "kwfilepathmanager.h"
#include "kwversion.h"
#include "kwzip.h"
#include "model/kwdocument.h"
#include "model/kwtaskinfo.h"
#include "resources/resourceinfodata.h"
#include "runinglog.h"
#include "schedule/kwcalendar.h"
#include "schedule/kwtaskcollection.h"
#include "support/filesizelimit.h"
#include "support/folder.h"
#include "support/project.h"
#include "support/sortedxml.h"
#include "table/rowcolumndata.h"
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

class Package : public testing::Test
{
protected:
    QString path(const char *name) const { return m_box.path() + QLatin1Char('/') + utf8(name); }
    // The file of a package, as it stands in the archive.
    QByteArray entry(const QString &package, const char *name) const
    {
        const QTemporaryDir folder;
        EXPECT_TRUE(KWZip::unZip(package, folder.path())) << KWZip::lastError().toStdString();
        return folder::get(folder.path() + QLatin1Char('/') + utf8(name));
    }
    std::string documentXml(const QString &package) const
    {
        return sortedXml(entry(package, "document.xml"));
    }
    // What saving would give, without a package.
    static std::string shown(const KWDocument &document)
    {
        const QTemporaryDir folder;
        EXPECT_TRUE(document.saveDocument(folder.path() + QLatin1Char('/')));
        return sortedXml(folder::get(folder.path() + QLatin1String("/document.xml")));
    }
    // A package of the given parts; an empty one is left out.
    QString packed(const QByteArray &document, const QByteArray &page = "<Page/>",
                   const QByteArray &relations = "<Relationships/>") const
    {
        const QTemporaryDir folder;
        const QString root = folder.path() + QLatin1Char('/');
        if (!document.isEmpty())
            folder::put(root + utf8("document.xml"), document);
        if (!page.isEmpty())
            folder::put(root + utf8("page/page.xml"), page);
        if (!relations.isEmpty())
            folder::put(root + utf8("rels/page_rels.xml"), relations);
        QDir(root).mkpath(utf8("media"));
        const QString package = path("packed.kwpx");
        EXPECT_TRUE(KWZip::zip(package, folder.path()));
        return package;
    }
    static void fill(KWDocument &document)
    {
        document.WorkDay[5] = true;
        document.BaselineCost = 1234567.125;
        document.UnitWidth = 33;
        document.Auto = true;
        document.AutoZoom = false;
        document.printConfig.Portrait = true;
        document.calendars.append(new KWCalendar);
        document.calendars.last()->name = utf8("Büro <zu>");
        document.calendars.last()->dayTimes.append(new KWDayTime(30000, 40000));
        auto *info = new ResourceInfo;
        info->name = utf8("Ann");
        document.resourceInfoData()->infos.append(info);
        for (quint32 id = 1; id <= 3; ++id) {
            auto *task = new KWTaskInfo;
            task->ID = id;
            task->Name = utf8("Task \U0001F4C5 & \"%1\"");
            task->Cost = 0.1 * id;
            document.appendTaskInfoList(task);
            document.rowColumnData()->appendRowHeight(30 + id);
        }
        document.getTaskInfoByID(2)->resourceList.append(new Resource);
    }

    const QTemporaryDir m_box;
};

TEST_F(Package, ComesBackAsItWasSaved)
{
    KWDocument document;
    fill(document);
    document.setModified(true);
    ASSERT_TRUE(document.save(path("plan.kwpx")));
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(document.filePath(), path("plan.kwpx"));

    KWDocument loaded;
    fill(loaded); // all of this goes
    loaded.taskCollection()->setTaskInfoActive(loaded.getTaskInfoAt(1));
    ASSERT_TRUE(loaded.loadFromKWGT(path("plan.kwpx")));
    EXPECT_EQ(loaded.taskCollection()->getTaskInfoActive(), nullptr);
    EXPECT_EQ(shown(loaded), shown(document));
    EXPECT_EQ(loaded.filePath(), path("plan.kwpx"));
    EXPECT_EQ(loaded.rowColumnData()->rowHeights(), QList<double>({31, 32, 33}));
    EXPECT_EQ(loaded.getTaskInfoAt(2)->Cost, document.getTaskInfoAt(2)->Cost);
    EXPECT_EQ(loaded.BaselineCost, 1234567.125);
    // The same bytes, whoever saves it.
    ASSERT_TRUE(loaded.save(path("again.kwpx")));
    EXPECT_EQ(folder::get(path("again.kwpx")), folder::get(path("plan.kwpx")));
}

TEST_F(Package, HoldsTheseParts)
{
    KWDocument document;
    ASSERT_TRUE(document.save(path("empty.kwpx")));
    const QTemporaryDir folder;
    ASSERT_TRUE(KWZip::unZip(path("empty.kwpx"), folder.path()));
    EXPECT_EQ(folder::get(folder.path() + utf8("/page/page.xml")),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Page/>\n");
    EXPECT_EQ(folder::get(folder.path() + utf8("/rels/page_rels.xml")),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Relationships/>\n");
    EXPECT_TRUE(QDir(folder.path() + utf8("/media")).exists());
    const QByteArray xml = folder::get(folder.path() + utf8("/document.xml"));
    EXPECT_TRUE(xml.startsWith(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Document DocGuid=\"" + document.DocGuid.toUtf8() +
        "\" Version=\"1.4\">\n    <GanttOption>\n        <WorkDay V=\"1;1;1;1;1;0;0\"/>\n"
        "        <MajorUnit V=\"3\"/>\n"))
        << xml.constData();
    QDomDocument dom;
    ASSERT_TRUE(dom.setContent(xml));
    QStringList names;
    for (QDomElement child = dom.documentElement().firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        names.append(child.tagName());
    EXPECT_EQ(names.join(QLatin1Char(' ')), utf8("GanttOption ResourceInfo RowColumn PrintCfg"));
}

TEST_F(Package, LoadingReplacesOnlyWhatTheFileTells)
{
    KWDocument document;
    fill(document);
    document.MajorUnit = 2;
    const QString guid = document.DocGuid;
    const int columns = document.rowColumnData()->columns().size();
    ASSERT_TRUE(
        document.loadFromKWGT(packed("<Document><TaskList><Task ID='7'/><Other/></TaskList></Document>")));
    EXPECT_EQ(document.taskCount(), 2);
    EXPECT_EQ(document.rowColumnData()->rowHeights(), QList<double>({30, 30}));
    EXPECT_EQ(document.MajorUnit, 2u);
    EXPECT_EQ(document.DocGuid, guid);
    EXPECT_TRUE(document.workTimes.isEmpty());
    EXPECT_TRUE(document.calendars.isEmpty());
    EXPECT_EQ(document.resourceInfoData()->infos.size(), 1);
    EXPECT_EQ(document.rowColumnData()->columns().size(), columns);
    EXPECT_TRUE(document.printConfig.Portrait);

    ASSERT_TRUE(document.loadFromKWGT(
        packed("<Document DocGuid='any text'><ResourceInfo><Column Name='Bob'/></ResourceInfo><RowColumn>"
               "<RowHeightList RowHeight='1;2;3'/></RowColumn><TaskList><Task/></TaskList></Document>")));
    EXPECT_EQ(document.DocGuid, utf8("any text"));
    ASSERT_EQ(document.resourceInfoData()->infos.size(), 1);
    EXPECT_EQ(document.resourceInfoData()->infos[0]->name, utf8("Bob"));
    EXPECT_EQ(document.rowColumnData()->rowHeights(), QList<double>({1}));

    ASSERT_TRUE(document.loadFromKWGT(packed("<Document/>")));
    EXPECT_EQ(document.taskCount(), 0);
    EXPECT_TRUE(document.rowColumnData()->rowHeights().isEmpty());
}

struct OptionCase
{
    const char *name, *options;
    const char *written; // the option as saved afterwards
};

TEST_F(Package, OptionsAreReadIntoANewDocument)
{
    const OptionCase cases[] = {
        {"few_days", "<WorkDay V='0;0;0'/>", "WorkDay V='0;0;0;1;1;0;0'"},
        {"odd_days", "<WorkDay V='yes;2;;1;-1; 1;x'/>", "WorkDay V='0;0;0;1;0;0;0'"},
        {"empty_value", "<WorkDay V=''/><UnitWidth/>", "UnitWidth V='100'"},
        {"few_finishes", "<StartTime V='1;2;3'/><FinishTime V='10'/>", "FinishTime V='10;43200;43200'"},
        {"many_finishes", "<StartTime V='1'/><FinishTime V='10;20'/>", "FinishTime V='10'"},
        {"finishes_alone", "<FinishTime V='10;20'/>", "FinishTime V=''"},
        {"starts_twice", "<StartTime V='1;2'/><StartTime V='3'/>", "StartTime V='1;2;3'"},
        {"flag_of_a_number", "<Auto V='7'/>", "Auto V='1'"},
        {"flag_of_a_word", "<AutoZoom V='yes'/>", "AutoZoom V='0'"},
        {"negative_width", "<UnitWidth V='-5'/>", "UnitWidth V='0'"},
        {"width_past_the_range", "<UnitWidth V='4294967295'/>", "UnitWidth V='0'"},
        {"no_cost", "<BaselineCost V='nan'/>", "BaselineCost V='0'"},
        {"unknown", "<Colour V='3'/><ThemeIndex V='2'/>", "ThemeIndex V='2'"}};
    for (const OptionCase &row : cases) {
        SCOPED_TRACE(row.name);
        KWDocument document;
        const QByteArray xml =
            QByteArray("<Document><GanttOption>") + row.options + "</GanttOption></Document>";
        ASSERT_TRUE(document.loadFromKWGT(packed(xml)));
        const std::string saved = shown(document);
        EXPECT_NE(saved.find(std::string("  ") + row.written + "\n"), std::string::npos) << saved;
    }
}

struct VersionCase
{
    const char *name, *attribute, *version;
};

TEST_F(Package, VersionIsRead)
{
    const VersionCase cases[] = {
        {"absent", "", "1.4"}, {"word", "Version='abc'", "1.4"}, {"later", "Version='99.99'", "99.99"}};
    for (const VersionCase &row : cases) {
        SCOPED_TRACE(row.name);
        KWDocument document;
        const QString package = packed(QByteArray("<Document ") + row.attribute + "/>");
        ASSERT_TRUE(document.loadFromKWGT(package));
        EXPECT_EQ(document.loadedVersion().toString().toStdString(), row.version);
    }
}

struct BadPackage
{
    const char *name, *document, *page, *relations;
};

TEST_F(Package, BadOnesLeaveTheDocumentAlone)
{
    const BadPackage cases[] = {
        {"no_document", "", "<Page/>", "<r/>"},
        {"cut", "<Document><TaskList><Task ID='1'/>", "<Page/>", "<r/>"},
        {"other_root", "<Project/>", "<Page/>", "<r/>"},
        {"doctype", "<!DOCTYPE Document><Document/>", "<Page/>", "<r/>"},
        {"no_text", "<Document><TaskList><Task Name='\xff'/></TaskList></Document>", "<Page/>", "<r/>"},
        {"page", "<Document/>", "<<<", "<r/>"},
        {"relations", "<Document/>", "<Page/>", "<r>"}};
    for (const BadPackage &row : cases) {
        SCOPED_TRACE(row.name);
        KWDocument document;
        fill(document);
        document.setModified(true);
        const std::string before = shown(document);
        const KWTaskInfo *task = document.getTaskInfoAt(0);
        EXPECT_FALSE(document.loadFromKWGT(packed(row.document, row.page, row.relations)));
        EXPECT_EQ(shown(document), before);
        EXPECT_EQ(document.getTaskInfoAt(0), task);
        EXPECT_EQ(document.filePath(), QString());
        EXPECT_TRUE(document.isModified());
    }
}

TEST_F(Package, StructureNeedsThePage)
{
    KWDocument document;
    const QString package = packed("<Document><TaskList><Task ID='7'/></TaskList></Document>", "");
    EXPECT_TRUE(document.loadFromKWGT(package));
    EXPECT_FALSE(document.loadStructure(package));
    EXPECT_TRUE(document.loadStructure(packed("<Document><TaskList><Task ID='8'/></TaskList></Document>")));
    EXPECT_NE(document.getTaskInfoByID(8), nullptr);
    EXPECT_FALSE(document.loadStructure(path("packed.zip")));
    document.loadFromFile(path("packed.KWPX"));
    EXPECT_NE(document.getTaskInfoByID(8), nullptr);
}

TEST_F(Package, FailedSaveLeavesFileAndDocument)
{
    KWDocument document;
    fill(document);
    ASSERT_TRUE(document.save(path("plan.kwpx")));
    const QByteArray old = folder::get(path("plan.kwpx"));
    document.getTaskInfoAt(0)->Name = utf8("changed");
    document.setModified(true);
    RuningLog::setLogFile(path("run.log"));
    const QStringList targets{path("plan.KWPX"), path("plan.zip"), path("none/plan.kwpx"),
                              path("folder.kwpx")};
    QDir(m_box.path()).mkdir(utf8("folder.kwpx"));
    for (const QString &target : targets) {
        EXPECT_FALSE(document.save(target)) << target.toStdString();
        EXPECT_TRUE(document.isModified());
        EXPECT_EQ(document.filePath(), path("plan.kwpx"));
    }
    EXPECT_EQ(folder::get(path("run.log")).count("Package not written"), 2);
    {
        const FileSizeLimit limit(500); // no room in the log either
        EXPECT_FALSE(document.save(QString()));
    }
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(folder::get(path("plan.kwpx")), old);
    RuningLog::setLogFile(QString());
    EXPECT_TRUE(document.save(QString()));
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(QDir(m_box.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList({utf8("plan.kwpx"), utf8("run.log")}));
}

TEST_F(Package, BackupChangesNothing)
{
    KWDocument document;
    EXPECT_FALSE(document.saveBackup());
    fill(document);
    ASSERT_TRUE(document.save(path("plan.kwpx")));
    const QString backup = KWFilePathManager::configDir(utf8("autosave")) + QLatin1Char('/') +
                           document.backupName() + utf8(".kwpx");
    EXPECT_TRUE(document.saveBackup());
    EXPECT_FALSE(QFile::exists(backup));
    document.setModified(true);
    EXPECT_TRUE(document.saveBackup());
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.filePath(), path("plan.kwpx"));
    EXPECT_EQ(folder::get(backup), folder::get(path("plan.kwpx")));
}

TEST(LoadedPackages, showWhatIsHiddenBelowNobody)
{
    Project p("Mon-Fri 8-12 13-17", "Sum\n  Below 1d\nLost 1d\n");
    p.document().collapseTaskInfo(&p.task("Sum"));
    p.task("Lost").HideID = 99;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("p.kwpx"));
    ASSERT_TRUE(p.document().save(path));
    KWDocument loaded;
    for (int round = 0; round < 2; ++round) { // findings of one file
        ASSERT_TRUE(loaded.loadFromKWGT(path));
        EXPECT_EQ(loaded.visibleRowCount(), 2);
        ASSERT_EQ(loaded.loadFindings().count(), 1);
        EXPECT_EQ(loaded.loadFindings().list().first().place.toStdString(), "task 3");
        EXPECT_FALSE(loaded.isModified());
    }
}
}
