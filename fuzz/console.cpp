// The played console. All that is sent to it is read by the strict reader of the screen tests.
#include "fuzz/console.h"

#include <algorithm>
#include <cstring>

#include "editor/termkeys.h"
#include "foundation/diag.h"
#include "tests/support/strictoutput.h"

namespace tarn {

static constexpr uint8_t event = 255;
static constexpr uint8_t firstresize = 200;

struct Played {
  Source input;
  int64_t columns;
  int64_t rows;
  void (*filter)(KeyText& key);
  TermKeys keys;
  KeyText ahead;  // n 0 for none
  bool pausing;
  StrictOutput strict;
};

static Played played;

void consoleplay(Source input, int64_t columns, int64_t rows, void (*filter)(KeyText& key)) {
  played.input = input;
  played.columns = columns;
  played.rows = rows;
  played.filter = filter;
  played.keys = {};
  played.ahead.n = 0;
  played.pausing = false;
  played.strict = {static_cast<int>(columns), static_cast<int>(rows), "", "", 0};
}

static bool lookahead() {
  if (played.ahead.n == 0) played.ahead = termkey(played.keys);
  return played.ahead.n > 0;
}

bool consolemore() { return lookahead() || !isdry(played.input); }
bool consolewaiting() { return lookahead() || (!played.pausing && !isdry(played.input)); }

static void givekeys(const uint8_t* bytes, int64_t n) {
  memcpy(termbuffer(played.keys), bytes, static_cast<size_t>(n));
  termread(played.keys, static_cast<int32_t>(n));
}

// All key bytes up to the next event, as one read gives them.
static void readrun() {
  Source& input = played.input;
  const uint8_t* end = std::find(input.at, input.end, event);
  int64_t n = std::min<int64_t>(end - input.at, termroom);
  givekeys(input.at, n);
  input.at += n;
}

static void resize(ConsoleEvent& told) {
  told.kind = ConsoleEventKind::resize;
  told.width = played.columns = columnsof(onebyte(played.input));
  told.height = played.rows = rowsof(onebyte(played.input));
  played.strict.width = static_cast<int>(told.width);
  played.strict.height = static_cast<int>(told.height);
}

static void readevent(ConsoleEvent& told) {
  onebyte(played.input);
  uint8_t which = onebyte(played.input);
  if (which == event) return givekeys(&event, 1);
  if (which >= firstresize) return resize(told);
  played.pausing = true;
}

static void tellkey(ConsoleEvent& told) {
  played.filter(played.ahead);
  told.kind = ConsoleEventKind::key;
  told.key = played.ahead;
  told.repeat = 1;
  played.ahead.n = 0;
}

void consolenext(ConsoleEvent& told) {
  told.kind = ConsoleEventKind::none;
  played.pausing = false;
  if (lookahead()) return tellkey(told);
  if (isdry(played.input)) return;
  if (*played.input.at == event) return readevent(told);
  readrun();
}

void consoleopen() {}

void consolesize(int64_t& columns, int64_t& rows) {
  columns = played.columns;
  rows = played.rows;
}

void consolewrite(const void* bytes, int64_t n) {
  check(readstrictly(played.strict, static_cast<const char*>(bytes), static_cast<size_t>(n)));
}

}  // namespace tarn
