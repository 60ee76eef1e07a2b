// Numbers as lists of truth values.
#include "values/bitlist.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/bits.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }

// The list of these elements, by their letters, before a tail.
CellRef listof(const std::string& elements, CellRef tail) {
  for (auto letter = elements.rbegin(); letter != elements.rend(); letter++) {
    tail = cellapply2(leaf("J"), leafbyte(static_cast<uint8_t>(*letter)), tail);
  }
  return tail;
}

std::string packed(const std::string& elements, const char* tail) {
  return textof(digitform(listof(elements, leaf(tail))));
}

TEST(BitList, ListsOfSmallNumbers) {
  EXPECT_EQ(packed("K", "K"), "0");
  EXPECT_EQ(packed("KK", "K"), "1");
  EXPECT_EQ(packed("KH", "K"), "01");
  EXPECT_EQ(packed("KKH", "K"), "2");
  EXPECT_EQ(packed("KKK", "K"), "3");
  EXPECT_EQ(packed("H", "K"), "00");
  EXPECT_EQ(packed("HK", "K"), "001");
  EXPECT_EQ(packed("HH", "K"), "000");
}

TEST(BitList, ATailOfDigitsStandsForTheRest) {
  EXPECT_EQ(packed("K", "0"), "1");    // K before K
  EXPECT_EQ(packed("K", "00"), "01");  // K before H
  EXPECT_EQ(packed("K", "5"), "11");   // K before K K K H
  CellRef long1 = listof("KKHHKHKKKHH", leaf("98765432109876543210"));
  CellRef long2 = listof("KKHHKHKKKHH", listofbits(bitsofterm(leaf("98765432109876543210")),
                                                   leafbyte('K')));
  EXPECT_EQ(textof(digitform(long1)), textof(digitform(long2)));
}

TEST(BitList, WholeLists) {
  EXPECT_TRUE(iswholelist(listof("KH", leaf("K"))));
  EXPECT_TRUE(iswholelist(listof("KH", leaf("005"))));
  EXPECT_FALSE(iswholelist(listof("KH", leaf("H"))));
  EXPECT_FALSE(iswholelist(listof("KI", leaf("K"))));
  EXPECT_TRUE(iswholelist(leaf("K")));
  EXPECT_TRUE(iswholelist(leaf("5")));
  EXPECT_EQ(bitsofterm(listof("KI", leaf("K"))), Str());
  EXPECT_EQ(bitsofterm(listof("KH", leaf("[a]"))), Str());
  EXPECT_TRUE(digitform(listof("KI", leaf("K"))).null());
}

TEST(BitList, OnlyListsHaveBits) {
  EXPECT_EQ(bitsofterm(leaf("K")), strbyte(1));
  EXPECT_EQ(bitsofterm(leaf("5")), strbyte(23));
  EXPECT_FAILS(bitsofterm(leaf("H")), "values/bitlist");
  EXPECT_FAILS(bitsofterm(listof("I", leaf("K"))), "values/bitlist");
}

TEST(BitList, LeavesOfBits) {
  EXPECT_EQ(textof(termofbits(strbyte(1))), "K");
  EXPECT_EQ(textof(termofbits(Str("\x01\0", 2))), "K");
  EXPECT_EQ(textof(termofbits(strbyte(23))), "5");
}

TEST(BitList, ALeafIsItsOwnDigitForm) {
  CellRef x = leaf("0005");
  EXPECT_EQ(digitform(x), x);
}

TEST(BitList, AMillionElements) {
  Str s = bitzeros(125001);
  bitset(0, true, s);
  bitset(1, true, s);
  bitset(1000000, true, s);
  CellRef list = listofbits(s, leafbyte('K'));
  EXPECT_EQ(bitsofterm(list), s);
}

}  // namespace
}  // namespace tarn
