// The record of an edit and the histories.
#include "editor/oper.h"

#include "foundation/diag.h"

namespace tarn {

// Lives to the end of the process, as the sheets do.
std::map<Str, std::vector<oper>>& opers = *new std::map<Str, std::vector<oper>>;

oper opermake(opertype w, int64_t t, Str data) {
  check(t >= 0 && t <= static_cast<int64_t>(opermask));
  return {std::move(data), static_cast<uint64_t>(w) << 60 | static_cast<uint64_t>(t)};
}

void opersett(oper& o, int64_t t) {
  check(t >= 0 && t <= static_cast<int64_t>(opermask));
  o.word = (o.word & ~opermask) | static_cast<uint64_t>(t);
}

void opersetv(oper& o, int64_t v) {
  check(v >= 0 && v <= static_cast<int64_t>(opermask));
  o.word = (o.word & ~(opermask << 30)) | static_cast<uint64_t>(v) << 30;
}

void checkopers() {
  for (const auto& [name, history] : opers) {
    check(!name.empty());
    check(!history.empty());
    check(history[0].word == static_cast<uint64_t>(opswapped) << 60 && history[0].data.empty());
    for (size_t i = 1; i < history.size(); i++) {
      check(operv(history[i]) == 2 * static_cast<int64_t>(i) - 1);
    }
  }
}

}  // namespace tarn
