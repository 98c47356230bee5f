// What a maximised MDI child has in the frame's menu bar: its icon on the left, its buttons on the right.
#include "afxmenubar.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/window_guard.h"
#include "toolbar/metrics.h"

#include <algorithm>
#include <vector>

using toolbar::Scaled;

IMPLEMENT_SERIAL(CMFCToolBarMenuButtonsButton, CMFCToolBarButton, VERSIONABLE_SCHEMA | 1)
IMPLEMENT_SERIAL(CMFCToolBarSystemMenuButton, CMFCToolBarMenuButton, VERSIONABLE_SCHEMA | 1)

namespace {

constexpr int buttonSide = 18, iconSide = 16, iconRoom = 22;
constexpr UINT systemCommands[] = {SC_MINIMIZE, SC_RESTORE, SC_CLOSE};

} // namespace

void CMFCToolBarMenuButtonsButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarButton::CopyFrom(src);
    if (const auto* other = DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, &src)) {
        m_uiSystemCommand = other->m_uiSystemCommand;
    }
}

SIZE CMFCToolBarMenuButtonsButton::OnCalculateSize(CDC*, const CSize&, BOOL bHorz) {
    m_bHorz = bHorz;
    return CSize(Scaled(buttonSide), Scaled(buttonSide));
}

void CMFCToolBarMenuButtonsButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages*, BOOL, BOOL, BOOL bHighlight,
                                          BOOL, BOOL) {
    CMFCVisualManager::GetInstance()->OnDrawMenuSystemButton(pDC, rect, m_uiSystemCommand, m_nStyle, bHighlight);
}

void CMFCToolBarSystemMenuButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarMenuButton::CopyFrom(src);
    if (const auto* other = DYNAMIC_DOWNCAST(CMFCToolBarSystemMenuButton, &src)) {
        m_hChild = other->m_hChild;
    }
}

SIZE CMFCToolBarSystemMenuButton::OnCalculateSize(CDC*, const CSize& sizeDefault, BOOL bHorz) {
    m_bHorz = bHorz;
    return CSize(Scaled(iconRoom), std::max<int>(sizeDefault.cy, Scaled(iconSide)));
}

HICON CMFCToolBarSystemMenuButton::GetIcon() const {
    const LRESULT own = ::SendMessageW(m_hChild, WM_GETICON, ICON_SMALL, 0);
    return reinterpret_cast<HICON>(own ? own : static_cast<LRESULT>(::GetClassLongPtrW(m_hChild, GCLP_HICON)));
}

void CMFCToolBarSystemMenuButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages*, BOOL, BOOL, BOOL, BOOL,
                                         BOOL) {
    const int side = Scaled(iconSide);
    const CPoint place = rect.CenterPoint() - CSize(side / 2, side / 2);
    DrawDocumentIcon(pDC, CRect(place, CSize(side, side)), GetIcon());
}

BOOL CMFCToolBarSystemMenuButton::OnClick(CWnd* pWnd, BOOL) {
    CMenu* const menu = ::IsWindow(m_hChild) ? CMenu::FromHandle(::GetSystemMenu(m_hChild, FALSE)) : nullptr;
    if (!menu || !menu->GetSafeHmenu()) {
        return FALSE;
    }
    CPoint corner(m_rect.left, m_rect.bottom);
    pWnd->ClientToScreen(&corner);
    const HWND child = m_hChild; // the button may be gone when the menu closes
    const auto command = static_cast<WPARAM>(menu->TrackPopupMenu(TPM_RETURNCMD, corner.x, corner.y, pWnd));
    if (command != 0 && ::IsWindow(child)) {
        ::PostMessageW(child, WM_SYSCOMMAND, command, 0);
    }
    return TRUE;
}

void CMFCToolBarSystemMenuButton::OnDblClk(CWnd*) { ::PostMessageW(m_hChild, WM_SYSCOMMAND, SC_CLOSE, 0); }

// ---- in the bar

void CMFCMenuBar::SetMaximizeMode(BOOL bMax, CWnd* pWnd, BOOL bRecalcLayout) {
    const HWND child = bMax ? pWnd->GetSafeHwnd() : nullptr;
    if (child == m_hMaximizedChild) {
        return;
    }
    m_hMaximizedChild = child;
    for (int i = GetCount() - 1; i >= 0; --i) {
        const CMFCToolBarButton* button = GetButton(i);
        if (DYNAMIC_DOWNCAST(CMFCToolBarSystemMenuButton, button) ||
            DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, button)) {
            RemoveButton(i);
        }
    }
    if (child) {
        // Behind all others, so that the menu's own buttons keep their indexes.
        InsertButton(new CMFCToolBarSystemMenuButton(child));
        for (const UINT command : systemCommands) {
            InsertButton(new CMFCToolBarMenuButtonsButton(command));
        }
    }
    if (bRecalcLayout) {
        AdjustLayout();
    }
}

CMFCToolBarSystemMenuButton* CMFCMenuBar::GetSystemMenu() const {
    for (int i = 0; i < GetCount(); ++i) {
        if (auto* button = DYNAMIC_DOWNCAST(CMFCToolBarSystemMenuButton, GetButton(i))) {
            return button;
        }
    }
    return nullptr;
}

int CMFCMenuBar::GetSystemButtonsCount() const {
    int count = 0;
    for (int i = 0; i < GetCount(); ++i) {
        count += DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, GetButton(i)) ? 1 : 0;
    }
    return count;
}

CMFCToolBarMenuButtonsButton* CMFCMenuBar::GetSystemButton(UINT uiBtn, BOOL bByCommand) const {
    UINT number = 0;
    for (int i = 0; i < GetCount(); ++i) {
        auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, GetButton(i));
        if (button && (bByCommand ? button->m_uiSystemCommand : number++) == uiBtn) {
            return button;
        }
    }
    return nullptr;
}

// The icon before the first button, which makes room for it, the others at the right edge.
void CMFCMenuBar::PlaceSystemButtons() {
    CMFCToolBarSystemMenuButton* const icon = GetSystemMenu();
    if (!icon || !IsHorizontal()) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    const int shift = icon->Rect().Width();
    int right = client.right - m_rectBorders.right;
    for (int i = GetCount() - 1; i >= 0; --i) {
        CMFCToolBarButton* button = GetButton(i);
        CRect place = button->Rect();
        if (button == icon) {
            place.MoveToX(m_rectBorders.left);
        } else if (DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, button)) {
            const int side = Scaled(buttonSide);
            right -= side;
            place = CRect(CPoint(right, place.top + (place.Height() - side) / 2), CSize(side, side));
        } else {
            place.OffsetRect(shift, 0);
        }
        button->SetRect(place);
    }
}

BOOL CMFCMenuBar::OnSendCommand(const CMFCToolBarButton* pButton) {
    const auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButtonsButton, pButton);
    if (!button) {
        return CMFCToolBar::OnSendCommand(pButton);
    }
    ::PostMessageW(m_hMaximizedChild, WM_SYSCOMMAND, button->m_uiSystemCommand, 0);
    return TRUE;
}
