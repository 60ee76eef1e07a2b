// The definitions of a run, and the registry of builtins.
#include "graph/definitions.h"

#include <gtest/gtest.h>

#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {

struct DefinitionsTest : testing::Test {
  void SetUp() override {
    defclear();
    aliveclear();
  }
  void TearDown() override { SetUp(); }
};
using DefinitionsDeathTest = DefinitionsTest;

TEST_F(DefinitionsTest, MapHoldsExactlyWhatIsDefined) {
  EXPECT_TRUE(globaldefs().empty());
  EXPECT_EQ(defterm("foo"), nullptr);
  definitionof(Str("foo"));
  EXPECT_TRUE(globaldefs().empty());
  defset("foo", leafcstr("1"));
  EXPECT_EQ(shown(defterm("foo")), "1");
  defset("foo", leafcstr("2"));
  EXPECT_EQ(globaldefs().size(), 1u);
  EXPECT_EQ(shown(defterm("foo")), "2");
  deferase("foo");
  deferase("foo");
  EXPECT_TRUE(globaldefs().empty());
  EXPECT_EQ(defterm("foo"), nullptr);
}

TEST_F(DefinitionsTest, OrderIsByUnsignedBytesThenTheShorter) {
  for (const char* name : {"foo", "K", "", "fo", "\xff", "+"}) defset(name, leafcstr("1"));
  std::string names;
  for (const auto& [name, d] : globaldefs()) names += std::string(name.text()) + ",";
  EXPECT_EQ(names, ",+,K,fo,foo,\xff,");
}

TEST_F(DefinitionsTest, ClearingReleasesTheTerms) {
  int64_t before = cellcounts().alive;
  for (const char* name : {"foo", "goo", ""}) defset(name, term("K (K 1) 2"));
  defclear();
  EXPECT_EQ(cellcounts().alive, before);
}

TEST_F(DefinitionsTest, ARecordOutlivesItsDefinition) {
  CellRef leaf = leafcstr("foo");
  Definition* d = definitionof(leaf);
  EXPECT_TRUE(d->term.null());
  defset("foo", leafcstr("1"));
  EXPECT_EQ(shown(d->term), "1");
  defclear();
  EXPECT_TRUE(d->term.null());
  defset("foo", leafcstr("2"));
  EXPECT_EQ(definitionof(leaf), d);
  EXPECT_EQ(shown(d->term), "2");
}

TEST_F(DefinitionsTest, LeavesOfOneNameShareARecord) {
  EXPECT_EQ(definitionof(leafcstr("K")), definitionof(leafcstr("K")));
  EXPECT_EQ(definitionof(leafcstr("K")), definitionof(Str("K")));
  EXPECT_EQ(definitionof(leafcstr("plus")), definitionof(Str("plus")));
  EXPECT_NE(definitionof(leafcstr("plus")), definitionof(Str("plu")));
  EXPECT_EQ(definitionof(leafempty()), definitionof(Str("")));
}

TEST_F(DefinitionsTest, WhatIsLearnedOfATerm) {
  loadtestdefs();
  define("foo", "\\ a (\\ q (\\ z (q a)))");
  Definition* d = definitionof(Str("foo"));
  definitionknow(d);
  EXPECT_EQ(d->arity, 3);
  EXPECT_EQ(std::string(reinterpret_cast<char*>(d->letters), 3), "aqz");
  EXPECT_EQ(shown(d->body), "q a");
  EXPECT_FALSE(d->flips);
  define("foo", "1");
  definitionknow(d);
  EXPECT_EQ(d->arity, 0);
  EXPECT_EQ(shown(d->body), "1");
}

TEST_F(DefinitionsTest, FlippingIsTheSecondAppliedToTheFirst) {
  loadtestdefs();
  Definition* t = definitionof(Str("T"));
  struct {
    const char* term;
    bool flips;
  } cases[] = {
      {"\\ a (\\ b (b a))", true},  {"\\ x (\\ y (y x))", true},  {"\\ a (\\ b (a b))", false},
      {"\\ a (\\ a (a a))", false}, {"\\ a (\\ b b)", false},     {"\\ a (\\ b (b a a))", false},
      {"\\ a a", false},            {"\\ a (\\ b (\\ c c))", false},
  };
  for (const auto& c : cases) {
    define("T", c.term);
    definitionknow(t);
    EXPECT_EQ(t->flips, c.flips) << c.term;
  }
}

TEST_F(DefinitionsTest, LiveNames) {
  aliveadd("foo");
  EXPECT_TRUE(isalive("foo"));
  EXPECT_FALSE(isalive("fo"));
  EXPECT_TRUE(definitionof(Str("foo"))->alive);
  aliveremove("foo");
  aliveremove("foo");
  EXPECT_FALSE(isalive("foo"));
  EXPECT_FALSE(definitionof(Str("foo"))->alive);
  aliveadd("foo");
  aliveadd("goo");
  aliveclear();
  EXPECT_TRUE(alivenames().empty());
  EXPECT_FALSE(definitionof(Str("goo"))->alive);
}

TEST_F(DefinitionsDeathTest, ADefinitionHasATerm) {
  EXPECT_FAILS(defset("foo", CellRef()), "graph/definitions.cpp");
}

TEST_F(DefinitionsTest, LazyHeadsAreTwentyOneCharacters) {
  std::string lazy;
  for (int c = 0; c < 256; c++) {
    if (islazybyte(static_cast<uint8_t>(c))) lazy += static_cast<char>(c);
  }
  EXPECT_EQ(lazy, "&ABCDEFHIJKLNQRTUVXZ|");
}

// --- Builtins ------------------------------------------------------------------------------------

static CellRef& one(CellRef& out, CellRef) { return out = leafcstr("1"); }
static CellRef& two(CellRef& out, CellRef) { return out = leafcstr("2"); }

TEST_F(DefinitionsTest, TheRegistryIsAMapOfTheRows) {
  static const BuiltinRow rows[] = {{"twice", 2, two}, {"once", 1, one}};
  builtinuse(rows, 2);
  EXPECT_EQ(builtintable().size(), 2u);
  EXPECT_EQ(builtintable().begin()->first, Str("once"));
  EXPECT_EQ(builtinfind("twice")->arity, 2u);
  EXPECT_EQ(builtinfind("twice")->fn, two);
  EXPECT_EQ(builtinfind("thrice"), nullptr);
  EXPECT_EQ(definitionof(Str("once"))->builtin, builtinfind("once"));
  builtinuse(rows, 1);
  EXPECT_EQ(builtinfind("once"), nullptr);
  EXPECT_EQ(definitionof(Str("once"))->builtin, nullptr);
}

}  // namespace tarn
