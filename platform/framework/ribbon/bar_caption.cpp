// The row of the bar that stands for the frame's caption, and the window buttons in it and in the tab row.
#include "afxribbonbar.h"

#include <algorithm>
#include <array>

#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/frame.h"
#include "ribbon/bar_parts.h"

namespace {

constexpr std::array<UINT, 3> kWindowCommands{SC_MINIMIZE, SC_MAXIMIZE, SC_CLOSE};

// A window without one of minimise and maximise shows it greyed, without both shows neither.
bool HasButton(UINT command, DWORD style) {
    return (style & WS_SYSMENU) != 0 && (command == SC_CLOSE || (style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0);
}

bool IsButtonEnabled(UINT command, DWORD style, HWND window) {
    if (command == SC_MINIMIZE) {
        return (style & WS_MINIMIZEBOX) != 0;
    }
    if (command == SC_MAXIMIZE) {
        return (style & WS_MAXIMIZEBOX) != 0;
    }
    // A program disables closing in the system menu.
    const HMENU menu = ::GetSystemMenu(window, FALSE);
    const UINT state = menu != nullptr ? ::GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) : 0;
    return state == static_cast<UINT>(-1) || (state & (MF_GRAYED | MF_DISABLED)) == 0;
}

HICON SmallIconOf(HWND window) {
    for (const WPARAM kind : {ICON_SMALL, ICON_BIG}) {
        if (const LRESULT icon = ::SendMessageW(window, WM_GETICON, kind, 0)) {
            return reinterpret_cast<HICON>(icon);
        }
    }
    for (const int index : {GCLP_HICONSM, GCLP_HICON}) {
        if (const ULONG_PTR icon = ::GetClassLongPtrW(window, index)) {
            return reinterpret_cast<HICON>(icon);
        }
    }
    return nullptr;
}

} // namespace

void CMFCRibbonBar::MeasureCaption() {
    RibbonBarShape& shape = m_parts->shape;
    const HWND frame = ::GetParent(m_hWnd);
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(frame, GWL_STYLE));
    auto& buttons = m_parts->captionButtons;
    if (buttons.empty() && m_parts->replacesCaption) {
        for (const UINT command : kWindowCommands) {
            buttons.push_back(std::make_unique<CMFCRibbonCaptionButton>(command, nullptr));
            buttons.back()->SetParentRibbonBar(this);
        }
    }
    shape.captionButtons = 0;
    for (const auto& button : buttons) {
        const bool isShown = m_parts->replacesCaption && HasButton(button->GetCommand(), style);
        button->SetVisible(isShown);
        button->SetDisabled(!IsButtonEnabled(button->GetCommand(), style, frame));
        shape.captionButtons += isShown ? 1 : 0;
    }
    shape.childButtons = static_cast<int>(m_parts->childButtons.size());
    shape.hasIcon = m_parts->replacesCaption && (style & WS_SYSMENU) != 0 && SmallIconOf(frame) != nullptr;
}

void CMFCRibbonBar::ArrangeCaptionButtons(CDC* pDC) {
    const RibbonBarArrangement& places = m_parts->arrangement;
    const auto place = [pDC](CMFCRibbonBaseElement& element, const fx::Rect& rect) {
        element.SetRect(fx::ToRect(rect));
        element.OnAfterChangeRect(pDC);
    };
    size_t shown = 0;
    for (const auto& button : m_parts->captionButtons) {
        const bool hasPlace = button->IsVisible() && shown < places.captionButtons.size();
        place(*button, hasPlace ? places.captionButtons[shown++] : fx::Rect{});
    }
    for (size_t index = 0; index < m_parts->childButtons.size(); ++index) {
        place(*m_parts->childButtons[index],
              index < places.childButtons.size() ? places.childButtons[index] : fx::Rect{});
    }
}

CMFCRibbonBaseElement* CMFCRibbonBar::HitTestCaptionElements(CPoint point) {
    for (const auto* buttons : {&m_parts->captionButtons, &m_parts->childButtons}) {
        for (const auto& button : *buttons) {
            if (CMFCRibbonBaseElement* hit = button->HitTest(point)) {
                return hit;
            }
        }
    }
    for (CRibbonCategoryScroll* button : {&m_parts->tabScrollLeft, &m_parts->tabScrollRight}) {
        if (button->GetRect().PtInRect(point)) {
            return button;
        }
    }
    for (const auto& context : m_parts->contexts) {
        if (context.caption->GetRect().PtInRect(point)) {
            return context.caption.get();
        }
    }
    return nullptr;
}

LRESULT CMFCRibbonBar::HitTestCaption(CPoint point) {
    EnsureLayout();
    if (!m_rectCaption.PtInRect(point) || HitTest(point) != nullptr) {
        return HTCLIENT;
    }
    return GetCaptionIconRect().PtInRect(point) ? HTSYSMENU : HTCAPTION;
}

CRect CMFCRibbonBar::GetCaptionIconRect() const { return fx::ToRect(m_parts->arrangement.captionIcon); }

// The frame behind the bar moves, opens its system menu and so on: what the system does with a caption.
LRESULT CMFCRibbonBar::OnNcHitTest(CPoint point) {
    CPoint client = point;
    ScreenToClient(&client);
    return HitTestCaption(client) == HTCLIENT ? CPane::OnNcHitTest(point) : HTTRANSPARENT;
}

void CMFCRibbonBar::SetCaptionActive(bool isActive) {
    if (std::exchange(m_parts->captionActive, isActive) != isActive) {
        RedrawCaption();
    }
}

bool CMFCRibbonBar::IsCaptionActive() const { return m_parts->captionActive; }

void CMFCRibbonBar::RedrawCaption() {
    if (GetSafeHwnd() != nullptr && !m_rectCaption.IsRectEmpty()) {
        InvalidateRect(m_rectCaption, FALSE);
    }
}

void CMFCRibbonBar::DrawCaption(CDC* pDC) {
    if (m_rectCaption.IsRectEmpty() || !pDC->RectVisible(m_rectCaption)) {
        return;
    }
    CRect text = fx::ToRect(m_parts->arrangement.captionText);
    for (const auto& context : m_parts->contexts) {
        const CRect taken = context.caption->GetRect();
        if (!taken.IsRectEmpty()) {
            text = fx::ToRect(WiderFreePart(fx::FromRect(text), fx::FromRect(taken)));
        }
    }
    text.DeflateRect(m_parts->metrics.quickAccessGap, 0);
    CMFCVisualManager::GetInstance()->OnDrawRibbonCaption(pDC, this, m_rectCaption, text);
    const CRect icon = GetCaptionIconRect();
    if (!icon.IsRectEmpty()) {
        const fx::PictureScope place(*pDC, icon);
        ::DrawIconEx(*pDC, place.Corner().x, place.Corner().y, SmallIconOf(::GetParent(m_hWnd)), icon.Width(),
                     icon.Height(), 0, nullptr, DI_NORMAL);
    }
}

// ---- maximised MDI child

void CMFCRibbonBar::SetActiveMDIChild(CWnd* pWnd) { m_parts->activeChild = pWnd->GetSafeHwnd(); }

void CMFCRibbonBar::SetMaximizeMode(BOOL bMax, CWnd* pWnd) {
    const HWND child = !bMax ? nullptr : pWnd != nullptr ? pWnd->GetSafeHwnd() : m_parts->activeChild;
    auto& buttons = m_parts->childButtons;
    const HWND former = buttons.empty() ? nullptr : buttons.front()->GetMDIChild();
    if (child == former) {
        return;
    }
    const auto gone = std::exchange(buttons, {});
    if (child != nullptr) {
        const auto style = static_cast<DWORD>(::GetWindowLongPtrW(child, GWL_STYLE));
        for (const UINT command : kWindowCommands) {
            if (!HasButton(command, style)) {
                continue;
            }
            buttons.push_back(std::make_unique<CMFCRibbonCaptionButton>(command, child));
            buttons.back()->SetParentRibbonBar(this);
            buttons.back()->SetDisabled(!IsButtonEnabled(command, style, child));
        }
    }
    MarkLayoutDirty();
    RedrawCaption();
}

void CMFCRibbonBar::UpdateMaximizeMode() {
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, GetParent());
    if (frame == nullptr || frame->GetMDIClient() == nullptr) {
        return;
    }
    CFrameWnd* const active = frame->GetActiveFrame();
    CFrameWnd* const child = active != frame ? active : nullptr;
    SetActiveMDIChild(child);
    SetMaximizeMode(child != nullptr && child->IsZoomed(), child);
}

// ---- tabs that have no room

void CMFCRibbonBar::ScrollTabs(BOOL bLeft) {
    const int first = m_parts->arrangement.firstTab;
    m_parts->shape.firstTab = std::max(first + (bLeft ? -1 : 1), 0);
    MarkLayoutDirty();
    EnsureLayout();
    m_parts->shape.firstTab = m_parts->arrangement.firstTab;
}
