#include "kwpxfile.h"
#include "console.h"
#include "edits/planzone.h"
#include "exchange/csvplan.h"
#include "kwzip.h"
#include "machine.h"
#include "model/kwtaskinfo.h"
#include "planfile.h"
#include "support/findings.h"
#include "support/kwclock.h"
#include "support/zonescope.h"
#include "texts.h"
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimeZone>
#include <QUuid>
#include <QtEndian>
#include <cstring>

namespace kwpxfile {

namespace {

bool namesCalendar(const Options &options)
{
    return !options.calendarFile.isEmpty() || !options.days.isEmpty() || !options.hours.isEmpty() ||
           !options.holidays.isEmpty() || !options.start.isEmpty() || !options.resourcesFile.isEmpty() ||
           !options.assignmentsFile.isEmpty();
}
}

namespace {

// Whether two zones show the same times all year: UTC has many names.
bool areAlike(const QByteArray &a, const QByteArray &b)
{
    const QTimeZone first(a), second(b);
    for (int month = 1; month <= 12; ++month) {
        const QDateTime moment(QDate(KWClock::now().date().year(), month, 1), QTime(12, 0), Qt::UTC);
        if (!first.isValid() || !second.isValid() ||
            first.offsetFromUtc(moment) != second.offsetFromUtc(moment))
            return false;
    }
    return true;
}

// Works in the zone that the package names, unless the user names one. Whether that is another one than
// before.
bool enterZone(Console &console, const QString &path, const KWDocument &document, Findings &findings)
{
    const QByteArray named = document.TimeZone.toLatin1();
    if (named.isEmpty() || !console.options().zone.isEmpty() || areAlike(named, ZoneScope::current()))
        return false;
    if (!ZoneScope::set(named)) {
        findings.add(QString(),
                     t("its time zone %1 is not known on this machine: read in %2")
                         .arg(document.TimeZone, QString::fromLatin1(ZoneScope::current())),
                     t("--tz ZONE names another one; the package tzdata brings them"));
        return false;
    }
    console.note(t("%1: in its own time zone, %2; --tz local shows it in that of this machine")
                     .arg(path, document.TimeZone));
    return true;
}

// A plan that is saved keeps its zone, or gets the one that was named. Without either its moments are looked
// at.
void nameZone(Console &console, KWDocument &document, Findings &findings)
{
    if (!console.options().zone.isEmpty() || !document.TimeZone.isEmpty()) {
        if (!console.options().zone.isEmpty())
            document.TimeZone = QString::fromLatin1(ZoneScope::current());
        return;
    }
    constexpr int mostNamed = 4;
    const QList<QByteArray> better = planzone::better(document);
    if (better.isEmpty()) {
        document.TimeZone = QString::fromLatin1(ZoneScope::current());
        return;
    }
    QStringList names;
    for (const QByteArray &zone : better.mid(0, mostNamed))
        names.append(QString::fromLatin1(zone));
    findings.add(
        Finding::Read, QString(),
        t("its tasks do not begin and end on working hours in %1, but do in %2")
                .arg(QString::fromLatin1(ZoneScope::current()), names.join(QLatin1String(", "))) +
            (better.size() > mostNamed ? t(" and %1 more zones").arg(better.size() - mostNamed) : QString()),
        t("written in another zone? Try --tz %1").arg(names.first()));
}
}

namespace {

// Numbers and texts one after the other, in the same bytes on every machine.
class Facts
{
public:
    Facts() { m_bytes.reserve(2 * pieceBytes); }
    void add(quint32 number)
    {
        const quint32 bytes = qToLittleEndian(number);
        m_bytes.append(reinterpret_cast<const char *>(&bytes), sizeof(bytes));
    }
    void add(double number)
    {
        quint64 bits = 0;
        std::memcpy(&bits, &number, sizeof(bits));
        add(quint32(bits));
        add(quint32(bits >> 32));
    }
    void add(const QString &text)
    {
        add(quint32(text.size()));
        for (const QChar sign : text) {
            const quint16 unit = qToLittleEndian(sign.unicode());
            m_bytes.append(reinterpret_cast<const char *>(&unit), sizeof(unit));
        }
        if (m_bytes.size() > pieceBytes)
            flush();
    }
    QByteArray digest()
    {
        flush();
        return m_hash.result();
    }

private:
    static constexpr int pieceBytes = 64 << 10;

    void flush()
    {
        m_hash.addData(m_bytes);
        m_bytes.resize(0);
    }

    QCryptographicHash m_hash{QCryptographicHash::Sha1};
    QByteArray m_bytes;
};

// The same for the same plan: a UUID of its tasks.
QString idOf(const Plan &plan)
{
    Facts facts;
    facts.add(plan.start);
    for (int pos = 0; pos < plan.taskCount(); ++pos) {
        const KWTaskInfo &task = *plan.task(pos);
        for (const quint32 number :
             {quint32(task.ID), task.ParentID, quint32(task.Level), task.Start, task.Finish,
              quint32(task.DurationUnits), quint32(task.Milestone), quint32(task.CriticalPath),
              task.LateStart, task.LateFinish, quint32(task.Predecessors.size())})
            facts.add(number);
        for (const quint32 id : task.Predecessors)
            facts.add(id);
        facts.add(task.Percent);
        for (const QString &text : {task.Name, task.Resources, task.Notes})
            facts.add(text);
    }
    constexpr int idBytes = 16;
    QByteArray bytes = facts.digest().left(idBytes);
    bytes[6] = char((bytes.at(6) & 0x0F) | 0x50); // version 5
    bytes[8] = char((bytes.at(8) & 0x3F) | 0x80); // the usual variant
    return QUuid::fromRfc4122(bytes).toString();
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

namespace {

// All but the numbers of the outline.
void describeTasks(Plan &plan)
{
    KWDocument &document = *plan.document;
    ImportedPlan &imported = plan.imported;
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
}

int load(const QString &path, Console &console, Plan &plan, Findings &findings)
{
    if (refusesCalendar(console, path))
        return Console::WrongUse;
    KWDocument &document = *plan.document;
    if (!document.loadFromKWGT(path)) {
        const Finding why = document.loadFindings().list().value(0);
        const QString words = why.place.isEmpty()
                                  ? texts::said(why.what)
                                  : texts::said(why.place) + QLatin1String(": ") + texts::said(why.what);
        console.error(
            t("%1: not a plan: %2").arg(path, words.isEmpty() ? t("its XML cannot be read") : words),
            t("'kwgantt recover' lists autosave copies"));
        return Console::CannotRead;
    }
    Findings ofZone;
    // The dates of exceptions are told from moments, and nothing else that is read.
    if (enterZone(console, path, document, ofZone) && !document.calendars.isEmpty())
        document.loadFromKWGT(path);
    nameZone(console, document, ofZone);
    findings.append(document.loadFindings());
    findings.append(ofZone);
    plan.isPackage = true;
    plan.projectName = document.PlanName;
    plan.majorUnit = document.MajorUnit;
    plan.minorUnit = document.MinorUnit;
    describeTasks(plan);
    return Console::Done;
}

void describe(Plan &plan)
{
    plan.imported.codes = csvplan::outlineCodes(*plan.document);
    describeTasks(plan);
}

bool save(Console &console, Plan &plan, const QString &path, bool overwrite)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        // A device or a pipe is written to, not replaced.
        const QTemporaryDir folder;
        const QString whole = folder.filePath(QStringLiteral("plan.kwpx"));
        QByteArray bytes;
        QString error;
        constexpr qint64 mostBytes = 1LL << 30;
        if (save(console, plan, whole, true) && planfile::readBytes(whole, mostBytes, bytes, error))
            return console.replaceFile(path, bytes, true);
        return false;
    }
    if (info.isDir()) {
        console.error(t("%1: cannot be written: it is a folder").arg(path), t("give a file name"));
        return false;
    }
    if (info.exists() && !overwrite) {
        console.error(t("%1: exists already and stays as it is").arg(path), t("--force replaces it"));
        return false;
    }
    KWDocument &document = *plan.document;
    document.PlanName = plan.projectName;
    if (plan.isPackage) {
        // The units of the chart were changed to count slack.
        document.MajorUnit = plan.majorUnit;
        document.MinorUnit = plan.minorUnit;
    } else {
        document.TimeZone = QString::fromLatin1(ZoneScope::current());
        // The same plan gives the same bytes.
        document.DocGuid = idOf(plan);
    }
    if (!plan.lock.isUnchanged()) {
        console.error(t("%1: changed meanwhile by another program; nothing was written").arg(path),
                      t("make the change again"));
        return false;
    }
    if (document.saveTo(path, false, true))
        return true;
    console.error(t("%1: cannot be written: %2").arg(path, texts::said(KWZip::lastError())),
                  t("the folder must exist and have room; nothing was changed"));
    return false;
}
}
