#include "afxext.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"

#include "window/control_message.h"

#include <algorithm>
#include <utility>

using namespace control;

IMPLEMENT_DYNAMIC(CStatusBar, CControlBar)

BEGIN_MESSAGE_MAP(CStatusBar, CControlBar)
ON_WM_PAINT()
ON_WM_SIZE()
ON_MESSAGE(WM_SETTEXT, &CStatusBar::OnSetText)
END_MESSAGE_MAP()

namespace {

/// What an update handler says goes to one pane.
class StatusCmdUI : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_bEnableChanged = TRUE;
        Change(bOn ? 0 : SBPS_DISABLED, SBPS_DISABLED);
    }
    void SetCheck(int nCheck) override { Change(nCheck ? SBPS_POPOUT : 0, SBPS_POPOUT); }
    void SetText(LPCTSTR lpszText) override { Bar().SetPaneText(Index(), lpszText); }

private:
    CStatusBar& Bar() { return *static_cast<CStatusBar*>(m_pOther); }
    int Index() const { return static_cast<int>(m_nIndex); }
    void Change(UINT add, UINT mask) { Bar().SetPaneStyle(Index(), (Bar().GetPaneStyle(Index()) & ~mask) | add); }
};

} // namespace

CStatusBar::CStatusBar() : m_control(std::make_unique<CStatusBarCtrl>()) {}

CStatusBar::~CStatusBar() { DestroyWindow(); }

BOOL CStatusBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) { return CreateEx(pParentWnd, 0, dwStyle, nID); }

BOOL CStatusBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, UINT nID) {
    EnsureCommonControls();
    m_dwStyle = dwStyle & CBRS_ALL;
    DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                  CCS_NODIVIDER | CCS_NORESIZE;
    if (pParentWnd->GetStyle() & WS_THICKFRAME) {
        style |= SBARS_SIZEGRIP;
    }
    return CWnd::CreateEx(0, STATUSCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID);
}

CStatusBarCtrl& CStatusBar::GetStatusBarCtrl() const {
    m_control->m_hWnd = m_hWnd;
    return *m_control;
}

BOOL CStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    m_panes.assign(static_cast<size_t>(nIDCount), Pane());
    m_nCount = nIDCount;
    CClientDC dc(this);
    const fx::DcSelection font(dc, Send<HFONT>(*this, WM_GETFONT));
    BOOL areAllFound = TRUE;
    for (int index = 0; index < nIDCount; ++index) {
        Pane& pane = m_panes[static_cast<size_t>(index)];
        if (lpIDArray) {
            pane.id = lpIDArray[index];
        }
        if (pane.id != ID_SEPARATOR) {
            CString text;
            areAllFound &= text.LoadString(pane.id);
            pane.text = text;
            SIZE size{};
            ::GetTextExtentPoint32W(dc.m_hDC, text, text.GetLength(), &size);
            pane.width = size.cx;
        } else {
            pane.width = ::GetSystemMetrics(SM_CXSCREEN) / 4;
        }
    }
    if (!m_panes.empty() && m_panes.front().id == ID_SEPARATOR) {
        m_panes.front().style = SBPS_STRETCH | SBPS_NOBORDERS;
    }
    PlacePanes();
    for (int index = 0; index < nIDCount; ++index) {
        ShowPane(index);
    }
    return areAllFound;
}

void CStatusBar::PlacePanes() {
    if (m_panes.empty() || !m_hWnd) {
        return;
    }
    int borders[3] = {};
    Send(*this, SB_GETBORDERS, 0, borders);
    CRect client;
    GetClientRect(&client);
    const bool hasGrip = (GetStyle() & SBARS_SIZEGRIP) != 0 && GetParent() && !GetParent()->IsZoomed();
    const int gap = borders[2];
    const int textMargin = 2 * ::GetSystemMetrics(SM_CXEDGE) + borders[0];

    int wanted = 0;
    int stretching = 0;
    for (const Pane& pane : m_panes) {
        wanted += pane.width + 2 * textMargin + gap;
        stretching += (pane.style & SBPS_STRETCH) ? 1 : 0;
    }
    const int room = client.Width() - borders[0] - (hasGrip ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
    const int extra = stretching ? (room - wanted) / stretching : 0;
    std::vector<int> edges;
    int edge = borders[0];
    for (const Pane& pane : m_panes) {
        const int width = pane.width + ((pane.style & SBPS_STRETCH) ? extra : 0);
        edge += std::max(width, 0) + 2 * textMargin + gap;
        edges.push_back(edge - gap);
    }
    Send(*this, SB_SETPARTS, static_cast<int>(edges.size()), edges.data());
}

void CStatusBar::ShowPane(int index) {
    const Pane& pane = m_panes[static_cast<size_t>(index)];
    const UINT drawing = pane.style & (SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW);
    const LPCTSTR text = (pane.style & SBPS_DISABLED) ? L"" : static_cast<LPCTSTR>(pane.text);
    Send(*this, SB_SETTEXTW, static_cast<UINT>(index) | drawing, text);
}

int CStatusBar::CommandToIndex(UINT nIDFind) const {
    const auto found =
        std::find_if(m_panes.begin(), m_panes.end(), [nIDFind](const Pane& pane) { return pane.id == nIDFind; });
    return found == m_panes.end() ? -1 : static_cast<int>(found - m_panes.begin());
}

UINT CStatusBar::GetItemID(int nIndex) const { return m_panes.at(static_cast<size_t>(nIndex)).id; }

void CStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const { Send(*this, SB_GETRECT, nIndex, lpRect); }

void CStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    const Pane& pane = m_panes.at(static_cast<size_t>(nIndex));
    nID = pane.id;
    nStyle = pane.style;
    cxWidth = pane.width;
}

void CStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    Pane& pane = m_panes.at(static_cast<size_t>(nIndex));
    pane.id = nID;
    pane.style = nStyle;
    pane.width = cxWidth;
    PlacePanes();
    ShowPane(nIndex);
}

UINT CStatusBar::GetPaneStyle(int nIndex) const { return m_panes.at(static_cast<size_t>(nIndex)).style; }

void CStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    Pane& pane = m_panes.at(static_cast<size_t>(nIndex));
    const UINT former = std::exchange(pane.style, nStyle);
    if (former == nStyle) {
        return;
    }
    if ((former ^ nStyle) & SBPS_STRETCH) {
        PlacePanes();
    }
    ShowPane(nIndex);
}

CString CStatusBar::GetPaneText(int nIndex) const { return m_panes.at(static_cast<size_t>(nIndex)).text; }

void CStatusBar::GetPaneText(int nIndex, CString& rString) const { rString = GetPaneText(nIndex); }

BOOL CStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    if (nIndex < 0 || static_cast<size_t>(nIndex) >= m_panes.size()) {
        return FALSE;
    }
    Pane& pane = m_panes[static_cast<size_t>(nIndex)];
    const CString text = lpszNewText ? lpszNewText : L"";
    if (pane.text != text) {
        pane.text = text;
        if (bUpdate) {
            ShowPane(nIndex);
        }
    }
    return TRUE;
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    const int messagePane = CommandToIndex(ID_SEPARATOR);
    return messagePane >= 0 ? SetPaneText(messagePane, reinterpret_cast<LPCTSTR>(lParam)) : Default();
}

// The system's window draws the panes; a bar of another kind would draw itself.
void CStatusBar::OnPaint() { Default(); }

void CStatusBar::OnSize(UINT nType, int cx, int cy) {
    CControlBar::OnSize(nType, cx, cy);
    PlacePanes();
}

CSize CStatusBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    CClientDC dc(this);
    const fx::DcSelection font(dc, Send<HFONT>(*this, WM_GETFONT));
    TEXTMETRIC metrics{};
    ::GetTextMetricsW(dc.m_hDC, &metrics);
    int borders[3] = {};
    Send(*this, SB_GETBORDERS, 0, borders);
    CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
    size.cy = metrics.tmHeight + 4 * ::GetSystemMetrics(SM_CYBORDER) + 2 * borders[1] + m_rectBorders.top +
              m_rectBorders.bottom;
    return size;
}

void CStatusBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    StatusCmdUI state;
    state.m_pOther = this;
    state.m_nIndexMax = static_cast<UINT>(m_panes.size());
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        state.m_nID = m_panes[state.m_nIndex].id;
        if (state.m_nID != ID_SEPARATOR) {
            state.DoUpdate(pTarget, FALSE);
        }
    }
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CStatusBar::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatusBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) {
        return CControlBar::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
