#include "model/kwdocument_options.h"
#include <QLocale>
#include <cmath>
#include <limits>

QString optionsxml::text(bool value)
{
    return value ? QStringLiteral("1") : QStringLiteral("0");
}

QString optionsxml::text(qint32 value)
{
    return QString::number(value);
}

QString optionsxml::text(quint32 value)
{
    return QString::number(value);
}

QString optionsxml::text(double value)
{
    return QString::number(std::isfinite(value) ? value : 0.0, 'g', QLocale::FloatingPointShortest);
}

QString optionsxml::text(const QList<quint32> &values)
{
    QStringList parts;
    parts.reserve(values.size());
    for (const quint32 value : values)
        parts.append(QString::number(value));
    return parts.join(QLatin1Char(';'));
}

QString optionsxml::workDaysText(const KWDocument &document)
{
    QStringList flags;
    for (const bool isWorking : document.WorkDay)
        flags.append(text(isWorking));
    return flags.join(QLatin1Char(';'));
}

void optionsxml::read(const XmlText &text, bool &value)
{
    value = text.toUInt() != 0;
}

void optionsxml::read(const XmlText &text, qint32 &value)
{
    // One that fits no int would be saved as a negative number, which reads as 0 the next time.
    constexpr quint32 greatest = std::numeric_limits<qint32>::max();
    const quint32 number = text.toUInt();
    value = number <= greatest ? qint32(number) : 0;
}

void optionsxml::read(const XmlText &text, quint32 &value)
{
    value = text.toUInt();
}

void optionsxml::read(const XmlText &text, double &value)
{
    value = text.toDouble();
}

// Days without a flag stay as they were, flags beyond the week are left aside.
void optionsxml::readWorkDays(const XmlText &text, KWDocument &document)
{
    int day = 0;
    text.split(';', Qt::KeepEmptyParts, [&](const XmlText &flag) {
        if (day < int(std::size(document.WorkDay)))
            document.WorkDay[day++] = flag == "1";
    });
}
