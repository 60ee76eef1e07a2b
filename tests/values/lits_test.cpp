// Packing and unpacking, and the real form.
#include "values/lits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "graph/definitions.h"
#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/bytes.h"
#include "values/post.h"
#include "values/real.h"
#include "values/realform.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }
CellRef post(const std::string& payload) { return postmake(strbytes(strof(payload))); }
CellRef cons(CellRef head, CellRef tail) { return cellapply2(leaf("J"), head, tail); }

// The elements of a list as letters, with the text of the tail behind a dot.
std::string letters(Cell* list) {
  std::string s;
  for (; cellispair(list); list = rightlink(list)) {
    EXPECT_TRUE(leafisbyte(leftlink(leftlink(list)), 'J'));
    s += textof(rightlink(leftlink(list)));
  }
  return s + "." + textof(list);
}

// Names must be defined for the kind of a pair to be asked.
struct Lits : testing::Test {
  Lits() {
    for (const char* name : {"J", "K", "H", "V", "I", "foo"}) defset(Str(name), leaf("0"));
  }
  ~Lits() override { defclear(); }
};
using RealForm = Lits;

TEST_F(Lits, PacksListsAndKeepsLeaves) {
  EXPECT_EQ(textof(valuelits(cons(leaf("K"), cons(leaf("K"), leaf("K"))))), "1");
  EXPECT_EQ(textof(valuelits(cons(leaf("K"), leaf("5")))), "11");
  EXPECT_EQ(textof(valuelits(leaf("K"))), "K");
  CellRef x = leaf("0123");
  EXPECT_EQ(valuelits(x), x);
}

TEST_F(Lits, PacksNothingElseOfTheVoids) {
  EXPECT_EQ(textof(valuelits(leaf("H"))), "Z");
  EXPECT_EQ(textof(valuelits(leaf("Z"))), "Z");
  EXPECT_EQ(textof(valuelits(craynew(1))), "Z");
  EXPECT_EQ(textof(valuelits(cons(leaf("1"), leaf("K")))), "Z");
  EXPECT_EQ(textof(valuelits(cons(leaf("K"), leaf("foo")))), "Z");
  EXPECT_EQ(textof(valuelits(cons(leaf("K"), cons(leaf("I"), leaf("K"))))), "Z");
}

TEST_F(Lits, ReadsEightBytesOfText) {
  EXPECT_EQ(textof(valuelits(leaf("[a]"))), "97");
  EXPECT_EQ(textof(valuelits(leaf("[ab]"))), "25185");  // 97 + 256 * 98
  EXPECT_EQ(textof(valuelits(leaf("[]"))), "0");
  EXPECT_EQ(textof(valuelits(post(""))), "0");
  EXPECT_EQ(textof(valuelits(post("a"))), "97");
  EXPECT_EQ(textof(valuelits(post("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"))), "01");
  EXPECT_EQ(textof(valuelits(post(std::string(7, '\0') + "\x80xyz"))), "09223372036854775808");
  // The bytes of -1.0: 0xBFF0 << 48, less 2^64.
  EXPECT_EQ(textof(valuelits(post(std::string(6, '\0') + "\xF0\xBF"))), "04616189618054758400");
}

TEST_F(Lits, PacksReals) {
  EXPECT_EQ(textof(valuelits(realleaf(0.5))), "002");
  EXPECT_EQ(textof(valuelits(realleaf(1.0))), "001");
  EXPECT_EQ(textof(valuelits(realleaf(-1.0))), "000");
  EXPECT_EQ(textof(valuelits(realleaf(0.0))), "000");
  EXPECT_EQ(textof(valuelits(realleaf(std::numeric_limits<double>::infinity()))), "00");
}

TEST_F(Lits, UnpacksNumbers) {
  EXPECT_EQ(letters(valuelots(leaf("0"))), "K.K");
  EXPECT_EQ(letters(valuelots(leaf("1"))), "KK.K");
  EXPECT_EQ(letters(valuelots(leaf("01"))), "KH.K");
  EXPECT_EQ(letters(valuelots(leaf("2"))), "KKH.K");
  EXPECT_EQ(letters(valuelots(leaf("3"))), "KKK.K");
  EXPECT_EQ(letters(valuelots(leaf("00"))), "H.K");
  EXPECT_EQ(letters(valuelots(leaf("0005"))), "HHKKH.K");  // 44 less the top: 0 0 1 1 0
  EXPECT_EQ(letters(valuelots(cons(leaf("K"), leaf("5")))), "KKKKH.K");
  EXPECT_EQ(letters(valuelots(leaf("K"))), ".K");
}

TEST_F(Lits, UnpacksNothingElse) {
  for (const char* text : {"H", "Z", "foo"}) {
    if (std::string(text) == "Z") defset(Str("Z"), leaf("0"));
    EXPECT_EQ(textof(valuelots(leaf(text))), "Z") << text;
  }
  EXPECT_EQ(textof(valuelots(craynew(0))), "Z");
  EXPECT_EQ(textof(valuelots(cons(leaf("H"), leaf("foo")))), "Z");
}

TEST_F(Lits, UnpacksRealsToTheirPattern) {
  std::string one = std::string(52, 'H') + "KKKKKKKKKK" + "HH";  // 1.0 is 0x3FF << 52
  EXPECT_EQ(letters(valuelots(realleaf(1.0))), one + ".K");
  EXPECT_EQ(letters(valuelots(realleaf(-0.0))), std::string(63, 'H') + "K.K");
  EXPECT_EQ(cellkind(valuelots(realleaf(1.0))), 'o');
}

TEST_F(Lits, UnpacksPosts) {
  EXPECT_EQ(letters(valuelots(post(""))), "K.K");
  EXPECT_EQ(letters(valuelots(post("\x01"))), "K.K");
  EXPECT_EQ(letters(valuelots(post("\x05"))), "KKH.K");       // K, and 101 less its top
  EXPECT_EQ(letters(valuelots(post(std::string("\x05\0\0", 3)))), "HHKKH.K");
  EXPECT_EQ(letters(valuelots(post(std::string("\0\0", 2)))), "HHK.K");
  EXPECT_EQ(letters(valuelots(post(std::string("\0\x01", 2)))), "KHHHHHHHH.K");
}

TEST_F(Lits, PackingUndoesUnpacking) {
  Random random(11);
  for (int i = 0; i < 1000; i++) {
    std::string digits = randomdigits(random, 40);
    const char* prefixes[] = {"", "0", "00", "000"};
    std::string text = digits == "0" ? digits : prefixes[i % 4] + digits;
    ASSERT_EQ(textof(valuelits(valuelots(leaf(text)))), text);
  }
}

// --- real ----------------------------------------------------------------------------------------

CellRef fork(CellRef left, CellRef right) { return cellapply2(leaf("V"), left, right); }

// The tree of 2^depth bits from bit `from` on.
CellRef treeof(uint64_t bits, int from, int depth) {
  if (depth == 0) return leafbyte(bits >> from & 1 ? 'K' : 'H');
  return fork(treeof(bits, from, depth - 1), treeof(bits, from + (1 << (depth - 1)), depth - 1));
}

CellRef treeof(double d) {
  uint64_t bits;
  memcpy(&bits, &d, 8);
  return treeof(bits, 0, 6);
}

TEST_F(RealForm, OfNumbers) {
  CellRef x = realleaf(1.5);
  EXPECT_EQ(valuereal(x), x);
  EXPECT_EQ(realvalue(valuereal(leaf("5"))), 5.0);
  EXPECT_EQ(realvalue(valuereal(leaf("05"))), -5.0);
  EXPECT_EQ(realvalue(valuereal(leaf("0"))), 0.0);
  EXPECT_FALSE(std::signbit(realvalue(valuereal(leaf("0")))));
  EXPECT_EQ(realvalue(valuereal(leaf("004"))), 2.0);
  EXPECT_EQ(realvalue(valuereal(leaf("00"))), 0.0);
  EXPECT_EQ(realvalue(valuereal(leaf("000"))), -1.0);
  EXPECT_EQ(realvalue(valuereal(cons(leaf("K"), leaf("5")))), 11.0);
  EXPECT_EQ(textof(valuereal(cons(leaf("K"), leaf("foo")))), "Z");
}

TEST_F(RealForm, OfText) {
  EXPECT_EQ(realvalue(valuereal(leaf("[1.5]"))), 1.5);
  EXPECT_EQ(realvalue(valuereal(leaf("[-1e3xyz]"))), -1000.0);
  EXPECT_EQ(realvalue(valuereal(leaf("[05]"))), 5.0);
  EXPECT_EQ(realvalue(valuereal(leaf("[]"))), 0.0);
  EXPECT_EQ(realvalue(valuereal(post("2.25"))), 2.25);
  EXPECT_EQ(realvalue(valuereal(post(std::string("2\0005", 3)))), 2.0);
}

TEST_F(RealForm, OfTheTreeOfItsBits) {
  for (double d : {0.0, 1.5, -1.5, 1e300, 5e-324}) EXPECT_EQ(realvalue(valuereal(treeof(d))), d);
}

TEST_F(RealForm, OfNothingElse) {
  EXPECT_EQ(textof(valuereal(leaf("K"))), "Z");
  EXPECT_EQ(textof(valuereal(craynew(0))), "Z");
  EXPECT_EQ(textof(valuereal(fork(leaf("K"), leaf("H")))), "Z");
  CellRef half = treeof(0, 0, 5);
  EXPECT_EQ(textof(valuereal(fork(half, leaf("K")))), "Z");
  CellRef bytes = treeof(0, 0, 4);
  EXPECT_EQ(textof(valuereal(fork(half, fork(bytes, fork(treeof(0, 0, 3), leaf("K")))))), "Z");
}

TEST_F(RealForm, DiesOnAMalformedByte) {
  CellRef bits = fork(leaf("I"), leaf("K"));
  CellRef byte = fork(fork(bits, bits), fork(bits, bits));
  CellRef four = fork(fork(byte, byte), fork(byte, byte));
  EXPECT_FAILS(valuereal(fork(four, four)), "values/realform");
  CellRef flat = fork(leaf("K"), leaf("K"));  // a byte whose halves are no forks
  CellRef flats = fork(fork(flat, flat), fork(flat, flat));
  EXPECT_FAILS(valuereal(fork(flats, flats)), "values/realform");
}

}  // namespace
}  // namespace tarn
