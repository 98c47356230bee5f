#pragma once

#include "afxwin.h"

namespace fx {

/// The title in a frame's string resource: its first line. Empty when there is none.
inline CString FrameTitleOf(UINT resourceId) {
    CString text;
    CString title;
    if (text.LoadString(resourceId)) {
        AfxExtractSubString(title, text, 0);
    }
    return title;
}

} // namespace fx
