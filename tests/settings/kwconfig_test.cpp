// The application's settings and their file.
#include "kwfilepathmanager.h"
#include "settings/kwconfig.h"
#include "support/folder.h"
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

// What a program that reads its settings sees.
std::string shown(const KWConfig &config)
{
    QStringList values;
    for (const char *name : {"UndoLevel", "AutoSaveElapse", "RecentFileNum", "DateFormat", "TimeFormat",
                             "CurrencyUnit", "Language", "Custom"})
        values.append(config.textValue(utf8(name)));
    return values.join(QLatin1Char('|')).toStdString();
}

const std::string defaults = "60|10|10|yyyy-MM-dd|hh:mm||en|";

class Config : public testing::Test
{
protected:
    bool load(const QByteArray &text) { return folder::put(file(), text) && m_config.load(m_dir.path()); }
    QString file() const { return m_dir.filePath(utf8("Config.xml")); }
    QTemporaryDir m_dir;
    KWConfig m_config;
};

TEST_F(Config, comesBackFromItsFile)
{
    m_config.setValue(utf8("UndoLevel"), 5);
    m_config.setValue(utf8("CurrencyUnit"), utf8("<\u20ac & \"$\">\x01"));
    m_config.setValue(utf8("Custom"), true);
    m_config.setValue(utf8("DateFormat"), QString()); // no format is a choice, too
    ASSERT_TRUE(m_config.save(m_dir.path()));
    KWConfig again;
    again.setValue(utf8("RecentFileNum"), 3); // goes with what was set before
    ASSERT_TRUE(again.load(m_dir.path()));
    EXPECT_EQ(shown(again), "5|10|10||hh:mm|<\u20ac & \"$\">|en|true");
    EXPECT_EQ(again.intValue(utf8("UndoLevel")), 5);
}

TEST_F(Config, usesTheConfigurationFolderByItself)
{
    m_config.setValue(utf8("Language"), utf8("de"));
    ASSERT_TRUE(m_config.save());
    EXPECT_TRUE(folder::get(KWFilePathManager::configPath(utf8("Config.xml"))).contains("de"));
    KWConfig again;
    EXPECT_TRUE(again.load());
    EXPECT_EQ(again.textValue(utf8("Language")).toStdString(), "de");
}

TEST_F(Config, keepsOnlyValuesThatFit)
{
    m_config.setValue(utf8("UndoLevel"), 20);
    for (const QVariant &wrong :
         {QVariant(10001), QVariant(utf8("many")), QVariant(),
          QVariant(std::numeric_limits<double>::quiet_NaN()), QVariant(Q_INT64_C(4294967356))})
        m_config.setValue(utf8("UndoLevel"), wrong);
    m_config.setValue(utf8("Language"), QString(2000, QLatin1Char('x')));
    m_config.setValue(QString(), 1);
    EXPECT_EQ(shown(m_config), "20|10|10|yyyy-MM-dd|hh:mm||en|");
    EXPECT_FALSE(m_config.contains(QString()));
    EXPECT_FALSE(m_config.value(utf8("Custom")).isValid());
}

TEST_F(Config, hostileValuesGiveDefaults)
{
    ASSERT_TRUE(load(
        "<Config><Setting Name='UndoLevel' V='99999999999'/><Setting Name='RecentFileNum' V='1e1'/>"
        "<Setting Name='AutoSaveElapse'/><Setting V='x'/><Other Name='Language' V='xx'/>"
        "<Setting Name='Custom' V='kept'/><Setting><Setting Name='Language' V='xx'/></Setting></Config>"));
    EXPECT_EQ(shown(m_config), defaults + "kept");
}

TEST_F(Config, hostileFilesGiveDefaults)
{
    EXPECT_FALSE(m_config.load(m_dir.filePath(utf8("missing"))));
    QByteArray deep;
    for (int level = 0; level < 5000; ++level)
        deep += "<a>";
    const QByteArray setting = "<Setting Name='UndoLevel' V='5'/>";
    const QByteArray files[] = {"",
                                "UndoLevel=5",
                                "<Config>" + setting,
                                "<Other>" + setting + "</Other>",
                                "<!DOCTYPE Config [<!ENTITY a 'b'>]><Config>" + setting + "</Config>",
                                "<Config>" + setting + deep,
                                "<Config>" + setting + "\xff</Config>",
                                "<Config>" + setting + QByteArray(2 << 20, ' ') + "</Config>"};
    for (const QByteArray &text : files) {
        EXPECT_FALSE(load(text)) << text.left(60).toStdString();
        EXPECT_EQ(shown(m_config), defaults);
    }
}

}
