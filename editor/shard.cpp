// The tree of pieces: finding, linking, balancing, and the byte counts that go along.
#include "editor/shard.h"

#include "foundation/diag.h"

namespace tarn {

using Side = shard* shard::*;

static Side otherside(Side side) { return side == &shard::left ? &shard::right : &shard::left; }

static bool red(const shard* s) { return s != nullptr && shardisred(s); }
static void setred(shard* s, bool on) { s->word = (s->word & ~1u) | (on ? 1u : 0u); }

static uint32_t countless1(int64_t n) {
  check(n - 1 >= 0 && n - 1 < sizelimit);
  return static_cast<uint32_t>(n - 1);
}

static void settotal(shard* s, int64_t n) {
  s->word = (s->word & 0x80000001u) | countless1(n) << 1;
}

static void retotal(shard* s) {
  settotal(s, shardtotal(s->left) + shardlength(s) + shardtotal(s->right));
}

// Adds n, which may be negative, to the totals from s up to but not including `stop`. None leaves
// its range: the root's is the greatest, and the caller has tested that.
static void addtotals(shard* s, const shard* stop, int64_t n) {
  uint32_t added = static_cast<uint32_t>(n) << 1;
  for (; s != stop; s = s->parent) s->word += added;
}

shard* shardsingle(uint8_t byte) {
  shard* s = new shard{nullptr, nullptr, nullptr, 1, 0, {nullptr}};
  s->byte = byte;
  return s;
}

shard* shardrun(const uint8_t* bytes, int64_t n) {
  uint32_t less1 = countless1(n);
  return new shard{nullptr, nullptr, nullptr, 1u << 31 | less1 << 1 | 1, less1, {bytes}};
}

// --- Walking -------------------------------------------------------------------------------------

static shard* outermost(shard* s, Side side) {
  while (s->*side != nullptr) s = s->*side;
  return s;
}

shard* shardfind(shard* root, int64_t i, int64_t& within) {
  if (i < 0 || i >= shardtotal(root)) return nullptr;
  for (shard* s = root;;) {
    int64_t before = shardtotal(s->left);
    int64_t length = shardlength(s);
    if (i < before) {
      s = s->left;
    } else if (i - before < length) {
      within = i - before;
      return s;
    } else {
      i -= before + length;
      s = s->right;
    }
  }
}

static shard* beside(const shard* s, Side side) {
  if (s->*side != nullptr) return outermost(s->*side, otherside(side));
  while (s->parent != nullptr && s->parent->*side == s) s = s->parent;
  return s->parent;
}

shard* shardnext(const shard* s) { return beside(s, &shard::right); }
shard* shardback(const shard* s) { return beside(s, &shard::left); }

// --- Linking and balancing -----------------------------------------------------------------------

// Puts `child`, which may be null, where s hangs.
static void replace(shard*& root, const shard* s, shard* child) {
  if (s->parent == nullptr) {
    root = child;
  } else if (s->parent->left == s) {
    s->parent->left = child;
  } else {
    s->parent->right = child;
  }
  if (child != nullptr) child->parent = s->parent;
}

// Lets s sink to `side`: its other child takes its place.
static void rotate(shard*& root, shard* s, Side side) {
  Side other = otherside(side);
  shard* child = s->*other;
  check(child != nullptr);
  replace(root, s, child);
  s->*other = child->*side;
  if (s->*other != nullptr) (s->*other)->parent = s;
  child->*side = s;
  s->parent = child;
  retotal(s);
  retotal(child);
}

// s, a fresh red shard, may have a red parent. Mends that, or moves the fault up two levels, until
// there is none.
static void balanceadded(shard*& root, shard* s) {
  while (red(s->parent)) {
    shard* parent = s->parent;
    shard* grand = parent->parent;  // there is one: the root is black
    Side side = parent == grand->left ? &shard::left : &shard::right;
    Side other = otherside(side);
    shard* uncle = grand->*other;
    if (red(uncle)) {
      setred(parent, false);
      setred(uncle, false);
      setred(grand, true);
      s = grand;
      continue;
    }
    if (s == parent->*other) {
      rotate(root, parent, side);
      parent = s;
    }
    setred(parent, false);
    setred(grand, true);
    rotate(root, grand, other);
    break;
  }
  setred(root, false);
}

// Every path through s, a child of `parent` and maybe null, is one black node short. Mends that, or
// moves the fault up one level, until there is none.
static void balanceremoved(shard*& root, shard* s, shard* parent) {
  while (parent != nullptr && !red(s)) {
    Side side = s == parent->left ? &shard::left : &shard::right;
    Side other = otherside(side);
    shard* sibling = parent->*other;
    if (red(sibling)) {
      setred(sibling, false);
      setred(parent, true);
      rotate(root, parent, side);
      sibling = parent->*other;
    }
    if (!red(sibling->left) && !red(sibling->right)) {
      setred(sibling, true);
      s = parent;
      parent = s->parent;
      continue;
    }
    if (!red(sibling->*other)) {
      setred(sibling->*side, false);
      setred(sibling, true);
      rotate(root, sibling, other);
      sibling = parent->*other;
    }
    setred(sibling, red(parent));
    setred(parent, false);
    setred(sibling->*other, false);
    rotate(root, parent, side);
    return;
  }
  if (s != nullptr) setred(s, false);
}

// Hangs a fresh shard below `parent`, which has nothing on that side.
static void attach(shard*& root, shard* parent, Side side, shard* fresh) {
  check(shardlength(fresh) <= sizelimit - shardtotal(root));
  parent->*side = fresh;
  fresh->parent = parent;
  addtotals(parent, nullptr, shardlength(fresh));
  balanceadded(root, fresh);
}

// Puts a fresh shard next to s: in front of it for the left side, behind it for the right one.
static void attachbeside(shard*& root, shard* s, Side side, shard* fresh) {
  if (s->*side == nullptr) {
    attach(root, s, side, fresh);
  } else {
    attach(root, outermost(s->*side, otherside(side)), otherside(side), fresh);
  }
}

// Exchanges the places and the colours of s and its successor, which stands below it. The successor
// gets the total of s; the totals below it, down to s, are the caller's to mend.
static void exchange(shard*& root, shard* s, shard* next) {
  shard* nextparent = next->parent;
  shard* nextright = next->right;
  bool nextred = red(next);
  replace(root, s, next);
  next->left = s->left;
  next->left->parent = next;
  if (nextparent == s) {
    next->right = s;
    s->parent = next;
  } else {
    next->right = s->right;
    next->right->parent = next;
    nextparent->left = s;
    s->parent = nextparent;
  }
  s->left = nullptr;
  s->right = nextright;
  if (nextright != nullptr) nextright->parent = s;
  setred(next, red(s));
  setred(s, nextred);
  settotal(next, shardtotal(s));
}

// Takes s out of the tree and frees it.
static void detach(shard*& root, shard* s) {
  if (s->left != nullptr && s->right != nullptr) {
    shard* next = shardnext(s);
    exchange(root, s, next);
    addtotals(s->parent, next, -shardlength(next));
    addtotals(next, nullptr, -shardlength(s));
  } else {
    addtotals(s->parent, nullptr, -shardlength(s));
  }
  shard* child = s->left != nullptr ? s->left : s->right;
  replace(root, s, child);
  if (!red(s)) balanceremoved(root, child, s->parent);
  delete s;
}

// --- Editing -------------------------------------------------------------------------------------

static void setlength(shard* run, int64_t n) {
  int64_t grown = n - shardlength(run);
  run->length = countless1(n);
  addtotals(run, nullptr, grown);
}

// Cuts the middle out of a run, from `from` to `to` within it; something stays on both sides.
static void cutrun(shard*& root, shard* run, int64_t from, int64_t to) {
  shard* behind = shardrun(run->bytes + to, shardlength(run) - to);
  setlength(run, from);
  attachbeside(root, run, &shard::right, behind);
}

void shardsplit(shard*& root, int64_t i) {
  int64_t within = 0;
  shard* s = shardfind(root, i, within);
  if (s != nullptr && within != 0) cutrun(root, s, within, within);
}

void shardinsert(shard*& root, int64_t i, shard* fresh) {
  check(i >= 0 && i <= shardtotal(root));
  if (root == nullptr) {
    root = fresh;
    setred(root, false);
  } else if (i == shardtotal(root)) {
    attach(root, outermost(root, &shard::right), &shard::right, fresh);
  } else {
    int64_t within = 0;
    shard* s = shardfind(root, i, within);
    shardinsertat(root, s, within, fresh);
  }
}

void shardinsertat(shard*& root, shard* s, int64_t within, shard* fresh) {
  if (within == 0) return attachbeside(root, s, &shard::left, fresh);
  if (within < shardlength(s)) cutrun(root, s, within, within);
  attachbeside(root, s, &shard::right, fresh);
}

int32_t shardgrow(shard* s, uint8_t* room, uint8_t byte) {
  int64_t n = shardlength(s);
  if (shardisrun(s) && s->bytes + n != room) return 0;
  int32_t used = 0;
  if (!shardisrun(s)) {
    room[used++] = s->byte;
    s->bytes = room;
    s->word |= 1u << 31;
  }
  room[used++] = byte;
  setlength(s, n + 1);
  return used;
}

void shardremove(shard*& root, int64_t i, int64_t n) {
  check(i >= 0 && n >= 0 && n <= shardtotal(root) - i);
  while (n > 0) {
    int64_t within = 0;
    shard* s = shardfind(root, i, within);
    int64_t length = shardlength(s);
    int64_t gone = n < length - within ? n : length - within;
    if (gone == length) {
      detach(root, s);
    } else if (within == 0) {
      s->bytes += gone;
      setlength(s, length - gone);
    } else if (within + gone == length) {
      setlength(s, within);
    } else {
      cutrun(root, s, within, within + gone);
    }
    n -= gone;
  }
}

void shardfree(shard* root) {
  if (root == nullptr) return;
  shardfree(root->left);
  shardfree(root->right);
  delete root;
}

// --- The rules of the tree -----------------------------------------------------------------------

// Checks the subtree and gives its black height.
static int64_t checksubtree(const shard* s, const shard* parent) {
  if (s == nullptr) return 0;
  check(s->parent == parent);
  check(!red(s) || !red(parent));
  check(shardisrun(s) || s->length == 0);
  check(shardtotal(s) == shardtotal(s->left) + shardlength(s) + shardtotal(s->right));
  int64_t height = checksubtree(s->left, s);
  check(height == checksubtree(s->right, s));
  return height + (red(s) ? 0 : 1);
}

void checkshards(const shard* root) {
  check(!red(root));
  checksubtree(root, nullptr);
}

}  // namespace tarn
