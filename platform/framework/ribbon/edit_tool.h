#pragma once

#include <afxcmn.h>

class CMFCRibbonBaseElement;

/// TRUE while the pointer is in the edit window of the element: the window that shows the element gets no messages.
bool IsPointerInEdit(const CMFCRibbonBaseElement* element);

/// The tooltip's tool of the edit window under the pointer. A window that shows elements has one, beside the tool of
/// the element itself, and hands the mouse messages of both to the tooltip.
class RibbonEditTool {
public:
    /// The tool is now that of the element's edit window, or none.
    void Follow(CToolTipCtrl& tooltip, CWnd& owner, const CMFCRibbonBaseElement* element);
    bool IsOf(HWND window) const { return window != nullptr && window == m_window; }

private:
    HWND m_window = nullptr; // may be gone
};
