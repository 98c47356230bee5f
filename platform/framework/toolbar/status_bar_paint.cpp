// How a status bar looks and what the mouse does on it.
#include "afxstatusbar.h"

#include "afxglobals.h"
#include "afxtooltipmanager.h"
#include "afxvisualmanager.h"
#include "fx/window_dc.h"
#include "toolbar/metrics.h"
#include "toolbar/status_bar_parts.h"
#include "window/command_id.h"

#include <algorithm>

using toolbar::Scaled;

namespace {

constexpr int kPaneMargin = 4;
constexpr COLORREF kNoColor = static_cast<COLORREF>(-1);

/// The timer of a pane has its index plus one.
void StopAnimation(CWnd& bar, int index) {
    if (bar.m_hWnd != nullptr) {
        bar.KillTimer(static_cast<UINT_PTR>(index) + 1);
    }
}

HIMAGELIST ImageOf(HICON icon) {
    ICONINFO info{};
    if (icon == nullptr || !::GetIconInfo(icon, &info)) {
        return nullptr;
    }
    BITMAP size{};
    ::GetObjectW(info.hbmColor != nullptr ? info.hbmColor : info.hbmMask, sizeof(size), &size);
    const int height = info.hbmColor != nullptr ? size.bmHeight : size.bmHeight / 2;
    const HIMAGELIST images = ::ImageList_Create(size.bmWidth, height, ILC_COLOR32 | ILC_MASK, 1, 0);
    ::ImageList_ReplaceIcon(images, -1, icon);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return images;
}

HIMAGELIST ImageOf(HBITMAP bitmap, COLORREF transparent) {
    BITMAP size{};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof(size), &size) == 0) {
        return nullptr;
    }
    const HIMAGELIST images = ::ImageList_Create(size.bmWidth, size.bmHeight, ILC_COLOR32 | ILC_MASK, 1, 0);
    // The list paints over what it is given.
    const auto copy = static_cast<HBITMAP>(::CopyImage(bitmap, IMAGE_BITMAP, 0, 0, 0));
    ::ImageList_AddMasked(images, copy, transparent);
    ::DeleteObject(copy);
    return images;
}

} // namespace

// ---- images and progress

void CMFCStatusBar::SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate) {
    if (Find(nIndex) != nullptr) {
        TakeImages(nIndex, ImageOf(hIcon), 0, bUpdate);
    }
}

void CMFCStatusBar::SetPaneIcon(int nIndex, HBITMAP hBmp, COLORREF clrTransparent, BOOL bUpdate) {
    if (Find(nIndex) != nullptr) {
        TakeImages(nIndex, ImageOf(hBmp, clrTransparent), 0, bUpdate);
    }
}

void CMFCStatusBar::SetPaneAnimation(int nIndex, HIMAGELIST hImageList, UINT nFrameRate, BOOL bUpdate) {
    if (Find(nIndex) != nullptr) {
        TakeImages(nIndex, hImageList != nullptr ? ::ImageList_Duplicate(hImageList) : nullptr,
                   std::max(1U, nFrameRate), bUpdate);
    }
}

void CMFCStatusBar::TakeImages(int nIndex, HIMAGELIST hImages, UINT nFrameTime, BOOL bUpdate) {
    StopAnimation(*this, nIndex);
    Pane& pane = *Find(nIndex);
    pane.SetImages(hImages);
    if (nFrameTime != 0 && pane.images != nullptr && m_hWnd != nullptr) {
        pane.frameTime = nFrameTime;
        SetTimer(static_cast<UINT_PTR>(nIndex) + 1, nFrameTime, nullptr);
    }
    PlacePanes();
    Redraw(nIndex, bUpdate);
}

void CMFCStatusBar::OnTimer(UINT_PTR nIDEvent) {
    const int index = static_cast<int>(nIDEvent) - 1;
    Pane* const pane = Find(index);
    if (pane == nullptr || pane->frameTime == 0) {
        KillTimer(nIDEvent);
        CPane::OnTimer(nIDEvent);
        return;
    }
    pane->frame = (pane->frame + 1) % std::max(1, ::ImageList_GetImageCount(pane->images));
    InvalidatePaneContent(index);
}

void CMFCStatusBar::EnablePaneProgressBar(int nIndex, long nTotal, BOOL bDisplayText, COLORREF clrBar,
                                          COLORREF clrBarDest, COLORREF clrProgressText) {
    if (Pane* const pane = Find(nIndex)) {
        pane->nProgressTotal = nTotal;
        pane->nProgressCurr = 0;
        pane->bProgressText = bDisplayText;
        pane->clrProgressBar = clrBar;
        pane->clrProgressBarDest = clrBarDest;
        pane->clrProgressText = clrProgressText;
        Redraw(nIndex, TRUE);
    }
}

void CMFCStatusBar::SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate) {
    Pane* const pane = Find(nIndex);
    if (pane == nullptr || pane->nProgressTotal < 0) {
        return;
    }
    const long current = std::clamp(nCurr, 0L, pane->nProgressTotal);
    if (pane->nProgressCurr != current) {
        pane->nProgressCurr = current;
        Redraw(nIndex, bUpdate);
    }
}

long CMFCStatusBar::GetPaneProgress(int nIndex) const {
    const Pane* const pane = Find(nIndex);
    return pane != nullptr && pane->nProgressTotal >= 0 ? pane->nProgressCurr : -1;
}

void CMFCStatusBar::SetPaneTextColor(int nIndex, COLORREF clrText, BOOL bUpdate) {
    if (Pane* const pane = Find(nIndex)) {
        pane->clrText = clrText;
        Redraw(nIndex, bUpdate);
    }
}

void CMFCStatusBar::SetPaneBackgroundColor(int nIndex, COLORREF clrBackground, BOOL bUpdate) {
    if (Pane* const pane = Find(nIndex)) {
        pane->clrBackground = clrBackground;
        Redraw(nIndex, bUpdate);
    }
}

void CMFCStatusBar::InvalidatePaneContent(int nIndex) {
    const Pane* const pane = Find(nIndex);
    if (pane != nullptr && m_hWnd != nullptr && !pane->rect.IsRectEmpty()) {
        InvalidateRect(pane->rect);
    }
}

void CMFCStatusBar::Redraw(int nIndex, BOOL bUpdate) {
    InvalidatePaneContent(nIndex);
    if (bUpdate && m_hWnd != nullptr) {
        UpdateWindow();
    }
}

// ---- drawing

void CMFCStatusBar::SetDrawExtendedArea(BOOL bSet) {
    m_bDrawExtendedArea = bSet;
    if (m_hWnd != nullptr) {
        Invalidate();
    }
}

// From the first pane behind the one that stretches to the end of the bar.
BOOL CMFCStatusBar::GetExtendedArea(CRect& rect) const {
    rect = CRect(0, 0, 0, 0);
    if (!m_bDrawExtendedArea || m_hWnd == nullptr) {
        return FALSE;
    }
    CRect client;
    GetClientRect(&client);
    for (const std::unique_ptr<Pane>& pane : m_panes) {
        if ((pane->nStyle & (SBPS_STRETCH | SBPS_NOBORDERS)) == 0 && !pane->rect.IsRectEmpty()) {
            rect = client;
            rect.left = pane->rect.left - Scaled(kPaneMargin);
            return TRUE;
        }
    }
    return FALSE;
}

void CMFCStatusBar::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CRect clip;
    pDC->GetClipBox(&clip);
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    manager->OnFillBarBackground(pDC, this, client, clip);
    CFont* const fontBefore = pDC->SelectObject(&afxGlobalData.fontRegular);
    const int modeBefore = pDC->SetBkMode(TRANSPARENT);
    for (const std::unique_ptr<Pane>& pane : m_panes) {
        CRect shown;
        if (shown.IntersectRect(clip, pane->rect)) {
            OnDrawPane(pDC, pane.get());
        }
    }
    pDC->SetBkMode(modeBefore);
    pDC->SelectObject(fontBefore);
    if (const CRect grip = GetGripRect(); !grip.IsRectEmpty()) {
        manager->OnDrawStatusBarSizeBox(pDC, this, grip);
    }
}

void CMFCStatusBar::OnDrawPane(CDC* pDC, CMFCStatusBarPaneInfo* pPane) {
    auto& pane = static_cast<Pane&>(*pPane);
    CMFCVisualManager* const manager = CMFCVisualManager::GetInstance();
    CRect content = pane.rect;
    content.DeflateRect(Scaled(kPaneMargin), 0);
    if (pane.clrBackground != kNoColor) {
        CRect ground = pane.rect;
        ground.DeflateRect(0, 0, Scaled(2), 0);
        pDC->FillSolidRect(ground, pane.clrBackground);
        pDC->SetBkMode(TRANSPARENT);
    }
    manager->OnDrawStatusBarPaneBorder(pDC, this, pane.rect, pane.nID, pane.nStyle);
    if (pane.images != nullptr) {
        const CSize size = pane.ImageSize();
        ::ImageList_Draw(pane.images, pane.frame, pDC->m_hDC, content.left,
                         content.top + (content.Height() - size.cy) / 2, ILD_NORMAL);
        content.left += size.cx + Scaled(kPaneMargin);
    }
    COLORREF text = pane.clrText != kNoColor ? pane.clrText : manager->GetStatusBarPaneTextColor(this, &pane);
    if (pane.nProgressTotal > 0) {
        CRect bar = content;
        bar.DeflateRect(0, Scaled(2));
        manager->OnDrawStatusBarProgress(
            pDC, this, bar, pane.nProgressTotal, pane.nProgressCurr, pane.clrProgressBar, pane.clrProgressBarDest,
            pane.clrProgressText != kNoColor ? pane.clrProgressText : text, pane.bProgressText);
        return;
    }
    if ((pane.nStyle & SBPS_DISABLED) != 0 || pane.strText.IsEmpty() || content.Width() <= 0) {
        return; // as in every status bar: what is off is not read
    }
    const COLORREF before = pDC->SetTextColor(text);
    pDC->DrawText(pane.strText, content, DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS);
    pDC->SetTextColor(before);
}

// ---- the mouse

int CMFCStatusBar::HitTest(CPoint point) const {
    const auto found = std::ranges::find_if(
        m_panes, [point](const std::unique_ptr<Pane>& pane) { return pane->rect.PtInRect(point) != FALSE; });
    return found != m_panes.end() ? static_cast<int>(found - m_panes.begin()) : -1;
}

void CMFCStatusBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    const UINT command = GetItemID(HitTest(point));
    CWnd* const owner = GetOwner();
    if (m_bPaneDoubleClick && fx::IsSendableCommand(command) && owner != nullptr) {
        owner->PostMessage(WM_COMMAND, command);
        return;
    }
    CPane::OnLButtonDblClk(nFlags, point);
}

void CMFCStatusBar::UpdateTooltip() {
    if (m_pToolTip == nullptr || m_pToolTip->m_hWnd == nullptr) {
        return;
    }
    // The tool of a pane has its index plus one; there may have been more panes before.
    constexpr UINT_PTR kMostPanes = 256;
    for (UINT_PTR former = 1; m_pToolTip->GetToolCount() > 0 && former <= kMostPanes; ++former) {
        m_pToolTip->DelTool(this, former);
    }
    UINT_PTR id = 1;
    for (const std::unique_ptr<Pane>& pane : m_panes) {
        if (!pane->strToolTip.IsEmpty() && !pane->rect.IsRectEmpty()) {
            m_pToolTip->AddTool(this, pane->strToolTip, pane->rect, id);
        }
        ++id;
    }
}

BOOL CMFCStatusBar::PreTranslateMessage(MSG* pMsg) {
    const bool isMouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    if (isMouse && pMsg->hwnd == m_hWnd && m_pToolTip != nullptr && m_pToolTip->m_hWnd != nullptr) {
        m_pToolTip->RelayEvent(pMsg);
    }
    return CPane::PreTranslateMessage(pMsg);
}

LRESULT CMFCStatusBar::OnUpdateToolTips(WPARAM wp, LPARAM) {
    if ((wp & AFX_TOOLTIP_TYPE_DEFAULT) != 0 && m_pToolTip != nullptr) {
        CTooltipManager::DeleteToolTip(m_pToolTip);
        CTooltipManager::CreateToolTip(m_pToolTip, this, AFX_TOOLTIP_TYPE_DEFAULT);
        UpdateTooltip();
    }
    return 0;
}
