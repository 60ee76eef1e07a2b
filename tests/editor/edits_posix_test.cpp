// The words of the fatal paths of the plain edits; they go to descriptor 1.
#include <gtest/gtest.h>
#include <unistd.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(Edits, AnUnknownKindOfByteEditIsFatal) {
  Buffer buffer("abc");
  enteroper(opermake(optyped, 0, Str("?xy")));
  EXPECT_DEATH((dup2(2, 1), edittodo(1)), "TARNFAIL: Bad oper type in edittodo\n");
  EXPECT_DEATH((dup2(2, 1), editundo(1)), "TARNFAIL: Bad oper type in editundo\n");
}

}  // namespace
}  // namespace tarn
