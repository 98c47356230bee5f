#include <afxribbonstatusbarpane.h>

#include <algorithm>

#include <afxribbonstatusbar.h>
#include <afxvisualmanager.h>
#include <oleacc.h>

#include "ribbon/element_metrics.h"
#include "ribbon/pane_animation.h"
#include "ribbon/shown_text.h"

IMPLEMENT_DYNCREATE(CMFCRibbonStatusBarPane, CMFCRibbonButton)

namespace {

// Between picture and text, at 96 DPI.
constexpr int kPictureGap = 4;

UINT FormatOf(int align) {
    const UINT across = align == TA_CENTER ? DT_CENTER : align == TA_RIGHT ? DT_RIGHT : DT_LEFT;
    return across | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;
}

int WidthOf(CDC* dc, const CString& text) {
    return ribbon::MeasureText(dc, {text.GetString(), static_cast<std::size_t>(text.GetLength())}).width;
}

} // namespace

CMFCRibbonStatusBarPane::CMFCRibbonStatusBarPane() = default;

CMFCRibbonStatusBarPane::CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, BOOL bIsStatic, HICON hIcon,
                                                 LPCTSTR lpszAlmostLargeText)
    : CMFCRibbonButton(nCmdID, lpszText, hIcon),
      m_strAlmostLargeText(lpszAlmostLargeText != nullptr ? lpszAlmostLargeText : L""),
      m_bIsStatic(bIsStatic) {}

CMFCRibbonStatusBarPane::CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, HBITMAP hBmpAnimationList,
                                                 int cxAnimation, COLORREF clrTrnsp, HICON hIcon, BOOL bIsStatic)
    : CMFCRibbonStatusBarPane(nCmdID, lpszText, bIsStatic, hIcon) {
    SetAnimationList(hBmpAnimationList, cxAnimation, clrTrnsp);
}

CMFCRibbonStatusBarPane::CMFCRibbonStatusBarPane(UINT nCmdID, LPCTSTR lpszText, UINT uiAnimationListResID,
                                                 int cxAnimation, COLORREF clrTrnsp, HICON hIcon, BOOL bIsStatic)
    : CMFCRibbonStatusBarPane(nCmdID, lpszText, bIsStatic, hIcon) {
    SetAnimationList(uiAnimationListResID, cxAnimation, clrTrnsp);
}

CMFCRibbonStatusBarPane::~CMFCRibbonStatusBarPane() = default;

void CMFCRibbonStatusBarPane::SetAlmostLargeText(LPCTSTR lpszAlmostLargeText) {
    m_strAlmostLargeText = lpszAlmostLargeText != nullptr ? lpszAlmostLargeText : L"";
    MarkLayoutDirty();
}

void CMFCRibbonStatusBarPane::SetTextAlign(int nAlign) {
    m_nTextAlign = nAlign;
    Redraw();
}

BOOL CMFCRibbonStatusBarPane::IsExtended() const {
    const auto* const bar = DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, m_pRibbonBar);
    return bar != nullptr && bar->IsExtendedElement(const_cast<CMFCRibbonStatusBarPane*>(this));
}

// ---- animation

void CMFCRibbonStatusBarPane::SetAnimationList(HBITMAP hBmpAnimationList, int cxAnimation, COLORREF clrTransp) {
    StopAnimation();
    auto animation = std::make_unique<RibbonPaneAnimation>(*this, hBmpAnimationList, cxAnimation, clrTransp);
    m_animation = animation->HasFrames() ? std::move(animation) : nullptr;
    MarkLayoutDirty();
}

BOOL CMFCRibbonStatusBarPane::SetAnimationList(UINT uiAnimationListResID, int cxAnimation, COLORREF clrTransp) {
    CBitmap bitmap;
    if (!bitmap.LoadBitmap(uiAnimationListResID)) {
        return FALSE;
    }
    SetAnimationList(static_cast<HBITMAP>(bitmap.GetSafeHandle()), cxAnimation, clrTransp);
    return TRUE;
}

void CMFCRibbonStatusBarPane::StartAnimation(UINT nFrameDelay, UINT nDuration) {
    if (m_animation != nullptr) {
        m_animation->Start(nFrameDelay, nDuration);
        Redraw();
    }
}

void CMFCRibbonStatusBarPane::StopAnimation() {
    if (m_animation != nullptr && m_animation->Stop()) {
        Redraw();
        OnFinishAnimation();
    }
}

BOOL CMFCRibbonStatusBarPane::IsAnimation() const { return m_animation != nullptr && m_animation->IsRunning(); }

// ---- size and drawing

// The animation has its place also while the icon stands there, so that nothing moves.
CSize CMFCRibbonStatusBarPane::PictureSize() const {
    CSize size = GetImageSize(RibbonImageSmall);
    if (m_animation != nullptr) {
        const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
        const CSize frame = m_animation->FrameSize();
        size.cx = std::max<LONG>(size.cx, metrics.Scaled(frame.cx));
        size.cy = std::max<LONG>(size.cy, metrics.Scaled(frame.cy));
    }
    return size;
}

CSize CMFCRibbonStatusBarPane::Measure(CDC* pDC) const {
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const CSize picture = PictureSize();
    const int text = WidthOf(pDC, m_strAlmostLargeText.IsEmpty() ? ribbon::PlainText(m_strText) : m_strAlmostLargeText);
    const int gap = picture.cx > 0 && text > 0 ? metrics.Scaled(kPictureGap) : 0;
    return {2 * m_szMargin.cx + picture.cx + gap + text,
            std::max<LONG>(metrics.RowHeight(), picture.cy + 2 * m_szMargin.cy)};
}

CSize CMFCRibbonStatusBarPane::GetRegularSize(CDC* pDC) { return Measure(pDC); }

CSize CMFCRibbonStatusBarPane::GetIntermediateSize(CDC* pDC) { return Measure(pDC); }

CSize CMFCRibbonStatusBarPane::GetCompactSize(CDC* pDC) { return Measure(pDC); }

void CMFCRibbonStatusBarPane::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    const ribbon::TextContext context(pDC);
    const COLORREF color = ribbon::TextColor(pDC, OnFillBackground(pDC), IsDisabled());
    CRect text = m_rect;
    text.DeflateRect(m_szMargin.cx, 0);
    if (const CSize picture = PictureSize(); picture.cx > 0) {
        const CRect place(CPoint(text.left, m_rect.top + (m_rect.Height() - picture.cy) / 2), picture);
        if (IsAnimation()) {
            m_animation->Draw(*pDC, place);
        } else {
            DrawImage(pDC, RibbonImageSmall, place);
        }
        text.left = place.right + ribbon::CurrentMetrics().Scaled(kPictureGap);
    }
    if (!m_strText.IsEmpty() && !text.IsRectEmpty()) {
        DrawRibbonText(pDC, ribbon::PlainText(m_strText), text, FormatOf(m_nTextAlign), color);
    }
    OnDrawBorder(pDC);
}

// The face says enough.
void CMFCRibbonStatusBarPane::OnDrawBorder(CDC* /*pDC*/) {}

COLORREF CMFCRibbonStatusBarPane::OnFillBackground(CDC* pDC) {
    return CMFCVisualManager::GetInstance()->OnDrawRibbonStatusBarPane(
        pDC, DYNAMIC_DOWNCAST(CMFCRibbonStatusBar, m_pRibbonBar), this);
}

void CMFCRibbonStatusBarPane::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonButton::CopyFrom(src);
    if (const auto* const pane = dynamic_cast<const CMFCRibbonStatusBarPane*>(&src); pane != nullptr) {
        m_strAlmostLargeText = pane->m_strAlmostLargeText;
        m_nTextAlign = pane->m_nTextAlign;
        m_bIsStatic = pane->m_bIsStatic;
    }
}

// ---- input

void CMFCRibbonStatusBarPane::OnClick(CPoint point) {
    if (!m_bIsStatic) {
        CMFCRibbonButton::OnClick(point);
    }
}

BOOL CMFCRibbonStatusBarPane::OnKey(BOOL bIsMenuKey) {
    return m_bIsStatic ? FALSE : CMFCRibbonButton::OnKey(bIsMenuKey);
}

BOOL CMFCRibbonStatusBarPane::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    if (m_bIsStatic) {
        data.m_nRole = ROLE_SYSTEM_STATICTEXT;
        data.m_strDefaultAction.Empty();
    }
    return TRUE;
}
