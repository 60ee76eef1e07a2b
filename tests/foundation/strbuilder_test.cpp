// The text builder: order of the pieces, the shape of the tree, its depth.
#include "foundation/strbuilder.h"

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace {

TEST(StrBuilder, NothingIsTheEmptyText) {
  EXPECT_EQ(StrBuilder::length(nullptr), 0);
  EXPECT_EQ(StrBuilder::take(nullptr), Str());
}

TEST(StrBuilder, FillsLikeABinaryCounter) {
  StrBuilder* root = nullptr;
  root = StrBuilder::add(root, Str("a"));
  EXPECT_EQ(root->left, nullptr);
  root = StrBuilder::add(root, Str("b"));
  EXPECT_EQ(root->left->piece, Str("a"));
  EXPECT_EQ(root->right->piece, Str("b"));
  root = StrBuilder::add(root, Str("c"));  // the pair is full: it becomes the left half
  EXPECT_EQ(root->right->piece, Str("c"));
  EXPECT_EQ(root->left->right->piece, Str("b"));
  root = StrBuilder::add(root, 'd');  // not full: the piece joins c
  EXPECT_EQ(root->right->left->piece, Str("c"));
  EXPECT_EQ(root->right->right->piece, Str("d"));
  EXPECT_EQ(StrBuilder::length(root), 4);
  EXPECT_EQ(StrBuilder::take(root), Str("abcd"));
}

TEST(StrBuilder, FlattensAtAnOffset) {
  StrBuilder* root = StrBuilder::add(StrBuilder::add(nullptr, Str("xy")), Str("z"));
  Str out("........");
  EXPECT_EQ(StrBuilder::flatten(out, root, 2), 5);
  EXPECT_EQ(out, Str("..xyz..."));
  StrBuilder::free(root);
}

static int64_t depth(const StrBuilder* node) {
  if (node == nullptr) return 0;
  return 1 + std::max(depth(node->left), depth(node->right));
}

TEST(StrBuilder, ManyPiecesStayShallowAndInOrder) {
  StrBuilder* root = nullptr;
  std::string want;
  for (int i = 0; i < 5000; i++) {
    std::string piece = std::to_string(i) + (i % 7 == 0 ? std::string() : ",");
    root = StrBuilder::add(root, Str(piece.data(), static_cast<int64_t>(piece.size())));
    want += piece;
  }
  EXPECT_LE(depth(root), 14);  // 2^13 leaves would hold them all
  EXPECT_EQ(StrBuilder::take(root), Str(want.data(), static_cast<int64_t>(want.size())));
}

}  // namespace
}  // namespace tarn
