// What the tests of the store and the history share: texts to and from std::string, and a buffer to
// edit that is gone when the test ends.
#pragma once

#include <string>

#include "editor/history.h"
#include "editor/sheet.h"
#include "editor/state.h"

namespace tarn {

inline std::string textof(const Str& s) { return {s.text(), static_cast<size_t>(s.len())}; }
inline Str strof(const std::string& s) { return Str(s.data(), static_cast<int64_t>(s.size())); }

// A buffer as it stands after its file has been read, made current.
struct Buffer {
  Str name;
  explicit Buffer(const std::string& text, const char* path = "/test") : name(path) {
    sheet made = openrecord(name);
    sheets[name] = text.empty() ? made : sheetnew(strof(text));
    currentname = name;
  }
  ~Buffer() { closefile(name); }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;

  sheet& s() { return sheets.at(name); }
  std::string text() { return textof(flatten(s())); }
  int64_t point() { return s().point; }
  void go(int64_t i) { s().point = static_cast<int32_t>(i); }
  void type(const std::string& keys) {
    for (char key : keys) opinsert(static_cast<uint8_t>(key));
  }
};

}  // namespace tarn
