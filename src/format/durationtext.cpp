// Durations, in days, as text with tokens such as "[d]", and back.
#include "format/dataformat.h"
#include <QRegularExpression>
#include <QVector>
#include <cmath>
#include <limits>

namespace {

enum class Shown { Whole, WholeTakesAll, DecimalTakesAll };

// What one token counts: a unit is days / perDay.
struct TokenRow
{
    const char *token;
    int days;
    int perDay;
    Shown shown;
};

constexpr TokenRow tokenRows[] = {
    {"w", 7, 1, Shown::Whole},        {"ww", 7, 1, Shown::DecimalTakesAll},
    {"d", 1, 1, Shown::Whole},        {"dd", 1, 1, Shown::DecimalTakesAll},
    {"h", 1, 24, Shown::Whole},       {"hh", 1, 24, Shown::DecimalTakesAll},
    {"mm", 1, 24 * 60, Shown::Whole}, {"ss", 1, 86400, Shown::WholeTakesAll},
};

const TokenRow *rowOf(const QString &token)
{
    for (const TokenRow &row : tokenRows) {
        if (token == QLatin1String(row.token))
            return &row;
    }
    return nullptr;
}

// Toward zero; 0 for what is no number, and never past what later sums can hold.
qint64 truncated(double value)
{
    constexpr double limit = 1e15;
    return std::isnan(value) ? 0 : qint64(qBound(-limit, value, limit));
}

int truncatedToInt(double value)
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), truncated(value),
                      qint64(std::numeric_limits<int>::max())));
}

// The first two tokens of a format, with their brackets; fewer when there are fewer.
QVector<QRegularExpressionMatch> firstTwo(const QRegularExpression &pattern, const QString &text)
{
    QVector<QRegularExpressionMatch> found;
    for (auto matches = pattern.globalMatch(text); matches.hasNext() && found.size() < 2;)
        found.append(matches.next());
    return found;
}

QVector<QRegularExpressionMatch> tokensOf(const QString &format)
{
    static const QRegularExpression pattern(QStringLiteral("\\[[a-zA-Z]+\\]"));
    return firstTwo(pattern, format);
}

// A match without its first and its last sign.
QString inner(const QString &text, const QRegularExpressionMatch &match)
{
    return text.mid(match.capturedStart() + 1, match.capturedLength() - 2);
}

// Kept on purpose: a number loses its first and last digit like a token its brackets ("1730" reads as 73,
// "47" as 0), and one of a single digit stands for the text that follows it.
double numberOf(const QString &text, const QRegularExpressionMatch &match)
{
    const double number = inner(text, match).toDouble();
    return std::isfinite(number) ? number : 0.0;
}

struct Parts
{
    qint64 days = 0;
    qint64 hours = 0;
    qint64 minutes = 0;
    qint64 seconds = 0;
};

void add(const TokenRow &row, double number, bool first, Parts &parts)
{
    if (row.perDay == 1) {
        parts.days = truncated(parts.days + number * row.days);
    } else if (row.perDay == 24) {
        // Only the first number is split into days and hours.
        if (first && number > 24) {
            parts.days = truncated(number / 24);
            number -= 24.0 * parts.days;
        }
        parts.hours = truncated(parts.hours + number);
    } else {
        qint64 &part = row.perDay == 86400 ? parts.seconds : parts.minutes;
        part = truncated(part + number);
    }
}
}

QString DataFormat::formatDuration(double &value, const QString &token)
{
    const TokenRow *row = rowOf(token);
    if (!row)
        return QString();
    const double units = value * row->perDay / row->days;
    if (row->shown == Shown::DecimalTakesAll) {
        value = 0.0;
        return QString::number(units, 'f', 1);
    }
    // Kept on purpose: binary fractions that end just below a whole number lose it.
    const qint64 whole = truncated(units);
    value =
        row->shown == Shown::Whole ? (value * row->perDay - double(whole) * row->days) / row->perDay : 0.0;
    return QString::number(whole);
}

QString DataFormat::durationToString(double days, const QString &format)
{
    QString text;
    int from = 0;
    const QVector<QRegularExpressionMatch> tokens = tokensOf(format);
    for (const QRegularExpressionMatch &token : tokens) {
        text += format.mid(from, token.capturedStart() - from) + formatDuration(days, inner(format, token));
        from = token.capturedEnd();
    }
    text += format.mid(from);
    return text.remove(QLatin1Char('"'));
}

double DataFormat::durationFromString(const QString &text, const QString &format)
{
    static const QRegularExpression numberPattern(QStringLiteral("[+-]?[\\d]+([\\.][\\d]*)?"));
    const QVector<QRegularExpressionMatch> numbers = firstTwo(numberPattern, text);
    const QVector<QRegularExpressionMatch> tokens = tokensOf(format);
    Parts parts;
    for (int i = 0; i < tokens.size(); ++i) {
        const TokenRow *row = rowOf(inner(format, tokens[i]));
        const double number = i < numbers.size() ? numberOf(text, numbers[i]) : 0.0;
        const bool first = i == 0;
        if (row && row->shown != Shown::DecimalTakesAll)
            add(*row, number, first, parts);
        else if (row && first)
            return number * row->days / row->perDay;
    }
    return timeToDuration(parts.days, parts.hours, parts.minutes, parts.seconds);
}

double DataFormat::timeToDuration(qint64 days, qint64 hours, qint64 minutes, qint64 seconds)
{
    return double(days) + double(hours) / 24 + double(minutes) / 1440 + double(seconds) / 86400;
}

void DataFormat::durationToTime(double value, int &days, int &hours, int &minutes, int &seconds)
{
    days = truncatedToInt(value);
    double rest = (value - days) * 24;
    hours = truncatedToInt(rest);
    rest = (rest - hours) * 60;
    minutes = truncatedToInt(rest);
    seconds = truncatedToInt((rest - minutes) * 60);
}
