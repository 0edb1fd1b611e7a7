#include "projectfile.h"
#include "console.h"
#include "exchange/MSPDIDataEngine.h"
#include "kwpxfile.h"
#include "model/kwtaskinfo.h"
#include "planfile.h"
#include "support/findings.h"
#include "texts.h"
#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace projectfile {

namespace {

constexpr qint64 mostBytes = 768LL << 20;

// The file stands in front of all of them anyway.
void collect(const Findings &found, const QString &path, Findings &findings)
{
    for (const Finding &finding : found.list())
        findings.add(finding.kind, finding.place == path ? QString() : finding.place, finding.what,
                     finding.hint);
}

// Standard input is read as a whole.
bool read(MSPDIDataEngine &engine, const QString &path, QString &error)
{
    if (path != QLatin1String("-"))
        return engine.importFile(path);
    QByteArray bytes;
    return planfile::readBytes(path, mostBytes, bytes, error) && engine.importBytes(bytes, path);
}
}

Kind kindOf(const QString &path)
{
    if (MSPDIDataEngine::isProjectFile(path))
        return Project;
    constexpr int longestMark = 5;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return None;
    QByteArray beginning = file.read(longestMark + 3);
    if (beginning.startsWith("\xef\xbb\xbf"))
        beginning.remove(0, 3);
    return beginning.startsWith("<?xml") ? OtherXml : None;
}

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (kwpxfile::refusesCalendar(console, path))
        return Console::WrongUse;
    MSPDIDataEngine engine(plan.document.get());
    QString error;
    if (!read(engine, path, error)) {
        Findings own;
        collect(engine.findings(), path, own);
        if (own.isEmpty())
            own.add(QString(), error);
        console.list(path, own);
        return Console::CannotRead;
    }
    collect(engine.findings(), path, findings);
    if (console.options().verbose && engine.customValues() > 0)
        console.note(
            t("%1: %2 values of custom fields are passed over").arg(path, grouped(engine.customValues())));
    plan.name = plan.projectName = engine.projectName();
    kwpxfile::describe(plan);
    if (engine.projectStart() != 0)
        plan.start = engine.projectStart();
    plan::countSlackIn(plan, plan.slackUnit);
    return Console::Done;
}

int save(Console &console, Plan &plan, const QString &path)
{
    MSPDIDataEngine engine(plan.document.get());
    engine.setProjectName(plan.name);
    engine.setProjectStart(plan.start);
    engine.setEvenings(plan.imported.evenings);
    Findings findings;
    if (path.isEmpty()) {
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        engine.exportTo(bytes);
        collect(engine.findings(), path, findings);
        console.list(plan.file, findings);
        return console.write(bytes.data()) ? Console::Done : Console::CannotWrite;
    }
    const QFileInfo info(path);
    if (info.exists() && (!info.isFile() || !console.options().force)) {
        console.error(t("%1: exists already and stays as it is").arg(path),
                      info.isFile() ? t("--force replaces it") : t("give a file name"));
        return Console::CannotWrite;
    }
    const bool isWritten = engine.exportFile(path);
    collect(engine.findings(), path, findings);
    console.list(path, findings);
    return isWritten ? Console::Done : Console::CannotWrite;
}
}
