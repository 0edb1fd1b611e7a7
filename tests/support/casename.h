#pragma once
#include <gtest/gtest.h>
#include <string>

// Names the row of a table of cases after its `name`.
template <typename Case>
std::string caseName(const testing::TestParamInfo<Case> &row)
{
    return row.param.name;
}
