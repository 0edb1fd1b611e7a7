#include "exchange/biff/cells.h"
#include <cmath>
#include <cstring>

using namespace biff;

namespace {

constexpr quint32 isHundredfold = 1;
constexpr quint32 isInteger = 2;
constexpr qint32 integerLimit = 1 << 29;

struct ErrorName
{
    quint8 code;
    const char *name;
};
constexpr ErrorName errorNames[] = {{0x00, "#NULL!"}, {0x07, "#DIV/0!"}, {0x0F, "#VALUE!"}, {0x17, "#REF!"},
                                    {0x1D, "#NAME?"}, {0x24, "#NUM!"},   {0x2A, "#N/A"}};
}

Value biff::unpackRk(quint32 packed)
{
    if (packed & isInteger) {
        const qint32 number = qint32(packed) >> 2;
        if (!(packed & isHundredfold))
            return Value::ofInteger(number);
        return number % 100 == 0 ? Value::ofInteger(number / 100) : Value::ofReal(number / 100.0);
    }
    const quint64 bits = quint64(packed & ~(isHundredfold | isInteger)) << 32;
    double number;
    std::memcpy(&number, &bits, sizeof number);
    return Value::ofReal(packed & isHundredfold ? number / 100 : number);
}

std::optional<quint32> biff::packRk(const Value &number)
{
    if (number.kind() == Value::integer) {
        const qint32 value = number.asInteger();
        if (value < -integerLimit || value >= integerLimit)
            return std::nullopt;
        return quint32(value) << 2 | isInteger;
    }
    const double value = number.asReal();
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    if (number.kind() != Value::real || !std::isfinite(value) || (bits & 0x3FFFFFFFFull) != 0)
        return std::nullopt;
    return quint32(bits >> 32);
}

Text biff::errorText(quint8 code)
{
    for (const ErrorName &error : errorNames) {
        if (error.code == code)
            return Text::fromLatin1(error.name, std::strlen(error.name));
    }
    return {};
}
