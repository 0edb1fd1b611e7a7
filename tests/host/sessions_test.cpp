// Whole sessions with the program: every file NAME.session holds commands and everything they print.
//
//   $ kwgantt show small.csv         a command, run in the folder of the session
//   Small   3 tasks                  standard output
//   ! kwgantt: small.csv: ...        standard error
//   [exit 3]                         unless it is 0
//   $ cat made.csv                   the one other command: a file's content
//
// Lines before the first command are remarks. With KW_UPDATE set the files are written anew; read the
// difference.
#include "support/folder.h"
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimeZone>
#include <gtest/gtest.h>

namespace {

QString dataFolder()
{
    return QString::fromUtf8(qgetenv("KW_TEST_DATA")) + QLatin1String("/host");
}

// Words are separated by blanks; single quotes hold one together.
QStringList words(const QString &line)
{
    QStringList result;
    bool quoted = false;
    bool inWord = false;
    for (const QChar c : line) {
        if (c == QLatin1Char('\'')) {
            quoted = !quoted;
            if (!inWord)
                result.append(QString());
            inWord = true;
        } else if (c == QLatin1Char(' ') && !quoted) {
            inWord = false;
        } else {
            if (!inWord)
                result.append(QString());
            inWord = true;
            result.last() += c;
        }
    }
    return result;
}

QByteArray marked(const QByteArray &lines, const QByteArray &mark)
{
    QByteArray result;
    QList<QByteArray> parts = lines.split('\n');
    if (!parts.isEmpty() && parts.last().isEmpty())
        parts.removeLast();
    for (const QByteArray &part : parts)
        result += mark + part + '\n';
    return result;
}

QByteArray outcomeOf(const QString &command, const QString &folder, const char *locale = "C")
{
    QStringList arguments = words(command);
    const QString program = arguments.takeFirst();
    if (program == QLatin1String("cat"))
        return folder::get(folder + QLatin1Char('/') + arguments.value(0));
    EXPECT_EQ(program.toStdString(), "kwgantt");
    QProcess process;
    process.setWorkingDirectory(folder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("COLUMNS"));
    environment.remove(QStringLiteral("NO_COLOR"));
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
    process.setProcessEnvironment(environment);
    process.start(QString::fromUtf8(qgetenv("KW_PROGRAM")), arguments);
    if (!process.waitForFinished())
        return "did not end\n";
    QByteArray outcome = process.readAllStandardOutput() + marked(process.readAllStandardError(), "! ");
    const QByteArray zone = QTimeZone::systemTimeZoneId();
    outcome.replace("time zone " + zone, "time zone ZONE");
    outcome.replace("\"timeZone\": \"" + zone + '"', "\"timeZone\": \"ZONE\"");
    if (process.exitStatus() != QProcess::NormalExit)
        outcome += "[crashed]\n";
    else if (process.exitCode() != 0)
        outcome += "[exit " + QByteArray::number(process.exitCode()) + "]\n";
    return outcome;
}

class Session : public testing::TestWithParam<std::string>
{
};

TEST_P(Session, saysWhatItSaid)
{
    const QString name = QString::fromStdString(GetParam());
    const QByteArray expected =
        folder::get(dataFolder() + QLatin1Char('/') + name + QLatin1String(".session"));
    // The plans are copied, so that a session may write beside them.
    QTemporaryDir work;
    for (const QString &file : QDir(dataFolder()).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(dataFolder() + QLatin1Char('/') + file, work.filePath(file)));

    QByteArray actual;
    bool begun = false;
    for (const QByteArray &line : expected.split('\n')) {
        if (line.startsWith("$ ")) {
            begun = true;
            actual += line + '\n' + outcomeOf(QString::fromUtf8(line.mid(2)), work.path());
        } else if (!begun) {
            actual += line + '\n';
        }
    }
    if (qEnvironmentVariableIsSet("KW_UPDATE"))
        folder::put(dataFolder() + QLatin1Char('/') + name + QLatin1String(".session"), actual);
    else
        EXPECT_EQ(actual.toStdString(), expected.toStdString());
}

// Two English words in a row that stand in no quotes: a text without a translation, or one whose words the
// library put together in a way that no mark (src/support/said.h) tells of.
TEST_P(Session, saysNothingInEnglishToTheChinese)
{
    static const QRegularExpression quotes(QStringLiteral("'[^']*'|\"[^\"]*\"|--to csv"));
    static const QRegularExpression english(QStringLiteral("\\b[a-z]{2,} [a-z]{2,}\\b"));
    if (QTimeZone::systemTimeZoneId() != "UTC")
        GTEST_SKIP() << "words are the same in every zone";
    QTemporaryDir work;
    for (const QString &file : QDir(dataFolder()).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(dataFolder() + QLatin1Char('/') + file, work.filePath(file)));
    const QString name = QString::fromStdString(GetParam());
    for (const QByteArray &line :
         folder::get(dataFolder() + QLatin1Char('/') + name + QLatin1String(".session")).split('\n')) {
        if (!line.startsWith("$ kwgantt") || line.contains(" --lang"))
            continue;
        const QByteArray outcome = outcomeOf(QString::fromUtf8(line.mid(2)), work.path(), "zh_CN.UTF-8");
        for (const QByteArray &said : outcome.split('\n')) {
            const bool isEnglish =
                said.startsWith("! ") && QString::fromUtf8(said).remove(quotes).contains(english);
            EXPECT_FALSE(isEnglish) << said.toStdString() << "\nof " << line.toStdString();
        }
    }
}

std::vector<std::string> sessionNames()
{
    std::vector<std::string> names;
    for (const QString &file :
         QDir(dataFolder()).entryList({QStringLiteral("*.session")}, QDir::Files, QDir::Name))
        names.push_back(file.section(QLatin1Char('.'), 0, 0).toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Host, Session, testing::ValuesIn(sessionNames()),
                         [](const testing::TestParamInfo<std::string> &session) { return session.param; });

}
