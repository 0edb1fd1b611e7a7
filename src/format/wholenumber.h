#pragma once
#include <cmath>

// Whether a number is a whole one that its decimal digits say exactly, so that integer arithmetic can write
// it. A zero with a sign is none: "-0" is how it is written.
inline bool isPlainWhole(double number)
{
    constexpr double limit = 1e15;
    return std::fabs(number) < limit && number == std::trunc(number) &&
           !(number == 0 && std::signbit(number));
}
