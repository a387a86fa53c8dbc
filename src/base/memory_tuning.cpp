#include "base/memory_tuning.h"

#include <cstdlib> // defines __GLIBC__

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace zm {

void keepFreedMemoryWarm()
{
#if defined(__GLIBC__)
    // A block above the first threshold is mapped afresh each time; freed memory at the end of the heap above the
    // second goes back to the system. 128 MiB holds a picture of 32 megapixels, so that the usual photograph stays
    // warm; a larger one is given back as soon as it is freed. 256 MiB bounds what an idle program keeps.
    constexpr int mebibyte = 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, 128 * mebibyte);
    mallopt(M_TRIM_THRESHOLD, 256 * mebibyte);
#endif
}

void giveFreedMemoryBack()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

} // namespace zm
