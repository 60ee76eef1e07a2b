// What is thrown at: one target for each program here, with these functions. A storm throws inputs
// at it that were made up or kept (storm.cpp), libFuzzer grows new ones (fuzzer.cpp). Both call
// them on the deep stack.
#pragma once

#include <cstdint>
#include <string>

namespace tarn {

// Once, before the first input.
void targetstart();

// One input: any bytes at all. What may not happen ends the process, by a check or a sanitizer. The
// same bytes do the same again. Gives what came of it, as far as that has to be the same in every
// build.
std::string targetrun(const std::string& input);

// An input made of the numbers that `next` gives.
std::string targetmade(uint64_t (*next)());

}  // namespace tarn
