// Which key runs which command, and what happens around a command.
#include "editor/dispatch.h"

#include <gtest/gtest.h>

#include <string>

#include "editor/grid.h"
#include "editor/paint.h"
#include "editor/state.h"
#include "editor/status.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

// The keys in the order of the table: "=" the whole of `line`, "^" its beginning.
const char* const order =
    "^TAB ^C-SP =C-a =C-b =C-d =C-e =C-f =C-g =C-h =C-k =C-l =C-n =C-p =C-r =C-t =C-u =C-w =C-x "
    "=C-\\ =C-_ ^ESC a ^ESC b =ESC c =ESC d ^ESC e ^ESC f =ESC g =ESC h ^ESC i ^ESC j ^ESC k "
    "^ESC l ^ESC m =ESC n ^ESC o ^ESC p ^ESC q =ESC r =ESC u ^ESC s ^ESC t =ESC v ^ESC w =ESC z "
    "^ESC x =ESC y ";

TEST(Keytable, StandsInItsOrder) {
  std::string all;
  for (int64_t i = 0; i < keyrows; i++) {
    all += keytable[i].match == KeyMatch::whole ? "=" : "^";
    all += std::string(keytable[i].name) + " ";
  }
  EXPECT_EQ(all, order);
}

TEST(Keytable, TheNamesSayTheKeys) {
  for (int64_t i = 0; i < keyrows; i++) {
    const KeyRow& row = keytable[i];
    std::string name = row.name;
    if (name.substr(0, 4) == "ESC ") {
      EXPECT_EQ(row.length, 2) << name;
      EXPECT_EQ(row.keys[0], 0x1B) << name;
      EXPECT_EQ(row.keys[1], name[4]) << name;
    } else {
      EXPECT_EQ(row.length, 1) << name;
      int key = name == "TAB" ? 9 : name == "C-SP" ? 0 : name[2] & 0x1F;
      EXPECT_EQ(row.keys[0], key) << name;
    }
  }
}

int paints = 0;

struct Dispatch : testing::Test {
  void SetUp() override {
    paints = 0;
    repaint = countpaint;
    line = Str();
    gridreset();
  }
  void TearDown() override {
    line = Str();
    repaint = paintfile;
    suppressed = false;
    showsfault = false;
    mark = -1;
    inkmode = 3;
  }
  static void countpaint() { paints++; }
  static void press(const std::string& keys) {
    line = strof(keys);
    dispatch();
  }
};

TEST_F(Dispatch, ACommandClearsTheLineAndPaintsOnce) {
  Buffer b("abc");
  press("\x06");
  EXPECT_EQ(b.point(), 1);
  EXPECT_EQ(line, "");
  EXPECT_EQ(paints, 1);
  suppressed = true;
  press("\x06");
  EXPECT_EQ(b.point(), 2);
  EXPECT_EQ(paints, 1);
}

TEST_F(Dispatch, Arrows) {
  Buffer b("abc\nabc\nabc");
  b.go(5);
  press("\x1B[C");
  EXPECT_EQ(b.point(), 6);
  press("\x1B[D");
  EXPECT_EQ(b.point(), 5);
  press("\x1B[B");
  EXPECT_EQ(b.point(), 9);
  press("\x1B[A");
  EXPECT_EQ(b.point(), 5);
  EXPECT_EQ(line, "");
  press("\x1B[1;5C");  // what stands before the final byte is not looked at
  EXPECT_EQ(b.point(), 6);
}

TEST_F(Dispatch, OtherSequencesAreDropped) {
  Buffer b("abc");
  for (const char* keys : {"\x1B[E", "\x1B[15~", "\x1B[[", "\x1B[1 q", "\x1B[\x07", "\x1B[5\n"}) {
    press(keys);
    EXPECT_EQ(line, "") << keys + 1;
  }
  EXPECT_EQ(b.point(), 0);
  EXPECT_EQ(b.text(), "abc");
  EXPECT_EQ(paints, 0);
}

TEST_F(Dispatch, ASequenceWithoutAFinalByteStays) {
  Buffer b("abc");
  for (const char* keys : {"\x1B[ 1", "\x1B[\x7F", "\x1B[1\x80"}) {
    press(keys);
    EXPECT_EQ(textof(line), keys);
  }
  EXPECT_EQ(paints, 0);
}

TEST_F(Dispatch, WhatNoCommandTakesIsDropped) {
  Buffer b("abc");
  for (const char* keys :
       {"\x03", "\r", "\x1D", "\x1E", "\x1B\x1B", "\x1BO", "\x1B" "A", "\x1B ", "\x1B\x07", "\x80",
        "\xFF", "\xC3\xA9", "\x1B\xC3\xA9", "\x06\x06", "ab"}) {
    press(keys);
    EXPECT_EQ(line, "") << keys;
  }
  EXPECT_EQ(b.text(), "abc");
  EXPECT_EQ(b.point(), 0);
  EXPECT_EQ(paints, 0);
}

TEST_F(Dispatch, PrintableBytesAreTyped) {
  Buffer b("");
  std::string all;
  for (int key = 0x20; key <= 0x7E; key++) {
    press(std::string(1, static_cast<char>(key)));
    all += static_cast<char>(key);
  }
  press("\n");
  EXPECT_EQ(b.text(), all + "\n");
  press("\x7F");
  EXPECT_EQ(b.text(), all);
}

TEST_F(Dispatch, EveryCommandButTheKillStartsTheChainAnew) {
  Buffer b("abc");
  for (const char* keys : {"\x06", "\x1B[C", "x", "\x7F", "\x07", "\x1Bg", "\x1Bl"}) {
    killchain = false;
    press(keys);
    EXPECT_TRUE(killchain) << keys;
  }
  b.go(0);
  line = Str();
  press("\x0B");
  EXPECT_FALSE(killchain);
}

TEST_F(Dispatch, ReplayActsOnTheLastKeyAlone) {
  Buffer b("abc");
  suppressed = true;
  press("\x1Bs");
  press("\x1Bs" "b");
  EXPECT_EQ(b.point(), 2);
  press("\x1Bs" "b\x1B[C");
  EXPECT_EQ(b.point(), 3);
  EXPECT_EQ(line, "");
  EXPECT_EQ(repaint, paintfile);
  EXPECT_EQ(stat, "/test");
  EXPECT_TRUE(suppressed);
  EXPECT_TRUE(owespaint());
}

TEST_F(Dispatch, AFaultShownIsLeftByTheNextKey) {
  Buffer b("abc");
  suppressed = true;
  showsfault = true;
  stat = "a fault";
  press("\x06");
  EXPECT_EQ(b.point(), 1);
  EXPECT_EQ(stat, "/test");
  EXPECT_EQ(repaint, paintfile);
  EXPECT_FALSE(showsfault);
}

TEST(Status, TheTailOfALongTextShows) {
  width = 20;
  setstat("12345678901234");
  EXPECT_EQ(statshift, 0);
  setstat("123456789012345");
  EXPECT_EQ(statshift, 1);
  setstat("");
  EXPECT_EQ(statshift, 0);
  width = 80;
}

}  // namespace
}  // namespace tarn
