// Runs the main work on a very deep stack. Terms of the language nest as deep as their data, a
// million levels and more, and the parser, the passes and the printer recurse along them.
#pragma once

namespace tarn {

// Calls work(argument) on a stack of 16 GiB, reserved and not committed, and returns when work
// does. Where the system does not grant so much, it is half of that, or a quarter, and so on; the
// stack there is if even 8 MiB are refused. Signals reach the thread that works, and `exit` called
// there ends the process as usual. Call it once, before anything else. The argument is lent.
void runonbigstack(void (*work)(void*), void* argument);

}  // namespace tarn
