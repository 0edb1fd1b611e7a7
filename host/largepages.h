#pragma once

namespace largepages {

// Asks the system for large pages where small blocks of memory will lie. To be called before much memory is
// used; changes nothing where the system or its allocator knows no such thing.
//
// A plan of 100,000 tasks is a hundred megabytes of small blocks that are walked again and again: with large
// pages the system hands out fewer of them, and the processor finds them sooner.
void use();
}
