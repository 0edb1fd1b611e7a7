#include "commands.h"
#include "kwpxfile.h"
#include "machine.h"
#include "planfile.h"
#include "projectfile.h"
#include "report.h"
#include "schedule/kwtaskcollection.h"
#include "support/findings.h"
#include "texts.h"
#include "workbookfile.h"
#include <QFileInfo>

namespace commands {

Style styleOf(const Console &console)
{
    return Style(console.usesAscii(), console.usesColor());
}

Plan::Progress progressOf(Console &console)
{
    return
        [&console](const QString &work, qint64 done, qint64 total) { console.progress(work, done, total); };
}

int written(Console &console, const QByteArray &data, int code)
{
    return console.write(data) ? code : int(Console::CannotWrite);
}

void tell(Console &console, const Plan &plan, const Findings &findings)
{
    if (!console.options().quiet)
        console.list(plan.file, findings);
}

void tellLost(Console &console, const Plan &plan, const QStringList &lost)
{
    constexpr int mostTold = 10;
    for (const QString &line : lost.mid(0, mostTold))
        console.warning(plan.file + QLatin1String(": ") + line);
    if (lost.size() > mostTold)
        console.warning(plan.file + QLatin1String(": ") + t("%1 more").arg(lost.size() - mostTold));
}

void scheduleMissing(Console &console, Plan &plan)
{
    if (plan.withoutStart > 0)
        plan::schedule(plan, plan::AsGiven, progressOf(console));
}

int loadPlan(Console &console, const QString &file, Plan &plan, Findings *found)
{
    Findings findings;
    const int code = planfile::load(file, console, plan, findings);
    if (code == Console::Done)
        tell(console, plan, findings);
    if (found)
        *found = findings;
    return code;
}

int lockForWriting(Console &console, const QString &file, Plan &plan)
{
    constexpr int mostMsecs = 10000;
    if (plan.lock.take(file, mostMsecs))
        return Console::Done;
    console.error(t("%1: another program is writing it; nothing was changed").arg(file), t("try again"));
    return Console::CannotWrite;
}

int mayReplace(Console &console, const Plan &plan, const Findings &findings)
{
    const Options &options = console.options();
    // Of a CSV plan only the cells that change are written.
    if (const int lost = findings.count(Finding::Lost); plan.isPackage && lost > 0 && !options.force) {
        if (options.quiet)
            console.list(plan.file, findings);
        console.error(t("%1: not written: %2")
                          .arg(plan.file, counted(lost, "a part of it was not read and would be lost",
                                                  "%1 parts of it were not read and would be lost")),
                      t("-o OUT leaves the file alone, --force writes it all the same"));
        return Console::CannotWrite;
    }
    if (!options.backup)
        return Console::Done;
    QByteArray bytes;
    QString error;
    constexpr qint64 mostBytes = 1LL << 30;
    if (!planfile::readBytes(plan.file, mostBytes, bytes, error)) {
        console.error(t("%1: cannot be read: %2").arg(plan.file, error));
        return Console::CannotWrite;
    }
    const QString copy = plan.file + QLatin1Char('~');
    return console.replaceFile(copy, bytes, true) ? Console::Done : Console::CannotWrite;
}

int writePlan(Console &console, Plan &plan)
{
    const Options &options = console.options();
    if (options.format == Options::Package)
        return kwpxfile::save(console, plan, options.output, options.force) ? Console::Done
                                                                            : Console::CannotWrite;
    if (options.format == Options::Xlsx || options.format == Options::Xls) {
        const bool isXlsx = options.format == Options::Xlsx;
        return workbookfile::save(console, plan, options.output,
                                  isXlsx ? workbookfile::Xlsx : workbookfile::Xls)
                   ? Console::Done
                   : Console::CannotWrite;
    }
    if (options.format == Options::Project)
        return projectfile::save(console, plan, options.output);
    if (options.format == Options::Csv)
        return console.write([&](const Console::Take &take) { return machine::writeCsv(plan, take); })
                   ? Console::Done
                   : Console::CannotWrite;
    if (options.format == Options::Json)
        return console.write([&](const Console::Take &take) { return machine::writeJson(plan, take); })
                   ? Console::Done
                   : Console::CannotWrite;
    return report::writeTable(console, plan, styleOf(console));
}

int writeWithSides(Console &console, Plan &plan)
{
    const Options &options = console.options();
    std::vector<planfile::Side> sides;
    if (!options.output.isEmpty())
        sides = planfile::sidesOf(plan, options.output);
    for (const planfile::Side &side : sides) {
        if (QFileInfo::exists(side.path) && !options.force) {
            console.error(t("%1: exists already and stays as it is").arg(side.path),
                          t("--force replaces it"));
            return Console::CannotWrite;
        }
    }
    if (const int code = writePlan(console, plan))
        return code;
    QStringList names;
    for (const planfile::Side &side : sides) {
        if (!console.replaceFile(side.path, side.bytes, true))
            return Console::CannotWrite;
        names.append(side.path);
    }
    if (!names.isEmpty())
        console.note(t("also written: %1").arg(names.join(QLatin1String(", "))));
    return Console::Done;
}

int loadForChange(Console &console, const QString &file, Plan &plan)
{
    const Options &options = console.options();
    if (options.output.isEmpty() && !options.inPlace && !options.dryRun && !options.formatGiven) {
        console.error(t("where shall the changed plan go?"),
                      t("-i writes %1 itself, -o OUT another file; --dry-run only shows it").arg(file));
        return Console::WrongUse;
    }
    if (options.inPlace) {
        if (const int code = lockForWriting(console, file, plan))
            return code;
    }
    Findings findings;
    if (const int code = loadPlan(console, file, plan, &findings))
        return code;
    if (!plan.isPackage && options.inPlace && plan.table.rows.empty()) {
        console.error(t("%1: only a package or a CSV plan can be changed in place").arg(file),
                      t("-o PLAN.kwpx writes it as a package"));
        return Console::WrongUse;
    }
    if (options.inPlace) {
        if (const int code = mayReplace(console, plan, findings))
            return code;
    }
    if (plan.isPackage) {
        plan.document->MajorUnit = plan.majorUnit;
        plan.document->MinorUnit = plan.minorUnit;
        plan.document->taskCollection()->updateRageAndTaskPoint();
    } else {
        scheduleMissing(console, plan);
        plan::refresh(plan, progressOf(console));
    }
    return Console::Done;
}

namespace {

// The file is read once more, to find out which of its cells have changed.
int saveRows(Console &console, const Plan &plan)
{
    Plan before;
    Findings findings;
    if (const int code = planfile::load(plan.file, console, before, findings))
        return code;
    scheduleMissing(console, before);
    plan::refresh(before, progressOf(console));
    if (plan.lock.isUnchanged())
        return planfile::saveRows(console, before, plan);
    console.error(t("%1: changed meanwhile by another program; nothing was written").arg(plan.file),
                  t("make the change again"));
    return Console::CannotWrite;
}
}

int writeChanged(Console &console, Plan &plan, const QString &summary)
{
    const Options &options = console.options();
    plan.majorUnit = plan.document->MajorUnit;
    plan.minorUnit = plan.document->MinorUnit;
    kwpxfile::describe(plan);
    int code = Console::Done;
    if (options.inPlace && !plan.isPackage) {
        plan::refresh(plan, progressOf(console));
        code = saveRows(console, plan);
    } else if (options.inPlace) {
        code = kwpxfile::save(console, plan, plan.file, true) ? Console::Done : Console::CannotWrite;
    } else {
        if (options.format != Options::Package)
            plan::refresh(plan, progressOf(console));
        code = writeWithSides(console, plan);
    }
    if (code == Console::Done)
        console.note(summary);
    return code;
}
}
