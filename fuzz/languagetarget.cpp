// Any bytes as the text of a program.
#include "fuzz/language.h"
#include "fuzz/target.h"

namespace tarn {

void targetstart() { fuzzinstall(); }
std::string targetrun(const std::string& input) { return fuzzprogram(input); }
std::string targetmade(uint64_t (*next)()) { return fuzztext(next); }

}  // namespace tarn
