#include "HeapCounter.h"

#include <malloc.h>

namespace bench {

size_t heapBytesInUse()
{
    struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace bench
