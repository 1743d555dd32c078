// The C library's heap, told that this program makes large pictures and throws most of them away.
// Where the library is another one these do nothing.
#pragma once

namespace corvanda {

/// All threads use one heap, and blocks as large as a picture go back to the system as soon as they
/// are free, whatever was freed before. First of all in the program.
void KeepHeapSmall();

/// Gives the system back what is free now; when a time of much work is over.
void ReturnFreeMemory();

}  // namespace corvanda
