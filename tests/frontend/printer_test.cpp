// How terms are shown. The terms are written as in tests/graph/terms.h.
#include "frontend/printer.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/graph/terms.h"

namespace tarn {
namespace {

std::string printed(Cell* c) {
  Str text = printcell(c);
  return std::string(text.text(), static_cast<size_t>(text.len()));
}

std::string printed(const char* text) { return printed(term(text)); }

CellRef real(double d) {
  std::string text = " " + std::string(reinterpret_cast<const char*>(&d), sizeof d);
  return leafmade(text.data(), 9);
}

TEST(Printer, Applications) {
  const char* cases[][2] = {
      {"S K", "SK"},
      {"S K K", "SKK"},
      {"f x", "(f x)"},
      {"f x y", "(f x y)"},
      {"K x", "Kx"},
      {"x K y", "xKy"},
      {"plus 1", "plus1"},
      {"plus 1 2", "(plus1 2)"},
      {"f [ab]", "f[ab]"},
      {"f [a[b]c] 1", "f[a[b]c]1"},
      {"1 (K H)", "(1 KH)"},
      {"H (K K)", "(H KK)"},
      {"1 2", "(1 2)"},
      {"+ 1 2", "(+1 2)"},
      {"\\ a a", "(\\a a)"},
      {"V [a] [b]", "V[a][b]"},
      {"[a] [b]", "[a][b]"},
      {"f ([a] [b])", "(f [a][b])"},
      {"f x K", "(f x K)"},
      {"K x (f y) z", "(Kx (f y) z)"},
      {"K (f x)", "(K (f x))"},
      {"a K b (c d) K", "(aKb (c d) K)"},
      {"x AB", "(x AB)"},
      {"f 00", "f00"},
      {"1 00", "(1 00)"},
      {"f 1,", "(f 1,)"},
      {"a_ _b", "(a_ _b)"},
      {"K [", "K["},
      {"K [a", "(K [a)"},
      {"K [a]b]", "(K [a]b])"},
  };
  for (auto& c : cases) EXPECT_EQ(printed(c[0]), c[1]) << c[0];
}

TEST(Printer, FailuresAndMemoMarksShowNothing) {
  EXPECT_EQ(printed(leafcstr("")), "()");
  EXPECT_EQ(printed(leafcstr(")foo")), "()");
  EXPECT_EQ(printed(leafcstr("]foo")), "()");
  EXPECT_EQ(printed(cellpair(leafcstr("]foo"), leafcstr("x"))), "()x");
  EXPECT_EQ(printed(cellpair(leafcstr("K"), leafcstr("]"))), "(K ())");
  EXPECT_EQ(printed(cellapply2(leafcstr("]"), leafcstr("x"), leafcstr("y"))), "(()x y)");
}

TEST(Printer, Reals) {
  EXPECT_EQ(printed(real(1.5)), "real[1.500000e+00]");
  EXPECT_EQ(printed(real(-0.0)), "real[-0.000000e+00]");
  EXPECT_EQ(printed(cellpair(leafcstr("K"), real(1e300))), "(K real[1.000000e+300])");
}

TEST(Printer, PostsNameWhatCannotStandInAString) {
  EXPECT_EQ(printed(leafcstr("()")), "cape[]");
  EXPECT_EQ(printed(leafcstr("(c)a\nb")), "cape[a[p]b]");
  EXPECT_EQ(printed(leafcstr("(d)[x]\\")), "cape[[q]x[r]\\]");
  EXPECT_EQ(printed(leafmade("(c)a\0b", 6)), std::string("cape[a\0b]", 9));
}

TEST(Printer, ArraysShowHowTheyAreBuilt) {
  CellRef array = craynew(2);
  EXPECT_EQ(printed(array), "(/ (/ cray Z) Z)");
  crayfill(array, 0, leafcstr("1"));
  crayfill(array, 1, term("f x"));
  EXPECT_EQ(printed(array), "(/ (/ cray 1) (f x))");
  EXPECT_EQ(printed(cellpair(array, leafcstr("x"))), "(/ (/ cray 1) (f x) x)");
  EXPECT_EQ(printed(cellpair(leafcstr("K"), array)), "(K (/ (/ cray 1) (f x)))");
  CellRef one = craynew(1);
  crayfill(one, 0, craynew(0));
  EXPECT_EQ(printed(one), "(/ cray cray)");
  EXPECT_EQ(printed(cellpair(leafcstr("1"), craynew(0))), "1cray");
  EXPECT_EQ(printed(cellpair(leafcstr("x"), craynew(0))), "(x cray)");
}

TEST(Printer, DeepTermsAreOrdinary) {
  const int depth = 100000;
  CellRef right = leafcstr("K");
  CellRef left = leafcstr("K");
  for (int i = 0; i < depth; i++) {
    right = cellapply2(leafcstr("J"), leafcstr("1"), right);
    left = cellpair(left, leafcstr("1"));
  }
  std::string list = printed(right);
  EXPECT_EQ(list.size(), 5u * (depth - 1) + 3);  // "(J1 " and ")" each, and "J1K"
  EXPECT_EQ(list.substr(0, 9), "(J1 (J1 (");
  EXPECT_EQ(printed(left).size(), 2u * depth + 2);  // "(K1 1 1 ... 1)"
}

}  // namespace
}  // namespace tarn
