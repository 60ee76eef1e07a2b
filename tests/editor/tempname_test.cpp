// Temporary names: their form, and that no two are the same.
#include "editor/tempname.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(TempName, SixDigitsBehindTheStem) {
  for (int run = 0; run < 1000; run++) {
    std::string name = textof(tempname());
    ASSERT_EQ(name.size(), 20u);
    ASSERT_EQ(name.substr(0, 14), "/tmp/tarn.new.");
    ASSERT_EQ(name.find_first_not_of("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ", 14), name.npos);
  }
}

TEST(TempName, GoesOnFromNameToName) {
  Str first = tempname();
  Str second = tempname();
  EXPECT_FALSE(first == second);
}

}  // namespace
}  // namespace tarn
