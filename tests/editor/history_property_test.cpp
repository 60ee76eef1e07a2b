// The history under random edits, undos, redos and saves: every state can be reached again.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "editor/bounds.h"
#include "editor/oper.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Player {
  std::mt19937_64 random;
  Buffer& buffer;
  size_t below(size_t n) { return static_cast<size_t>(random() % n); }
  size_t size() { return static_cast<size_t>(tarn::size(buffer.s())); }
  uint8_t byte() { return "ab \n"[below(4)]; }
  Str piece(size_t most) {
    std::string made(below(most) + 1, ' ');
    for (char& c : made) c = static_cast<char>(byte());
    return strof(made);
  }
  void anywhere() { buffer.go(static_cast<int64_t>(below(size() + 1))); }
};

void typestep(Player& run) { run.anywhere(), opinsert(run.byte()); }
void backspacestep(Player& run) { run.anywhere(), opbackspace(); }
void pastestep(Player& run) { run.anywhere(), oppaste(run.piece(run.below(20) == 0 ? 400 : 5)); }
void runstep(Player& run) {
  run.anywhere();
  oprun(strnumber(static_cast<int64_t>(run.below(6))), 'a');
}
void modestep(Player& run) { run.buffer.s().insertmode ^= 1; }

void deletestep(Player& run) {
  run.anywhere();
  int64_t from = run.buffer.point();
  int64_t n = static_cast<int64_t>(run.below(6));
  opdelete(stretch(run.buffer.s(), from, std::min(from + n, tarn::size(run.buffer.s()))));
}

void replacestep(Player& run) {
  int64_t from = static_cast<int64_t>(run.below(run.size() + 1));
  int64_t to = from + static_cast<int64_t>(run.below(run.size() - static_cast<size_t>(from) + 1));
  run.anywhere();
  opreplace(from, to, run.piece(2), run.below(4) == 0 ? Str() : run.piece(3));
}

void indentstep(Player& run) {
  int64_t from = static_cast<int64_t>(run.below(run.size() + 1));
  int64_t to = from + static_cast<int64_t>(run.below(run.size() - static_cast<size_t>(from) + 1));
  run.anywhere();
  if (opindent(from, to, '\n')) return;
  opindent(from, to, run.below(2) == 0 ? 'a' : ' ');
}

using Step = void (*)(Player&);
constexpr Step edits[] = {typestep, typestep, typestep,    backspacestep, pastestep,
                          runstep,  modestep, replacestep, indentstep,    deletestep};

void sane(Buffer& buffer) {
  checkopers();
  checkshards(buffer.s().root);
  checkbounds(buffer.s());
  check(buffer.point() >= 0 && buffer.point() <= size(buffer.s()));
}

TEST(HistoryProperty, UndoingAllGivesEveryStateBackInTurn) {
  for (uint64_t seed = 0; seed < 60; seed++) {
    Buffer buffer("one two\n three\n\nfour");
    Player run = {std::mt19937_64(seed), buffer};
    std::vector<std::string> states = {buffer.text()};
    for (int i = 0; i < 60; i++) {
      size_t before = opers[buffer.name].size();
      edits[run.below(std::size(edits))](run);
      if (opers[buffer.name].size() != before) states.push_back(buffer.text());
      if (run.below(15) == 0) markclean(buffer.s());
      sane(buffer);
    }
    for (size_t i = states.size() - 1; i > 0; i--) {
      ASSERT_EQ(buffer.text(), states[i]) << "seed " << seed;
      run.anywhere();
      ASSERT_TRUE(editback());
      sane(buffer);
    }
    ASSERT_EQ(buffer.text(), states[0]);
    ASSERT_FALSE(editback());
    for (size_t i = 1; i < states.size(); i++) {
      run.anywhere();
      ASSERT_TRUE(editredo());
      ASSERT_EQ(buffer.text(), states[i]) << "seed " << seed;
      sane(buffer);
    }
    ASSERT_FALSE(editredo());
  }
}

// The whole past is a list of states. An edit or an undo adds one; undoing goes down the list, and
// after an edit it starts from the end again, through the undos themselves.
TEST(HistoryProperty, MixedWithUndoAndRedoEveryStateComesBack) {
  for (uint64_t seed = 100; seed < 180; seed++) {
    Buffer buffer("a b\n");
    Player run = {std::mt19937_64(seed), buffer};
    std::vector<std::string> past = {buffer.text()};
    size_t at = 0;        // the state in `past` that the text is at, while undoing
    size_t chain = 0;     // the undos in a row
    for (int i = 0; i < 120; i++) {
      size_t pick = run.below(10);
      if (pick < 4) {
        bool can = editback();
        ASSERT_EQ(can, at > 0);
        if (can) {
          chain++;
          at--;
          past.push_back(buffer.text());
          ASSERT_EQ(past.back(), past[at]) << "seed " << seed << " step " << i;
        }
      } else if (pick < 6) {
        bool can = editredo();
        ASSERT_EQ(can, chain > 0);
        if (can) {
          chain--;
          at++;
          past.pop_back();
          ASSERT_EQ(buffer.text(), past[at]) << "seed " << seed << " step " << i;
        }
      } else {
        size_t before = opers[buffer.name].size();
        edits[run.below(std::size(edits))](run);
        if (opers[buffer.name].size() == before) continue;
        past.push_back(buffer.text());
        at = past.size() - 1;
        chain = 0;
      }
      sane(buffer);
    }
  }
}

}  // namespace
}  // namespace tarn
