#include "exchange/XLSXDataBase.h"
#include "exchange/xlsxsheet.h"
#include "support/xmlguard.h"

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
