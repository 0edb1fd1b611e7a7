#include "exchange/XLSXDataBase.h"
#include "exchange/xlsxsheet.h"
#include "support/said.h"
#include "support/xmlguard.h"
#include <QDir>

QStringList XLSXDataBase::s_xmlNameList;

namespace {

constexpr int maxNameUnits = 31;

// What a program takes as a sheet's name; may be empty.
QString cleanedName(const QString &name)
{
    const QLatin1String forbidden("[]:*?/\\");
    QString cleaned;
    for (const QChar unit : name) {
        if (unit.unicode() >= 0x20 && !forbidden.contains(unit))
            cleaned += unit;
    }
    cleaned = xmlguard::clean(cleaned);
    // An apostrophe would be taken for a quote there.
    while (cleaned.startsWith(QLatin1Char('\'')))
        cleaned.remove(0, 1);
    return cleaned.trimmed();
}

// Cut without leaving half a pair of units, nor an apostrophe or a blank at the end.
QString cut(const QString &name, int units)
{
    QString shorter = name.left(units);
    if (!shorter.isEmpty() && shorter.at(shorter.size() - 1).isHighSurrogate())
        shorter.chop(1);
    while (shorter.endsWith(QLatin1Char('\'')) || shorter.endsWith(QLatin1Char(' ')))
        shorter.chop(1);
    return shorter;
}

bool isTaken(const QStringList &names, const QString &name)
{
    return names.contains(name, Qt::CaseInsensitive);
}
}

QStringList XLSXDataBase::sheetNames()
{
    QStringList names;
    for (int sheet = 0; sheet < sheetCount; ++sheet) {
        QString name = cut(cleanedName(s_xmlNameList.value(sheet)), maxNameUnits);
        if (name.isEmpty())
            name = QStringLiteral("Sheet%1").arg(sheet + 1);
        const QString wanted = name;
        for (int n = 2; isTaken(names, name); ++n) {
            const QString suffix = QStringLiteral(" (%1)").arg(n);
            name = cut(wanted, maxNameUnits - suffix.size()) + suffix;
        }
        names.append(name);
    }
    return names;
}

int XLSXDataBase::convertCharToNum(const QString &reference)
{
    const QByteArray bytes = reference.toUtf8();
    return xlsx::columnOf({bytes.constData(), std::size_t(bytes.size())});
}

XLSXDataBase::XLSXDataBase(KWDocument *document)
    : m_document(document)
{
}

XLSXDataBase::~XLSXDataBase() = default;

// ---- Shared strings of an unpacked package ----------------------------------------------------------------

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
    int oddReferences = 0;
    if (!error.isEmpty() || !xlsx::readSharedStrings(part, m_sharedStrings, &error, &oddReferences)) {
        m_findings.add(name, error, KW_TEXT("not read"));
        return false;
    }
    xlsx::tellOddReferences(m_findings, name, oddReferences);
    return true;
}
