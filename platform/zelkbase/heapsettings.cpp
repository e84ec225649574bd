#include "platform/zelkbase/heapsettings.h"

#include <cstdlib> // tells which C library this is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace recastor {

void KeepFreedMemory() {
#ifdef __GLIBC__
    constexpr int kBytes = 4 << 20;
    // Both, since the library adapts neither to what it sees once it was told one of them.
    static_cast<void>(::mallopt(M_TRIM_THRESHOLD, kBytes));
    static_cast<void>(::mallopt(M_MMAP_THRESHOLD, kBytes));
#endif
}

} // namespace recastor
