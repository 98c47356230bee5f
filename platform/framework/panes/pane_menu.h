#pragma once

#include "afxPane.h"

#include <vector>

/// The panes that a menu offers to show and hide, in the order of the list: those with a name that allow it.
std::vector<CPane*> PanesForMenu(const CObList& panes, bool showsToolbarsOnly);
