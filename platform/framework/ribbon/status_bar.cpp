// A status bar of ribbon elements: what it consists of, its layout and how it is painted.
#include "afxribbonstatusbar.h"

#include <algorithm>
#include <utility>

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/scoped_change.h"
#include "fx/window_dc.h"
#include "ribbon/bar_parts.h"
#include "ribbon/drawing_scope.h"
#include "ribbon/element_metrics.h"
#include "ribbon/element_walk.h"
#include "ribbon/status_bar_parts.h"
#include "ribbon/status_layout.h"

IMPLEMENT_DYNCREATE(CMFCRibbonStatusBar, CMFCRibbonBar)

BEGIN_MESSAGE_MAP(CMFCRibbonStatusBar, CMFCRibbonBar)
ON_WM_NCHITTEST()
ON_WM_NCLBUTTONDOWN()
ON_WM_SETFOCUS()
ON_MESSAGE(WM_GETFONT, &CMFCRibbonStatusBar::OnGetFont)
END_MESSAGE_MAP()

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

// At 96 DPI.
constexpr int kMarginY = 2;
constexpr int kAreaGap = 10;
constexpr int kTextMargin = 4;
constexpr int kRoomAboveRow = 2; // a row of a panel has it between its rows

/// Who hears of an element's end may look at the others.
void DeleteAll(ElementArray& elements) {
    ElementArray gone;
    gone.Append(elements);
    elements.RemoveAll();
    for (INT_PTR index = 0; index < gone.GetSize(); ++index) {
        delete gone[index];
    }
}

INT_PTR PlaceOf(const ElementArray& elements, const CMFCRibbonBaseElement* element) {
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (elements[index] == element) {
            return index;
        }
    }
    return -1;
}

CMFCRibbonBaseElement* At(const ElementArray& elements, int index) {
    return index >= 0 && index < elements.GetSize() ? elements[index] : nullptr;
}

std::vector<StatusBarItem> MeasureItems(const ElementArray& elements, CDC& dc) {
    std::vector<StatusBarItem> items;
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        CMFCRibbonBaseElement& element = *elements[index];
        element.OnCalcTextSize(&dc);
        const CSize size = element.GetSize(&dc);
        items.push_back({static_cast<int>(size.cx), static_cast<int>(size.cy), element.IsVisible() != FALSE,
                         element.IsSeparator() != FALSE, element.IsWholeRowHeight() != FALSE});
    }
    return items;
}

void Place(const ElementArray& elements, const std::vector<fx::Rect>& rects, CDC& dc) {
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        elements[index]->SetRect(fx::ToRect(rects[static_cast<std::size_t>(index)]));
        elements[index]->OnAfterChangeRect(&dc);
    }
}

void Draw(const ElementArray& elements, CDC& dc) {
    for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
        if (!elements[index]->GetRect().IsRectEmpty() && dc.RectVisible(elements[index]->GetRect())) {
            elements[index]->OnDraw(&dc);
        }
    }
}

} // namespace

CMFCRibbonStatusBar::CMFCRibbonStatusBar()
    : CMFCRibbonBar(FALSE),
      m_rectInformation(0, 0, 0, 0),
      m_rectSizeGrip(0, 0, 0, 0),
      m_rectBottomResize(0, 0, 0, 0),
      m_statusParts(std::make_unique<RibbonStatusBarParts>()) {
    EnableKeyTips(FALSE); // Alt leads to the frame's ribbon
}

CMFCRibbonStatusBar::~CMFCRibbonStatusBar() {
    // The window first: its messages still need the elements.
    if (GetSafeHwnd() != nullptr) {
        DestroyWindow();
    }
    DeleteAll(m_arElements);
    DeleteAll(m_arExtendedElements);
}

BOOL CMFCRibbonStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, nID);
}

BOOL CMFCRibbonStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CPane::CreateEx(0, windowClass, dwStyle | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pParentWnd,
                         nID, dwCtrlStyle & ~static_cast<DWORD>(SBARS_SIZEGRIP))) {
        return FALSE;
    }
    SetPaneAlignment(CBRS_ALIGN_BOTTOM);
    const CFrameWnd* const frame = GetParentFrame();
    const bool canBeResized = frame != nullptr && (frame->GetStyle() & WS_THICKFRAME) != 0;
    if (canBeResized || (dwCtrlStyle & SBARS_SIZEGRIP) != 0) {
        ModifyStyle(0, SBARS_SIZEGRIP);
    }
    MarkLayoutDirty();
    return TRUE;
}

// ---- elements

void CMFCRibbonStatusBar::Add(Area area, CMFCRibbonBaseElement* element, LPCTSTR label, BOOL isVisible) {
    if (element == nullptr) {
        return;
    }
    element->SetParentRibbonBar(this);
    element->SetInitialMode(TRUE);
    element->SetVisible(isVisible);
    (area == Area::Main ? m_arElements : m_arExtendedElements).Add(element);
    if (label != nullptr && *label != L'\0') {
        m_statusParts->labels.push_back({element, label});
    }
    MarkLayoutDirty();
}

void CMFCRibbonStatusBar::AddElement(CMFCRibbonBaseElement* pElement, LPCTSTR lpszLabel, BOOL bIsVisible) {
    Add(Area::Main, pElement, lpszLabel, bIsVisible);
}

void CMFCRibbonStatusBar::AddExtendedElement(CMFCRibbonBaseElement* pElement, LPCTSTR lpszLabel, BOOL bIsVisible) {
    Add(Area::Extended, pElement, lpszLabel, bIsVisible);
}

void CMFCRibbonStatusBar::AddDynamicElement(CMFCRibbonBaseElement* pElement) {
    Add(Area::Main, pElement, nullptr, TRUE);
}

void CMFCRibbonStatusBar::AddSeparator() { Add(Area::Main, new CMFCRibbonSeparator, nullptr, TRUE); }

void CMFCRibbonStatusBar::OnElementDestroyed(CMFCRibbonBaseElement* pElement) {
    std::erase_if(m_statusParts->labels, [pElement](const auto& label) { return label.element == pElement; });
    CMFCRibbonBar::OnElementDestroyed(pElement);
}

BOOL CMFCRibbonStatusBar::RemoveElement(UINT uiID) {
    CMFCRibbonBaseElement* const element = FindElement(uiID);
    if (element == nullptr) {
        return FALSE;
    }
    EndInput();
    for (ElementArray* elements : {&m_arElements, &m_arExtendedElements}) {
        // Host code that ran meanwhile may have removed it.
        if (const INT_PTR place = PlaceOf(*elements, element); place >= 0) {
            elements->RemoveAt(place);
            delete element;
            break;
        }
    }
    MarkLayoutDirty();
    return TRUE;
}

void CMFCRibbonStatusBar::RemoveAll() {
    EndInput();
    DeleteAll(m_arElements);
    DeleteAll(m_arExtendedElements);
    MarkLayoutDirty();
}

int CMFCRibbonStatusBar::GetCount() const { return static_cast<int>(m_arElements.GetSize()); }

CMFCRibbonBaseElement* CMFCRibbonStatusBar::GetElement(int nIndex) { return At(m_arElements, nIndex); }

int CMFCRibbonStatusBar::GetExCount() const { return static_cast<int>(m_arExtendedElements.GetSize()); }

CMFCRibbonBaseElement* CMFCRibbonStatusBar::GetExElement(int nIndex) { return At(m_arExtendedElements, nIndex); }

CMFCRibbonBaseElement* CMFCRibbonStatusBar::FindElement(UINT uiID) {
    for (const ElementArray* elements : {&m_arElements, &m_arExtendedElements}) {
        for (INT_PTR index = 0; index < elements->GetSize(); ++index) {
            if ((*elements)[index]->GetID() == uiID) {
                return (*elements)[index];
            }
        }
    }
    return nullptr;
}

CMFCRibbonBaseElement* CMFCRibbonStatusBar::FindByID(UINT uiCmdID, BOOL bVisibleOnly) {
    return CMFCRibbonBar::FindByID(uiCmdID, bVisibleOnly, TRUE);
}

BOOL CMFCRibbonStatusBar::IsExtendedElement(CMFCRibbonBaseElement* pElement) const {
    return PlaceOf(m_arExtendedElements, pElement) >= 0;
}

void CMFCRibbonStatusBar::GetBarElements(ElementArray& arElements) const {
    arElements.Append(m_arElements);
    arElements.Append(m_arExtendedElements);
}

// ---- information mode

void CMFCRibbonStatusBar::SetInformation(LPCTSTR lpszInfo) {
    const CString text = lpszInfo != nullptr ? lpszInfo : L"";
    if (text == m_strInformation) {
        return;
    }
    m_strInformation = text;
    if (GetSafeHwnd() != nullptr) {
        RecalcLayout();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    }
}

void CMFCRibbonStatusBar::OnDrawInformation(CDC* pDC, CString& strInfo, CRect rectInfo) {
    rectInfo.DeflateRect(GetMetrics().Scaled(kTextMargin), 0);
    pDC->DrawText(strInfo, rectInfo, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
}

// ---- layout

int CMFCRibbonStatusBar::GetSizeGripWidth() const {
    const CFrameWnd* const frame = GetParentFrame();
    if ((GetStyle() & SBARS_SIZEGRIP) == 0 || (frame != nullptr && frame->IsZoomed())) {
        return 0;
    }
    CRect client;
    GetClientRect(client);
    return std::min(::GetSystemMetrics(SM_CXVSCROLL) + 1, client.Height());
}

void CMFCRibbonStatusBar::RecalcLayout() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(client);
    CClientDC dc(this);
    RibbonFontScope font(dc);
    const RibbonMetrics& metrics = GetMetrics();
    StatusBarShape shape;
    shape.client = {client.Width(), client.Height()};
    shape.gripWidth = GetSizeGripWidth();
    shape.borderHeight = m_bIsBottomFrame ? ::GetSystemMetrics(SM_CYSIZEFRAME) : 0;
    shape.marginY = metrics.Scaled(kMarginY);
    shape.gap = metrics.Scaled(kAreaGap);
    shape.showsInformation = IsInformationMode() != FALSE;
    shape.elements = MeasureItems(m_arElements, dc);
    shape.extended = MeasureItems(m_arExtendedElements, dc);

    const StatusBarPlaces places = ArrangeStatusBar(shape);
    Place(m_arElements, places.elements, dc);
    Place(m_arExtendedElements, places.extended, dc);
    m_rectInformation = fx::ToRect(places.information);
    m_rectSizeGrip = fx::ToRect(places.sizeGrip);
    m_rectBottomResize = fx::ToRect(places.bottomResize);
    m_nSpace = places.space;
}

void CMFCRibbonStatusBar::EnsureLayout() {
    RibbonBarParts& parts = GetParts();
    if (GetSafeHwnd() == nullptr || parts.isLayingOut) {
        return;
    }
    CRect client;
    GetClientRect(client);
    const RibbonStatusBarParts::LaidOut now{client.Size(), GetSizeGripWidth()};
    if (!parts.layoutDirty && now == m_statusParts->laidOut) {
        return;
    }
    {
        const fx::ScopedChange layingOut(parts.isLayingOut, true);
        UpdateMetrics();
        RecalcLayout();
    }
    parts.layoutDirty = false;
    m_statusParts->laidOut = now;
    OnLaidOut();
    if (client.Height() != CalcFixedLayout(FALSE, TRUE).cy) {
        AskFrameForRoom();
    }
}

CSize CMFCRibbonStatusBar::CalcFixedLayout(BOOL bStretch, BOOL /*bHorz*/) {
    UpdateMetrics();
    const ribbon::FaceMetrics face{GetMetrics().scale, GetMetrics().textHeight};
    const int border = m_bIsBottomFrame ? ::GetSystemMetrics(SM_CYSIZEFRAME) : 0;
    CRect parent(0, 0, 0, 0);
    if (const CWnd* const parentWindow = GetParent()) {
        parentWindow->GetClientRect(parent);
    }
    return {bStretch ? 32767 : static_cast<int>(parent.Width()),
            face.RowHeight() + face.Scaled(kRoomAboveRow) + 2 * face.Scaled(kMarginY) + border};
}

BOOL CMFCRibbonStatusBar::GetExtendedArea(CRect& rect) const {
    GetClientRect(rect);
    const int right = rect.right;
    rect.left = right;
    for (INT_PTR index = 0; index < m_arExtendedElements.GetSize(); ++index) {
        const CRect place = m_arExtendedElements[index]->GetRect();
        if (!place.IsRectEmpty()) {
            rect.left = std::min(rect.left, place.left);
        }
    }
    return rect.left < right;
}

CMFCRibbonBaseElement* CMFCRibbonStatusBar::HitTest(CPoint point, BOOL /*bCheckActiveCategory*/,
                                                    BOOL /*bCheckPanelCaption*/) {
    EnsureLayout();
    // What was drawn last lies on top.
    ElementArray elements;
    GetBarElements(elements);
    for (INT_PTR index = elements.GetSize(); index-- > 0;) {
        if (CMFCRibbonBaseElement* const hit = elements[index]->HitTest(point)) {
            return hit;
        }
    }
    return nullptr;
}

// ---- painting

void CMFCRibbonStatusBar::DoPaint(CDC* pDC) {
    EnsureLayout();
    CRect client;
    GetClientRect(client);
    CRect clip;
    if (pDC->GetClipBox(clip) == NULLREGION || clip.IsRectEmpty()) {
        clip = client;
    }
    const DrawingScope drawing(GetParts().isDrawing);
    RibbonFontScope font(*pDC);
    const int previousMode = pDC->SetBkMode(TRANSPARENT);
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnFillBarBackground(pDC, this, client, clip);
    {
        const COLORREF color = manager->GetRibbonStatusBarTextColor(this);
        const fx::TextColour text(*pDC, color == static_cast<COLORREF>(-1) ? afxGlobalData.clrBarText : color);
        if (IsInformationMode()) {
            CString information = m_strInformation;
            OnDrawInformation(pDC, information, m_rectInformation);
        }
        Draw(m_arElements, *pDC);
        Draw(m_arExtendedElements, *pDC);
    }
    if (!m_rectSizeGrip.IsRectEmpty()) {
        manager->OnDrawStatusBarSizeBox(pDC, nullptr, m_rectSizeGrip);
    }
    GetKeyboard().DrawFocus(*pDC);
    pDC->SetBkMode(previousMode);
}

LRESULT CMFCRibbonStatusBar::OnGetFont(WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return reinterpret_cast<LRESULT>(afxGlobalData.fontRegular.GetSafeHandle());
}
