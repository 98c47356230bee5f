#pragma once

#include <windows.h>

#include <commctrl.h>

namespace fx {

/// One value for all that stand for the same window, menu or drawing object. Such handles have 32 bits that count, and
/// the system gives the others now as the sign of these, now as zeros.
template <class Handle>
Handle CanonicalHandle(Handle handle) {
    return static_cast<Handle>(LongToHandle(HandleToLong(handle)));
}
/// Image lists are objects in memory: all bits count.
inline HIMAGELIST CanonicalHandle(HIMAGELIST list) { return list; }

template <class Handle>
bool IsSameHandle(Handle one, Handle other) {
    return CanonicalHandle(one) == CanonicalHandle(other);
}

} // namespace fx
