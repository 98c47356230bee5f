#pragma once

#include "barwright_api.h"

#include <windows.h>

/// Loads an icon file at `side` x `side` pixels as the library loads those of configured elements, for what a host
/// draws itself: the file's picture of that side, or the one that the system takes for it. The caller destroys it
/// (DestroyIcon). Null for an empty path, what cannot be opened or is no icon file, for one that holds a picture with a
/// side of more than 1,024 pixels, as decoding it would take seconds, and for a path that begins with the installation
/// directory and leads out of it.
BARWRIGHT_API HICON LoadInstalledIcon(const wchar_t* path, int side);
