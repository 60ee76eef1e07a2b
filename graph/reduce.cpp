// The abstract machine.
#include "graph/reduce.h"
