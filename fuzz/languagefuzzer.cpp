// The same for libFuzzer, which grows the programs by what they reach.
#include "fuzz/language.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t n) {
  static bool ready = false;
  if (!ready) tarn::fuzzinstall();
  ready = true;
  tarn::fuzzprogram(std::string(reinterpret_cast<const char*>(bytes), n));
  return 0;
}
