#pragma once
#include "exchange/mspdi/records.h"

// The dates of an exception that comes again and again.
namespace mspdi {

// Whole dates, both ends included, as days since 1970-01-01.
struct Dates
{
    int first = 0;
    int last = -1;
};

// Types of exceptions.
enum Recurrence {
    DailyRange = 1, // every date from the first to the last
    YearlyByDay,
    YearlyByPosition,
    MonthlyByDay,
    MonthlyByPosition,
    Weekly,
    Daily // every so many dates
};

// The dates in order, one entry for each occurrence, but for a range only one. At most `most` entries and
// none after `lastDay`; empty when the exception says no dates.
std::vector<Dates> datesOf(const Exception &exception, int lastDay, std::size_t most);
}
