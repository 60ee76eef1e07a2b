// The byte string: sharing, ranges, cuts, joins and the order.
#include "foundation/str.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(Str, ReadsItsFinalNul) {
  Str s("abc");
  EXPECT_EQ(s.at(2), 'c');
  EXPECT_EQ(s.at(3), 0);
  EXPECT_FAILS(s.at(4), "foundation/str");
  EXPECT_FAILS(s.at(-1), "foundation/str");
}

TEST(Str, WritesInRangeOnly) {
  Str s("abc");
  s.ref(1) = 'x';
  EXPECT_EQ(s, Str("axc"));
  EXPECT_EQ(s.ref(3), 0);
  EXPECT_FAILS(s.ref(4), "foundation/str");
  EXPECT_FAILS(s.ref(-1), "foundation/str");
}

TEST(Str, CutsAreClampedAtTheEndOnly) {
  Str s("hello");
  EXPECT_EQ(s.substr(1, 3), Str("ell"));
  EXPECT_EQ(s.substr(1, 100), Str("ello"));
  EXPECT_EQ(s.substr(5, 5), Str());
  EXPECT_EQ(s.substr(5), Str());
  EXPECT_EQ(s.substr(2), Str("llo"));
  EXPECT_EQ(s.substr(0, INT64_MAX), s);
  EXPECT_FAILS(s.substr(6, 0), "foundation/str");
  EXPECT_FAILS(s.substr(-1, 0), "foundation/str");
  EXPECT_FAILS(s.substr(0, -1), "foundation/str");
  EXPECT_FAILS(s.substr(6), "foundation/str");
  EXPECT_FAILS(s.substr(-1), "foundation/str");
}

TEST(Str, EqualBytesAreEqualWhateverTheRecord) {
  Str a("same");
  Str b("same");
  EXPECT_FALSE(a.same(b));
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a == Str("sane"));
  EXPECT_TRUE(a != Str("sam"));
}

TEST(Str, NulsAreBytesLikeAnyOther) {
  Str a("a\0b", 3);
  EXPECT_EQ(a.len(), 3);
  EXPECT_EQ(a.at(1), 0);
  EXPECT_FALSE(a == Str("a\0c", 3));
  EXPECT_FALSE(a == Str("a"));
  EXPECT_TRUE(Str("a") < a);
}

TEST(Str, OrderIsByUnsignedBytesThenLength) {
  EXPECT_TRUE(Str("ab") < Str("abc"));
  EXPECT_FALSE(Str("abc") < Str("ab"));
  EXPECT_TRUE(Str("a") < Str("\xff"));
  EXPECT_TRUE(Str() < Str("a"));
  EXPECT_FALSE(Str("a") < Str("a"));
  EXPECT_TRUE(Str("b") >= Str("abc"));
  EXPECT_TRUE(Str("b") >= Str("b"));
  EXPECT_FALSE(Str("\x7f") >= Str("\x80"));
}

TEST(Str, WritingASharedTextLeavesTheOtherAlone) {
  Str a("abc");
  Str b = a;
  EXPECT_TRUE(a.same(b));
  b.ref(0) = 'x';
  EXPECT_EQ(a, Str("abc"));
  EXPECT_EQ(b, Str("xbc"));
  const uint8_t* before = b.bytes();
  b.ref(1) = 'y';
  EXPECT_EQ(b.bytes() == before, !checking) << "an unshared text is written in place";
}

TEST(Str, AppendingASharedTextLeavesTheOtherAlone) {
  Str a("abc");
  Str b = a;
  b += 'd';
  b += Str("ef");
  EXPECT_EQ(a, Str("abc"));
  EXPECT_EQ(b, Str("abcdef"));
  b += b;
  EXPECT_EQ(b, Str("abcdefabcdef"));
}

TEST(Str, Joins) {
  EXPECT_EQ(Str("ab") + Str("cd"), Str("abcd"));
  EXPECT_EQ("ab" + Str("cd"), Str("abcd"));
  EXPECT_EQ(Str() + Str(), Str());
  EXPECT_EQ(Str("a\0", 2) + Str("\0b", 2), Str("a\0\0b", 4));
}

TEST(Str, AssigningToItselfKeepsTheText) {
  Str a("abc");
  const Str& alias = a;
  a = alias;
  EXPECT_EQ(a, Str("abc"));
}

TEST(Str, AMovedFromTextIsEmptyAndUsable) {
  Str a("abc");
  Str b = std::move(a);
  EXPECT_EQ(b, Str("abc"));
  EXPECT_EQ(a.len(), 0);  // NOLINT: a moved-from Str is promised to be the empty text
  a += 'x';
  EXPECT_EQ(a, Str("x"));
}

TEST(Str, EmptyTextsShareOneRecordThatNobodyCanChange) {
  Str a;
  Str b("");
  EXPECT_TRUE(a.same(b));
  EXPECT_EQ(a.at(0), 0);
  a.ref(0) = 0;
  EXPECT_FALSE(a.same(b)) << "writing took a record of its own";
}

TEST(Str, OneByteAndNumbers) {
  EXPECT_EQ(strbyte(0).len(), 1);
  EXPECT_EQ(strbyte(0xff).at(0), 0xff);
  EXPECT_EQ(strnumber(0), Str("0"));
  EXPECT_EQ(strnumber(-42), Str("-42"));
  EXPECT_EQ(strnumber(INT64_MIN), Str("-9223372036854775808"));
}

TEST(Str, SizedTextEndsWithNul) {
  Str s = strsized(3);
  memset(s.own(), 'q', 3);
  EXPECT_EQ(s, Str("qqq"));
  EXPECT_EQ(s.at(3), 0);
}

}  // namespace
}  // namespace tarn
