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
    const auto says = [](const char *name) { return !qEnvironmentVariableIsEmpty(name); };
    return says("DISPLAY") || says("WAYLAND_DISPLAY") || says("QT_QPA_PLATFORM");
}

int fail(Code code, const QString &what, const QString &hint)
{
    std::fprintf(stderr, "kwgantt-desktop: %s\n  %s\n", qUtf8Printable(what),
                 qUtf8Printable(t("hint: %1").arg(hint)));
    return code;
}

const QString zone = QStringLiteral("tz"), language = QStringLiteral("lang"), anew = QStringLiteral("new"),
              keys = QStringLiteral("keys"), help = QStringLiteral("help"),
              version = QStringLiteral("version");

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(t("Plans projects in working time."));
    parser.addOptions({{zone, t("The time zone of the plan."), QStringLiteral("zone")},
                       {language, t("The language of the program."), QStringLiteral("code")},
                       {anew, t("Begins with an empty plan.")},
                       {keys, t("Prints what each key does.")},
                       {{QStringLiteral("h"), help}, t("Prints this.")},
                       {version, t("Prints the version.")}});
    parser.addPositionalArgument(QStringLiteral("file"), t("The plan to open."), QStringLiteral("[file]"));
}

// What Qt says in its help, for the catalogues.
[[maybe_unused]] constexpr const char *ofQt[] = {QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
                                                 QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
                                                 QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
                                                 QT_TRANSLATE_NOOP("QCommandLineParser", "Arguments:")};

// The zone must stand before Qt looks at it.
bool chooseZone(const QString &wanted)
{
    const QByteArray chosen = wanted.isEmpty() ? qgetenv("TZ") : wanted.toUtf8();
    if (!wanted.isEmpty() && !QTimeZone(chosen).isValid())
        return false;
    // Without the variable the C library looks at the machine's zone file again for every conversion.
    const QByteArray machineZone = QTimeZone::systemTimeZoneId();
    if (!chosen.isEmpty())
        qputenv("TZ", chosen);
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
    QCommandLineParser asked;
    describe(asked);
    // Once for the language in which all else is said, what is wrong with the arguments included.
    asked.parse(arguments);
    const bool speaks = asked.value(language).isEmpty() || texts::choose(asked.value(language));
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return fail(WrongUse,
                    parser.unknownOptionNames().isEmpty()
                        ? parser.errorText()
                        : t("unknown option '%1'").arg(parser.unknownOptionNames().first()),
                    t("kwgantt-desktop --help lists all options"));
    if (!speaks)
        return fail(WrongUse, t("no texts in the language '%1'").arg(parser.value(language)),
                    t("possible: %1").arg(texts::languages().join(QLatin1String(", "))));
    if (parser.isSet(help) || parser.isSet(version) || parser.isSet(keys)) {
        const QString text = parser.isSet(version) ? QStringLiteral("kwgantt-desktop " KWGANTT_VERSION "\n")
                             : parser.isSet(keys)  ? actiontable::asMarkdown()
                                                   : QString();
        if (parser.isSet(help)) {
            // The text of the help needs the program's name from an application.
            QCoreApplication application(argc, argv);
            QCoreApplication::installTranslator(texts::translator());
            std::fputs(qUtf8Printable(parser.helpText()), stdout);
        } else {
            std::fputs(qUtf8Printable(text), stdout);
        }
        return Done;
    }
    if (!hasScreen())
        return fail(MachineLacks, t("there is no screen here"), t("kwgantt works without one: kwgantt help"));
    if (!chooseZone(parser.value(zone)))
        return fail(MachineLacks, t("no time zone '%1' on this machine").arg(parser.value(zone)),
                    t("names look like Europe/Berlin; the package tzdata brings them"));

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
