// The console of Windows: input records in, ANSI sequences out. Its modes are set once and stay, as
// the system's own command line sets what it needs when it comes back.
#include <windows.h>

#include <cstdlib>

#include "editor/console.h"
#include "foundation/diag.h"
#include "foundation/system.h"

namespace tarn {

namespace {

constexpr DWORD batch = 128;

// The records of the last read that were not handed on: from `next` up to `count`.
INPUT_RECORD records[batch];
DWORD count = 0;
DWORD next = 0;

HANDLE input() { return GetStdHandle(STD_INPUT_HANDLE); }

// The screen buffer, also where descriptor 1 is no console.
HANDLE screen() {
  HANDLE out = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode;
  if (GetConsoleMode(out, &mode)) return out;
  static HANDLE direct = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0,
                                     nullptr);
  return direct;
}

bool matters(const INPUT_RECORD& record) {
  return record.EventType == WINDOW_BUFFER_SIZE_EVENT ||
         (record.EventType == KEY_EVENT && record.Event.KeyEvent.bKeyDown);
}

void setkey(ConsoleEvent& event, const KEY_EVENT_RECORD& record) {
  if (!record.bKeyDown) return;
  event.key = translate({record.wVirtualKeyCode, record.dwControlKeyState});
  if (event.key.n == 0) return;
  event.kind = ConsoleEventKind::key;
  event.repeat = record.wRepeatCount == 0 ? 1 : record.wRepeatCount;
}

void setsize(ConsoleEvent& event, const WINDOW_BUFFER_SIZE_RECORD& record) {
  event.kind = ConsoleEventKind::resize;
  event.width = record.dwSize.X;
  event.height = record.dwSize.Y;
}

}  // namespace

void consoleopen() {
  DWORD mode = 0;
  check(GetConsoleMode(input(), &mode));
  mode &= ~static_cast<DWORD>(ENABLE_LINE_INPUT | ENABLE_ECHO_INPUT);
  mode |= ENABLE_WINDOW_INPUT;  // else no resize is ever reported
  check(SetConsoleMode(input(), mode));
  if (GetConsoleMode(screen(), &mode)) {
    SetConsoleMode(screen(), mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

void consolesize(int64_t& columns, int64_t& rows) {
  CONSOLE_SCREEN_BUFFER_INFO info;
  if (!GetConsoleScreenBufferInfo(screen(), &info)) {
    columns = 80;
    rows = 24;
    return;
  }
  columns = info.srWindow.Right + 1;
  rows = info.srWindow.Bottom + 1;
}

// One record a call: one that means nothing here is an event of no kind.
void consolenext(ConsoleEvent& event) {
  event = {};
  if (next == count) {
    next = 0;
    count = 0;
    check(ReadConsoleInputW(input(), records, batch, &count));
    if (count == 0) return;
  }
  const INPUT_RECORD& record = records[next++];
  if (record.EventType == KEY_EVENT) {
    setkey(event, record.Event.KeyEvent);
  } else if (record.EventType == WINDOW_BUFFER_SIZE_EVENT) {
    setsize(event, record.Event.WindowBufferSizeEvent);
  }
}

// Only what will be an event counts: a key let go, or the window's focus, must not put off a paint.
bool consolewaiting() {
  for (DWORD i = next; i < count; i++) {
    if (matters(records[i])) return true;
  }
  INPUT_RECORD ahead[batch];
  DWORD pending = 0;
  if (!PeekConsoleInputW(input(), ahead, batch, &pending)) return false;
  for (DWORD i = 0; i < pending; i++) {
    if (matters(ahead[i])) return true;
  }
  return false;
}

void consolewrite(const void* bytes, int64_t n) { check(systemwrite(1, bytes, n)); }

}  // namespace tarn
