// The letters of the bytes that cannot stand in a string, and the way back.
#include "foundation/escapes.h"

#include <gtest/gtest.h>

namespace tarn {

TEST(Escapes, ThreeBytesHaveALetter) {
  EXPECT_EQ(escapeletter('\n'), 'p');
  EXPECT_EQ(escapeletter('['), 'q');
  EXPECT_EQ(escapeletter(']'), 'r');
  EXPECT_EQ(escapeletter('p'), 0);
  EXPECT_EQ(escapeletter(0), 0);
  EXPECT_EQ(escapeletter(255), 0);
}

TEST(Escapes, TheLettersLeadBack) {
  EXPECT_EQ(escapedbyte('p'), '\n');
  EXPECT_EQ(escapedbyte('q'), '[');
  EXPECT_EQ(escapedbyte('r'), ']');
  EXPECT_EQ(escapedbyte('s'), -1);
  EXPECT_EQ(escapedbyte('['), -1);
  EXPECT_EQ(escapedbyte(0), -1);
}

}  // namespace tarn
