#include "support/xmltext.h"
#include <charconv>
#include <cmath>

namespace {

// Nine digits always fit.
bool isShortNumber(const char *data, int size)
{
    if (size < 1 || size > 9)
        return false;
    for (int i = 0; i < size; ++i) {
        if (data[i] < '0' || data[i] > '9')
            return false;
    }
    return true;
}

quint32 shortNumber(const char *data, int size)
{
    quint32 number = 0;
    for (int i = 0; i < size; ++i)
        number = number * 10 + quint32(data[i] - '0');
    return number;
}

// Whether both ways of reading agree on what is written: no blank, sign "+", word or hexadecimal number.
bool isPlainDecimal(const char *data, int size)
{
    if (size < 1)
        return false;
    const char last = data[size - 1];
    const char first = data[0] == '-' && size > 1 ? data[1] : data[0];
    return first >= '0' && first <= '9' && last >= '0' && last <= '9';
}
}

qint32 XmlText::toInt() const
{
    return isShortNumber(m_data, m_size) ? qint32(shortNumber(m_data, m_size)) : toString().toInt();
}

quint32 XmlText::toUInt() const
{
    return isShortNumber(m_data, m_size) ? shortNumber(m_data, m_size) : toString().toUInt();
}

double XmlText::toDouble() const
{
    if (isShortNumber(m_data, m_size))
        return shortNumber(m_data, m_size);
    if (isPlainDecimal(m_data, m_size)) {
        double number = 0;
        const auto [end, fault] = std::from_chars(m_data, m_data + m_size, number);
        if (fault == std::errc() && end == m_data + m_size)
            return std::isfinite(number) ? number : 0;
    }
    bool isNumber = false;
    const double number = toString().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0;
}

bool XmlText::operator==(const char *text) const
{
    return std::strlen(text) == size_t(m_size) && std::memcmp(m_data, text, size_t(m_size)) == 0;
}

void xmltext::read(const XmlText &text, QString &value)
{
    if (!text.isEmpty())
        value = text.toString();
}

void xmltext::read(const XmlText &text, qint16 &value)
{
    bool fits = false;
    const qint16 number = text.toString().toShort(&fits);
    if (fits)
        value = number;
}

void xmltext::read(const XmlText &text, qint32 &value)
{
    if (!text.isEmpty())
        value = text.toInt();
}

void xmltext::read(const XmlText &text, quint32 &value)
{
    if (!text.isEmpty())
        value = text.toUInt();
}

void xmltext::read(const XmlText &text, double &value)
{
    if (!text.isEmpty())
        value = text.toDouble();
}

void xmltext::read(const XmlText &text, bool &value)
{
    if (!text.isEmpty())
        value = text.toInt() != 0;
}

void xmltext::read(const XmlText &text, QList<quint32> &value)
{
    text.split(';', Qt::SkipEmptyParts, [&value](const XmlText &part) { value.append(part.toUInt()); });
}
