// The ways of dying, and the stream they speak through. There are no exceptions and no error codes
// within the program: a broken inner rule ends it at once, and says where. The terminal is in raw
// mode while that happens, so the words go straight to a descriptor, past all buffering.
//
//   check(n >= 0)   a rule of the program itself; compiled in always
//   fail(file,line) "ASSERTION FAILED:path:line\n" on descriptor 2, then abort
//   die(reason)     "TARNFAIL: reason\n" on descriptor 1, then the same as fail
//
// What a user or a program of the language does wrong never comes here: that is the bell, or a
// value.
#pragma once

#include <cstdint>

namespace tarn {

struct Str;

// Prints the place and aborts. Entered a second time, as when descriptor 2 is closed, it aborts at
// once.
[[noreturn]] void fail(const char* file, int32_t line);

// For what was deemed impossible and is still worth a word: the reason is the short name of the
// spot, or a sentence.
[[noreturn]] void die(const Str& reason);

#define check(condition) \
  do { \
    if (!(condition)) ::tarn::fail(__FILE__, __LINE__); \
  } while (0)

// A write-only stream over a descriptor. Texts go out in chunks of 4096 bytes; a chunk that cannot
// be written is a failure. A text of length 0 writes nothing.
struct DiagStream {
  int fd;  // open for writing; not owned
};

const DiagStream& operator<<(const DiagStream& stream, const char* text);
const DiagStream& operator<<(const DiagStream& stream, const Str& text);
const DiagStream& operator<<(const DiagStream& stream, int32_t number);

extern const DiagStream outstream;  // descriptor 1
extern const DiagStream errstream;  // descriptor 2

// Appends text to "/tmp/both.bug", making "/tmp" if need be. The text must end with a newline;
// that is tested after writing. A file that cannot be opened, written or closed is a failure.
void appendbug(const Str& text);

}  // namespace tarn
