#pragma once

#include "framework_api.h"

#include <windows.h>

namespace fx {

/// Has the system draw caption, buttons and border of a top-level window dark, or light again, at once where it is
/// shown. False: this system cannot, and the window stays as it is. Nothing is kept: who changes the look asks again.
FRAMEWORK_API bool SetDarkCaption(HWND window, bool isDark);

} // namespace fx
