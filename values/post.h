// A post: a string of any bytes with a stored length, in one leaf. It is what goes to files and the
// C library, and what comes from them.
//
//   header, '(', length in base-64 digits, ')', payload, 0
//
//   "(c)abc"   three bytes      "()"   none      "(a_)..."   64 bytes
//
// Arguments are lent and must be posts; answers are given.
#pragma once

#include <vector>

#include "foundation/str.h"
#include "graph/cell.h"
#include "values/bytes.h"

namespace tarn {

CellRef postmake(Bytes payload);
// A post of n bytes that are not set yet; out is where they go.
CellRef postsized(int64_t n, uint8_t*& out);

int64_t postlen(const Cell* x);
Bytes postbytes(const Cell* x);  // in the leaf; a NUL follows
Str posttext(const Cell* x);

CellRef postjoin(Bytes a, Bytes b);

// Where a post of n bytes, two or more, is cut when it is seen as a tree: behind so many bytes as
// the largest power of two that is below n.
int64_t postsplit(int64_t n);

// The bits of one byte as a tree, the highest first, `I` for 1 and `H` for 0:
// V (J (J b7 b6) (J b5 b4)) (J (J b3 b2) (J b1 b0))
CellRef bytetree(uint8_t b);

// Appends the bytes of such trees to out, from left to right. x is `K` for none, the tree of a
// byte, or `J p q` of two of these; of any other shape the answer is false.
bool bytesoftree(const Cell* x, std::vector<uint8_t>& out);

}  // namespace tarn
