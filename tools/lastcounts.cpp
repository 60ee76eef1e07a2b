// For the coverage build alone: a process that ends itself by a signal writes its counters first,
// as one that exits does. The editor has no other end, so that without this none of its runs would
// count. The linker puts these in the place of `raise` and `abort`.

extern "C" {

void __gcov_dump();
int __real_raise(int signal);
[[noreturn]] void __real_abort();

int __wrap_raise(int signal) {
  __gcov_dump();
  return __real_raise(signal);
}

[[noreturn]] void __wrap_abort() {
  __gcov_dump();
  __real_abort();
}

}  // extern "C"
