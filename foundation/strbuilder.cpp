// The tree of pieces: growing it, and copying it out once.
#include "foundation/strbuilder.h"

#include <cstring>
#include <utility>

namespace tarn {

static StrBuilder* leaf(Str s) { return new StrBuilder{std::move(s), nullptr, nullptr}; }

// A subtree is full when its two outer edges are equally long.
static bool full(const StrBuilder* node) {
  int64_t leftdepth = 0;
  int64_t rightdepth = 0;
  for (const StrBuilder* n = node; n->left != nullptr; n = n->left) leftdepth++;
  for (const StrBuilder* n = node; n->right != nullptr; n = n->right) rightdepth++;
  return leftdepth == rightdepth;
}

StrBuilder* StrBuilder::add(StrBuilder* node, Str s) {
  if (node == nullptr) return leaf(std::move(s));
  if (full(node)) return new StrBuilder{Str(), node, leaf(std::move(s))};
  node->right = add(node->right, std::move(s));
  return node;
}

StrBuilder* StrBuilder::add(StrBuilder* node, uint8_t c) { return add(node, strbyte(c)); }

int64_t StrBuilder::length(const StrBuilder* node) {
  if (node == nullptr) return 0;
  return length(node->left) + node->piece.len() + length(node->right);
}

int64_t StrBuilder::flatten(Str& out, const StrBuilder* node, int64_t at) {
  if (node == nullptr) return at;
  at = flatten(out, node->left, at);
  if (node->piece.len() != 0) {
    check(at >= 0 && at <= out.len() - node->piece.len());
    memcpy(out.own() + at, node->piece.bytes(), static_cast<size_t>(node->piece.len()));
    at += node->piece.len();
  }
  return flatten(out, node->right, at);
}

void StrBuilder::free(StrBuilder* node) {
  if (node == nullptr) return;
  free(node->left);
  free(node->right);
  delete node;
}

Str StrBuilder::take(StrBuilder* node) {
  Str out = strsized(length(node));
  flatten(out, node, 0);
  free(node);
  return out;
}

}  // namespace tarn
