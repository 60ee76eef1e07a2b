// Reading of keys and quoted texts.
#include "tests/support/notation.h"

#include <cstdio>
#include <cstdlib>

namespace tarn {

namespace {

struct NamedKey {
  const char* name;
  const char* bytes;
};

const NamedKey namedkeys[] = {
    {"RET", "\r"},      {"TAB", "\t"},     {"ESC", "\x1b"},     {"SPC", " "},
    {"BS", "\x7f"},     {"LF", "\n"},      {"LT", "<"},         {"UP", "\x1b[A"},
    {"DOWN", "\x1b[B"}, {"LEFT", "\x1b[D"}, {"RIGHT", "\x1b[C"}, {"HOME", "\x1b[H"},
    {"END", "\x1b[F"},  {"PGUP", "\x1b[5~"}, {"PGDN", "\x1b[6~"}, {"INS", "\x1b[2~"},
    {"DEL", "\x1b[3~"},
};

bool hexadecimal(const std::string& digits, int& value) {
  char* end = nullptr;
  value = static_cast<int>(strtol(digits.c_str(), &end, 16));
  return !digits.empty() && *end == 0 && value >= 0 && value < 256;
}

// The bytes of one key by what stands between the angle brackets.
bool keybytes(const std::string& name, std::string& bytes) {
  int value;
  if (name == "NUL") {
    bytes = std::string(1, '\0');
    return true;
  }
  if (name.size() == 3 && name.compare(0, 2, "C-") == 0) {
    bytes = std::string(1, static_cast<char>(name[2] & 0x1f));
    return true;
  }
  if (name.size() == 3 && name.compare(0, 2, "M-") == 0) {
    bytes = std::string("\x1b") + name[2];
    return true;
  }
  if (name.compare(0, 2, "0x") == 0 && hexadecimal(name.substr(2), value)) {
    bytes = std::string(1, static_cast<char>(value));
    return true;
  }
  if (name.size() == 1) {
    bytes = name;
    return true;
  }
  if (name[0] == '\\') {
    std::string error;
    bytes = readtext("\"" + name + "\"", error);
    return error.empty();
  }
  for (const NamedKey& key : namedkeys)
    if (name == key.name) {
      bytes = key.bytes;
      return true;
    }
  return false;
}

bool bracketedkey(std::string name, std::vector<std::string>& keys) {
  int count = 1;
  size_t space = name.find(' ');
  if (space != std::string::npos && space > 0) {
    count = atoi(name.c_str());
    name = name.substr(space + 1);
  }
  std::string bytes;
  if (count < 1 || !keybytes(name, bytes)) return false;
  keys.insert(keys.end(), static_cast<size_t>(count), bytes);
  return true;
}

// The text of one pair of quotes; `at` stands behind the first and ends behind the second.
bool quotedpiece(const std::string& text, size_t& at, std::string& piece) {
  for (; at < text.size(); at++) {
    char c = text[at];
    if (c == '"') {
      at++;
      return true;
    }
    if (c != '\\') {
      piece += c;
      continue;
    }
    if (++at == text.size()) return false;
    int value;
    switch (text[at]) {
      case 'n': piece += '\n'; break;
      case 'r': piece += '\r'; break;
      case 't': piece += '\t'; break;
      case 'e': piece += '\x1b'; break;
      case '\\': case '"': piece += text[at]; break;
      case 'x':
        if (at + 2 >= text.size() || !hexadecimal(text.substr(at + 1, 2), value)) return false;
        piece += static_cast<char>(value);
        at += 2;
        break;
      default: return false;
    }
  }
  return false;
}

std::string numbers(long from, long to) {
  std::string lines;
  for (long n = from; n <= to; n++) lines += std::to_string(n) + "\n";
  return lines;
}

// "1..20" at `at`.
bool rangepiece(const std::string& text, size_t& at, std::string& piece) {
  long from, to;
  int used = 0;
  if (sscanf(text.c_str() + at, "%ld..%ld%n", &from, &to, &used) != 2) return false;
  piece = numbers(from, to);
  at += static_cast<size_t>(used);
  return true;
}

// "*100" at `at`, or nothing.
void repetition(const std::string& text, size_t& at, std::string& piece) {
  if (at >= text.size() || text[at] != '*') return;
  char* end = nullptr;
  long count = strtol(text.c_str() + at + 1, &end, 10);
  at = static_cast<size_t>(end - text.c_str());
  std::string once;
  once.swap(piece);
  while (count-- > 0) piece += once;
}

}  // namespace

std::vector<std::string> readkeys(const std::string& text, std::string& error) {
  std::vector<std::string> keys;
  for (size_t at = 0; at < text.size(); at++) {
    if (text[at] == ' ') continue;
    if (text[at] != '<') {
      keys.emplace_back(1, text[at]);
      continue;
    }
    size_t end = text.find('>', at + 2);  // so that <C->> would do, and <> is no key
    std::string name = end == std::string::npos ? "" : text.substr(at + 1, end - at - 1);
    if (!bracketedkey(name, keys)) {
      error = "no such key: " + text.substr(at);
      return keys;
    }
    at = end;
  }
  return keys;
}

std::string readtext(const std::string& text, std::string& error) {
  std::string whole;
  for (size_t at = 0; at < text.size();) {
    if (text[at] == ' ') {
      at++;
      continue;
    }
    std::string piece;
    bool right = text[at] == '"' ? quotedpiece(text, ++at, piece) : rangepiece(text, at, piece);
    if (!right) {
      error = "no text: " + text;
      return whole;
    }
    repetition(text, at, piece);
    whole += piece;
  }
  return whole;
}

std::string inquotes(const std::string& bytes) {
  std::string text = "\"";
  for (char c : bytes) {
    if (c == '\n') text += "\\n";
    else if (c == '\x1b') text += "\\e";
    else if (c == '"' || c == '\\') text += std::string("\\") + c;
    else if (c >= ' ' && c < 0x7f) text += c;
    else {
      char hex[8];
      snprintf(hex, sizeof hex, "\\x%02x", static_cast<unsigned>(c) & 0xffU);
      text += hex;
    }
  }
  return text + "\"";
}

}  // namespace tarn
