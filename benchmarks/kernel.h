#pragma once
#include "generator.h"

// The bare work of a full reschedule on plain arrays: the reference that the library's figures are divided
// by.
//
// Whole working days only, no document, no options, no hour clock, no texts but the slack texts.
namespace kernel {

struct Result
{
    int length = 0; // working days, as all that follow; day 0 is the project's start
    std::vector<int> start, finish, lateFinish; // by position; summaries are rolled up
    std::vector<int> days;                      // working day k -> days since 1970
    quint64 checksum = 0;                       // keeps the work from being optimised away
};

Result reschedule(const generator::Plan &plan, const generator::Shape &shape);
}
