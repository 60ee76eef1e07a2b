// Opens the console as the editor does and tells each event in a line: the bytes of a key in
// hexadecimal with its count, or a new size.
#include <cstdio>

#include "editor/console.h"
#include "foundation/system.h"

int main() {
  using namespace tarn;
  systemstart();
  consoleopen();
  for (;;) {
    ConsoleEvent event;
    consolenext(event);
    if (event.kind == ConsoleEventKind::key) {
      for (int i = 0; i < event.key.n; i++) printf("%02x", event.key.bytes[i]);
      printf(" %d\n", event.repeat);
    } else if (event.kind == ConsoleEventKind::resize) {
      printf("%d by %d\n", static_cast<int>(event.width), static_cast<int>(event.height));
    }
    fflush(stdout);
  }
}
