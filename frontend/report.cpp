// Reports to text and back, and the shortening of their fields.
#include "frontend/report.h"

#include <string>
#include <vector>

namespace tarn {

Str reporttext(const Report& report) {
  Str text = "['";
  for (const Str& field :
       {report.message, report.word, report.place, report.name, report.context}) {
    text = text + "[\"" + field + "]";
  }
  return text + "]";
}

// The bracket group that ends just before `end`, whose field begins two bytes after its "[".
struct Group {
  int64_t from;  // its "["; -1 if there is no such group
  Str field;
};

static Group groupbefore(const Str& text, int64_t end) {
  int64_t depth = 0;
  for (int64_t i = end; i-- > 0;) {
    uint8_t c = text.bytes()[i];
    depth += c == ']' ? 1 : c == '[' ? -1 : 0;
    if (depth > 0) continue;
    bool group = depth == 0 && c == '[' && end - i >= 3;
    if (!group) break;
    return {i, text.substr(i + 2, end - i - 3)};
  }
  return {-1, ""};
}

static Report rawreport(const Str& text) {
  Report report;
  report.message = text;
  report.word = "raise";
  return report;
}

// Works from the end backwards: what is left before the last four groups is the message, whatever
// brackets it holds.
Report reportparse(const Str& text) {
  Report report;
  int64_t end = text.len() - 1;
  for (Str* field : {&report.context, &report.name, &report.place, &report.word}) {
    Group group = groupbefore(text, end);
    if (group.from < 0) return rawreport(text);
    *field = group.field;
    end = group.from;
  }
  if (end < 5 || text.at(2) != '[' || text.at(end - 1) != ']') return rawreport(text);
  report.message = text.substr(4, end - 5);
  return report;
}

static constexpr int64_t longest = 72;  // bytes of a shortened field

Str shortname(const Str& s) {
  if (s.len() == 5) return s + " \"";
  if (s.len() <= longest) return s;
  return s.substr(0, longest - 3) + "...";
}

// What closes an opening bracket; 0 for any other byte.
static uint8_t closerof(uint8_t c, bool wings) {
  if (c == '(') return ')';
  if (c == '[') return ']';
  return c == '{' && wings ? '}' : 0;
}

// Copies bytes as long as they and the closers that are still due fit. `open` holds those closers,
// the next one last.
static Str shorten(const Str& s, bool wings) {
  std::string out;
  std::vector<char> open;
  for (uint8_t c : s) {
    size_t used = out.size() + open.size();
    bool instring = !open.empty() && open.back() == ']';
    uint8_t closer = instring && c != '[' ? 0 : closerof(c, wings);
    if (used + (closer != 0 ? 2 : 1) > longest) break;
    if (closer != 0) {
      open.push_back(static_cast<char>(closer));
    } else if (!open.empty() && open.back() == static_cast<char>(c)) {
      open.pop_back();
    }
    out += static_cast<char>(c);
  }
  out.append(open.rbegin(), open.rend());
  return Str(out.data(), static_cast<int64_t>(out.size()));
}

Str shorttext(const Str& s) { return shorten(s, true); }
Str shortcode(const Str& s) { return shorten(s, false); }

}  // namespace tarn
