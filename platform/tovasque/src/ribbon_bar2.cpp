#include "tovasque/ribbon_bar2.h"

IMPLEMENT_DYNAMIC(CMFCRibbonBar2, CMFCRibbonBar)

BEGIN_MESSAGE_MAP(CMFCRibbonBar2, CMFCRibbonBar)
END_MESSAGE_MAP()

CMFCRibbonBar2::CMFCRibbonBar2(int nReplaceFrameCaption) : CMFCRibbonBar(nReplaceFrameCaption ? TRUE : FALSE) {}

CMFCRibbonBar2::~CMFCRibbonBar2() = default;

void CMFCRibbonBar2::ChangeSkinColor(int nStyle, bool bFlag) {
    m_nSkinStyle = nStyle;
    m_bSkinFlag = bFlag ? TRUE : FALSE;
    if (GetSafeHwnd() != nullptr) {
        Invalidate();
    }
}

BOOL CMFCRibbonBar2::OnShowRibbonContextMenu(CWnd* pWnd, int x, int y, CMFCRibbonBaseElement* pHit) {
    return m_bContextMenu ? CMFCRibbonBar::OnShowRibbonContextMenu(pWnd, x, y, pHit) : FALSE;
}
