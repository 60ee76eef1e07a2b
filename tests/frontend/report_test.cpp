// Reports as text and back, and how their fields are kept short.
#include "frontend/report.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

Str repeated(const char* piece, int n) {
  std::string text;
  for (int i = 0; i < n; i++) text += piece;
  return text.c_str();
}

void expectfields(const Report& report, const std::vector<Str>& fields) {
  EXPECT_EQ(report.message, fields[0]);
  EXPECT_EQ(report.word, fields[1]);
  EXPECT_EQ(report.place, fields[2]);
  EXPECT_EQ(report.name, fields[3]);
  EXPECT_EQ(report.context, fields[4]);
}

TEST(Report, IsSoundAtFirst) {
  Report report;
  EXPECT_TRUE(report.sound());
  expectfields(report, {"", "check", "", "", ""});
}

TEST(Report, TextAndBack) {
  Report report = {"Oh no.", "alive", "TOP", "foo", "yes"};
  EXPECT_EQ(reporttext(report), Str("['[\"Oh no.][\"alive][\"TOP][\"foo][\"yes]]"));
  expectfields(reportparse(reporttext(report)), {"Oh no.", "alive", "TOP", "foo", "yes"});
  Report empty;
  EXPECT_EQ(reporttext(empty), Str("['[\"][\"check][\"][\"][\"]]"));
  expectfields(reportparse(reporttext(empty)), {"", "check", "", "", ""});
}

TEST(Report, AMessageMayHoldLoneBrackets) {
  for (const char* message :
       {"'(' at [_____] doesn't fit ']' at [____a].", "]", "[[", "][", "a[b]c"}) {
    Report report = {message, "match", "_____", "____a", "yes"};
    expectfields(reportparse(reporttext(report)), {message, "match", "_____", "____a", "yes"});
  }
}

TEST(Report, AnyOtherTextIsTheMessage) {
  for (const char* text :
       {"", "1", "[a]", "]", "[[[[]]]]", "['[\"a][\"b][\"c]]", "['[\"a][\"b][\"c][\"d]x[\"e]]",
        "['][\"b][\"c][\"d][\"e]]", "['[\"a][\"b][\"c][][\"e]]"}) {
    Report report = reportparse(text);
    EXPECT_EQ(report.message, Str(text));
    EXPECT_EQ(report.word, Str("raise"));
  }
}

TEST(ShortName, KeepsNamesShort) {
  EXPECT_EQ(shortname(""), Str(""));
  EXPECT_EQ(shortname("abcd"), Str("abcd"));
  EXPECT_EQ(shortname("abcde"), Str("abcde \""));  // no place
  EXPECT_EQ(shortname("abcdef"), Str("abcdef"));
  EXPECT_EQ(shortname(repeated("a", 72)), repeated("a", 72));
  EXPECT_EQ(shortname(repeated("a", 73)), repeated("a", 69) + "...");
}

TEST(ShortText, ClosesWhatItCuts) {
  EXPECT_EQ(shorttext(repeated("a", 72)), repeated("a", 72));
  EXPECT_EQ(shorttext(repeated("a", 73)), repeated("a", 72));
  EXPECT_EQ(shorttext("(" + repeated("a", 80)), "(" + repeated("a", 70) + ")");
  EXPECT_EQ(shorttext(repeated("(", 50)), repeated("(", 36) + repeated(")", 36));
  EXPECT_EQ(shorttext(repeated("({", 40)), repeated("({", 18) + repeated("})", 18));
}

TEST(ShortText, AnOpenerThatDoesNotFitEndsTheCopy) {
  EXPECT_EQ(shorttext(repeated("a", 71) + "()b"), repeated("a", 71));
  EXPECT_EQ(shorttext(repeated("a", 70) + "()b"), repeated("a", 70) + "()");
  EXPECT_EQ(shorttext(repeated("a", 70) + "(b)"), repeated("a", 70) + "()");
}

TEST(ShortText, OnlySquareBracketsCountInAString) {
  EXPECT_EQ(shorttext("[(" + repeated("a", 80)), "[(" + repeated("a", 69) + "]");
  EXPECT_EQ(shorttext("{" + repeated("a", 80)), "{" + repeated("a", 70) + "}");
}

TEST(ShortCode, DoesNotCloseWings) {
  EXPECT_EQ(shortcode("{" + repeated("a", 80)), "{" + repeated("a", 71));
  EXPECT_EQ(shortcode("(" + repeated("a", 80)), "(" + repeated("a", 70) + ")");
}

}  // namespace
}  // namespace tarn
