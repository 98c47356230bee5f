#pragma once

#include <windows.h>

namespace toolbar {

/// From now on the face of a combo box without an edit is drawn as a field of its bar while bars draw combos flat: by
/// its owner where it is owner-drawn, whatever the system's theme, and nothing beside its item.
void DrawFaceOf(HWND combo);

} // namespace toolbar
