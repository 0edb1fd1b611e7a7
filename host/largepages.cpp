#include "largepages.h"
#ifdef __linux__
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace largepages {

#if defined(__GLIBC__) && defined(MADV_HUGEPAGE)

void use()
{
    constexpr std::size_t pageBytes = 2 << 20;
    constexpr int reservedBytes = 512 << 20; // of addresses; memory is taken where it is written to
    constexpr int paddingBytes = 1 << 20;    // beyond that
    constexpr int largestInHeap = 32 << 20;  // greater blocks go back to the system one by one
    mallopt(M_MMAP_THRESHOLD, largestInHeap);
    mallopt(M_TRIM_THRESHOLD, 2 * reservedBytes - 1);
    mallopt(M_TOP_PAD, reservedBytes);
    char *const before = static_cast<char *>(sbrk(0));
    char *const block = static_cast<char *>(std::malloc(paddingBytes)); // more than is left: the heap grows
    char *const end = static_cast<char *>(sbrk(0));
    const bool isInHeap = block && block + paddingBytes > before && block < end;
    std::free(block);
    mallopt(M_TOP_PAD, paddingBytes);
    // Another allocator keeps its blocks elsewhere.
    if (!isInHeap)
        return;
    const auto toPage = std::size_t(-std::intptr_t(before)) % pageBytes;
    if (std::size_t(end - before) > toPage)
        madvise(before + toPage, std::size_t(end - before) - toPage, MADV_HUGEPAGE);
}

#else

void use() {}

#endif
}
