// The texts of Escape-q.
#pragma once

#include <cstdint>

namespace tarn {

inline constexpr int32_t quipcount = 133;

extern const char* const quips[];  // quipcount of them

}  // namespace tarn
