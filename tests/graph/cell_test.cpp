// The cell itself: its bits, its links, its text, its makers.
#include "graph/cell.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {

static int64_t alive() { return cellcounts().alive; }

static std::string textof(Cell* c) {
  Str text = celltext(c);
  return std::string(text.text(), static_cast<size_t>(text.len()));
}

static int tagbyte(const Cell* c) { return static_cast<int>(c->header >> 56); }

TEST(CellTest, NewPairHasOneReferenceAndNothingElse) {
  CellRef l = leafcstr("f");
  CellRef r = leafcstr("x");
  CellRef p = cellpair(l, r);
  EXPECT_EQ(static_cast<Cell*>(p)->header, 1u);
  EXPECT_EQ(leftlink(p), static_cast<Cell*>(l));
  EXPECT_EQ(rightlink(p), static_cast<Cell*>(r));
  EXPECT_EQ(cellrefs(l), 2u);
  EXPECT_EQ(cellrefs(r), 2u);
}

TEST(CellTest, LinksOfAPairLieBehindTheHeader) {
  CellRef p = cellpairtake(leafcstr("f"), leafcstr("x"));
  const uint64_t* words = reinterpret_cast<const uint64_t*>(static_cast<Cell*>(p));
  EXPECT_EQ(words[1], reinterpret_cast<uint64_t>(leftlink(p)));
  EXPECT_EQ(words[2], reinterpret_cast<uint64_t>(rightlink(p)));
}

TEST(CellTest, TakingPairAddsNoReferences) {
  CellRef p = cellpairtake(leafcstr("f"), leafcstr("x"));
  EXPECT_EQ(cellrefs(leftlink(p)), 1u);
  EXPECT_EQ(cellrefs(rightlink(p)), 1u);
}

TEST(CellTest, ApplicationsAreToTheLeft) {
  CellRef a = leafcstr("a"), b = leafcstr("b"), c = leafcstr("c"), d = leafcstr("d");
  CellRef e = leafcstr("e");
  EXPECT_EQ(shown(cellapply1(a, b)), "a b");
  EXPECT_EQ(shown(cellapply2(a, b, c)), "a b c");
  EXPECT_EQ(shown(cellapply3(a, b, c, d)), "a b c d");
  EXPECT_EQ(shown(cellapply4(a, b, c, d, e)), "a b c d e");
  EXPECT_EQ(cellrefs(a), 1u);
}

TEST(CellTest, LeafHasItsTextBehindTheHeaderAndANul) {
  CellRef leaf = leafcstr("plus");
  EXPECT_EQ(static_cast<Cell*>(leaf)->header, cellleafbit | 1);
  EXPECT_EQ(memcmp(static_cast<Cell*>(leaf) + 1, "plus", 5), 0);
}

TEST(CellTest, OnlyDigitsAndStringsStoreTheirLength) {
  EXPECT_EQ(cellfield(leafcstr("2048")), 4u);
  EXPECT_EQ(cellfield(leafcstr("[abc]")), 5u);
  EXPECT_EQ(cellfield(leafcstr("plus")), 0u);
  EXPECT_EQ(cellfield(leafcstr(" 12345678")), 0u);
  EXPECT_EQ(cellfield(leafcstr("(c)abc")), 0u);
  EXPECT_EQ(cellfield(leafcstr("]2")), 0u);
  EXPECT_EQ(cellfield(leafcstr("`")), 0u);
  EXPECT_EQ(tagbyte(leafcstr("2048")), 0x80);
}

TEST(CellTest, LeavesOfEveryLengthKeepTheirText) {
  for (int n = 0; n < 40; n++) {
    std::string text(static_cast<size_t>(n), 'q');
    CellRef leaf = leafcstr(text.c_str());
    EXPECT_EQ(textof(leaf), text);
    EXPECT_EQ(cellsize(leaf), n);
    EXPECT_EQ(leafbytes(leaf)[n], 0);
  }
}

TEST(CellTest, MakersOfLeaves) {
  EXPECT_EQ(textof(leafempty()), "");
  EXPECT_EQ(textof(leafstr("abc")), "abc");
  EXPECT_EQ(textof(leafbyte('K')), "K");
  EXPECT_EQ(textof(leafdigits(0)), "0");
  EXPECT_EQ(textof(leafdigits(18446744073709551615u)), "18446744073709551615");
  EXPECT_EQ(textof(leafdigits(7, true)), "07");
  EXPECT_EQ(cellfield(leafdigits(100)), 3u);
}

TEST(CellTest, TextOfARealHoldsNuls) {
  CellRef real = leafmade(" \0\0\0\0\0\0\xf0?", 9);
  EXPECT_EQ(cellsize(real), 9);
  EXPECT_EQ(textof(real), std::string(" \0\0\0\0\0\0\xf0?", 9));
}

TEST(CellTest, TextOfAPostIsAsLongAsItsDigitsSay) {
  EXPECT_EQ(textof(leafmade("(c)a\0b", 6)), std::string("(c)a\0b", 6));
  EXPECT_EQ(textof(leafcstr("()")), "()");
  CellRef post = leafstr(Str("(a_)") + strsized(64));
  int64_t n = 0;
  EXPECT_EQ(postpayload(post, n), 4);
  EXPECT_EQ(n, 64);
  EXPECT_EQ(cellsize(post), 68);
}

TEST(CellTest, TextOfAPairIsEmpty) {
  CellRef p = cellpairtake(leafcstr("f"), leafcstr("x"));
  EXPECT_EQ(textof(p), "");
  EXPECT_EQ(cellsize(p), 0);
  EXPECT_EQ(cellbyte(p), 0);
}

TEST(CellTest, TextOfANameEndsAtItsNul) {
  EXPECT_EQ(textof(leafmade("ab\0c", 4)), "ab");
  EXPECT_EQ(cellsize(leafmade("ab\0c", 4)), 2);
}

TEST(CellTest, ALengthThatDoesNotFitTheHeaderIsFoundByAScan) {
  std::string digits(0x4000000, '7');
  CellRef number = leafstr(Str(digits.c_str()));
  EXPECT_EQ(cellfield(number), 0u);
  EXPECT_EQ(cellsize(number), 0x4000000);
  std::string text = "[[" + std::string(0x4000000 - 4, 'x') + "]]";
  CellRef string = leafstr(Str(text.c_str()));
  EXPECT_EQ(cellfield(string), 0u);
  EXPECT_EQ(celltext(string).len(), 0x4000000);
  text[2] = 'y';
  text.erase(3, 1);
  EXPECT_EQ(cellfield(leafstr(Str(text.c_str()))), 0x3ffffffu);
}

TEST(CellDeathTest, AShortLengthHasToBeStored) {
  CellRef number = leafcstr("123");
  setfield(number, 0);
  EXPECT_FAILS(celltext(number), "graph/cell.cpp");
  CellRef string = leafcstr("[[]]");
  setfield(string, 0);
  EXPECT_FAILS(cellsize(string), "graph/cell.cpp");
}

TEST(CellTest, LinksAreGivenWithAReference) {
  CellRef p = cellpairtake(leafcstr("f"), leafcstr("x"));
  CellRef l = cellleft(p);
  CellRef r = cellright(p);
  EXPECT_EQ(textof(l), "f");
  EXPECT_EQ(textof(r), "x");
  EXPECT_EQ(cellrefs(l), 2u);
  p = CellRef();
  EXPECT_EQ(cellrefs(l), 1u);
}

TEST(CellTest, AssigningChangesTheHolder) {
  CellRef a = leafcstr("a");
  CellRef b = leafcstr("b");
  CellRef to = a;
  cellassign(to, b);
  EXPECT_EQ(textof(to), "b");
  EXPECT_EQ(cellrefs(a), 1u);
  cellassign(to, b);
  EXPECT_EQ(cellrefs(b), 2u);
  cellassign(to, to);
  EXPECT_EQ(cellrefs(b), 2u);
}

TEST(CellTest, AReferenceMovesWithoutBeingCounted) {
  CellRef a = leafcstr("a");
  CellRef b = std::move(a);
  EXPECT_EQ(cellrefs(b), 1u);
  b = std::move(b);
  EXPECT_EQ(textof(b), "a");
  EXPECT_TRUE(cellcopy(nullptr).null());
}

TEST(CellDeathTest, NullAndLeavesAreRefused) {
  CellRef leaf = leafcstr("a");
  CellRef null;
  EXPECT_FAILS(cellleft(leaf), "graph/cell.cpp");
  EXPECT_FAILS(cellright(leaf), "graph/cell.cpp");
  EXPECT_FAILS(celldrop(CellRef()), "graph/cell.cpp");
  EXPECT_FAILS(cellassign(null, leaf), "graph/cell.cpp");
  EXPECT_FAILS(cellassign(leaf, null), "graph/cell.cpp");
  EXPECT_FAILS(leafcstr(nullptr), "graph/cell.cpp");
  EXPECT_FAILS(cellpair(leaf, null), "graph/cell.cpp");
}

TEST(CellDeathTest, ABillionReferencesAreTheLimit) {
  CellRef leaf = leafcstr("a");
  Cell* c = leaf;
  c->header += cellrefsmask - 1;
  EXPECT_EQ(cellrefs(c), 1073741823u);
  EXPECT_FAILS(cellcopy(c), "graph/cell.h");
  c->header -= cellrefsmask - 1;
}

TEST(CellTest, SettingArityAndFieldLeavesTheRestOfTheHeader) {
  CellRef leaf = leafcstr("abc");
  Cell* c = leaf;
  c->header |= cellflagbit;
  setarity(c, 11);
  EXPECT_EQ(tagbyte(c), 0x80 | 0x40 | 63);
  setarity(c, -52);
  EXPECT_EQ(tagbyte(c), 0x80 | 0x40);
  setarity(c, 0);
  EXPECT_EQ(tagbyte(c), 0x80 | 0x40 | 52);
  setfield(c, 0x3ffffff);
  EXPECT_EQ(cellfield(c), 0x3ffffffu);
  EXPECT_EQ(cellrefs(c), 1u);
  EXPECT_EQ(tagbyte(c), 0x80 | 0x40 | 52);
}

TEST(CellDeathTest, ArityAndFieldHaveLimits) {
  CellRef leaf = leafcstr("abc");
  EXPECT_FAILS(setarity(leaf, 12), "graph/cell.cpp");
  EXPECT_FAILS(setarity(leaf, -53), "graph/cell.cpp");
  EXPECT_FAILS(setfield(leaf, 0x4000000), "graph/cell.cpp");
}

TEST(CellTest, ArrayHasItsSlotsBehindANewline) {
  CellRef array = craynew(2);
  EXPECT_EQ(cellbyte(array), '\n');
  EXPECT_EQ(crayslots(array), 2);
  EXPECT_EQ(cellsize(array), 17);
  EXPECT_EQ(textof(array), "\n");
  EXPECT_EQ(crayslot(array, 0), nullptr);
  crayfill(array, 1, leafcstr("x"));
  EXPECT_EQ(textof(crayslot(array, 1)), "x");
  Cell* kept = nullptr;
  memcpy(&kept, leafbytes(array) + 9, 8);
  EXPECT_EQ(kept, crayslot(array, 1));
  EXPECT_EQ(crayslot(array, 0), nullptr);
}

TEST(CellTest, EmptyArrayIsTheTextNewline) {
  CellRef array = craynew(0);
  EXPECT_EQ(crayslots(array), 0);
  EXPECT_EQ(cellsize(array), 1);
  EXPECT_EQ(textof(array), "\n");
}

TEST(CellTest, ANameOfOneNewlineIsAnEmptyArray) {
  CellRef leaf = leafstr("\n");
  EXPECT_EQ(crayslots(leaf), 0);
  EXPECT_EQ(textof(leaf), "\n");
}

TEST(CellTest, FillingASlotDropsWhatWasThere) {
  int64_t before = alive();
  {
    CellRef array = craynew(1);
    crayfill(array, 0, leafcstr("x"));
    crayfill(array, 0, leafcstr("y"));
    EXPECT_EQ(alive(), before + 2);
    crayfill(array, 0, CellRef());
    EXPECT_EQ(alive(), before + 1);
    EXPECT_EQ(crayslot(array, 0), nullptr);
  }
  EXPECT_EQ(alive(), before);
}

TEST(CellTest, AnArrayThatOutgrowsItsCountKeepsTheLowBits) {
  CellRef array = craynew(0x4000001);
  EXPECT_EQ(crayslots(array), 1);
  EXPECT_EQ(crayslot(array, 0x4000000), nullptr);
}

TEST(CellDeathTest, SlotsCannotBeFewerThanNone) { EXPECT_FAILS(craynew(-1), "graph/cell.cpp"); }

TEST(CellTest, CountsTellWhatWasMadeAndWhatLives) {
  CellCounts before = cellcounts();
  {
    CellRef p = cellpairtake(leafcstr("f"), leafcstr("a longer leaf"));
    EXPECT_EQ(cellcounts().made, before.made + 3);
    EXPECT_EQ(cellcounts().alive, before.alive + 3);
    EXPECT_GE(cellcounts().peak, cellcounts().alive);
  }
  EXPECT_EQ(cellcounts().alive, before.alive);
}

}  // namespace tarn
