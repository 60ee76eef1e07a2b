// What a program that evaluates does first.
#include "host/start.h"

#include <cstdio>
#include <cstdlib>

#include "foundation/system.h"
#include "host/builtintable.h"
#include "host/net.h"

namespace tarn {

void hoststart() {
  systemstart();
  int error = netstart();
  if (error != 0) {
    printf("WSAStartup failed: %d\n", error);
    exit(-1);
  }
  hostinstall();
}

}  // namespace tarn
