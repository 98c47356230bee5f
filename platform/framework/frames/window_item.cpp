#include "frames/window_item.h"

#include "afxpopupmenu.h"

IMPLEMENT_DYNCREATE(WindowItem, CMFCToolBarMenuButton)

WindowItem::WindowItem(HWND window, Choose choose, bool isChecked, LPCTSTR text)
    : CMFCToolBarMenuButton(static_cast<UINT>(-1), nullptr, -1, text), m_window(window), m_choose(choose) {
    m_nStyle |= isChecked ? TBBS_CHECKED : 0;
}

void WindowItem::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarMenuButton::CopyFrom(src);
    const auto& other = static_cast<const WindowItem&>(src);
    m_window = other.m_window;
    m_choose = other.m_choose;
}

BOOL WindowItem::OnClickMenuItem() {
    const HWND window = m_window;
    const Choose choose = m_choose;
    CMFCPopupMenu::CloseAll(); // this item is gone
    choose(window);
    return TRUE;
}
