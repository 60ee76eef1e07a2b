// The text store against a plain string: random changes, saves and comings back, and after each of
// them the text, the rules of the tree, and the difference bounds.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "editor/bounds.h"
#include "editor/sheet.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Player {
  std::mt19937_64 random;
  int letters;        // how many different bytes: few of them make repeats and false matches
  size_t longest;     // of a piece put in
  std::string model;
  std::string saved;
  sheet s;

  size_t below(size_t n) { return static_cast<size_t>(random() % n); }
  uint8_t byte() {
    size_t pick = below(static_cast<size_t>(letters) + 1);
    return pick == 0 ? 10 : static_cast<uint8_t>('a' + pick - 1);
  }
  std::string piece(size_t most) {
    std::string made(below(most + 1), ' ');
    for (char& c : made) c = static_cast<char>(byte());
    return made;
  }
};

void setpoint(Player& run, size_t i) { run.s.point = static_cast<int32_t>(i); }

void insertstep(Player& run) {
  size_t at = run.below(run.model.size() + 1);
  uint8_t byte = run.byte();
  setpoint(run, at);
  insertbyte(run.s, byte);
  EXPECT_EQ(run.s.point, static_cast<int32_t>(at));
  run.model.insert(at, 1, static_cast<char>(byte));
}

void deletestep(Player& run) {
  if (run.model.empty()) return;
  size_t at = run.below(run.model.size());
  setpoint(run, at);
  deletebyte(run.s);
  run.model.erase(at, 1);
}

void replacestep(Player& run) {
  size_t at = run.below(run.model.size() + 1);
  uint8_t byte = run.byte();
  setpoint(run, at);
  replacebyte(run.s, byte);
  if (at < run.model.size()) run.model[at] = static_cast<char>(byte);
  EXPECT_EQ(run.s.point, static_cast<int32_t>(at < run.model.size() ? at + 1 : at));
}

void insertmanystep(Player& run) {
  size_t at = run.below(run.model.size() + 1);
  std::string piece = run.piece(run.longest);
  setpoint(run, at);
  insertstring(run.s, strof(piece));
  run.model.insert(at, piece);
  EXPECT_EQ(run.s.point, static_cast<int32_t>(at + piece.size()));
}

void deletemanystep(Player& run) {
  size_t at = run.below(run.model.size() + 1);
  size_t n = run.below(std::min(run.model.size() - at, run.longest) + 1);
  setpoint(run, at);
  deletecount(run.s, static_cast<int64_t>(n));
  run.model.erase(at, n);
}

// Back to the saved text, or to a mixture of it and the present one.
void retextstep(Player& run) {
  size_t cut = run.below(std::min(run.model.size(), run.saved.size()) + 1);
  std::string text = run.saved;
  if (run.below(2) == 0) text = run.saved.substr(0, cut) + run.model.substr(cut);
  setpoint(run, run.below(run.model.size() + 1));
  int64_t point = run.s.point;
  retext(run.s, strof(text));
  run.model = text;
  EXPECT_EQ(run.s.point, std::min(point, static_cast<int64_t>(text.size())));
}

void savestep(Player& run) {
  markclean(run.s);
  run.saved = run.model;
}

void agree(const Player& run) {
  ASSERT_EQ(size(run.s), static_cast<int64_t>(run.model.size()));
  ASSERT_EQ(textof(flatten(run.s)), run.model);
  ASSERT_EQ(textof(run.s.saved), run.saved);
  checkshards(run.s.root);
  checkbounds(run.s);
  ASSERT_EQ(isclean(run.s), run.model == run.saved);
  for (size_t i = 0; i < run.model.size(); i++) {
    int64_t at = static_cast<int64_t>(i);
    if (ischanged(run.s, at)) continue;
    bool head = i < run.saved.size() && run.saved[i] == run.model[i];
    size_t fromend = run.model.size() - i;
    size_t mirror = run.saved.size() - fromend;
    bool tail = fromend <= run.saved.size() && run.saved[mirror] == run.model[i];
    ASSERT_TRUE(head || tail) << i;
  }
}

using Step = void (*)(Player&);
constexpr Step steps[] = {insertstep,     insertstep,     insertstep,     deletestep, deletestep,
                          replacestep,    replacestep,    insertmanystep, insertmanystep,
                          deletemanystep, deletemanystep, retextstep,     savestep};

void runsteps(uint64_t seed, int letters, size_t longest, int count) {
  Player run = {std::mt19937_64(seed), letters, longest, {}, {}, {}};
  run.saved = run.model = run.piece(40);
  run.s = sheetnew(strof(run.model));
  for (int i = 0; i < count; i++) {
    steps[run.below(std::size(steps))](run);
    ASSERT_NO_FATAL_FAILURE(agree(run)) << "seed " << seed << " step " << i;
  }
  sheetdrop(run.s);
}

TEST(StoreProperty, FewBytesOfOneLetter) {
  for (uint64_t seed = 0; seed < 60; seed++) runsteps(seed, 1, 3, 60);
}

TEST(StoreProperty, ShortTextsOfTwoLetters) {
  for (uint64_t seed = 100; seed < 160; seed++) runsteps(seed, 2, 6, 80);
}

TEST(StoreProperty, LongPiecesGoInAsRuns) {
  for (uint64_t seed = 200; seed < 220; seed++) runsteps(seed, 2, 600, 60);
}

TEST(StoreProperty, ManyLetters) {
  for (uint64_t seed = 300; seed < 320; seed++) runsteps(seed, 26, 40, 150);
}

}  // namespace
}  // namespace tarn
