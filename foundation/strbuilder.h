// A tree of pieces for long joins: adding a piece copies nothing, and the whole text is copied just
// once, at the end. The tree fills like a binary counter, so its depth is logarithmic.
//
//   after add a, b, c:      .
//                          / \                 only leaves hold a piece
//                         .   c
//                        / \                   .
//                       a   b
#pragma once

#include "foundation/str.h"

namespace tarn {

struct StrBuilder {
  Str piece;          // empty at an inner node
  StrBuilder* left;   // owned; null at a leaf
  StrBuilder* right;  // owned; null at a leaf

  // Appends a piece and gives the new root; node may be null, the empty tree.
  [[nodiscard]] static StrBuilder* add(StrBuilder* node, Str s);
  [[nodiscard]] static StrBuilder* add(StrBuilder* node, uint8_t c);
  // The bytes of all pieces; 0 for null.
  static int64_t length(const StrBuilder* node);
  // Copies the pieces from left to right into out, from `at` on; gives the place behind them.
  static int64_t flatten(Str& out, const StrBuilder* node, int64_t at);
  // Releases the whole tree: left, right, then the node.
  static void free(StrBuilder* node);
  // The joined text; the tree is released.
  static Str take(StrBuilder* node);
};

}  // namespace tarn
