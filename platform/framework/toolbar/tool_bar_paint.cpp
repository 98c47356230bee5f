// How a toolbar is drawn.
#include "afxtoolbar.h"

#include "afxglobals.h"
#include "afxvisualmanager.h"
#include "fx/dc_scope.h"
#include "fx/window_dc.h"
#include "toolbar/metrics.h"

using toolbar::Scaled;

void CMFCToolBar::OnPaint() {
    CPaintDC dc(this);
    const CRect painted = dc.m_ps.rcPaint;
    if (painted.IsRectEmpty()) {
        return;
    }
    fx::MemoryDc memory(dc, painted);
    DoPaint(&memory.GetDC());
}

BOOL CMFCToolBar::OnEraseBkgnd(CDC*) { return TRUE; }

void CMFCToolBar::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CRect clip;
    pDC->GetClipBox(&clip);
    CMFCVisualManager::GetInstance()->OnFillBarBackground(pDC, this, client, clip);
    OnFillBackground(pDC); // a derived bar's, which may exchange the manager
    const BOOL isHorizontal = IsHorizontal();
    if ((GetPaneStyle() & CBRS_GRIPPER) && !IsFloating()) {
        CRect gripper = client;
        (isHorizontal ? gripper.right : gripper.bottom) =
            (isHorizontal ? gripper.left : gripper.top) + Scaled(toolbar::SeparatorSize);
        CMFCVisualManager::GetInstance()->OnDrawBarGripper(pDC, gripper, isHorizontal, this);
    }
    CFont* const former = SelectToolBarFont(pDC, isHorizontal);
    int index = 0;
    for (POSITION position = m_Buttons.GetHeadPosition(); position; ++index) {
        auto* button = static_cast<CMFCToolBarButton*>(m_Buttons.GetNext(position));
        CRect shown;
        if (button->IsHidden() || !button->IsVisible() || !shown.IntersectRect(clip, button->Rect())) {
            continue;
        }
        if (button->m_nStyle & TBBS_SEPARATOR) {
            DrawSeparator(pDC, button->Rect(), isHorizontal);
            continue;
        }
        const BOOL isHot = index == m_iHighlighted || button->IsDroppedDown();
        DrawButton(pDC, button, GetImageList(*button, isHot), isHot, m_bGrayDisabledButtons);
    }
    DrawOverflow(pDC, isHorizontal);
    DrawDropMark(pDC);
    if (former) {
        pDC->SelectObject(former);
    }
}

BOOL CMFCToolBar::DrawButton(CDC* pDC, CMFCToolBarButton* pButton, CMFCToolBarImages* pImages, BOOL bHighlighted,
                             BOOL bDrawDisabledImages) {
    CAfxDrawState state;
    CMFCToolBarImages* images = nullptr;
    if (pImages && pButton->IsDrawImage() && pImages->PrepareDrawImage(state, Scaled(CSize(pImages->GetImageSize())))) {
        images = pImages;
    }
    const BOOL isHot = bHighlighted && (m_bShowHotBorder || m_bMenuMode);
    pButton->OnDraw(pDC, pButton->Rect(), images, IsHorizontal(), FALSE, isHot, TRUE,
                    bDrawDisabledImages && images != &m_DisabledImages);
    if (images) {
        images->EndDrawImage(state);
    }
    return TRUE;
}

void CMFCToolBar::DrawSeparator(CDC* pDC, const CRect& rect, BOOL bHorz) {
    CMFCVisualManager::GetInstance()->OnDrawSeparator(pDC, this, rect, bHorz);
}

CMFCToolBarButton* CMFCToolBar::InvalidateButton(int nIndex) {
    CRect rect;
    GetInvalidateItemRect(nIndex, rect);
    if (!rect.IsRectEmpty() && m_hWnd) {
        rect.InflateRect(1, 1);
        InvalidateRect(rect);
    }
    return GetButton(nIndex);
}

void CMFCToolBar::UpdateButton(int nIndex) {
    if (InvalidateButton(nIndex) && m_hWnd) {
        UpdateWindow();
    }
}
