// The check of brackets and commas with its messages, and the scanners.
#include "frontend/brackets.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/death.h"

namespace tarn {
namespace {

// The message, empty for a sound text.
std::string told(const Str& text, int64_t base = 0) {
  Report report;
  int64_t place = -1;
  bool sound = bracketcheck(text, base, report, place);
  EXPECT_EQ(sound, report.sound());
  EXPECT_EQ(sound, place == -1);
  return report.message.text();
}

TEST(BracketCheck, NestingMessages) {
  EXPECT_EQ(told(")"), "Dangling right-parenthesis at [_____].");
  EXPECT_EQ(told("x]"), "Dangling right-bracket at [____a].");
  EXPECT_EQ(told("xx}"), "Dangling right-wing at [____b].");
  EXPECT_EQ(told("("), "Dangling left-parenthesis at [_____].");
  EXPECT_EQ(told("x["), "Dangling left-bracket at [____a].");
  EXPECT_EQ(told("{"), "Dangling left-wing at [_____].");
  EXPECT_EQ(told("(]"), "'(' at [_____] doesn't fit ']' at [____a].");
  EXPECT_EQ(told("(x}"), "'(' at [_____] doesn't fit '}' at [____b].");
  EXPECT_EQ(told("{x)"), "'{' at [_____] doesn't fit ')' at [____b].");
  EXPECT_EQ(told("([)]"), "Dangling left-parenthesis at [_____].");
}

TEST(BracketCheck, TheInnermostOpenBracketIsTold) {
  EXPECT_EQ(told("({[("), "Dangling left-bracket at [____b].");
  EXPECT_EQ(told("(()"), "Dangling left-parenthesis at [_____].");
}

TEST(BracketCheck, SoundTexts) {
  for (const char* text : {"", "[(]", "[{)]", "f(a,b,c)", "{a,b}", "a,b", "g(x)(a,b)", "[ab](a,b)",
                           "!(a,b)", "((a,b))", "x{1}(a,b)", "{(a,b)}", "~(a,b)", "f(a,{b,c})",
                           "f(g(a,b),c)", "[a,b]", "([a,b])", "(x)", "1,f(2,3)"}) {
    EXPECT_EQ(told(text), "") << text;
  }
}

TEST(BracketCheck, CommasWantACallList) {
  EXPECT_EQ(told("(a,b)"), "Comma at [____b] is not part of a valid call list.");
  EXPECT_EQ(told("1+(a,b)"), "Comma at [____d] is not part of a valid call list.");
  EXPECT_EQ(told("f (a,b)"), "Comma at [____d] is not part of a valid call list.");
  EXPECT_EQ(told("f\n(a,b)"), "Comma at [____d] is not part of a valid call list.");
  EXPECT_EQ(told("(a,b,c)"), "Comma at [____b] is not part of a valid call list.");  // the leftmost
  EXPECT_EQ(told("x,(f(1,2),b)"), "Comma at [____i] is not part of a valid call list.");
  EXPECT_EQ(told("(a,b)+(c,d)"),
            "Comma at [____h] is not part of a valid call list.");       // from the right
  EXPECT_EQ(told("(a,b)+)"), "Dangling right-parenthesis at [____f].");  // nesting comes first
}

TEST(BracketCheck, FieldsOfTheReport) {
  Report report;
  int64_t place = -1;
  EXPECT_FALSE(bracketcheck("x)", 10, report, place));
  EXPECT_EQ(report.message, Str("Dangling right-parenthesis at [____k]."));
  EXPECT_EQ(report.word, Str("match"));
  EXPECT_EQ(report.place, Str("____k"));
  EXPECT_EQ(report.name, Str());
  EXPECT_EQ(report.context, Str());
  EXPECT_EQ(place, 11);
}

TEST(BracketCheck, FieldsOfAMismatch) {
  Report report;
  int64_t place = -1;
  EXPECT_FALSE(bracketcheck("(]", 1, report, place));
  EXPECT_EQ(report.place, Str("____a"));
  EXPECT_EQ(report.name, Str("____b"));
  EXPECT_EQ(report.context, Str());
  EXPECT_EQ(place, 1);
}

TEST(BracketCheck, FieldsOfAComma) {
  Report report;
  int64_t place = -1;
  EXPECT_FALSE(bracketcheck("(a,b)", 64, report, place));
  EXPECT_EQ(report.word, Str("comma"));
  EXPECT_EQ(report.place, Str("___ab"));
  EXPECT_EQ(report.name, Str());
  EXPECT_EQ(report.context, Str());
  EXPECT_EQ(place, 66);
}

TEST(SkipGroup, FindsThePartnerBothWays) {
  EXPECT_EQ(skipgroup("a(b)c", 0), 0);
  EXPECT_EQ(skipgroup("a(b)c", 1), 3);
  EXPECT_EQ(skipgroup("a(b)c", 3), 1);
  EXPECT_EQ(skipgroup("({x}[)])", 0), 7);
  EXPECT_EQ(skipgroup("({x}[)])", 7), 0);
  EXPECT_EQ(skipgroup("[(]", 0), 2);
  EXPECT_EQ(skipgroup("[a[b]]", 5), 0);
  EXPECT_EQ(skipgroup("[a[b]]", 2), 4);
  EXPECT_EQ(skipgroup("(}", 0), 1);  // the kinds are not told apart here
  EXPECT_FAILS(skipgroup("", 0), "frontend/brackets.cpp");
  EXPECT_FAILS(skipgroup("a", 1), "frontend/brackets.cpp");
  EXPECT_FAILS(skipgroup("a", -1), "frontend/brackets.cpp");
  EXPECT_FAILS(skipgroup("(", 0), "frontend/brackets.cpp");
  EXPECT_FAILS(skipgroup("]", 0), "frontend/brackets.cpp");
}

using Places = std::vector<int64_t>;

TEST(ScanTop, FindsTheTopLevelOnly) {
  EXPECT_EQ(scantop("a+b-c", "+-"), (Places{1, 3}));
  EXPECT_EQ(scantop("(a+b)+[+]+{+}", "+"), (Places{5, 9}));
  EXPECT_EQ(scantop("f{a;b}g;h", ";{"), (Places{1, 7}));
  EXPECT_EQ(scantop("", "+"), Places{});
}

TEST(ScanPrefix, FindsTheFirst) {
  EXPECT_EQ(scanprefix("f!x~y", 0, "!~"), 1);
  EXPECT_EQ(scanprefix("f!x~y", 2, "!~"), 3);
  EXPECT_EQ(scanprefix("f!x~y", 4, "!~"), -1);
  EXPECT_EQ(scanprefix("f(!)[!]{!}!", 0, "!"), 10);
}

TEST(PairBrackets, PairsAllButTheInsideOfStrings) {
  EXPECT_EQ(pairbrackets("({[(]})"), (Places{6, 5, 4, -1, 2, 1, 0}));
  EXPECT_EQ(pairbrackets("[a[b]]"), (Places{5, -1, -1, -1, -1, 0}));
  EXPECT_EQ(pairbrackets("ab"), (Places{-1, -1}));
  EXPECT_FAILS(pairbrackets("("), "frontend/brackets.cpp");
  EXPECT_FAILS(pairbrackets(")"), "frontend/brackets.cpp");
}

}  // namespace
}  // namespace tarn
