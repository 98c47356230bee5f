// What the extended ribbon bar does with the mouse: clicks on tabs, the host's context menu, tooltips.
#include "ribbon_bar_ex.h"

#include "menu_id_mgr.h"
#include "ribbon_category_ex.h"

#include "commands/sent_commands.h"

#include <afxcontextmenumanager.h>
#include <afxribbonpanelmenu.h>
#include <afxtooltipctrl.h>
#include <fx/window_guard.h>

#include <varnhold/language.h>

#include <utility>

namespace {

/// What a command hook gets when a context menu was shown on the element.
constexpr int kContextMenuShown = -11;
/// The framework's string that asks to customise the quick access toolbar. Here the button changes the skin.
constexpr UINT kCustomizeText = 17096;
constexpr wchar_t kChangeSkinText[] = L"更改皮肤";

/// Posts a command, where it can be sent, without notification code and control.
void PostCommand(HWND receiver, UINT id) {
    if (CanBeSent(id)) {
        ::PostMessageW(receiver, WM_COMMAND, MAKEWPARAM(id, 0), 0);
    }
}

CPoint CursorOn(const CWnd& window) {
    CPoint point(-1, -1);
    ::GetCursorPos(&point);
    window.ScreenToClient(&point);
    return point;
}

/// The element of the ribbon pop-up that is open, where the cursor is on one.
CMFCRibbonBaseElement* ElementOfPopup() {
    CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
    auto* const bar = menu != nullptr ? DYNAMIC_DOWNCAST(CMFCRibbonPanelMenuBar, menu->GetMenuBar()) : nullptr;
    return bar != nullptr ? bar->HitTest(CursorOn(*bar)) : nullptr;
}

/// The category whose tab an element of the bar is; null for any other element. A copy on the quick access toolbar has
/// its original's category, and a command of its own: only the tab lies where the category says that its tab does.
const CMFCRibbonCategoryEx* CategoryOfTab(const CMFCRibbonBaseElement& element) {
    const auto* const category = DYNAMIC_DOWNCAST(CMFCRibbonCategoryEx, element.GetParentCategory());
    return category != nullptr && category->GetTabRect() == element.GetRect() ? category : nullptr;
}

/// The bar's own tooltip, where the notification comes from one.
CToolTipCtrl* TooltipOf(const CWnd& bar, const NMHDR& notification) {
    auto* const control = DYNAMIC_DOWNCAST(CToolTipCtrl, CWnd::FromHandlePermanent(notification.hwndFrom));
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    const bool isOwn =
        control != nullptr &&
        ::SendMessageW(control->GetSafeHwnd(), TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)) != 0 &&
        tool.hwnd == bar.GetSafeHwnd();
    return isOwn ? control : nullptr;
}

} // namespace

// ---- clicks

void CMFCRibbonBarEx::OnLButtonDown(UINT nFlags, CPoint point) {
    const CMFCRibbonBaseElement* const hit = HitTest(point);
    const CMFCRibbonCategoryEx* const category = hit != nullptr ? CategoryOfTab(*hit) : nullptr;
    if (category == nullptr) {
        CMFCRibbonBar2::OnLButtonDown(nFlags, point);
        return;
    }
    const CWnd* const owner = GetOwner(); // the parent where none was set
    PostCommand(owner->GetSafeHwnd(), category->GetID());
}

CMFCRibbonBaseElement* CMFCRibbonBarEx::GetCursonOn(int mustBeEnabled) {
    const auto fits = [mustBeEnabled](const CMFCRibbonBaseElement* element) {
        return element != nullptr && (mustBeEnabled == 0 || !element->IsDisabled());
    };
    if (CMFCRibbonBaseElement* const inPopup = ElementOfPopup(); fits(inPopup)) {
        return inPopup;
    }
    if (GetSafeHwnd() == nullptr) {
        return nullptr;
    }
    CMFCRibbonBaseElement* const onBar = HitTest(CursorOn(*this), TRUE);
    return fits(onBar) ? onBar : nullptr;
}

// ---- context menu

BOOL CMFCRibbonBarEx::OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    CWnd* const mainWindow = AfxGetMainWnd();
    if (!IsContextMenuEnabled() || afxContextMenuManager == nullptr || !::IsMenu(m_hContextMenu) ||
        mainWindow == nullptr) {
        return FALSE;
    }
    const fx::WindowGuard bar(this);
    const fx::WindowGuard receiver(mainWindow);
    m_menuSubject = pWnd == this ? pHit : nullptr;
    const UINT chosen = afxContextMenuManager->TrackPopupMenu(m_hContextMenu, x, y, mainWindow);
    if (receiver.IsAlive()) {
        PostCommand(receiver.Handle(), chosen);
    }
    // Everything may have gone while the menu was open, and goes perhaps with the command.
    if (bar.IsGone() || m_menuSubject == nullptr) {
        return FALSE;
    }
    m_menuSubject->OnMenuCommandHook(kContextMenuShown);
    if (bar.IsAlive() && m_menuSubject != nullptr) {
        m_menuSubject->NotifyCommand(FALSE);
    }
    if (bar.IsAlive() && m_menuSubject != nullptr) {
        std::exchange(m_menuSubject, nullptr)->PostMenuCommand(static_cast<UINT>(kContextMenuShown));
    }
    return FALSE;
}

void CMFCRibbonBarEx::OnPaneContextMenu(CWnd* pParentFrame, CPoint point) {
    if (point == CPoint(-1, -1)) {
        CMFCRibbonBaseElement* const focused = GetFocused();
        if (focused == nullptr) {
            return;
        }
        const fx::WindowGuard frame(pParentFrame);
        CRect rect = focused->GetRect();
        ClientToScreen(rect);
        OnShowRibbonContextMenu(this, rect.left, rect.bottom, focused);
        if (frame.IsAlive()) {
            pParentFrame->SetFocus();
        }
        return;
    }
    DeactivateKeyboardFocus(FALSE);
    CPoint client = point;
    ScreenToClient(&client);
    CRect caption;
    GetClientRect(caption);
    caption.bottom = GetCaptionHeight();
    if (HitTest(client, TRUE, TRUE) == nullptr && caption.PtInRect(client)) {
        return;
    }
    CMFCRibbonBar2::OnPaneContextMenu(pParentFrame, point);
}

void CMFCRibbonBarEx::OnElementDestroyed(CMFCRibbonBaseElement* pElement) {
    if (m_menuSubject == pElement) {
        m_menuSubject = nullptr;
    }
    CMFCRibbonBar2::OnElementDestroyed(pElement);
}

// ---- tooltips

CString CMFCRibbonBarEx::TipOf(CMFCRibbonBaseElement& element) const {
    CString tip = element.GetToolTipText();
    CString customize;
    if (!tip.IsEmpty() && customize.LoadString(kCustomizeText) && tip == customize) {
        element.SetToolTipText(kChangeSkinText);
        tip = kChangeSkinText;
    }
    std::wstring command;
    if (!tip.IsEmpty() && CMenuIdMgr::Ins()->GetCmd(static_cast<int>(element.GetID()), command)) {
        tip += CMultiLanguageMgr::translation(L"Colon", "Common", -1).c_str();
        tip += command.c_str();
    }
    return tip;
}

BOOL CMFCRibbonBarEx::OnNeedTipText(UINT /*id*/, NMHDR* pNMH, LRESULT* pResult) {
    *pResult = 0;
    if (!IsToolTipEnabled()) {
        return TRUE;
    }
    CToolTipCtrl* const control = TooltipOf(*this, *pNMH);
    if (control == nullptr || CMFCPopupMenu::GetActiveMenu() != nullptr) {
        return FALSE;
    }
    CMFCRibbonBaseElement* const element = HitTest(CursorOn(*this), TRUE);
    const CString tip = element != nullptr ? TipOf(*element) : CString();
    if (tip.IsEmpty()) {
        return TRUE;
    }
    m_tipText = tip;
    RestoreTooltipColors();
    if (auto* const tooltip = DYNAMIC_DOWNCAST(CMFCToolTipCtrl, control); tooltip != nullptr) {
        tooltip->SetHotRibbonButton(DYNAMIC_DOWNCAST(CMFCRibbonButton, element));
        tooltip->SetDescription(IsToolTipDescrEnabled() ? element->GetDescription() : CString());
    }
    reinterpret_cast<NMTTDISPINFO*>(pNMH)->lpszText = const_cast<LPTSTR>(m_tipText.GetString());
    return TRUE;
}
