#include <afxRibbonProgressBar.h>

#include <algorithm>
#include <tuple>
#include <utility>

#include <afxvisualmanager.h>
#include <oleacc.h>

#include "fx/accessibility_data.h"
#include "ribbon/element_metrics.h"

IMPLEMENT_DYNCREATE(CMFCRibbonProgressBar, CMFCRibbonBaseElement)

namespace {

// Of the whole bar, in infinite mode.
constexpr int kPieces = 4;
// Above and below the bar in its rectangle, at 96 DPI, where there is room.
constexpr int kBarHeight = 10;

} // namespace

CMFCRibbonProgressBar::CMFCRibbonProgressBar(UINT nID, int nWidth, int nHeight) : m_nWidth(nWidth), m_nHeight(nHeight) {
    m_nID = nID;
}

void CMFCRibbonProgressBar::SetRange(int nMin, int nMax) {
    std::tie(m_nMin, m_nMax) = std::minmax(nMin, nMax);
    SetPos(m_nPos);
}

void CMFCRibbonProgressBar::SetPos(int nPos, BOOL bRedraw) {
    const long long range = static_cast<long long>(m_nMax) - m_nMin + 1;
    if (m_bInfiniteMode) {
        const long long rest = (static_cast<long long>(nPos) - m_nMin) % range;
        nPos = static_cast<int>(m_nMin + (rest + range) % range);
    }
    const int pos = std::clamp(nPos, m_nMin, m_nMax);
    if (std::exchange(m_nPos, pos) == pos) {
        return;
    }
    NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
    if (bRedraw) {
        Redraw();
    }
}

void CMFCRibbonProgressBar::SetInfiniteMode(BOOL bSet) {
    if (!m_bInfiniteMode != !bSet) {
        m_bInfiniteMode = bSet;
        Redraw();
    }
}

CSize CMFCRibbonProgressBar::GetRegularSize(CDC* /*pDC*/) {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    return {metrics.Scaled(m_nWidth), metrics.Scaled(m_nHeight)};
}

void CMFCRibbonProgressBar::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonBaseElement::CopyFrom(src);
    if (const auto* const bar = dynamic_cast<const CMFCRibbonProgressBar*>(&src); bar != nullptr) {
        m_nWidth = bar->m_nWidth;
        m_nHeight = bar->m_nHeight;
        m_nMin = bar->m_nMin;
        m_nMax = bar->m_nMax;
        m_nPos = bar->m_nPos;
        m_bInfiniteMode = bar->m_bInfiniteMode;
    }
}

void CMFCRibbonProgressBar::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    const int height = std::min<int>(m_rect.Height(), ribbon::CurrentMetrics().Scaled(kBarHeight));
    CRect whole = m_rect;
    whole.DeflateRect(m_szMargin.cx, 0);
    whole.top += (m_rect.Height() - height) / 2;
    whole.bottom = whole.top + height;
    CRect chunk = whole;
    const long long range = static_cast<long long>(m_nMax) - m_nMin;
    const double share = range > 0 ? static_cast<double>(static_cast<long long>(m_nPos) - m_nMin) / range : 0.0;
    if (m_bInfiniteMode) {
        const int piece = whole.Width() / kPieces;
        chunk.left = whole.left + static_cast<int>((whole.Width() - piece) * share);
        chunk.right = chunk.left + piece;
    } else {
        chunk.right = whole.left + static_cast<int>(whole.Width() * share + 0.5);
    }
    CMFCVisualManager::GetInstance()->OnDrawRibbonProgressBar(pDC, this, whole, chunk, m_bInfiniteMode);
}

// ---- for assistive programs

BOOL CMFCRibbonProgressBar::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonBaseElement::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_PROGRESSBAR;
    if (!m_bInfiniteMode) {
        data.m_strValue.Format(L"%d", m_nPos);
    }
    return TRUE;
}
