#include <afxRibbonEdit.h>

#include <afxglobals.h>
#include <afxribboncategory.h>
#include <afxvisualmanager.h>

#include "fx/item_marks.h"
#include "ribbon/edit_geometry.h"
#include "ribbon/edit_unseen.h"
#include "ribbon/element_metrics.h"
#include "ribbon/shown_text.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CMFCRibbonEdit, CMFCRibbonButton)

namespace {
constexpr int kDefaultWidth = 108;  // of the edit area, at 96 DPI
constexpr int kLeastWidth = 40;     // the same in a panel that lacks room
constexpr int kLeastWithMarks = 72; // of a combo whose items have marks: those, and a word beside them
} // namespace

struct CMFCRibbonEdit::Layout {
    ribbon::EditContent content;
    ribbon::EditFace face;
};

CMFCRibbonEdit::CMFCRibbonEdit() : m_rectText(0, 0, 0, 0) {}

CMFCRibbonEdit::CMFCRibbonEdit(UINT nID, int nWidth, LPCTSTR lpszLabel, int nImage)
    : CMFCRibbonButton(nID, lpszLabel, nImage), m_nWidth(nWidth), m_rectText(0, 0, 0, 0) {}

CMFCRibbonEdit::~CMFCRibbonEdit() { CMFCRibbonEdit::DestroyCtrl(); }

// ---- width and text

void CMFCRibbonEdit::SetWidth(int nWidth, BOOL bInFloatyMode) { (bInFloatyMode ? m_nWidthFloaty : m_nWidth) = nWidth; }

int CMFCRibbonEdit::GetWidth(BOOL bInFloatyMode) const {
    if (bInFloatyMode && m_nWidthFloaty > 0) {
        return m_nWidthFloaty;
    }
    return m_nWidth > 0 ? m_nWidth : kDefaultWidth;
}

void CMFCRibbonEdit::SetTextAlign(int nAlign) {
    m_nAlign = nAlign;
    // The style counts when the window is made only.
    if (m_pWndEdit != nullptr) {
        DestroyCtrl();
        PlaceEditWindow();
    }
    Redraw();
}

void CMFCRibbonEdit::SetEditText(CString strText) {
    m_strCommitted = strText;
    if (m_strEdit == strText) {
        return;
    }
    m_strEdit = strText;
    ShowTextInWindow();
    Redraw();
    NotifyAccessibility(EVENT_OBJECT_VALUECHANGE);
}

void CMFCRibbonEdit::CopyFrom(const CMFCRibbonBaseElement& src) {
    CMFCRibbonButton::CopyFrom(src);
    const auto* edit = dynamic_cast<const CMFCRibbonEdit*>(&src);
    if (edit == nullptr || edit == this) {
        return;
    }
    DestroyCtrl();
    m_strEdit = edit->m_strEdit;
    m_strCommitted = edit->m_strCommitted;
    m_nWidth = edit->m_nWidth;
    m_nWidthFloaty = edit->m_nWidthFloaty;
    m_nAlign = edit->m_nAlign;
}

// ---- size and layout

BOOL CMFCRibbonEdit::HasIntermediateMode() const { return TRUE; }

// Without its label it is still known by its image or its tooltip.
BOOL CMFCRibbonEdit::HasCompactMode() const { return !m_strText.IsEmpty(); }

ribbon::EditContent CMFCRibbonEdit::CollectContent(CDC* pDC, BOOL bWithLabel) const {
    ribbon::EditContent content;
    content.image = fx::FromSize(GetImageSize(RibbonImageSmall));
    if (bWithLabel) {
        const CString label = ribbon::PlainText(m_strText);
        content.label = ribbon::MeasureText(pDC, {label, static_cast<std::size_t>(label.GetLength())});
    }
    content.dropButtonWidth = GetDropButtonWidth();
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    content.boxWidth = metrics.Scaled(GetWidth()) + content.dropButtonWidth;
    content.leastBoxWidth = metrics.Scaled(std::min(GetWidth(), GetLeastEditWidth())) + content.dropButtonWidth;
    return content;
}

CMFCRibbonEdit::Layout CMFCRibbonEdit::CollectLayout(CDC* pDC) const {
    Layout layout;
    layout.content = CollectContent(pDC, !m_bCompactMode);
    layout.face = ribbon::PlaceEdit(fx::FromRect(m_rect), layout.content, ribbon::CurrentMetrics());
    return layout;
}

CSize CMFCRibbonEdit::GetRegularSize(CDC* pDC) { return GetIntermediateSize(pDC); }

CSize CMFCRibbonEdit::GetIntermediateSize(CDC* pDC) {
    return fx::ToSize(ribbon::MeasureEdit(CollectContent(pDC, TRUE), ribbon::CurrentMetrics()));
}

int CMFCRibbonEdit::GetLeastEditWidth() const {
    return dynamic_cast<const RibbonItemMarks*>(this) != nullptr ? kLeastWithMarks : kLeastWidth;
}

int CMFCRibbonEdit::GetNarrowestWidth(CDC* pDC) {
    ribbon::EditContent content = CollectContent(pDC, TRUE);
    content.boxWidth = content.leastBoxWidth;
    return ribbon::MeasureEdit(content, ribbon::CurrentMetrics()).width;
}

CSize CMFCRibbonEdit::GetCompactSize(CDC* pDC) {
    return fx::ToSize(ribbon::MeasureEdit(CollectContent(pDC, FALSE), ribbon::CurrentMetrics()));
}

void CMFCRibbonEdit::OnAfterChangeRect(CDC* pDC) {
    CMFCRibbonBaseElement::OnAfterChangeRect(pDC);
    const ribbon::EditFace face = CollectLayout(pDC).face;
    m_rectCommand = fx::ToRect(face.edit);
    m_rectMenu = fx::ToRect(face.dropButton);
    m_rectText = fx::ToRect(face.text);
    PlaceEditWindow();
}

// ---- drawing

void CMFCRibbonEdit::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    const ribbon::TextContext context(pDC);
    const ribbon::EditFace face = CollectLayout(pDC).face;
    OnDrawLabelAndImage(pDC);

    COLORREF text = afxGlobalData.clrWindowText;
    COLORREF selection = afxGlobalData.clrHilite;
    COLORREF selectedText = afxGlobalData.clrTextHilite;
    CMFCVisualManager::GetInstance()->OnFillRibbonEdit(pDC, m_pWndEdit, fx::ToRect(face.box), IsHighlighted(), FALSE,
                                                       IsDisabled(), text, selection, selectedText);
    const BOOL isWindowShown = m_pWndEdit != nullptr && m_pWndEdit->IsWindowVisible();
    if (!isWindowShown && !face.text.IsEmpty()) {
        const UINT align = m_nAlign == ES_CENTER ? DT_CENTER : m_nAlign == ES_RIGHT ? DT_RIGHT : DT_LEFT;
        DrawRibbonText(pDC, m_strEdit, fx::ToRect(face.text), DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | align, text);
    }
    OnDrawBorder(pDC);
    if (isWindowShown && TakeUnseen(*m_pWndEdit)) {
        m_pWndEdit->Invalidate();
    }
}

void CMFCRibbonEdit::OnDrawLabelAndImage(CDC* pDC) {
    const ribbon::EditFace face = CollectLayout(pDC).face;
    if (!face.image.IsEmpty()) {
        DrawImage(pDC, RibbonImageSmall, fx::ToRect(face.image));
    }
    if (!face.label.IsEmpty()) {
        DrawRibbonText(pDC, ribbon::PlainText(m_strText), fx::ToRect(face.label),
                       DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | DT_NOCLIP,
                       ribbon::TextColor(pDC, static_cast<COLORREF>(-1), IsDisabled()));
    }
}

void CMFCRibbonEdit::Redraw() {
    CMFCRibbonButton::Redraw();
    if (m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() != nullptr) {
        m_pWndEdit->Invalidate();
    }
}

// ---- state and input

BOOL CMFCRibbonEdit::IsHighlighted() const {
    return CMFCRibbonButton::IsHighlighted() || HasFocus() || (m_pWndEdit != nullptr && m_pWndEdit->IsHighlighted());
}

BOOL CMFCRibbonEdit::HasFocus() const {
    return m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() != nullptr && ::GetFocus() == m_pWndEdit->GetSafeHwnd();
}

void CMFCRibbonEdit::OnEnable(BOOL bEnable) {
    if (m_pWndEdit == nullptr || m_pWndEdit->GetSafeHwnd() == nullptr) {
        return;
    }
    m_pWndEdit->EnableWindow(bEnable);
    UpdateWindowColors();
}

void CMFCRibbonEdit::OnHighlight(BOOL bHighlight) {
    CMFCRibbonButton::OnHighlight(bHighlight);
    UpdateWindowColors();
    Redraw();
}

void CMFCRibbonEdit::OnShow(BOOL bShow) {
    CMFCRibbonButton::OnShow(bShow);
    if (bShow) {
        PlaceEditWindow();
    } else if (m_pWndEdit != nullptr && m_pWndEdit->GetSafeHwnd() != nullptr) {
        m_pWndEdit->ShowWindow(SW_HIDE);
    }
}

void CMFCRibbonEdit::OnRTLChanged(BOOL bIsRTL) {
    CMFCRibbonButton::OnRTLChanged(bIsRTL);
    DestroyCtrl();
}

void CMFCRibbonEdit::OnMouseMove(CPoint /*point*/) {}

void CMFCRibbonEdit::OnLButtonDown(CPoint point) {
    if (IsDisabled() || !m_rect.PtInRect(point)) {
        return;
    }
    if (m_rectMenu.PtInRect(point)) {
        DropDownList();
    } else {
        OnSetFocus(TRUE);
    }
}

void CMFCRibbonEdit::OnLButtonUp(CPoint /*point*/) {}

void CMFCRibbonEdit::DropDownList() {}

BOOL CMFCRibbonEdit::OnKey(BOOL /*bIsMenuKey*/) {
    if (IsDisabled()) {
        return FALSE;
    }
    OnSetFocus(TRUE);
    return TRUE;
}

BOOL CMFCRibbonEdit::OnProcessKey(UINT nChar) { return HasFocus() && OnEditKey(nChar); }

void CMFCRibbonEdit::OnSetFocus(BOOL bSet) {
    if (!bSet || m_pWndEdit == nullptr || m_pWndEdit->GetSafeHwnd() == nullptr || HasFocus()) {
        return;
    }
    m_pWndEdit->SetFocus();
    m_pWndEdit->SetSel(0, -1);
}
