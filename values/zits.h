// A zits: bracket-balanced text that is at the same time a binary tree. It is data, by the word of
// cell.h, and comes in two forms:
//
//   flat   one leaf, "[ab[c]]"       content ab[c]; its last item is the group [c]
//   rope   a Pair of two data        the items of the left part, and the right part as last item
//
// Any byte may stand in the content, newline and NUL too. An item is a group in brackets or one
// byte, and a byte is short for its bracket word (codemap.h): so the rope of "[a]" and the word of
// "b" is the text "[ab]", and the rope of "[a]" and "[b]" is "[a[b]]". A rope is never empty.
//
// On purpose: content may be out of balance, as a cut and `cork` do not look at it. Such a zits
// prints, joins and compares by its bytes like any other; taking it apart is a program fault.
//
// Arguments are lent and must be data; answers are given.
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"
#include "values/bytes.h"

namespace tarn {

CellRef zitsmake(Bytes content);
// The zits of one item, the escape of a byte that has one (escapes.h): "[[q]]" for "[".
CellRef zitsofescape(uint8_t byte);
// A flat zits with n bytes of content that are not set yet; out is where they go.
CellRef zitssized(int64_t n, uint8_t*& out);

// The whole text of a flat zits, and its content; both lie in the leaf.
Bytes flattext(const Cell* flat);
Bytes flatcontent(const Cell* flat);

// The flat form: x itself if it is flat. Costs what the text is long.
CellRef zitsflat(Cell* x);
Str zitstext(Cell* x);        // the content
int64_t zitslength(Cell* x);  // of the whole text, with its outer brackets
bool zitsempty(const Cell* x);

// Every bracket has its partner. What is not so can still be content, see above.
bool isbalanced(Bytes content);

// All items but the last, and the last item. x may not be empty.
CellRef zitsleft(Cell* x);
CellRef zitsright(Cell* x);

// The tree of x in pairs: `K` for the empty text, else `J left right`.
CellRef zitstree(Cell* x);
// Back from such a tree to a flat zits; `Z` if it holds anything else.
CellRef zitsoftree(Cell* tree);

}  // namespace tarn
