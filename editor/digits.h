// Numbers typed at prompts: digits to a value. Of the digits any number can be typed, so each value
// stops at a most; nothing typed is 0. Bytes that are no digits are a program fault.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// `most` is 1 to 2^56.
int64_t decimalvalue(const Str& digits, int64_t most);
int64_t base64value(const Str& digits, int64_t most);

}  // namespace tarn
