// Mouse and keyboard of a ribbon status bar, beside what every ribbon bar has: the size grip, the way in by F6, the
// menu of what is shown.
#include "afxribbonstatusbar.h"

#include <algorithm>

#include "ribbon/bar_menus.h"
#include "ribbon/keyboard.h"
#include "ribbon/status_bar_parts.h"

// ---- size grip

UINT CMFCRibbonStatusBar::GripHitAt(CPoint point) const {
    if (GetSizeGripWidth() == 0) {
        return HTCLIENT;
    }
    if (m_rectSizeGrip.PtInRect(point)) {
        // Where the layout runs from right to left the grip is in the left corner of the screen.
        return (GetExStyle() & WS_EX_LAYOUTRTL) != 0 ? HTBOTTOMLEFT : HTBOTTOMRIGHT;
    }
    return m_rectBottomResize.PtInRect(point) ? HTBOTTOM : HTCLIENT;
}

LRESULT CMFCRibbonStatusBar::OnNcHitTest(CPoint point) {
    EnsureLayout();
    CPoint client = point;
    ScreenToClient(&client);
    const UINT hit = GripHitAt(client);
    return hit != HTCLIENT ? static_cast<LRESULT>(hit) : CMFCRibbonBar::OnNcHitTest(point);
}

// It is the frame that is sized.
void CMFCRibbonStatusBar::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    CFrameWnd* const frame = GetTopLevelFrame();
    const bool isBorder = nHitTest == HTBOTTOMLEFT || nHitTest == HTBOTTOMRIGHT || nHitTest == HTBOTTOM;
    if (isBorder && frame != nullptr) {
        frame->SendMessage(WM_NCLBUTTONDOWN, nHitTest, MAKELPARAM(point.x, point.y));
        return;
    }
    CMFCRibbonBar::OnNcLButtonDown(nHitTest, point);
}

// ---- keyboard

BOOL CMFCRibbonStatusBar::LeadsFocusItself() const {
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> own;
    GetBarElements(own);
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    for (INT_PTR index = 0; index < own.GetSize(); ++index) {
        own[index]->GetElements(elements);
    }
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        const CMFCRibbonBaseElement& element = *elements[index];
        if (element.IsVisible() && element.IsTabStop() && !element.IsSeparator() && !element.GetRect().IsRectEmpty()) {
            return TRUE;
        }
    }
    return FALSE;
}

void CMFCRibbonStatusBar::OnSetFocus(CWnd* pOldWnd) {
    CMFCRibbonBar::OnSetFocus(pOldWnd);
    if (!GetKeyboard().IsActive()) {
        GetKeyboard().Activate();
    }
}

BOOL CMFCRibbonStatusBar::PreTranslateMessage(MSG* pMsg) {
    RibbonKeyboard& keyboard = GetKeyboard();
    if (keyboard.IsActive()) {
        const bool opensList = pMsg->message == WM_SYSKEYDOWN && pMsg->wParam == VK_DOWN;
        if ((pMsg->message == WM_KEYDOWN && keyboard.OnKeyDown(*pMsg)) ||
            (opensList && keyboard.OnSysKeyDown(static_cast<UINT>(pMsg->wParam), pMsg->lParam))) {
            return TRUE;
        }
        if (pMsg->message == WM_LBUTTONDOWN || pMsg->message == WM_RBUTTONDOWN || pMsg->message == WM_MBUTTONDOWN) {
            keyboard.OnMouseButton(pMsg->hwnd);
        }
    }
    return CMFCRibbonBar::PreTranslateMessage(pMsg);
}

// ---- context menu

// The element may have gone while the menu was open.
void CMFCRibbonStatusBar::SwitchElement(const CMFCRibbonBaseElement* element) {
    CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
    GetBarElements(elements);
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index] == element) {
            elements[index]->SetVisible(!element->IsVisible());
            RecalcLayout();
            Invalidate(FALSE);
            return;
        }
    }
}

BOOL CMFCRibbonStatusBar::OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* /*pHit*/) {
    RibbonMenu menu;
    for (const RibbonStatusBarParts::Label& label : m_statusParts->labels) {
        const CMFCRibbonBaseElement* const element = label.element;
        menu.AddCheck(label.text, element->IsVisible() != FALSE, [this, element] { SwitchElement(element); });
    }
    return menu.Track(CPoint(x, y), pWnd);
}
