// Numbers as texts, and texts of other programs as numbers.
#include "format/dataformat.h"
#include <QLocale>
#include <QScopeGuard>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

struct NumberCase
{
    const char *name;
    double value;
    int groupSize, decimals, roundDigits;
    const char *text;
};

TEST(NumberText, isWritten)
{
    const NumberCase cases[] = {{"fractionKeepsItsPoint", 1234567.5, 3, 2, 1, "1,234,567.5"},
                                {"keptMinusCountsAsADigit", -123, 3, 0, 1, "-,123"},
                                {"keptMinusZero", -0.001, 3, 2, 1, "-0"},
                                {"roundsHalfUp", 1250, 3, 0, 3, "1,300"},
                                {"roundsNegativeHalfUpward", -1250, 0, 0, 3, "-1200"},
                                {"roundsPastThirtyTwoBits", 123456789012.0, 3, 0, 3, "123,456,789,000"},
                                {"roundsPastSixtyFourBits", 1.5e20, 0, 0, 21, "200000000000000000000"},
                                {"unitPastEveryNumber", -5, 3, 0, 2147483647, "0"},
                                {"infinity", infinity, 3, 2, 1, "inf"}};
    for (const NumberCase &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(DataFormat::formatNumber(c.value, c.groupSize, c.decimals, c.roundDigits).toStdString(),
                  c.text);
    }
}

// Every step as it is described, one after the other.
QString plainReading(double value, int groupSize, int decimals, int roundDigits)
{
    if (groupSize == -1)
        return QStringLiteral("%1").arg(value, 0, 'e', decimals);
    QString text;
    if (decimals < 1 && roundDigits >= 2) {
        const double p = std::pow(10, roundDigits - 1);
        text = QStringLiteral("%1").arg(qRound64(value / p) * qint64(p));
    } else {
        text = QStringLiteral("%1").arg(value, 0, 'f', decimals);
    }
    if (groupSize > 0) {
        const int point = text.contains(QLatin1Char('.')) ? text.indexOf(QLatin1Char('.')) : text.size();
        for (int place = point - groupSize; place > 0; place -= groupSize)
            text.insert(place, QStringLiteral(","));
    }
    if (text.contains(QLatin1Char('.'))) {
        while (text.endsWith(QLatin1Char('0')))
            text.chop(1);
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
    }
    return text;
}

// Ties, near ties, sixtieths and ninths of days, money and very large and small numbers.
double valueLike(std::mt19937_64 &random)
{
    const double whole = double(qint64(random() % 2000000) - 1000000);
    switch (random() % 6) {
    case 0:
        return whole / 8;
    case 1:
        return std::nextafter(whole / 200, random() % 2 ? infinity : -infinity);
    case 2:
        return whole / 540;
    case 3:
        return whole / 100;
    case 4:
        return std::ldexp(whole, -int(random() % 60));
    default:
        return whole * 1e11;
    }
}

TEST(NumberTextProperty, equalsThePlainReadingUnderAnyLocale)
{
    const QLocale before;
    const auto restored = qScopeGuard([&] { QLocale::setDefault(before); });
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    std::mt19937_64 random(20240304);
    for (int trial = 0; trial < 60000; ++trial) {
        const double value = valueLike(random);
        const int groupSize = int(random() % 6) - 1, decimals = int(random() % 7),
                  roundDigits = int(random() % 9);
        ASSERT_EQ(DataFormat::formatNumber(value, groupSize, decimals, roundDigits).toStdString(),
                  plainReading(value, groupSize, decimals, roundDigits).toStdString())
            << value << ' ' << groupSize << ' ' << decimals << ' ' << roundDigits;
    }
}

struct CleanCase
{
    const char *name, *text, *number, *withLetters;
};

TEST(NumberFromText, isCleaned)
{
    const CleanCase cases[] = {
        {"empty", "", "0", "0"},
        {"groupsBlanksAndQuotes", " \"1 234,567.50\" 'h'", "1234567.50", "1234567.50h"},
        {"minus", "-3.5d", "-3.5", "-3.5d"},
        {"signAlone", "+-7", "-7", "-7"},
        {"firstOfTwo", "2h 30min", "2", "2h"},
        {"signedPower", "2E-2", "2E-2", "2E-2"},
        {"powerOfThreeDigits", "1e123", "1e12", "1e12"},
        {"emptyPower", "7eggs", "7", "7eggs"},
        {"signedEmptyPower", "7E-x", "7", "7E"},
        {"pointAtTheEnd", "5.", "5.", "5."},
        {"pointThenPower", "5.e", "5.", "5.e"},
        {"lettersAfterOtherSigns", "5 % of-cost", "5", "5of"},
        {"otherScript", "\u0665 5\u5de5\u65e5d", "5", "5d"}};
    for (const CleanCase &c : cases) {
        SCOPED_TRACE(c.name);
        const QString text = QString::fromUtf8(c.text);
        EXPECT_EQ(DataFormat::numberStringFromString(text, 0).toStdString(), c.number);
        EXPECT_EQ(DataFormat::numberStringFromString(text, 1).toStdString(), c.withLetters);
    }
}

TEST(NumberTexts, areReadWrittenAndBrokenIntoFractions)
{
    EXPECT_EQ(DataFormat::numberFromString("about 1,234.5 h"), 1234.5);
    EXPECT_EQ(DataFormat::numberFromString(QString(400, '9')), 0.0);
    EXPECT_EQ(DataFormat::numberToString(1234.567, 2).toStdString(), "1,234.57");
    const std::pair<double, const char *> fractions[] = {
        {2.3333, "2 1/3"}, {-0.5, "-1/2"}, {0.999, "1"}, {-0.001, "0"}, {7.0, "7"}, {3.14159, "3 1/7"}};
    for (const auto &[value, text] : fractions)
        EXPECT_EQ(DataFormat::formatFraction(value, 9).toStdString(), text);
}
}
