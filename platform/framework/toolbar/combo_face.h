#pragma once

#include <windows.h>

namespace toolbar {

/// From now on the face of a combo box without an edit is drawn as a field of its bar while bars draw combos flat: by
/// its owner where it is owner-drawn, whatever the system's theme, and nothing beside its item.
void DrawFaceOf(HWND combo);
/// What a combo box shows of itself on a field of that size, which its bar draws with the skin's border: the item
/// without the corners of the field, where they are round. Client pixels of the combo box, whose owner the region
/// becomes.
HRGN FaceRegion(const RECT& item, SIZE field);

} // namespace toolbar
