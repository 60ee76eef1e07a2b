// White space that goes and white space that stays.
#include "frontend/tidy.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

struct Case {
  const char* text;
  const char* tidied;
};

TEST(Tidy, Texts) {
  const Case cases[] = {
      {"", ""},
      {" \n ", ""},
      {"f  x", "f x"},
      {"a + b", "a+b"},
      {"f ( x )", "f (x)"},
      {"( x ) f", "(x) f"},
      {"x ! y", "x ! y"},
      {"x { y } z", "x{y}z"},
      {"  a  ", "a"},
      {"a\n\nb", "a b"},
      {"a\n\n,b", "a,b"},
      {"a \\ b", "a\\b"},
      {"[a  b]  [ c ]", "[a  b] [ c ]"},
      {"[a\n[b ] c]\n+d", "[a\n[b ] c]+d"},
      {"a\tb", "a\tb"},
      {"~ 5", "~ 5"},
      {"p   H K", "p H K"},
      {"(\na\n)", "(a)"},
      {"1 ; 2 ? 3", "1;2?3"},
      {"a _b", "a _b"},
  };
  for (const Case& c : cases) EXPECT_EQ(tidytext(c.text), Str(c.tidied)) << c.text;
}

TEST(Tidy, ATidyTextStaysAsItIs) {
  for (const char* text : {"f (x)", "x ! y", "a,b\\c", "[ a ]"})
    EXPECT_EQ(tidytext(text), Str(text));
}

TEST(Tidy, NulsAreKept) { EXPECT_EQ(tidytext(Str("a \0 b", 5)), Str("a \0 b", 5)); }

}  // namespace
}  // namespace tarn
