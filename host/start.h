// The start of every program that evaluates.
#pragma once

namespace tarn {

// Prepares the C library and the sockets, and hands the builtins to the machine. Where the socket
// library does not start, the process ends with its words and the status -1.
void hoststart();

// Those words and that end, for an error number of the socket library.
[[noreturn]] void socketsfailed(int error);

}  // namespace tarn
