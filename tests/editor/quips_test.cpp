// The table of quips: its order is seen, because rand starts the same in every run.
#include "editor/quips.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tarn {
namespace {

TEST(Quips, OwnLines) {
  int32_t longer = 0;
  int32_t broken = 0;
  for (int32_t i = 0; i < 10; i++) {
    std::string line = quips[i];
    longer += line.size() > 50;
    broken += line.find('\n') != line.npos;
  }
  EXPECT_GE(longer, 3);
  EXPECT_EQ(broken, 1);
}

TEST(Quips, PlacesInTheTable) {
  EXPECT_EQ(quips[10], std::string(74, '.'));
  EXPECT_EQ(quips[11], std::string("(H)"));
  EXPECT_EQ(quips[57], std::string("(L [][]H)"));
  EXPECT_EQ(std::string(quips[58]).size(), 9u);
  EXPECT_EQ(quips[59], std::string("(cmpr9A=1)"));
  EXPECT_EQ(quips[113], std::string("(less{q\\r\\cmpr q r=01}lessAB)"));
  EXPECT_EQ(quips[131], std::string(37, '[') + std::string(37, ']'));
  EXPECT_EQ(quips[132], std::string(74, '\n'));
}

TEST(Quips, NoneTwice) {
  std::set<std::string> seen(quips, quips + quipcount);
  EXPECT_EQ(seen.size(), 133u);
}

}  // namespace
}  // namespace tarn
