/// How the C library's heap deals with memory that is freed.
#pragma once

namespace recastor {

/// Lets the heap keep a few MB of what is freed for the next command, instead of giving them back
/// to the operating system: behind each large command it would fetch the same pages anew, which
/// takes up to a twentieth of such a command's time. To be called once, when the program starts.
/// Does nothing where the C library knows no such setting.
void KeepFreedMemory();

} // namespace recastor
