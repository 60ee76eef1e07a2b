// The entry of every test program: the tests run on the deep stack and with bytes that stay as they
// are, as the programs themselves do.
#include <gtest/gtest.h>

#include "foundation/bigstack.h"
#include "foundation/system.h"

static int status = 0;

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  tarn::systemstart();
  tarn::runonbigstack([](void*) { status = RUN_ALL_TESTS(); }, nullptr);
  return status;
}
