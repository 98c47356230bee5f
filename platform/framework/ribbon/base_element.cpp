#include <afxbaseribbonelement.h>

#include <array>
#include <utility>

#include <afxribbonbar.h>
#include <afxribboncategory.h>
#include <afxRibbonPanel.h>
#include <afxribbonpanelmenu.h>

#include "ribbon/drawing_scope.h"
#include "ribbon/element_metrics.h"
#include "ribbon/shown_text.h"

IMPLEMENT_DYNAMIC(CMFCRibbonBaseElement, CObject)

namespace {

// Text margins at 96 DPI.
constexpr int kMarginX = 4;
constexpr int kMarginY = 3;

CSize CurrentMargin() {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    return {metrics.Scaled(kMarginX), metrics.Scaled(kMarginY)};
}

// What an element takes of a bar in each of its modes.
using ModeSizes = std::array<CSize, 3>;

ModeSizes MeasureModes(CMFCRibbonBaseElement& element) {
    const ribbon::TextContext context(nullptr);
    CDC* dc = CDC::FromHandle(context.Get());
    element.OnCalcTextSize(dc);
    return {element.GetRegularSize(dc), element.GetIntermediateSize(dc), element.GetCompactSize(dc)};
}

bool IsCommand(UINT id) { return id != 0 && id != static_cast<UINT>(-1); }

} // namespace

CMFCRibbonBaseElement::CMFCRibbonBaseElement() : m_rect(0, 0, 0, 0), m_szMargin(CurrentMargin()) {}

// A pop-up must not show what is no longer there, nor stay open without the element that opened it.
CMFCRibbonBaseElement::~CMFCRibbonBaseElement() {
    if (m_pParentMenu != nullptr) {
        m_pParentMenu->OnElementDestroyed(this);
    }
    if (auto* menu = dynamic_cast<CMFCPopupMenu*>(m_pPopup)) {
        menu->OnParentElementDestroyed();
    }
    if (m_pRibbonBar != nullptr) {
        m_pRibbonBar->OnElementDestroyed(this);
    }
    CMFCRibbonBaseElement* const original = m_pOriginal;
    CMFCRibbonBaseElement::SetOriginal(nullptr);
    while (CMFCRibbonBaseElement* const copy = m_pFirstCopy) {
        copy->CMFCRibbonBaseElement::SetOriginal(original != copy ? original : nullptr);
    }
}

// ---- identity and texts

void CMFCRibbonBaseElement::SetID(UINT nID) { m_nID = nID; }

UINT CMFCRibbonBaseElement::GetNotifyID() { return m_nID; }

void CMFCRibbonBaseElement::SetText(LPCTSTR lpszText) {
    const ribbon::NameAndKeys given = ribbon::SplitKeys(lpszText);
    if (given.hasKeys && given.keys != m_strKeys) {
        m_strKeys = given.keys;
        if (m_pRibbonBar != nullptr) {
            m_pRibbonBar->GetElementKeys().Forget();
        }
    }
    if (given.name == m_strText) {
        CleanUpSizes();
        return;
    }
    // Where the new text takes as much room as the former one, nothing moves. A text that is only lent for a draw
    // draws nothing again.
    const bool isPlaced = m_pRibbonBar != nullptr && m_pParentMenu == nullptr && !m_rect.IsRectEmpty();
    const bool isMeasured = isPlaced && !DrawingScope::IsActive();
    const ModeSizes former = isMeasured ? MeasureModes(*this) : ModeSizes();
    m_strText = given.name;
    CleanUpSizes();
    if (isMeasured && MeasureModes(*this) == former) {
        m_pRibbonBar->GetElementKeys().Forget();
        Redraw();
    } else {
        MarkLayoutDirty();
    }
    NotifyAccessibility(EVENT_OBJECT_NAMECHANGE);
}

void CMFCRibbonBaseElement::SetKeys(LPCTSTR lpszKeys, LPCTSTR lpszMenuKeys) {
    m_strKeys = lpszKeys != nullptr ? lpszKeys : L"";
    m_strMenuKeys = lpszMenuKeys != nullptr ? lpszMenuKeys : L"";
    if (m_pRibbonBar != nullptr) {
        m_pRibbonBar->GetElementKeys().Forget();
    }
}

void CMFCRibbonBaseElement::SetToolTipText(LPCTSTR lpszText) {
    m_strToolTip = lpszText != nullptr ? lpszText : L"";
    UpdateTooltipInfo();
}

CString CMFCRibbonBaseElement::GetToolTipText() const { return m_strToolTip; }

void CMFCRibbonBaseElement::SetDescription(LPCTSTR lpszText) {
    m_strDescription = lpszText != nullptr ? lpszText : L"";
    UpdateTooltipInfo();
}

CString CMFCRibbonBaseElement::GetDescription() const { return m_strDescription; }

// A tip that is shown now shows the old text at the old place.
void CMFCRibbonBaseElement::UpdateTooltipInfo() {
    if (m_pRibbonBar != nullptr && m_bIsHighlighted) {
        m_pRibbonBar->HideTip();
    }
}

void CMFCRibbonBaseElement::CopyFrom(const CMFCRibbonBaseElement& src) {
    m_nID = src.m_nID;
    m_strText = src.m_strText;
    m_strToolTip = src.m_strToolTip;
    m_strDescription = src.m_strDescription;
    m_strKeys = src.m_strKeys;
    m_strMenuKeys = src.m_strMenuKeys;
    m_dwData = src.m_dwData;
    m_bCompactMode = src.m_bCompactMode;
    m_bIntermediateMode = src.m_bIntermediateMode;
    m_bTextAlwaysOnRight = src.m_bTextAlwaysOnRight;
    m_bIsDefaultMenuLook = src.m_bIsDefaultMenuLook;
    m_bIsVisible = src.m_bIsVisible;
    CleanUpSizes();
}

void CMFCRibbonBaseElement::CopyStateFrom(CMFCRibbonBaseElement* pSource) {
    if (pSource == nullptr || pSource == this) {
        return;
    }
    SetDisabled(pSource->IsDisabled());
    SetChecked(pSource->IsChecked(), pSource->IsRadio());
    SetVisible(pSource->IsVisible());
    SetOriginal(pSource->GetOriginal() != nullptr ? pSource->GetOriginal() : pSource);
}

void CMFCRibbonBaseElement::SetOriginal(CMFCRibbonBaseElement* pOriginal) {
    if (pOriginal == this) {
        pOriginal = nullptr;
    }
    if (m_pOriginal != nullptr) {
        (m_pPreviousCopy != nullptr ? m_pPreviousCopy->m_pNextCopy : m_pOriginal->m_pFirstCopy) = m_pNextCopy;
    }
    if (m_pNextCopy != nullptr) {
        m_pNextCopy->m_pPreviousCopy = m_pPreviousCopy;
    }
    m_pOriginal = pOriginal;
    m_pPreviousCopy = nullptr;
    m_pNextCopy = pOriginal != nullptr ? std::exchange(pOriginal->m_pFirstCopy, this) : nullptr;
    if (m_pNextCopy != nullptr) {
        m_pNextCopy->m_pPreviousCopy = this;
    }
}

std::vector<CMFCRibbonBaseElement*> CMFCRibbonBaseElement::CollectCopies() const {
    std::vector<CMFCRibbonBaseElement*> copies;
    for (CMFCRibbonBaseElement* copy = m_pFirstCopy; copy != nullptr; copy = copy->m_pNextCopy) {
        copies.push_back(copy);
    }
    return copies;
}

// ---- parents

void CMFCRibbonBaseElement::SetParentCategory(CMFCRibbonCategory* pParent) {
    m_pParentCategory = pParent;
    SetParentRibbonBar(pParent != nullptr ? pParent->GetParentRibbonBar() : nullptr);
}

void CMFCRibbonBaseElement::SetParentPanel(CMFCRibbonPanel* pPanel) { m_pParentPanel = pPanel; }

CMFCRibbonPanel* CMFCRibbonBaseElement::GetParentPanel() const { return m_pParentPanel; }

void CMFCRibbonBaseElement::SetParentRibbonBar(CMFCRibbonBar* pRibbonBar) {
    if (m_pRibbonBar != nullptr && m_pRibbonBar != pRibbonBar) {
        m_pRibbonBar->OnElementDestroyed(this);
    }
    m_pRibbonBar = pRibbonBar;
}

CMFCRibbonBar* CMFCRibbonBaseElement::GetParentRibbonBar() const { return m_pRibbonBar; }

// A copy in a pop-up has no bar of its own; its original has.
CMFCRibbonBar* CMFCRibbonBaseElement::GetTopLevelRibbonBar() const {
    if (m_pRibbonBar != nullptr || m_pOriginal == nullptr) {
        return m_pRibbonBar;
    }
    return m_pOriginal->GetTopLevelRibbonBar();
}

RibbonElementHost* CMFCRibbonBaseElement::GetHost() const {
    return m_pParentMenu != nullptr ? static_cast<RibbonElementHost*>(m_pParentMenu) : m_pRibbonBar;
}

RibbonBarHost* CMFCRibbonBaseElement::GetBarHost() const { return GetTopLevelRibbonBar(); }

void CMFCRibbonBaseElement::SetParentWnd(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }

CWnd* CMFCRibbonBaseElement::GetParentWnd() const {
    if (m_pParentWnd != nullptr) {
        return m_pParentWnd;
    }
    return m_pRibbonBar;
}

// ---- size

// The category measures the element anew, where it has one; a copy in the quick access toolbar and an element of the
// tab row are measured with the bar.
void CMFCRibbonBaseElement::MarkLayoutDirty() {
    if (m_pParentMenu != nullptr) {
        m_pParentMenu->MarkLayoutDirty();
    }
    if (m_pParentCategory != nullptr) {
        m_pParentCategory->MarkLayoutDirty();
    } else if (m_pRibbonBar != nullptr) {
        m_pRibbonBar->MarkLayoutDirty();
    }
}

CSize CMFCRibbonBaseElement::GetSize(CDC* pDC) {
    if (m_bCompactMode && HasCompactMode()) {
        return GetCompactSize(pDC);
    }
    if ((m_bCompactMode || m_bIntermediateMode) && HasIntermediateMode()) {
        return GetIntermediateSize(pDC);
    }
    return GetRegularSize(pDC);
}

CSize CMFCRibbonBaseElement::GetIntermediateSize(CDC* pDC) { return GetRegularSize(pDC); }

CSize CMFCRibbonBaseElement::GetCompactSize(CDC* pDC) { return GetRegularSize(pDC); }

int CMFCRibbonBaseElement::GetNarrowestWidth(CDC* /*pDC*/) { return 0; }

CSize CMFCRibbonBaseElement::GetImageSize(RibbonImageType /*type*/) const { return {0, 0}; }

void CMFCRibbonBaseElement::OnCalcTextSize(CDC* /*pDC*/) { m_szMargin = CurrentMargin(); }

void CMFCRibbonBaseElement::CleanUpSizes() {}

void CMFCRibbonBaseElement::OnAfterChangeRect(CDC* /*pDC*/) { UpdateTooltipInfo(); }

BOOL CMFCRibbonBaseElement::CanBeStretched() { return TRUE; }

BOOL CMFCRibbonBaseElement::CanBeStretchedHorizontally() { return FALSE; }

void CMFCRibbonBaseElement::StretchHorizontally() {}

BOOL CMFCRibbonBaseElement::StretchToWholeRow(CDC* pDC, int nHeight) {
    if (!IsWholeRowHeight() || m_rect.IsRectEmpty()) {
        return FALSE;
    }
    m_rect.bottom = m_rect.top + nHeight;
    OnAfterChangeRect(pDC);
    return TRUE;
}

BOOL CMFCRibbonBaseElement::CanBeCompacted() const { return HasCompactMode(); }

BOOL CMFCRibbonBaseElement::IsWholeRowHeight() const { return FALSE; }

BOOL CMFCRibbonBaseElement::IsAlignByColumn() const { return TRUE; }

BOOL CMFCRibbonBaseElement::HasLargeMode() const { return FALSE; }

BOOL CMFCRibbonBaseElement::HasIntermediateMode() const { return FALSE; }

BOOL CMFCRibbonBaseElement::HasCompactMode() const { return FALSE; }

void CMFCRibbonBaseElement::SetInitialMode(BOOL bOneRow) {
    m_bCompactMode = FALSE;
    m_bIntermediateMode = HasIntermediateMode() && (bOneRow || !HasLargeMode());
}

void CMFCRibbonBaseElement::SetCompactMode(BOOL bCompactMode) { m_bCompactMode = bCompactMode && HasCompactMode(); }

void CMFCRibbonBaseElement::SetIntermediateMode(BOOL bIntermediateMode) {
    m_bIntermediateMode = bIntermediateMode && HasIntermediateMode();
}

BOOL CMFCRibbonBaseElement::IsAlwaysLargeImage() const { return FALSE; }

void CMFCRibbonBaseElement::SetTextAlwaysOnRight(BOOL bSet) {
    m_bTextAlwaysOnRight = bSet;
    CleanUpSizes();
}

// ---- drawing and state

void CMFCRibbonBaseElement::DrawImage(CDC* /*pDC*/, RibbonImageType /*type*/, CRect /*rectImage*/) {}

BOOL CMFCRibbonBaseElement::OnDrawMenuImage(CDC* /*pDC*/, CRect /*rect*/) { return FALSE; }

void CMFCRibbonBaseElement::Redraw() {
    CWnd* parent = GetParentWnd();
    if (parent != nullptr && parent->GetSafeHwnd() != nullptr && !m_rect.IsRectEmpty()) {
        parent->InvalidateRect(m_rect);
    }
}

void CMFCRibbonBaseElement::SetVisible(BOOL bIsVisible) {
    if (!m_bIsVisible == !bIsVisible) {
        return;
    }
    m_bIsVisible = bIsVisible;
    OnShow(bIsVisible);
    MarkLayoutDirty();
}

BOOL CMFCRibbonBaseElement::IsAutoRepeatMode(int& nDelay) const {
    nDelay = 0;
    return FALSE;
}

BOOL CMFCRibbonBaseElement::CanBeAddedToQuickAccessToolBar() const { return IsCommand(m_nID); }

void CMFCRibbonBaseElement::SetHighlighted(BOOL bHighlighted) {
    if (!m_bIsHighlighted == !bHighlighted) {
        return;
    }
    m_bIsHighlighted = bHighlighted;
    OnHighlight(bHighlighted);
    Redraw();
}

void CMFCRibbonBaseElement::SetFocused(BOOL bFocused) {
    if (!m_bIsFocused == !bFocused) {
        return;
    }
    m_bIsFocused = bFocused;
    OnSetFocus(bFocused);
    Redraw();
    if (bFocused) {
        NotifyAccessibility(EVENT_OBJECT_FOCUS);
    }
}

void CMFCRibbonBaseElement::SetDisabled(BOOL bDisabled) {
    if (!m_bIsDisabled == !bDisabled) {
        return;
    }
    m_bIsDisabled = bDisabled;
    if (bDisabled) {
        SetPressed(FALSE);
    }
    OnEnable(!bDisabled);
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_STATECHANGE);
}

void CMFCRibbonBaseElement::SetPressed(BOOL bPressed) {
    const BOOL changes = !m_bIsPressed != !bPressed;
    m_bIsPressed = bPressed;
    if (changes) {
        NotifyAccessibility(EVENT_OBJECT_STATECHANGE);
    }
}

void CMFCRibbonBaseElement::SetChecked(BOOL bChecked, BOOL bIsRadio) {
    if (!m_bIsChecked == !bChecked && !m_bIsRadio == !bIsRadio) {
        return;
    }
    m_bIsChecked = bChecked;
    m_bIsRadio = bIsRadio;
    OnCheck(bChecked);
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_STATECHANGE);
}

void CMFCRibbonBaseElement::SetDroppedDown(CWnd* pPopup) {
    m_pPopup = pPopup;
    m_bIsDroppedDown = pPopup != nullptr;
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_STATECHANGE);
}

// ---- search

CMFCRibbonBaseElement* CMFCRibbonBaseElement::HitTest(CPoint point) {
    return m_bIsVisible && m_rect.PtInRect(point) ? this : nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonBaseElement::Find(const CMFCRibbonBaseElement* pElement) {
    return pElement == this ? this : nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonBaseElement::FindByID(UINT uiCmdID) { return m_nID == uiCmdID ? this : nullptr; }

CMFCRibbonBaseElement* CMFCRibbonBaseElement::FindByData(DWORD_PTR dwData) {
    return m_dwData == dwData ? this : nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonBaseElement::FindByOriginal(CMFCRibbonBaseElement* pOriginal) {
    return m_pOriginal == pOriginal ? this : nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonBaseElement::GetDroppedDown() { return IsDroppedDown() ? this : nullptr; }

CMFCRibbonBaseElement* CMFCRibbonBaseElement::GetHighlighted() { return IsHighlighted() ? this : nullptr; }

CMFCRibbonBaseElement* CMFCRibbonBaseElement::GetPressed() { return IsPressed() ? this : nullptr; }

void CMFCRibbonBaseElement::GetElements(CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) {
    arElements.Add(this);
}

void CMFCRibbonBaseElement::GetElementsByID(UINT uiCmdID,
                                            CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>& arElements) {
    if (m_nID == uiCmdID) {
        arElements.Add(this);
    }
}
