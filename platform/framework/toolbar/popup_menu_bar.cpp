// The items of a pop-up menu: import, size, looks.
#include "afxpopupmenubar.h"

#include "afxcommandmanager.h"
#include "afxglobals.h"
#include "afxkeyboardmanager.h"
#include "afxpopupmenu.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "popups/user_settings.h"
#include "toolbar/menu_items.h"
#include "toolbar/menu_row.h"
#include "toolbar/metrics.h"
#include "toolbar/popup_menu_rows.h"

#include <algorithm>
#include <memory>

using toolbar::Scaled;

IMPLEMENT_DYNCREATE(CMFCPopupMenuBar, CMFCToolBar)

int CMFCPopupMenuBar::m_nLastCommandIndex = -1;

namespace {

constexpr int gutterMargin = 4, rowPadding = 3, textPadding = 3, listTextMargin = 4, textMargin = 8, arrowColumn = 18;
constexpr int separatorHeight = 8; // three above the line, four below

CFrameWnd* FrameOf(CWnd* target) {
    auto* const frame = DYNAMIC_DOWNCAST(CFrameWnd, target);
    return frame || !target ? frame : target->GetTopLevelFrame();
}

/// A text that names no keys gets those that call its command.
CString WithKeys(const CString& text, UINT command, CFrameWnd* frame) {
    CString keys;
    const bool isCommand = command != 0 && command != static_cast<UINT>(-1);
    const bool isFree = isCommand && frame && frame->m_hAccelTable && text.Find(L'\t') < 0;
    return isFree && CKeyboardManager::FindDefaultAccelerator(command, keys, frame, TRUE) ? text + L"\t" + keys : text;
}

} // namespace

CMFCPopupMenuBar::CMFCPopupMenuBar() { m_bMenuMode = TRUE; }

CMFCPopupMenuBar::~CMFCPopupMenuBar() { DestroyWindow(); }

BOOL CMFCPopupMenuBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    // Never part of a frame's layout: the pop-up places it.
    constexpr DWORD placeStyles = CBRS_ALL;
    return CMFCToolBar::CreateEx(pParentWnd, TBSTYLE_FLAT, (dwStyle & ~placeStyles) | WS_CHILD | WS_VISIBLE,
                                 CRect(0, 0, 0, 0), nID);
}

int CMFCPopupMenuBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CMFCToolBar::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    const CMFCPopupMenu* popup = GetParentPopup();
    const CMFCPopupMenu* before = popup ? popup->GetParentPopupMenu() : nullptr;
    const CMFCPopupMenuBar* bar = before ? const_cast<CMFCPopupMenu*>(before)->GetMenuBar() : nullptr;
    m_bShowsMnemonics =
        toolbar::AlwaysShowsMnemonics() || (popup && popup->IsCreatedByKey()) || (bar && bar->ShowsMnemonics());
    ::GetCursorPos(&m_ptOpened);
    return 0;
}

CMFCPopupMenu* CMFCPopupMenuBar::GetParentPopup() const {
    return m_hWnd ? DYNAMIC_DOWNCAST(CMFCPopupMenu, CWnd::FromHandlePermanent(::GetParent(m_hWnd))) : nullptr;
}

BOOL CMFCPopupMenuBar::ImportFromMenu(HMENU hMenu, BOOL) {
    if (!::IsMenu(hMenu)) {
        return FALSE;
    }
    RemoveAllButtons();
    m_uiDefMenuCmd = 0;
    CFrameWnd* const frame = FrameOf(GetCommandTarget());
    const int count = ::GetMenuItemCount(hMenu);
    for (int i = 0; i < count; ++i) {
        toolbar::MenuItem item;
        if (!toolbar::ReadMenuItem(hMenu, i, item)) {
            continue;
        }
        if (item.style & TBBS_SEPARATOR) {
            InsertSeparator();
            continue;
        }
        if (!IsCommandPermitted(item.id)) {
            continue;
        }
        auto button =
            std::make_unique<CMFCToolBarMenuButton>(item.id, item.submenu, -1, WithKeys(item.text, item.id, frame));
        button->m_nStyle = item.style;
        button->m_bIsRadio = item.isRadio;
        button->TakeCommandImage();
        if (item.isDefault) {
            m_uiDefMenuCmd = item.id;
        }
        InsertButton(button.release());
    }
    return TRUE;
}

HMENU CMFCPopupMenuBar::ExportToMenu() const {
    const HMENU menu = ::CreatePopupMenu();
    for (int i = 0; menu && i < GetCount(); ++i) {
        const CMFCToolBarButton* button = GetButton(i);
        const auto* item = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, button);
        toolbar::AppendMenuItem(menu, {button->m_nID, button->m_strText, button->m_nStyle,
                                       item ? item->m_bIsRadio : FALSE, item ? item->CreateMenu() : nullptr});
    }
    if (m_uiDefMenuCmd != 0) {
        ::SetMenuDefaultItem(menu, m_uiDefMenuCmd, FALSE);
    }
    return menu;
}

void CMFCPopupMenuBar::SetButtonStyle(int nIndex, UINT nStyle) { CMFCToolBar::SetButtonStyle(nIndex, nStyle); }

CSize CMFCPopupMenuBar::GetCurrentMenuImageSize() const { return Scaled(GetMenuImageSize()); }

int CMFCPopupMenuBar::GetGutterWidth() const {
    if (m_bDropDownListMode || m_bDisableSideBarInXPMode) {
        return 0;
    }
    return GetCurrentMenuImageSize().cx + 2 * Scaled(gutterMargin);
}

toolbar::MenuRowMetrics CMFCPopupMenuBar::GetRowMetrics() const {
    toolbar::MenuRowMetrics metrics;
    metrics.gutter = GetGutterWidth();
    metrics.image = GetCurrentMenuImageSize();
    metrics.textMargin = Scaled(m_bDropDownListMode ? listTextMargin : textMargin);
    metrics.arrow = m_bDropDownListMode ? 0 : Scaled(arrowColumn);
    return metrics;
}

int CMFCPopupMenuBar::GetRowHeight() const {
    if (m_bDropDownListMode) {
        return afxGlobalData.GetTextHeight();
    }
    return std::max<int>(GetCurrentMenuImageSize().cy + 2 * Scaled(rowPadding),
                         afxGlobalData.GetCharacterHeight() + 2 * Scaled(textPadding));
}

CSize CMFCPopupMenuBar::CalcSize(BOOL) {
    if (m_rows) {
        return CalcRows();
    }
    CClientDC dc(m_hWnd ? this : nullptr);
    CFont* const former = SelectToolBarFont(&dc, TRUE);
    const CSize sizeDefault(0, GetRowHeight());
    CSize all(0, 0);
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto& button = *static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        CSize size(0, 0);
        if (!(button.m_nStyle & TBBS_SEPARATOR)) {
            size = button.OnCalculateSize(&dc, sizeDefault, FALSE);
        } else if (!button.IsHidden()) {
            size.cy = Scaled(separatorHeight);
        }
        button.m_rect.bottom = button.m_rect.top + size.cy;
        all.cx = std::max(all.cx, size.cx);
        all.cy += size.cy;
    }
    if (former) {
        dc.SelectObject(former);
    }
    all.cx = std::max<int>(all.cx, GetGutterWidth() + Scaled(arrowColumn));
    m_nContentHeight = static_cast<int>(all.cy);
    return all;
}

CSize CMFCPopupMenuBar::CalcFixedLayout(BOOL, BOOL) { return CalcSize(TRUE); }

void CMFCPopupMenuBar::AdjustLocations() {
    if (!m_hWnd || m_rows) {
        return;
    }
    CalcSize(TRUE);
    CRect client;
    GetClientRect(&client);
    int top = -m_iOffset;
    for (POSITION position = m_Buttons.GetHeadPosition(); position;) {
        auto& button = *static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        const int height = button.m_rect.Height();
        button.SetRect(CRect(0, top, client.Width(), top + height));
        top += height;
    }
}

void CMFCPopupMenuBar::AdjustLayout() {
    if (CMFCPopupMenu* popup = GetParentPopup()) {
        popup->RecalcLayout();
    }
    AdjustLocations();
    if (m_hWnd) {
        Invalidate();
    }
}

void CMFCPopupMenuBar::AdjustSizeImmediate(BOOL) { AdjustLayout(); }

void CMFCPopupMenuBar::SetOffset(int iOffset) {
    if (m_rows && m_hWnd) {
        CRect client;
        GetClientRect(&client);
        m_iOffset = GetRowGeometry().Snap(iOffset, client.Height());
    } else {
        m_iOffset = iOffset;
    }
    AdjustLocations();
    if (m_hWnd) {
        Invalidate();
    }
}

void CMFCPopupMenuBar::OnFillBackground(CDC*) {}

void CMFCPopupMenuBar::DoPaint(CDC* pDC) {
    CMFCToolBar::DoPaint(pDC);
    if (m_rows) {
        PaintRows(pDC);
    }
}

// Where in its row the line begins is the visual manager's to say.
void CMFCPopupMenuBar::DrawSeparator(CDC* pDC, const CRect& rect, BOOL) {
    CMFCVisualManager::GetInstance()->OnDrawSeparator(pDC, this, rect, FALSE);
}

CWnd* CMFCPopupMenuBar::GetCommandTarget() const {
    const CMFCPopupMenu* popup = GetParentPopup();
    return popup ? popup->GetMessageWnd() : CMFCToolBar::GetCommandTarget();
}

// The pop-up hands the question on to whoever gets the commands. Only a frame disables what nobody handles: another
// window may take its commands without a message map.
void CMFCPopupMenuBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, GetCommandTarget());
    CMFCToolBar::OnUpdateCmdUI(frame ? frame : pTarget, bDisableIfNoHndler && frame && frame->m_bAutoMenuEnable);
}
