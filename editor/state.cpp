// The globals of the editor, with the values they start from.
#include "editor/state.h"

#include "editor/kink.h"
#include "editor/paint.h"
#include "editor/pink.h"

namespace tarn {

Str line;
Painter repaint = paintfile;
bool suppressed = false;
bool painted = false;
bool showsfault = false;
bool killchain = true;

Str stat;
int64_t statshift = 0;

Str currentname = ".";
Str clip;
int64_t mark = -1;
int32_t inkmode = classyellow;
uint64_t kink = defaultkink;

int64_t width = 80;
int64_t height = 24;

Str home = "/";
Str cwdpath = "/";
Str dotname = ".";
int64_t starttime = 0;

int64_t selected = 0;

}  // namespace tarn
