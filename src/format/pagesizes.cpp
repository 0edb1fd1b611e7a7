#include "format/pagesizes.h"
#include <iterator>

namespace pagesizes {
namespace {

constexpr unsigned int mm = 1;
constexpr unsigned int inch = 5;

// The order is the interface: a stored page is an index into this table.
constexpr Page pages[] = {
    {inch, 8.5, 11},     {inch, 8.5, 13},    {inch, 8.5, 14},     {inch, 7.5, 10.5},  // 0
    {inch, 5.5, 8.5},    {inch, 4.125, 9.5}, {inch, 3.875, 7.5},  {inch, 11, 17},     // 4
    {inch, 8.5, 11},     {inch, 17, 22},     {inch, 22, 34},      {inch, 34, 44},     // 8
    {mm, 297, 420},      {mm, 210, 297},     {mm, 148, 210},      {mm, 250, 354},     // 12
    {mm, 182, 257},      {mm, 110, 220},     {mm, 162, 229},      {mm, 215, 275},     // 16
    {mm, 162, 229},      {mm, 176, 250},     {mm, 110, 230},      {mm, 210, 297},     // 20
    {inch, 8.5, 12},     {inch, 8, 13},      {mm, 146, 215},      {mm, 97, 151},      // 24
    {mm, 100, 148},      {mm, 148, 200},     {inch, 22, 36},      {inch, 24, 48},     // 28
    {inch, 24, 60},      {inch, 24, 72},     {inch, 24, 84},      {inch, 24, 96},     // 32
    {inch, 24, 108},     {inch, 36, 42},     {inch, 36, 60},      {inch, 36, 72},     // 36
    {inch, 36, 84},      {inch, 36, 96},     {inch, 36, 108},     {inch, 8.5, 10},    // 40
    {mm, 228.6, 304.8},  {mm, 304.8, 457.2}, {mm, 457.2, 609.6},  {mm, 609.6, 914.4}, // 44
    {mm, 914.4, 1219.2}, {mm, 762, 1066.8},  {mm, 841, 1189},     {mm, 594, 841},     // 48
    {mm, 420, 594},      {mm, 707, 1000},    {mm, 728.1, 1030.1}, {mm, 515, 728.1},   // 52
    {mm, 364, 515},      {mm, 257.1, 364},   {mm, 182, 257.1},    {mm, 1189, 1682},   // 56
    {mm, 1682, 2378},                                                                 // 60
};
static_assert(std::size(pages) == 61);

constexpr unsigned int a4 = 13;
}

const Page &page(unsigned int index)
{
    return pages[index < std::size(pages) ? index : a4];
}
}
