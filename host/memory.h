// Typed memory: forty builtins, `re` + family + width, that read and write one number of 1, 2, 4 or
// 8 bytes, in the byte order of the machine and wherever it stands; and those that move whole values
// between cells and memory.
//
//   family   target                         index                  a write answers
//   rec      the content of a zits          tested, -1 the last    a new zits, or Z: out of balance
//   red      the bytes of a cray's slots    raw                    the cray itself, changed
//   ref      an address                     none                   I
//   rel      the payload of a post          tested, -1 the last    a new post, or an unshared one
//   rem      the payload of a post          raw                    the post itself, changed
//
//   width    1  2  4  8
//   read     h  i  j  k    unsigned
//   write    l  m  n  o    the low bytes of the value
//
// On purpose red, ref and rem change what other terms may share: that is how a program fills a
// buffer without copying it. An argument of the wrong kind and a tested index out of range answer Z.
#pragma once

#include "graph/builtins.h"

namespace tarn {

// An access by one family: read gives the number at an index, write what the write answers.
template <int width> CellRef& recread(CellRef& out, CellRef application);
template <int width> CellRef& recwrite(CellRef& out, CellRef application);
template <int width> CellRef& redread(CellRef& out, CellRef application);
template <int width> CellRef& redwrite(CellRef& out, CellRef application);
template <int width> CellRef& refread(CellRef& out, CellRef application);
template <int width> CellRef& refwrite(CellRef& out, CellRef application);
template <int width> CellRef& relread(CellRef& out, CellRef application);
template <int width> CellRef& relwrite(CellRef& out, CellRef application);
template <int width> CellRef& remread(CellRef& out, CellRef application);
template <int width> CellRef& remwrite(CellRef& out, CellRef application);

CellRef memorypost(Cell* address, Cell* n);   // `post`: a post of n bytes from there
CellRef memorycopy(Cell* x, Cell* address);   // `copy`: the bytes of x to there, no NUL behind
// `leak`: the address of a cell, which from now on is never freed; `bond`: the cell at an address.
CellRef memoryleak(Cell* x);
CellRef memorybond(Cell* address);

}  // namespace tarn
