#pragma once

#include <windows.h>

namespace toolbar {

/// The image that a command had in the toolbar resource which brought it.
void SetDefaultImage(UINT command, int image);

} // namespace toolbar
