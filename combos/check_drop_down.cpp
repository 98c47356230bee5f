#include "check_drop_down.h"

#include "combos/mark_geometry.h"
#include "ribbon_check_combo.h"
#include "ribbon_multi_combo.h"

#include <afxglobals.h>
#include <fx/scoped_change.h>
#include <fx/window_guard.h>

#include <utility>

IMPLEMENT_DYNCREATE(CMFCPopupMenuBarEx, CMFCPopupMenuBar)
IMPLEMENT_DYNCREATE(CMFCCheckDropDown, CMFCDropDownListBox)

BEGIN_MESSAGE_MAP(CMFCPopupMenuBarEx, CMFCPopupMenuBar)
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CMFCCheckDropDown, CMFCDropDownListBox)
ON_WM_SIZE()
END_MESSAGE_MAP()

namespace {

constexpr bool ordinaryClick = false;
constexpr bool exclusiveClick = true;

} // namespace

// ---- the rows

// By pointer to none that is gone: a program may end with lists open.
std::vector<CMFCPopupMenuBarEx*>& CMFCPopupMenuBarEx::Bars() {
    static auto& bars = *new std::vector<CMFCPopupMenuBarEx*>;
    return bars;
}

CMFCPopupMenuBarEx::CMFCPopupMenuBarEx() { Bars().push_back(this); }

CMFCPopupMenuBarEx::~CMFCPopupMenuBarEx() { std::erase(Bars(), this); }

CRibbonNotifyCombox::~CRibbonNotifyCombox() {
    for (CMFCPopupMenuBarEx* const bar : CMFCPopupMenuBarEx::Bars()) {
        if (bar->m_notifyChild == this) {
            bar->m_notifyChild = nullptr;
        }
    }
}

// The rows of a list are as high as a line of text. A bar that shows a menu has higher ones, and still the line counts.
int CMFCPopupMenuBarEx::ZoneAt(CPoint point) const {
    return marks::ZoneAt(m_zones, point.x, point.y, afxGlobalData.GetTextHeight());
}

void CMFCPopupMenuBarEx::OnLButtonDown(UINT flags, CPoint point) {
    // Neither tracked nor closed: what a mark does comes with the release.
    if (m_notifyChild && HitTest(point) >= 0 && ZoneAt(point) >= 0) {
        m_isMarkPressed = true;
        return;
    }
    CMFCPopupMenuBar::OnLButtonDown(flags, point);
}

// A press in a zone was kept back: a row that is chosen all the same gets it now.
void CMFCPopupMenuBarEx::ReleaseOnRow(UINT flags, CPoint point) {
    if (std::exchange(m_isMarkPressed, false)) {
        const fx::WindowGuard guard(this);
        CMFCPopupMenuBar::OnLButtonDown(flags, point);
        if (guard.IsGone()) {
            return;
        }
    }
    CMFCPopupMenuBar::OnLButtonUp(flags, point);
}

void CMFCPopupMenuBarEx::RedrawRow(int row) {
    CRect rect(0, 0, 0, 0);
    GetItemRect(row, rect);
    InvalidateRect(rect);
}

// In the next three the host may have closed the list, or destroyed all around it, when the notify child comes back.

void CMFCPopupMenuBarEx::OnLButtonUp(UINT flags, CPoint point) {
    const int row = HitTest(point);
    const int zone = ZoneAt(point);
    const fx::WindowGuard guard(this);
    if (m_notifyChild && row >= 0 && zone >= 0) {
        const bool isDone = m_notifyChild->NotifyChangeData(row, zone, ordinaryClick);
        if (guard.IsGone()) {
            return;
        }
        if (isDone) {
            m_isMarkPressed = false;
            RedrawRow(row);
            return;
        }
    }
    ReleaseOnRow(flags, point);
}

// The row is not looked at: a double click in the column below the last row counts, too.
void CMFCPopupMenuBarEx::OnLButtonDblClk(UINT flags, CPoint point) {
    const int zone = ZoneAt(point);
    const fx::WindowGuard guard(this);
    if (m_notifyChild && zone >= 0) {
        const bool isDone = m_notifyChild->NotifyChangeData(HitTest(point), zone, exclusiveClick);
        if (guard.IsGone()) {
            return;
        }
        if (isDone) {
            Invalidate();
            return;
        }
    }
    CMFCPopupMenuBar::OnLButtonDblClk(flags, point);
}

// ---- the list

CMFCCheckDropDown::CMFCCheckDropDown(CMFCRibbonComboBox* combo) : CMFCDropDownListBox(combo) {
    m_rows.SetNotifyChild(dynamic_cast<CRibbonNotifyCombox*>(combo));
}

void CMFCCheckDropDown::RecalcLayout(BOOL notify) {
    const fx::ScopedChange layout(m_isInLayout, true);
    CMFCDropDownListBox::RecalcLayout(notify);
}

void CMFCCheckDropDown::OnSize(UINT type, int cx, int cy) {
    CMFCDropDownListBox::OnSize(type, cx, cy);
    // The height in which the list opens, or which it takes for another item, is no wish of the user's.
    if (!IsShown() || m_isInLayout) {
        return;
    }
    CMFCRibbonBaseElement* const combo = GetParentRibbonElement();
    if (auto* const check = DYNAMIC_DOWNCAST(CMFCRibbonCheckComb, combo)) {
        check->SetStaticDropDownHeight(cy);
    } else if (auto* const multi = DYNAMIC_DOWNCAST(CMFCRibbonMultiCombo, combo)) {
        multi->SetStaticDropDownHeight(cy);
    }
}
