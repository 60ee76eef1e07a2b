// The start of every program that evaluates. On a system whose sockets need no start netstart
// cannot fail, so the words name the one library that can.
#include "host/start.h"

#include <cstdio>
#include <cstdlib>

#include "foundation/system.h"
#include "host/builtintable.h"
#include "host/net.h"

namespace tarn {

void socketsfailed(int error) {
  printf("WSAStartup failed: %d\n", error);
  exit(-1);
}

void hoststart() {
  systemstart();
  if (int error = netstart(); error != 0) socketsfailed(error);
  hostinstall();
}

}  // namespace tarn
