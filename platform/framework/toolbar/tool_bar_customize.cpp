// What users change in a toolbar, and the way back.
#include "afxtoolbar.h"

#include "afxcustomizebutton.h"
#include "afxtoolbarmenubutton.h"
#include "afxvisualmanager.h"
#include "fx/registered_messages.h"
#include "fx/to_rect.h"
#include "fx/window_guard.h"
#include "toolbar/button_copy.h"
#include "toolbar/button_drag.h"
#include "toolbar/metrics.h"

#include <memory>
#include <vector>

using toolbar::ButtonDrag;

namespace {

bool g_isQuickCustomization = false;
bool g_isCustomizeMode = false;

void CopyButtons(CObList& copies, const CObList& buttons) {
    while (!copies.IsEmpty()) {
        delete copies.RemoveHead();
    }
    for (POSITION position = buttons.GetHeadPosition(); position;) {
        if (auto copy = toolbar::CopyOf(*static_cast<const CMFCToolBarButton*>(buttons.GetNext(position)))) {
            copies.AddTail(copy.release());
        }
    }
}

/// The toolbars that there are now: handlers may add and destroy some while one goes through them.
std::vector<HWND> AllWindows() {
    std::vector<HWND> windows;
    for (POSITION position = CMFCToolBar::GetAllToolbars().GetHeadPosition(); position;) {
        windows.push_back(static_cast<const CMFCToolBar*>(CMFCToolBar::GetAllToolbars().GetNext(position))->m_hWnd);
    }
    return windows;
}

} // namespace

// ---- dragging buttons

void CMFCToolBar::EnableQuickCustomization(BOOL bEnable) { g_isQuickCustomization = bEnable != FALSE; }
BOOL CMFCToolBar::IsCustomizeMode() { return g_isCustomizeMode; }

BOOL CMFCToolBar::SetCustomizeMode(BOOL bSet) {
    if (g_isCustomizeMode == (bSet != FALSE)) {
        return FALSE;
    }
    g_isCustomizeMode = bSet != FALSE;
    for (const HWND window : AllWindows()) {
        CMFCToolBar* const bar = FromHandlePermanent(window);
        for (int i = 0; bar && i < bar->GetCount(); ++i) {
            bar->GetButton(i)->SetStyle(bar->GetButton(i)->m_nStyle); // fields take no input meanwhile
        }
        if (bar) {
            bar->AdjustLayout();
            bar->Invalidate();
        }
    }
    return TRUE;
}

BOOL CMFCToolBar::IsAltCustomizeMode() {
    const ButtonDrag* const drag = ButtonDrag::Current();
    return drag != nullptr && drag->IsByAlt();
}

BOOL CMFCToolBar::IsDragButton(const CMFCToolBarButton* pButton) const {
    const ButtonDrag* const drag = ButtonDrag::Current();
    return drag != nullptr && drag->IsOf(pButton) && ButtonToIndex(pButton) >= 0;
}

BOOL CMFCToolBar::OnBeforeRemoveButton(CMFCToolBarButton*, DROPEFFECT) { return TRUE; }

BOOL CMFCToolBar::BeginButtonDrag(CPoint point) {
    const bool isByAlt = g_isQuickCustomization && !g_isCustomizeMode && ::GetKeyState(VK_MENU) < 0;
    if (m_bMenuMode || (!isByAlt && !g_isCustomizeMode)) {
        return FALSE;
    }
    CMFCToolBarButton* const button = GetButton(HitTest(point));
    CPoint screen = point;
    ClientToScreen(&screen);
    if (button && ButtonDrag::Begin(*this, *button, screen, isByAlt)) {
        return TRUE;
    }
    if (!g_isCustomizeMode || !button) {
        return FALSE; // the grip moves the bar as ever
    }
    // In the customize mode no button does what it is for, but menus open: their items are changed there.
    auto* const opener = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
    if (opener && opener->CanBeStored() && !opener->GetCommands().IsEmpty()) {
        opener->OpenPopupMenu();
    }
    return TRUE;
}

void CMFCToolBar::DrawDropMark(CDC* pDC) {
    const ButtonDrag* const drag = ButtonDrag::Current();
    const CRect mark = drag ? fx::ToRect(drag->MarkIn(*this)) : CRect(0, 0, 0, 0);
    if (mark.IsRectEmpty()) {
        return;
    }
    // A capital I in the gap, or one that lies on its side. Menus may be dark.
    CMFCToolBarMenuButton row;
    const COLORREF color = m_bMenuMode ? CMFCVisualManager::GetInstance()->GetMenuItemTextColor(&row, FALSE, FALSE)
                                       : ::GetSysColor(COLOR_WINDOWTEXT);
    const int foot = toolbar::Scaled(3);
    const bool isUpright = mark.Width() == 1;
    CRect beam = mark;
    (isUpright ? beam.right : beam.bottom) += 1;
    pDC->FillSolidRect(beam, color);
    for (const bool isFirst : {true, false}) {
        CRect serif = beam;
        if (isUpright) {
            serif.InflateRect(foot, 0);
            (isFirst ? serif.bottom : serif.top) = isFirst ? serif.top + 2 : serif.bottom - 2;
        } else {
            serif.InflateRect(0, foot);
            (isFirst ? serif.right : serif.left) = isFirst ? serif.left + 2 : serif.right - 2;
        }
        pDC->FillSolidRect(serif, color);
    }
}

// ---- the button at the end

IMPLEMENT_SERIAL(CMFCCustomizeButton, CMFCToolBarMenuButton, VERSIONABLE_SCHEMA | 1)

CMFCCustomizeButton::CMFCCustomizeButton(UINT uiCustomizeCmdId, const CString& strCustomizeText)
    : m_uiCustomizeCmdId(uiCustomizeCmdId), m_strCustomizeText(strCustomizeText) {}

void CMFCCustomizeButton::CopyFrom(const CMFCToolBarButton& src) {
    CMFCToolBarMenuButton::CopyFrom(src);
    if (const auto* const other = DYNAMIC_DOWNCAST(CMFCCustomizeButton, &src)) {
        m_uiCustomizeCmdId = other->m_uiCustomizeCmdId;
        m_strCustomizeText = other->m_strCustomizeText;
    }
}

CMFCToolBar* CMFCCustomizeButton::GetParentToolbar() const { return DYNAMIC_DOWNCAST(CMFCToolBar, GetParentWnd()); }

BOOL CMFCCustomizeButton::OpenPopupMenu(CWnd*) {
    CMFCToolBar* const bar = GetParentToolbar();
    return bar != nullptr && bar->OpenOverflowMenu();
}

void CMFCToolBar::EnableCustomizeButton(BOOL bEnable, int iCustomizeCmd, const CString& strCustomizeText,
                                        BOOL bQuickCustomize) {
    m_bCustomizeButton = bEnable;
    m_bQuickCustomize = bQuickCustomize;
    m_iCustomizeCmd = iCustomizeCmd;
    m_strCustomizeText = strCustomizeText;
    if (!bEnable) {
        m_customizeButton.reset();
    } else {
        if (!m_customizeButton) {
            m_customizeButton = std::make_unique<CMFCCustomizeButton>();
            m_customizeButton->OnChangeParentWnd(this);
        }
        m_customizeButton->m_uiCustomizeCmdId = static_cast<UINT>(iCustomizeCmd);
        m_customizeButton->m_strCustomizeText = strCustomizeText;
    }
    if (m_hWnd) {
        AdjustLayout();
        Invalidate();
    }
}

void CMFCToolBar::EnableCustomizeButton(BOOL bEnable, int iCustomizeCmd, UINT uiCustomizeTextResId,
                                        BOOL bQuickCustomize) {
    CString text;
    if (!text.LoadString(uiCustomizeTextResId)) {
        text.Empty();
    }
    EnableCustomizeButton(bEnable, iCustomizeCmd, text, bQuickCustomize);
}

// ---- the way back

void CMFCToolBar::SetOrigButtons(const CObList& lstOrigButtons) { CopyButtons(m_OrigButtons, lstOrigButtons); }

void CMFCToolBar::KeepOriginalButtons() {
    if (m_OrigButtons.IsEmpty()) {
        SetOrigButtons(m_Buttons);
    }
}

// The frame may exchange buttons: placeholders of the resource for combo boxes.
void CMFCToolBar::TellReset() {
    const fx::WindowGuard guard(this);
    if (const CFrameWnd* const frame = m_hWnd ? GetTopLevelFrame() : nullptr) {
        ::SendMessageW(frame->m_hWnd, AFX_WM_RESETTOOLBAR, m_uiOriginalResID, 0);
    }
    if (!m_hWnd || guard.IsAlive()) {
        CopyButtons(m_OrigResetButtons, m_Buttons);
    }
}

BOOL CMFCToolBar::RestoreOriginalState() {
    if (!CanBeRestored()) {
        return FALSE;
    }
    RemoveAllButtons();
    for (POSITION position = m_OrigButtons.GetHeadPosition(); position;) {
        InsertButton(*static_cast<const CMFCToolBarButton*>(m_OrigButtons.GetNext(position)));
    }
    const fx::WindowGuard guard(this);
    const bool hasWindow = m_hWnd != nullptr;
    TellReset();
    if (hasWindow && guard.IsGone()) {
        return TRUE; // the host has destroyed the bar
    }
    OnReset();
    if (m_hWnd) {
        AdjustLayout();
    }
    return TRUE;
}

void CMFCToolBar::ResetAll() {
    for (const HWND window : AllWindows()) {
        CMFCToolBar* const bar = FromHandlePermanent(window);
        if (bar && bar->CanBeRestored()) {
            bar->RestoreOriginalState();
        }
    }
}
