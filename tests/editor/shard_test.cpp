// The tree of pieces: the size word, finding, cutting, inserting, removing, and that it stays
// shallow.
#include "editor/shard.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tarn {
namespace {

constexpr char bytes[] = "0123456789";
const uint8_t* const run = reinterpret_cast<const uint8_t*>(bytes);

std::string textof(const shard* root) {
  std::string text;
  int64_t within = 0;
  const shard* s = shardfind(const_cast<shard*>(root), 0, within);
  for (; s != nullptr; s = shardnext(s)) {
    text.append(reinterpret_cast<const char*>(shardbytes(s)), static_cast<size_t>(shardlength(s)));
  }
  return text;
}

int64_t pieces(const shard* root) {
  return root == nullptr ? 0 : pieces(root->left) + 1 + pieces(root->right);
}

int64_t depth(const shard* root) {
  return root == nullptr ? 0 : 1 + std::max(depth(root->left), depth(root->right));
}

struct Tree {
  shard* root = nullptr;
  ~Tree() { shardfree(root); }
  void put(int64_t i, char byte) { shardinsert(root, i, shardsingle(static_cast<uint8_t>(byte))); }
  void put(int64_t i, const char* at, int64_t n) {
    shardinsert(root, i, shardrun(reinterpret_cast<const uint8_t*>(at), n));
  }
};

TEST(Shard, TheSizeWordHoldsColourTotalAndKind) {
  Tree tree;
  tree.put(0, bytes, 10);
  EXPECT_EQ(tree.root->word, 0x80000000u | 9u << 1);  // a black run, 10 bytes in all
  EXPECT_EQ(tree.root->length, 9u);
  EXPECT_EQ(tree.root->bytes, run);
  tree.put(0, 'x');
  EXPECT_EQ(tree.root->word, 0x80000000u | 10u << 1);
  EXPECT_EQ(tree.root->left->word, 1u);  // a red single, total 1
  EXPECT_EQ(tree.root->left->byte, 'x');
  EXPECT_EQ(tree.root->left->length, 0u);
}

TEST(Shard, NothingIsFoundOutsideTheText) {
  Tree tree;
  int64_t within = 0;
  EXPECT_EQ(shardfind(tree.root, 0, within), nullptr);
  tree.put(0, bytes, 10);
  EXPECT_EQ(shardfind(tree.root, -1, within), nullptr);
  EXPECT_EQ(shardfind(tree.root, 10, within), nullptr);
  EXPECT_EQ(shardfind(tree.root, 9, within), tree.root);
  EXPECT_EQ(within, 9);
}

TEST(Shard, SplittingTheOnlyRunCopiesNothing) {
  Tree tree;
  tree.put(0, bytes, 10);
  shardsplit(tree.root, 4);
  checkshards(tree.root);
  EXPECT_EQ(pieces(tree.root), 2);
  int64_t within = 0;
  const shard* left = shardfind(tree.root, 0, within);
  const shard* right = shardnext(left);
  EXPECT_EQ(shardbytes(left), run);
  EXPECT_EQ(shardlength(left), 4);
  EXPECT_EQ(shardbytes(right), run + 4);
  EXPECT_EQ(shardlength(right), 6);
  EXPECT_EQ(shardback(left), nullptr);
  EXPECT_EQ(shardnext(right), nullptr);
  EXPECT_EQ(shardback(right), left);
}

TEST(Shard, SplittingWhereAShardBeginsDoesNothing) {
  Tree tree;
  tree.put(0, bytes, 10);
  shardsplit(tree.root, 0);
  shardsplit(tree.root, 10);
  EXPECT_EQ(pieces(tree.root), 1);
}

TEST(Shard, InsertsAtBothEndsAndInside) {
  Tree tree;
  tree.put(0, bytes, 10);
  tree.put(0, 'a');
  tree.put(11, 'z');
  tree.put(6, 'm');
  checkshards(tree.root);
  EXPECT_EQ(textof(tree.root), "a01234m56789z");
  EXPECT_EQ(shardtotal(tree.root), 13);
}

TEST(Shard, RemovesFromTheFrontTheEndAndTheMiddleOfARun) {
  Tree tree;
  tree.put(0, bytes, 10);
  shardremove(tree.root, 0, 2);
  EXPECT_EQ(textof(tree.root), "23456789");
  shardremove(tree.root, 7, 1);
  EXPECT_EQ(textof(tree.root), "2345678");
  EXPECT_EQ(pieces(tree.root), 1);
  shardremove(tree.root, 3, 2);
  EXPECT_EQ(textof(tree.root), "23478");
  EXPECT_EQ(pieces(tree.root), 2);
  checkshards(tree.root);
}

TEST(Shard, RemovesAcrossPiecesUpToTheEmptyText) {
  Tree tree;
  for (char c = 'a'; c <= 'z'; c++) tree.put(c - 'a', c);
  tree.put(13, bytes, 10);
  shardremove(tree.root, 10, 8);
  checkshards(tree.root);
  EXPECT_EQ(textof(tree.root), "abcdefghij56789nopqrstuvwxyz");
  shardremove(tree.root, 0, 28);
  EXPECT_EQ(tree.root, nullptr);
}

TEST(Shard, StaysShallowWhateverTheOrder) {
  constexpr int64_t count = 20000;
  for (int order = 0; order < 3; order++) {
    Tree tree;
    for (int64_t i = 0; i < count; i++) tree.put(order == 0 ? i : order == 1 ? 0 : i / 2, 'x');
    checkshards(tree.root);
    EXPECT_LE(depth(tree.root), 2 * std::log2(count + 1));
    for (int64_t i = count; i > 1; i--) shardremove(tree.root, order == 0 ? 0 : i / 3, 1);
    checkshards(tree.root);
    EXPECT_EQ(shardtotal(tree.root), 1);
  }
}

TEST(Shard, HoldsExactlyTwoToTheThirty) {
  Tree tree;
  tree.put(0, bytes, sizelimit);  // never read
  EXPECT_EQ(shardtotal(tree.root), 0x40000000);
  EXPECT_EQ(tree.root->word, 0xFFFFFFFEu);
  EXPECT_DEATH(tree.put(0, 'x'), "ASSERTION FAILED:editor/shard.cpp:");
  EXPECT_DEATH(shardrun(run, sizelimit + 1), "ASSERTION FAILED:editor/shard.cpp:");
  EXPECT_DEATH(shardrun(run, 0), "ASSERTION FAILED:editor/shard.cpp:");
}

TEST(Shard, OffsetsOutOfRangeAreFaults) {
  Tree tree;
  tree.put(0, bytes, 10);
  EXPECT_DEATH(tree.put(11, 'x'), "ASSERTION FAILED");
  EXPECT_DEATH(tree.put(-1, 'x'), "ASSERTION FAILED");
  EXPECT_DEATH(shardremove(tree.root, 9, 2), "ASSERTION FAILED");
}

TEST(Shard, TheCheckerSeesWhatIsWrong) {
  Tree tree;
  for (char c = 'a'; c <= 'h'; c++) tree.put(0, c);
  checkshards(tree.root);
  tree.root->word ^= 1;
  EXPECT_DEATH(checkshards(tree.root), "ASSERTION FAILED");
  tree.root->word ^= 1;
  tree.root->word ^= 2;
  EXPECT_DEATH(checkshards(tree.root), "ASSERTION FAILED");
  tree.root->word ^= 2;
  tree.root->left->parent = tree.root->right;
  EXPECT_DEATH(checkshards(tree.root), "ASSERTION FAILED");
  tree.root->left->parent = tree.root;
}

}  // namespace
}  // namespace tarn
