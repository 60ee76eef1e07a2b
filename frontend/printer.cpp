// Printing, into one growing text. An application prints its head, then its arguments from the
// first to the last; as soon as one of them needs it, the whole is put in parentheses, and then
// every further argument stands behind a space. So each byte is moved at most once.
#include "frontend/printer.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/chars.h"
#include "foundation/escapes.h"

namespace tarn {

namespace {

void printterm(std::string& out, Cell* term);

void printreal(std::string& out, Cell* leaf) {
  double value = 0;
  memcpy(&value, leafbytes(leaf) + 1, sizeof value);
  char digits[32];
  snprintf(digits, sizeof digits, "%e", value);
  out.append("real[").append(digits).append("]");
}

// The bytes that cannot stand in a string go by their letters.
void printpost(std::string& out, Cell* leaf) {
  int64_t size = 0;
  const uint8_t* payload = leafbytes(leaf) + postpayload(leaf, size);
  out += "cape[";
  for (int64_t i = 0; i < size; i++) {
    char letter = static_cast<char>(escapeletter(payload[i]));
    if (letter == 0) {
      out += static_cast<char>(payload[i]);
    } else {
      out.append({'[', letter, ']'});
    }
  }
  out += ']';
}

// As a program would build it, a slot at a time: (/ (/ cray 1) 2). An empty slot reads as Z.
void printcray(std::string& out, Cell* leaf) {
  int64_t slots = crayslots(leaf);
  for (int64_t i = 0; i < slots; i++) out += "(/ ";
  out += "cray";
  for (int64_t i = 0; i < slots; i++) {
    out += ' ';
    Cell* slot = crayslot(leaf, i);
    if (slot == nullptr) {
      out += 'Z';
    } else {
      printterm(out, slot);
    }
    out += ')';
  }
}

void printleaf(std::string& out, Cell* leaf) {
  switch (leafbytes(leaf)[0]) {
    case 0:
    case ')':
    case ']':
      out += "()";
      break;
    case ' ':
      printreal(out, leaf);
      break;
    case '(':
      printpost(out, leaf);
      break;
    case '\n':
      printcray(out, leaf);
      break;
    default:
      out.append(reinterpret_cast<const char*>(leafbytes(leaf)),
                 static_cast<size_t>(cellsize(leaf)));
  }
}

// Whether the text is one string atom: its first bracket closes at its last byte.
bool isstring(std::string_view text) {
  if (text[0] != '[') return false;
  int64_t depth = 0;
  for (size_t i = 0; i < text.size(); i++) {
    depth += text[i] == '[' ? 1 : text[i] == ']' ? -1 : 0;
    if (depth == 0) return i + 1 == text.size();
  }
  return false;
}

enum TextClass { word, number, other };

TextClass classof(char c) {
  uint8_t byte = static_cast<uint8_t>(c);
  return isnamebyte(byte) ? word : isdigitbyte(byte) ? number : other;
}

// Whether the text of a leaf can stand right behind a text that ends with `last`.
bool attaches(char last, std::string_view text) {
  if (isstring(text)) return true;
  TextClass c = classof(text[0]);
  for (char byte : text) {
    if (classof(byte) != c) return false;
  }
  return c == other ? text.size() == 1 : classof(last) != c;
}

// An application that is being printed; its head has been already.
struct Application {
  std::string& out;
  size_t start;  // where the head begins in out
  bool open;     // a parenthesis was opened, and is to be closed

  // From here on arguments stand behind a space.
  void enclose() {
    if (!open) out.insert(start, 1, '(');
    open = true;
    out += ' ';
  }

  void add(Cell* argument) {
    if (open || cellispair(argument)) {
      enclose();
      return printterm(out, argument);
    }
    std::string text;
    printleaf(text, argument);
    if (!attaches(out.back(), text)) enclose();
    out += text;
  }
};

// The arguments are in the left spine, the last one outermost.
void printpair(std::string& out, Cell* term) {
  std::vector<Cell*> arguments;
  Cell* head = term;
  for (; cellispair(head); head = leftlink(head)) arguments.push_back(rightlink(head));
  Application application = {out, out.size(), false};
  printleaf(out, head);
  if (out[application.start] == '(' && out[application.start + 1] != ')') {
    out.pop_back();  // an array: what it is applied to goes inside its parentheses
    application.open = true;
  }
  while (!arguments.empty()) {
    application.add(arguments.back());
    arguments.pop_back();
  }
  if (application.open) out += ')';
}

void printterm(std::string& out, Cell* term) {
  if (cellispair(term)) {
    printpair(out, term);
  } else {
    printleaf(out, term);
  }
}

}  // namespace

Str printcell(Cell* term) {
  std::string out;
  printterm(out, term);
  return Str(out.data(), static_cast<int64_t>(out.size()));
}

}  // namespace tarn
