// The history: versions, chains of undo and redo, and what ends them.
#include "editor/history.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

// Plays keys: a letter types itself, '<' undoes, '>' redoes. Gives the text after each key, a '!'
// in front where the bell would ring.
std::string play(Buffer& buffer, const std::string& keys) {
  std::string states;
  for (char key : keys) {
    uint8_t byte = static_cast<uint8_t>(key);
    bool done = key == '<' ? editback() : key == '>' ? editredo() : opinsert(byte);
    states += (states.empty() ? "" : " ") + std::string(done ? "" : "!") + buffer.text();
  }
  return states;
}

TEST(History, AFreshBufferHasNothingToUndo) {
  Buffer buffer("text");
  EXPECT_EQ(undodepth(), 0);
  EXPECT_FALSE(editback());
  EXPECT_FALSE(editredo());
  EXPECT_EQ(&firstoper(), &lastoper());
  EXPECT_EQ(operv(firstoper()), 0);
  EXPECT_EQ(opert(firstoper()), 0);
  EXPECT_EQ(operw(firstoper()), opswapped);
  EXPECT_EQ(firstoper().data, Str());
}

TEST(History, VersionsAreOdd) {
  Buffer buffer("");
  buffer.type("abc");
  EXPECT_EQ(operv(findoper(1)), 1);
  EXPECT_EQ(operv(findoper(3)), 3);
  EXPECT_EQ(operv(lastoper()), 5);
  EXPECT_DEATH(findoper(2), "ASSERTION FAILED:editor/history.cpp:");
  EXPECT_DEATH(findoper(7), "ASSERTION FAILED:editor/history.cpp:");
  EXPECT_DEATH(findoper(-1), "ASSERTION FAILED:editor/history.cpp:");
}

TEST(History, AChainOfUndosGoesBackToTheFirstText) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "abc<<<<"), "a ab abc ab a  !");
}

TEST(History, RedoTakesTheMarkersAway) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "ab<<>>>"), "a ab a  a ab !ab");
  EXPECT_EQ(operv(lastoper()), 3);  // the numbers of the markers are free again
  EXPECT_EQ(play(buffer, "c"), "abc");
  EXPECT_EQ(operv(lastoper()), 5);
}

TEST(History, UndoUndoRedoUndo) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "ab<<><"), "a ab a  a ");
}

TEST(History, UndoGoesOnBehindARedoOfALongerChain) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "abc<<<>><"), "a ab abc ab a  a ab a");
}

TEST(History, AnEditAfterUndoKeepsTheUndoneReachable) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "ab<c"), "a ab a ac");
  EXPECT_EQ(operv(lastoper()), 7);
  EXPECT_EQ(play(buffer, "<<<<<<"), "a ab a  ! !");
  EXPECT_EQ(operw(findoper(5)), opmarker);
  EXPECT_EQ(operv(lastoper()), 15);
  EXPECT_EQ(opert(findoper(11)), 9);
  EXPECT_EQ(opert(findoper(15)), 9);
  EXPECT_EQ(opert(findoper(9)), 9 + 3 * 2);  // raised by each marker of its chain
}

TEST(History, TheDepthIsWhatIsLeftToUndo) {
  Buffer buffer("");
  buffer.type("abc");
  EXPECT_EQ(undodepth(), 1);
  editback();
  EXPECT_EQ(undodepth(), 2);
  editback();
  EXPECT_EQ(undodepth(), 1);
  editback();
  EXPECT_EQ(undodepth(), 0);
  editredo();
  EXPECT_EQ(undodepth(), 1);
}

TEST(History, RedoAfterAnEditIsRefused) {
  Buffer buffer("");
  EXPECT_EQ(play(buffer, "a<b>"), "a  b !b");
}

TEST(History, ComingBackToTheSavedTextIsClean) {
  Buffer buffer("");
  buffer.type("ab");
  markclean(buffer.s());
  buffer.type("c");
  EXPECT_FALSE(isclean(buffer.s()));
  editback();
  EXPECT_TRUE(isclean(buffer.s()));
  editback();
  EXPECT_FALSE(isclean(buffer.s()));
  editredo();
  EXPECT_TRUE(isclean(buffer.s()));
}

TEST(History, EachBufferHasItsOwn) {
  Buffer one("", "/one");
  one.type("a");
  Buffer two("", "/two");
  two.type("bc");
  currentname = one.name;
  EXPECT_TRUE(editback());
  EXPECT_FALSE(editback());
  EXPECT_EQ(one.text(), "");
  EXPECT_EQ(two.text(), "bc");
}

TEST(History, ForgettingKeepsTheTextsAndStartsAtOneAgain) {
  Buffer one("", "/one");
  one.type("ab");
  Buffer two("", "/two");
  two.type("cd");
  editback();
  EXPECT_TRUE(forgetall());
  EXPECT_EQ(two.text(), "c");
  EXPECT_FALSE(editback());
  EXPECT_FALSE(editredo());
  EXPECT_FALSE(forgetall());
  two.type("e");
  EXPECT_EQ(operv(lastoper()), 1);
  currentname = one.name;
  EXPECT_EQ(one.text(), "ab");
  EXPECT_FALSE(editback());
}

TEST(History, ARecordIsOpenedOnceAndClosed) {
  Buffer buffer("a", "/one");
  EXPECT_DEATH(openrecord(Str("/one")), "ASSERTION FAILED:editor/history.cpp:");
  sheet made = openrecord(Str("/two"));
  EXPECT_EQ(size(made), 0);
  EXPECT_DEATH(openrecord(Str("/two")), "ASSERTION FAILED:editor/history.cpp:");
  closefile(Str("/two"));
  EXPECT_FALSE(opers.contains(Str("/two")));
  sheets[Str("/two")] = openrecord(Str("/two"));
  closefile(Str("/two"));
  EXPECT_FALSE(sheets.contains(Str("/two")));
}

TEST(History, WrongDataIsAFault) {
  Buffer buffer("abc");
  enteroper(opermake(optyped, 0, Str(":x")));
  EXPECT_DEATH(edittodo(1), "ASSERTION FAILED:editor/edits.cpp:");
  EXPECT_DEATH(editundo(1), "ASSERTION FAILED:editor/edits.cpp:");
  EXPECT_DEATH(edittodo(0), "ASSERTION FAILED:editor/swapedit.cpp:");  // the root is no edit
  enteroper(opermake(opdented, 0, Str("12345")));
  EXPECT_DEATH(edittodo(3), "ASSERTION FAILED:editor/dentedit.cpp:");
  enteroper(opermake(opswapped, 0, Str("1234567")));
  EXPECT_DEATH(edittodo(5), "ASSERTION FAILED:editor/swapedit.cpp:");
}

}  // namespace
}  // namespace tarn
