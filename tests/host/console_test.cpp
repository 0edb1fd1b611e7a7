// What goes to the terminal, and what a terminal changes.
#include "console.h"
#include "style.h"
#include "support/findings.h"
#include <QThread>
#include <gtest/gtest.h>

namespace {

struct Streams
{
    QByteArray out, error;
};

Console::Surroundings terminal()
{
    Console::Surroundings surroundings;
    surroundings.outIsTerminal = surroundings.errorIsTerminal = true;
    return surroundings;
}

Options with(Options::When color, bool ascii = false)
{
    Options options;
    options.color = color;
    options.ascii = ascii;
    return options;
}

TEST(Console, terminalWithoutUtf8GetsPlainCharacters)
{
    Console::Surroundings surroundings = terminal();
    EXPECT_FALSE(Console(surroundings, nullptr, nullptr).usesAscii());
    surroundings.utf8 = false;
    Console console(surroundings, nullptr, nullptr);
    EXPECT_TRUE(console.usesAscii());
    Options toFile;
    toFile.output = QStringLiteral("plan.txt");
    console.follow(toFile);
    EXPECT_FALSE(console.usesAscii());
}

TEST(Console, colorFollowsTheTerminalUnlessSaid)
{
    Console::Surroundings surroundings = terminal();
    EXPECT_TRUE(Console(surroundings, nullptr, nullptr).usesColor());
    surroundings.colorWelcome = false;
    Console console(surroundings, nullptr, nullptr);
    EXPECT_FALSE(console.usesColor());
    console.follow(with(Options::Always));
    EXPECT_TRUE(console.usesColor());
    Console bright(terminal(), nullptr, nullptr);
    bright.follow(with(Options::Never));
    EXPECT_FALSE(bright.usesColor());
}

TEST(Console, errorsAreOneLineWhateverTheFileHolds)
{
    Streams streams;
    Console console(Console::Surroundings(), &streams.out, &streams.error);
    console.error(QString::fromUtf8("p.csv: row 3: 'a\nkwgantt: \x1B[2Jb' is not a date"),
                  QStringLiteral("say it\nagain"));
    EXPECT_EQ(streams.error.toStdString(),
              "kwgantt: p.csv: row 3: 'a kwgantt:  [2Jb' is not a date\n  hint: say it again\n");
    EXPECT_EQ(streams.out.toStdString(), "");
}

TEST(Console, quietKeepsErrorsOnly)
{
    Streams streams;
    Console console(Console::Surroundings(), &streams.out, &streams.error);
    Options quiet;
    quiet.quiet = true;
    console.follow(quiet);
    console.note(QStringLiteral("a note"));
    console.warning(QStringLiteral("a warning"));
    console.error(QStringLiteral("an error"));
    EXPECT_EQ(streams.error.toStdString(), "kwgantt: an error\n");
}

TEST(Console, longListsEndWithTheirNumber)
{
    Findings findings;
    for (int i = 1; i <= 1500; ++i)
        findings.add(QStringLiteral("row %1").arg(i), QStringLiteral("odd"));
    Streams streams;
    Console console(Console::Surroundings(), &streams.out, &streams.error);
    console.list(QStringLiteral("p.csv"), findings);
    EXPECT_EQ(streams.error.count('\n'), 22);
    EXPECT_TRUE(
        streams.error.endsWith("kwgantt: p.csv: 1,480 more like these\n  hint: -v lists more of them\n"))
        << streams.error.toStdString();
}

// Half a second must pass before there is anything to see.
TEST(Console, progressIsShownOnATerminalAndTakenAwayAgain)
{
    Streams streams;
    Streams piped;
    Console console(terminal(), &streams.out, &streams.error);
    Console pipe(Console::Surroundings(), &piped.out, &piped.error);
    console.progress(QStringLiteral("reading"), 1, 10);
    EXPECT_EQ(streams.error.toStdString(), "");
    QThread::msleep(600);
    console.progress(QStringLiteral("reading"), 5, 10);
    console.progress(QStringLiteral("reading"), 5, 10);
    pipe.progress(QStringLiteral("reading"), 5, 10);
    EXPECT_EQ(streams.error.toStdString(), "\r████████████░░░░░░░░░░░░  50% reading\x1B[K");
    streams.error.clear();
    console.note(QStringLiteral("done"));
    EXPECT_EQ(streams.error.toStdString(), "\r\x1B[Kkwgantt: done\n");
    EXPECT_EQ(piped.error.toStdString(), "");
}

TEST(Style, colorRepeatsWhatTheTextSays)
{
    EXPECT_EQ(Style(false, true).toned(QStringLiteral("!"), Style::Critical).toStdString(),
              "\x1B[31m!\x1B[0m");
    EXPECT_EQ(Style(false, false).toned(QStringLiteral("!"), Style::Critical).toStdString(), "!");
    EXPECT_EQ(Style(false, true).toned(QStringLiteral("  "), Style::Critical).toStdString(), "  ");
}

}
