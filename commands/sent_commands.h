#pragma once

/// Whether WM_COMMAND can carry the id. It has 16 bits for it: a larger one would arrive as another command, so that it
/// is never sent.
constexpr bool CanBeSent(unsigned id) { return id <= 0xFFFF; }
