#pragma once

#include <windows.h>

namespace fx {

/// Whether WM_COMMAND can carry the id. It has 16 bits for it: a larger one would arrive as another command, so that it
/// is never sent, and its items are disabled.
inline bool IsSendableCommand(UINT id) { return id != 0 && id <= 0xFFFF; }

} // namespace fx
