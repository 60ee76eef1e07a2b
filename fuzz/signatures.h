// How each of the 256 builtins may be called at random without harm: what its arguments are besides
// being of some kind, and what is done with its answer. Memory that a call writes to lies in a
// block of its own, texts that it reads end within another, streams and directories are open, and
// files stand in the directory of the target.
//
//   arguments                                     answers
//   v  any value                                  v  a value, for further calls and to be looked at
//   g  the text of a program                      m  a block of memory, freed in the end
//   i  an integer of any size                     f  a stream, closed in the end
//   n  a count, 0 to 255; N always one            y  a directory, closed in the end
//   k  a count, or below 0; x one to 15           o  a descriptor, closed in the end
//   d  a real                                     l  the address of a cell that is held for ever
//   s  a text; S the same, not as an address      t  the address of a time in fields
//   p  a place to write to; r a place to read     .  a number that means nothing here
//   0  nowhere, or a place to write to
//   u  a place for a pointer
//   a  what `assert` may see
//   b  a post of 32 bytes; c always an array of 4 slots
//   m  a block of memory, which is given up
//   l  the address of a cell that is held for ever
//   f  a stream; F one that is given up; q a fresh one
//   y  a directory; Y one that is given up
//   e  a descriptor that is no socket; E a fresh one; z one that is not open
//   h  a name of a file; w a way of opening it
//   j  the address of a time in seconds; t of one in fields
#pragma once

namespace tarn {

struct Signature {
  const char* name;
  const char* arguments;  // a letter for each; null: it is not called
  char answer;
  const char* reason;     // why it is not called; else null
};

extern const Signature signatures[];
extern const int signaturerows;

}  // namespace tarn
