// The key table, and the walk from `line` to its row.
#include "editor/dispatch.h"

#include <array>

#include "editor/commands.h"
#include "editor/keys.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

using enum KeyMatch;

static constexpr uint8_t esc = 0x1B;

// The meta keys stand in Tarn's own order of the letters: r, u, s, t, v, w, z, x, y behind q.
constexpr KeyRow keytable[] = {
    {"TAB", 1, {0x09}, prompt, tarndoci},
    {"C-SP", 1, {0x00}, start, tarnpaste},
    {"C-a", 1, {0x01}, whole, tarndoca},
    {"C-b", 1, {0x02}, whole, tarndocb},
    {"C-d", 1, {0x04}, whole, tarndocd},
    {"C-e", 1, {0x05}, whole, tarndoce},
    {"C-f", 1, {0x06}, whole, tarndocf},
    {"C-g", 1, {0x07}, whole, tarndocg},
    {"C-h", 1, {0x08}, whole, tarndoch},
    {"C-k", 1, {0x0B}, whole, tarndock},
    {"C-l", 1, {0x0C}, whole, tarndocl},
    {"C-n", 1, {0x0E}, whole, tarndocn},
    {"C-p", 1, {0x10}, whole, tarndocp},
    {"C-r", 1, {0x12}, whole, tarndocr},
    {"C-t", 1, {0x14}, whole, tarndoct},
    {"C-u", 1, {0x15}, whole, tarndocu},
    {"C-w", 1, {0x17}, whole, tarndocw},
    {"C-x", 1, {0x18}, whole, tarndocx},
    {"C-\\", 1, {0x1C}, whole, tarndelete},
    {"C-_", 1, {0x1F}, whole, tarnundo},
    {"ESC a", 2, {esc, 'a'}, start, tarndoma},
    {"ESC b", 2, {esc, 'b'}, prompt, tarndomb},
    {"ESC c", 2, {esc, 'c'}, whole, tarndomc},
    {"ESC d", 2, {esc, 'd'}, whole, tarndomd},
    {"ESC e", 2, {esc, 'e'}, prompt, tarndome},
    {"ESC f", 2, {esc, 'f'}, start, tarndomf},
    {"ESC g", 2, {esc, 'g'}, whole, tarndomg},
    {"ESC h", 2, {esc, 'h'}, whole, tarndomh},
    {"ESC i", 2, {esc, 'i'}, prompt, tarndomi},
    {"ESC j", 2, {esc, 'j'}, prompt, tarndomj},
    {"ESC k", 2, {esc, 'k'}, start, tarndomk},
    {"ESC l", 2, {esc, 'l'}, prompt, tarndoml},
    {"ESC m", 2, {esc, 'm'}, prompt, tarndomm},
    {"ESC n", 2, {esc, 'n'}, whole, tarndomn},
    {"ESC o", 2, {esc, 'o'}, prompt, tarndomo},
    {"ESC p", 2, {esc, 'p'}, prompt, tarndomp},
    {"ESC q", 2, {esc, 'q'}, prompt, tarndomq},
    {"ESC r", 2, {esc, 'r'}, whole, tarndomr},
    {"ESC u", 2, {esc, 'u'}, whole, tarndomu},
    {"ESC s", 2, {esc, 's'}, prompt, tarndoms},
    {"ESC t", 2, {esc, 't'}, prompt, tarndomt},
    {"ESC v", 2, {esc, 'v'}, whole, tarndomv},
    {"ESC w", 2, {esc, 'w'}, prompt, tarndomw},
    {"ESC z", 2, {esc, 'z'}, whole, tarndomz},
    {"ESC x", 2, {esc, 'x'}, prompt, tarndomx},
    {"ESC y", 2, {esc, 'y'}, whole, tarndomy},
};
constexpr int64_t keyrows = sizeof keytable / sizeof keytable[0];

// The row of a key by its last byte, -1 for none.
using RowIndex = std::array<int8_t, 256>;

static constexpr RowIndex indexrows(uint8_t length) {
  RowIndex index = {};
  index.fill(-1);
  for (int64_t row = 0; row < keyrows; row++) {
    const KeyRow& r = keytable[row];
    if (r.length == length) index[r.keys[length - 1]] = static_cast<int8_t>(row);
  }
  return index;
}

static constexpr RowIndex controlrows = indexrows(1);
static constexpr RowIndex metarows = indexrows(2);

// The row that answers `line`, or null.
static const KeyRow* findrow() {
  if (line.empty()) return nullptr;
  const uint8_t* keys = line.bytes();
  bool meta = keys[0] == esc && line.len() > 1;
  int8_t row = meta ? metarows[keys[1]] : controlrows[keys[0]];
  if (row < 0) return nullptr;
  const KeyRow& r = keytable[row];
  return r.match != whole || line.len() == r.length ? &r : nullptr;
}

// Runs a command that reads no further keys.
static void runplain(void (*command)()) {
  line = Str();
  command();
}

static void runrow(const KeyRow& row) {
  killchain = killchain || row.command != tarndock;
  if (row.match == prompt) return row.command();
  runplain(row.command);
}

// ESC "[" and what follows: an arrow, or a sequence that means nothing here.
static void runsequence() {
  uint8_t last = line.at(line.len() - 1);
  uint8_t control = arrowcontrol(last);
  if (control != 0) {
    killchain = true;
    return runplain(keytable[controlrows[control]].command);
  }
  painted = true;
  // On purpose: a byte above 126 ends the key but not the sequence, so `line` stays as it is, and
  // takes in what is typed until a letter comes.
  if (last < 0x20 || (last >= 0x40 && last <= 0x7E)) line = Str();
}

// The keys that no row has: control sequences, the typed bytes, and what means nothing.
static void runother() {
  const uint8_t* keys = line.bytes();
  int64_t n = line.len();
  if (n > 2 && keys[0] == esc && keys[1] == '[') return runsequence();
  uint8_t key = n == 1 ? keys[0] : 0;
  line = Str();
  if (istyped(key)) {
    killchain = true;
    tarntype(key);
  } else if (key == 0x7F) {
    killchain = true;
    tarnbackspace();
  } else {
    painted = true;  // nothing has changed
  }
}

// The way out of a mode that shows a fault until the next key.
static void endfault() {
  Str keys = line;
  leaveunpainted();
  line = keys;
  showsfault = false;
}

void dispatch() {
  if (showsfault) endfault();
  const KeyRow* row = findrow();
  painted = false;
  if (row != nullptr) {
    runrow(*row);
  } else {
    runother();
  }
  if (!painted && !suppressed) repaint();
}

}  // namespace tarn
