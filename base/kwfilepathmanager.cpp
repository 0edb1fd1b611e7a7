#include "kwfilepathmanager.h"
#include "xmlparser.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStandardPaths>

namespace {

QString &configRoot()
{
    static QString instance;
    return instance;
}

QString below(const QString &folder, const QString &name)
{
    return QDir::cleanPath(name.isEmpty() ? folder : folder + QLatin1Char('/') + name);
}

QString randomName(int length)
{
    static const char letters[] = "0123456789abcdefghijklmnopqrstuvwxyz";
    QString name;
    for (int i = 0; i < length; ++i)
        name += QLatin1Char(letters[QRandomGenerator::system()->bounded(36)]);
    return name;
}
}

QString KWFilePathManager::configDir(const QString &name)
{
    const QString root = configRoot().isEmpty()
                             ? QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
                             : configRoot();
    const QString folder = below(root, name);
    QDir().mkpath(folder);
    return folder;
}

QString KWFilePathManager::appConfigDir(const QString &name)
{
    return below(QCoreApplication::applicationDirPath() + QLatin1String("/Config"), name);
}

QString KWFilePathManager::configPath(const QString &fileName)
{
    return below(configDir(), fileName);
}

void KWFilePathManager::setConfigRoot(const QString &folder)
{
    configRoot() = folder.isEmpty() ? folder : QDir(folder).absolutePath();
}

bool KWFilePathManager::loadXmlFile(const QString &path, QDomDocument &document)
{
    return XmlParser::loadFile(path, document);
}

QString KWFilePathManager::shortRandName()
{
    return randomName(8);
}

QString KWFilePathManager::templatePathName()
{
    // Qt names no folder at all when the one of the environment is missing; the root is no place for files.
    const QString usual = QDir::tempPath();
    const QString folder = usual.isEmpty() ? configDir(QStringLiteral("temp")) : usual;
    QString path;
    do {
        path = below(folder, QLatin1String("kw-") + randomName(16));
    } while (QFileInfo::exists(path));
    return path;
}
