// Lengths, pages and the texts of the user's language.
#include "format/localizeutil.h"
#include "format/unitutil.h"
#include "kwversion.h"
#include "quarkmanager.h"
#include "support/folder.h"
#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>
#include <gtest/gtest.h>
#include <limits>

namespace {

struct UnitCase
{
    const char *name;
    unsigned int code;
    double pixels; // of one unit
};

TEST(Units, convertByCodeAndByName)
{
    const UnitCase cases[] = {{"millimetre", 1, 3.7795275590551185},
                              {"inch", 5, 96},
                              {"feetAndInches", 7, 1152},
                              {"point", 10, 1.3333333333333333},
                              {"didot", 12, 1.4173228346456694},
                              {"cicero", 13, 17.007874015748033}};
    for (const UnitCase &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_DOUBLE_EQ(UnitUtil::unitToPixel(1, c.code), c.pixels);
        EXPECT_DOUBLE_EQ(UnitUtil::pixelToUnit(c.pixels * 2.5, c.code), 2.5);
        const QString name = UnitUtil::unitStr(c.code);
        ASSERT_FALSE(name.isEmpty());
        EXPECT_DOUBLE_EQ(UnitUtil::unitToPixel(1, name.toUpper()), c.pixels);
        EXPECT_DOUBLE_EQ(UnitUtil::pixelToUnit(c.pixels, name), 1);
    }
}

TEST(UnitNames, unknownOnesConvertNothingAndAreNotRegistered)
{
    EXPECT_EQ(UnitUtil::pixelToUnit(7.25, 99u), 7.25);
    EXPECT_EQ(UnitUtil::unitToPixel(7.25, 14u), 7.25);
    EXPECT_EQ(UnitUtil::unitToPixel(7.25, QStringLiteral("furlong")), 7.25);
    EXPECT_EQ(QuarkManager::findQuark(QStringLiteral("furlong")), -1);
    EXPECT_EQ(UnitUtil::unitStr(UINT_MAX), QString());
    const int later = QuarkManager::quarkFromString(QStringLiteral("a later key"));
    EXPECT_GT(later, 13);
    EXPECT_EQ(UnitUtil::pixelToUnit(7.25, QStringLiteral("a later key")), 7.25);
}

TEST(Screen, takesWhatTheHostMeasured)
{
    const auto restored = qScopeGuard([] {
        UnitUtil::s_inited = false;
        UnitUtil::initScreen(1, 1, QSizeF());
    });
    UnitUtil::s_pixPerMM = 1;
    UnitUtil::initScreen(2, 1.7, QSizeF(1920.5, 1079.4));
    EXPECT_FALSE(UnitUtil::s_inited);
    EXPECT_EQ(UnitUtil::s_cacheWidth, 2823);
    EXPECT_EQ(UnitUtil::s_cacheHeight, 1882);
    EXPECT_EQ(UnitUtil::s_screenSize, QSize(1921, 1079));
    EXPECT_EQ(UnitUtil::dpiScale96(), 1);
    EXPECT_DOUBLE_EQ(UnitUtil::from7Val(8), 7.559055118110237);

    UnitUtil::initScreen(1, 0, QSizeF(std::numeric_limits<double>::quiet_NaN(), 1e300));
    EXPECT_EQ(UnitUtil::s_screenSize.width(), 0);
    UnitUtil::s_inited = true;
    UnitUtil::initScreen(1, 3, QSizeF(1, 1));
    EXPECT_EQ(UnitUtil::s_pixelRatio, 0);
}

TEST(FeetAndInches, areWrittenWithTheirMarks)
{
    const struct
    {
        double inches;
        const char *text;
    } cases[] = {{30, "2'6\""},
                 {-30, "-2'6\""},
                 {24, "2'"},
                 {24.0000001, "2'"},
                 {12, "12\""},
                 {12.5, "1'0.5\""},
                 {-0.25, "-0.25\""},
                 {0, "0'"},
                 {-0.0000001, "0'"},
                 {0.0000015, "1.5e-06\""},
                 {1.0 / 3, "0.333333\""},
                 {3e11, "25000000000'"}};
    for (const auto &c : cases)
        EXPECT_EQ(UnitUtil::incheValtoFeetIncheStr(c.inches).toStdString(), c.text);
    EXPECT_EQ(UnitUtil::feetValtoFeetIncheStr(-2.5).toStdString(), "-2'6\"");
}

TEST(Pages, haveSizesInTheirUnitAndInPixels)
{
    const auto page = [](unsigned int index) {
        QSizeF pixels, own;
        const unsigned int code = UnitUtil::preDefinedPage(index, pixels, own);
        return QStringLiteral("%1 %2x%3 = %4x%5 px")
            .arg(code)
            .arg(own.width())
            .arg(own.height())
            .arg(pixels.width())
            .arg(pixels.height())
            .toStdString();
    };
    EXPECT_EQ(page(0), "5 8.5x11 = 816x1056 px");
    EXPECT_EQ(page(5), "5 4.125x9.5 = 396x912 px");
    EXPECT_EQ(page(13), "1 210x297 = 793.701x1122.52 px");
    EXPECT_EQ(page(43), "5 8.5x10 = 816x960 px");
    EXPECT_EQ(page(60), "1 1682x2378 = 6357.17x8987.72 px");
    EXPECT_EQ(page(61), page(13));
    EXPECT_EQ(page(99), page(13));
}

TEST(LocalTexts, comeFromTheLanguageFileOnFirstUse)
{
    const QString language = QStringLiteral("test%1").arg(QCoreApplication::applicationPid());
    const QString path = QCoreApplication::applicationDirPath() + QLatin1String("/Config/LocalStrings_") +
                         language + QLatin1String(".xml");
    const QString before = KWVersion::langBrev();
    const auto restored = qScopeGuard([&] {
        QFile::remove(path);
        KWVersion::setLangBrev(before);
    });
    KWVersion::setLangBrev(language);
    ASSERT_TRUE(folder::put(path, "<Any><S Name='first'/><S ID='40' Name='forty'/><S Name='third'/>"
                                  "<S ID='4294967295' Name='last'/><S ID='x' Name='fifth'/></Any>"));
    EXPECT_EQ(LocalizeUtil::localStr(0).toStdString(), "first");
    QFile::remove(path); // read once only
    EXPECT_EQ(LocalizeUtil::localStr(40).toStdString(), "forty");
    EXPECT_EQ(LocalizeUtil::localStr(2).toStdString(), "third");
    EXPECT_EQ(LocalizeUtil::localStr(4294967295u).toStdString(), "last");
    EXPECT_EQ(LocalizeUtil::localStr(4).toStdString(), "fifth");
    EXPECT_EQ(LocalizeUtil::localStr(1), QString());
    EXPECT_EQ(LocalizeUtil::s_mapLocStrs.size(), 5);
}

}
