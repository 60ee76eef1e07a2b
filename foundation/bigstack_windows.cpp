// The deep stack on Windows: a thread whose stack is reserved, and committed as it is touched.
#include <windows.h>

#include "foundation/bigstack.h"

namespace tarn {

namespace {

struct Job {
  void (*work)(void*);
  void* argument;
};

DWORD WINAPI runjob(void* job) {
  Job* j = static_cast<Job*>(job);
  j->work(j->argument);
  return 0;
}

constexpr SIZE_T largest = SIZE_T{16} << 30;
constexpr SIZE_T smallest = SIZE_T{8} << 20;

}  // namespace

void runonbigstack(void (*work)(void*), void* argument) {
  Job job = {work, argument};
  for (SIZE_T size = largest; size >= smallest; size /= 2) {
    HANDLE worker =
        CreateThread(nullptr, size, runjob, &job, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    if (worker == nullptr) continue;
    WaitForSingleObject(worker, INFINITE);
    CloseHandle(worker);
    return;
  }
  work(argument);
}

}  // namespace tarn
