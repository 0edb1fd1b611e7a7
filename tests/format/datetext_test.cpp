// Typed and imported dates.
#include "format/dataformat.h"
#include "kwversion.h"
#include "support/casename.h"
#include "support/folder.h"
#include <QCoreApplication>
#include <QDir>
#include <QScopeGuard>
#include <gtest/gtest.h>

namespace {

std::string read(const char *text, bool withTime)
{
    const QDateTime moment = DataFormat::getDateTimeByDateTimeText(QString::fromUtf8(text), withTime);
    return moment.isValid() ? moment.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")).toStdString() : "none";
}

class DateText : public testing::Test
{
protected:
    ~DateText() override
    {
        DataFormat::s_dateFormats = m_formats;
        DataFormat::s_deftDateFmt = m_index;
        DataFormat::s_deftCurrencyFmt = m_currency;
    }
    void choose(const char *format)
    {
        DataFormat::s_dateFormats.append(QString::fromUtf8(format));
        DataFormat::s_deftDateFmt = DataFormat::s_dateFormats.size() - 1;
    }

private:
    const QStringList m_formats = DataFormat::s_dateFormats;
    const int m_index = DataFormat::s_deftDateFmt;
    const QString m_currency = DataFormat::s_deftCurrencyFmt;
};

struct DateCase
{
    const char *name;
    const char *format; // the document's, or empty
    const char *text, *withTime, *withoutTime;
};

class DateTextTable : public DateText, public testing::WithParamInterface<DateCase>
{
};

TEST_P(DateTextTable, isRead)
{
    const DateCase &c = GetParam();
    if (*c.format)
        choose(c.format);
    EXPECT_EQ(read(c.text, true), c.withTime);
    EXPECT_EQ(read(c.text, false), c.withoutTime);
}

constexpr const char *march4 = "2024-03-04 00:00:00";
constexpr const char *april3 = "2024-04-03 00:00:00";

INSTANTIATE_TEST_SUITE_P(
    Texts, DateTextTable,
    testing::Values(
        DateCase{"iso", "", "2024-03-04", march4, march4},
        DateCase{"blanksAround", "", " 2024-03-04\n", march4, march4},
        DateCase{"zerosInSlashes", "", "2024/03/04", march4, march4},
        DateCase{"monthFirst", "", "3/4/2024", march4, march4},
        DateCase{"seconds", "", "2024-03-04 08:09:10", "2024-03-04 08:09:10", "none"},
        DateCase{"shortHour", "", "4.3.2024 8:09", "2024-03-04 08:09:00", "none"},
        DateCase{"shortMinute", "", "2024-03-04 8:9", "none", "none"},
        DateCase{"midnightAtTheEnd", "", "2024-03-04 24:00", "none", "none"},
        DateCase{"noSuchDay", "", "2024-02-30", "none", "none"}, DateCase{"empty", "", "", "none", "none"},
        DateCase{"more", "", "2024-03-04x", "none", "none"},
        DateCase{"shortYear", "", "24-03-04", "none", "none"},
        DateCase{"yearNought", "", "0000-03-04", "none", "none"},
        DateCase{"documentFormatFirst", "d/M/yyyy", "3/4/2024", april3, april3},
        DateCase{"othersAfterIt", "d/M/yyyy", "3/14/2024", "2024-03-14 00:00:00", "2024-03-14 00:00:00"},
        DateCase{"twoDigitYear", "dd.MM.yy", "04.03.24", march4, march4},
        DateCase{"firstTwoDigitYear", "dd.MM.yy", "04.03.70", "1970-03-04 00:00:00", "1970-03-04 00:00:00"},
        DateCase{"doubledLettersTakeTwo", "dd-MM-yyyy", "4-3-2024", "none", "none"},
        DateCase{"otherScript", "yyyy\u5e74M\u6708d\u65e5", "2024\u5e743\u67084\u65e5 08:00",
                 "2024-03-04 08:00:00", "none"},
        DateCase{"monthName", "d MMM yyyy", "4 Mar 2024 8:30", "2024-03-04 08:30:00", "none"}),
    caseName<DateCase>);

TEST_F(DateText, builtInFormatsStayBehindTheOnesOffered)
{
    DataFormat::s_dateFormats = QStringList{QStringLiteral("d.M.yyyy")};
    DataFormat::s_deftDateFmt = 7;
    EXPECT_EQ(read("2024/3/4", false), march4);
    EXPECT_EQ(read("4.3.2024", false), march4);
    EXPECT_EQ(DataFormat::dateFormat(), QStringLiteral("yyyy-MM-dd"));
}

TEST_F(DateText, timeThatTheZoneSkipsIsReadAsLaterMoment)
{
    const QByteArray before = qgetenv("TZ");
    const auto restored = qScopeGuard([&] { before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before); });
    qputenv("TZ", "America/New_York");
    EXPECT_EQ(read("2024-03-10 02:30", true), "2024-03-10 03:30:00");
    qputenv("TZ", "America/Sao_Paulo"); // 2018-11-04 begins at 01:00
    EXPECT_EQ(read("2018-11-04", false), "2018-11-04 01:00:00");
}

TEST_F(DateText, languageFileReplacesTheFormats)
{
    const QString language = QStringLiteral("test%1").arg(QCoreApplication::applicationPid());
    const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/Config/DataFormat/") +
                         language + QLatin1String(".xml");
    const QStringList builtIn = DataFormat::s_dateFormats;
    DataFormat::s_deftDateFmt = 3;
    DataFormat::loadLocalize(language);
    EXPECT_EQ(DataFormat::s_dateFormats, builtIn);
    EXPECT_EQ(DataFormat::s_deftDateFmt, 3);

    const auto removed = qScopeGuard([&] { QFile::remove(path); });
    ASSERT_TRUE(folder::put(path, "<Formats><DateFormat V='d/M/yyyy'/><Other V='x'/><DateFormat/>"
                                  "<DateFormat V='yyyy.MM.dd'/><CurrencyFormat V='%1 kr'/></Formats>"));
    DataFormat::loadLocalize(language);
    EXPECT_EQ(DataFormat::s_dateFormats.join(QLatin1Char('|')).toStdString(), "d/M/yyyy|yyyy.MM.dd");
    EXPECT_EQ(DataFormat::s_deftDateFmt, 0);
    EXPECT_EQ(DataFormat::s_deftCurrencyFmt.toStdString(), "%1 kr");
}
}
