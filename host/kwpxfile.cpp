#include "kwpxfile.h"
#include "console.h"
#include "exchange/csvplan.h"
#include "kwzip.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "texts.h"
#include <QFile>
#include <QFileInfo>
#include <QUuid>

namespace kwpxfile {

namespace {

bool namesCalendar(const Options &options)
{
    return !options.calendarFile.isEmpty() || !options.days.isEmpty() || !options.hours.isEmpty() ||
           !options.holidays.isEmpty() || !options.start.isEmpty() || !options.resourcesFile.isEmpty() ||
           !options.assignmentsFile.isEmpty();
}
}

bool isPackage(const QString &path)
{
    constexpr qint64 directoryBytes = 64 << 10; // the list of entries stands at the end
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.read(2) != "PK")
        return path.endsWith(QLatin1String(".kwpx")) && QFileInfo(path).isFile();
    file.seek(qMax<qint64>(0, file.size() - directoryBytes));
    return path.endsWith(QLatin1String(".kwpx")) || file.readAll().contains("document.xml");
}

bool refusesCalendar(Console &console, const QString &path)
{
    if (!namesCalendar(console.options()))
        return false;
    console.error(
        t("%1: a package brings its own calendar and resources").arg(path),
        t("leave --calendar, --days, --hours, --holiday, --start, --resources and --assignments out"));
    return true;
}

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (refusesCalendar(console, path))
        return Console::WrongUse;
    KWDocument &document = *plan.document;
    if (!document.loadFromKWGT(path)) {
        const QString why = KWZip::lastError();
        console.error(t("%1: not a plan: %2").arg(path, why.isEmpty() ? t("its XML cannot be read") : why),
                      t("--log FILE tells more"));
        return Console::CannotRead;
    }
    for (const Finding &finding : document.loadFindings().list())
        findings.add(finding.place, finding.what, finding.hint);
    plan.isPackage = true;
    plan.majorUnit = document.MajorUnit;
    plan.minorUnit = document.MinorUnit;
    describe(plan);
    return Console::Done;
}

void describe(Plan &plan)
{
    KWDocument &document = *plan.document;
    ImportedPlan &imported = plan.imported;
    imported.codes = csvplan::outlineCodes(document);
    imported.withoutStart.clear();
    plan.links = 0;
    for (const KWTaskInfo *task : document.taskList()) {
        plan.links += task->Predecessors.size();
        if (task->Start == 0 && !task->isParent())
            imported.withoutStart.insert(task->ID);
    }
    plan.withoutStart = imported.withoutStart.size();
    imported.isStartGiven = document.StartDate != 0;
    plan.start = imported.isStartGiven ? document.StartDate : plan::firstStart(plan);
}

bool save(Console &console, Plan &plan, const QString &path, bool overwrite)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) {
        console.error(t("%1: cannot be written: %2").arg(path, t("it is no plain file")));
        return false;
    }
    if (info.exists() && !overwrite) {
        console.error(t("%1: exists already and stays as it is").arg(path), t("--force replaces it"));
        return false;
    }
    KWDocument &document = *plan.document;
    if (plan.isPackage) {
        // The units of the chart were changed to count slack.
        document.MajorUnit = plan.majorUnit;
        document.MinorUnit = plan.minorUnit;
    } else {
        // The same plan gives the same bytes.
        document.DocGuid = QUuid::createUuidV5(QUuid(), machine::csv(plan)).toString();
    }
    if (document.saveTo(path, false, true))
        return true;
    console.error(t("%1: cannot be written: %2").arg(path, KWZip::lastError()),
                  t("the folder must exist and have room; nothing was changed"));
    return false;
}
}
