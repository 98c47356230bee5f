#pragma once

#include "afxtoolbar.h"

#include <vector>

namespace toolbar {

/// The toolbars of a frame that its customize dialog lists: those with a name that allow it, menu bars left out.
class OfferedBars {
public:
    static std::vector<CMFCToolBar*> Of(const CFrameWnd& frame);
    static CString NameOf(const CMFCToolBar& bar);
    /// Its user may take it from the screen.
    static bool MayHide(const CMFCToolBar& bar) { return !bar.m_bPermament && bar.CanBeClosed(); }
};

} // namespace toolbar
