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

/// Sets another text only: an equal one would flicker.
inline void SetTitle(CWnd& window, const CString& title) {
    CString shown;
    window.GetWindowText(shown);
    if (title != shown) {
        window.SetWindowText(title);
    }
}

} // namespace fx
