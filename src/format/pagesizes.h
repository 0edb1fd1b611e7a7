#pragma once

// The predefined pages: the unit each is measured in, and its size.
namespace pagesizes {

struct Page
{
    unsigned int unitCode;
    double width;
    double height;
};

// An index beyond the table is A4.
const Page &page(unsigned int index);
}
