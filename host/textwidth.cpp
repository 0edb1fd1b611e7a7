#include "textwidth.h"
#include <algorithm>
#include <iterator>

namespace textwidth {

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

// Characters that fill two columns, in ascending order.
constexpr Range wideRanges[] = {
    {0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},
    {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
    {0x2693, 0x2693},   {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
    {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
    {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},
    {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
    {0x27B0, 0x27B0},   {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},
    {0x2E80, 0x303E},   {0x3041, 0x3247},   {0x3250, 0x4DBF},   {0x4E00, 0xA4CF},   {0xA960, 0xA97C},
    {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},   {0xFE10, 0xFE19},   {0xFE30, 0xFE6B},   {0xFF01, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x16FE0, 0x18D08}, {0x1AFF0, 0x1B2FB}, {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF},
    {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A}, {0x1F200, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C},
    {0x1F37E, 0x1F393}, {0x1F3A0, 0x1F3CA}, {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4},
    {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440}, {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E},
    {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A}, {0x1F595, 0x1F596}, {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F},
    {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC}, {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6DF}, {0x1F6EB, 0x1F6EC},
    {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7EB}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF},
    {0x1FA70, 0x1FAFF}, {0x20000, 0x3FFFD},
};

// Vowels and final consonants that join the Hangul syllable before them.
constexpr Range joiningHangul = {0x1160, 0x11FF};

bool isWide(char32_t character)
{
    const auto *range = std::upper_bound(std::begin(wideRanges), std::end(wideRanges), character,
                                         [](char32_t c, const Range &r) { return c < r.first; });
    return range != std::begin(wideRanges) && character <= std::prev(range)->last;
}

// The character at `at`, which moves past it; an unpaired surrogate stands for itself.
char32_t nextCharacter(const QString &text, int &at)
{
    const QChar high = text.at(at++);
    if (high.isHighSurrogate() && at < text.size() && text.at(at).isLowSurrogate())
        return QChar::surrogateToUcs4(high, text.at(at++));
    return high.unicode();
}

// Where the text must end to fill at most `columns`; marks that combine with the last character stay with it.
int lengthFitting(const QString &text, int columns)
{
    int used = 0;
    for (int at = 0; at < text.size();) {
        const int begin = at;
        used += ofCharacter(nextCharacter(text, at));
        if (used > columns)
            return begin;
    }
    return text.size();
}
}

int ofCharacter(char32_t character)
{
    if (character < 0x300)
        return 1;
    switch (QChar::category(uint(character))) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    if (character >= joiningHangul.first && character <= joiningHangul.last)
        return 0;
    return isWide(character) ? 2 : 1;
}

bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar sign) { return sign.unicode() >= 0x20 && sign.unicode() <= 0x7E; });
}

int of(const QString &text)
{
    if (isPlain(text))
        return text.size();
    int columns = 0;
    for (int at = 0; at < text.size();)
        columns += ofCharacter(nextCharacter(text, at));
    return columns;
}

QString elided(const QString &text, int columns, const QString &mark)
{
    if (columns <= 0)
        return QString();
    if (lengthFitting(text, columns) == text.size())
        return text;
    return text.left(lengthFitting(text, columns - 1)) + mark;
}

QString padded(const QString &text, int columns, bool alignRight)
{
    const int blanks = columns - of(text);
    if (blanks <= 0)
        return text;
    const QString fill(blanks, QLatin1Char(' '));
    return alignRight ? fill + text : text + fill;
}

QString oneLine(const QString &text, bool asciiOnly)
{
    if (isPlain(text))
        return text;
    QString line;
    line.reserve(text.size());
    for (int at = 0; at < text.size();) {
        const char32_t character = nextCharacter(text, at);
        const QChar::Category category = QChar::category(uint(character));
        // Direction marks are format characters, too: one left open turns the rest of the line around.
        const bool direction =
            (character >= 0x202A && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069);
        if (direction)
            continue;
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || category == QChar::Other_Surrogate)
            line += QLatin1Char(' ');
        else if (asciiOnly && character > 0x7E)
            line += QLatin1Char('?');
        else if (QChar::requiresSurrogates(uint(character)))
            line += QString::fromUcs4(&character, 1);
        else
            line += QChar(ushort(character));
    }
    return line;
}
}
