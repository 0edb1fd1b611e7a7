#include "options.h"
#include "support/likeness.h"
#include "texts.h"
#include <QHash>
#include <algorithm>

namespace options {

namespace {

enum Group : unsigned {
    Everywhere = 1,
    Planning = 2, // commands that read a plan
    Showing = 4,
    Scheduling = 8,
    Checking = 16,
    Explaining = 32,
    Changing = 64, // commands that write a changed plan
    Editing = 128,
    Making = 256,
    Copying = 512,
    Converting = 1024,
    Drawing = 2048,
    Helping = 4096,
    Gating = 8192,
    Comparing = 16384,
};

struct Command
{
    const char *name;
    const char *alias;
    unsigned groups;
    int leastArguments;
    int mostArguments;
    const char *arguments;
};

constexpr int mostWords = 100000;

constexpr Command commandTable[] = {
    {"show", "", Everywhere | Planning | Showing, 1, 1, "FILE"},
    {"load", "check", Everywhere | Planning | Checking | Gating, 1, mostWords, "FILE..."},
    {"schedule", "", Everywhere | Planning | Showing | Scheduling | Checking, 1, 1, "FILE"},
    {"explain", "", Everywhere | Planning | Explaining, 2, 2, "FILE TASK"},
    {"convert", "", Everywhere | Planning | Converting, 2, 2, "IN OUT"},
#ifdef KW_WITH_EXPORT
    {"render", "", Everywhere | Planning | Drawing, 1, 1, "FILE"},
#endif
    {"edit", "", Everywhere | Planning | Showing | Changing | Editing, 1, mostWords, "FILE EDIT"},
    {"new", "", Everywhere | Making, 1, 1, "OUT"},
    {"diff", "", Everywhere | Planning | Comparing, 2, 2, "A B"},
    {"baseline", "", Everywhere | Planning | Changing, 1, mostWords, "FILE [list|set|clear] [TASK...]"},
    {"copy-branch", "", Everywhere | Planning | Changing | Copying, 3, mostWords, "FROM TASK... INTO"},
    {"recover", "", Everywhere, 0, 1, "[COPY]"},
    {"completion", "", Everywhere, 0, 1, "[bash|zsh|fish]"},
    {"formats", "", Everywhere, 0, 0, ""},
    {"columns", "", Everywhere, 0, 0, ""},
    {"help", "", Everywhere | Helping, 0, 1, "[COMMAND]"},
    {"version", "", Everywhere, 0, 0, ""},
};

using Setter = bool (*)(Options &, const QString &value);

struct Option
{
    const char *name;
    const char *letter; // one-letter form; empty when there is none
    const char *value;  // what stands for the value in messages; null: the option takes none
    unsigned group;
    Setter set;                    // false: the value is not understood
    const char *meaning = nullptr; // what may stand for the value; null: `value` says it
};

bool setWhen(Options::When &target, const QString &value)
{
    if (value == QLatin1String("auto"))
        target = Options::Auto;
    else if (value == QLatin1String("always"))
        target = Options::Always;
    else if (value == QLatin1String("never"))
        target = Options::Never;
    else
        return false;
    return true;
}

bool setFormat(Options &o, const QString &value)
{
    o.formatGiven = true;
    if (value == QLatin1String("csv"))
        o.format = Options::Csv;
    else if (value == QLatin1String("json"))
        o.format = Options::Json;
    else if (value == QLatin1String("mspdi"))
        o.format = Options::Project;
    else if (value == QLatin1String("table") || value == QLatin1String("text"))
        o.format = Options::Table;
#ifdef KW_WITH_EXPORT
    else if (value == QLatin1String("pdf"))
        o.format = Options::Pdf;
    else if (value == QLatin1String("png"))
        o.format = Options::Png;
    else if (value == QLatin1String("svg"))
        o.format = Options::Svg;
    else if (value == QLatin1String("html"))
        o.format = Options::Html;
#endif
    else
        return false;
    return true;
}

bool setNumber(int &target, const QString &value, int least, int most)
{
    bool ok = false;
    target = value.toInt(&ok);
    return ok && target >= least && target <= most;
}

bool setUnit(Options &o, const QString &value)
{
    static const char *const names[] = {"d", "h", "min"};
    for (unsigned int i = 0; i < 3; ++i) {
        if (value == QLatin1String(names[i])) {
            o.slackUnit = 4 + i;
            return true;
        }
    }
    return false;
}

bool setScale(Options &o, const QString &value)
{
    static const QStringList scales{
        QStringLiteral("auto"),  QStringLiteral("hour"),    QStringLiteral("day"), QStringLiteral("week"),
        QStringLiteral("month"), QStringLiteral("quarter"), QStringLiteral("year")};
    o.scale = value;
    return scales.contains(value);
}

bool isOneOf(const QString &value, const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char('|')).contains(value);
}

constexpr const char *themes = "light|dark|print|contrast";
constexpr const char *labels = "none|name|resources|dates";
constexpr const char *pictureParts = "today|baseline|slack|critical|links|legend|repeat|background";
constexpr const char *differences =
    "tasks|outline|names|dates|progress|cost|resources|links|texts|baseline|calendar|sheet|table|options";
constexpr double mostRatio = 4;

constexpr int narrowest = 20;
constexpr int widest = 10000;
constexpr int deepest = 1000;

const Option optionTable[] = {
    {"output", "o", "FILE", Everywhere,
     [](Options &o, const QString &v) {
         o.output = v;
         return !v.isEmpty();
     }},
    {"force", "", nullptr, Everywhere, [](Options &o, const QString &) { return o.force = true; }},
    {"json", "", nullptr, Planning,
     [](Options &o, const QString &) { return setFormat(o, QStringLiteral("json")); }},
    {"csv", "", nullptr, Showing | Changing,
     [](Options &o, const QString &) { return setFormat(o, QStringLiteral("csv")); }},
    {"from", "", "kwpx|csv|xlsx|xls|mspdi", Planning,
     [](Options &o, const QString &v) {
         static const QStringList formats{QStringLiteral("kwpx"), QStringLiteral("csv"),
                                          QStringLiteral("xlsx"), QStringLiteral("xls"),
                                          QStringLiteral("mspdi")};
         o.inputFormat = v;
         return formats.contains(v);
     }},
    {"to", "", "csv|json|mspdi|table", Planning,
     [](Options &o, const QString &v) { return setFormat(o, v); }},
    {"quiet", "q", nullptr, Everywhere, [](Options &o, const QString &) { return o.quiet = true; }},
    {"verbose", "v", nullptr, Everywhere, [](Options &o, const QString &) { return o.verbose = true; }},
    {"progress", "", "auto|always|never", Everywhere,
     [](Options &o, const QString &v) { return setWhen(o.progress, v); }},
    {"color", "", "auto|always|never", Everywhere,
     [](Options &o, const QString &v) { return setWhen(o.color, v); }},
    {"ascii", "", nullptr, Everywhere, [](Options &o, const QString &) { return o.ascii = true; }},
    {"lang", "", "LANGUAGE", Everywhere,
     [](Options &o, const QString &v) {
         o.language = v;
         return true;
     }},
    {"tz", "", "ZONE", Everywhere,
     [](Options &o, const QString &v) {
         o.zone = v;
         return true;
     }},
    {"now", "", "TIME", Everywhere,
     [](Options &o, const QString &v) {
         o.now = v;
         return true;
     }},
    {"log", "", "FILE", Everywhere,
     [](Options &o, const QString &v) {
         o.logFile = v;
         return !v.isEmpty();
     }},
    {"calendar", "", "FILE", Planning,
     [](Options &o, const QString &v) {
         o.calendarFile = v;
         return !v.isEmpty();
     }},
    {"days", "", "Mon-Fri", Planning,
     [](Options &o, const QString &v) {
         o.days = v;
         return !v.isEmpty();
     }},
    {"hours", "", "08:00-12:00,13:00-17:00", Planning,
     [](Options &o, const QString &v) {
         o.hours = v;
         return !v.isEmpty();
     }},
    {"holiday", "", "DATE[..DATE]", Planning,
     [](Options &o, const QString &v) {
         o.holidays.append(v.split(QLatin1Char(',')));
         return true;
     }},
    {"start", "", "DATE", Planning,
     [](Options &o, const QString &v) {
         o.start = v;
         return !v.isEmpty();
     }},
    {"resources", "", "FILE", Planning,
     [](Options &o, const QString &v) {
         o.resources = o.resources || v.isEmpty();
         if (!v.isEmpty())
             o.resourcesFile = v;
         return true;
     }},
    {"assignments", "", "FILE", Planning,
     [](Options &o, const QString &v) {
         o.assignmentsFile = v;
         return !v.isEmpty();
     }},
    {"unit", "", "d|h|min", Planning, setUnit},
    {"columns", "", "LIST", Showing | Drawing,
     [](Options &o, const QString &v) {
         o.columns = v.split(QLatin1Char(','));
         return !v.isEmpty();
     }},
    {"width", "", "N", Showing,
     [](Options &o, const QString &v) { return setNumber(o.width, v, narrowest, widest); },
     QT_TR_NOOP("a whole number from 20 to 10,000")},
    {"scale", "", "auto|hour|day|week|month|quarter|year", Showing | Drawing, setScale},
    {"range", "", "DATE..DATE", Showing | Drawing,
     [](Options &o, const QString &v) {
         o.range = v;
         return !v.isEmpty();
     }},
    {"level", "", "N", Showing | Drawing,
     [](Options &o, const QString &v) { return setNumber(o.level, v, 1, deepest); },
     QT_TR_NOOP("a whole number from 1 to 1,000")},
    {"all", "", nullptr, Showing, [](Options &o, const QString &) { return o.all = true; }},
    {"critical", "", nullptr, Showing | Drawing, [](Options &o, const QString &) { return o.critical = true; }},
    {"no-bars", "", nullptr, Showing,
     [](Options &o, const QString &) {
         o.bars = false;
         return true;
     }},
    {"plain", "", nullptr, Showing, [](Options &o, const QString &) { return o.plain = true; }},
    {"theme", "", themes, Drawing,
     [](Options &o, const QString &v) {
         o.drawing.theme = v;
         return isOneOf(v, themes);
     }},
    {"labels", "", labels, Drawing,
     [](Options &o, const QString &v) {
         o.drawing.labels = v;
         return isOneOf(v, labels);
     }},
    {"without", "", pictureParts, Drawing,
     [](Options &o, const QString &v) {
         o.drawing.without += v.split(QLatin1Char(','));
         for (const QString &part : qAsConst(o.drawing.without))
             if (!isOneOf(part, pictureParts))
                 return false;
         return true;
     }},
    {"title", "", "TEXT", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.title = v;
         return o.drawing.hasTitle = true;
     }},
    {"head", "", "TEXT", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.head = v;
         return true;
     }},
    {"foot", "", "TEXT", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.foot = v;
         return true;
     }},
    {"font", "", "FAMILY", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.font = v;
         return !v.isEmpty();
     }},
    {"date-format", "", "dd MMM yyyy", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.dateFormat = v;
         return !v.isEmpty();
     }},
    {"branch", "", "TASK", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.branch = v;
         return !v.isEmpty();
     }},
    {"trim", "", nullptr, Drawing, [](Options &o, const QString &) { return o.drawing.trim = true; }},
    {"unit-width", "", "N", Drawing,
     [](Options &o, const QString &v) { return setNumber(o.drawing.unitWidth, v, 1, widest); },
     QT_TR_NOOP("a whole number from 1 to 10,000")},
    {"paper", "", "A4|A3|297x210mm", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.paper = v;
         return !v.isEmpty();
     }},
    {"margins", "", "20mm", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.margins = v;
         return !v.isEmpty();
     }},
    {"portrait", "", nullptr, Drawing, [](Options &o, const QString &) { return o.drawing.portrait = true; }},
    {"landscape", "", nullptr, Drawing, [](Options &o, const QString &) { return o.drawing.landscape = true; }},
    {"fold-marks", "", nullptr, Drawing, [](Options &o, const QString &) { return o.drawing.foldMarks = true; }},
    {"fit", "", "ACROSSxDOWN", Drawing,
     [](Options &o, const QString &v) {
         o.drawing.fit = v;
         return !v.isEmpty();
     }},
    {"zoom", "", "N", Drawing, [](Options &o, const QString &v) { return setNumber(o.drawing.zoom, v, 10, 400); },
     QT_TR_NOOP("percent, from 10 to 400")},
    {"ratio", "", "1..4", Drawing,
     [](Options &o, const QString &v) {
         bool ok = false;
         o.drawing.ratio = v.toDouble(&ok);
         return ok && o.drawing.ratio >= 1 && o.drawing.ratio <= mostRatio;
     }},
    {"preview", "", nullptr, Drawing, [](Options &o, const QString &) { return o.drawing.preview = true; }},
    {"in-place", "i", nullptr, Scheduling | Changing,
     [](Options &o, const QString &) { return o.inPlace = true; }},
    {"backup", "", nullptr, Scheduling | Changing,
     [](Options &o, const QString &) { return o.backup = true; }},
    {"dry-run", "", nullptr, Scheduling | Changing,
     [](Options &o, const QString &) { return o.dryRun = true; }},
    {"sheets", "", "rich|plain", Converting | Changing,
     [](Options &o, const QString &v) {
         o.richSheets = v == QLatin1String("rich");
         o.sheetsGiven = true;
         return o.richSheets || v == QLatin1String("plain");
     }},
    {"man-pages", "", "FOLDER", Helping,
     [](Options &o, const QString &v) {
         o.manualFolder = v;
         return !v.isEmpty();
     }},
    {"sample", "", nullptr, Making, [](Options &o, const QString &) { return o.sample = true; }},
    {"before", "", "TASK", Copying,
     [](Options &o, const QString &v) {
         o.before = v;
         return !v.isEmpty();
     }},
    {"under", "", "TASK", Copying,
     [](Options &o, const QString &v) {
         o.under = v;
         return !v.isEmpty();
     }},
    {"script", "", "FILE", Editing,
     [](Options &o, const QString &v) {
         o.script = v;
         return !v.isEmpty();
     }},
    {"check", "", nullptr, Checking, [](Options &o, const QString &) { return o.check = true; }},
    {"finish-by", "", "DATE", Gating,
     [](Options &o, const QString &v) {
         o.finishBy = v.simplified();
         return o.check = !o.finishBy.isEmpty();
     }},
    {"max-cost", "", "N", Gating,
     [](Options &o, const QString &v) {
         bool ok = false;
         v.toDouble(&ok);
         o.mostCost = v;
         return (o.check = true) && ok;
     },
     QT_TR_NOOP("an amount such as 12000.50")},
    {"no-critical-slip", "", "PERCENT", Gating,
     [](Options &o, const QString &v) {
         bool ok = false;
         o.mostSlip = v.endsWith(QLatin1Char('%')) ? v.chopped(1) : v;
         return o.mostSlip.toDouble(&ok) >= 0 && ok && (o.check = true);
     },
     QT_TR_NOOP("a number from 0, such as 5%")},
    {"only", "", differences, Comparing,
     [](Options &o, const QString &v) {
         o.only += v.split(QLatin1Char(','));
         for (const QString &kind : qAsConst(o.only))
             if (!isOneOf(kind, differences))
                 return false;
         return true;
     }},
    {"asap", "", nullptr, Scheduling | Explaining,
     [](Options &o, const QString &) { return o.asSoonAsPossible = true; }},
};

const Command *commandNamed(const QString &name)
{
    for (const Command &command : commandTable)
        if (name == QLatin1String(command.name) || (*command.alias && name == QLatin1String(command.alias)))
            return &command;
    return nullptr;
}

const Option *optionNamed(const QString &name)
{
    for (const Option &option : optionTable)
        if (name == QLatin1String(option.name) || (*option.letter && name == QLatin1String(option.letter)))
            return &option;
    return nullptr;
}

QVector<OptionInfo> optionsIn(unsigned groups)
{
    QVector<OptionInfo> infos;
    for (const Option &option : optionTable)
        if (option.group & groups)
            infos.append({QLatin1String(option.name), QLatin1String(option.letter),
                          option.value ? QLatin1String(option.value) : QLatin1String()});
    return infos;
}

QStringList optionNames(unsigned groups)
{
    QStringList names;
    for (const Option &option : optionTable)
        if (option.group & groups)
            names.append(QLatin1String("--") + QLatin1String(option.name));
    return names;
}

bool fail(Fault &fault, const QString &what, const QString &hint = QString())
{
    fault = {what, hint};
    return false;
}

QString helpHint(const QString &command)
{
    return command.isEmpty() ? t("'kwgantt help' lists all commands")
                             : t("'kwgantt help %1' lists its options").arg(command);
}

struct Given
{
    const Option *option;
    QString written; // "--width"
    QString value;
};

struct Words
{
    QVector<Given> given;
    QStringList rest;
    QString instead; // "help" or "version" when asked for by an option
};

// Splits the words into options with their values and the rest.
bool split(const QStringList &words, Words &result, Fault &fault)
{
    QStringList &rest = result.rest;
    const auto isShow = [&rest] { return rest.value(0) == QLatin1String("show"); };
    int sheetOption = -1; // --resources without a value, among the options
    int sheetWord = -1;   // the place that the word behind it has in the rest
    for (int i = 0; i < words.size(); ++i) {
        const QString &word = words.at(i);
        if (word == QLatin1String("--")) {
            rest += words.mid(i + 1);
            break;
        }
        // A lone dash stands for standard input.
        if (!word.startsWith(QLatin1Char('-')) || word.size() == 1) {
            rest.append(word);
            continue;
        }
        const bool isLong = word.startsWith(QLatin1String("--"));
        const int equals = isLong ? word.indexOf(QLatin1Char('=')) : -1;
        const QString name = isLong ? word.mid(2, equals < 0 ? -1 : equals - 2) : word.mid(1);
        const QString written = (isLong ? QStringLiteral("--") : QStringLiteral("-")) + name;
        if (name == QLatin1String("help") || name == QLatin1String("h")) {
            result.instead = QStringLiteral("help");
            continue;
        }
        if (name == QLatin1String("version") || written == QLatin1String("-V")) {
            result.instead = QStringLiteral("version");
            continue;
        }
        const Option *option = isLong == (name.size() > 1) ? optionNamed(name) : nullptr;
        if (!option) {
            const QString guess = likeness::nearest(written, optionNames(~0u));
            return fail(fault, t("unknown option '%1'").arg(written),
                        guess.isEmpty() ? helpHint(QString()) : t("did you mean '%1'?").arg(guess));
        }
        Given entry{option, written, QString()};
        if (option->value && equals >= 0)
            entry.value = word.mid(equals + 1);
        else if (isShow() && name == QLatin1String("resources"))
            sheetWord = rest.size(); // shows the sheet; a file may stand behind it, too
        else if (option->value && i + 1 < words.size())
            entry.value = words.at(++i);
        else if (option->value)
            return fail(fault, t("option '%1' needs a value: %2").arg(written, QLatin1String(option->value)));
        else if (equals >= 0)
            return fail(fault, t("option '%1' takes no value").arg(written));
        result.given.append(entry);
        if (name == QLatin1String("resources") && isShow() && equals < 0)
            sheetOption = result.given.size() - 1;
    }
    // 'show PLAN --resources SHEET' has one word more than 'show --resources PLAN'.
    constexpr int wordsOfShow = 2;
    if (sheetOption >= 0 && rest.size() == wordsOfShow + 1 && sheetWord < rest.size()) {
        const Given sheet{result.given[sheetOption].option, result.given[sheetOption].written,
                          rest.takeAt(sheetWord)};
        result.given.append(sheet);
    }
    return true;
}

bool checkTogether(const Options &options, Fault &fault)
{
    if (options.inPlace && options.arguments.value(0) == QLatin1String("-"))
        return fail(fault, t("standard input cannot be written back"), t("give a file name, or -o FILE"));
    if (options.inPlace && (!options.output.isEmpty() || options.formatGiven))
        return fail(fault, t("-i writes the plan itself; it goes with neither -o nor --csv, --json or --to"));
    if (options.backup && !options.inPlace)
        return fail(fault, t("--backup keeps the file that -i writes"), t("add -i"));
    if (options.inPlace && options.dryRun)
        return fail(fault, t("-i and --dry-run exclude each other"));
    if (options.drawing.portrait && options.drawing.landscape)
        return fail(fault, t("--portrait and --landscape exclude each other"));
    if (!options.drawing.fit.isEmpty() && options.drawing.zoom > 0)
        return fail(fault, t("--fit and --zoom exclude each other"));
    if (!options.before.isEmpty() && !options.under.isEmpty())
        return fail(fault, t("--before and --under exclude each other"));
    return true;
}

// The output's format from its name, where no option says it.
void setFormatByName(Options &options)
{
    if (options.formatGiven)
        return;
    static const QHash<QString, Options::Format> formats{
        {QStringLiteral("csv"), Options::Csv},      {QStringLiteral("json"), Options::Json},
        {QStringLiteral("kwpx"), Options::Package}, {QStringLiteral("xlsx"), Options::Xlsx},
        {QStringLiteral("xls"), Options::Xls},      {QStringLiteral("xml"), Options::Project},
#ifdef KW_WITH_EXPORT
        {QStringLiteral("pdf"), Options::Pdf},      {QStringLiteral("png"), Options::Png},
        {QStringLiteral("svg"), Options::Svg},      {QStringLiteral("html"), Options::Html},
        {QStringLiteral("htm"), Options::Html}
#endif
    };
    options.format = formats.value(options.output.section(QLatin1Char('.'), -1).toLower(), options.format);
}
}

bool parse(const QStringList &arguments, Options &result, Fault &fault)
{
    Words words;
    if (!split(arguments, words, fault))
        return false;
    QStringList &rest = words.rest;
    if (!words.instead.isEmpty()) {
        result.command = words.instead;
        if (commandNamed(rest.value(0)))
            result.arguments = QStringList{rest.first()};
        return true;
    }
    const QString name = rest.isEmpty() ? QStringLiteral("help") : rest.takeFirst();
    const Command *command = commandNamed(name);
    if (!command) {
        const QString guess = likeness::nearest(name, commands());
        return fail(fault, t("unknown command '%1'").arg(name),
                    guess.isEmpty() ? helpHint(QString())
                                    : t("did you mean '%1'? 'kwgantt help' lists all commands").arg(guess));
    }
    result.command = QLatin1String(command->name);
    // `check` is `load` that says no by its exit code.
    result.check = name == QLatin1String("check");
    result.arguments = rest;
    for (const Given &entry : words.given) {
        if (!(entry.option->group & command->groups))
            return fail(fault, t("'%1' does not go with '%2'").arg(entry.written, name),
                        helpHint(result.command));
        if (!entry.option->set(result, entry.value))
            return fail(fault, t("'%1' is no value for '%2'").arg(entry.value, entry.written),
                        t("possible: %1")
                            .arg(entry.option->meaning ? t(entry.option->meaning)
                                                       : QLatin1String(entry.option->value)));
    }
    if (rest.size() < command->leastArguments)
        return fail(fault, t("'%1' needs more: %2").arg(name, QLatin1String(command->arguments)),
                    helpHint(result.command));
    if (rest.size() > command->mostArguments)
        return fail(fault, t("'%1' is one word too many for '%2'").arg(rest.at(command->mostArguments), name),
                    helpHint(result.command));
    const bool isConvert =
        result.command == QLatin1String("convert") || result.command == QLatin1String("new");
    if (isConvert)
        result.output = rest.last();
    setFormatByName(result);
    // A dash stands for standard output.
    if (result.output == QLatin1String("-") && result.command != QLatin1String("render")) {
        result.output.clear();
        if (isConvert && result.format == Options::Table && !result.formatGiven)
            return fail(fault, t("standard output has no name that tells a format"),
                        t("--to csv, json, mspdi or table tells it"));
        return checkTogether(result, fault);
    }
    if (isConvert && result.format == Options::Table)
        return fail(fault, t("'%1' names no format that can be written").arg(result.output),
                    t("end it in .kwpx, .csv, .xlsx, .xls, .xml or .json"));
    return checkTogether(result, fault);
}

QStringList commands()
{
    QStringList names;
    for (const Command &command : commandTable)
        names.append(QLatin1String(command.name));
    return names;
}

QVector<CommandInfo> commandInfos()
{
    QVector<CommandInfo> infos;
    for (const Command &command : commandTable)
        infos.append({QLatin1String(command.name), QLatin1String(command.alias),
                      QLatin1String(command.arguments), QLatin1String(command.name)});
    return infos;
}

QVector<OptionInfo> allOptions()
{
    return optionsIn(~0u);
}

QVector<OptionInfo> optionsOf(const QString &name)
{
    const Command *command = commandNamed(name);
    return command ? optionsIn(command->groups) : QVector<OptionInfo>();
}
}
