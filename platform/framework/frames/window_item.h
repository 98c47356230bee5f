#pragma once

#include "afxtoolbarmenubutton.h"

/// A row of a menu that acts on a window, which may be gone by then; no command is sent.
class WindowItem : public CMFCToolBarMenuButton {
    DECLARE_DYNCREATE(WindowItem)

public:
    /// Called with the window when the row is chosen, after all menus have closed.
    using Choose = void (*)(HWND window);

    WindowItem() = default;
    WindowItem(HWND window, Choose choose, bool isChecked, LPCTSTR text);

    void CopyFrom(const CMFCToolBarButton& src) override;
    BOOL OnClickMenuItem() override;

private:
    HWND m_window = nullptr;
    Choose m_choose = nullptr;
};
