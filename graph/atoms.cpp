// The functions of applied atoms.
#include "graph/atoms.h"

namespace tarn {

static AtomTable table = {};

void atomsuse(const AtomTable& given) { table = given; }

const AtomTable& atoms() { return table; }

}  // namespace tarn
