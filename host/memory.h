// Typed memory: forty builtins, `re` + family + width, each of which reads or writes one number of
// 1, 2, 4 or 8 bytes, in the byte order of the machine and at any address; and the builtins that
// move whole values between cells and memory.
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
// On purpose: red, ref and rem change what other terms may share. That is how a program fills a
// buffer without copying it. An argument of the wrong kind, and a tested index that is out of
// range, answer Z; a raw index and an address are not looked at.
#pragma once

#include "graph/cell.h"

namespace tarn {

// The accesses of each family, by width: 1, 2, 4 or 8 bytes.
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

// Whole values. Like all functions over values these lend their arguments and give the answer.
CellRef memorypost(Cell* address, Cell* n);  // `post`: a post of the n bytes at the address
CellRef memorycopy(Cell* x, Cell* address);  // `copy`: the bytes of x to the address, without a NUL
CellRef memoryleak(Cell* x);                 // `leak`: the address of x, which is never freed again
CellRef memorybond(Cell* address);           // `bond`: the cell at the address; not 0

}  // namespace tarn
