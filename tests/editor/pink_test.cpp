// The look of bytes: the class, the glyph and the colours of each.
#include "editor/pink.h"

#include <gtest/gtest.h>

#include <string>

#include "editor/kink.h"
#include "editor/state.h"
#include "tests/editor/buffer.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct Pink : testing::Test {
  void TearDown() override { kink = defaultkink; }
};

TEST_F(Pink, Classes) {
  for (int b = 0; b < 256; b++) {
    int32_t expected = b >= 0xA1 && b <= 0xFE ? 1 : b >= 0x21 && b <= 0x7E ? 3 : 2;
    EXPECT_EQ(byteclass(static_cast<uint8_t>(b)), expected) << b;
  }
}

TEST_F(Pink, Glyphs) {
  auto glyph = [](int b) { return static_cast<char>(byteglyph(static_cast<uint8_t>(b))); };
  EXPECT_EQ(glyph(0xFF), ']');
  EXPECT_EQ(glyph(0), 'J');
  EXPECT_EQ(glyph(1), 'A');
  EXPECT_EQ(glyph(9), 'I');
  EXPECT_EQ(glyph(10), ',');
  EXPECT_EQ(glyph(0x0B), 'K');
  EXPECT_EQ(glyph(0x1A), 'Z');
  std::string low, high, digits;
  for (int b = 0x1B; b <= 0x20; b++) low += glyph(b);
  for (int b = 0x7F; b <= 0x96; b++) high += glyph(b);
  for (int b = 0x97; b <= 0xA0; b++) digits += glyph(b);
  EXPECT_EQ(low, "(){}[_");
  EXPECT_EQ(high, "~!@#$%^&*<>-|+/=\\.`'\":;?");
  EXPECT_EQ(digits, "0123456789");
  for (int b = 0x21; b <= 0x7E; b++) EXPECT_EQ(glyph(b), b);
  for (int b = 0xA1; b <= 0xFE; b++) EXPECT_EQ(glyph(b), b - 128);
}

TEST_F(Pink, Foregrounds) {
  // n12 is 9: clean insert and clean overwrite use scheme A.
  for (int32_t c = 1; c <= 3; c++) {
    uint32_t plain = static_cast<uint32_t>(c), bright = plain + 8;
    EXPECT_EQ(pinkfore(false, false, c), plain);
    EXPECT_EQ(pinkfore(false, true, c), bright - 8);
    EXPECT_EQ(pinkfore(true, false, c), bright);
    EXPECT_EQ(pinkfore(true, true, c), bright);
  }
}

TEST_F(Pink, EachFlagIsOfItsState) {
  struct {
    uint64_t flag;
    bool changed, overwrite;
  } rows[] = {{1, false, true}, {2, true, true}, {4, true, false}, {8, false, false}};
  for (auto& set : rows) {
    kink = 0x000000ba90000321 | set.flag << 48;
    for (auto& state : rows) {
      EXPECT_EQ(pinkfore(state.changed, state.overwrite, 1), set.flag == state.flag ? 1u : 9u)
          << set.flag << " " << state.flag;
    }
  }
}

TEST_F(Pink, NoOtherClass) {
  EXPECT_DIES(pinkfore(false, false, 0));
  EXPECT_DIES(pinkfore(false, false, 4));
}

TEST_F(Pink, CellsOfTheFourStates) {
  // Every nibble its own colour, but n12, the flags: 5 is clean overwrite and changed insert.
  kink = 0xFED5BA9876543210;
  kink = (kink & ~(0xFULL << 48)) | 0x5ULL << 48;
  Buffer b("a");
  // Clean insert, flag clear: scheme B, background n3, selected n14.
  EXPECT_EQ(pinkcell(false, false, false, 'a'), 0x3961);
  EXPECT_EQ(pinkcell(true, false, false, 'a'), 0xE961);
  EXPECT_EQ(pinkblank(false, false), 0x3320);
  EXPECT_EQ(pinkblank(true, false), 0xEE20);
  b.s().insertmode = 0;  // clean overwrite, flag set: scheme A, background n6, selected n13
  EXPECT_EQ(pinkcell(false, false, false, 'a'), 0x6261);
  EXPECT_EQ(pinkcell(true, false, false, 'a'), 0xD261);
  b.s().insertmode = 1;
  b.type("x");  // changed insert, flag set: scheme A, background n4
  EXPECT_EQ(pinkcell(false, true, false, 'a'), 0x42E1);
  EXPECT_EQ(pinkcell(false, false, false, 0xE1), 0x4061);
  EXPECT_EQ(pinkcell(false, false, false, 1), 0x4141);
  b.s().insertmode = 0;  // changed overwrite, flag clear: scheme B, background n5
  EXPECT_EQ(pinkcell(false, false, false, 'a'), 0x5961);
  EXPECT_EQ(pinkblank(true, false), 0xEE20);
  // The status row of the lists does not depend on the state.
  EXPECT_EQ(pinkcell(false, false, true, 'a'), 0xB961);
  EXPECT_EQ(pinkcell(true, false, true, 'a'), 0xA961);
  EXPECT_EQ(pinkcell(false, false, true, 0xE1), 0xB761);
  EXPECT_EQ(pinkcell(false, false, true, 1), 0xB841);
  EXPECT_EQ(pinkblank(false, true), 0xBB20);
  EXPECT_EQ(pinkblank(true, true), 0xAA20);
}

// Every cell of the present table beside the cell made for the byte.
static void expectpresent() {
  const PinkTable& pinks = presentpinks();
  for (int32_t status = 0; status < 2; status++) {
    for (int32_t chosen = 0; chosen < 2; chosen++) {
      EXPECT_EQ(pinks.blanks[status][chosen], pinkblank(chosen != 0, status != 0));
      for (int32_t b = 0; b < 256; b++) {
        EXPECT_EQ(pinks.cells[status][chosen][b],
                  pinkcell(chosen != 0, false, status != 0, static_cast<uint8_t>(b)));
      }
    }
  }
}

TEST_F(Pink, TheTableFollowsStateAndPalette) {
  Buffer b("a");
  for (uint64_t palette : {defaultkink, uint64_t{0xFED5BA9876543210}, defaultkink}) {
    kink = palette;
    expectpresent();
    b.s().insertmode = 0;
    expectpresent();
    b.type("x");
    expectpresent();
    b.s().insertmode = 1;
    expectpresent();
    sheetdrop(b.s());
    b.s() = sheetnew("a");
  }
}

}  // namespace
}  // namespace tarn
