// The table of builtins: its names, arities and order against a list kept apart.
#include "host/builtintable.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace tarn {
namespace {

std::vector<std::pair<std::string, uint32_t>> wantedrows() {
  std::ifstream file(TESTFILES "/builtintable.want");
  std::vector<std::pair<std::string, uint32_t>> rows;
  std::string name;
  uint32_t arity = 0;
  while (file >> name >> arity) rows.emplace_back(name, arity);
  return rows;
}

TEST(BuiltinTable, HasTheWantedNamesAndAritiesInOrder) {
  std::vector<std::pair<std::string, uint32_t>> wanted = wantedrows();
  ASSERT_EQ(wanted.size(), 256u);
  for (size_t i = 0; i < wanted.size(); i++) {
    EXPECT_EQ(builtinrows[i].name, wanted[i].first);
    EXPECT_EQ(builtinrows[i].arity, wanted[i].second) << wanted[i].first;
  }
}

// Each builtin stands in the reference between backticks, alone or with its arguments behind it.
TEST(BuiltinTable, IsToldWholeInTheReference) {
  std::ifstream file(REFERENCE);
  std::string page((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  ASSERT_FALSE(page.empty());
  for (const BuiltinRow& row : builtinrows) {
    std::string name = std::string("`") + row.name;
    EXPECT_TRUE(page.find(name + "`") != std::string::npos ||
                page.find(name + " ") != std::string::npos)
        << row.name;
  }
}

TEST(BuiltinTable, HasThisManyRowsOfEachArity) {
  std::array<int, 8> counts = {};
  for (const BuiltinRow& row : builtinrows) counts[row.arity]++;
  EXPECT_EQ(counts, (std::array<int, 8>{32, 101, 73, 39, 7, 1, 2, 1}));
}

TEST(BuiltinTable, IsInstalledWithOneEntryForEachName) {
  hostinstall();
  EXPECT_EQ(builtintable().size(), 256u);
  for (const BuiltinRow& row : builtinrows) {
    const BuiltinEntry* entry = builtinfind(row.name);
    ASSERT_NE(entry, nullptr) << row.name;
    EXPECT_EQ(entry->arity, row.arity) << row.name;
    EXPECT_EQ(entry->fn, row.fn) << row.name;
  }
  EXPECT_EQ(builtinfind("nothing"), nullptr);
}

// Three rows whose function reads more arguments than the row tells.
TEST(BuiltinTable, KeepsItsOddArities) {
  hostinstall();
  EXPECT_EQ(builtinfind("fd_set")->arity, 0u);
  EXPECT_EQ(builtinfind("strtol")->arity, 2u);
  EXPECT_EQ(builtinfind("strtoul")->arity, 2u);
}

TEST(BuiltinTable, GivesTwoNamesToOneFunctionWhereTheLibraryHasTwo) {
  hostinstall();
  EXPECT_EQ(builtinfind("atoi")->fn, builtinfind("atol")->fn);
  EXPECT_EQ(builtinfind("memcpy")->fn, builtinfind("memmove")->fn);
  EXPECT_EQ(builtinfind("ai_passive")->fn, builtinfind("sock_stream")->fn);
}

}  // namespace
}  // namespace tarn
