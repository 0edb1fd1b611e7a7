#pragma once
#include "engine/network/latedates.h"

// Late dates where the links of a summary bind all that lies below it.
namespace latedates {

// As tails() of the whole network, but the successors of a task are its own and those of all summaries above
// it, and a successor counts with its whole length, be it a summary or not. Tasks without dates come after
// nothing. In list order; without linked summaries and undated tasks the same as tails().
std::vector<Tail> inheritedTails(const outline::Tasks &tasks, const std::vector<quint32> &lengths);
// Makes each summary critical that has a critical task below it.
void spreadCritical(const outline::Tasks &tasks);
}
