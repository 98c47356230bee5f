#pragma once

#include "afxbasepane.h"

namespace panes {

/// Whether a pane's SaveState has left anything below the profile, damaged or not.
bool HasKeptState(const CBasePane& pane, LPCTSTR profile);

} // namespace panes
