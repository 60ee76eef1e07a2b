// One function for each sort of argument.
#include "fuzz/arguments.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "fuzz/directory.h"
#include "fuzz/language.h"
#include "fuzz/values.h"
#include "host/dirs.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/post.h"

namespace tarn {

namespace {

constexpr size_t targetsize = 65536;
constexpr size_t sourcesize = 4096;
constexpr char sourcetext[] =
    "0x1f -12.5e3 [a[b]] 255.255.255.255 %d%s ::1 \xff\xfe inf K J\n(bc)abcd rw 2147483648\0tail";

char* target;       // written to
char* source;       // read from
void* pointerroom;  // for a pointer into target
int nosocket;       // the descriptor of what swallows all
tm anytime;

CellRef address(const void* p) { return hintfrom(reinterpret_cast<int64_t>(p)); }

// Of a kind that is taken neither for a number nor for a text.
CellRef wrongvalue(Source& s) {
  switch (below(s, 4)) {
    case 1: return anyarray(s);
    case 2: return anyreal(s);
    case 3: return nameleaf("0012");
    default: return nameleaf("U");
  }
}

CellRef chars(const std::string& text) {
  return postmake(
      {reinterpret_cast<const uint8_t*>(text.data()), static_cast<int64_t>(text.size())});
}

Source* choosing;  // of a program

CellRef programtext(Things& t) {
  choosing = &t.source;
  return chars(fuzztext([] { return static_cast<uint64_t>(onebyte(*choosing)); }));
}

CellRef filename(Source& s) {
  static constexpr const char* names[] = {"a", "b", "sub", "sub/a", "none/a", ".", "new"};
  if (seldom(s, 10)) return anyarray(s);
  return chars(targetdirectory() + "/" + oneof(s, names));
}

CellRef openmode(Source& s) {
  static constexpr const char* modes[] = {"r", "w", "a", "r+", "w+", "a+", "rb", "", "x", "wx"};
  return chars(oneof(s, modes));
}

template <typename T>
T takelast(std::vector<T>& from) {
  T last = from.back();
  from.pop_back();
  return last;
}

FILE* freshstream(Things& t) {
  t.streams.push_back(tmpfile());
  return t.streams.back();
}

// C asks for a seek between reading and writing, and libraries fall over without it.
FILE* somestream(Things& t) {
  if (t.streams.empty()) return freshstream(t);
  int64_t count = static_cast<int64_t>(t.streams.size());
  FILE* stream = t.streams[static_cast<size_t>(below(t.source, count))];
  fseek(stream, 0, SEEK_CUR);
  return stream;
}

FILE* giveupstream(Things& t) {
  somestream(t);
  return takelast(t.streams);
}

void* somedirectory(Things& t) {
  if (t.directories.empty()) t.directories.push_back(diropen(targetdirectory().c_str()));
  return t.directories.back();
}

void* giveupdirectory(Things& t) {
  somedirectory(t);
  return takelast(t.directories);
}

void* giveupblock(Things& t) {
  if (t.blocks.empty()) t.blocks.push_back(malloc(16));
  return takelast(t.blocks);
}

Cell* someleaked(Things& t) {
  if (t.leaked.empty()) t.leaked.push_back(anyvalue(t.source).give());
  return t.leaked.back();
}

int freshdescriptor(Things& t) {
  t.descriptors.push_back(dup(nosocket));
  return t.descriptors.back();
}

time_t* sometime(Things& t) {
  t.seconds = below(t.source, 65536) * 65536 * (below(t.source, 8) - 2);
  return &t.seconds;
}

CellRef textargument(Things& t, bool asaddress) {
  Source& s = t.source;
  switch (below(s, 4)) {
    case 1: return anytext(s);
    case 2: return asaddress ? address(source + below(s, 80)) : anytext(s);
    case 3: return chars(source + below(s, 80));
    default: return anypost(s);
  }
}

CellRef somebytes(Source& s) {
  std::string bytes(32, static_cast<char>(onebyte(s)));
  bytes[5] = static_cast<char>(onebyte(s));
  return chars(bytes);
}

CellRef fourslots(Source& s) {
  CellRef array = craynew(0);
  for (int i = 0; i < 4; i++) array = crayappend(array, anyinteger(s));
  return array;
}

CellRef rightargument(Things& t, char letter) {
  Source& s = t.source;
  switch (letter) {
    case 'i': return anyinteger(s);
    case 'N':
    case 'n': return hintfrom(below(s, 256));
    case 'k': return hintfrom(below(s, 256) - 8);
    case 'x': return hintfrom(below(s, 16));
    case 'd': return anyreal(s);
    case 's': return textargument(t, true);
    case 'S': return textargument(t, false);
    case 'p': return address(target + below(s, 64));
    case 'r': return address(source + below(s, 80));
    case '0': return seldom(s, 2) ? address(target + below(s, 64)) : nameleaf("0");
    case 'u': return address(pointerroom);
    case 'a': return nameleaf("K");
    case 'b': return somebytes(s);
    case 'c': return fourslots(s);
    case 'm': return address(giveupblock(t));
    case 'l': return address(someleaked(t));
    case 'f': return address(somestream(t));
    case 'F': return address(giveupstream(t));
    case 'q': return address(freshstream(t));
    case 'y': return address(somedirectory(t));
    case 'Y': return address(giveupdirectory(t));
    case 'e': return hintfrom(nosocket);
    case 'E': return hintfrom(freshdescriptor(t));
    case 'z': return hintfrom(-1 - below(s, 4));
    case 'h': return filename(s);
    case 'w': return openmode(s);
    case 'j': return address(sometime(t));
    case 't': return address(t.fields);
    default: check(false); return {};
  }
}

}  // namespace

CellRef knownvalue(Things& t) {
  if (t.values.empty() || !seldom(t.source, 3)) return anyvalue(t.source);
  return t.values[static_cast<size_t>(below(t.source, static_cast<int64_t>(t.values.size())))];
}

CellRef argument(Things& t, char letter) {
  if (letter == 'v') return knownvalue(t);
  t.compiled = t.compiled || letter == 'g';
  if (letter == 'g') return seldom(t.source, 6) ? knownvalue(t) : programtext(t);
  bool surely = letter == 'N' || letter == 'c';
  if (!surely && seldom(t.source, 10)) return wrongvalue(t.source);
  return rightargument(t, letter);
}

void openthings() {
  nosocket = open("/dev/null", O_RDWR);
  check(freopen("/dev/null", "r", stdin) != nullptr);
  check(freopen("/dev/null", "w", stdout) != nullptr);
  stderr = fopen("/dev/null", "w");
  target = static_cast<char*>(malloc(targetsize));
  source = static_cast<char*>(calloc(1, sourcesize));
  pointerroom = calloc(1, sizeof(void*));
  memcpy(source, sourcetext, sizeof sourcetext);
}

Things thingsof(Source choices) {
  memset(target, 0, targetsize);
  anytime = {};
  anytime.tm_mday = 1;
  Things t = {};
  t.source = choices;
  t.fields = &anytime;
  return t;
}

void givebackthings(Things& t) {
  for (FILE* stream : t.streams) fclose(stream);
  for (void* block : t.blocks) free(block);
  for (void* directory : t.directories) dirclose(directory);
  for (int descriptor : t.descriptors) close(descriptor);
  for (Cell* cell : t.leaked) celldrop(CellRef::adopt(cell));
  t.values.clear();
}

}  // namespace tarn
