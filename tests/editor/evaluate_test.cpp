// What Escape-e does to the screen, before the painter comes to it.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "editor/dispatch.h"
#include "editor/grid.h"
#include "editor/paint.h"
#include "editor/state.h"
#include "host/builtintable.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Evaluate : testing::Test {
  Evaluate() {
    hostinstall();
    width = 10;
    height = 3;
    gridreset();
    suppressed = true;  // no paint
  }
  ~Evaluate() override {
    suppressed = false;
    repaint = paintfile;
    line = Str();
    width = 80;
    height = 24;
    gridreset();
  }
  static std::string written(const char* keys) {
    testing::internal::CaptureStdout();
    line = keys;
    dispatch();
    return testing::internal::GetCapturedStdout();
  }
};

// The terminal has the marks in bright red on its own background. The cell known to be shown is
// another, foreground 0 on background 9, so that this one alone would not be sent again.
TEST_F(Evaluate, TheWholeScreenIsMarks) {
  Buffer b("1+2");
  EXPECT_EQ(written("\x1B" "e"), "\x1B[1;1H\x1B[J\x1B[mEval\n"
                                 "\x1B[1;1H\x1B[J\x1B[m\x1B[91m\n" + std::string(30, '!'));
  EXPECT_EQ(std::count(showngrid(), showngrid() + 30, 0x9021), 30);
  EXPECT_EQ(stat, "3");
}

}  // namespace
}  // namespace tarn
