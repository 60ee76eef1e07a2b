// Keys as bytes: where keys end, and what a key press types.
#include "editor/keys.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

Str text(const std::string& bytes) { return Str(bytes.data(), static_cast<int64_t>(bytes.size())); }

bool done(const std::string& bytes) { return keysdone(text(bytes)); }

TEST(Keysdone, PlainBytesAreKeys) {
  EXPECT_TRUE(done(""));
  EXPECT_TRUE(done("a"));
  EXPECT_TRUE(done("abc\n\t\x7F"));
  EXPECT_TRUE(done(std::string("\0\1\2", 3)));
}

TEST(Keysdone, EscapeWaitsForOneKey) {
  EXPECT_FALSE(done("\x1B"));
  EXPECT_FALSE(done("ab\x1B"));
  EXPECT_TRUE(done("\x1B" "a"));
  EXPECT_TRUE(done("\x1B\x1B"));
  EXPECT_TRUE(done("\x1B\x07"));
  EXPECT_TRUE(done("\x1BO"));
  EXPECT_FALSE(done("\x1B" "a\x1B"));
}

TEST(Keysdone, ControlSequences) {
  EXPECT_FALSE(done("\x1B["));
  EXPECT_TRUE(done("\x1B[A"));
  EXPECT_TRUE(done("\x1B[["));
  EXPECT_FALSE(done("\x1B[1"));
  EXPECT_FALSE(done("\x1B[1;5"));
  EXPECT_TRUE(done("\x1B[1;5C"));
  EXPECT_FALSE(done("\x1B[1 "));
  EXPECT_TRUE(done("\x1B[1 q"));
  EXPECT_TRUE(done("\x1B[ 1"));   // behind an intermediate byte a digit is the final one
  EXPECT_TRUE(done("\x1B[\x7F"));
  EXPECT_FALSE(done("\x1B[A\x1B["));
}

TEST(Keysdone, ControlSequenceEndsAtAControlByte) {
  EXPECT_TRUE(done("\x1B[\x07"));
  EXPECT_TRUE(done("\x1B[1 \n"));
  EXPECT_FALSE(done("\x1B[\x1B"));     // the Escape begins a key
  EXPECT_TRUE(done("\x1B[\x1B" "a"));
}

TEST(Keysdone, ControlSequenceEndsBeforeAHighByte) {
  EXPECT_TRUE(done("\x1B[\x80"));      // a key of its own
  EXPECT_FALSE(done("\x1B[\xC3"));     // half a group
  EXPECT_TRUE(done("\x1B[1\xC3\xA9"));
}

TEST(Keysdone, Utf8Groups) {
  EXPECT_TRUE(done("\x80"));           // one leading bit
  EXPECT_TRUE(done("\xBF"));
  EXPECT_TRUE(done("\xF8"));           // five
  EXPECT_TRUE(done("\xFF"));
  EXPECT_FALSE(done("\xC3"));
  EXPECT_TRUE(done("\xC3\xA9"));
  EXPECT_FALSE(done("\xE2\x82"));
  EXPECT_TRUE(done("\xE2\x82\xAC"));
  EXPECT_FALSE(done("\xF0\x9F\x98"));
  EXPECT_TRUE(done("\xF0\x9F\x98\x80"));
  EXPECT_TRUE(done("\xC3" "a"));       // broken off: "a" is a key
  EXPECT_FALSE(done("\xE2\xC3"));      // broken off by another half group
  EXPECT_FALSE(done("\xE2\x82\x1B"));  // ... and by an Escape
}

TEST(Keysdone, EscapeAndAGroup) {
  EXPECT_FALSE(done("\x1B\xC3"));
  EXPECT_TRUE(done("\x1B\xC3\xA9"));
  EXPECT_TRUE(done("\x1B\x80"));
  EXPECT_TRUE(done("\x1B\xFF"));
  EXPECT_TRUE(done("\x1B\xC3" "a"));
  EXPECT_FALSE(done("\x1B\xC3\x1B"));
  EXPECT_TRUE(done("\x1B\xC3\x1B" "a"));
}

TEST(Keysdone, GoesOnFromAnyWholeText) {
  const std::string bytes = "a\x1B[1;5C\x1B\xC3\xA9\x1B" "bc\xE2\x82\xAC";
  for (size_t cut = 0; cut <= bytes.size(); cut++) {
    if (!done(bytes.substr(0, cut))) continue;
    for (size_t end = cut; end <= bytes.size(); end++) {
      EXPECT_EQ(done(bytes.substr(0, end)), done(bytes.substr(cut, end - cut)))
          << cut << " " << end;
    }
  }
}

TEST(Lastkey, IsTheLastWholeKey) {
  auto last = [](const std::string& bytes) { return lastkey(text(bytes)); };
  EXPECT_EQ(last(""), 0);
  EXPECT_EQ(last("a"), 0);
  EXPECT_EQ(last("abc"), 2);
  EXPECT_EQ(last("\x1Bs\x1B[A"), 2);
  EXPECT_EQ(last("\x1Bs\x1B[1;5C"), 2);
  EXPECT_EQ(last("\x1Bsa\x1Bg"), 3);
  EXPECT_EQ(last("\x1Bs\xC3\xA9"), 2);
  EXPECT_EQ(last("\x1Bs\x1B\xC3\xA9"), 2);
  EXPECT_EQ(last("\x1Bs\x1B[A\x07"), 5);
  EXPECT_EQ(last("\t\x10\x10"), 2);
}

// What each virtual key types: alone, with Shift, with Ctrl, with Ctrl and Shift.
struct PressRow {
  int32_t key;
  const char* plain;
  const char* shifted;
};

const PressRow pressrows[] = {
    {8, "\x7F", "\x7F"},   {9, "\t", "\t"},       {13, "\n", "\n"},      {27, "\x1B", "\x1B"},
    {32, " ", " "},        {33, "\x15", "\x15"},  {34, "\x04", "\x04"},  {35, "\x05", "\x05"},
    {36, "\x01", "\x01"},  {37, "\x1B[D", "\x1B[D"}, {38, "\x1B[A", "\x1B[A"},
    {39, "\x1B[C", "\x1B[C"}, {40, "\x1B[B", "\x1B[B"},
    {45, "\x18", "\x18"},  {46, "\x1C", "\x1C"},
    {48, "0", ")"},  {49, "1", "!"},  {50, "2", "@"},  {51, "3", "#"},  {52, "4", "$"},
    {53, "5", "%"},  {54, "6", "^"},  {55, "7", "&"},  {56, "8", "*"},  {57, "9", "("},
    {96, "0", ")"},  {97, "1", "!"},  {98, "2", "@"},  {99, "3", "#"},  {100, "4", "$"},
    {101, "5", "%"}, {102, "6", "^"}, {103, "7", "&"}, {104, "8", "*"}, {105, "9", "("},
    {107, "=", "+"}, {109, "-", "_"}, {110, ".", ">"}, {111, "/", "?"},
    {186, ";", ":"}, {187, "=", "+"}, {188, ",", "<"}, {189, "-", "_"}, {190, ".", ">"},
    {191, "/", "?"}, {192, "`", "~"}, {219, "[", "{"}, {220, "\\", "|"}, {221, "]", "}"},
    {222, "'", "\""},
};

std::string typed(int32_t key, uint32_t control) {
  KeyText keys = translate({key, control});
  return std::string(reinterpret_cast<const char*>(keys.bytes), keys.n);
}

constexpr uint32_t leftctrl = 0x08, rightctrl = 0x04, shift = 0x10, capslock = 0x80, alt = 0x03;

TEST(Translate, TheTable) {
  for (const PressRow& row : pressrows) {
    EXPECT_EQ(typed(row.key, 0), row.plain) << row.key;
    EXPECT_EQ(typed(row.key, shift), row.shifted) << row.key;
    EXPECT_EQ(typed(row.key, capslock), row.plain) << row.key;
    EXPECT_EQ(typed(row.key, capslock | shift), row.shifted) << row.key;
    EXPECT_EQ(typed(row.key, alt), row.plain) << row.key;
  }
}

TEST(Translate, CtrlChangesSpaceAndMinusOnly) {
  for (const PressRow& row : pressrows) {
    bool space = row.key == 32;
    bool minus = row.key == 109 || row.key == 189;
    for (uint32_t ctrl : {leftctrl, rightctrl, leftctrl | rightctrl}) {
      EXPECT_EQ(typed(row.key, ctrl), space ? std::string(1, '\0') : row.plain) << row.key;
      EXPECT_EQ(typed(row.key, ctrl | shift),
                space   ? std::string(1, '\0')
                : minus ? "\x1F"
                        : row.shifted)
          << row.key;
    }
  }
}

TEST(Translate, Letters) {
  for (int32_t key = 'A'; key <= 'Z'; key++) {
    std::string small(1, static_cast<char>(key + 32)), capital(1, static_cast<char>(key));
    std::string control(1, static_cast<char>(key - 64));
    EXPECT_EQ(typed(key, 0), small);
    EXPECT_EQ(typed(key, shift), capital);
    EXPECT_EQ(typed(key, capslock), capital);
    EXPECT_EQ(typed(key, shift | capslock), capital);  // Caps Lock does not undo Shift
    EXPECT_EQ(typed(key, leftctrl), control);
    EXPECT_EQ(typed(key, rightctrl | shift), control);
    EXPECT_EQ(typed(key, alt), small);
  }
}

TEST(Translate, NoOtherKeyTypes) {
  auto known = [](int32_t key) {
    for (const PressRow& row : pressrows) {
      if (row.key == key) return true;
    }
    return key >= 'A' && key <= 'Z';
  };
  for (int32_t key = 0; key < 256; key++) {
    if (known(key)) continue;
    for (uint32_t control : {0u, shift, leftctrl, leftctrl | shift}) {
      EXPECT_EQ(typed(key, control), "") << key;
    }
  }
}

}  // namespace
}  // namespace tarn
