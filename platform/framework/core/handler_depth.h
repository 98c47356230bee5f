#pragma once

namespace fx {

/// How many window procedures and modal loops of the framework run on the calling thread, each inside the one before;
/// 0 in the thread's own loop. Changed by scopes only.
int& HandlerDepth() noexcept;

} // namespace fx
