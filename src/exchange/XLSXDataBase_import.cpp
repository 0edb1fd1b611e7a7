// The shared strings of an unpacked package.
#include "exchange/XLSXDataBase.h"
#include "exchange/xlsxsheet.h"
#include <QFileInfo>

bool XLSXDataBase::praserShareStrXml(const QString &folder)
{
    m_sharedStrings.clear();
    m_stringIndex.clear();
    const QString name = QStringLiteral("sharedStrings.xml");
    const QString path =
        folder + (folder.endsWith(QLatin1Char('/')) ? "" : "/") + QLatin1String("xl/") + name;
    // Programs that write inline strings only leave the part out.
    if (!QFileInfo::exists(path))
        return true;
    QString error;
    const QByteArray part = xlsx::readPart(path, &error);
    if (!error.isEmpty() || !xlsx::readSharedStrings(part, m_sharedStrings, &error)) {
        m_findings.add(name, error, QStringLiteral("not read"));
        return false;
    }
    return true;
}
