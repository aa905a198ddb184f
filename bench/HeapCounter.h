#pragma once
// Bytes in use on the heap of the calling thread's malloc arena, from
// glibc's mallinfo2: small blocks in use plus blocks served by mmap. Qt
// allocates its containers with malloc and its objects with operator new;
// both land here. Measure on the main thread only: other threads use
// arenas of their own, which mallinfo2 does not count.

#include <cstddef>

namespace bench {

size_t heapBytesInUse();

} // namespace bench
