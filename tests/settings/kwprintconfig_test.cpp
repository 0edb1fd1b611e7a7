// The page setup and its XML.
#include "quarkmanager.h"
#include "settings/kwprintconfig.h"
#include "support/sortedxml.h"
#include <QDomDocument>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

QDomElement savedElement(QDomDocument &document, const KWPrintConfig &config)
{
    QDomElement root = document.createElement(QStringLiteral("PrintCfg"));
    document.appendChild(root);
    config.saveTo(root);
    return root;
}

std::string saved(const KWPrintConfig &config)
{
    QDomDocument document;
    return sortedXml(savedElement(document, config));
}

// Everything, also what saving leaves out.
std::string shown(const KWPrintConfig &config)
{
    return QStringLiteral("%1%2%3%4 %5 %6x%7 ")
               .arg(config.Portrait)
               .arg(config.FittoSheet)
               .arg(config.Background)
               .arg(config.Toggle)
               .arg(config.Zoom)
               .arg(config.HSheet)
               .arg(config.VSheet)
               .toStdString() +
           QStringLiteral("%1 %2 %3 %4 unit %5")
               .arg(config.Left)
               .arg(config.Top)
               .arg(config.Width)
               .arg(config.Height)
               .arg(config.Unit)
               .toStdString();
}

TEST(PrintConfig, LeavesOutWhatIsFalse)
{
    EXPECT_EQ(saved(KWPrintConfig()),
              "PrintCfg\n"
              " PrintSetup Background='1' FittoSheet='1' HSheet='1' Height='297' Left='20' "
              "Top='20' Unit='mm' VSheet='1' Width='210'\n");
    KWPrintConfig other;
    other.Portrait = other.Toggle = true;
    other.FittoSheet = other.Background = false;
    other.Zoom = 75;
    other.Left = std::numeric_limits<double>::infinity();
    other.Unit = 5;
    EXPECT_EQ(saved(other), "PrintCfg\n"
                            " PrintSetup Height='297' Left='0' Portrait='1' Toggle='1' Top='20' Unit='in' "
                            "Width='210' Zoom='75'\n");
}

struct Reading
{
    const char *name, *xml, *after;
};

TEST(PrintReading, IntoTheDefaults)
{
    const Reading cases[] = {
        {"nothing", "<PrintSetup/>", "0000 100 1x1 20 20 210 297 unit 1"},
        {"flags_in_words", "<p Portrait='True' FittoSheet='TRUE' Background='yes' Toggle='2'/>",
         "1100 100 1x1 20 20 210 297 unit 1"},
        {"numbers", "<p Zoom='-5' HSheet='2' VSheet='3' Left='1.5' Top='0' Width='1e2' Height='x'/>",
         "0000 -5 2x3 1.5 0 100 0 unit 1"},
        {"past_16_bits", "<p HSheet='70000' VSheet='-32768'/>", "0000 100 1x-32768 20 20 210 297 unit 1"},
        {"no_sheets", "<p HSheet='x' VSheet='2.5'/>", "0000 100 1x1 20 20 210 297 unit 1"},
        {"no_number", "<p Left='nan' Top='inf'/>", "0000 100 1x1 0 0 210 297 unit 1"},
        {"unit", "<p Unit='in'/>", "0000 100 1x1 20 20 210 297 unit 5"},
        {"unknown_unit", "<p Unit='parsec'/>", "0000 100 1x1 20 20 210 297 unit 1"},
        {"nested", "<c Portrait='1'><x/><PrintSetup Toggle='1'/></c>", "0001 100 1x1 20 20 210 297 unit 1"}};
    for (const Reading &row : cases) {
        SCOPED_TRACE(row.name);
        QDomDocument document;
        ASSERT_TRUE(document.setContent(QByteArray(row.xml)));
        KWPrintConfig config;
        config.parse(document.documentElement());
        EXPECT_EQ(shown(config), row.after);
        EXPECT_LT(QuarkManager::findQuark(QStringLiteral("parsec")), 0);
    }
}

TEST(PrintConfig, PaperSize)
{
    KWPrintConfig config;
    EXPECT_EQ(config.paperSize(), QStringLiteral("210 mm x 297 mm"));
    config.Width = 8.5;
    config.Height = 1e7;
    config.Unit = 5;
    EXPECT_EQ(config.paperSize(), QStringLiteral("8.5 in x 1e+07 in"));
}
}
