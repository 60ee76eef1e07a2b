// Layouts of records as text.
#include "frontend/typetable.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

TEST(TypeTable, RecordsWithoutFields) {
  EXPECT_EQ(typetext({"time_t", 8, nullptr, 0}), Str("[time_t[[8]]]"));
  EXPECT_EQ(typetext({"void", 0, nullptr, 0}), Str("[void]"));
}

TEST(TypeTable, FieldsInOrderOfTheirOffsets) {
  const TypeField fields[] = {{"b", 4, 4}, {"a", 4, 0}};
  EXPECT_EQ(typetext({"pair", 8, fields, 2}), Str("[pair[a[4]][b[4]]]"));
}

TEST(TypeTable, PaddingHasNoName) {
  const TypeField fields[] = {{"d_ino", 4, 0},     {"d_off", 4, 4},   {"d_reclen", 2, 8},
                              {"d_namlen", 8, 16}, {"d_type", 4, 24}, {"d_name", 261, 28}};
  EXPECT_EQ(typetext({"dirent", 296, fields, 6}),
            Str("[dirent[d_ino[4]][d_off[4]][d_reclen[2]][[6]][d_namlen[8]][d_type[4]][d_name[261]]"
                "[[7]]]"));
  const TypeField late[] = {{"x", 1, 2}};
  EXPECT_EQ(typetext({"late", 3, late, 1}), Str("[late[[2]][x[1]]]"));
}

// The sum of all sizes that are written in a record's text: its numbers.
int64_t sizesof(const Str& text) {
  int64_t sum = 0;
  int64_t number = 0;
  for (uint8_t c : text) {
    bool digit = c >= '0' && c <= '9';
    number = digit ? number * 10 + (c - '0') : 0;
    sum += digit ? number - number / 10 : 0;
  }
  return sum;
}

TEST(TypeTable, SizesOfThisPlatformAddUp) {
  TypeRecords records = typerecords();
  ASSERT_EQ(records.count, 6);
  std::string names;
  for (int i = 0; i < records.count; i++) {
    names += std::string(records.rows[i].name) + " ";
    EXPECT_EQ(sizesof(typetext(records.rows[i])), records.rows[i].size) << records.rows[i].name;
  }
  EXPECT_EQ(names, "addrinfo dirent fd_set size_t socklen_t time_t ");
}

TEST(TypeTable, IsOneBalancedString) {
  std::string table = typetable().text();
  EXPECT_EQ(table.substr(0, 21), "[[addrinfo[ai_flags[4");
  int depth = 0;
  for (size_t i = 0; i < table.size(); i++) {
    depth += table[i] == '[' ? 1 : table[i] == ']' ? -1 : 0;
    EXPECT_EQ(depth == 0, i + 1 == table.size());
  }
}

}  // namespace
}  // namespace tarn
