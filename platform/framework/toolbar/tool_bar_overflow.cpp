// The button of a docked toolbar that has too little room: it opens a menu of the buttons that are left out.
#include "afxtoolbar.h"

#include "afxpopupmenu.h"
#include "afxtoolbarmenubutton.h"
#include "afxvisualmanager.h"
#include "fx/window_guard.h"
#include "toolbar/chevron.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/menu_source.h"
#include "toolbar/metrics.h"

#include <memory>
#include <utility>

using toolbar::Scaled;

namespace {

// At 96 DPI.
constexpr int kChevronSize = 2;
constexpr int kArrowMargin = 4;

/// A click on the button that opened the menu closes it.
class OverflowMenu : public CMFCPopupMenu {
public:
    explicit OverflowMenu(CMFCToolBar& bar) : m_bar(bar.m_hWnd) {}

    CWnd* GetParentArea(CRect& rectParentBtn) override {
        const auto* const bar = CMFCToolBar::FromHandlePermanent(m_bar);
        rectParentBtn = bar != nullptr ? bar->GetOverflowRect() : CRect(0, 0, 0, 0);
        return CMFCToolBar::FromHandlePermanent(m_bar);
    }

private:
    HWND m_bar; ///< may be destroyed while the menu is open
};

} // namespace

void CMFCToolBar::GetMinSize(CSize& size) const {
    const int gripper = (GetPaneStyle() & CBRS_GRIPPER) != 0 ? toolbar::GripperSize : 0;
    const int smallest = Scaled(gripper + toolbar::OverflowSize);
    size = CSize(smallest, smallest);
}

void CMFCToolBar::CutOverflow(BOOL bHorz) {
    const CRect formerRect = std::exchange(m_rectOverflow, CRect(0, 0, 0, 0));
    m_iFirstOverflow = -1;
    CRect client;
    GetClientRect(&client);
    const auto endOf = [bHorz](const CRect& rect) { return bHorz ? rect.right : rect.bottom; };
    LONG end = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position != nullptr;) {
        end = std::max(end, endOf(static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position))->m_rect));
    }
    const bool isAlwaysThere = HasCustomizeMenu();
    if (GetParentDockSite() == nullptr || (end <= endOf(client) && !isAlwaysThere)) {
        return;
    }
    m_rectOverflow = client;
    (bHorz ? m_rectOverflow.left : m_rectOverflow.top) = std::max(0L, endOf(client) - Scaled(toolbar::OverflowSize));
    const LONG room = bHorz ? m_rectOverflow.left : m_rectOverflow.top;
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position != nullptr; ++index) {
        auto& button = *static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (m_iFirstOverflow < 0 && endOf(button.m_rect) > room) {
            m_iFirstOverflow = index;
        }
        if (m_iFirstOverflow >= 0) {
            button.SetRect(CRect(0, 0, 0, 0));
        }
    }
    if (m_rectOverflow != formerRect) {
        InvalidateRect(formerRect);
        InvalidateRect(m_rectOverflow);
    }
}

void CMFCToolBar::DrawOverflow(CDC* pDC, BOOL bHorz) {
    if (m_rectOverflow.IsRectEmpty()) {
        return;
    }
    CMFCToolBarButton face;
    const auto state = m_bOverflowHot ? CMFCVisualManager::ButtonsIsHighlighted : CMFCVisualManager::ButtonsIsRegular;
    if (m_bOverflowHot) {
        CMFCVisualManager::GetInstance()->OnFillButtonInterior(pDC, &face, m_rectOverflow, state);
        CMFCVisualManager::GetInstance()->OnDrawButtonBorder(pDC, &face, m_rectOverflow, state);
    }
    const COLORREF color = CMFCVisualManager::GetInstance()->GetToolbarButtonTextColor(&face, state);
    const CPoint middle = m_rectOverflow.CenterPoint();
    if (m_iFirstOverflow >= 0) {
        const auto direction = bHorz ? toolbar::ChevronTo::Right : toolbar::ChevronTo::Bottom;
        toolbar::DrawChevron(*pDC, middle, Scaled(kChevronSize), direction, color);
    }
    if (HasCustomizeMenu()) {
        const int half = Scaled(kChevronSize);
        const int bottom = bHorz ? m_rectOverflow.bottom - Scaled(kArrowMargin) : middle.y;
        for (int step = 0; step <= half; ++step) {
            pDC->FillSolidRect(middle.x - half + step, bottom - half + step, 2 * (half - step) + 1, 1, color);
        }
    }
}

BOOL CMFCToolBar::OnOverflowMouse(UINT nMessage, CPoint point) {
    const BOOL isOver = nMessage != WM_MOUSELEAVE && m_rectOverflow.PtInRect(point);
    if (isOver != m_bOverflowHot) {
        m_bOverflowHot = isOver;
        InvalidateRect(m_rectOverflow);
    }
    return isOver && nMessage == WM_LBUTTONDOWN && OpenOverflowMenu();
}

BOOL CMFCToolBar::OpenOverflowMenu() {
    if (m_rectOverflow.IsRectEmpty()) {
        return FALSE;
    }
    std::vector<std::unique_ptr<CMFCToolBarMenuButton>> rows;
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position != nullptr; ++index) {
        const auto& button = *static_cast<const CMFCToolBarButton*>(m_Buttons.GetNext(position));
        if (m_iFirstOverflow >= 0 && index >= m_iFirstOverflow && !button.IsHidden() && button.IsVisible()) {
            const bool isSeparator = (button.m_nStyle & TBBS_SEPARATOR) != 0;
            rows.push_back(isSeparator ? nullptr : toolbar::MenuItemFor(button));
        }
    }
    // Fields have no text of their own; the host, who knows what they are called, may end the bar when it is asked.
    const fx::WindowGuard guard(this);
    for (const auto& row : rows) {
        CString name;
        if (row != nullptr && row->m_strText.IsEmpty() && OnUserToolTip(row.get(), name) && guard.IsAlive()) {
            row->m_strText = name;
        }
        if (guard.IsGone()) {
            return FALSE;
        }
    }
    CRect place = m_rectOverflow;
    ClientToScreen(&place);
    auto* const menu = new OverflowMenu(*this);
    // Below the button from where lines begin on, or beside it where they end.
    place.NormalizeRect();
    const bool isMirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    const bool isAtLeft = (IsHorizontal() != FALSE) != isMirrored;
    if (!menu->Create(this, isAtLeft ? place.left : place.right, IsHorizontal() ? place.bottom : place.top, nullptr)) {
        return FALSE;
    }
    menu->SetMessageWnd(GetCommandTarget());
    for (const auto& row : rows) {
        if (row != nullptr) {
            menu->InsertItem(*row);
        } else if (menu->GetMenuItemCount() > 0) {
            menu->InsertSeparator();
        }
    }
    InsertCustomizeRows(*menu);
    menu->RecalcLayout();
    return TRUE;
}

void CMFCToolBar::InsertCustomizeRows(CMFCPopupMenu& menu) {
    if (!m_bCustomizeButton) {
        return;
    }
    if (menu.GetMenuItemCount() > 0) {
        menu.InsertSeparator();
    }
    if (m_bQuickCustomize) {
        KeepOriginalButtons();
        menu.InsertItem(*toolbar::MakeChooseButtonsRow(*this));
    }
    if (HasCustomizeMenu()) {
        menu.InsertItem(CMFCToolBarMenuButton(static_cast<UINT>(m_iCustomizeCmd), nullptr, -1, m_strCustomizeText));
    }
}
