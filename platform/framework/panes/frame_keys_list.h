#pragma once

#include "afxwin.h"

#include <vector>

namespace panes {

/// The keys of a frame's accelerator table in its order; none of a frame without a table, and of null.
std::vector<ACCEL> KeysOf(const CFrameWnd* frame);

/// Whether both are pressed in the same way, whatever they call.
bool IsSameKey(const ACCEL& left, const ACCEL& right);

} // namespace panes
