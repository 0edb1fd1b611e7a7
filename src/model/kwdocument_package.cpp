// The document as a package: a zip archive of XML files.
#include "engine/record/taskindex.h"
#include "kwfilepathmanager.h"
#include "kwtemporarydir.h"
#include "kwversion.h"
#include "kwzip.h"
#include "model/kwdocument_xml.h"
#include "model/loadcheck.h"
#include "model/taskscan.h"
#include "runinglog.h"
#include "support/kwlimits.h"
#include "support/longwork.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include "support/xmlsink.h"
#include "support/xmltree.h"
#include "support/ziprules.h"
#include "support/zonescope.h"
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <climits>
#include <map>
#include <memory>

QList<double> documentxml::heightsOfWrittenTasks(const KWDocument &document)
{
    QList<double> heights = document.rowColumnData()->rowHeights();
    for (int pos = qMin(document.taskCount(), heights.size()) - 1; pos >= 0; --pos) {
        if (document.taskList().at(pos)->isEmpty())
            heights.removeAt(pos);
    }
    return heights;
}

namespace {

constexpr char documentFile[] = "document.xml";
constexpr char pageFile[] = "page/page.xml";
constexpr char relationsFile[] = "rels/page_rels.xml";
constexpr char zoneFile[] = "media/timezone"; // the zone's name and a line end
constexpr char nameFile[] = "media/name";     // the plan's, likewise
constexpr int maxNameUnits = 512;

QString latin1(const char *text)
{
    return QString::fromLatin1(text);
}

bool isPackageName(const QString &path)
{
    return path.endsWith(QLatin1String(".kwpx"));
}

bool refuse(const char *what, const QString &path, const QString &why)
{
    RuningLog::log(latin1(what) + path + QLatin1String(": ") + why);
    return false;
}

// The folder that a package is put together or taken apart in; it is removed with the object.
class PackageFolder
{
public:
    explicit PackageFolder(const QStringList &subFolders)
    {
        if (m_usual.isValid()) {
            m_path = m_usual.path();
            RuningLog::log(QLatin1String("Save QTemporaryDir information. ") + m_path);
        } else {
            m_fallback = std::make_unique<KWTemporaryDir>();
            m_path = m_fallback->path();
            RuningLog::log(QLatin1String("Save templateFolder information. ") + m_path);
        }
        if (m_path.isEmpty())
            return;
        if (!m_path.endsWith(QLatin1Char('/')))
            m_path += QLatin1Char('/');
        const QString media = m_path + QLatin1String("media");
        if (!QDir().mkpath(media))
            RuningLog::log(QLatin1String("Create Folder Failed. ") + media);
        for (const QString &folder : subFolders)
            QDir().mkpath(m_path + folder);
        KWDocument::s_mediaPath = media + QLatin1Char('/');
    }
    bool isValid() const { return !m_path.isEmpty(); }
    QString path() const { return m_path; } // ends with "/"
    QString file(const char *name) const { return m_path + latin1(name); }

private:
    QTemporaryDir m_usual;
    std::unique_ptr<KWTemporaryDir> m_fallback;
    QString m_path;
};

// Writes a file through a sink; false, with a line in the log, when the file does not hold all of it.
template <typename Write>
bool writeXml(const QString &path, Write &&write)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return refuse("Package not written: ", path, file.errorString());
    StreamSink sink(file);
    write(sink);
    const bool isWhole = sink.finish() && file.flush() && file.error() == QFileDevice::NoError;
    return isWhole || refuse("Package not written: ", path, file.errorString());
}

// Elements that others have added to a DOM, with attributes in the order of their names: a DOM keeps them in
// an order that differs from one process to the next.
void writeElement(StreamSink &sink, const QDomElement &element)
{
    const QByteArray name = element.tagName().toUtf8();
    sink.open(name.constData());
    std::map<QByteArray, QString> attributes;
    const QDomNamedNodeMap map = element.attributes();
    for (int i = 0; i < map.count(); ++i)
        attributes.emplace(map.item(i).toAttr().name().toUtf8(), map.item(i).toAttr().value());
    for (const auto &[key, value] : attributes)
        sink.attribute(key.constData(), value);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        writeElement(sink, child);
    sink.close();
}

// The elements that are added live as long as their document.
QDomElement newRelations()
{
    static QDomDocument document;
    document = QDomDocument();
    const QDomElement root = document.createElement(QStringLiteral("Relationships"));
    document.appendChild(root);
    return root;
}

void writeEmptyPage(StreamSink &sink)
{
    sink.open("Page");
    sink.close();
}

bool writeLine(const QString &path, const QString &text)
{
    QFile file(path);
    const QByteArray line = text.toUtf8() + '\n';
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(line) == line.size() &&
        file.flush())
        return true;
    return refuse("Package not written: ", path, file.errorString());
}

// What is read of a package goes to the log when it is refused, and to the findings, by its place in the
// package.
bool refuseReading(Findings &findings, const QString &path, const QString &place, const QString &why)
{
    findings.add(Finding::Refused, place, why);
    return refuse("Package not read: ", path, why);
}

bool readXml(const QString &path, XmlTree &tree, Findings &findings)
{
    QString error;
    return tree.load(path, kwzip::maxEntryBytes, &error) ||
           refuseReading(findings, path, QFileInfo(path).fileName(), error);
}

// The tasks of a file that is read in parts, with a look at all its elements.
bool readTasks(const QString &path, XmlParts &parts, loadcheck::XmlLook &look, documentxml::ReadTasks &tasks)
{
    if (!parts.load(path, kwzip::maxEntryBytes, "TaskList") || !parts.root().is("Document"))
        return false;
    taskxml::FontMemo memo;
    TaskScan scan;
    return look.lookAtElements(parts.root(), [&](const auto &visit) {
        const TreeSource nothingToSee{pugi::xml_node()};
        const auto take = [&](const char *at) {
            auto task = std::make_unique<KWTaskInfo>();
            const char *const end = scan.read(at, *task);
            if (end) {
                tasks.push_back(std::move(task));
                visit(nothingToSee);
            }
            return end;
        };
        return parts.forEach(take, [&](const TreeSource &element) {
            TreeSource source = element;
            tasks.push_back(std::make_unique<KWTaskInfo>());
            taskxml::read(source, *tasks.back(), &memo);
            visit(element);
        });
    });
}

// What unpacking left behind, checked once more: the archive may have been unpacked by another library's
// code.
bool isWithinLimits(const QString &folder, QString *error)
{
    kwzip::Inventory inventory(LLONG_MAX);
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo info = entries.fileInfo();
        if (info.isSymLink() || (!info.isDir() && !info.isFile())) {
            *error = path + QLatin1String(": neither a plain file nor a plain folder");
            return false;
        }
        QByteArray name = path.mid(folder.size()).toUtf8();
        if (info.isDir())
            name += '/';
        const qint64 bytes = info.isDir() ? 0 : info.size();
        *error = inventory.add({name, bytes, bytes});
        if (!error->isEmpty())
            return false;
    }
    return true;
}

// A task hidden below one that is not there could never be shown.
void showLostTasks(KWDocument &document, Findings &findings)
{
    const TaskIndex &index = document.taskIndex();
    for (int pos = 0; pos < document.taskCount(); ++pos) {
        KWTaskInfo &task = *document.getTaskInfoAt(pos);
        if (task.HideID == 0 || index.contains(task.HideID))
            continue;
        findings.add(Finding::Changed, KW_TEXT("task %1").arg(pos + 1),
                     KW_TEXT("it is hidden below the task with ID %1, which does not exist: shown")
                         .arg(task.HideID.value()));
        task.HideID = 0;
    }
}

// A package that has been unpacked and found sound, before anything of it is taken over.
class UnpackedPackage
{
public:
    UnpackedPackage()
        : m_folder({QStringLiteral("pages"), QStringLiteral("rels")})
    {
    }

    QString folder() const { return m_folder.path(); }
    QString file(const char *name) const { return m_folder.file(name); }

    bool unpack(const QString &path, Findings &findings)
    {
        if (!m_folder.isValid())
            return refuseReading(findings, path, QString(), KW_TEXT("no temporary folder"));
        if (!KWZip::unZip(path, m_folder.path()))
            return refuseReading(findings, path, QString(), KWZip::lastError());
        QString error;
        return isWithinLimits(m_folder.path(), &error) || refuseReading(findings, path, QString(), error);
    }

    // Relationships and page may be missing, but what is there must be sound.
    bool readSmallParts(Findings &findings)
    {
        for (const char *name : {relationsFile, pageFile}) {
            XmlTree tree;
            if (!QFileInfo::exists(file(name)))
                continue;
            if (!readXml(file(name), tree, findings))
                return false;
            int entries = 0;
            for (TreeSource one = tree.root().firstChild(); !one.isNull(); one = one.nextSibling())
                ++entries;
            if (entries > 0)
                m_passedOver.add(Finding::Lost, latin1(name),
                                 KW_TEXT("%1 elements are passed over").arg(entries));
        }
        return true;
    }

    // The zone that the package names; empty when it names none, or nothing that could be one.
    QString zone()
    {
        constexpr qint64 longest = 100;
        QFile entry(file(zoneFile));
        if (!entry.open(QIODevice::ReadOnly))
            return {};
        const QByteArray name = entry.read(longest).trimmed();
        if (ZoneScope::isName(name))
            return QString::fromLatin1(name);
        m_passedOver.add(Finding::Lost, latin1(zoneFile),
                         KW_TEXT("this is no name of a time zone: passed over"));
        return {};
    }

    // What the package says that people call the plan.
    QString planName()
    {
        QFile entry(file(nameFile));
        if (!entry.open(QIODevice::ReadOnly))
            return {};
        constexpr qint64 mostBytes = 4 * maxNameUnits;
        const QByteArray line = entry.read(mostBytes + 1);
        const QString name = QString::fromUtf8(line).trimmed();
        if (line.size() <= mostBytes && name.size() <= maxNameUnits && name == name.simplified() &&
            xmlguard::clean(name) == name && !name.contains(QChar::ReplacementCharacter))
            return name;
        m_passedOver.add(Finding::Lost, latin1(nameFile),
                         KW_TEXT("this is no name on one line: passed over"));
        return {};
    }

    // What the package holds that no document takes.
    const Findings &passedOver()
    {
        const QStringList known{latin1(documentFile), latin1(pageFile), latin1(relationsFile),
                                latin1(zoneFile), latin1(nameFile)};
        QStringList unknown;
        QDirIterator entries(m_folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString name = entries.next().mid(m_folder.path().size());
            if (!known.contains(name))
                unknown.append(name);
        }
        unknown.sort();
        for (const QString &name : qAsConst(unknown))
            m_passedOver.add(Finding::Lost, name, KW_TEXT("this part of the package is passed over"));
        return m_passedOver;
    }

private:
    PackageFolder m_folder;
    Findings m_passedOver;
};
}

// ---- Saving -----------------------------------------------------------------------------------------------

bool KWDocument::saveDocument(const QString &folder) const
{
    return writeXml(folder + latin1(documentFile),
                    [this](StreamSink &sink) { documentxml::write(sink, *this); });
}

bool KWDocument::saveTo(const QString &path, bool isBackup, bool updatePath)
{
    const PackageFolder folder({QStringLiteral("page"), QStringLiteral("rels")});
    if (!folder.isValid())
        return refuse("Package not written: ", path, KW_TEXT("no temporary folder"));
    s_relsNode = newRelations();
    const QString name = xmlguard::clean(PlanName).simplified().left(maxNameUnits);
    // The relationships last, so that they hold what was added while the rest was written.
    const bool isWritten =
        writeXml(folder.file(pageFile), writeEmptyPage) && saveDocument(folder.path()) &&
        (!ZoneScope::isName(TimeZone.toLatin1()) || writeLine(folder.file(zoneFile), TimeZone)) &&
        (name.isEmpty() || writeLine(folder.file(nameFile), name)) &&
        writeXml(folder.file(relationsFile), [](StreamSink &sink) { writeElement(sink, s_relsNode); });
    if (!isWritten)
        return false;
    if (!KWZip::zip(path, folder.path()))
        return refuse("Package not written: ", path, KWZip::lastError());
    if (isBackup)
        return true;
    if (updatePath)
        setFilePath(path, QString());
    setModified(false);
    return true;
}

bool KWDocument::save(const QString &path)
{
    const QString target = path.isEmpty() ? filePath() : path;
    return isPackageName(target) && saveTo(target, false, true);
}

bool KWDocument::saveToKWGT(const QString &path, bool isBackup, bool updatePath)
{
    return saveTo(path.isEmpty() ? filePath() : path, isBackup, updatePath);
}

bool KWDocument::saveBackup()
{
    if (backupName().isEmpty())
        return false;
    if (!isModified())
        return true;
    return saveToKWGT(KWFilePathManager::configDir(QStringLiteral("autosave")) + QLatin1Char('/') +
                          backupName() + QLatin1String(".kwpx"),
                      true, true);
}

// ---- Loading ----------------------------------------------------------------------------------------------

void KWDocument::loadFromFile(const QString &path)
{
    if (isPackageName(path))
        loadFromKWGT(path);
}

bool KWDocument::loadFromKWGT(const QString &path)
{
    UnpackedPackage package;
    constexpr unsigned int version = 0;
    m_loadFindings.clear();
    if (!package.unpack(path, m_loadFindings) || !package.readSmallParts(m_loadFindings) ||
        !loadDocument(package.folder(), version))
        return false;
    TimeZone = package.zone();
    PlanName = package.planName();
    m_loadFindings.append(package.passedOver());
    setFilePath(path, QString());
    return true;
}

bool KWDocument::loadDocument(const QString &folder, unsigned int)
{
    const QString path = folder + latin1(documentFile);
    const auto takeOver = [this](TreeSource root, loadcheck::XmlLook &look, documentxml::ReadTasks *tasks) {
        m_loadedVersion = versionOf(root.text("Version").toString());
        m_actions.prepareReplacement();
        const bool wasModified = isModified();
        documentxml::read(root, *this, tasks);
        m_storedMidnights = loadcheck::midnights(root);
        look.lookAtLists(root, *this);
        loadcheck::lookAtDocument(root, *this, m_loadFindings);
        showLostTasks(*this, m_loadFindings);
        setModified(wasModified);
        return true;
    };
    m_loadFindings.clear();
    {
        XmlParts parts;
        documentxml::ReadTasks tasks;
        loadcheck::XmlLook look(m_loadFindings);
        if (readTasks(path, parts, look, tasks))
            return takeOver(parts.root(), look, &tasks);
    }
    if (LongWork::wasGivenUp())
        return refuseReading(m_loadFindings, folder, latin1(documentFile), KW_TEXT("given up"));
    // As a whole it may be read all the same, and if not, it is told where.
    m_loadFindings.clear();
    XmlTree tree;
    if (!readXml(path, tree, m_loadFindings))
        return false;
    TreeSource root = tree.root();
    if (!root.is("Document"))
        return refuseReading(m_loadFindings, folder, latin1(documentFile),
                             KW_TEXT("the root element is not \"Document\""));
    loadcheck::XmlLook look(m_loadFindings);
    look.lookAtElements(root);
    return takeOver(root, look, nullptr);
}

KWVersion KWDocument::versionOf(const QString &text)
{
    const KWVersion version(text);
    return version.major() > 0 && version.minor() >= 0 ? version
                                                       : KWVersion(latin1(documentxml::currentVersion));
}

bool KWDocument::loadStructure(const QString &path)
{
    if (!isPackageName(path))
        return false;
    loadFromFile(path);
    return loadStructureFromDDX(path);
}

bool KWDocument::loadStructureFromDDX(const QString &path)
{
    UnpackedPackage package;
    XmlTree document;
    XmlTree page;
    Findings findings; // those of loading stay
    if (!package.unpack(path, findings) || !readXml(package.file(documentFile), document, findings))
        return false;
    TreeSource root = document.root();
    m_loadedVersion = versionOf(root.text("Version").toString());
    return readXml(package.file(pageFile), page, findings);
}
