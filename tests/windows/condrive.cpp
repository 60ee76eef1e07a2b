// Drives a program on a Windows console, for tests on another system. It shares one console with
// the program and puts exact input records into its queue; the program's descriptor 1 is a pipe, so
// that the test gets the very bytes that it wrote. Commands come on standard input, one a line, and
// each is answered by one line on standard output; `sync` and `wait` by the program's bytes behind
// it.
//
//   size W H           sets the console to W by H, before the start       ok
//   start COMMAND      starts the program on this console                 ok
//   key VK CTL REP     queues a key pressed REP times, and let go         ok
//   burst VK N         queues N presses of a key at once                  ok
//   up VK              queues a key let go                                ok
//   window W H         queues a new size of the window                    ok
//   modes              tells the console's modes                          modes IN OUT
//   break              sends the interrupt                                ok
//   sync MS            waits till all records are handled      out N | exit N STATUS | late N
//   wait MS            waits for the end of the program                   exit N STATUS | late N
//   quit
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <string>
#include <vector>

static HANDLE conin, conout, pipeout, child;
static std::string got;  // what the program wrote since the last answer

[[noreturn]] static void fail(const char* what) {
  printf("err %lu %s\n", GetLastError(), what);
  fflush(stdout);
  exit(3);
}

static void reply(const char* text) {
  printf("%s\n", text);
  fflush(stdout);
}

static void drain() {
  DWORD n = 0;
  while (PeekNamedPipe(pipeout, nullptr, 0, nullptr, &n, nullptr) && n != 0) {
    char piece[4096];
    DWORD done = 0;
    if (!ReadFile(pipeout, piece, n < sizeof piece ? n : sizeof piece, &done, nullptr)) return;
    if (done == 0) return;
    got.append(piece, done);
  }
}

static bool ended() { return child == nullptr || WaitForSingleObject(child, 0) == WAIT_OBJECT_0; }

static void put(const INPUT_RECORD* records, DWORD n) {
  DWORD done = 0;
  if (!WriteConsoleInputW(conin, records, n, &done) || done != n) fail("WriteConsoleInputW");
}

static void replybytes(const char* word) {
  drain();
  if (ended()) {
    DWORD status = 0;
    GetExitCodeProcess(child, &status);
    printf("exit %u %lu\n", static_cast<unsigned>(got.size()), status);
  } else {
    printf("%s %u\n", word, static_cast<unsigned>(got.size()));
  }
  fwrite(got.data(), 1, got.size(), stdout);
  fflush(stdout);
  got.clear();
}

// Whether the queue has run empty; false at the end of the program or past the time.
static bool emptied(ULONGLONG until) {
  for (;;) {
    DWORD n = 1;
    drain();
    if (!GetNumberOfConsoleInputEvents(conin, &n)) fail("GetNumberOfConsoleInputEvents");
    if (n == 0) return true;
    if (ended() || GetTickCount64() > until) return false;
    Sleep(1);
  }
}

static void setsize(int columns, int rows) {
  SMALL_RECT one = {0, 0, 0, 0};
  SMALL_RECT all = {0, 0, static_cast<SHORT>(columns - 1), static_cast<SHORT>(rows - 1)};
  SetConsoleWindowInfo(conout, TRUE, &one);
  COORD size = {static_cast<SHORT>(columns), static_cast<SHORT>(rows)};
  if (!SetConsoleScreenBufferSize(conout, size)) fail("SetConsoleScreenBufferSize");
  if (!SetConsoleWindowInfo(conout, TRUE, &all)) fail("SetConsoleWindowInfo");
}

static void start(const char* command) {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  HANDLE writeend;
  if (!CreatePipe(&pipeout, &writeend, &inherited, 1 << 20)) fail("CreatePipe");
  SetHandleInformation(pipeout, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = conin;
  startup.hStdOutput = writeend;
  startup.hStdError = writeend;
  int n = MultiByteToWideChar(CP_UTF8, 0, command, -1, nullptr, 0);
  std::wstring wide(static_cast<size_t>(n), 0);
  MultiByteToWideChar(CP_UTF8, 0, command, -1, wide.data(), n);
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, wide.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                      &process)) {
    fail("CreateProcessW");
  }
  CloseHandle(writeend);
  CloseHandle(process.hThread);
  child = process.hProcess;
}

static INPUT_RECORD keyrecord(int key, int control, int repeat, bool down) {
  INPUT_RECORD record = {};
  record.EventType = KEY_EVENT;
  record.Event.KeyEvent.bKeyDown = down;
  record.Event.KeyEvent.wRepeatCount = static_cast<WORD>(repeat);
  record.Event.KeyEvent.wVirtualKeyCode = static_cast<WORD>(key);
  record.Event.KeyEvent.dwControlKeyState = static_cast<DWORD>(control);
  return record;
}

static void putkey(int key, int control, int repeat, bool down) {
  INPUT_RECORD record = keyrecord(key, control, repeat, down);
  put(&record, 1);
}

static void putburst(int key, int n) {
  std::vector<INPUT_RECORD> records(static_cast<size_t>(n), keyrecord(key, 0, 1, true));
  put(records.data(), static_cast<DWORD>(n));
}

static void putwindow(int columns, int rows) {
  INPUT_RECORD record = {};
  record.EventType = WINDOW_BUFFER_SIZE_EVENT;
  record.Event.WindowBufferSizeEvent.dwSize = {static_cast<SHORT>(columns),
                                               static_cast<SHORT>(rows)};
  put(&record, 1);
}

// An empty queue says only that the program has taken its records. So a record is queued that the
// program skips: it takes that one in its next read, after it has handled all before, and written.
static void sync(int ms) {
  ULONGLONG until = GetTickCount64() + static_cast<ULONGLONG>(ms);
  bool done = emptied(until);
  if (done) {
    INPUT_RECORD record = {};
    record.EventType = FOCUS_EVENT;
    put(&record, 1);
    done = emptied(until);
  }
  replybytes(done ? "out" : "late");
}

static void waitend(int ms) {
  ULONGLONG until = GetTickCount64() + static_cast<ULONGLONG>(ms);
  while (!ended() && GetTickCount64() < until) {
    drain();
    Sleep(1);
  }
  replybytes("late");
}

static void interrupt() {
  SetConsoleCtrlHandler(nullptr, TRUE);  // it is not for us
  if (!GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0)) fail("GenerateConsoleCtrlEvent");
}

static void openconsole() {
  SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
  DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE;
  DWORD access = GENERIC_READ | GENERIC_WRITE;
  conin = CreateFileW(L"CONIN$", access, share, &inherited, OPEN_EXISTING, 0, nullptr);
  conout = CreateFileW(L"CONOUT$", access, share, &inherited, OPEN_EXISTING, 0, nullptr);
  DWORD mode;
  if (!GetConsoleMode(conin, &mode) || !GetConsoleMode(conout, &mode)) fail("no console");
}

static void tellmodes() {
  DWORD in = 0, out = 0;
  GetConsoleMode(conin, &in);
  GetConsoleMode(conout, &out);
  printf("modes %lu %lu\n", in, out);
  fflush(stdout);
}

static bool answer(const char* command) {
  int x = 0, y = 0, z = 0;
  if (strcmp(command, "quit") == 0) return false;
  if (strcmp(command, "modes") == 0) return tellmodes(), true;
  if (sscanf(command, "sync %d", &x) == 1) return sync(x), true;
  if (sscanf(command, "wait %d", &x) == 1) return waitend(x), true;
  if (strncmp(command, "start ", 6) == 0) {
    start(command + 6);
  } else if (strcmp(command, "break") == 0) {
    interrupt();
  } else if (sscanf(command, "size %d %d", &x, &y) == 2) {
    setsize(x, y);
  } else if (sscanf(command, "key %d %d %d", &x, &y, &z) == 3) {
    putkey(x, y, z, true);
    putkey(x, y, 1, false);
  } else if (sscanf(command, "burst %d %d", &x, &y) == 2) {
    putburst(x, y);
  } else if (sscanf(command, "up %d", &x) == 1) {
    putkey(x, 0, 1, false);
  } else if (sscanf(command, "window %d %d", &x, &y) == 2) {
    putwindow(x, y);
  } else {
    fail(command);
  }
  return reply("ok"), true;
}

int main() {
  _setmode(0, _O_BINARY);
  _setmode(1, _O_BINARY);
  openconsole();
  reply("ready");
  static char command[1 << 16];
  while (fgets(command, sizeof command, stdin)) {
    command[strcspn(command, "\r\n")] = 0;
    if (!answer(command)) break;
  }
  if (child != nullptr && !ended()) TerminateProcess(child, 99);
}
