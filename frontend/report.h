// The form of every error of a program, found before it runs or raised while it does. A report can
// also travel through the language as a value, as the text of its five fields.
#pragma once

#include "foundation/str.h"

namespace tarn {

struct Report {
  Str message;         // the sentence shown to the user
  Str word = "check";  // a short tag: "match", "alive", "cycle" ...; "check" means that all is well
  Str place;           // a placename, or a shortened name where no place is known
  Str name;            // a shortened name, shortened program text, or a second placename
  Str context;         // what `road` was given, shortened; empty otherwise

  bool sound() const { return word == "check"; }
};

// The text of a report as a string atom: ['["message]["word]["place]["name]["context]]
Str reporttext(const Report& report);

// Reads such a text back. The message may hold lone brackets; the other fields have none. A text of
// any other shape is itself the message, under the word "raise".
Report reportparse(const Str& text);

// The three ways to keep a field short, at 72 bytes or less.
//   shortname  a name; one of five bytes gets two more, so that it never reads as a place
//   shorttext  program text; what is open where it is cut is closed again
//   shortcode  the same, but wings are bytes like any other
Str shortname(const Str& s);
Str shorttext(const Str& s);
Str shortcode(const Str& s);

}  // namespace tarn
