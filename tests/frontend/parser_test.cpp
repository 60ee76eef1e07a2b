// The trees of expressions. A tree is written as in tests/graph/terms.h: atoms with blanks between
// them, application to the left.
#include "frontend/parser.h"

#include <gtest/gtest.h>

#include <string>

#include "frontend/tidy.h"
#include "tests/graph/terms.h"

namespace tarn {
namespace {

struct Case {
  const char* text;
  const char* tree;
};

void expecttrees(std::initializer_list<Case> cases) {
  for (const Case& c : cases) EXPECT_EQ(shown(parseterm(tidytext(c.text))), c.tree) << c.text;
}

TEST(Parser, WorkedExamples) {
  expecttrees({
      {"1+2=3?H;K", "; (? (= (+ 1 2) 3) H) K"},
      {"K&H|K&H|K!", "& K (| H (& K (| H (! K))))"},
      {"1^2+3^4=56", "= (+ (^ 1 2) (^ 3 4)) 56"},
      {"SMM BVXIK", "S M M (B V X I K)"},
      {"cray/1/2*3", "* (/ (/ cray 1) 2) 3"},
      {"look cray/cray/cray 0", "look (/ (/ cray cray) cray) 0"},
      {"Y(f\\g\\i=0?g;f g i-1)0 1", "Y (\\ f (\\ g (; (? (= i 0) g) (f g (- i 1))))) 0 1"},
      {"a\\b\\a b", "\\ a (\\ b (a b))"},
      {"f{Y;f\\a\\a}f 3", "{ f (; Y (\\ f (\\ a a))) (f 3)"},
      {"less{q\\r\\cmpr q r=01}lessAB", "{ less (\\ q (\\ r (= (cmpr q r) 01))) (less A B)"},
      {"0+1=2", "= (+ 0 1) 2"},
      {"[ab]@raws", "@ [ab] raws"},
      {"(H)", "H"},
      {"x()\\y", "\\ (x }) y"},
  });
}

TEST(Parser, TiersFromTheRight) {
  expecttrees({
      {"a;b;c", "; a (; b c)"},
      {"a;b\\c", "; a (\\ b c)"},
      {"a\\b;c", "\\ a (; b c)"},
      {"a&b|c", "& a (| b c)"},
      {"a=b=c", "= a (= b c)"},
      {"a<b>c#d", "< a (> b (# c d))"},
      {"2^3^2", "^ 2 (^ 3 2)"},
  });
}

TEST(Parser, TiersFromTheLeft) {
  expecttrees({
      {"a?b?c", "? (? a b) c"},
      {"a@b c", "@ a b c"},
      {"a b@c", "@ (a b) c"},
      {"a+b-c", "- (+ a b) c"},
      {"a-b-c", "- (- a b) c"},
      {"a:b.c", ". (: a b) c"},
      {"a*b/c%d'e", "' (% (/ (* a b) c) d) e"},
  });
}

TEST(Parser, ANewlineOutsideStringsIsBackwardApplication) {
  EXPECT_EQ(shown(parseterm("a\nb?c")), "? (T a b) c");
}

TEST(Parser, Wings) {
  expecttrees({
      {"x{1}x", "{ x 1 x"},
      {"{1}x", "{ } 1 x"},
      {"x{1}", "{ x 1 }"},
      {"x{}y", "{ x } y"},
      {"a{b}c{d}e", "{ a b ({ c d e)"},
      {"x{a,b,c}y", "{ x (, a (, b c)) y"},
      {"x{a;b}y;z", "{ x (; a b) (; y z)"},
      {"a;x{1}y", "; a ({ x 1 y)"},
      {"x{1}foo\\2", "{ x 1 (\\ foo 2)"},
      {"(x{1}x)", "{ x 1 x"},
  });
}

TEST(Parser, MissingOperands) {
  expecttrees({
      {"", "}"},
      {"+1", "+ } 1"},
      {"-1", "- } 1"},
      {"1+", "+ 1 }"},
      {"+", "+ } }"},
      {"\\", "\\ } }"},
      {"!", "! }"},
      {"f()", "f }"},
      {"()", "}"},
      {"f(,)", "f } }"},
  });
}

TEST(Parser, PostfixAndPrefix) {
  expecttrees({
      {"x!!", "! (! x)"},
      {"!x!", "! (! x)"},
      {"!!x", "! (! x)"},
      {"!~x", "! (~ x)"},
      {"x!~", "~ (! x)"},
      {"f!x~y", "f (! x) (~ y)"},
      {"f!~x", "f (! (~ x))"},
      {"f !x", "f (! x)"},
      {"f!x", "f (! x)"},
      {"f! x", "! f x"},
      {"f ! x", "f (! }) x"},
      {"f`x`", "` (f (` x))"},
      {"f!x!", "! (f (! x))"},
      {"\"x\"", "\" (\" x)"},
      {"f!(x)y", "f (! (x y))"},
      {"-!x", "- } (! x)"},
  });
}

TEST(Parser, Atoms) {
  expecttrees({
      {"a b", "a b"},
      {"ab", "ab"},
      {"AB", "A B"},
      {"A B", "A B"},
      {"a1", "a 1"},
      {"1a", "1 a"},
      {"A1", "A 1"},
      {"x2", "x 2"},
      {"abc_d", "abc_d"},
      {"1_2", "1 _ 2"},
      {"1 2", "1 2"},
      {"[a][b]", "[a] [b]"},
      {"[a]b", "[a] b"},
      {"a[b]", "a [b]"},
      {"[a[b]c]d", "[a[b]c] d"},
      {"(a)b", "a b"},
      {"a(b)c", "a b c"},
      {"[(]", "[(]"},
      {"a\tb", "a \t b"},
      {"a\x80\xff", "a \x80 \xff"},
  });
}

TEST(Parser, CallLists) {
  expecttrees({
      {"f(a)", "f a"},
      {"f(a,b)", "f a b"},
      {"f(a)(b,c)", "f a b c"},
      {"f(a,b c)", "f a (b c)"},
      {"f((a b))", "f (a b)"},
      {"f(g(1,2),3)", "f (g 1 2) 3"},
      {"f([,],2)", "f [,] 2"},
      {"f({a,b},2)", "f ({ } (, a b) }) 2"},
      {"aS BKK", "a S (B K K)"},
      {"f 2+3", "f (+ 2 3)"},
      {"K 1(x)", "K (1 x)"},
  });
}

TEST(Parser, StrayCommasStickToWhatStandsBeforeThem) {
  expecttrees({
      {"!(a,b)", "! (a, b)"},
      {"((A,1))", "A, 1"},
      {"((1,2))", "1, 2"},
      {"(([a],2))", "[a] , 2"},
      {"((,x))", ", x"},
  });
}

TEST(Parser, ANulReadsAsANewline) {
  EXPECT_EQ(shown(parseterm(Str("\0", 1))), "\n");
  EXPECT_EQ(shown(parseterm(Str("a\0b", 3))), "a \n b");
}

TEST(Parser, DeepNestsAreOrdinary) {
  const int depth = 100000;
  std::string text(depth, '(');
  text += "1" + std::string(depth, ')');
  EXPECT_EQ(shown(parseterm(text.c_str())), "1");
  std::string wings;
  for (int i = 0; i < depth; i++) wings += "x{";
  wings += "1";
  for (int i = 0; i < depth; i++) wings += "}x";
  EXPECT_EQ(cellform(parseterm(wings.c_str())), 'i');
}

TEST(Parser, LongExpressionsAreOrdinary) {
  std::string sum = "1";
  std::string curried = "a";
  for (int i = 0; i < 100000; i++) {
    sum += "+1";
    curried += "\\a";
  }
  sum += std::string(100000, '!');
  EXPECT_TRUE(cellispair(parseterm(sum.c_str())));
  EXPECT_EQ(cellform(parseterm(curried.c_str())), 'u');
}

}  // namespace
}  // namespace tarn
