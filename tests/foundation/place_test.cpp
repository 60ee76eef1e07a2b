// Places in messages.
#include "foundation/place.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(Place, FiveDigits) {
  EXPECT_EQ(placename(0), Str("_____"));
  EXPECT_EQ(placename(1), Str("____a"));
  EXPECT_EQ(placename(19), Str("____u"));
  EXPECT_EQ(placename(63), Str("____~"));
  EXPECT_EQ(placename(64), Str("___a_"));
  EXPECT_EQ(placename(0x3fffffff), Str("~~~~~"));
  EXPECT_EQ(placename(0x40000000), Str("!!!!!"));
  EXPECT_FAILS(placename(-1), "foundation/place");
  EXPECT_FAILS(placename(0x40000001), "foundation/place");
}

TEST(Place, ReadsNoneBack) {
  for (const char* field : {"_____", "____b", "____", "", "~~~~~", "toolong", "foo", "a!!!!"}) {
    EXPECT_EQ(placevalue(field), -1) << field;
  }
  EXPECT_FAILS(placevalue("!!!!!"), "foundation/alphabet");
}

}  // namespace
}  // namespace tarn
