#pragma once

#include <windows.h>

/// Destroys a menu with everything that opens from it, however deep. What is no menu any more is left alone.
void DestroyMenuTree(HMENU menu);
