#include "app.h"
#include "console.h"
#include "datetext.h"
#include "largepages.h"
#include "plan.h"
#include "runinglog.h"
#include "scratch.h"
#include "support/kwclock.h"
#include "texts.h"
#include <QFile>
#include <QGuiApplication>
#include <QTextCodec>
#include <QTimeZone>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <exception>

namespace {

// Qt's own words go to the log, not between the program's.
void logMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg)
        RuningLog::log(text);
    if (type == QtFatalMsg)
        std::fprintf(stderr, "kwgantt: %s\n", qUtf8Printable(text));
}

// What is wrong with the other arguments is told in the language that is asked for, so this comes before
// them.
void guessLanguage(const QStringList &arguments)
{
    texts::chooseFromEnvironment();
    const QLatin1String option("--lang");
    for (int i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == option)
            texts::choose(arguments.value(i + 1));
        else if (arguments.at(i).startsWith(option + QLatin1Char('=')))
            texts::choose(arguments.at(i).mid(option.size() + 1));
    }
}

bool chooseLanguage(Console &console)
{
    const QString wanted = console.options().language;
    if (wanted.isEmpty() || texts::choose(wanted))
        return true;
    console.error(t("no texts in the language '%1'").arg(wanted),
                  t("possible: %1").arg(texts::languages().join(QLatin1String(", "))));
    return false;
}

// The zone must stand before Qt looks at it; a name that is none would silently mean UTC.
bool chooseZone(Console &console)
{
    const QString &named = console.options().zone;
    const QByteArray wanted =
        named.isEmpty() || named == QLatin1String("local") ? qgetenv("TZ") : named.toUtf8();
    const bool isName = !wanted.isEmpty() && !wanted.startsWith(':') && !wanted.startsWith('/');
    if (isName && !QTimeZone(wanted).isValid()) {
        console.error(t("no time zone '%1' on this machine").arg(QString::fromUtf8(wanted)),
                      t("names look like Europe/Berlin; the package tzdata brings them"));
        return false;
    }
    // Without the variable the C library looks at the machine's zone file again for every conversion.
    const QByteArray machineZone = QTimeZone::systemTimeZoneId();
    if (!wanted.isEmpty())
        qputenv("TZ", wanted);
    else if (QTimeZone(machineZone).isValid())
        qputenv("TZ", machineZone);
    tzset();
    return true;
}

bool setClock(Console &console)
{
    const QString wanted = console.options().now;
    datetext::Moment moment;
    if (wanted.isEmpty())
        return true;
    if (!datetext::parseMoment(wanted, moment)) {
        console.error(t("'%1' is no value for '%2'").arg(wanted, QStringLiteral("--now")),
                      t("write it as 2026-02-28 or 2026-02-28T08:00"));
        return false;
    }
    KWClock::set(moment.when());
    return true;
}

bool openLog(Console &console, const QStringList &arguments)
{
    const QString path = console.options().logFile;
    if (path.isEmpty())
        return true;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        console.error(t("%1: cannot be written: %2").arg(path, texts::said(file.errorString())));
        return false;
    }
    file.close();
    RuningLog::setLogFile(path);
    RuningLog::log(QLatin1String("kwgantt ") + QLatin1String(KWGANTT_VERSION) + QLatin1Char(' ') +
                   arguments.join(QLatin1Char(' ')));
    return true;
}

int run(int argc, char **argv, bool &hasLostReader)
{
    // File names are UTF-8 in every locale; the C locale would turn them into question marks.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    qInstallMessageHandler(logMessage);
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromUtf8(argv[i]));
    guessLanguage(arguments);

    Console console;
    // Closing the pipe ends the program, but only after it has cleaned up.
    console.endWithReader(std::signal(SIGPIPE, SIG_IGN) != SIG_IGN);
    Options options;
    options::Fault fault;
    if (!options::parse(arguments, options, fault)) {
        console.error(fault.what, fault.hint);
        return Console::WrongUse;
    }
    console.follow(options);
    if (!chooseLanguage(console))
        return Console::WrongUse;
    if (!chooseZone(console))
        return Console::MachineLacks;
    if (!setClock(console))
        return Console::WrongUse;
    if (!openLog(console, arguments))
        return Console::CannotWrite;

    const Scratch scratch;
    // No screen is needed, and none may be there.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never deleted: the offscreen platform loses its screen when it is torn down, which leak checks report.
    new QGuiApplication(argc, argv);
    texts::fillLibraryTables();
    Plan::isLast = true;
    const int code = runCommand(console);
    hasLostReader = console.hasLostReader();
    return code;
}
}

int main(int argc, char **argv)
{
    largepages::use();
    try {
        bool hasLostReader = false;
        const int code = run(argc, argv, hasLostReader);
        if (hasLostReader) {
            std::signal(SIGPIPE, SIG_DFL);
            std::raise(SIGPIPE);
        }
        return code;
    } catch (const std::exception &bug) {
        std::fprintf(
            stderr,
            "kwgantt: %s: this is a bug in kwgantt %s\n  hint: --log FILE keeps a record of the run\n",
            bug.what(), KWGANTT_VERSION);
        return Console::Bug;
    }
}
