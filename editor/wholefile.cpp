// Whole files, through the C library.
#include "editor/wholefile.h"

#include <cstdio>

#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/strbuilder.h"

namespace tarn {

static constexpr int64_t piecesize = 4095;

// The bytes left in the file, by its own word; 0 for what has no size, such as a pipe, and for a
// size beyond any text, which is what a directory claims.
static int64_t toldsize(FILE* file) {
  int64_t n = fseek(file, 0, SEEK_END) == 0 ? ftell(file) : 0;
  if (fseek(file, 0, SEEK_SET) != 0) clearerr(file);
  return n > 0 && n <= sizelimit ? n : 0;
}

// Reads up to n bytes in one request; fewer only at the end of the file.
static Str readpiece(FILE* file, int64_t n) {
  Str piece = strsized(n);
  if (n == 0) return piece;
  int64_t got = static_cast<int64_t>(fread(piece.own(), 1, static_cast<size_t>(n), file));
  check(ferror(file) == 0);
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
  check(fclose(file) == 0);
  if (rest == nullptr) return text;
  Str tail = StrBuilder::take(rest);
  return text.empty() ? tail : text + tail;
}

void writewhole(const Str& path, const Str& text) {
  FILE* file = fopen(path.text(), "w");
  check(file != nullptr);
  size_t size = static_cast<size_t>(text.len());
  check(fwrite(text.bytes(), 1, size, file) == size);
  check(fclose(file) == 0);
}

void savesheet() {
  sheet& s = currentsheet();
  if (isclean(s)) return;
  Str text = flatten(s);
  if (!(currentname == dotname)) writewhole(currentname, text);
  markclean(s, text);
}

}  // namespace tarn
