#include "afxRibbonPanel.h"

#include "afxglobals.h"
#include "afxribbonbar.h"
#include "afxribbonpanelmenu.h"
#include "afxvisualmanager.h"
#include "ribbon/bar_parts.h"
#include "ribbon/panel_picture.h"
#include "ribbon/shown_text.h"

#include <memory>

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

IMPLEMENT_DYNCREATE(CMFCRibbonPanel, CObject)

namespace {

RibbonElementFlow FlowOf(CMFCRibbonBaseElement& element, bool hasLarge, bool hasSmaller) {
    if (hasLarge) {
        return hasSmaller ? RibbonElementFlow::Column : RibbonElementFlow::WholeHeight;
    }
    if (element.IsSeparator() || element.IsWholeRowHeight()) {
        return RibbonElementFlow::WholeHeight;
    }
    return element.IsAlignByColumn() ? RibbonElementFlow::Column : RibbonElementFlow::Row;
}

RibbonElementShape ShapeOf(CMFCRibbonBaseElement& element, CDC* pDC) {
    RibbonElementShape shape;
    if (!element.IsVisible()) {
        shape.flow = RibbonElementFlow::Hidden;
        return shape;
    }
    element.SetInitialMode();
    element.OnCalcTextSize(pDC);
    shape.hasLarge = element.HasLargeMode() != FALSE;
    shape.hasCompact = element.HasCompactMode() != FALSE;
    const bool hasIntermediate = element.HasIntermediateMode() != FALSE;
    shape.hasIntermediate = hasIntermediate || !shape.hasLarge;
    const fx::Size regular = fx::FromSize(element.GetRegularSize(pDC));
    shape.large = regular;
    shape.intermediate = hasIntermediate ? fx::FromSize(element.GetIntermediateSize(pDC)) : regular;
    shape.compact = shape.hasCompact ? fx::FromSize(element.GetCompactSize(pDC)) : shape.intermediate;
    shape.narrowest = element.GetNarrowestWidth(pDC);
    shape.flow = FlowOf(element, shape.hasLarge, hasIntermediate || shape.hasCompact);
    return shape;
}

void SetMode(CMFCRibbonBaseElement& element, RibbonElementMode mode) {
    element.SetCompactMode(mode == RibbonElementMode::Compact);
    element.SetIntermediateMode(mode == RibbonElementMode::Intermediate);
}

} // namespace

CMFCRibbonPanel::CMFCRibbonPanel(LPCTSTR lpszName, HICON hIcon) : m_rect(0, 0, 0, 0), m_rectCaption(0, 0, 0, 0) {
    CommonInit(nullptr, lpszName, hIcon);
}

CMFCRibbonPanel::~CMFCRibbonPanel() {
    if (m_pParentMenuBar != nullptr) {
        m_pParentMenuBar->OnPanelDestroyed(this);
    }
    DeleteElements();
}

// Out of the list before they go: whoever hears of their end may walk through those that are there.
void CMFCRibbonPanel::DeleteElements() {
    ElementArray elements;
    elements.Copy(m_arElements);
    m_arElements.RemoveAll();
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        delete elements[index];
    }
}

void CMFCRibbonPanel::CommonInit(CMFCRibbonCategory* parent, LPCTSTR name, HICON icon) {
    m_pParent = parent;
    const ribbon::NameAndKeys given = ribbon::SplitKeys(name);
    m_strName = given.name;
    m_btnDefault.SetText(given.name);
    if (given.hasKeys) {
        SetKeys(given.keys);
    }
    m_btnDefault.SetPanelIcon(icon);
    m_btnDefault.SetParentPanel(this);
    m_btnDefault.SetParentCategory(parent);
    m_btnLaunch.SetParentPanel(this);
    m_btnLaunch.SetParentCategory(parent);
}

void CMFCRibbonPanel::LeaveCategory(CDC* pDC) {
    Hide(pDC);
    for (CMFCRibbonBaseElement* element : CollectParts()) {
        element->SetParentCategory(nullptr);
    }
    m_btnDefault.SetParentCategory(nullptr);
    m_btnLaunch.SetParentCategory(nullptr);
    m_pParent = nullptr;
}

void CMFCRibbonPanel::MarkLayoutDirty() {
    if (m_pParent != nullptr) {
        m_pParent->MarkLayoutDirty();
    }
}

// ---- elements

void CMFCRibbonPanel::Adopt(CMFCRibbonBaseElement* element) {
    element->SetParentPanel(this);
    element->SetParentCategory(m_pParent);
    element->SetInitialMode();
    MarkLayoutDirty();
}

void CMFCRibbonPanel::Add(CMFCRibbonBaseElement* pElem) { Insert(pElem, GetCount()); }

BOOL CMFCRibbonPanel::Insert(CMFCRibbonBaseElement* pElem, int nIndex) {
    if (nIndex == -1) {
        nIndex = GetCount();
    }
    if (pElem == nullptr || nIndex < 0 || nIndex > GetCount()) {
        return FALSE;
    }
    m_arElements.InsertAt(nIndex, pElem);
    Adopt(pElem);
    return TRUE;
}

// A separator in front of everything would separate nothing.
void CMFCRibbonPanel::AddSeparator() {
    if (GetCount() > 0) {
        Add(new CMFCRibbonSeparator);
    }
}

BOOL CMFCRibbonPanel::InsertSeparator(int nIndex) {
    auto separator = std::make_unique<CMFCRibbonSeparator>();
    if (!Insert(separator.get(), nIndex)) {
        return FALSE;
    }
    static_cast<void>(separator.release()); // the panel owns it now
    return TRUE;
}

BOOL CMFCRibbonPanel::Remove(int nIndex, BOOL bDelete) {
    CMFCRibbonBaseElement* element = GetElement(nIndex);
    if (element == nullptr) {
        return FALSE;
    }
    m_arElements.RemoveAt(nIndex);
    if (bDelete) {
        delete element;
    } else {
        // The bar forgets what it knows of it while the element still names the bar.
        if (CMFCRibbonBar* bar = element->GetParentRibbonBar()) {
            bar->OnElementDestroyed(element);
        }
        if (CMFCRibbonPanelMenuBar* menuBar = element->GetParentMenu()) {
            menuBar->OnElementDestroyed(element);
            element->SetParentMenu(nullptr);
            element->SetParentWnd(nullptr);
        }
        element->DestroyCtrl();
        element->SetParentPanel(nullptr);
        element->SetParentCategory(nullptr);
    }
    MarkLayoutDirty();
    return TRUE;
}

void CMFCRibbonPanel::RemoveAll() {
    DeleteElements();
    MarkLayoutDirty();
}

BOOL CMFCRibbonPanel::Replace(int nIndex, CMFCRibbonBaseElement* pElem) {
    CMFCRibbonBaseElement* former = GetElement(nIndex);
    if (former == nullptr || pElem == nullptr) {
        return FALSE;
    }
    m_arElements[nIndex] = pElem;
    delete former;
    Adopt(pElem);
    return TRUE;
}

BOOL CMFCRibbonPanel::ReplaceByID(UINT uiCmdID, CMFCRibbonBaseElement* pElem) {
    for (int index = 0; index < GetCount(); ++index) {
        if (GetElement(index)->GetID() == uiCmdID) {
            return Replace(index, pElem);
        }
    }
    return FALSE;
}

int CMFCRibbonPanel::GetCount() const { return static_cast<int>(m_arElements.GetSize()); }

CMFCRibbonBaseElement* CMFCRibbonPanel::GetElement(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_arElements[nIndex] : nullptr;
}

int CMFCRibbonPanel::GetIndex(CMFCRibbonBaseElement* pElem) const {
    for (int index = 0; index < GetCount(); ++index) {
        if (m_arElements[index] == pElem) {
            return index;
        }
    }
    return -1;
}

CMFCRibbonPanelMenu* CMFCRibbonPanel::ShowPopup(CMFCRibbonDefaultPanelButton* pButton) {
    CMFCRibbonBaseElement* opener = pButton != nullptr ? pButton : &m_btnDefault;
    return RibbonPopups::Get().OpenPanel(*this, *opener);
}

void CMFCRibbonPanel::SetKeys(LPCTSTR lpszKeys) {
    m_strKeys = lpszKeys;
    m_btnDefault.SetKeys(lpszKeys);
}

// ---- place and look

BOOL CMFCRibbonPanel::IsWindows7Look() const { return m_pParent != nullptr && m_pParent->IsWindows7Look(); }

void CMFCRibbonPanel::SetCenterColumnVert(BOOL bSet) {
    m_bCenterColumnVert = bSet;
    MarkLayoutDirty();
}

void CMFCRibbonPanel::SetJustifyColumns(BOOL bSet) {
    m_bJustifyColumns = bSet;
    MarkLayoutDirty();
}

RibbonPanelShape CMFCRibbonPanel::Measure(CDC* pDC, const RibbonMetrics& /*metrics*/) {
    RibbonPanelShape shape;
    shape.elements.reserve(static_cast<size_t>(GetCount()));
    for (int index = 0; index < GetCount(); ++index) {
        shape.elements.push_back(ShapeOf(*m_arElements[index], pDC));
    }
    RibbonFontScope font(*pDC);
    shape.captionWidth = pDC->GetTextExtent(ribbon::PlainText(m_strName)).cx;
    shape.hasLaunchButton = HasLaunchButton() && LaunchButton().IsVisible();
    m_btnDefault.OnCalcTextSize(pDC);
    shape.collapsedWidth = m_btnDefault.GetRegularSize(pDC).cx;
    shape.centerColumns = m_bCenterColumnVert != FALSE;
    shape.justifyColumns = m_bJustifyColumns != FALSE;
    return shape;
}

void CMFCRibbonPanel::Place(CDC* pDC, const RibbonPanelArrangement& arrangement, CPoint origin,
                            const RibbonMetrics& /*metrics*/) {
    const CRect none(0, 0, 0, 0);
    m_bCollapsed = arrangement.collapsed;
    m_rect = CRect(origin, CSize(arrangement.width, arrangement.height));
    m_rectCaption = m_bCollapsed ? none : fx::ToRect(arrangement.caption) + origin;
    m_btnDefault.SetRect(m_bCollapsed ? m_rect : none);
    m_btnDefault.OnAfterChangeRect(pDC);
    if (!IsLent()) {
        const fx::Rect& launch = arrangement.launchButton;
        LaunchButton().SetRect(m_bCollapsed || launch.IsEmpty() ? none : fx::ToRect(launch) + origin);
        LaunchButton().OnAfterChangeRect(pDC);
    }
    // What a pop-up shows has its place there.
    for (int index = 0; index < GetCount() && !IsLent(); ++index) {
        CMFCRibbonBaseElement& element = *m_arElements[index];
        const RibbonPlacedElement& place = arrangement.elements[static_cast<size_t>(index)];
        SetMode(element, place.mode);
        element.SetRect(place.rect.IsEmpty() ? none : fx::ToRect(place.rect) + origin);
        element.OnAfterChangeRect(pDC);
        element.OnShow(!place.rect.IsEmpty());
    }
}

void CMFCRibbonPanel::Hide(CDC* pDC) {
    const CRect none(0, 0, 0, 0);
    m_bHighlighted = FALSE;
    if (m_rect.IsRectEmpty()) {
        return;
    }
    m_rect = m_rectCaption = none;
    m_btnDefault.SetRect(none);
    if (!IsLent()) {
        LaunchButton().SetRect(none);
    }
    for (int index = 0; index < GetCount() && !IsLent(); ++index) {
        CMFCRibbonBaseElement& element = *m_arElements[index];
        element.SetRect(none);
        element.OnAfterChangeRect(pDC);
        element.OnShow(FALSE);
    }
}

void CMFCRibbonPanel::DoPaint(CDC* pDC) {
    if (m_rect.IsRectEmpty() || !pDC->RectVisible(ReachOfPanel(*this))) {
        return;
    }
    if (m_bCollapsed) {
        m_btnDefault.OnDraw(pDC);
        return;
    }
    const COLORREF previous = pDC->GetTextColor();
    DrawBelowElements(*pDC, *this, LaunchButton());
    for (int index = 0; index < GetCount(); ++index) {
        CMFCRibbonBaseElement& element = *m_arElements[index];
        if (!element.GetRect().IsRectEmpty() && pDC->RectVisible(element.GetRect())) {
            element.OnDraw(pDC);
        }
    }
    pDC->SetTextColor(previous);
}

// ---- pointer and command update

void CMFCRibbonPanel::Highlight(BOOL bHighlight, CPoint point) {
    CMFCRibbonBar* const bar = m_pParent != nullptr ? m_pParent->GetParentRibbonBar() : nullptr;
    const bool isSeen = bar != nullptr && bar->GetSafeHwnd() != nullptr && !m_rect.IsRectEmpty();
    if (!m_bHighlighted != !bHighlight && isSeen && !m_bCollapsed) {
        // Where a panel under the pointer is drawn as any other its elements need no paint. Only the manager knows, and
        // it may be the host's own.
        const PanelPicture before(*this, LaunchButton());
        m_bHighlighted = bHighlight;
        if (!before.ShowsTheSameAs(PanelPicture(*this, LaunchButton()))) {
            bar->InvalidateRect(ReachOfPanel(*this), FALSE);
        }
    }
    m_bHighlighted = bHighlight;
    CMFCRibbonBaseElement* former = GetHighlighted();
    CMFCRibbonBaseElement* hit = bHighlight ? HitTest(point) : nullptr;
    if (former != nullptr && former != hit) {
        former->SetHighlighted(FALSE);
    }
    if (hit != nullptr && !hit->IsSeparator()) {
        hit->SetHighlighted(TRUE);
    }
}

CMFCRibbonBaseElement* CMFCRibbonPanel::HitTest(CPoint point, BOOL bCheckPanelCaption) {
    if (!m_rect.PtInRect(point)) {
        return nullptr;
    }
    if (m_bCollapsed) {
        return &m_btnDefault;
    }
    if (CMFCRibbonBaseElement* launch = LaunchButton().HitTest(point)) {
        return launch;
    }
    if (m_rectCaption.PtInRect(point)) {
        return bCheckPanelCaption ? &m_btnDefault : nullptr;
    }
    for (int index = 0; index < GetCount(); ++index) {
        if (CMFCRibbonBaseElement* hit = m_arElements[index]->HitTest(point)) {
            return hit;
        }
    }
    return nullptr;
}

int CMFCRibbonPanel::HitTestEx(CPoint point) const {
    for (int index = 0; index < GetCount(); ++index) {
        if (m_arElements[index]->GetRect().PtInRect(point)) {
            return index;
        }
    }
    return -1;
}

CMFCRibbonBaseElement* CMFCRibbonPanel::MouseButtonDown(CPoint point) {
    CMFCRibbonBaseElement* hit = HitTest(point);
    if (hit != nullptr) {
        hit->OnLButtonDown(point);
    }
    return hit;
}

void CMFCRibbonPanel::OnUpdateCmdUI(CMFCRibbonCmdUI* pCmdUI, CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    if (m_bCollapsed || m_rect.IsRectEmpty()) {
        return;
    }
    for (int index = 0; index < GetCount(); ++index) {
        if (!m_arElements[index]->GetRect().IsRectEmpty()) {
            m_arElements[index]->OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler);
        }
    }
    if (!m_btnLaunch.GetRect().IsRectEmpty()) {
        m_btnLaunch.OnUpdateCmdUI(pCmdUI, pTarget, bDisableIfNoHndler);
    }
}

void CMFCRibbonPanel::OnShow(BOOL bShow) {
    for (int index = 0; index < GetCount(); ++index) {
        m_arElements[index]->OnShow(bShow && !m_arElements[index]->GetRect().IsRectEmpty());
    }
}
