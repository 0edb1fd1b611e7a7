// The command line.
#include "options.h"
#include "support/casename.h"
#include <gtest/gtest.h>

namespace {

struct LineCase
{
    const char *name;
    const char *line;
    const char *refusal; // "" : accepted
};

class CommandLine : public testing::TestWithParam<LineCase>
{
};

TEST_P(CommandLine, isFollowedOrRefusedWithANextStep)
{
    Options options;
    options::Fault fault;
    const QStringList words = QString::fromUtf8(GetParam().line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const bool accepted = options::parse(words, options, fault);
    const QString refusal =
        fault.what + (fault.hint.isEmpty() ? QString() : QLatin1String(" / ") + fault.hint);
    EXPECT_EQ(accepted ? "" : refusal.toStdString(), GetParam().refusal);
}

INSTANTIATE_TEST_SUITE_P(
    Host, CommandLine,
    testing::Values(
        LineCase{"noWords", "", ""},
        LineCase{"show", "show plan.csv --width 80 --csv -o out.csv --force", ""},
        LineCase{"valueBehindEquals", "show plan.csv --scale=week", ""},
        LineCase{"standardInput", "show -", ""}, LineCase{"everythingBehindTwoDashes", "show -- --csv", ""},
        LineCase{"helpWins", "show plan.csv more words --help", ""},
        LineCase{"unknownCommand", "scedule plan.csv",
                 "unknown command 'scedule' / did you mean 'schedule'? 'kwgantt help' lists all commands"},
        LineCase{"unknownWithoutGuess", "frobnicate",
                 "unknown command 'frobnicate' / 'kwgantt help' lists all commands"},
        LineCase{"unknownOption", "show plan.csv --witdh 80",
                 "unknown option '--witdh' / did you mean '--width'?"},
        LineCase{"optionOfAnotherCommand", "load plan.csv --dry-run",
                 "'--dry-run' does not go with 'load' / 'kwgantt help load' lists its options"},
        LineCase{"missingValue", "show plan.csv --tz", "option '--tz' needs a value: ZONE"},
        LineCase{"valueTooMany", "show plan.csv --ascii=yes", "option '--ascii' takes no value"},
        LineCase{"badNumber", "show plan.csv --width wide", "'wide' is no value for '--width' / possible: N"},
        LineCase{"badChoice", "show plan.csv --color pink",
                 "'pink' is no value for '--color' / possible: auto|always|never"},
        LineCase{"missingFile", "show", "'show' needs more: FILE / 'kwgantt help show' lists its options"},
        LineCase{"wordTooMany", "show a b",
                 "'b' is one word too many for 'show' / 'kwgantt help show' lists its options"},
        LineCase{"inPlaceOfStandardInput", "schedule - -i",
                 "standard input cannot be written back / give a file name, or -o FILE"},
        LineCase{"inPlaceAndDry", "schedule p.csv -i --dry-run", "-i and --dry-run exclude each other"}),
    caseName<LineCase>);

Options parsed(const char *line)
{
    Options options;
    options::Fault fault;
    EXPECT_TRUE(options::parse(QString::fromUtf8(line).split(QLatin1Char(' ')), options, fault));
    return options;
}

TEST(CommandLine, formatFollowsTheNameUnlessSaid)
{
    EXPECT_EQ(parsed("schedule p.csv -o out.CSV").format, Options::Csv);
    EXPECT_EQ(parsed("schedule p.csv -o out.json").format, Options::Json);
    EXPECT_EQ(parsed("schedule p.csv -o out.txt").format, Options::Table);
    EXPECT_EQ(parsed("schedule p.csv -o out.json --csv").format, Options::Csv);
}

TEST(CommandLine, checkIsLoadThatSaysNo)
{
    EXPECT_EQ(parsed("check p.csv").command, QStringLiteral("load"));
    EXPECT_TRUE(parsed("check p.csv").check);
    EXPECT_FALSE(parsed("load p.csv").check);
}

TEST(CommandLine, helpOptionNamesTheCommand)
{
    const Options options = parsed("schedule plan.csv --help");
    EXPECT_EQ(options.command, QStringLiteral("help"));
    EXPECT_EQ(options.arguments, QStringList{QStringLiteral("schedule")});
}

}
