// The chain of nodes that holds the checks of a standard. A node is a check of type 0 with two links: a real
// check and the node below it. All walks are loops: a chain may be longer than the stack is deep.
#pragma once

#include "model/Check.h"

#include <functional>

namespace CheckTree {

CCheck* MakeNode();

// Visits the node, then what hangs on link 0, then what hangs on link 1.
void Walk(CCheck* root, const std::function<void(CCheck&)>& visit);

// The node that holds `check`, or null.
CCheck* FindParent(CCheck* root, const CCheck* check);

// Takes out nodes that are left with one link. Result: the new root.
CCheck* Tidy(CCheck* root);

// Frees all that hangs on the root, and the root.
void Free(CCheck* root);

} // namespace CheckTree
