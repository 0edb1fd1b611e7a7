// Edits a plan: one edit on the command line, or a script with one a line.
#include "commands.h"
#include "edit.h"
#include "planfile.h"
#include "report.h"
#include "texts.h"

namespace commands {

namespace {

struct Line
{
    int number = 0; // of the script; 0: the command line
    QStringList words;
};

constexpr qint64 largestScript = 64 * 1024 * 1024;

QString placeOf(const Console &console, const Line &line)
{
    return line.number == 0 ? console.options().arguments.first()
                            : t("%1: line %2").arg(console.options().script).arg(line.number);
}

bool readScript(Console &console, std::vector<Line> &lines)
{
    const QString &path = console.options().script;
    QByteArray bytes;
    QString error;
    if (!planfile::readBytes(path, largestScript, bytes, error)) {
        console.error(t("%1: cannot be read: %2").arg(path, error), t("check the name and the permissions"));
        return false;
    }
    int number = 0;
    for (const QByteArray &bytesOfLine : bytes.split('\n')) {
        Line line;
        line.number = ++number;
        options::Fault fault;
        if (!editline::split(QString::fromUtf8(bytesOfLine), line.words, fault)) {
            console.error(placeOf(console, line) + QLatin1String(": ") + fault.what, fault.hint);
            return false;
        }
        if (!line.words.isEmpty())
            lines.push_back(line);
    }
    return true;
}
}

int edit(Console &console)
{
    const Options &options = console.options();
    std::vector<Line> lines;
    if (!options.script.isEmpty()) {
        if (!readScript(console, lines))
            return Console::CannotRead;
    } else if (options.arguments.size() > 1) {
        lines.push_back({0, options.arguments.mid(1)});
    }
    if (!options.script.isEmpty() == (options.arguments.size() > 1)) {
        console.error(options.script.isEmpty() ? t("no edit is given")
                                               : t("an edit and a script exclude each other"),
                      t("'kwgantt help edit' lists all edits"));
        return Console::WrongUse;
    }
    const QString verb = lines.size() == 1 ? lines.front().words.first() : QString();
    if (verb == QLatin1String("undo") || verb == QLatin1String("redo")) {
        console.error(
            t("'%1' takes back edits of the same script; what another call wrote is not kept").arg(verb),
            t("-i --backup keeps the file before it as %1~").arg(options.arguments.first()));
        return Console::WrongUse;
    }
    Plan plan;
    if (const int code = loadForChange(console, options.arguments.first(), plan))
        return code;
    int done = 0;
    MoveWatch watch(plan);
    editverbs::Outcome outcome{{}, &watch};
    for (const Line &line : lines) {
        options::Fault fault;
        if (!editverbs::run(plan, line.words, fault, outcome)) {
            console.error(placeOf(console, line) + QLatin1String(": ") + fault.what, fault.hint);
            console.note(t("nothing was written"));
            return Console::WrongUse;
        }
        console.progress(t("editing"), ++done, qint64(lines.size()));
    }
    tellLost(console, plan, outcome.lost);
    watch.tell();
    const Style style = styleOf(console);
    QString summary = counted(done, "%1 edit made", "%1 edits made");
    if (!plan.moves.empty())
        summary += t("; ") + report::editMovesSummary(plan, style);
    const int code = writeChanged(console, plan, summary);
    // In place, the plan itself goes into its file and standard output is free for the details.
    if (code == Console::Done && options.verbose && options.inPlace)
        return written(console, report::moves(plan, style).toUtf8());
    return code;
}
}
