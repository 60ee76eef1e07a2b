// The strict reader of the editor's output: a table of the final bytes and their parameters.
#include "tests/support/strictoutput.h"

#include <cstdlib>

#include "tests/support/notation.h"

namespace tarn {

namespace {

bool issize(const std::string& digits, int limit) {
  if (digits.empty() || digits[0] == '0' || digits.size() > 5) return false;
  return limit == 0 || atoi(digits.c_str()) <= limit;
}

// "\e[row;columnH"
bool isplace(const StrictOutput& output, const std::string& parameters) {
  size_t semicolon = parameters.find(';');
  return semicolon != std::string::npos &&
         issize(parameters.substr(0, semicolon), output.height) &&
         issize(parameters.substr(semicolon + 1), output.width);
}

// "\e[m", resets and the three attributes, and the sixteen colours of either ground.
bool isrendition(const std::string& parameters) {
  if (parameters.empty()) return true;
  if (!issize(parameters, 107)) return parameters == "0";
  int n = atoi(parameters.c_str());
  return n == 1 || n == 3 || n == 4 || (n >= 30 && n <= 37) || (n >= 40 && n <= 47) ||
         (n >= 90 && n <= 97) || (n >= 100 && n <= 107);
}

bool issequence(const StrictOutput& output) {
  std::string parameters = output.sequence.substr(2, output.sequence.size() - 3);
  switch (output.sequence.back()) {
    case 'H': return isplace(output, parameters);
    case 'm': return isrendition(parameters);
    case 'F': return parameters == "1" || parameters == "2";
    case 'G': return issize(parameters, output.width);
    case 'J': return parameters.empty();
    default: return false;
  }
}

bool isparameter(char c) { return (c >= '0' && c <= '9') || c == ';'; }

bool insequence(StrictOutput& output, char c) {
  output.sequence += c;
  if (output.sequence.size() == 2) return c == '[';
  if (isparameter(c)) return output.sequence.size() < 16;
  bool right = issequence(output);
  if (right) output.sequence.clear();
  return right;
}

// Glyphs and the bell; the newline that stands behind a flash comes through the terminal as two.
bool isplain(char c) { return (c >= 0x20 && c < 0x7f) || c == 7 || c == '\r' || c == '\n'; }

}  // namespace

bool readstrictly(StrictOutput& output, const char* bytes, size_t n) {
  for (size_t i = 0; i < n && output.fault.empty(); i++, output.taken++) {
    char c = bytes[i];
    bool right = true;
    if (!output.sequence.empty()) right = insequence(output, c);
    else if (c == '\x1b') output.sequence = "\x1b";
    else right = isplain(c);
    if (right) continue;
    std::string seen = output.sequence.empty() ? std::string(1, c) : output.sequence;
    output.fault = inquotes(seen) + " at byte " + std::to_string(output.taken) + " of the output";
  }
  return output.fault.empty();
}

}  // namespace tarn
