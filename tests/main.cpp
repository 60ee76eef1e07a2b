// The entry of every test program: the tests run on the deep stack and with bytes that stay as they
// are, as the programs themselves do.
#include <gtest/gtest.h>

#include "foundation/bigstack.h"
#include "foundation/checking.h"
#include "foundation/system.h"

static int status = 0;

// In the checking build, a use of dead memory is told by the test that it happens in.
struct DeadMemory : testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo&) override { tarn::checkdead(); }
};

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  tarn::systemstart();
  testing::UnitTest::GetInstance()->listeners().Append(new DeadMemory);
  tarn::runonbigstack([](void*) { status = RUN_ALL_TESTS(); }, nullptr);
  return status;
}
