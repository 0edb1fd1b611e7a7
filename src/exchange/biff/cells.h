#pragma once
#include "exchange/biff/text.h"
#include <new>
#include <optional>
#include <utility>

// What a cell holds, and the packed numbers of the format.
namespace biff {

// Sixteen bytes: there may be millions.
class Value
{
public:
    enum Kind : quint8 { undefined, integer, real, narrowText, wideText };

    Value() {}
    Value(const Value &other)
        : m_kind(other.m_kind)
    {
        if (isText())
            new (&m_content.text) Text(other.m_content.text);
        else
            m_content.number = other.m_content.number;
    }
    Value(Value &&other) noexcept { swap(other); }
    Value &operator=(Value other) noexcept
    {
        swap(other);
        return *this;
    }
    ~Value() { clear(); }

    static Value ofInteger(qint32 number)
    {
        Value value;
        value.m_kind = integer;
        value.m_content.integer = number;
        return value;
    }
    static Value ofReal(double number)
    {
        Value value;
        value.m_kind = real;
        value.m_content.number = number;
        return value;
    }
    // `kind` tells how the text was given, which its characters need not show.
    static Value ofText(Text text, Kind kind)
    {
        Value value;
        if (!text.isNull()) {
            value.m_kind = kind;
            new (&value.m_content.text) Text(std::move(text));
        }
        return value;
    }

    Kind kind() const { return m_kind; }
    bool isText() const { return m_kind == narrowText || m_kind == wideText; }
    // 0, and null, for every other kind.
    qint32 asInteger() const { return m_kind == integer ? m_content.integer : 0; }
    double asReal() const { return m_kind == real ? m_content.number : 0; }
    const Text &asText() const
    {
        static const Text null;
        return isText() ? m_content.text : null;
    }
    void clear()
    {
        if (isText())
            m_content.text.~Text();
        m_kind = undefined;
    }

private:
    void swap(Value &other) noexcept
    {
        // A text is one pointer and moves as its bytes do.
        std::swap(m_kind, other.m_kind);
        std::swap(m_content.bits, other.m_content.bits);
    }

    union Content {
        Content()
            : bits(0)
        {
        }
        ~Content() {}
        quint64 bits;
        qint32 integer;
        double number;
        Text text;
    };
    Content m_content;
    Kind m_kind = undefined;
};

// A packed number: 30 bits of an integer or of the upper end of a double, perhaps of a hundredfold.
Value unpackRk(quint32 packed);
// Only what is finite and comes back exactly.
std::optional<quint32> packRk(const Value &number);

// "#N/A" and the like; null for a code that is none.
Text errorText(quint8 code);
}
