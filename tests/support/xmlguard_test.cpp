#include "support/xmlguard.h"
#include <QDomDocument>
#include <gtest/gtest.h>
#include <vector>

namespace {

QByteArray nested(int depth, const QByteArray &innermost = QByteArray())
{
    return QByteArray("<a>").repeated(depth) + innermost + QByteArray("</a>").repeated(depth);
}

struct XmlCase
{
    const char *name;
    QByteArray text;
    bool isSafe;
};

void PrintTo(const XmlCase &xml, std::ostream *out)
{
    *out << xml.name;
}

class XmlGuard : public testing::TestWithParam<XmlCase>
{
};

TEST_P(XmlGuard, letsOnlyHarmlessTextThrough)
{
    QString error;
    EXPECT_EQ(xmlguard::isSafe(GetParam().text, &error), GetParam().isSafe) << error.toStdString();
    EXPECT_EQ(error.isEmpty(), GetParam().isSafe);
}

constexpr bool safe = true;
constexpr bool refused = false;

INSTANTIATE_TEST_SUITE_P(
    Texts, XmlGuard,
    testing::Values(
        XmlCase{"plainDocument", "<?xml version=\"1.0\"?>\n<a b='1' c=\"2\"><d/>text</a>\n", safe},
        XmlCase{"byteOrderMark", "\xef\xbb\xbf<a/>", safe}, XmlCase{"emptyText", "", safe},
        XmlCase{"noXmlAtAll", "{\"tasks\": []}", safe},
        XmlCase{"doctype", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>", refused},
        XmlCase{"doctypeInLowerCase", "<!doctype a><a/>", refused},
        XmlCase{"doctypeAfterAComment", "<!-- -->\n<!DOCTYPE a><a/>", refused},
        XmlCase{"doctypeBehindAnEndedComment", "<!--x--><!DOCTYPE a><!--y--><a/>", refused},
        XmlCase{"doctypeNamedInAComment", "<!-- <!DOCTYPE a> --><a/>", safe},
        XmlCase{"doctypeNamedInCdata", "<a><![CDATA[<!DOCTYPE a>]]></a>", safe},
        XmlCase{"doctypeNamedInAnInstruction", "<?x <!DOCTYPE a> ?><a/>", safe},
        XmlCase{"doctypeInsideAQuote", "<a b='<!DOCTYPE a>'/>", refused},
        XmlCase{"doctypeBehindAQuote", "<a b='\"'/><!DOCTYPE a><c d='\"'/>", refused},
        XmlCase{"deepestNesting", nested(100), safe}, XmlCase{"nestedTooDeep", nested(101), refused},
        XmlCase{"emptyElementTooDeep", nested(100, "<b/>"), refused},
        XmlCase{"tagsInCommentsAreNotDeep", nested(100, "<!--" + QByteArray("<b>").repeated(200) + "-->"),
                safe},
        XmlCase{"manySiblings", "<a>" + QByteArray("<b/><c></c>").repeated(1000) + "</a>", safe},
        XmlCase{"endTagsDoNotPayForDepth", "<a>" + QByteArray("</a>").repeated(200) + nested(101), refused},
        XmlCase{"greaterSignInAValue", "<a b='>'><c d=\"/>\"></c></a>", safe},
        XmlCase{"slashBeforeAQuotedEnd", nested(100, "<b c='/'></b>"), refused},
        XmlCase{"openElement", "<a><b></a>", refused}, XmlCase{"openTag", "<a b='1'", refused},
        XmlCase{"openQuote", "<a b='1></a>", refused}, XmlCase{"openComment", "<a/><!-- -", refused},
        XmlCase{"openCdata", "<a><![CDATA[ ]]</a>", refused},
        XmlCase{"openInstruction", "<?xml version='1.0'", refused},
        XmlCase{"lessSignAtTheEnd", "<a/><", refused},
        XmlCase{"allPlanes",
                "<a>\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbd\xf0\x90\x80\x80"
                "\xf4\x8f\xbf\xbf</a>",
                safe},
        XmlCase{"strayByte", "<a>\x80</a>", refused}, XmlCase{"overlongSlash", "<a>\xc0\xaf</a>", refused},
        XmlCase{"overlongThreeBytes", "<a>\xe0\x80\xaf</a>", refused},
        XmlCase{"overlongFourBytes", "<a>\xf0\x80\x80\xaf</a>", refused},
        XmlCase{"encodedSurrogate", "<a>\xed\xa0\x80</a>", refused},
        XmlCase{"beyondUnicode", "<a>\xf4\x90\x80\x80</a>", refused},
        XmlCase{"cutSequence", "<a/>\xe6\x97", refused},
        XmlCase{"sequenceCutByMarkup", "<a>\xe6\x97</a>", refused},
        XmlCase{"nul", QByteArray("<a>\0</a>", 8), refused},
        XmlCase{"endMarkOfAParser", "<a>\xef\xbf\xbf</a>", refused},
        XmlCase{"twoByteText", QByteArray("<\0a\0/\0>\0", 8), refused}),
    [](const auto &test) { return std::string(test.param.name); });

// Whatever the scan lets through must not be a document type declaration for the parser either: every short
// sequence of the marks that could confuse one of the two.
TEST(XmlGuardAgainstParser, agreesWhereADoctypeStands)
{
    const std::vector<QByteArray> pieces = {"<a>",       "</a>",  "<!DOCTYPE a>", "<!--", "-->",
                                            "<![CDATA[", "]]>",   "<?x ",         "?>",   "'",
                                            "\"",        "<a b=", "/>",           ">"};
    const size_t count = pieces.size();
    int parsed = 0;
    for (size_t pick = 0; pick < count * count * count * count; ++pick) {
        QByteArray text;
        for (size_t rest = pick, i = 0; i < 4; ++i, rest /= count)
            text += pieces[rest % count];
        for (const QByteArray &whole : {text + "<a/>", "<a>" + text + "</a>"}) {
            QDomDocument document;
            if (!xmlguard::isSafe(whole) || !document.setContent(QString::fromUtf8(whole)))
                continue;
            ++parsed;
            ASSERT_EQ(document.doctype().name(), QString()) << whole.toStdString();
        }
    }
    EXPECT_GT(parsed, 1000);
}

struct CleanCase
{
    const char *name;
    QString text;
    QString expected;
};

void PrintTo(const CleanCase &clean, std::ostream *out)
{
    *out << clean.name;
}

class XmlGuardClean : public testing::TestWithParam<CleanCase>
{
};

TEST_P(XmlGuardClean, keepsWhatXmlCanCarry)
{
    EXPECT_EQ(xmlguard::clean(GetParam().text), GetParam().expected);
}

QString units(std::initializer_list<ushort> codes)
{
    return QString::fromUtf16(std::vector<ushort>(codes).data(), int(codes.size()));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, XmlGuardClean,
    testing::Values(
        CleanCase{"lineBreaksStay", QStringLiteral("a\tb\nc\rd"), QStringLiteral("a\tb\nc\rd")},
        CleanCase{"controlsGo", units({0, 'a', 1, 8, 'b', 0xb, 0x1f, 'c'}), QStringLiteral("abc")},
        CleanCase{"noCharactersGo", units({'a', 0xfffe, 0xffff, 0xfffd}), units({'a', 0xfffd})},
        CleanCase{"pairStays", units({0xd83d, 0xdcc5}), units({0xd83d, 0xdcc5})},
        CleanCase{"loneHighGoes", units({0xd83d, 'a'}), QStringLiteral("a")},
        CleanCase{"loneLowGoes", units({'a', 0xdcc5}), QStringLiteral("a")},
        CleanCase{"highAtTheEndGoes", units({'a', 0xd83d}), QStringLiteral("a")},
        CleanCase{"secondHighOfThreeStays", units({0xd83d, 0xd83d, 0xdcc5}), units({0xd83d, 0xdcc5})},
        CleanCase{"swappedPairGoes", units({0xdcc5, 0xd83d}), QString()}),
    [](const auto &test) { return std::string(test.param.name); });
}
