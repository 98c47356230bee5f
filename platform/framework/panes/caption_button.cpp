#include "afxcaptionbutton.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"

IMPLEMENT_DYNAMIC(CMFCCaptionButton, CObject)

namespace {

constexpr int kSide = 15; // at 96 DPI, without what a visual manager adds

} // namespace

CMFCCaptionButton::CMFCCaptionButton() = default;

CMFCCaptionButton::CMFCCaptionButton(UINT nHit, BOOL bLeftAlign) : m_nHit(nHit), m_bLeftAlign(bLeftAlign) {}

CSize CMFCCaptionButton::GetSize() {
    const int side = afxGlobalData.ScalePixels(kSide);
    return CSize(side, side) + CMFCVisualManager::GetInstance()->GetCaptionButtonExtraBorder();
}

CRect CMFCCaptionButton::GetRect() const { return {m_ptPos, m_bHidden ? CSize(0, 0) : GetSize()}; }

void CMFCCaptionButton::Move(const CPoint& ptTo, BOOL bHide) {
    m_ptPos = ptTo;
    m_bHidden = bHide;
}

void CMFCCaptionButton::OnDraw(CDC* pDC, BOOL bActive, BOOL bHorz, BOOL bMaximized, BOOL bDisabled) {
    if (!m_bHidden) {
        CMFCVisualManager::GetInstance()->OnDrawCaptionButton(pDC, this, bActive, bHorz, bMaximized, bDisabled);
    }
}
