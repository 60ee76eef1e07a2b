// The graveyard, in every build; in the checking build, that a Str never dies or changes unseen.
#include "foundation/checking.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <new>

#include "foundation/str.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

#define EXPECT_FOUND(statement) EXPECT_FAILS(statement, "foundation/checking.cpp")

uint8_t* dropped(size_t n) {
  uint8_t* block = static_cast<uint8_t*>(gravemake(n));
  memset(block, 'x', n);
  gravedrop(block);
  return block;
}

TEST(Graveyard, TellsAnyByteOfADeadBlockThatIsWritten) {
  for (size_t n : {size_t{1}, size_t{8}, size_t{29}}) {
    uint8_t* block = dropped(n);
    checkdead();
    EXPECT_FOUND((block[0]++, checkdead())) << n;
    EXPECT_FOUND((block[n - 1]++, checkdead())) << n;
    EXPECT_FOUND((block[n / 2]++, checkdead())) << n;
  }
}

TEST(Graveyard, TellsItAlsoWhenTheBlockGoesBackToMalloc) {
  uint8_t* block = dropped(24);
  EXPECT_FOUND({
    block[23]++;
    for (int i = 0; i < 20000; i++) dropped(1);
  });
  for (int i = 0; i < 20000; i++) dropped(1);
}

TEST(Graveyard, LeavesNothingToReadInADeadBlock) {
  uint8_t* block = dropped(16);
  uint64_t words[2];
  memcpy(words, block, sizeof words);
  EXPECT_EQ(words[0], deadword);
  EXPECT_EQ(words[1], deadword);
}

TEST(Graveyard, HandsNoBlockOutAgainAtOnce) {
  uint8_t* block = dropped(24);
  void* next = gravemake(24);
  EXPECT_NE(block, next);
  gravedrop(next);
}

TEST(Graveyard, GivesFreshBlocksThatHoldNothingUseful) {
  uint8_t* block = static_cast<uint8_t*>(gravemake(3));
  EXPECT_NE(block[0], 0);
  EXPECT_NE(block[2], 0);
  gravedrop(block);
}

TEST(Graveyard, MovesABlockThatGrowsOrShrinks) {
  char* block = static_cast<char*>(gravemake(4));
  memcpy(block, "abc", 4);
  char* grown = static_cast<char*>(gravegrow(block, 100));
  EXPECT_NE(block, grown);
  EXPECT_STREQ(grown, "abc");
  EXPECT_FOUND((block[0] = 'a', checkdead()));
  char* shrunk = static_cast<char*>(gravegrow(grown, 2));
  EXPECT_EQ(memcmp(shrunk, "ab", 2), 0);
  gravedrop(shrunk);
  checkdead();
}

// A block of more bytes than are ever kept is tested and given back at once.
TEST(Graveyard, DoesNotKeepMoreThanItsBytes) {
  for (int i = 0; i < 4; i++) gravedrop(gravemake(size_t{65} << 20));
  checkdead();
}

TEST(Checking, OnlyASoleReferenceIsAlone) {
  EXPECT_EQ(alone(1), !checking);
  EXPECT_FALSE(alone(0));
  EXPECT_FALSE(alone(2));
}

#ifdef TARN_CHECKING

// The bits of a Str that is dead by now.
struct StaleStr {
  alignas(Str) unsigned char bits[sizeof(Str)];
  StaleStr() {
    Str s("abc");
    memcpy(bits, &s, sizeof s);
  }
  Str& get() { return *std::launder(reinterpret_cast<Str*>(bits)); }
};

TEST(CheckingStr, CannotBeSharedAssignedOrDroppedOnceDead) {
  StaleStr stale;
  EXPECT_FAILS(Str{stale.get()}, "foundation/str");
  EXPECT_FAILS({ Str s; s = stale.get(); }, "foundation/str");
  EXPECT_FAILS(stale.get().~Str(), "foundation/str");
}

TEST(CheckingStr, HasNoBytesOnceDead) {
  StaleStr stale;
  EXPECT_EXIT(fprintf(stderr, "%d", stale.get().at(0)), testing::KilledBySignal(SIGSEGV), "");
}

TEST(CheckingStr, IsFoundWhenItsBytesAreWrittenOnceDead) {
  uint8_t* bytes = nullptr;
  {
    Str s("abc");
    bytes = s.own();
  }
  EXPECT_NE(bytes[0], 'a');
  EXPECT_FOUND((bytes[0] = 'a', checkdead()));
}

TEST(CheckingStr, IsNeverWrittenInPlace) {
  Str s("abc");
  const uint8_t* before = s.bytes();
  s.ref(1) = 'x';
  EXPECT_NE(s.bytes(), before);
  EXPECT_EQ(s, Str("axc"));
  EXPECT_NE(before[0], 'a');
}

TEST(CheckingStr, IsCounted) {
  int64_t alive = strcounts().alive;
  int64_t made = strcounts().made;
  {
    Str s("abc");
    Str copy = s;
    EXPECT_EQ(strcounts().alive, alive + 1);
    copy.ref(0) = 'x';
    EXPECT_EQ(strcounts().alive, alive + 2);
    s = copy;
    EXPECT_EQ(strcounts().alive, alive + 1);
  }
  EXPECT_EQ(strcounts().alive, alive);
  EXPECT_EQ(strcounts().made, made + 2);
}

#endif

}  // namespace
}  // namespace tarn
