// The command line.
#include "options.h"
#include <gtest/gtest.h>

namespace {

struct LineCase
{
    const char *name, *line;
    const char *refusal; // "" : accepted
};

TEST(CommandLine, isFollowedOrRefusedWithANextStep)
{
    const LineCase cases[] = {
        {"noWords", "", ""},
        {"show", "show plan.csv --width 80 --csv -o out.csv --force", ""},
        {"everythingBehindTwoDashes", "show -- --csv", ""},
        {"helpWins", "show plan.csv more words --help", ""},
        {"unknownCommand", "scedule plan.csv",
         "unknown command 'scedule' / did you mean 'schedule'? 'kwgantt help' lists all commands"},
        {"unknownWithoutGuess", "frobnicate",
         "unknown command 'frobnicate' / 'kwgantt help' lists all commands"},
        {"swappedLetters", "shwo plan.csv",
         "unknown command 'shwo' / did you mean 'show'? 'kwgantt help' lists all commands"},
        {"unknownOption", "show plan.csv --witdh 80", "unknown option '--witdh' / did you mean '--width'?"},
        {"optionOfAnotherCommand", "load plan.csv --dry-run",
         "'--dry-run' does not go with 'load' / 'kwgantt help load' lists its options"},
        {"missingValue", "show plan.csv --tz", "option '--tz' needs a value: ZONE"},
        {"valueTooMany", "show plan.csv --ascii=yes", "option '--ascii' takes no value"},
        {"badNumber", "show plan.csv --width wide",
         "'wide' is no value for '--width' / possible: a whole number from 20 to 10,000"},
        {"badChoice", "show plan.csv --color pink",
         "'pink' is no value for '--color' / possible: auto|always|never"},
        {"missingFile", "show", "'show' needs more: FILE / 'kwgantt help show' lists its options"},
        {"wordTooMany", "show a b",
         "'b' is one word too many for 'show' / 'kwgantt help show' lists its options"},
        {"inPlaceOfStandardInput", "schedule - -i",
         "standard input cannot be written back / give a file name, or -o FILE"}};
    for (const LineCase &row : cases) {
        SCOPED_TRACE(row.name);
        Options options;
        options::Fault fault;
        const QStringList words = QString::fromUtf8(row.line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const bool accepted = options::parse(words, options, fault);
        const QString refusal =
            fault.what + (fault.hint.isEmpty() ? QString() : QLatin1String(" / ") + fault.hint);
        EXPECT_EQ(accepted ? "" : refusal.toStdString(), row.refusal);
    }
}

Options parsed(const char *line)
{
    Options options;
    options::Fault fault;
    EXPECT_TRUE(options::parse(QString::fromUtf8(line).split(QLatin1Char(' ')), options, fault));
    return options;
}

TEST(CommandLine, checkIsLoadThatSaysNo)
{
    EXPECT_EQ(parsed("check p.csv").command, QStringLiteral("load"));
    EXPECT_TRUE(parsed("check p.csv").check);
    EXPECT_FALSE(parsed("load p.csv").check);
}

}
