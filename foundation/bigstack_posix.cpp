// The deep stack on POSIX systems: a thread on a lazily reserved mapping. Raising the soft limit
// and starting anew would do as well, but not under valgrind, and children would inherit it.
#include <pthread.h>
#include <signal.h>
#include <sys/mman.h>

#include <cstddef>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "foundation/bigstack.h"
#include "foundation/diag.h"

namespace tarn {

namespace {

struct Job {
  void (*work)(void*);
  void* argument;
};

void* runjob(void* job) {
  Job* j = static_cast<Job*>(job);
  j->work(j->argument);
  return nullptr;
}

constexpr size_t largest = size_t{16} << 30;
constexpr size_t smallest = size_t{8} << 20;
constexpr size_t guard = 65536;

// The largest stack to be had; its lowest pages fault, so that running off the end is seen.
void* reserve(size_t& size) {
  for (size = largest; size >= smallest; size /= 2) {
    void* stack = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
    if (stack == MAP_FAILED) continue;
    mprotect(stack, guard, PROT_NONE);
    madvise(stack, size, MADV_NOHUGEPAGE);  // else the first touch of each 2 MiB fills all of it
    return stack;
  }
  return nullptr;
}

// A thread of its own would get an allocation arena of its own, which grows by a page and a system
// call at a time. There is only one thread at work.
void sharearena() {
#ifdef __GLIBC__
  mallopt(M_ARENA_MAX, 1);
#endif
}

}  // namespace

void runonbigstack(void (*work)(void*), void* argument) {
  sharearena();
  size_t size = 0;
  void* stack = reserve(size);
  if (stack == nullptr) return work(argument);
  Job job = {work, argument};
  pthread_attr_t attributes;
  check(pthread_attr_init(&attributes) == 0);
  check(pthread_attr_setstack(&attributes, stack, size) == 0);
  pthread_t worker;
  check(pthread_create(&worker, &attributes, runjob, &job) == 0);
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);  // after the start: signals then go to the worker
  pthread_join(worker, nullptr);
  pthread_attr_destroy(&attributes);
  munmap(stack, size);
}

}  // namespace tarn
