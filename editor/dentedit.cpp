// Indenting and outdenting lines. Empty lines are passed over.
//
// The data of the oper, whose t is the start of the first line; numbers are 32-bit words:
//
//   end of the range │ key, one byte │ the point before │ marks
//
// A newline for key takes a space off each line. A line of one space is then empty, so each line
// that is empty afterwards has a mark, in order: 1 if it was made so, 0 if it was so before.
#include <vector>

#include "editor/edits.h"
#include "editor/history.h"
#include "editor/reader.h"
#include "editor/window.h"
#include "foundation/diag.h"
#include "foundation/text.h"

namespace tarn {

static constexpr uint8_t newline = 10;

struct DentData {
  int64_t end;    // of the range before the lines changed
  uint8_t key;    // what goes in front, or a newline
  int64_t point;  // before
  Str marks;      // bytes 0 and 1; empty but for a newline
};

static Str packdent(const DentData& d) {
  return str4(static_cast<uint32_t>(d.end)) + strbyte(d.key) +
         str4(static_cast<uint32_t>(d.point)) + d.marks;
}

static DentData unpackdent(const Str& data) {
  check(data.len() >= 9);
  return {word4(data.substr(0, 4)), data.at(4), word4(data.substr(5, 4)), data.substr(9)};
}

// What indenting or outdenting will do.
struct DentPlan {
  int64_t lines;               // how many will change; -1 if one of them has no space to take
  std::vector<uint8_t> marks;  // of an outdent
};

static DentPlan plandent(const sheet& s, int64_t start, int64_t end, uint8_t key) {
  DentPlan plan = {0, {}};
  reader r = readsheet(s);
  while (start < end) {
    int64_t stop = newlinefrom(r, start, size(s));
    if (key == newline && stop - start <= 1) plan.marks.push_back(stop - start == 1);
    if (stop > start) {
      plan.lines++;
      if (key == newline && readbyte(r, start) != ' ') return {-1, {}};
    }
    start = stop + 1;
  }
  return plan;
}

bool opindent(int64_t from, int64_t to, uint8_t key) {
  const sheet& s = currentsheet();
  int64_t start = linestart(s, from);
  int64_t end = from == to ? lineend(s, from) : to;
  DentPlan plan = plandent(s, start, end, key);
  if (plan.lines <= 0 || (key != newline && !fits(s, plan.lines))) return false;
  Str marks(plan.marks.data(), static_cast<int64_t>(plan.marks.size()));
  return carry(opdented, start, packdent({end, key, s.point, marks}));
}

// These put a byte in front of offset i, or take the one there out.
static void putat(sheet& s, int64_t i, uint8_t byte) {
  setpoint(s, i);
  insertbyte(s, byte);
}

static void takeat(sheet& s, int64_t i) {
  setpoint(s, i);
  deletebyte(s);
}

void tododented(sheet& s, const oper& o) {
  DentData d = unpackdent(o.data);
  int64_t point = d.point;
  for (int64_t i = opert(o); i < d.end; i = lineend(s, i) + 1) {
    if (byteat(s, i) == newline) continue;
    if (d.key == newline) {
      takeat(s, i);
      d.end--;
      if (i < point) point--;
    } else {
      putat(s, i, d.key);
      d.end++;
      if (i <= point) point++;
    }
  }
  setpoint(s, point);
  showpoint(s);
}

// Each line put right moves the next one to where it was, so the end of the range holds as stored.
void undodented(sheet& s, const oper& o) {
  DentData d = unpackdent(o.data);
  int64_t mark = 0;
  for (int64_t i = opert(o); i < d.end; i = lineend(s, i) + 1) {
    bool empty = byteat(s, i) == newline;
    if (d.key != newline) {
      if (!empty) takeat(s, i);
    } else if (!empty || d.marks.at(mark++) == 1) {
      putat(s, i, ' ');
    }
  }
  setpoint(s, d.point);
  showpoint(s);
}

}  // namespace tarn
