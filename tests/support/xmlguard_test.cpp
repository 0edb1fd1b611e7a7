#include "support/bytemarks.h"
#include "support/xmlguard.h"
#include <QDomDocument>
#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
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

constexpr bool safe = true;

constexpr bool refused = false;

TEST(XmlGuard, letsOnlyHarmlessTextThrough)
{
    const XmlCase cases[] = {
        {"byteOrderMark", "\xef\xbb\xbf<a/>", safe},
        {"emptyText", "", safe},
        {"doctype", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>", refused},
        {"doctypeAfterAComment", "<!-- -->\n<!DOCTYPE a><a/>", refused},
        {"doctypeBehindAnEndedComment", "<!--x--><!DOCTYPE a><!--y--><a/>", refused},
        {"doctypeNamedInAComment", "<!-- <!DOCTYPE a> --><a/>", safe},
        {"doctypeNamedInCdata", "<a><![CDATA[<!DOCTYPE a>]]></a>", safe},
        {"doctypeNamedInAnInstruction", "<?x <!DOCTYPE a> ?><a/>", safe},
        {"doctypeInsideAQuote", "<a b='<!DOCTYPE a>'/>", refused},
        {"doctypeBehindAQuote", "<a b='\"'/><!DOCTYPE a><c d='\"'/>", refused},
        {"deepestNesting", nested(100), safe},
        {"nestedTooDeep", nested(101), refused},
        {"emptyElementTooDeep", nested(100, "<b/>"), refused},
        {"tagsInCommentsAreNotDeep", nested(100, "<!--" + QByteArray("<b>").repeated(200) + "-->"), safe},
        {"manySiblings", "<a>" + QByteArray("<b/><c></c>").repeated(1000) + "</a>", safe},
        {"endTagsDoNotPayForDepth", "<a>" + QByteArray("</a>").repeated(200) + nested(101), refused},
        {"greaterSignInAValue", "<a b='>'><c d=\"/>\"></c></a>", safe},
        {"slashBeforeAQuotedEnd", nested(100, "<b c='/'></b>"), refused},
        {"openElement", "<a><b></a>", refused},
        {"openQuote", "<a b='1></a>", refused},
        {"openComment", "<a/><!-- -", refused},
        {"openCdata", "<a><![CDATA[ ]]</a>", refused},
        {"openInstruction", "<?xml version='1.0'", refused},
        {"lessSignAtTheEnd", "<a/><", refused},
        {"allPlanes",
         "<a>\xc2\x80\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xee\x80\x80\xef\xbf\xbd\xf0\x90\x80\x80"
         "\xf4\x8f\xbf\xbf</a>",
         safe},
        {"overlongSlash", "<a>\xc0\xaf</a>", refused},
        {"overlongThreeBytes", "<a>\xe0\x80\xaf</a>", refused},
        {"encodedSurrogate", "<a>\xed\xa0\x80</a>", refused},
        {"beyondUnicode", "<a>\xf4\x90\x80\x80</a>", refused},
        {"cutSequence", "<a/>\xe6\x97", refused},
        {"sequenceCutByMarkup", "<a>\xe6\x97</a>", refused},
        {"endMarkOfAParser", "<a>\xef\xbf\xbf</a>", refused},
        {"twoByteText", QByteArray("<\0a\0/\0>\0", 8), refused}};
    for (const XmlCase &row : cases) {
        SCOPED_TRACE(row.name);
        QString error;
        EXPECT_EQ(xmlguard::isSafe(row.text, &error), row.isSafe) << error.toStdString();
        EXPECT_EQ(error.isEmpty(), row.isSafe);
    }
}

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
    QString text, expected;
};

QString units(std::initializer_list<ushort> codes)
{
    return QString::fromUtf16(std::vector<ushort>(codes).data(), int(codes.size()));
}

TEST(XmlGuardClean, keepsWhatXmlCanCarry)
{
    const CleanCase cases[] = {
        {"lineBreaksStay", QStringLiteral("a\tb\nc\rd"), QStringLiteral("a\tb\nc\rd")},
        {"controlsGo", units({0, 'a', 1, 8, 'b', 0xb, 0x1f, 'c'}), QStringLiteral("abc")},
        {"noCharactersGo", units({'a', 0xfffe, 0xffff, 0xfffd}), units({'a', 0xfffd})},
        {"pairStays", units({0xd83d, 0xdcc5}), units({0xd83d, 0xdcc5})},
        {"loneHighGoes", units({0xd83d, 'a'}), QStringLiteral("a")},
        {"highAtTheEndGoes", units({'a', 0xd83d}), QStringLiteral("a")},
        {"secondHighOfThreeStays", units({0xd83d, 0xd83d, 0xdcc5}), units({0xd83d, 0xdcc5})},
        {"swappedPairGoes", units({0xdcc5, 0xd83d}), QString()}};
    for (const CleanCase &row : cases) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(xmlguard::clean(row.text), row.expected);
    }
}

// Several blocks long, asked ahead, behind and at the end.
RC_GTEST_PROP(ByteMarks, findsWhatAPlainLookFinds, ())
{
    const auto letters = *rc::gen::container<std::string>(
        *rc::gen::inRange(0, 300),
        rc::gen::weightedElement<char>({{40, 'a'}, {1, ','}, {1, '\n'}, {1, '\0'}, {1, '\xac'}}));
    // No byte behind the text may count.
    const std::vector<char> text(letters.begin(), letters.end());
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    const std::vector<char> marks{',', '\n'};
    ByteMarks found(begin, end, {',', '\n', ',', '\n'});
    for (const std::size_t place :
         *rc::gen::container<std::vector<std::size_t>>(20, rc::gen::inRange<std::size_t>(0, text.size() + 1)))
        RC_ASSERT(found.next(begin + place) ==
                  std::find_first_of(begin + place, end, marks.begin(), marks.end()));
}

}
