// The layout of a ribbon bar: measures its parts, asks the pure layout for their places, and hands them out.
#include "afxribbonbar.h"

#include <unordered_map>

#include "afxglobals.h"
#include "fx/window_dc.h"
#include "ribbon/bar_parts.h"
#include "ribbon/shown_text.h"

namespace {

// In a smaller client area, at 96 DPI, the ribbon would only stand in the way.
constexpr int kMinFrameWidth = 200;
constexpr int kMinFrameHeight = 150;
// In pixels: tabs and panels scroll, so that this is enough for them at every scale.
constexpr int kMostMinFrameWidth = 250;

bool IsTabShown(const CMFCRibbonCategory& category) { return category.IsVisible() != FALSE; }

void PlaceElement(CMFCRibbonBaseElement& element, CDC* pDC, const fx::Rect& rect) {
    element.SetRect(fx::ToRect(rect));
    element.OnAfterChangeRect(pDC);
}

/// Has all of the bar painted. Bars are filled element by element, each of which asks for it: the system is told once
/// until the paint comes, and not at all of a window that nobody sees, which is painted when it is shown.
void AskForPaint(CMFCRibbonBar& bar, RibbonBarParts& parts) {
    if (bar.GetSafeHwnd() == nullptr || parts.isLayingOut) {
        return;
    }
    if (!bar.IsWindowVisible()) {
        parts.waitsForPaint = false;
    } else if (!parts.waitsForPaint) {
        bar.Invalidate(FALSE);
        parts.waitsForPaint = true;
    }
}

} // namespace

// An element may show another text while it draws; a layout for each of them would draw without end.
void CMFCRibbonBar::MarkLayoutDirty() {
    if (m_parts->isDrawing) {
        return;
    }
    m_parts->layoutDirty = true;
    if (m_parts->states == RibbonBarParts::States::Known) {
        m_parts->states = RibbonBarParts::States::Unknown;
    }
    m_parts->keyboard->Forget();
    AskForPaint(*this, *m_parts);
}

void CMFCRibbonBar::EnsureLayout() {
    if (GetSafeHwnd() == nullptr || m_parts->isLayingOut) {
        return;
    }
    CRect client;
    GetClientRect(client);
    const bool isFrameTooSmall = IsFrameTooSmall();
    if (isFrameTooSmall != m_parts->hiddenForSize) {
        m_parts->hiddenForSize = isFrameTooSmall;
        m_parts->layoutDirty = true;
    }
    if (!m_parts->layoutDirty && client.Width() == m_parts->laidOutWidth) {
        return;
    }
    m_parts->isLayingOut = true;
    {
        CClientDC dc(this);
        RibbonFontScope font(dc);
        if (m_parts->layoutDirty) {
            Measure(&dc);
        }
        m_parts->shape.width = client.Width();
        Arrange(&dc);
    }
    m_parts->layoutDirty = false;
    m_parts->isLayingOut = false;
    m_parts->laidOutWidth = client.Width();
    OnLaidOut();
    if (client.Height() != m_parts->arrangement.height) {
        AskFrameForRoom();
    }
}

void CMFCRibbonBar::OnLaidOut() {
    // A tooltip that is shown goes when its tool is placed; an element that stays where it was keeps it.
    const CMFCRibbonBaseElement* const hot = m_parts->pointer.GetHot();
    if (m_parts->tooltipPlace != (hot != nullptr ? hot->GetRect() : CRect(0, 0, 0, 0))) {
        PlaceTooltip();
    }
    m_parts->keyboard->OnLayoutChanged();
}

void CMFCRibbonBar::MarkMeasuresDirty() {
    for (const auto& category : m_parts->categories) {
        category->ForgetMeasures();
    }
    m_parts->layoutDirty = true;
    AskForPaint(*this, *m_parts);
}

void CMFCRibbonBar::RecalcLayout() {
    for (const auto& category : m_parts->categories) {
        category->ForgetMeasures();
    }
    CompleteDefaultQuickAccess();
    MarkLayoutDirty();
    EnsureLayout();
}

void CMFCRibbonBar::ForceRecalcLayout() {
    for (const auto& category : m_parts->categories) {
        CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*> elements;
        category->GetElements(elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            elements[index]->CleanUpSizes();
        }
    }
    RecalcLayout();
    if (GetSafeHwnd() != nullptr) {
        AskFrameForRoom();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
}

// The height follows from what the bar shows, its place from the frame's other bars. While the frame asks for the
// height it lays out anyway.
void CMFCRibbonBar::AskFrameForRoom() {
    CFrameWnd* frame = DYNAMIC_DOWNCAST(CFrameWnd, GetDockSiteFrameWnd());
    if (frame == nullptr || m_parts->isAskingForRoom) {
        return;
    }
    m_parts->isAskingForRoom = true;
    frame->RecalcLayout();
    m_parts->isAskingForRoom = false;
}

CSize CMFCRibbonBar::CalcFixedLayout(BOOL bStretch, BOOL /*bHorz*/) {
    const bool wasAsking = std::exchange(m_parts->isAskingForRoom, true);
    EnsureLayout();
    m_parts->isAskingForRoom = wasAsking;
    CRect parent(0, 0, 0, 0);
    if (CWnd* parentWindow = GetParent()) {
        parentWindow->GetClientRect(parent);
    }
    return {bStretch ? 32767 : static_cast<int>(parent.Width()), m_parts->arrangement.height};
}

// A minimised frame has no size that would say anything.
bool CMFCRibbonBar::IsFrameTooSmall() {
    CWnd* parent = GetParent();
    if (parent == nullptr || parent->IsIconic()) {
        return m_parts->hiddenForSize;
    }
    CRect area;
    parent->GetClientRect(area);
    const RibbonMetrics& metrics = m_parts->metrics;
    return area.Width() < std::min(metrics.Scaled(kMinFrameWidth), kMostMinFrameWidth) ||
           area.Height() < metrics.Scaled(kMinFrameHeight);
}

void CMFCRibbonBar::OnSize(UINT nType, int cx, int cy) {
    CPane::OnSize(nType, cx, cy);
    EnsureLayout();
    // What is drawn depends on the width everywhere: tabs, panels and the ends of the frames around them.
    Invalidate(FALSE);
}

void CMFCRibbonBar::UpdateMetrics() {
    const RibbonMetrics metrics =
        RibbonMetrics::FromFont(afxGlobalData.GetCharacterHeight(), afxGlobalData.GetRibbonImageScale());
    if (metrics.textHeight == m_parts->metrics.textHeight && metrics.scale == m_parts->metrics.scale) {
        return;
    }
    m_parts->metrics = metrics;
    for (const auto& category : m_parts->categories) {
        category->ForgetMeasures();
    }
}

void CMFCRibbonBar::Measure(CDC* pDC) {
    UpdateMetrics();
    const RibbonMetrics& metrics = m_parts->metrics;
    RibbonBarShape& shape = m_parts->shape;
    shape.replacesCaption = m_parts->replacesCaption;
    shape.minimized = m_parts->minimized;
    shape.captionOnly = m_parts->hiddenForSize;
    shape.tabsOnlyButton = m_parts->windows7Look;
    MeasureCaption();
    shape.quickAccessOnTop = m_parts->quickAccessOnTop;
    shape.quickAccessWidth = 0;
    if (!m_parts->quickAccess.IsEmpty() || !m_parts->quickAccessDefault.GetCommands().IsEmpty()) {
        shape.quickAccessWidth = m_parts->quickAccess.GetRegularSize(pDC).cx;
    }
    shape.applicationButton = {};
    if (m_parts->applicationButton != nullptr && m_parts->applicationButton->IsVisible()) {
        shape.applicationButton = {metrics.Scaled(m_parts->applicationButtonSize.cx),
                                   metrics.Scaled(m_parts->applicationButtonSize.cy)};
    }
    MeasureTabs(pDC);
    shape.tabElementWidths.clear();
    for (const auto& element : m_parts->tabElements) {
        element->SetInitialMode(TRUE);
        element->SetCompactMode(TRUE);
        element->OnCalcTextSize(pDC);
        shape.tabElementWidths.push_back(element->IsVisible() ? static_cast<int>(element->GetSize(pDC).cx) : 0);
    }
}

// The tabs of a context are together at least as wide as its caption above them.
void CMFCRibbonBar::MeasureTabs(CDC* pDC) {
    std::vector<int>& widths = m_parts->shape.tabWidths;
    widths.clear();
    std::unordered_map<UINT, std::vector<size_t>> tabsOfContext;
    for (const auto& category : m_parts->categories) {
        if (IsTabShown(*category)) {
            tabsOfContext[category->GetContextID()].push_back(widths.size());
            widths.push_back(category->GetTabElement().GetRegularSize(pDC).cx);
        }
    }
    for (const auto& context : m_parts->contexts) {
        const std::vector<size_t>& tabs = tabsOfContext[context.id];
        const int caption = pDC->GetTextExtent(ribbon::PlainText(context.name)).cx;
        int missing = caption + 2 * m_parts->metrics.tabPaddingX;
        for (const size_t tab : tabs) {
            missing -= widths[tab] + m_parts->metrics.tabGap;
        }
        for (size_t index = 0; index < tabs.size() && missing > 0; ++index) {
            const int share = missing / static_cast<int>(tabs.size() - index);
            widths[tabs[index]] += share;
            missing -= share;
        }
    }
}

void CMFCRibbonBar::Arrange(CDC* pDC) {
    m_parts->arrangement = ArrangeBar(m_parts->shape, m_parts->metrics);
    const RibbonBarArrangement& places = m_parts->arrangement;
    m_rectCaption = fx::ToRect(places.caption);
    if (m_parts->applicationButton != nullptr) {
        PlaceElement(*m_parts->applicationButton, pDC, places.applicationButton);
    }
    PlaceElement(m_parts->quickAccess, pDC, places.quickAccess);
    for (size_t index = 0; index < m_parts->tabElements.size(); ++index) {
        const bool shown = m_parts->tabElements[index]->IsVisible() != FALSE;
        PlaceElement(*m_parts->tabElements[index], pDC, shown ? places.tabElements[index] : fx::Rect{});
    }
    size_t tab = 0;
    for (const auto& category : m_parts->categories) {
        if (!IsTabShown(*category)) {
            PlaceElement(category->GetTabElement(), pDC, {});
            continue;
        }
        category->GetTabElement().SetTruncated(places.tabs[tab].Width() < m_parts->shape.tabWidths[tab]);
        PlaceElement(category->GetTabElement(), pDC, places.tabs[tab]);
        ++tab;
    }
    ArrangeContextCaptions();
    ArrangeCaptionButtons(pDC);
    PlaceElement(m_parts->tabScrollLeft, pDC, places.tabScrollLeft);
    PlaceElement(m_parts->tabScrollRight, pDC, places.tabScrollRight);
    const bool tabsScroll = !places.tabScrollLeft.IsEmpty() || !places.tabScrollRight.IsEmpty();
    if (!tabsScroll && !m_parts->shape.captionOnly) {
        m_parts->shape.firstTab = 0;
    }
    if (CMFCRibbonCategory* shown = m_parts->ShownCategory()) {
        shown->PlaceAt(fx::ToRect(places.category), pDC);
    }
}

// A context's caption lies above its tabs as far as the row above them has room beside the quick access toolbar.
void CMFCRibbonBar::ArrangeContextCaptions() {
    const RibbonBarArrangement& places = m_parts->arrangement;
    // Below the category the toolbar takes nothing of the row.
    const int toolbarRight = m_parts->quickAccessOnTop ? places.quickAccess.right : 0;
    const int left = std::max({toolbarRight, places.applicationButton.right, places.captionIcon.right});
    const int right = places.captionText.IsEmpty() ? m_parts->shape.width : places.captionText.right;
    for (const auto& context : m_parts->contexts) {
        CRect rect(0, 0, 0, 0);
        for (const auto& category : m_parts->categories) {
            if (category->GetContextID() == context.id && !category->GetTabRect().IsRectEmpty()) {
                CRect above = category->GetTabRect();
                above.bottom = above.top;
                above.top = 0;
                rect.UnionRect(rect, above);
            }
        }
        rect.left = std::max<LONG>(rect.left, left);
        rect.right = std::min<LONG>(rect.right, right);
        context.caption->SetRightTabX(rect.IsRectEmpty() ? -1 : rect.right);
        context.caption->SetRect(rect.IsRectEmpty() ? CRect(0, 0, 0, 0) : rect);
    }
}
