// Layout and drawing of what a ribbon pop-up shows.
#include "afxribbonpanelmenu.h"

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonbuttonsgroup.h"
#include "afxRibbonEdit.h"
#include "afxRibbonLabel.h"
#include "afxRibbonMainPanel.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "popups/strip_draw.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_metrics.h"
#include "ribbon/paint_buffer.h"
#include "ribbon/panel_menu_parts.h"

namespace {

/// What draws itself as in the ribbon stands in the text column; buttons, headings and lines take the whole row.
bool StandsInTextColumn(CMFCRibbonBaseElement& element) {
    if (DYNAMIC_DOWNCAST(CMFCRibbonLabel, &element) != nullptr || element.IsSeparator()) {
        return false;
    }
    return DYNAMIC_DOWNCAST(CMFCRibbonEdit, &element) != nullptr ||
           DYNAMIC_DOWNCAST(CMFCRibbonButton, &element) == nullptr;
}

RibbonMetrics CurrentRibbonMetrics() {
    return RibbonMetrics::FromFont(afxGlobalData.GetCharacterHeight(), afxGlobalData.GetRibbonImageScale());
}

} // namespace

void CMFCRibbonPanelMenuBar::MarkLayoutDirty() {
    if (m_parts->isLayingOut) {
        return;
    }
    m_parts->layoutDirty = true;
    if (GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

// A change while the pop-up is open changes its size as well.
void CMFCRibbonPanelMenuBar::EnsureLayout() {
    if (!m_parts->layoutDirty || m_parts->isLayingOut || GetSafeHwnd() == nullptr || !m_parts->isLent) {
        return;
    }
    if (CMFCRibbonPanelMenu* menu = GetMenu()) {
        menu->FitToContent();
    }
}

CSize CMFCRibbonPanelMenuBar::CalcSize(BOOL /*bVertDock*/) { return m_parts->size; }

void CMFCRibbonPanelMenuBar::AdjustLayout() { MarkLayoutDirty(); }

CSize CMFCRibbonPanelMenuBar::CalcContentSize(CSize room) {
    if (GetSafeHwnd() == nullptr || m_parts->isLayingOut) {
        return m_parts->size;
    }
    m_parts->isLayingOut = true;
    m_parts->room = room;
    {
        CClientDC dc(this);
        RibbonFontScope font(dc);
        switch (m_parts->look) {
        case RibbonPopupLook::Menu:
            m_parts->size = ArrangeMenu(&dc, room);
            break;
        case RibbonPopupLook::Lines:
            m_parts->size = ArrangeLines(&dc, room);
            break;
        case RibbonPopupLook::Panel:
            m_parts->size = ArrangePanel(&dc, room);
            break;
        case RibbonPopupLook::Category:
            m_parts->size = ArrangeCategory(&dc);
            break;
        case RibbonPopupLook::MainPanel:
            m_parts->size = ArrangeMainPanel(&dc, room);
            break;
        }
    }
    m_parts->strips.Place(m_parts->list.scrollUp, m_parts->list.scrollDown);
    m_parts->layoutDirty = false;
    m_parts->isLayingOut = false;
    return m_parts->size;
}

void CMFCRibbonPanelMenuBar::PlaceElement(CDC* pDC, CMFCRibbonBaseElement& element, const CRect& rect) {
    element.SetRect(rect);
    element.OnAfterChangeRect(pDC);
    element.OnShow(!rect.IsRectEmpty());
}

CSize CMFCRibbonPanelMenuBar::ArrangeMenu(CDC* pDC, CSize room) {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    int side = metrics.Scaled(16);
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        const CMFCRibbonButton* button = DYNAMIC_DOWNCAST(CMFCRibbonButton, element);
        if (button != nullptr && HasLargeRows(button)) {
            side = std::max<int>(side, button->GetImageSize(CMFCRibbonBaseElement::RibbonImageLarge).cx);
        }
    }
    m_parts->imageColumn = ribbon::MenuImageColumn(side, metrics);
    m_parts->rows.clear();
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        if (!element->IsVisible()) {
            m_parts->rows.push_back({});
            continue;
        }
        element->OnCalcTextSize(pDC);
        fx::Size size = fx::FromSize(element->GetRegularSize(pDC));
        if (StandsInTextColumn(*element)) {
            size.width += m_parts->imageColumn + metrics.Scaled(8);
            size.height += metrics.Scaled(4);
        }
        m_parts->rows.push_back(size);
    }
    m_parts->list = ribbon::PlaceMenuList(m_parts->rows, metrics.Scaled(80), room.cy, m_parts->list.firstRow, metrics);
    for (size_t index = 0; index < m_parts->shown.size(); ++index) {
        CMFCRibbonBaseElement& element = *m_parts->shown[index];
        CRect rect = fx::ToRect(m_parts->list.rows[index]);
        if (rect.IsRectEmpty()) {
            PlaceElement(pDC, element, CRect(0, 0, 0, 0));
            continue;
        }
        if (StandsInTextColumn(element)) {
            rect.left += m_parts->imageColumn;
            rect.right = std::min<LONG>(rect.right, rect.left + element.GetRegularSize(pDC).cx);
            rect.DeflateRect(0, metrics.Scaled(2));
        }
        PlaceElement(pDC, element, rect);
    }
    return fx::ToSize(m_parts->list.size);
}

CSize CMFCRibbonPanelMenuBar::ArrangeLines(CDC* pDC, CSize room) {
    std::vector<fx::Size> sizes;
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        element->OnCalcTextSize(pDC);
        sizes.push_back(fx::FromSize(element->IsVisible() ? element->GetSize(pDC) : CSize(0, 0)));
    }
    const int margin = ribbon::CurrentMetrics().Scaled(2);
    CRect all(0, 0, 0, 0);
    const std::vector<fx::Rect> places = ribbon::PlaceLines(sizes, room.cx - 2 * margin, 0);
    for (size_t index = 0; index < places.size(); ++index) {
        CRect rect = fx::ToRect(places[index]);
        rect.OffsetRect(margin, margin);
        PlaceElement(pDC, *m_parts->shown[index], rect);
        all.UnionRect(all, rect);
    }
    return {all.right + margin, all.bottom + margin};
}

// As much of its full width as the screen has room for; the panel never collapses again.
CSize CMFCRibbonPanelMenuBar::ArrangePanel(CDC* pDC, CSize room) {
    const RibbonMetrics metrics = CurrentRibbonMetrics();
    if (m_parts->source != nullptr) {
        m_parts->panel->FollowColumnsOf(*m_parts->source);
    }
    RibbonPanelShape shape = m_parts->panel->Measure(pDC, metrics);
    shape.collapsedWidth = 0;
    const RibbonPanelLadder ladder(shape, metrics);
    int steps = 0;
    int width = ladder.FullWidth();
    while (width > room.cx && static_cast<size_t>(steps) < ladder.Steps().size()) {
        width = ladder.Steps()[static_cast<size_t>(steps)].width;
        ++steps;
    }
    const RibbonPanelArrangement places = ladder.Arrange(steps);
    m_parts->panel->Place(pDC, places, CPoint(0, 0), metrics);
    return {places.width, places.height};
}

CSize CMFCRibbonPanelMenuBar::ArrangeCategory(CDC* pDC) {
    m_parts->category->SetRect(CRect(CPoint(0, 0), m_parts->categorySize));
    m_parts->category->RecalcLayout(pDC);
    return m_parts->categorySize;
}

CSize CMFCRibbonPanelMenuBar::ArrangeMainPanel(CDC* pDC, CSize room) {
    if (m_parts->mainPanel == nullptr) {
        return m_parts->size;
    }
    return m_parts->mainPanel->Arrange(pDC, room, m_parts->list);
}

// ---- drawing

void CMFCRibbonPanelMenuBar::OnPaint() {
    EnsureLayout();
    RibbonWindowPaint paint(*this);
    DoPaint(&paint.GetDC());
}

BOOL CMFCRibbonPanelMenuBar::OnEraseBkgnd(CDC* /*pDC*/) { return TRUE; }

void CMFCRibbonPanelMenuBar::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(client);
    CMFCVisualManager* manager = CMFCVisualManager::GetInstance();
    RibbonFontScope font(*pDC);
    const int previousMode = pDC->SetBkMode(TRANSPARENT);
    const COLORREF previousColor = pDC->SetTextColor(afxGlobalData.clrBarText);
    switch (m_parts->look) {
    case RibbonPopupLook::Category:
        if (m_parts->category != nullptr) {
            m_parts->category->OnDraw(pDC);
        }
        break;
    case RibbonPopupLook::Panel:
        manager->OnFillRibbonQuickAccessToolBarPopup(pDC, this, client);
        if (m_parts->panel != nullptr) {
            m_parts->panel->DoPaint(pDC);
        }
        break;
    case RibbonPopupLook::Lines:
        manager->OnFillRibbonQuickAccessToolBarPopup(pDC, this, client);
        DrawElements(pDC);
        break;
    case RibbonPopupLook::MainPanel:
        if (m_parts->mainPanel != nullptr) {
            m_parts->mainPanel->DrawBackground(pDC, client);
        }
        DrawElements(pDC);
        break;
    case RibbonPopupLook::Menu:
        manager->OnFillBarBackground(pDC, this, client, client);
        DrawElements(pDC);
        break;
    }
    toolbar::DrawStrips(*pDC, m_parts->strips, {m_parts->list.canScrollUp, m_parts->list.canScrollDown});
    pDC->SetTextColor(previousColor);
    pDC->SetBkMode(previousMode);
}

void CMFCRibbonPanelMenuBar::DrawElements(CDC* pDC) {
    for (CMFCRibbonBaseElement* element : m_parts->shown) {
        if (!element->GetRect().IsRectEmpty() && pDC->RectVisible(element->GetRect())) {
            element->OnDraw(pDC);
        }
    }
}
