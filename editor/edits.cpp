// The plain edits: one byte, a run of one byte, a text put in, a stretch taken out.
#include "editor/edits.h"

#include <cstring>

#include "editor/digits.h"
#include "editor/history.h"
#include "editor/window.h"
#include "foundation/diag.h"

namespace tarn {

bool carry(opertype w, int64_t t, const Str& data) {
  enteroper(opermake(w, t, data));
  edittodo(operv(lastoper()));
  return true;
}

bool fits(const sheet& s, int64_t more) { return more <= sizelimit - size(s); }

// --- One byte ------------------------------------------------------------------------------------

// The data is a kind, the old byte and the new one; t is where the byte stands.
//
//   kind   old            new         carried out       reversed
//   '.'    anything       anything    nothing           nothing
//   ':'    0              the byte    insert            delete
//   ';'    the byte       the byte    overwrite         overwrite back
//   ','    the byte       0           delete            insert

static Str typeddata(char kind, uint8_t old, uint8_t fresh) {
  uint8_t data[3] = {static_cast<uint8_t>(kind), old, fresh};
  return Str(data, 3);
}

// The same for the two kinds that name one byte only. Each is made once: what is typed byte by byte
// then takes little memory.
static const Str& insertdata(uint8_t fresh) {
  static Str known[256];
  if (known[fresh].empty()) known[fresh] = typeddata(':', 0, fresh);
  return known[fresh];
}

static const Str& deletedata(uint8_t old) {
  static Str known[256];
  if (known[old].empty()) known[old] = typeddata(',', old, 0);
  return known[old];
}

bool opinsert(uint8_t byte) {
  sheet& s = currentsheet();
  if (s.insertmode != 0) return fits(s, 1) && carry(optyped, s.point, insertdata(byte));
  if (s.point == size(s)) return false;
  return carry(optyped, s.point, typeddata(';', byteat(s, s.point), byte));
}

bool opbackspace() {
  sheet& s = currentsheet();
  if (s.point == 0) return false;
  return carry(optyped, s.point - 1, deletedata(byteat(s, s.point - 1)));
}

static void overwrite(sheet& s, uint8_t from, uint8_t to) {
  check(s.point < size(s) && byteat(s, s.point) == from);
  replacebyte(s, to);
}

void todotyped(sheet& s, const oper& o) {
  check(o.data.len() == 3);
  const uint8_t* data = o.data.bytes();
  setpoint(s, opert(o));
  switch (data[0]) {
    case '.': break;
    case ':':
      insertbyte(s, data[2]);
      s.point++;
      break;
    case ';': overwrite(s, data[1], data[2]); break;
    case ',': deletebyte(s); break;
    default: die("Bad oper type in edittodo");
  }
  showpoint(s);
}

void undotyped(sheet& s, const oper& o) {
  check(o.data.len() == 3);
  const uint8_t* data = o.data.bytes();
  setpoint(s, opert(o));
  switch (data[0]) {
    case '.': break;
    case ':': deletebyte(s); break;
    case ';':
      overwrite(s, data[2], data[1]);
      s.point--;
      break;
    case ',':
      insertbyte(s, data[1]);
      s.point++;
      break;
    default: die("Bad oper type in editundo");
  }
  showpoint(s);
}

// --- Stretches put in and taken out --------------------------------------------------------------

static void putin(sheet& s, int64_t t, const Str& text) {
  setpoint(s, t);
  insertstring(s, text);
  showpoint(s);
}

static void takeout(sheet& s, int64_t t, int64_t n) {
  setpoint(s, t);
  deletecount(s, n);
  showpoint(s);
}

bool oppaste(const Str& text) {
  const sheet& s = currentsheet();
  return !text.empty() && fits(s, text.len()) && carry(oppasted, s.point, text);
}

void todopasted(sheet& s, const oper& o) { putin(s, opert(o), o.data); }
void undopasted(sheet& s, const oper& o) { takeout(s, opert(o), o.data.len()); }

bool opdelete(const Str& text) {
  const sheet& s = currentsheet();
  return !text.empty() && carry(opcut, s.point, text);
}

void todocut(sheet& s, const oper& o) { takeout(s, opert(o), o.data.len()); }
void undocut(sheet& s, const oper& o) { putin(s, opert(o), o.data); }

// --- A run of one byte ---------------------------------------------------------------------------

// The data is the length in decimal digits, then the byte.

// What is beyond every text counts as one byte more than the largest.
static int64_t runlength(const Str& digits) { return decimalvalue(digits, sizelimit + 1); }

bool oprun(const Str& digits, uint8_t byte) {
  const sheet& s = currentsheet();
  int64_t count = runlength(digits);
  if (count == 0 || !fits(s, count)) return false;
  return carry(opran, s.point, digits + strbyte(byte));
}

static int64_t storedlength(const oper& o) {
  check(o.data.len() >= 2);
  return runlength(o.data.substr(0, o.data.len() - 1));
}

void todoran(sheet& s, const oper& o) {
  int64_t count = storedlength(o);
  Str run = strsized(count);
  memset(run.own(), o.data.at(o.data.len() - 1), static_cast<size_t>(count));
  putin(s, opert(o), run);
}

void undoran(sheet& s, const oper& o) { takeout(s, opert(o), storedlength(o)); }

}  // namespace tarn
