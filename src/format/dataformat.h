#pragma once
#include "kwgantt_export.h"
#include <QDateTime>
#include <QString>
#include <QStringList>

// Text of numbers, dates and durations as the task table shows them.
class KWGANTT_EXPORT DataFormat
{
public:
    static QStringList s_dateFormats; // the date formats offered
    static int s_deftDateFmt;         // index of the document's date format
    static QString s_deftCurrencyFmt; // "%1" stands for the number

    // groupSize -1: scientific; decimals < 1 and roundDigits >= 2: whole number rounded to
    // 10^(roundDigits-1); else fixed with `decimals`; groups of groupSize digits; trailing zeros after a
    // point are dropped.
    static QString formatNumber(double value, int groupSize, int decimals, int roundDigits);
    // mode 0: the first number of the text; other: followed by the first run of letters after it. "0" when
    // none.
    static QString numberStringFromString(const QString &text, int mode);
    // The document's date format; "yyyy-MM-dd" when the index names none.
    static QString dateFormat();
    // That number; 0 where there is none or it is not finite.
    static double numberFromString(const QString &text);
    // At most so many decimals, in groups of three digits.
    static QString numberToString(double value, int decimals);
    // As a whole number and the nearest fraction with a denominator of at most that: "2 1/3", "-1/2", "4".
    static QString formatFraction(double value, int maxDenominator);
    // The formats in which a typed date is looked for, in that order; with the time, each with it first.
    static QStringList generateFormats(bool withTime);
    // Invalid when no format fits. Without `withTime` the time is 00:00. A wall-clock time that the zone
    // skips is read as if the clock had not been put forward yet.
    static QDateTime getDateTimeByDateTimeText(const QString &text, bool withTime);
    // Durations as texts, in days; a format holds up to two tokens in brackets, such as "[d] days [hh]
    // hours": w, d, h, mm, ss whole units and ww, dd, hh units with one decimal. One token's part of a
    // duration; `value` keeps what is left for the next. Empty for an unknown token, which takes nothing.
    static QString formatDuration(double &value, const QString &token);
    // Double quotes are removed, so a format may quote its literal text.
    static QString durationToString(double days, const QString &format);
    // Not the inverse: see the definition on how the numbers of the text are cut.
    static double durationFromString(const QString &text, const QString &format);
    static double timeToDuration(qint64 days, qint64 hours, qint64 minutes, qint64 seconds);
    static void durationToTime(double value, int &days, int &hours, int &minutes, int &seconds);

    static QString currencyText(const QString &number);
    // Replaces the date and currency formats from the application's configuration; a missing file changes
    // nothing.
    static void loadLocalize(const QString &language);
};
