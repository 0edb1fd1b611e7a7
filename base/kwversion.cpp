#include "kwversion.h"
#include <QStringList>

namespace {

QString defaultLanguage()
{
    return QStringLiteral("en");
}

QString &language()
{
    static QString instance = defaultLanguage();
    return instance;
}

// -1 for anything but plain digits; toInt alone would take signs and blanks.
int numberFromDigits(const QString &text)
{
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return -1;
    }
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? number : -1;
}
}

KWVersion::KWVersion(const QString &text)
{
    const QStringList numbers = text.trimmed().split(QLatin1Char('.'));
    if (numbers.size() < 2)
        return;
    const int major = numberFromDigits(numbers[0]);
    const int minor = numberFromDigits(numbers[1]);
    if (major < 0 || minor < 0)
        return;
    m_major = major;
    m_minor = minor;
}

QString KWVersion::toString() const
{
    return QStringLiteral("%1.%2").arg(m_major).arg(m_minor);
}

QString KWVersion::langBrev()
{
    return language();
}

void KWVersion::setLangBrev(const QString &abbreviation)
{
    language() = abbreviation.isEmpty() ? defaultLanguage() : abbreviation;
}
