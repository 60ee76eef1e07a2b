// The primitive reductions: what each kind of head does with its arguments. The scheduler
// (reduce.cpp) decides which redex goes next.
#pragma once

#include "graph/cell.h"
#include "graph/definitions.h"
#include "graph/state.h"

namespace tarn {

constexpr int maxargs = cellmaxarity;  // a redex never has more arguments than its arity was

// The head of a spine and its arguments; all lent.
struct Spine {
  Cell* head;           // a leaf, or data
  int count;            // of arguments, 0 to maxargs
  Cell* args[maxargs];  // the nearest to the head first; set up to count
};

// The head alone: down the left links of f, to a leaf or data.
Cell* spinehead(Cell* f);
// The whole spine; more arguments than maxargs are a program fault.
void walkspine(Spine& p, Cell* f);

// One primitive reduction of the focus, which is closed and of arity 0; anything else is a program
// fault. Counts as a step.
void reduceprim(State& s);

// The same for a redex of which no Pair was made: its parts are lent, and the old focus is dropped
// for the result. These do not count.
void primunfold(State& s, const Definition* d, const Spine& p);  // d has p.count parameters, over 0
void primbind(State& s, Cell* v, Cell* arg, Cell* body);         // `\ v body arg`

// The focus is `{ v e body`, and e is still to be evaluated: it becomes the focus, and `\ v body`
// waits for its value.
void waitlocal(State& s, Cell* v, Cell* e, Cell* body);

// How many steps there were, in all runs of the process.
extern int64_t stepcount;

}  // namespace tarn
