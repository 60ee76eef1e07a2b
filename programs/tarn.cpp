// The editor.
#include "editor/mainloop.h"
#include "foundation/bigstack.h"

struct Arguments {
  int count;
  char** values;
};

int main(int argc, char** argv) {
  Arguments arguments = {argc, argv};
  tarn::runonbigstack(
      [](void* given) {
        auto* a = static_cast<Arguments*>(given);
        tarn::runeditor(a->count, a->values);
      },
      &arguments);
}
