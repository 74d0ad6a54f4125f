// What becomes of memory that the program has freed.
#pragma once

namespace tessarine {

/// Keeps blocks of up to 4 MB, and 16 MB in all, for the next use instead of giving them back to
/// the system: each answer of a host takes half a megabyte several times over, and fresh memory
/// costs several times what filling it does. Larger blocks go back as ever. Without effect where
/// the C library has no such setting.
void keep_freed_memory();

}  // namespace tessarine
