// The languages of the program. tools/texts compares the catalogues with the sources; here they are looked up
// and shown.
#include "columns.h"
#include "helptext.h"
#include "options.h"
#include "texts.h"
#include "textwidth.h"
#include <QByteArray>
#include <gtest/gtest.h>

namespace {

class Texts : public testing::Test
{
protected:
    void TearDown() override { texts::choose(QStringLiteral("en")); }
};

TEST_F(Texts, environmentDecidesAsItDoesForOtherPrograms)
{
    const struct
    {
        const char *language, *all, *messages, *lang;
        const char *expected;
    } cases[] = {
        {"", "", "", "", "en"},
        {"", "", "", "de_AT.UTF-8", "de"},
        {"", "", "zh_CN.UTF-8", "de_DE.UTF-8", "zh"},
        {"", "C", "zh_CN.UTF-8", "de_DE.UTF-8", "en"},
        {"de", "C.UTF-8", "", "", "en"}, // wishes do not count where no language is named
        {"fr:zh_TW:de", "en_GB.UTF-8", "", "", "zh"},
        {"fr:it", "de_DE@euro", "", "", "de"},
        {"", "", "", "fr_FR.UTF-8", "en"},
        {"", "", "", "deu", "en"},
    };
    const char *const names[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
    QByteArray before[4];
    for (int i = 0; i < 4; ++i)
        before[i] = qgetenv(names[i]);
    for (const auto &c : cases) {
        const char *const values[] = {c.language, c.all, c.messages, c.lang};
        for (int i = 0; i < 4; ++i)
            qputenv(names[i], values[i]);
        texts::choose(QStringLiteral("en"));
        texts::chooseFromEnvironment();
        EXPECT_EQ(texts::chosen().toStdString(), c.expected) << c.language << ' ' << c.all << ' ' << c.lang;
    }
    for (int i = 0; i < 4; ++i)
        qputenv(names[i], before[i]);
}

TEST_F(Texts, missingOnesStayEnglishAndAnUnknownLanguageChangesNothing)
{
    ASSERT_TRUE(texts::choose(QStringLiteral("de_DE.UTF-8")));
    EXPECT_FALSE(texts::choose(QStringLiteral("xx")));
    EXPECT_EQ(t("Task").toStdString(), "Vorgang");
    EXPECT_EQ(t("no text of ours").toStdString(), "no text of ours");
    EXPECT_EQ(texts::said(QStringLiteral("what no catalogue has")).toStdString(), "what no catalogue has");
}

TEST_F(Texts, whatTheLibrarySaidIsTranslatedWithWhatItPutIn)
{
    texts::choose(QStringLiteral("de"));
    const struct
    {
        const char *english, *german;
    } cases[] = {
        {"row 17, 'Finish'", "Zeile 17, 'Finish'"},
        {"task sheet, row 3", "Vorgangsblatt, Zeile 3"},
        {"Tasks, row 3, 'Finish'", "Tasks, Zeile 3, 'Finish'"},
        {"'31/02/2026' is no date from 1970 to 2105", "'31/02/2026' ist kein Datum von 1970 bis 2105"},
        // The longest wording counts, and a gap holds anything, other wordings too.
        {"'a' is no percentage from 0 to 100", "'a' ist kein Prozentsatz von 0 bis 100"},
        {"a.xml: byte 7: a tag does not end", "a.xml: Byte 7: ein Tag endet nicht"},
        {"no resource 'no resource'", "keine Ressource 'no resource'"},
        // A user's own words are never translated, nor taken for gaps.
        {"no resource 'left out'", "keine Ressource 'left out'"},
        {"there is a resource '%2' already", "es gibt schon eine Ressource '%2'"},
        {"", ""},
    };
    for (const auto &c : cases)
        EXPECT_EQ(texts::said(QString::fromUtf8(c.english)).toStdString(), c.german);
}

// In 80 columns the table must keep room for names and bars, and nothing may run out of the terminal.
TEST_F(Texts, fitIntoTheTerminal)
{
    for (const QString &language : texts::languages()) {
        ASSERT_TRUE(texts::choose(language));
        int standard = 0;
        for (const QString &key : columns::keys()) {
            const int width = textwidth::of(t(columns::named(key)->heading));
            EXPECT_LE(width, 12) << language.toStdString() << ' ' << key.toStdString();
            if (columns::standardKeys().contains(key))
                standard += width;
        }
        EXPECT_LE(standard, 36) << language.toStdString();
        for (const QString &command : QStringList{QString()} + options::commands()) {
            const helptext::Page page = helptext::page(command);
            EXPECT_LE(textwidth::of(page.meaning), 80) << page.meaning.toStdString();
            for (const helptext::Block &block : page.blocks) {
                const bool isHeading = block.kind == helptext::Block::Heading;
                EXPECT_LE(isHeading ? textwidth::of(block.text) : 0, 70) << block.text.toStdString();
            }
            for (const QString &line : helptext::shown(page, 80).split(QLatin1Char('\n'))) {
                const bool isExample = line.startsWith(QLatin1String("    kwgantt")) ||
                                       line.startsWith(QLatin1String("    source"));
                EXPECT_LE(isExample ? 0 : textwidth::of(line), 80) << line.toStdString();
            }
        }
    }
}
}
