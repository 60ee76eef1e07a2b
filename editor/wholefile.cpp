// Whole files, through the C library.
#include "editor/wholefile.h"

#include <cerrno>
#include <cstdio>

#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/strbuilder.h"
#include "foundation/system.h"

namespace tarn {

static constexpr int64_t piecesize = 4095;

// The bytes left in the file, by its own word; 0 for what has no size, such as a pipe, and for a
// size beyond any text, which is what a directory claims.
static int64_t toldsize(FILE* file) {
  int64_t n = fseek(file, 0, SEEK_END) == 0 ? ftell(file) : 0;
  if (fseek(file, 0, SEEK_SET) != 0) clearerr(file);
  return n > 0 && n <= sizelimit ? n : 0;
}

// Reads up to n bytes; fewer only at the end of the file. What a signal interrupts is gone on with.
static int64_t readon(FILE* file, uint8_t* room, int64_t n) {
  int64_t got = 0;
  for (;;) {
    got += static_cast<int64_t>(fread(room + got, 1, static_cast<size_t>(n - got), file));
    if (got == n || feof(file)) return got;
    check(errno == EINTR);
    clearerr(file);
  }
}

static Str readpiece(FILE* file, int64_t n) {
  if (n == 0) return Str();
  Str piece = strsized(n);
  int64_t got = readon(file, piece.own(), n);
  return got == n ? piece : piece.substr(0, got);
}

// The told size is read straight into one text. The file may have grown since, or have told none.
Str readwhole(const Str& path) {
  FILE* file = fopen(path.text(), "r");
  check(file != nullptr);
  Str text = readpiece(file, toldsize(file));
  StrBuilder* rest = nullptr;
  for (Str piece = readpiece(file, piecesize); !piece.empty(); piece = readpiece(file, piecesize)) {
    rest = StrBuilder::add(rest, piece);
  }
  fclose(file);  // all of it is here, whatever this says
  if (rest == nullptr) return text;
  Str tail = StrBuilder::take(rest);
  return text.empty() ? tail : text + tail;
}

// Past the buffer of the stream, which would drop its bytes when a signal cuts a write short.
void writewhole(const Str& path, const Str& text) {
  FILE* file = fopen(path.text(), "w");
  check(file != nullptr);
  check(systemwrite(systemdescriptor(file), text.bytes(), text.len()));
  check(fclose(file) == 0 || errno == EINTR);  // interrupted, it has closed all the same
}

void savesheet() {
  sheet& s = currentsheet();
  if (isclean(s)) return;
  Str text = flatten(s);
  if (!(currentname == dotname)) writewhole(currentname, text);
  markclean(s, text);
}

}  // namespace tarn
