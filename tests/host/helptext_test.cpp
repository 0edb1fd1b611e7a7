// The help, from which manual pages and completions are made.
#include "helptext.h"
#include "options.h"
#include "textwidth.h"
#include <gtest/gtest.h>

namespace {

QString withoutBlanks(QString text)
{
    return text.remove(QLatin1Char(' ')).remove(QLatin1Char('\n'));
}

TEST(HelpText, explainsEveryOptionOfEveryCommand)
{
    for (const QString &command : options::commands()) {
        EXPECT_FALSE(helptext::page(command).meaning.isEmpty()) << command.toStdString();
        for (const options::OptionInfo &option : options::optionsOf(command))
            EXPECT_FALSE(helptext::meaningOf(command, QLatin1String("--") + option.name).isEmpty())
                << command.toStdString() << " --" << option.name.toStdString();
    }
}

TEST(HelpText, fitsEveryWidthAndLosesNothing)
{
    for (const QString &command : QStringList{QString()} + options::commands()) {
        helptext::Page page = helptext::page(command);
        // Commands to be copied are never broken.
        for (int i = page.blocks.size() - 1; i >= 0; --i)
            if (page.blocks.at(i).kind == helptext::Block::Example)
                page.blocks.removeAt(i);
        page.usage = page.usage.mid(0, 1);
        const QString wide = helptext::shown(page, 1000);
        for (const int columns : {20, 33, 60, 80, 100}) {
            const QString text = helptext::shown(page, columns);
            EXPECT_EQ(withoutBlanks(text), withoutBlanks(wide)) << command.toStdString() << columns;
            for (const QString &line : text.split(QLatin1Char('\n')))
                EXPECT_LE(textwidth::of(line), columns) << line.toStdString();
        }
    }
}

TEST(HelpText, breaksLinesOfWideCharactersAnywhere)
{
    helptext::Page page = helptext::parsed(QStringLiteral("kwgantt show FILE - x\n\n  --all  ") +
                                           QString(16, QChar(0x4EFB)) + QStringLiteral(" end\n"));
    EXPECT_EQ(helptext::shown(page, 30).section(QLatin1Char('\n'), 2),
              QStringLiteral("  --all  %1\n         %2 end\n")
                  .arg(QString(10, QChar(0x4EFB)), QString(6, QChar(0x4EFB))));
}
}
