// Sets of names as terms.
#include "frontend/namelist.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/graph/terms.h"

namespace tarn {
namespace {

CellRef list(std::initializer_list<const char*> names) {
  CellRef made = emptylist();
  for (const char* name : names) made = listinsert(made, leafcstr(name));
  return made;
}

// The names with blanks between them.
std::string names(Cell* l) {
  std::string text;
  for (; cellispair(l); l = rightlink(l)) text += shown(leftlink(l)) + " ";
  EXPECT_EQ(shown(l), "()");
  return text;
}

TEST(NameList, Shapes) {
  EXPECT_EQ(shown(emptylist()), "()");
  EXPECT_EQ(shown(listone(leafcstr("a"))), "a ()");
  EXPECT_EQ(shown(list({"b", "a"})), "a (b ())");
}

TEST(NameList, InsertKeepsTheOrder) {
  EXPECT_EQ(names(list({"foo", "a", "fo", "Z", "+", "\xff", "_", "foo"})), "+ Z _ a fo foo \xff ");
  CellRef two = list({"a", "b"});
  EXPECT_EQ(static_cast<Cell*>(listinsert(two, leafcstr("a"))), static_cast<Cell*>(two));
}

TEST(NameList, Has) {
  CellRef l = list({"b", "d"});
  for (const char* name : {"b", "d"}) EXPECT_TRUE(listhas(l, leafcstr(name))) << name;
  for (const char* name : {"a", "c", "e", "bb"}) EXPECT_FALSE(listhas(l, leafcstr(name))) << name;
  EXPECT_FALSE(listhas(emptylist(), leafcstr("a")));
}

TEST(NameList, Remove) {
  CellRef l = list({"a", "b", "c"});
  EXPECT_EQ(names(listremove(l, leafcstr("a"))), "b c ");
  EXPECT_EQ(names(listremove(l, leafcstr("b"))), "a c ");
  EXPECT_EQ(names(listremove(l, leafcstr("c"))), "a b ");
  EXPECT_EQ(names(listremove(l, leafcstr("d"))), "a b c ");
  EXPECT_EQ(names(l), "a b c ");
}

TEST(NameList, Union) {
  EXPECT_EQ(names(listunion(list({"a", "c"}), list({"b", "c", "d"}))), "a b c d ");
  EXPECT_EQ(names(listunion(emptylist(), list({"b"}))), "b ");
  EXPECT_EQ(names(listunion(list({"b"}), emptylist())), "b ");
}

TEST(NameList, Size) {
  EXPECT_EQ(listsize(emptylist()), 0);
  EXPECT_EQ(listsize(list({"a", "b", "a"})), 2);
}

}  // namespace
}  // namespace tarn
