// The primitive reductions: what each kind of head does with its arguments. The scheduler
// (reduce.cpp) decides which redex goes next.
#pragma once

#include "graph/definitions.h"
#include "graph/state.h"

namespace tarn {

constexpr int MAXARGS = CELLMAXARITY;  // a redex never has more arguments than its arity was

// The head of a spine and its arguments, the nearest to the head first; all lent.
struct Spine {
  Cell* head;
  int count;
  Cell* args[MAXARGS];
};

// Down the left links of f, to a leaf or data.
Cell* spinehead(Cell* f);
// The whole of it; more arguments than MAXARGS are a program fault.
void walkspine(Spine& p, Cell* f);

// One primitive reduction of the focus, which is closed and of arity 0. Each counts as a step.
void reduceprim(State& s);

// The same for parts of a redex that need no Pair made of them. The focus is what is dropped.
void primunfold(State& s, const Definition* d, const Spine& p);  // d has p.count parameters, over 0
void primbind(State& s, Cell* v, Cell* arg, Cell* body);         // `\ v body arg`
void primconstant(State& s, Definition* d);                      // d has a term and no parameters

// The focus `{ v e body`, its e to be evaluated first: `\ v body` waits for the value. Counts as a
// step.
void waitlocal(State& s, Cell* v, Cell* e, Cell* body);

// How many steps there were, of all runs.
extern int64_t stepcount;

}  // namespace tarn
