#include "afxrecentDockSiteInfo.h"

void CRecentDockSiteInfo::Init() {
    m_rectRecentFloatingRect.SetRectEmpty();
    m_dwRecentAlignment = 0;
    m_nRecentRowID = 0;
    m_nRecentRowIndex = 0;
    m_nRecentOffset = 0;
    for (CRect& rect : m_dockedRects) {
        rect.SetRectEmpty();
    }
}

CRect& CRecentDockSiteInfo::GetRecentDockedRect(BOOL bForSlider) { return m_dockedRects[bForSlider ? 1 : 0]; }

CRecentDockSiteInfo& CRecentDockSiteInfo::operator=(CRecentDockSiteInfo& src) {
    if (this != &src) {
        SetInfo(FALSE, src);
        SetInfo(TRUE, src);
        m_rectRecentFloatingRect = src.m_rectRecentFloatingRect;
        m_dwRecentAlignment = src.m_dwRecentAlignment;
        m_nRecentRowID = src.m_nRecentRowID;
        m_nRecentRowIndex = src.m_nRecentRowIndex;
        m_nRecentOffset = src.m_nRecentOffset;
    }
    return *this;
}

void CRecentDockSiteInfo::SetInfo(BOOL bForSlider, CRecentDockSiteInfo& srcInfo) {
    GetRecentDockedRect(bForSlider) = srcInfo.GetRecentDockedRect(bForSlider);
}
