// The shared strings of an unpacked package.
#include "exchange/XLSXDataBase.h"
#include "exchange/xlsxsheet.h"
#include <QDir>

QString XLSXDataBase::withSlash(const QString &folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

bool XLSXDataBase::praserShareStrXml(const QString &folder)
{
    m_sharedStrings.clear();
    m_stringIndex.clear();
    const QString parts = withSlash(folder) + QLatin1String("xl/");
    QString name = QStringLiteral("sharedStrings.xml");
    // Not every program writes the name in these cases; filters ignore them. Looked for first as it is
    // written: a folder that cannot be listed looks empty, and the plan would lose its texts.
    if (!QFile::exists(parts + name))
        name = QDir(parts).entryList({name}, QDir::Files).value(0);
    // Programs that write inline strings only leave the part out.
    if (name.isEmpty())
        return true;
    QString error;
    const QByteArray part = xlsx::readPart(parts + name, &error);
    if (!error.isEmpty() || !xlsx::readSharedStrings(part, m_sharedStrings, &error)) {
        m_findings.add(name, error, QStringLiteral("not read"));
        return false;
    }
    return true;
}
