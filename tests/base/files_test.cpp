// The base library's paths, temporary folders, XML files, log and tables.
#include "kwfilepathmanager.h"
#include "kwtemporarydir.h"
#include "kwversion.h"
#include "quarkmanager.h"
#include "runinglog.h"
#include "support/folder.h"
#include "xmlparser.h"
#include <QDir>
#include <QDomDocument>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QString latin1(const char *text)
{
    return QLatin1String(text);
}

class BaseFiles : public testing::Test
{
protected:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }
    bool load(const QByteArray &text, QDomDocument &document) const
    {
        return folder::put(path("in.xml"), text) && KWFilePathManager::loadXmlFile(path("in.xml"), document);
    }
    QTemporaryDir m_dir;
};

TEST_F(BaseFiles, savedDocumentLoadsAgainWithoutWhatXmlCannotCarry)
{
    QDomDocument document;
    QDomElement root = document.createElement(latin1("Plan"));
    root.setAttribute(latin1("Name"), QStringLiteral("a\u0001<&\"\u00e9\u5de5") + QChar(0xd800));
    document.appendChild(root);
    ASSERT_TRUE(XmlParser::saveToFile(path("out.xml"), document));
    QDomDocument loaded;
    ASSERT_TRUE(XmlParser::loadFile(path("out.xml"), loaded));
    EXPECT_EQ(loaded.documentElement().attribute(latin1("Name")), QStringLiteral("a<&\"\u00e9\u5de5"));
}

TEST_F(BaseFiles, refusedFileLeavesTheDocumentAsItWas)
{
    QDomDocument document;
    ASSERT_TRUE(load("<Before/>", document));
    const QByteArray deep = QByteArray("<a>").repeated(200000) + QByteArray("</a>").repeated(200000);
    for (const QByteArray &text :
         {QByteArray("<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"), deep, QByteArray("<a>\xff</a>"),
          QByteArray("<a/><b/>"), QByteArray("<a b=1/>"), QByteArray("text"), QByteArray()}) {
        SCOPED_TRACE(text.left(40).toStdString());
        EXPECT_FALSE(load(text, document));
    }
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    EXPECT_FALSE(XmlParser::loadFile(path("pipe"), document));
    EXPECT_FALSE(XmlParser::loadFile(m_dir.path(), document));
    EXPECT_FALSE(XmlParser::loadFile(path("missing"), document));
    EXPECT_EQ(document.documentElement().tagName(), latin1("Before"));
}

// A parser that decodes by the name in the text would see other characters than the scan did.
TEST_F(BaseFiles, encodingNamedInTheTextDoesNotDecide)
{
    QDomDocument document;
    ASSERT_TRUE(load("<?xml version='1.0' encoding='ISO-8859-1'?><a b='\xc3\xa9'/>", document));
    EXPECT_EQ(document.documentElement().attribute(latin1("b")), QStringLiteral("\u00e9"));
}

TEST_F(BaseFiles, configurationFolderCanBeRedirected)
{
    const auto back =
        qScopeGuard([old = KWFilePathManager::configDir()] { KWFilePathManager::setConfigRoot(old); });
    KWFilePathManager::setConfigRoot(path("config/"));
    EXPECT_EQ(KWFilePathManager::configDir(latin1("autosave/")), path("config/autosave"));
    EXPECT_TRUE(QDir(path("config/autosave")).exists());
    EXPECT_EQ(KWFilePathManager::configPath(latin1("Config.xml")), path("config/Config.xml"));
}

TEST_F(BaseFiles, temporaryFolderIsPrivateAndGoesWithItsContent)
{
    QString place;
    {
        const KWTemporaryDir temporary;
        ASSERT_TRUE(temporary.isValid());
        place = temporary.path();
        struct stat info;
        ASSERT_EQ(::stat(QFile::encodeName(place).constData(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0700u);
        ASSERT_TRUE(folder::put(place + latin1("/a/b"), "text"));
    }
    EXPECT_FALSE(QDir(place).exists());
}

TEST_F(BaseFiles, temporaryFolderIsMadeElsewhereWhenTheUsualPlaceCannotHoldIt)
{
    const auto back = qScopeGuard([old = KWFilePathManager::configDir(), temporary = qgetenv("TMPDIR")] {
        KWFilePathManager::setConfigRoot(old);
        temporary.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
    });
    KWFilePathManager::setConfigRoot(path("config"));
    ASSERT_TRUE(folder::put(path("file"), "no folder"));
    for (const char *place : {"missing", "file"}) {
        SCOPED_TRACE(place);
        qputenv("TMPDIR", QFile::encodeName(path(place)));
        const KWTemporaryDir temporary;
        EXPECT_TRUE(temporary.path().startsWith(path("config/"))) << temporary.path().toStdString();
        EXPECT_TRUE(QDir(temporary.path()).exists());
    }
}

TEST_F(BaseFiles, eventStaysOneLineOfTheLog)
{
    const auto back = qScopeGuard([] { RuningLog::setLogFile(QString()); });
    RuningLog::setLogFile(path("run.log"));
    RuningLog::log(latin1("not read: evil\nname\x1b[2J"));
    RuningLog::log(latin1("second"));
    const QList<QByteArray> lines = folder::get(path("run.log")).split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].endsWith(" not read: evil name [2J")) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].endsWith(" second"));
    EXPECT_TRUE(lines[2].isEmpty());
}

TEST(QuarkManager, unitNamesHoldTheirCodesWhateverIsAskedFirst)
{
    const int later = QuarkManager::quarkFromString(latin1("TaskList"));
    EXPECT_GE(later, QuarkManager::unitQuarkCount);
    EXPECT_EQ(QuarkManager::quarkToString(later), latin1("TaskList"));
    EXPECT_EQ(QuarkManager::quarkFromString(latin1("px")), 0);
    EXPECT_EQ(QuarkManager::quarkFromString(latin1("ft-in")), 7);
    EXPECT_EQ(QuarkManager::quarkFromString(latin1("cc")), 13);
    EXPECT_EQ(QuarkManager::findQuark(latin1("never seen")), -1);
    EXPECT_EQ(QuarkManager::quarkFromString(latin1("TaskList")), later);
    EXPECT_EQ(QuarkManager::quarkToString(-1), QString());
    EXPECT_EQ(QuarkManager::quarkToString(1 << 30), QString());
}

struct VersionCase
{
    const char *name, *text;
    int major, minor;
};

TEST(VersionText, givesItsNumbersOrNone)
{
    const VersionCase cases[] = {{"twoNumbers", "1.4", 1, 4},
                                 {"blanksAround", " 10.25 ", 10, 25},
                                 {"laterNumbersAreLeftAside", "2.1.7", 2, 1},
                                 {"empty", "", -1, -1},
                                 {"oneNumber", "3", -1, -1},
                                 {"letters", "1.x", -1, -1},
                                 {"minus", "1.-4", -1, -1},
                                 {"tooLarge", "99999999999.1", -1, -1}};
    for (const VersionCase &row : cases) {
        SCOPED_TRACE(row.name);
        const KWVersion version(latin1(row.text));
        EXPECT_EQ(version.major(), row.major);
        EXPECT_EQ(version.minor(), row.minor);
    }
}

}
