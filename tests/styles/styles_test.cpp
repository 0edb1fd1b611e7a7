// Colours, the other styles' files, and whether a chart can be read in every theme.
#include "kwpath.h"
#include "model/kwdocument.h"
#include "styles/chartstyle.h"
#include "styles/kwmath.h"
#include "support/sortedxml.h"
#include <QDomDocument>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using chartstyle::Role;
using chartstyle::Sheet;
using chartstyle::Theme;
using Vision = ColorUtil::Vision;

std::string shown(const QColor &color)
{
    return ColorUtil::toHex(color).toStdString();
}

QColor anyColor()
{
    return QColor(*rc::gen::inRange<QRgb>(0, 0x1000000));
}

TEST(Colors, knownValues)
{
    EXPECT_NEAR(ColorUtil::contrast(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(ColorUtil::contrast(QColor(0x777777), Qt::white), 4.48, 0.005);
    EXPECT_NEAR(ColorUtil::distance(Qt::black, Qt::white), 100, 0.01);
    EXPECT_NEAR(ColorUtil::distance(QColor(0x4472c4), QColor(0x4472c4), Vision::NoRed), 0, 1e-9);
    // Tints of the first accent as spreadsheets list them.
    EXPECT_EQ(shown(ColorUtil::tinted(QColor(0x4472c4), -0.25)), "#2f5597");
    EXPECT_EQ(shown(ColorUtil::tinted(QColor(0x4472c4), 0.4)), "#8faadc");
    EXPECT_EQ(shown(ColorUtil::fromHex(QStringLiteral("#F0a"))), "#ff00aa");
    EXPECT_EQ(shown(ColorUtil::fromHex(QStringLiteral("#0102037f"))), "#0102037f");
    for (const char *wrong : {"", "#", "4472c4", "#4472c", "#4472cg", "#-72c4", "#4472c4777", "red"})
        EXPECT_FALSE(ColorUtil::fromHex(QString::fromLatin1(wrong)).isValid()) << wrong;
}

RC_GTEST_PROP(Colors, goToHslAndBack, ())
{
    const QColor color = anyColor();
    RC_ASSERT(shown(ColorUtil::fromHsl(ColorUtil::toHsl(color))) == shown(color));
}

// No palette, however odd, makes a chart that cannot be read.
RC_GTEST_PROP(Themes, standOutWithAnyPalette, ())
{
    ThemePalette palette = ThemePalette::builtIn()[*rc::gen::inRange(0, 4)];
    const bool isOwn = *rc::gen::arbitrary<bool>();
    for (int i = 0; isOwn && i < palette.colors.size(); ++i)
        palette.colors[i] = anyColor();
    for (int theme = 0; theme < chartstyle::themeCount; ++theme) {
        const Sheet sheet(Theme(theme), palette);
        for (std::size_t i = 0; i < chartstyle::roleCount; ++i) {
            const Role role = Role(i);
            const double wanted = chartstyle::requirement(Theme(theme), role).contrast;
            RC_ASSERT(wanted == 0 || wanted >= (role >= Role::HeadMajor ? 4.5 : 3.0));
            if (sheet.contrast(role) < wanted)
                RC_FAIL(std::string(chartstyle::name(Theme(theme))) + " " + chartstyle::name(role) + " " +
                        shown(sheet.color(role)) + " " + std::to_string(sheet.contrast(role)));
        }
        RC_ASSERT(!sheet.style(Role::CriticalBar).edge.isNone());
        RC_ASSERT(sheet.style(Role::CriticalLink).line.width > sheet.style(Role::Link).line.width);
    }
}

TEST(Themes, criticalBarsDifferForEveryReader)
{
    for (const ThemePalette &palette : ThemePalette::builtIn()) {
        for (int theme = 0; theme < chartstyle::themeCount; ++theme) {
            for (const Vision vision : {Vision::Full, Vision::NoRed, Vision::NoGreen, Vision::NoBlue})
                EXPECT_GE(Sheet(Theme(theme), palette).criticalDistance(vision), 20)
                    << palette.name.toStdString() << " " << chartstyle::name(Theme(theme)) << " "
                    << int(vision);
        }
    }
}

TEST(KWColor, followsTheDocumentsTheme)
{
    KWDocument document;
    const KWColor color = KWColor::fromTheme(ThemePalette::Accent1, -0.25);
    EXPECT_EQ(shown(color.color(&document)), "#2f5597");
    document.ThemeIndex = 1;
    EXPECT_EQ(color.color(&document), ColorUtil::tinted(QColor(0x3b6ea5), -0.25));
    EXPECT_FALSE(KWColor::fromTheme(12).color(&document).isValid());
    EXPECT_FALSE(color.color().isValid());
}

// Saved, read into an object of other values, and saved again.
template <typename Style>
void expectSameAgain(const Style &style, Style other, const char *name)
{
    SCOPED_TRACE(name);
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("r"));
    style.saveTo(root);
    ASSERT_EQ(root.childNodes().size(), 1);
    other.parse(root.firstChildElement());
    QDomElement again = document.createElement(QStringLiteral("r"));
    other.saveTo(again);
    EXPECT_EQ(sortedXml(again), sortedXml(root));
}

TEST(StyleFiles, comeBack)
{
    KWColor theme = KWColor::fromTheme(4, 0.4);
    theme.alpha = 0.5;
    KWLineFormat line(theme, 1.5);
    line.dash = KWLineDash::dashes();
    line.dash.offset = 2;
    line.cap = KWLineFormat::RoundCap;
    line.join = KWLineFormat::BevelJoin;
    line.begin.type = KWArrowHead::Diamond;
    line.end.type = KWArrowHead::Tick;
    line.end.length = 0;
    KWTextFormat text(8.5, QColor(0x102030), true);
    text.family = QStringLiteral("A & <B>");
    text.underline = true;
    KWTextFormat other(20, theme);
    other.italic = other.strikeOut = true;
    expectSameAgain(KWColor(QColor(1, 2, 3, 51)), theme, "value");
    expectSameAgain(theme, KWColor(), "place");
    expectSameAgain(KWPaint::hatch(theme, QColor(0xffffff)), KWPaint::gradient(theme, theme, 30), "paint");
    expectSameAgain(line, KWLineFormat(), "line");
    expectSameAgain(KWLineFormat(), line, "empty line");
    expectSameAgain(text, other, "text");
    expectSameAgain(ThemePalette::builtIn()[2], ThemePalette(), "palette");
}

TEST(StyleFiles, leaveWhatTheyDoNotSay)
{
    QDomDocument document;
    ASSERT_TRUE(document.setContent(QByteArray("<Line Width='nan' Cap='odd'><Color Type='x' Rgb='#12' "
                                               "Index='12' Tint='-1.1' Alpha='2'/><Dash Lengths='"
                                               "1;1;1;1;1;1;1;1;1;1;1;1;1;1;1;1;1'/></Line>")));
    KWLineFormat line(QColor(0x123456), 3);
    line.dash = KWLineDash::dots();
    const KWLineFormat before = line;
    line.parse(document.documentElement());
    EXPECT_EQ(line, before);
    // A task's "Format" is a text's.
    ASSERT_TRUE(document.setContent(QByteArray("<Format PointSize='0' Bold='1' Italic=''/>")));
    KWTextFormat text(7, QColor(0x123456));
    text.italic = true;
    text.parse(document.documentElement());
    EXPECT_TRUE(text.bold && text.italic && text.pointSize == 7);
}

TEST(LineDash, isDrawnOnlyWhenItCanBe)
{
    const auto pixels = [](QList<double> lengths, double width) {
        KWLineDash dash;
        dash.lengths = lengths;
        return dash.pixels(width);
    };
    EXPECT_EQ(pixels({3, 1}, 2), QList<double>({6, 2}));
    EXPECT_TRUE(pixels({0, 0}, 2).isEmpty());
    EXPECT_TRUE(pixels({3, -1}, 2).isEmpty());
    EXPECT_TRUE(pixels({3, qQNaN()}, 2).isEmpty());
    EXPECT_TRUE(pixels({3, 1}, 0).isEmpty());
}

TEST(ArrowHead, pointsWhereTheLineGoes)
{
    KWArrowHead head;
    head.type = KWArrowHead::Triangle;
    EXPECT_EQ(head.path({0, 5}, {10, 5}, 1).toSvg(), QStringLiteral("M10 5L4 8L4 2Z"));
    EXPECT_EQ(head.path({3, 0}, {3, 9}, 0.5).toSvg(), QStringLiteral("M3 9L1.5 6L4.5 6Z"));
    EXPECT_TRUE(head.path({3, 9}, {3, 9}, 1).isEmpty());
}

// Against points along the line.
RC_GTEST_PROP(Math, linesCrossRectangles, ())
{
    const auto number = [] { return *rc::gen::inRange(0, 12); };
    const QPointF from(number(), number()), to(number(), number());
    const QRectF box(number(), number(), number(), number());
    bool isInside = false;
    constexpr int steps = 5040; // divides by every number of tenths that the edges can cut off
    for (int i = 0; i <= steps && !isInside; ++i) {
        const QPointF at = KWMath::between(from, to, double(i) / steps);
        isInside = at.x() > box.left() + 1e-9 && at.x() < box.right() - 1e-9 && at.y() > box.top() + 1e-9 &&
                   at.y() < box.bottom() - 1e-9;
    }
    RC_ASSERT(KWMath::crosses(from, to, box) == isInside);
}
}
