// The difference bounds of a sheet, as each change leaves them (sheet.h says what they mean). Only
// the changes of sheet.cpp call these, right after the change of the tree.
#pragma once

#include <cstdint>

#include "editor/sheet.h"

namespace tarn {

// No difference: the text is the saved one.
void boundsempty(sheet& s);

// n bytes have been put in at the point; `wasclean`: the sheet was clean before.
void boundsinserted(sheet& s, int64_t n, bool wasclean);

// n bytes have been taken out at the point.
void boundsdeleted(sheet& s, int64_t n);

// Finds the bounds of a text of which nothing is known, at the cost of a walk over it.
void boundsanew(sheet& s);

// For tests: fails if the bounds break what sheet.h says of them.
void checkbounds(const sheet& s);

}  // namespace tarn
