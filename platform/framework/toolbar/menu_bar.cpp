// A frame's menu as a bar: what it is built from, sizes, settings.
#include "afxmenubar.h"

#include "afxcustomizebutton.h"
#include "afxglobals.h"
#include "afxpopupmenu.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "fx/window_guard.h"
#include "toolbar/help_field.h"
#include "toolbar/menu_items.h"
#include "toolbar/metrics.h"

#include <utility>

using toolbar::Scaled;

IMPLEMENT_DYNCREATE(CMFCMenuBar, CMFCToolBar)

BEGIN_MESSAGE_MAP(CMFCMenuBar, CMFCToolBar)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

namespace {

/// Above and below the text of a button, and the width of a button without one.
constexpr int rowPadding = 4, narrowestButton = 12;

struct MenuSettings {
    bool hidesUnused = false;
    bool showsAll = true;
    bool hasShadows = true;
    bool highlightsDisabled = false;
};
MenuSettings g_settings;

} // namespace

CMFCMenuBar::CMFCMenuBar() : m_pMenuButtonRTC(RUNTIME_CLASS(CMFCToolBarMenuButton)) { m_bExclusiveRow = TRUE; }

CMFCMenuBar::~CMFCMenuBar() { DestroyWindow(); }

BOOL CMFCMenuBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, TBSTYLE_FLAT, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCMenuBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID) {
    return CMFCToolBar::CreateEx(pParentWnd, dwCtrlStyle, dwStyle, rcBorders, nID);
}

int CMFCMenuBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CMFCToolBar::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    TakeMenuOfFrame();
    return 0;
}

// The frame keeps the menu, hidden, and destroys it at its end.
void CMFCMenuBar::TakeMenuOfFrame() {
    auto* frame = static_cast<CFrameWnd*>(m_pDockSiteFrame);
    const HMENU menu = frame ? ::GetMenu(frame->GetSafeHwnd()) : nullptr;
    if (menu) {
        CreateFromMenu(menu, TRUE, TRUE);
        frame->SetMenuBarState(AFX_MBS_HIDDEN);
    }
}

void CMFCMenuBar::SetMenuButtonRTC(CRuntimeClass* pMenuButtonRTC) {
    ENSURE_ARG(pMenuButtonRTC && pMenuButtonRTC->IsDerivedFrom(RUNTIME_CLASS(CMFCToolBarMenuButton)));
    m_pMenuButtonRTC = pMenuButtonRTC;
}

std::unique_ptr<CMFCToolBarMenuButton> CMFCMenuBar::MakeButton(HMENU menu, int position) const {
    toolbar::MenuItem item;
    if (!toolbar::ReadMenuItem(menu, position, item) || (item.style & TBBS_SEPARATOR)) {
        return nullptr;
    }
    std::unique_ptr<CMFCToolBarMenuButton> button(
        static_cast<CMFCToolBarMenuButton*>(m_pMenuButtonRTC->CreateObject()));
    if (button) {
        button->m_nID = item.id;
        button->m_strText = item.text;
        button->m_nStyle = item.style;
        button->m_bText = TRUE;
        button->m_bImage = FALSE;
        button->m_bDrawDownArrow = m_bForceDownArrows;
        if (item.submenu) {
            button->CreateFromMenu(item.submenu);
        }
    }
    return button;
}

void CMFCMenuBar::CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu, BOOL bForceUpdate) {
    if (bDefaultMenu) {
        m_hDefaultMenu = hMenu;
    }
    if (hMenu == m_hMenu && !bForceUpdate) {
        return;
    }
    m_hMenu = hMenu;
    const bool hasWindow = m_hWnd != nullptr;
    const fx::WindowGuard guard(this);
    EndKeyboard();
    std::unique_ptr<CMFCToolBarButton> help = CopyOfHelpCombo();
    RemoveAllButtons();
    if (hasWindow && guard.IsGone()) {
        return; // whoever heard that an open menu has closed has destroyed the bar
    }
    const int count = ::IsMenu(hMenu) ? ::GetMenuItemCount(hMenu) : 0;
    for (int i = 0; i < count; ++i) {
        if (std::unique_ptr<CMFCToolBarMenuButton> button = MakeButton(hMenu, i)) {
            InsertButton(button.release());
        }
    }
    if (help) {
        InsertButton(help.release());
    }
    if (const HWND child = std::exchange(m_hMaximizedChild, nullptr); ::IsWindow(child)) {
        SetMaximizeMode(TRUE, CWnd::FromHandle(child), FALSE);
    }
    AdjustLayout();
}

BOOL CMFCMenuBar::CanBeRestored() const { return ::IsMenu(m_hDefaultMenu); }

BOOL CMFCMenuBar::RestoreOriginalstate() {
    if (!CanBeRestored()) {
        return FALSE;
    }
    CreateFromMenu(m_hDefaultMenu, TRUE, TRUE);
    return TRUE;
}

void CMFCMenuBar::SetForceDownArrows(BOOL bValue) {
    m_bForceDownArrows = bValue;
    for (int i = 0; i < GetCount(); ++i) {
        if (auto* button = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, GetButton(i))) {
            button->m_bDrawDownArrow = bValue;
        }
    }
    AdjustLayout();
}

// The user's text is the button's already.
BOOL CMFCMenuBar::OnSetDefaultButtonText(CMFCToolBarButton* pButton) {
    return pButton && !pButton->m_strText.IsEmpty();
}

// ---- settings of all menus

void CMFCMenuBar::SetRecentlyUsedMenus(BOOL bOn) { g_settings.hidesUnused = bOn != FALSE; }
BOOL CMFCMenuBar::IsRecentlyUsedMenus() { return g_settings.hidesUnused; }
void CMFCMenuBar::SetShowAllCommands(BOOL bShowAllCommands) { g_settings.showsAll = bShowAllCommands != FALSE; }
BOOL CMFCMenuBar::IsShowAllCommands() { return g_settings.showsAll; }
void CMFCMenuBar::EnableMenuShadows(BOOL bEnable) { g_settings.hasShadows = bEnable != FALSE; }
BOOL CMFCMenuBar::IsMenuShadows() { return g_settings.hasShadows; }
void CMFCMenuBar::HighlightDisabledItems(BOOL bHighlight) { g_settings.highlightsDisabled = bHighlight != FALSE; }
BOOL CMFCMenuBar::IsHighlightDisabledItems() { return g_settings.highlightsDisabled; }
BOOL CMFCMenuBar::SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz) { return afxGlobalData.SetMenuFont(lpLogFont, bHorz); }

const CFont& CMFCMenuBar::GetMenuFont(BOOL bHorz) { return bHorz ? afxGlobalData.fontRegular : afxGlobalData.fontVert; }

// ---- size and place

int CMFCMenuBar::GetRowHeight() const {
    return m_cyHeight > 0 ? m_cyHeight : afxGlobalData.GetCharacterHeight() + 2 * Scaled(rowPadding);
}

int CMFCMenuBar::GetColumnWidth() const { return Scaled(narrowestButton); }

int CMFCMenuBar::CalcMaxButtonHeight() { return CMFCToolBar::CalcMaxButtonHeight(); }

CFont* CMFCMenuBar::SelectToolBarFont(CDC* pDC, BOOL bHorz) const { return CMFCToolBar::SelectToolBarFont(pDC, bHorz); }

int CMFCMenuBar::GetAvailableExpandSize() const { return CMFCToolBar::GetAvailableExpandSize(); }

// A bar in a row of its own has as many rows as its buttons need in the frame's width.
CSize CMFCMenuBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CSize size = CMFCToolBar::CalcFixedLayout(bStretch, bHorz);
    const CRect room = GetRoom();
    if (bHorz && !room.IsRectEmpty()) {
        CClientDC dc(m_hWnd ? this : nullptr);
        MeasureButtons(&dc, TRUE);
        size.cy = PlaceButtons(room.Width() - m_rectBorders.left - m_rectBorders.right, TRUE, FALSE).cy;
    }
    return size;
}

CSize CMFCMenuBar::CalcLayout(DWORD dwMode, int nLength) {
    if (nLength < 0) {
        return CMFCToolBar::CalcFixedLayout((dwMode & LM_STRETCH) != 0, (dwMode & LM_HORZ) != 0);
    }
    CClientDC dc(m_hWnd ? this : nullptr);
    MeasureButtons(&dc, TRUE);
    return PlaceButtons(nLength, TRUE, FALSE);
}

// Client pixels of the frame; empty when the bar is a control of some other window.
CRect CMFCMenuBar::GetRoom() const {
    CRect room(0, 0, 0, 0);
    if (m_pDockSiteFrame) {
        m_pDockSiteFrame->GetClientRect(&room);
    }
    return room;
}

void CMFCMenuBar::AdjustLocations() {
    if (!m_hWnd) {
        return;
    }
    toolbar::HoldHelpField(*this);
    CMFCToolBar::AdjustLocations();
    CRect client;
    GetClientRect(&client);
    if (IsHorizontal() && client.Width() > 0) {
        // It breaks its buttons into rows where another bar leaves some out.
        m_rectOverflow.SetRectEmpty();
        m_iFirstOverflow = -1;
        if (m_customizeButton) {
            m_customizeButton->SetRect(m_rectOverflow);
        }
        PlaceButtons(client.Width() - m_rectBorders.left - m_rectBorders.right, TRUE, TRUE);
    }
    PlaceSystemButtons();
    PlaceHelpCombo();
}

BOOL CMFCMenuBar::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    std::unique_ptr<CMFCToolBarButton> help = CopyOfHelpCombo();
    const BOOL isLoaded = CMFCToolBar::LoadState(lpszProfileName, nIndex, uiID);
    if (help && !GetHelpCombobox()) {
        InsertButton(help.release()); // which settings do not keep
        AdjustLayout();
    }
    return isLoaded;
}

BOOL CMFCMenuBar::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    return CMFCToolBar::SaveState(lpszProfileName, nIndex, uiID);
}

void CMFCMenuBar::OnPaint() { CMFCToolBar::OnPaint(); }
