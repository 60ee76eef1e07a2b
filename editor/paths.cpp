// Names of files: the working out of segments.
#include "editor/paths.h"

#include <vector>

#include "editor/state.h"
#include "foundation/diag.h"

namespace tarn {

// The text as an absolute path, its segments not yet worked out.
static Str absolute(const Str& text) {
  if (text.len() >= 2 && text.at(0) == '~' && text.at(1) == '/') return home + text.substr(2);
  if (text.len() >= 1 && text.at(0) == '/') return text;
  return cwdpath + text;
}

// An absolute path cut into segments, each with its "/" in front.
static std::vector<Str> cutsegments(const Str& path) {
  std::vector<Str> segments;
  for (int64_t from = 0, to; from < path.len(); from = to) {
    to = from + 1;
    while (to < path.len() && path.at(to) != '/') to++;
    segments.push_back(path.substr(from, to - from));
  }
  return segments;
}

// A path with the segments "", "." and ".." worked out; false where ".." climbs above the root. The
// root is the empty text.
static bool settle(const Str& path, Str& settled) {
  std::vector<Str> kept;
  for (const Str& segment : cutsegments(path)) {
    if (segment == "/" || segment == "/.") continue;
    if (segment != "/..") {
      kept.push_back(segment);
    } else if (kept.empty()) {
      return false;
    } else {
      kept.pop_back();
    }
  }
  for (const Str& segment : kept) settled += segment;
  return true;
}

Str normalise(const Str& text) {
  check(!text.empty());
  check(text.at(text.len() - 1) != '/');
  Str settled;
  return settle(absolute(text), settled) ? settled : Str();
}

Str normalisedir(const Str& text) {
  if (text.empty()) return "/";
  Str settled;
  return settle(absolute(text), settled) ? settled + "/" : Str();
}

Str parentdir(const Str& path) {
  int64_t n = path.len();
  while (n > 0 && path.at(n - 1) != '/') n--;
  return path.substr(0, n);
}

Str drivelesspath(const Str& told) {
  check(told.len() >= 3);
  check((told.at(0) | 0x20) >= 'a' && (told.at(0) | 0x20) <= 'z');
  check(told.at(1) == ':' && told.at(2) == '\\');
  Str path = told.substr(2);
  uint8_t* bytes = path.own();
  for (int64_t i = 0; i < path.len(); i++) {
    if (bytes[i] == '\\') bytes[i] = '/';
  }
  return path.at(path.len() - 1) == '/' ? path : path + "/";
}

}  // namespace tarn
