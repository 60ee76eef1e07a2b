// The frames of the machine.
#include "graph/state.h"

#include <cstdlib>

namespace tarn {

constexpr int64_t firstroom = 64;  // frames

void growframes(State& s) {
  int64_t used = s.top - s.frames;
  int64_t room = used == 0 ? firstroom : 2 * used;
  void* moved = realloc(s.frames, static_cast<size_t>(room) * sizeof(uint64_t));
  s.frames = static_cast<uint64_t*>(moved);
  s.top = s.frames + used;
  s.end = s.frames + room;
}

// What dies may run a finaliser, which has a state of its own.
void dropframes(State& s) {
  for (uint64_t* f = s.frames; f != s.top; f++) cellunhold(framecell(*f));
  s.top = s.frames;
}

}  // namespace tarn
