// The keys of terminals: function keys whole and split over reads, and what is dropped.
#include "editor/termkeys.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace tarn {
namespace {

// What the keys of these reads are, each key's bytes between bars.
std::string keys(const std::vector<std::string>& reads, bool swapback = false) {
  static TermKeys t;
  t = {};
  t.swapback = swapback;
  std::string all;
  for (const std::string& bytes : reads) {
    memcpy(termbuffer(t), bytes.data(), bytes.size());
    termread(t, static_cast<int32_t>(bytes.size()));
    for (KeyText key = termkey(t); key.n > 0; key = termkey(t)) {
      all += std::string(reinterpret_cast<const char*>(key.bytes), key.n) + "|";
    }
  }
  return all;
}

struct FunctionRow {
  const char* sequence;
  const char* key;
};

const FunctionRow functionrows[] = {
    {"\x1B[H", "\x01|"},  {"\x1B[1~", "\x01|"}, {"\x1B[7~", "\x01|"}, {"\x1BOH", "\x01|"},
    {"\x1B[F", "\x05|"},  {"\x1B[4~", "\x05|"}, {"\x1B[8~", "\x05|"}, {"\x1BOF", "\x05|"},
    {"\x1B[5~", "\x15|"}, {"\x1B[6~", "\x04|"}, {"\x1B[2~", "\x18|"}, {"\x1B[3~", "\x1C|"},
    {"\x1BOA", "\x1B[A|"}, {"\x1BOB", "\x1B[B|"}, {"\x1BOC", "\x1B[C|"}, {"\x1BOD", "\x1B[D|"},
};

TEST(Termkeys, FunctionKeysInOneRead) {
  for (const FunctionRow& row : functionrows) {
    EXPECT_EQ(keys({row.sequence}), row.key) << row.sequence + 1;
    EXPECT_EQ(keys({std::string("a") + row.sequence + "b"}), std::string("a|") + row.key + "b|");
  }
}

TEST(Termkeys, FunctionKeysSplitAnywhere) {
  for (const FunctionRow& row : functionrows) {
    std::string whole = row.sequence;
    if (whole[1] == 'O') continue;
    for (size_t cut = 1; cut < whole.size(); cut++) {
      EXPECT_EQ(keys({whole.substr(0, cut), whole.substr(cut)}), row.key) << whole.substr(1);
    }
    std::vector<std::string> bytes;
    for (char c : whole) bytes.push_back(std::string(1, c));
    EXPECT_EQ(keys(bytes), row.key) << whole.substr(1);
  }
}

// ESC O at the end of a read is a key of its own, and nothing that the plain state knows. Its other
// half still makes the function key.
TEST(Termkeys, EscapeOSplit) {
  EXPECT_EQ(keys({"\x1B", "OH"}), "\x01|");
  EXPECT_EQ(keys({"\x1BO", "H"}), "\x1BO|\x01|");
  EXPECT_EQ(keys({"\x1BO", "x"}), "\x1BO|x|");
  EXPECT_EQ(keys({"\x1BO", "xH"}), "\x1BO|x|H|");
  EXPECT_EQ(keys({"\x1B", "O", "H"}), "\x1BO|H|");  // typed
}

TEST(Termkeys, OtherKeysPassAsTheyCame) {
  EXPECT_EQ(keys({"ab\x07"}), "a|b|\x07|");
  EXPECT_EQ(keys({"\x1B" "e"}), "\x1B" "e|");
  EXPECT_EQ(keys({"\x1B\x07"}), "\x1B\x07|");
  EXPECT_EQ(keys({"\x1B[A"}), "\x1B[|A|");
  EXPECT_EQ(keys({"\x1B[1;5C"}), "\x1B[|1|;|5|C|");
  EXPECT_EQ(keys({"\x1B[15~"}), "\x1B[|1|5|~|");
  EXPECT_EQ(keys({"\x1B[1", "5~"}), "\x1B[|1|5|~|");
  EXPECT_EQ(keys({"\xC3\xA9"}), "\xC3|\xA9|");
}

TEST(Termkeys, AnEscapeWaitsForItsKey) {
  EXPECT_EQ(keys({"\x1B"}), "");
  EXPECT_EQ(keys({"\x1B", "e"}), "\x1B" "e|");
  EXPECT_EQ(keys({"\x1B["}), "");
  EXPECT_EQ(keys({"\x1B[", "x"}), "\x1B[|x|");
  EXPECT_EQ(keys({"\x1B\x1B"}), "\x1B\x1B|");
  EXPECT_EQ(keys({"\x1B", "\x1B"}), "\x1B\x1B|");
}

TEST(Termkeys, UnknownKeysOfOneReadAreDropped) {
  for (int c = 0x40; c <= 0x7E; c++) {
    if (strchr("HFABCD", c) != nullptr) continue;
    EXPECT_EQ(keys({std::string("a\x1BO") + static_cast<char>(c) + "b"}), "a|b|") << c;
  }
  EXPECT_EQ(keys({"\x1BOP\x1BOQ"}), "");
  EXPECT_EQ(keys({"\x1BO5"}), "\x1BO|5|");  // no function key ends so
  EXPECT_EQ(keys({"\x1B", "OP"}), "\x1BO|P|");
}

TEST(Termkeys, FunctionKeysOfABareConsoleAreDropped) {
  EXPECT_EQ(keys({"\x1B[[A"}), "");
  EXPECT_EQ(keys({"\x1B[[Eb"}), "b|");
  EXPECT_EQ(keys({"\x1B[", "[", "B"}), "");
  EXPECT_EQ(keys({"\x1B[[", "5"}), "\x1B[|[|5|");
}

TEST(Termkeys, AltArrowsOfOneReadAreDropped) {
  EXPECT_EQ(keys({"\x1B\x1B[A"}), "");
  EXPECT_EQ(keys({"\x1B\x1B[1;3Dx"}), "x|");
  EXPECT_EQ(keys({"\x1B\x1BOA"}), "");
  EXPECT_EQ(keys({"\x1B\x1B[1", "A"}), "\x1B\x1B|[|1|A|");
}

// Escape and then an arrow are no key together, and the arrow must not type its letter.
TEST(Termkeys, AFunctionKeyBehindATypedEscapeIsDroppedWithIt) {
  EXPECT_EQ(keys({"\x1B", "\x1B[A"}), "");
  EXPECT_EQ(keys({"\x1B", "\x1B[5~x"}), "x|");
  EXPECT_EQ(keys({"\x1B", "\x1BOAx"}), "x|");
  EXPECT_EQ(keys({"\x1B", "\x1B", "[A"}), "\x1B\x1B|[|A|");  // typed
}

TEST(Termkeys, ABackspaceOf8ChangesPlacesWithDelete) {
  EXPECT_EQ(keys({"\x08\x7F"}), "\x08|\x7F|");
  EXPECT_EQ(keys({"\x08\x7F"}, true), "\x7F|\x08|");
  EXPECT_EQ(keys({"a", "\x08"}, true), "a|\x7F|");
}

TEST(Termkeys, AFullReadBehindAHeldKey) {
  std::string full(termroom, 'a');
  full[0] = '5';
  full[1] = '~';
  std::string expected = "\x15|";
  for (int32_t i = 2; i < termroom; i++) expected += "a|";
  EXPECT_EQ(keys({"\x1B[", full}), expected);
}

}  // namespace
}  // namespace tarn
