// The function keys of terminals, as a table, and the sequences that are dropped.
#include "editor/termkeys.h"

#include <cstring>

namespace tarn {

static constexpr uint8_t esc = 0x1B;

// What a sequence stands for.
struct FunctionKey {
  const char* sequence;  // as terminals send it
  const char* keys;      // as the editor's own keys
};

static constexpr FunctionKey functionkeys[] = {
    {"\x1B[H", "\x01"},     {"\x1B[1~", "\x01"},  // Home: C-a
    {"\x1B[7~", "\x01"},    {"\x1BOH", "\x01"},   //
    {"\x1B[F", "\x05"},     {"\x1B[4~", "\x05"},  // End: C-e
    {"\x1B[8~", "\x05"},    {"\x1BOF", "\x05"},   //
    {"\x1B[5~", "\x15"},                          // Page Up: C-u
    {"\x1B[6~", "\x04"},                          // Page Down: C-d
    {"\x1B[2~", "\x18"},                          // Insert: C-x
    {"\x1B[3~", "\x1C"},                          // Delete: C-backslash
    {"\x1BOA", "\x1B[A"},   {"\x1BOB", "\x1B[B"},  // the arrows
    {"\x1BOC", "\x1B[C"},   {"\x1BOD", "\x1B[D"},
};

uint8_t* termbuffer(TermKeys& t) {
  int32_t held = t.end - t.start;
  memmove(t.bytes, t.bytes + t.start, static_cast<size_t>(held));
  t.start = 0;
  t.end = t.fresh = held;
  return t.bytes + held;
}

void termread(TermKeys& t, int32_t n) {
  for (int32_t i = t.end; t.swapback && i < t.end + n; i++) {
    if (t.bytes[i] == 8 || t.bytes[i] == 0x7F) t.bytes[i] ^= 8 ^ 0x7F;
  }
  t.end += n;
}

static KeyText taketext(const char* keys) {
  KeyText text = {};
  for (; keys[text.n] != 0; text.n++) text.bytes[text.n] = static_cast<uint8_t>(keys[text.n]);
  return text;
}

static KeyText takebytes(TermKeys& t, uint8_t n) {
  KeyText text = {n, {}};
  memcpy(text.bytes, t.bytes + t.start, n);
  t.start += n;
  return text;
}

// How the waiting bytes go with the table.
struct TableMatch {
  const FunctionKey* key;  // they begin with this one, or null
  bool unfinished;         // they are the beginning of some key
};

static TableMatch matchtable(const uint8_t* bytes, int32_t n) {
  TableMatch match = {nullptr, false};
  for (const FunctionKey& key : functionkeys) {
    int32_t length = static_cast<int32_t>(strlen(key.sequence));
    int32_t common = n < length ? n : length;
    if (memcmp(bytes, key.sequence, static_cast<size_t>(common)) != 0) continue;
    if (common == length) match.key = &key;
    match.unfinished = match.unfinished || common < length;
  }
  return match;
}

static bool isfinal(uint8_t byte) { return byte >= 0x40 && byte <= 0x7E; }

static bool isletter(uint8_t byte) {
  return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// The length of the control sequence at `bytes`, which begins with "ESC [", together with the
// letter behind a second "["; 0 where its end is not among the n bytes.
static int32_t sequencelength(const uint8_t* bytes, int32_t n) {
  int32_t i = 2;
  while (i < n && bytes[i] >= 0x20 && bytes[i] < 0x40) i++;
  if (i >= n || !isfinal(bytes[i])) return 0;
  if (i == 2 && bytes[i] == '[') return n > 3 && isletter(bytes[3]) ? 4 : 0;
  return i + 1;
}

// The length of a key at the front that means nothing and is dropped, or 0. It must have come in
// one read, so that a typed Escape is a key of its own; but for the function keys of a bare
// console, "ESC [ [" and a letter, which nobody types. A function key behind a typed Escape goes
// with it.
static int32_t droppedlength(const TermKeys& t) {
  const uint8_t* bytes = t.bytes + t.start;
  int32_t n = t.end - t.start;
  if (n < 3) return 0;
  if (bytes[1] == '[') return bytes[2] == '[' ? sequencelength(bytes, n) : 0;
  if (t.start < t.fresh && bytes[1] != esc) return 0;
  if (t.start + 1 < t.fresh) return 0;
  if (bytes[1] == 'O') return isfinal(bytes[2]) ? 3 : 0;
  if (bytes[1] != esc) return 0;
  if (bytes[2] == 'O') return n > 3 && isfinal(bytes[3]) ? 4 : 0;
  int32_t inner = bytes[2] == '[' ? sequencelength(bytes + 1, n - 1) : 0;
  return inner > 0 ? inner + 1 : 0;
}

// The second half of a function key whose first half was given away as ESC O; null if it is none.
static const FunctionKey* splitrest(const TermKeys& t) {
  uint8_t whole[] = {esc, 'O', t.bytes[t.start]};
  return matchtable(whole, 3).key;
}

static KeyText takeescape(TermKeys& t) {
  const uint8_t* bytes = t.bytes + t.start;
  int32_t n = t.end - t.start;
  bool console = n > 2 && bytes[1] == '[' && bytes[2] == '[';
  if (n == 1 || (console && n == 3)) return {};
  if (bytes[1] == 'O' && n == 2) {
    t.splitkey = t.start >= t.fresh;
    return takebytes(t, 2);
  }
  TableMatch match = matchtable(bytes, n);
  if (match.key != nullptr) {
    t.start += static_cast<int32_t>(strlen(match.key->sequence));
    return taketext(match.key->keys);
  }
  return match.unfinished ? KeyText{} : takebytes(t, 2);
}

KeyText termkey(TermKeys& t) {
  while (t.start < t.end) {
    const FunctionKey* rest = t.splitkey ? splitrest(t) : nullptr;
    t.splitkey = false;
    if (rest != nullptr) {
      t.start++;
      return taketext(rest->keys);
    }
    if (t.bytes[t.start] != esc) return takebytes(t, 1);
    int32_t dropped = droppedlength(t);
    bool known = matchtable(t.bytes + t.start, t.end - t.start).key != nullptr;
    if (dropped == 0 || known) return takeescape(t);
    t.start += dropped;
  }
  return {};
}

}  // namespace tarn
