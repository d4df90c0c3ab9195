#pragma once

namespace platform {

// Hands back what the process holds but no longer uses, after something large (the windows'
// QML engine) is gone: the allocator's free pages, and on Linux the pages of libraries and other
// files it only read, which the kernel keeps in its cache and maps again at their next use.
void releaseUnusedMemory();

} // namespace platform
