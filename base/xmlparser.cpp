#include "xmlparser.h"
#include "runinglog.h"
#include "support/atomicfile.h"
#include "support/kwlimits.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>

namespace {

bool refuse(const QString &path, const QString &what)
{
    RuningLog::log(QLatin1String("XML not read: ") + path + QLatin1String(": ") + what);
    return false;
}
}

bool XmlParser::loadFile(const QString &path, QDomDocument &document)
{
    // A pipe would block and a device never ends.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    if (file.size() > xmlguard::maxDomBytes)
        return refuse(path, KW_TEXT("too large"));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return refuse(path, file.errorString());
    QString error;
    if (!xmlguard::isSafe(bytes, &error))
        return refuse(path, error);

    QDomDocument parsed;
    int line = 0;
    if (!parsed.setContent(QString::fromUtf8(bytes), false, &error, &line))
        return refuse(path, QStringLiteral("line ") + QString::number(line) + QLatin1String(": ") + error);
    document = parsed;
    return true;
}

bool XmlParser::saveToFile(const QString &path, const QDomDocument &document, int indent)
{
    QString error;
    // The document writes control characters as they are, and no reader would take the file back.
    if (atomicfile::replace(path, xmlguard::clean(document.toString(indent)).toUtf8(), &error))
        return true;
    RuningLog::log(QLatin1String("XML not written: ") + path + QLatin1String(": ") + error);
    return false;
}
