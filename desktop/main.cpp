#include "actions/actiontable.h"
#include "kwfilepathmanager.h"
#include "mainwindow.h"
#include "settings/kwrecentfilemanager.h"
#include "texts.h"
#include "views/icons.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTextCodec>
#include <QTimeZone>
#include <QTranslator>
#include <cstdio>
#include <ctime>

namespace {

// What stands on the buttons of questions, for machines that have no texts of Qt's own.
[[maybe_unused]] constexpr const char *buttonTexts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),      QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"), QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&OK"),     QT_TRANSLATE_NOOP("QPlatformTheme", "&Cancel")};

enum Code { Done = 0, WrongUse = 2, MachineLacks = 6 };

// A window cannot be shown without a screen, and Qt ends the program where there is none.
bool hasScreen()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int fail(Code code, const QString &what, const QString &hint)
{
    std::fprintf(stderr, "kwgantt-desktop: %s\n  hint: %s\n", qUtf8Printable(what), qUtf8Printable(hint));
    return code;
}

// The zone must stand before Qt looks at it.
bool chooseZone(const QString &wanted)
{
    const QByteArray zone = wanted.isEmpty() ? qgetenv("TZ") : wanted.toUtf8();
    if (!wanted.isEmpty() && !QTimeZone(zone).isValid())
        return false;
    // Without the variable the C library looks at the machine's zone file again for every conversion.
    const QByteArray machineZone = QTimeZone::systemTimeZoneId();
    if (!zone.isEmpty())
        qputenv("TZ", zone);
    else if (QTimeZone(machineZone).isValid())
        qputenv("TZ", machineZone);
    tzset();
    return true;
}

QString lastFile()
{
    KWRecentFileManager recent;
    recent.load();
    const QString path = recent.recentFiles().value(0);
    return QFileInfo(path).isFile() ? path : QString();
}
}

int main(int argc, char **argv)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    texts::chooseFromEnvironment();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromUtf8(argv[i]));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plans projects in working time."));
    const QCommandLineOption zone(QStringLiteral("tz"), QStringLiteral("The time zone of the plan."),
                                  QStringLiteral("zone"));
    const QCommandLineOption language(QStringLiteral("lang"), QStringLiteral("The language of the program."),
                                      QStringLiteral("code"));
    const QCommandLineOption anew(QStringLiteral("new"), QStringLiteral("Begins with an empty plan."));
    const QCommandLineOption keys(QStringLiteral("keys"), QStringLiteral("Prints what each key does."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Prints this."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Prints the version."));
    parser.addOptions({zone, language, anew, keys, help, version});
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("The plan to open."),
                                 QStringLiteral("[file]"));
    if (!parser.parse(arguments))
        return fail(WrongUse, parser.errorText(), QStringLiteral("kwgantt-desktop --help lists all options"));
    if (parser.isSet(help) || parser.isSet(version) || parser.isSet(keys)) {
        const QString text = parser.isSet(version) ? QStringLiteral("kwgantt-desktop " KWGANTT_VERSION "\n")
                             : parser.isSet(keys)  ? actiontable::asMarkdown()
                                                   : QString();
        if (parser.isSet(help)) {
            // The text of the help needs the program's name from an application.
            QCoreApplication application(argc, argv);
            std::fputs(qUtf8Printable(parser.helpText()), stdout);
        } else {
            std::fputs(qUtf8Printable(text), stdout);
        }
        return Done;
    }
    if (!hasScreen())
        return fail(MachineLacks, QStringLiteral("there is no screen here"),
                    QStringLiteral("kwgantt works without one: kwgantt help"));
    if (!chooseZone(parser.value(zone)))
        return fail(MachineLacks, QStringLiteral("no time zone '%1' on this machine").arg(parser.value(zone)),
                    QStringLiteral("names look like Europe/Berlin; the package tzdata brings them"));
    if (!parser.value(language).isEmpty() && !texts::choose(parser.value(language)))
        return fail(WrongUse, QStringLiteral("no texts in the language '%1'").arg(parser.value(language)),
                    QStringLiteral("possible: %1").arg(texts::languages().join(QLatin1String(", "))));

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kwgantt"));
    QApplication::setDesktopFileName(QStringLiteral("kwgantt-desktop"));
    QApplication::setWindowIcon(icons::program());
    QCoreApplication::installTranslator(texts::translator());
    // Qt's own dialogs, where the machine has their texts; the last translator is asked first.
    QTranslator ofQt;
    if (texts::chosen() != QLatin1String("en") &&
        ofQt.load(QLocale(texts::chosen()), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&ofQt);
    texts::fillLibraryTables();

    auto *window = new MainWindow;
    window->show();
    const QString path =
        parser.positionalArguments().isEmpty() ? lastFile() : parser.positionalArguments().first();
    if (!path.isEmpty() && !parser.isSet(anew)) {
        // A large plan takes a moment; the window is there before.
        constexpr qint64 largeBytes = 1 << 20;
        if (QFileInfo(path).size() > largeBytes)
            QApplication::processEvents();
        window->openFile(path);
    }
    window->offerCopies();
    return QApplication::exec();
}
