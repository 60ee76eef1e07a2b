// The main of the targets for libFuzzer, whose own main runs on a stack too small for deep terms.
#include "foundation/bigstack.h"
#include "fuzz/target.h"

extern "C" int LLVMFuzzerRunDriver(int* argc, char*** argv,
                                   int (*one)(const uint8_t* bytes, size_t n));

struct Arguments {
  int count;
  char** values;
  int status;
};

static int runone(const uint8_t* bytes, size_t n) {
  tarn::targetrun(std::string(reinterpret_cast<const char*>(bytes), n));
  return 0;
}

int main(int argc, char** argv) {
  Arguments arguments = {argc, argv, 0};
  tarn::runonbigstack(
      [](void* given) {
        auto* a = static_cast<Arguments*>(given);
        tarn::targetstart();
        a->status = LLVMFuzzerRunDriver(&a->count, &a->values, runone);
      },
      &arguments);
  return arguments.status;
}
