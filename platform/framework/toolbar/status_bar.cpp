// A status bar's panes: what they hold and where they lie.
#include "afxstatusbar.h"

#include "afxglobals.h"
#include "afxtooltipmanager.h"
#include "afxvisualmanager.h"
#include "toolbar/metrics.h"
#include "toolbar/status_bar_parts.h"

#include <algorithm>
#include <utility>

using toolbar::Scaled;

IMPLEMENT_DYNCREATE(CMFCStatusBar, CPane)

BEGIN_MESSAGE_MAP(CMFCStatusBar, CPane)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
ON_WM_LBUTTONDBLCLK()
ON_WM_NCHITTEST()
ON_WM_TIMER()
ON_MESSAGE(WM_SETTEXT, &CMFCStatusBar::OnSetText)
ON_MESSAGE(WM_GETTEXT, &CMFCStatusBar::OnGetText)
ON_MESSAGE(WM_GETTEXTLENGTH, &CMFCStatusBar::OnGetTextLength)
ON_REGISTERED_MESSAGE(AFX_WM_UPDATETOOLTIPS, &CMFCStatusBar::OnUpdateToolTips)
END_MESSAGE_MAP()

namespace {

// At 96 DPI: around the content of a pane, between panes, above and below the text, and at the bar's ends.
constexpr int kPaneMargin = 4;
constexpr int kPaneGap = 3;
constexpr int kTextMargin = 3;
constexpr int kEndMargin = 2;
constexpr int kMessageWidth = 100;

int TextWidth(const CString& text) {
    CClientDC dc(nullptr);
    CFont* const before = dc.SelectObject(&afxGlobalData.fontRegular);
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text, rect, DT_SINGLELINE | DT_CALCRECT | DT_NOPREFIX);
    dc.SelectObject(before);
    return rect.Width();
}

/// A pane of the bar as an update handler sees it.
class PaneCmdUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        auto& bar = *static_cast<CMFCStatusBar*>(m_pOther);
        const auto index = static_cast<int>(m_nIndex);
        const UINT style = bar.GetPaneStyle(index) & ~static_cast<UINT>(SBPS_DISABLED);
        bar.SetPaneStyle(index, bOn ? style : style | SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override {
        auto& bar = *static_cast<CMFCStatusBar*>(m_pOther);
        const auto index = static_cast<int>(m_nIndex);
        const UINT style = bar.GetPaneStyle(index) & ~static_cast<UINT>(SBPS_POPOUT);
        bar.SetPaneStyle(index, nCheck != 0 ? style | SBPS_POPOUT : style);
    }
    void SetText(LPCTSTR lpszText) override {
        static_cast<CMFCStatusBar*>(m_pOther)->SetPaneText(static_cast<int>(m_nIndex), lpszText);
    }
};

} // namespace

CMFCStatusBar::Pane::~Pane() { SetImages(nullptr); }

void CMFCStatusBar::Pane::SetImages(HIMAGELIST newImages) {
    if (images != nullptr) {
        ::ImageList_Destroy(images);
    }
    images = newImages;
    frame = 0;
    frameTime = 0;
    cxIcon = ImageSize().cx;
}

CSize CMFCStatusBar::Pane::ImageSize() const {
    int width = 0;
    int height = 0;
    return images != nullptr && ::ImageList_GetIconSize(images, &width, &height) ? CSize(width, height) : CSize(0, 0);
}

CMFCStatusBar::CMFCStatusBar() = default;
CMFCStatusBar::~CMFCStatusBar() { DestroyWindow(); }

CMFCStatusBar::Pane* CMFCStatusBar::Find(int nIndex) const {
    return nIndex >= 0 && nIndex < GetCount() ? m_panes[static_cast<std::size_t>(nIndex)].get() : nullptr;
}

// ---- the window

BOOL CMFCStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) { return CreateEx(pParentWnd, 0, dwStyle, nID); }

BOOL CMFCStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    m_dwCtrlStyle = dwCtrlStyle;
    return CPane::CreateEx(0, nullptr, dwStyle, CRect(0, 0, 0, 0), pParentWnd, nID,
                           AFX_DEFAULT_PANE_STYLE & ~static_cast<DWORD>(AFX_CBRS_CLOSE | AFX_CBRS_FLOAT));
}

BOOL CMFCStatusBar::PreCreateWindow(CREATESTRUCT& cs) { return CPane::PreCreateWindow(cs); }

int CMFCStatusBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CPane::OnCreate(lpCreateStruct) == -1) {
        return -1;
    }
    CTooltipManager::CreateToolTip(m_pToolTip, this, AFX_TOOLTIP_TYPE_DEFAULT);
    PlacePanes();
    return 0;
}

void CMFCStatusBar::OnDestroy() {
    CTooltipManager::DeleteToolTip(m_pToolTip);
    CPane::OnDestroy();
}

void CMFCStatusBar::OnSize(UINT nType, int cx, int cy) {
    CPane::OnSize(nType, cx, cy);
    PlacePanes();
}

void CMFCStatusBar::RecalcLayout() {
    CPane::RecalcLayout();
    PlacePanes();
}

CSize CMFCStatusBar::CalcFixedLayout(BOOL, BOOL) {
    int content = afxGlobalData.GetCharacterHeight();
    for (const std::unique_ptr<Pane>& pane : m_panes) {
        content = std::max<int>(content, pane->ImageSize().cy);
    }
    constexpr int kAsLongAsThereIs = 32767;
    return CSize(kAsLongAsThereIs, content + 2 * Scaled(kTextMargin + 1));
}

// The frame's corner, as long as it can be pulled.
bool CMFCStatusBar::HasSizeGrip() const {
    const CFrameWnd* const frame = GetTopLevelFrame();
    const bool isWanted = (m_dwCtrlStyle & SBARS_SIZEGRIP) != 0 || (GetPaneStyle() & CBRS_ALIGN_BOTTOM) != 0;
    return isWanted && frame != nullptr && (frame->GetStyle() & WS_THICKFRAME) != 0 && !frame->IsZoomed();
}

CRect CMFCStatusBar::GetGripRect() const {
    CRect grip(0, 0, 0, 0);
    if (m_hWnd != nullptr && HasSizeGrip()) {
        GetClientRect(&grip);
        grip.left = std::max<LONG>(grip.left, grip.right - ::GetSystemMetrics(SM_CXVSCROLL));
        grip.top = std::max<LONG>(grip.top, grip.bottom - ::GetSystemMetrics(SM_CYHSCROLL));
    }
    return grip;
}

void CMFCStatusBar::PlacePanes() {
    if (m_hWnd == nullptr) {
        return;
    }
    CRect room;
    GetClientRect(&room);
    room.DeflateRect(Scaled(kEndMargin), 1);
    room.right -= GetGripRect().Width();
    std::vector<toolbar::StatusPaneWidth> widths;
    for (const std::unique_ptr<Pane>& pane : m_panes) {
        const int image = pane->cxIcon > 0 ? pane->cxIcon + Scaled(kPaneMargin) : 0;
        widths.push_back({pane->cxText + image + 2 * Scaled(kPaneMargin), (pane->nStyle & SBPS_STRETCH) != 0});
    }
    const auto places = toolbar::PlaceStatusPanes(widths, room.Width(), Scaled(kPaneGap));
    for (std::size_t index = 0; index < places.size(); ++index) {
        m_panes[index]->rect =
            places[index].right > places[index].left
                ? CRect(room.left + places[index].left, room.top, room.left + places[index].right, room.bottom)
                : CRect(0, 0, 0, 0);
    }
    UpdateTooltip();
    Invalidate();
}

LRESULT CMFCStatusBar::OnNcHitTest(CPoint point) {
    ScreenToClient(&point);
    if (GetGripRect().PtInRect(point)) {
        const bool isMirrored = (GetExStyle() & WS_EX_LAYOUTRTL) != 0;
        return isMirrored ? HTBOTTOMLEFT : HTBOTTOMRIGHT;
    }
    return CPane::OnNcHitTest(point);
}

// ---- panes

BOOL CMFCStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    std::vector<std::unique_ptr<Pane>> panes;
    for (int index = 0; index < nIDCount; ++index) {
        auto pane = std::make_unique<Pane>();
        pane->nID = lpIDArray != nullptr ? lpIDArray[index] : 0;
        if (pane->nID != 0 && !pane->strText.LoadString(pane->nID)) {
            return FALSE;
        }
        pane->cxText = pane->nID != 0 ? TextWidth(pane->strText) : Scaled(kMessageWidth);
        if (index == 0) {
            pane->nStyle |= SBPS_STRETCH | SBPS_NOBORDERS;
        }
        panes.push_back(std::move(pane));
    }
    m_panes.swap(panes);
    PlacePanes();
    return TRUE;
}

int CMFCStatusBar::CommandToIndex(UINT nIDFind) const {
    const auto found =
        std::ranges::find_if(m_panes, [nIDFind](const std::unique_ptr<Pane>& pane) { return pane->nID == nIDFind; });
    return found != m_panes.end() ? static_cast<int>(found - m_panes.begin()) : -1;
}

UINT CMFCStatusBar::GetItemID(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr ? pane->nID : 0;
}

void CMFCStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    const Pane* const pane = Find(nIndex);
    *lpRect = pane != nullptr ? static_cast<const RECT&>(pane->rect) : RECT{0, 0, 0, 0};
}

void CMFCStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    nID = GetItemID(nIndex);
    nStyle = GetPaneStyle(nIndex);
    cxWidth = GetPaneWidth(nIndex);
}

void CMFCStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    if (Pane* const pane = Find(nIndex)) {
        pane->nID = nID;
        pane->nStyle = nStyle;
        pane->cxText = cxWidth;
        PlacePanes();
    }
}

int CMFCStatusBar::GetPaneWidth(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr ? pane->cxText : 0;
}

void CMFCStatusBar::SetPaneWidth(int nIndex, int cx) {
    if (Pane* const pane = Find(nIndex); pane != nullptr && pane->cxText != cx) {
        pane->cxText = cx;
        PlacePanes();
    }
}

UINT CMFCStatusBar::GetPaneStyle(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr ? pane->nStyle : 0;
}

void CMFCStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    Pane* const pane = Find(nIndex);
    if (pane == nullptr || pane->nStyle == nStyle) {
        return;
    }
    const bool moves = ((pane->nStyle ^ nStyle) & SBPS_STRETCH) != 0;
    pane->nStyle = nStyle;
    if (moves) {
        PlacePanes();
    } else {
        InvalidatePaneContent(nIndex);
    }
}

CString CMFCStatusBar::GetPaneText(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr ? pane->strText : CString();
}

void CMFCStatusBar::GetPaneText(int nIndex, CString& s) const { s = GetPaneText(nIndex); }

BOOL CMFCStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    Pane* const pane = Find(nIndex);
    if (pane == nullptr) {
        return FALSE;
    }
    const CString text = lpszNewText != nullptr ? lpszNewText : L"";
    if (pane->strText != text) {
        pane->strText = text;
        Redraw(nIndex, bUpdate);
    }
    return TRUE;
}

CString CMFCStatusBar::GetTipText(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr ? pane->strToolTip : CString();
}

void CMFCStatusBar::SetTipText(int nIndex, LPCTSTR pszTipText) {
    if (Pane* const pane = Find(nIndex)) {
        pane->strToolTip = pszTipText != nullptr ? pszTipText : L"";
        UpdateTooltip();
    }
}

void CMFCStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    PaneCmdUI state;
    state.m_pOther = this;
    const HWND window = m_hWnd;
    for (state.m_nIndex = 0; state.m_nIndex < static_cast<UINT>(GetCount()); ++state.m_nIndex) {
        state.m_nIndexMax = static_cast<UINT>(GetCount());
        state.m_nID = GetItemID(static_cast<int>(state.m_nIndex));
        if (state.m_nID == 0 || CWnd::OnCmdMsg(state.m_nID, CN_UPDATE_COMMAND_UI, &state, nullptr)) {
            continue;
        }
        state.DoUpdate(pTarget, FALSE); // a pane without a handler is only a text
        if (window != nullptr && !::IsWindow(window)) {
            return; // a handler has destroyed the bar
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

// The frame's messages go to the pane for them.
LRESULT CMFCStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    return SetPaneText(CommandToIndex(0), reinterpret_cast<LPCTSTR>(lParam)) ? 0 : -1;
}

LRESULT CMFCStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    const CString text = GetPaneText(CommandToIndex(0));
    auto* const target = reinterpret_cast<LPTSTR>(lParam);
    if (wParam == 0 || target == nullptr) {
        return 0;
    }
    const auto length = std::min<WPARAM>(wParam - 1, static_cast<WPARAM>(text.GetLength()));
    std::copy_n(text.GetString(), length, target);
    target[length] = 0;
    return static_cast<LRESULT>(length);
}

LRESULT CMFCStatusBar::OnGetTextLength(WPARAM, LPARAM) { return GetPaneText(CommandToIndex(0)).GetLength(); }
