#include "platform/residentmemory.h"

namespace platform {

// The system's allocator returns free pages by itself, and the memory compressor takes pages
// that sit unused.
void releaseUnusedMemory() { }

} // namespace platform
