#include "support/xmltext.h"
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// Whether the text is digits alone, and few enough for any of them to fit; ten digits may fit.
template <int mostDigits>
bool readDigits(const char *data, int size, quint64 &number)
{
    if (size < 1 || size > mostDigits)
        return false;
    number = 0;
    for (int i = 0; i < size; ++i) {
        const uint digit = uint(uchar(data[i])) - '0';
        if (digit > 9)
            return false;
        number = number * 10 + digit;
    }
    return true;
}

constexpr int shortDigits = 9;
constexpr int momentDigits = 10;

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
    quint64 number = 0;
    return readDigits<shortDigits>(m_data, m_size, number) ? qint32(number) : toString().toInt();
}

quint32 XmlText::toUInt() const
{
    quint64 number = 0;
    const bool isRead =
        readDigits<momentDigits>(m_data, m_size, number) && number <= std::numeric_limits<quint32>::max();
    return isRead ? quint32(number) : toString().toUInt();
}

namespace {

// Whether all of the text is one; then it is finite, too.
bool readPlainDecimal(const char *data, int size, double &number)
{
    if (!isPlainDecimal(data, size))
        return false;
    const auto [end, fault] = std::from_chars(data, data + size, number);
    return fault == std::errc() && end == data + size;
}
}

bool XmlText::isPlainNumber() const
{
    double number = 0;
    return readPlainDecimal(m_data, m_size, number);
}

double XmlText::toDouble() const
{
    quint64 digits = 0;
    if (readDigits<shortDigits>(m_data, m_size, digits))
        return double(digits);
    double plain = 0;
    if (readPlainDecimal(m_data, m_size, plain))
        return plain;
    bool isNumber = false;
    const double number = toString().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0;
}

bool XmlText::operator==(const char *text) const
{
    return std::strlen(text) == size_t(m_size) && std::memcmp(m_data, text, size_t(m_size)) == 0;
}

namespace {

using Words = std::array<quint64, 2>;

// A text of a few bytes, as slack and names of resources are, stands in many records: those that were read
// last exist once.
QString shortText(const char *data, int size)
{
    struct Known
    {
        Words words = {};
        int size = 0;
        QString text;
    };
    constexpr int bits = 10;
    static std::array<Known, 1 << bits> known;
    Words words = {};
    std::memcpy(words.data(), data, size_t(size));
    Known &one = known[size_t(((words[0] ^ words[1] * 31) * 0x9e3779b97f4a7c15ULL) >> (64 - bits))];
    if (one.words != words || one.size != size)
        one = {words, size, QString::fromUtf8(data, size)};
    return one.text;
}
}

void xmltext::read(const XmlText &text, QString &value)
{
    if (text.isEmpty())
        return;
    value = text.size() <= int(sizeof(Words)) ? shortText(text.data(), text.size()) : text.toString();
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
