// Search and replace in rich text, widths of texts, unit names and theme colours.
#include "model/kwdocument.h"
#include <QTextCursor>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <random>

namespace {

QString utf8(const char *text)
{
    return QString::fromUtf8(text);
}

// What a reader sees of a rich text.
std::string shown(const QString &text)
{
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText().toStdString();
}

struct ReplaceCase
{
    const char *name;
    const char *text, *find, *replace;
    bool caseSensitive, wholeWords;
    bool found, replaced;
    const char *result; // as shown
};

constexpr bool anyCase = false, sameCase = true, anywhere = false, wholeWords = true, yes = true, no = false;

TEST(RichText, isSearchedAndReplaced)
{
    const ReplaceCase cases[] = {
        {"acrossFormats", "<p>wa<b>ll</b> <i>up</i></p>", "wall", "roof", sameCase, anywhere, yes, yes,
         "roof up"},
        {"neighbourIsTheReplacement", "-a--a-", "-a-", "b", sameCase, wholeWords, yes, yes, "b-a-"},
        {"blankThatDoesNotBreak", "<p>a&nbsp;b</p>", "a b", "c", sameCase, wholeWords, yes, yes, "c"},
        {"tagsAreNoText", "<p>body</p>", "p", "x", sameCase, anywhere, no, no, "body"},
        {"markupOfTheReplacementIsText", "<p>a</p>", "a", "<b>&", sameCase, anywhere, yes, yes, "<b>&"},
        {"entities", "<p>R &amp; D</p>", "r & d", "lab", anyCase, anywhere, yes, yes, "lab"},
        {"everyParagraph", "<p>a</p><p>b a</p>", "a", "c", sameCase, anywhere, yes, yes, "c\nb c"},
        {"emptyText", "", "a", "b", sameCase, anywhere, no, no, ""},
        {"emptySearch", "<p>abc</p>", "", "b", sameCase, anywhere, no, no, "abc"},
        {"sameReplacement", "<p>abc</p>", "b", "b", anyCase, anywhere, yes, no, "abc"}};
    for (const ReplaceCase &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(KWDocument::findTextStr(utf8(c.text), utf8(c.find), c.caseSensitive, c.wholeWords),
                  c.found);
        QString text = utf8(c.text);
        EXPECT_EQ(KWDocument::replaceTextStr(text, utf8(c.find), utf8(c.replace), c.caseSensitive,
                                             c.wholeWords, false),
                  c.replaced);
        EXPECT_EQ(shown(text), c.result);
        EXPECT_EQ(text == utf8(c.text), !c.replaced);
    }
}

TEST(RichTextForm, formatsStayAndPlainTextStaysPlain)
{
    QString rich = utf8("<p>one <b>two</b></p>");
    ASSERT_TRUE(KWDocument::replaceTextStr(rich, utf8("two"), utf8("2"), true, false, false));
    EXPECT_TRUE(rich.contains(utf8("font-weight:600")));
    struct Row
    {
        const char *text, *find, *replace, *result;
    };
    const Row rows[] = {{"first line\nsecond  line", "line", "row", "first row\nsecond  row"},
                        {"foo if a < b then stop", "foo", "bar", "bar if a < b then stop"},
                        {"R & D\nfoo & more", "foo", "bar", "R & D\nbar & more"},
                        {"7\u00a0mm foo", "foo", "<u>", "7\u00a0mm <u>"}};
    for (const Row &row : rows) {
        QString plain = utf8(row.text);
        ASSERT_TRUE(KWDocument::replaceTextStr(plain, utf8(row.find), utf8(row.replace), true, false, false));
        EXPECT_EQ(plain.toStdString(), row.result);
    }
}

QString randomText(std::mt19937 &random, const char *signs, int most)
{
    QString text;
    for (int length = int(random() % unsigned(most + 1)); length > 0; --length)
        text.append(QLatin1Char(signs[random() % qstrlen(signs)]));
    return text;
}

// One hit after the other, each looked for in what the one before has left.
QString replacedInTurn(const QString &text, const QString &find, const QString &replace,
                       QTextDocument::FindFlags flags)
{
    QTextDocument document;
    document.setPlainText(text);
    for (QTextCursor hit = document.find(find, 0, flags); !hit.isNull();
         hit = document.find(find, hit.position(), flags))
        hit.insertText(replace);
    return document.toPlainText();
}

TEST(RichTextProperty, equalsReplacingInTurn)
{
    std::mt19937 random(20240304);
    for (int trial = 0; trial < 3000; ++trial) {
        const bool whole = random() % 2, sensitive = random() % 2;
        QTextDocument::FindFlags flags;
        flags.setFlag(QTextDocument::FindWholeWords, whole);
        flags.setFlag(QTextDocument::FindCaseSensitively, sensitive);
        const QString text = randomText(random, "aAb- \n", 12);
        const QString find = randomText(random, whole ? "aAb" : "aAb-", 2);
        const QString replace = randomText(random, "aAb-\n", 2);
        if (text.isEmpty() || find.isEmpty() || find == replace)
            continue;
        QString replaced = text;
        KWDocument::replaceTextStr(replaced, find, replace, sensitive, whole, false);
        ASSERT_EQ(replaced.toStdString(), replacedInTurn(text, find, replace, flags).toStdString())
            << '"' << text.toStdString() << "\" " << find.toStdString() << " -> " << replace.toStdString();
    }
}

TEST(RichTextScale, manyHitsInOneParagraphTakeNoTime)
{
    constexpr int hitCount = 20000; // minutes, were the paragraph read again for each
    QString text = utf8("<p>") + utf8("<b>a</b> ").repeated(hitCount) + utf8("</p>");
    ASSERT_TRUE(KWDocument::replaceTextStr(text, utf8("a"), utf8("xyz"), true, true, false));
    EXPECT_EQ(text.count(utf8("xyz")), hitCount);
}

TEST(TextWidth, elidesOnlyWhatDoesNotFit)
{
    const QFont font;
    const QString text = utf8("A rather long name of a task");
    const double width = KWDocument::getTextWidth(text, font);
    EXPECT_GT(width, KWDocument::getTextWidth(utf8("A"), font));
    EXPECT_EQ(KWDocument::getElidedText(text, width, font), text);
    const QString elided = KWDocument::getElidedText(text, width / 2, font);
    EXPECT_LE(KWDocument::getTextWidth(elided, font), width / 2);
    EXPECT_TRUE(elided.startsWith(utf8("A r")) && elided.endsWith(QChar(0x2026))) << elided.toStdString();
}

TEST(UnitNameTexts, areEnglishUntilTheHostFillsLongOnesIn)
{
    QString names;
    for (const bool longNames : {false, true}) {
        for (unsigned int unit = 0; unit < 8; ++unit)
            names += KWDocument::getNameByMinorUnit(unit, longNames) + QLatin1Char(' ');
    }
    EXPECT_EQ(names.toStdString(), "y q mon w d h min  Year Quarter Month Week Workday Hour Minute  ");
    KWDocument::s_longUnitNames = {{4, utf8("Arbeitstag")}, {7, utf8("beyond")}};
    EXPECT_EQ(KWDocument::getNameByMinorUnit(4, true).toStdString(), "Arbeitstag");
    EXPECT_EQ(KWDocument::getNameByMinorUnit(7, true), QString());
    KWDocument::s_longUnitNames.clear();
    EXPECT_EQ(KWDocument::getNameByMinorUnit(5, true), QString());
}

TEST(ThemePalette, everyThemeHasTwelveNamedColours)
{
    KWDocument document;
    document.initThemeColor(); // again: the palette is not doubled
    ASSERT_GT(document.themeColors().size(), 1);
    QStringList names;
    for (const KWDocument::ThemeColor &theme : document.themeColors()) {
        EXPECT_EQ(theme.colors.size(), KWDocument::themeColorNames().size());
        EXPECT_FALSE(names.contains(theme.name));
        names.append(theme.name);
    }
    EXPECT_EQ(KWDocument::themeColorNames().size(), 12);
    EXPECT_EQ(document.themeColor(1), QColor(Qt::white));
    EXPECT_FALSE(document.themeColor(12).isValid());
    EXPECT_FALSE(document.themeColor(-1).isValid());
    document.ThemeIndex = 1;
    EXPECT_EQ(document.themeColor(4), document.themeColors().at(1).colors.at(4));
    document.ThemeIndex = -7;
    EXPECT_EQ(document.themeColor(4), document.themeColors().at(0).colors.at(4));
}
}
