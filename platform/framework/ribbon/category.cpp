#include "afxribboncategory.h"

#include <algorithm>

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "ribbon/bar_parts.h"
#include "ribbon/element_walk.h"
#include "ribbon/shown_text.h"

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

IMPLEMENT_DYNCREATE(CMFCRibbonCategory, CObject)

namespace {

// The name; the letters behind it become those of the tab's key tip.
CString TakeKeys(LPCTSTR given, CMFCRibbonTab& tab) {
    const ribbon::NameAndKeys parts = ribbon::SplitKeys(given);
    if (parts.hasKeys) {
        tab.SetKeys(parts.keys);
    }
    return parts.name;
}

} // namespace

CMFCRibbonCategory::CMFCRibbonCategory() : m_rect(0, 0, 0, 0), m_parts(std::make_unique<RibbonCategoryParts>()) {}

CMFCRibbonCategory::CMFCRibbonCategory(CMFCRibbonBar* pParenrRibbonBar, LPCTSTR lpszName, UINT uiSmallImagesResID,
                                       UINT uiLargeImagesResID, CSize sizeSmallImage, CSize sizeLargeImage)
    : CMFCRibbonCategory() {
    CommonInit(pParenrRibbonBar, lpszName, uiSmallImagesResID, uiLargeImagesResID, sizeSmallImage, sizeLargeImage);
}

CMFCRibbonCategory::~CMFCRibbonCategory() {
    if (m_pParentMenuBar != nullptr) {
        m_pParentMenuBar->OnCategoryDestroyed();
    }
}

void CMFCRibbonCategory::CommonInit(CMFCRibbonBar* pParentRibbonBar, LPCTSTR lpszName, UINT uiSmallImagesResID,
                                    UINT uiLargeImagesResID, CSize sizeSmallImage, CSize sizeLargeImage) {
    m_pParentRibbonBar = pParentRibbonBar;
    m_strName = TakeKeys(lpszName, m_Tab);
    m_parts->smallImagesId = uiSmallImagesResID;
    m_parts->largeImagesId = uiLargeImagesResID;
    m_sizeSmallImage = sizeSmallImage;
    m_sizeLargeImage = sizeLargeImage;
    m_ScrollLeft.SetLeftScroll(TRUE);
    for (CMFCRibbonBaseElement* element :
         {static_cast<CMFCRibbonBaseElement*>(&m_Tab), static_cast<CMFCRibbonBaseElement*>(&m_ScrollLeft),
          static_cast<CMFCRibbonBaseElement*>(&m_ScrollRight)}) {
        element->SetParentCategory(this);
    }
    LoadImages();
}

// The images are kept at the ribbon's scale; another scale needs the originals again.
void CMFCRibbonCategory::LoadImages() {
    const double scale = afxGlobalData.GetRibbonImageScale();
    if (m_parts->imageScale == scale) {
        return;
    }
    m_parts->imageScale = scale;
    const auto load = [scale](CMFCToolBarImages& images, UINT id, CSize size) {
        if (id == 0) {
            return;
        }
        images.Clear();
        images.SetImageSize(size);
        if (images.Load(id) && scale != 1.0) {
            images.SmoothResize(scale);
        }
    };
    load(m_SmallImages, m_parts->smallImagesId, m_sizeSmallImage);
    load(m_LargeImages, m_parts->largeImagesId, m_sizeLargeImage);
}

CSize CMFCRibbonCategory::GetImageSize(BOOL bIsLargeImage) const {
    const CMFCToolBarImages& images = bIsLargeImage ? m_LargeImages : m_SmallImages;
    if (images.GetCount() > 0) {
        return images.GetImageSize();
    }
    const CSize& nominal = bIsLargeImage ? m_sizeLargeImage : m_sizeSmallImage;
    return {afxGlobalData.ScalePixels(nominal.cx), afxGlobalData.ScalePixels(nominal.cy)};
}

CSize CMFCRibbonCategory::GetElementImageSize(BOOL bIsLargeImage) const { return GetImageSize(bIsLargeImage); }

int CMFCRibbonCategory::GetImageCount(BOOL bIsLargeImage) const {
    return (bIsLargeImage ? m_LargeImages : m_SmallImages).GetCount();
}

BOOL CMFCRibbonCategory::OnDrawImage(CDC* pDC, CRect rect, CMFCRibbonBaseElement* pElement, BOOL bIsLargeImage,
                                     BOOL nImageIndex, BOOL bCenter) {
    CMFCToolBarImages& images = bIsLargeImage ? m_LargeImages : m_SmallImages;
    if (nImageIndex < 0 || nImageIndex >= images.GetCount()) {
        return FALSE;
    }
    const CSize size = images.GetImageSize();
    CPoint corner = rect.TopLeft();
    if (bCenter) {
        corner.Offset((rect.Width() - size.cx) / 2, (rect.Height() - size.cy) / 2);
    }
    CAfxDrawState state;
    if (!images.PrepareDrawImage(state, size)) {
        return FALSE;
    }
    const BOOL disabled = pElement != nullptr && pElement->IsDisabled();
    const BOOL drawn = images.Draw(pDC, corner.x, corner.y, nImageIndex, FALSE, disabled);
    images.EndDrawImage(state);
    return drawn;
}

// ---- panels

CMFCRibbonPanel* CMFCRibbonCategory::AddPanel(LPCTSTR lpszPanelName, HICON hIcon, CRuntimeClass* pRTI) {
    CRuntimeClass* runtimeClass = pRTI != nullptr ? pRTI : RUNTIME_CLASS(CMFCRibbonPanel);
    std::unique_ptr<CObject> object(runtimeClass->CreateObject());
    CMFCRibbonPanel* panel = DYNAMIC_DOWNCAST(CMFCRibbonPanel, object.get());
    if (panel == nullptr) {
        return nullptr;
    }
    static_cast<void>(object.release()); // the list of panels owns it from here
    m_parts->panels.emplace_back(panel);
    panel->CommonInit(this, lpszPanelName, hIcon);
    MarkLayoutDirty();
    return panel;
}

int CMFCRibbonCategory::GetPanelCount() const { return static_cast<int>(m_parts->panels.size()); }

CMFCRibbonPanel* CMFCRibbonCategory::GetPanel(int nIndex) {
    return nIndex >= 0 && nIndex < GetPanelCount() ? m_parts->panels[static_cast<size_t>(nIndex)].get() : nullptr;
}

int CMFCRibbonCategory::GetPanelIndex(const CMFCRibbonPanel* pPanel) const {
    const auto& panels = m_parts->panels;
    const auto found =
        std::find_if(panels.begin(), panels.end(), [pPanel](const auto& panel) { return panel.get() == pPanel; });
    return found == panels.end() ? -1 : static_cast<int>(found - panels.begin());
}

CMFCRibbonPanel* CMFCRibbonCategory::GetPanelFromPoint(CPoint point) const {
    for (const auto& panel : m_parts->panels) {
        if (panel->GetRect().PtInRect(point)) {
            return panel.get();
        }
    }
    return nullptr;
}

CMFCRibbonPanel* CMFCRibbonCategory::FindPanelWithElem(const CMFCRibbonBaseElement* pElement) {
    for (const auto& panel : m_parts->panels) {
        if (panel->HasElement(pElement)) {
            return panel.get();
        }
    }
    return nullptr;
}

// Out of the list before it goes: whoever hears of its end may walk through the panels that are there.
BOOL CMFCRibbonCategory::RemovePanel(int nIndex, BOOL bDelete) {
    CMFCRibbonPanel* panel = GetPanel(nIndex);
    if (panel == nullptr) {
        return FALSE;
    }
    if (RibbonBarHost* bar = m_pParentRibbonBar) {
        bar->OnPanelGoing(*panel);
    }
    const int place = GetPanelIndex(panel);
    if (place < 0) {
        return TRUE; // host code that ran meanwhile has removed it
    }
    std::unique_ptr<CMFCRibbonPanel> gone = std::move(m_parts->panels[static_cast<size_t>(place)]);
    m_parts->panels.erase(m_parts->panels.begin() + place);
    if (!bDelete) {
        CClientDC dc(m_pParentRibbonBar);
        gone->LeaveCategory(&dc);
        static_cast<void>(gone.release()); // the caller owns it from here
    }
    MarkLayoutDirty();
    return TRUE;
}

void CMFCRibbonCategory::AddHidden(CMFCRibbonBaseElement* pElem) {
    if (pElem != nullptr) {
        pElem->SetParentCategory(this);
        m_parts->hidden.emplace_back(pElem);
    }
}

void CMFCRibbonCategory::MarkLayoutDirty() {
    ForgetMeasures();
    if (m_pParentRibbonBar != nullptr) {
        m_pParentRibbonBar->MarkLayoutDirty();
    }
}

void CMFCRibbonCategory::ForgetMeasures() { m_parts->measured = false; }

void CMFCRibbonCategory::SetName(LPCTSTR lpszName) {
    m_strName = TakeKeys(lpszName, m_Tab);
    MarkLayoutDirty();
}

void CMFCRibbonCategory::SetKeys(LPCTSTR lpszKeys) { m_Tab.SetKeys(lpszKeys); }

void CMFCRibbonCategory::SetTabColor(AFX_RibbonCategoryColor color) {
    m_Color = color;
    m_Tab.Redraw();
}

BOOL CMFCRibbonCategory::IsWindows7Look() const {
    return m_pParentRibbonBar != nullptr && m_pParentRibbonBar->HasWindows7Look();
}

// ---- pointer

CMFCRibbonBaseElement* CMFCRibbonCategory::HitTest(CPoint point, BOOL bCheckPanelCaption) const {
    if (CMFCRibbonBaseElement* scroll = HitTestScrollButtons(point)) {
        return scroll;
    }
    CMFCRibbonPanel* panel = GetPanelFromPoint(point);
    return panel != nullptr ? panel->HitTest(point, bCheckPanelCaption) : nullptr;
}

int CMFCRibbonCategory::HitTestEx(CPoint point) const {
    int before = 0;
    for (const auto& panel : m_parts->panels) {
        const int position = panel->GetRect().PtInRect(point) ? panel->HitTestEx(point) : -1;
        if (position >= 0) {
            return before + position;
        }
        before += panel->GetCount();
    }
    return -1;
}

CMFCRibbonBaseElement* CMFCRibbonCategory::HitTestScrollButtons(CPoint point) const {
    for (const CRibbonCategoryScroll* button : {&m_ScrollLeft, &m_ScrollRight}) {
        if (button->GetRect().PtInRect(point)) {
            return const_cast<CRibbonCategoryScroll*>(button);
        }
    }
    return nullptr;
}

CMFCRibbonPanel* CMFCRibbonCategory::HighlightPanel(CMFCRibbonPanel* pHLPanel, CPoint point) {
    CMFCRibbonPanel* panel = GetPanelFromPoint(point);
    if (pHLPanel != nullptr && pHLPanel != panel) {
        pHLPanel->Highlight(FALSE, point);
    }
    if (panel != nullptr && panel != pHLPanel) {
        panel->Highlight(TRUE, point);
    }
    return panel;
}

CMFCRibbonBaseElement* CMFCRibbonCategory::OnLButtonDown(CPoint point) {
    if (CMFCRibbonBaseElement* scroll = HitTestScrollButtons(point)) {
        scroll->OnLButtonDown(point);
        return scroll;
    }
    CMFCRibbonPanel* panel = GetPanelFromPoint(point);
    return panel != nullptr ? panel->MouseButtonDown(point) : nullptr;
}

void CMFCRibbonCategory::OnLButtonUp(CPoint point) {
    if (CMFCRibbonBaseElement* hit = HitTest(point)) {
        hit->OnLButtonUp(point);
    }
}

void CMFCRibbonCategory::OnMouseMove(CPoint point) {
    if (CMFCRibbonBaseElement* hit = HitTest(point)) {
        hit->OnMouseMove(point);
    }
}

void CMFCRibbonCategory::OnCancelMode() {
    for (const auto& panel : m_parts->panels) {
        if (panel->IsHighlighted()) {
            panel->Highlight(FALSE, CPoint(-1, -1));
        }
    }
}

BOOL CMFCRibbonCategory::OnKey(UINT nChar) {
    const CMFCRibbonBaseElement* element =
        m_pParentMenuBar != nullptr ? m_pParentMenuBar->GetHighlighted() : GetFocused();
    CMFCRibbonPanel* panel = element != nullptr ? element->GetParentPanel() : nullptr;
    return panel != nullptr && panel->OnKey(nChar);
}

void CMFCRibbonCategory::OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    for (const auto& panel : m_parts->panels) {
        panel->OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler);
    }
}

// ---- layout and drawing

void CMFCRibbonCategory::SetCollapseOrder(const CArray<int, int>& arCollapseOrder) {
    m_parts->collapseOrder.assign(arCollapseOrder.GetData(), arCollapseOrder.GetData() + arCollapseOrder.GetSize());
    MarkLayoutDirty();
}

int CMFCRibbonCategory::GetMaxHeight(CDC* /*pDC*/) {
    return m_pParentRibbonBar != nullptr ? m_pParentRibbonBar->GetMetrics().CategoryHeight() : 0;
}

int CMFCRibbonCategory::GetTextTopLine() const {
    if (m_pParentRibbonBar == nullptr) {
        return 0;
    }
    const RibbonMetrics& metrics = m_pParentRibbonBar->GetMetrics();
    return metrics.panelContentHeight - 2 * metrics.textHeight;
}

void CMFCRibbonCategory::RecalcLayout(CDC* pDC) {
    if (m_pParentRibbonBar == nullptr) {
        return;
    }
    LoadImages();
    const RibbonMetrics& metrics = m_pParentRibbonBar->GetMetrics();
    m_parts->ladders.clear();
    for (const auto& panel : m_parts->panels) {
        m_parts->ladders.emplace_back(panel->Measure(pDC, metrics), metrics);
    }
    m_parts->measured = true;
    ReposPanels(pDC);
}

void CMFCRibbonCategory::ReposPanels(CDC* pDC) {
    if (m_pParentRibbonBar == nullptr || m_rect.IsRectEmpty()) {
        HideElements(pDC);
        return;
    }
    if (!m_parts->measured) {
        RecalcLayout(pDC);
        return;
    }
    const RibbonMetrics& metrics = m_pParentRibbonBar->GetMetrics();
    const RibbonCategoryArrangement places =
        ArrangeCategory(m_parts->ladders, metrics, m_rect.Width(), m_parts->collapseOrder, m_parts->wantedFirstPanel);
    m_parts->firstPanel = places.firstPanel;
    if (!places.scrolls) {
        m_parts->wantedFirstPanel = 0;
    }
    const auto placeScroll = [this, pDC](CRibbonCategoryScroll& button, const fx::Rect& rect) {
        button.SetRect(rect.IsEmpty() ? CRect(0, 0, 0, 0) : fx::ToRect(rect) + m_rect.TopLeft());
        button.OnAfterChangeRect(pDC);
    };
    placeScroll(m_ScrollLeft, places.scrollLeft);
    placeScroll(m_ScrollRight, places.scrollRight);
    for (size_t index = 0; index < m_parts->panels.size(); ++index) {
        const RibbonCategoryArrangement::Panel& place = places.panels[index];
        if (place.rect.IsEmpty()) {
            m_parts->panels[index]->Hide(pDC);
        } else {
            m_parts->panels[index]->Place(pDC, m_parts->ladders[index].Arrange(place.stepCount, place.rect.Width()),
                                          CPoint(place.rect.left, place.rect.top) + m_rect.TopLeft(), metrics);
        }
    }
}

void CMFCRibbonCategory::PlaceAt(const CRect& rect, CDC* pDC) {
    m_rect = rect;
    if (m_parts->measured) {
        ReposPanels(pDC);
    } else {
        RecalcLayout(pDC);
    }
}

void CMFCRibbonCategory::HideElements(CDC* pDC) {
    for (const auto& panel : m_parts->panels) {
        panel->Hide(pDC);
    }
    m_ScrollLeft.SetRect(CRect(0, 0, 0, 0));
    m_ScrollRight.SetRect(CRect(0, 0, 0, 0));
}

void CMFCRibbonCategory::SetActive(BOOL bIsActive) {
    if (!m_bIsActive == !bIsActive) {
        return;
    }
    m_bIsActive = bIsActive;
    if (!bIsActive) {
        m_rect = CRect(0, 0, 0, 0);
        HideElements(nullptr);
    }
}

// Whole panels, one at a time unless an offset says how many.
BOOL CMFCRibbonCategory::OnScrollHorz(BOOL bScrollLeft, int nScrollOffset) {
    const int former = m_parts->firstPanel;
    const int count = std::max(nScrollOffset, 1);
    m_parts->wantedFirstPanel = std::max(former + (bScrollLeft ? -count : count), 0);
    if (m_pParentRibbonBar == nullptr || m_pParentRibbonBar->GetSafeHwnd() == nullptr) {
        return FALSE;
    }
    CClientDC dc(m_pParentRibbonBar);
    ReposPanels(&dc);
    m_parts->wantedFirstPanel = m_parts->firstPanel;
    CWnd* window = m_pParentMenuBar != nullptr ? static_cast<CWnd*>(m_pParentMenuBar) : m_pParentRibbonBar;
    window->InvalidateRect(m_rect, FALSE);
    return m_parts->firstPanel != former;
}

void CMFCRibbonCategory::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    CMFCVisualManager::GetInstance()->OnDrawRibbonCategory(pDC, this, m_rect);
    for (const auto& panel : m_parts->panels) {
        panel->DoPaint(pDC);
    }
    for (CRibbonCategoryScroll* button : {&m_ScrollLeft, &m_ScrollRight}) {
        if (!button->GetRect().IsRectEmpty()) {
            button->OnDraw(pDC);
        }
    }
}
