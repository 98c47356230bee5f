// Drawing of a ribbon button: one road from the collected face to the device context.
#include <afxribbonbutton.h>

#include <afxglobals.h>
#include <afxribbonbar.h>
#include <afxribbonbuttonsgroup.h>
#include <afxribbonpanelmenu.h>
#include <afxvisualmanager.h>

#include <algorithm>

#include "fx/dc_scope.h"
#include "ribbon/button_face.h"
#include "ribbon/element_metrics.h"
#include "ribbon/shown_text.h"

namespace {

// A glyph may reach beyond its measured width; the margin beside the text has room for it.
constexpr UINT kOneLine = DT_SINGLELINE | DT_NOPREFIX | DT_VCENTER;
constexpr UINT kBottomLine = DT_SINGLELINE | DT_NOPREFIX | DT_TOP;

// A text that is wider than the place it was given stays inside of it.
UINT WithEnd(UINT format, int width, int room) { return format | (width > room ? DT_END_ELLIPSIS : DT_NOCLIP); }

} // namespace

void CMFCRibbonButton::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    if (ShowsMenuRow()) {
        DrawMenuRow(pDC);
        return;
    }
    const ribbon::TextContext context(pDC);
    const COLORREF color = ribbon::TextColor(pDC, OnFillBackground(pDC), IsDisabled());
    const Face face = CollectFace(pDC);
    CompareWithMeasured(fx::ToSize(face.content.rightText));

    if (!face.parts.image.IsEmpty()) {
        DrawImage(pDC, GetFaceImageType(), fx::ToRect(face.parts.image));
    }
    DrawFaceText(pDC, face, color);
    if (!face.parts.arrow.IsEmpty()) {
        CMFCVisualManager::GetInstance()->OnDrawRibbonDefaultPaneButtonIndicator(
            pDC, this, fx::ToRect(face.parts.arrow), IsPressed(), IsHighlighted());
    }
    OnDrawBorder(pDC);
}

COLORREF CMFCRibbonButton::OnFillBackground(CDC* pDC) {
    return CMFCVisualManager::GetInstance()->OnFillRibbonButton(pDC, this);
}

void CMFCRibbonButton::OnDrawBorder(CDC* pDC) { CMFCVisualManager::GetInstance()->OnDrawRibbonButtonBorder(pDC, this); }

void CMFCRibbonButton::DrawFaceText(CDC* pDC, const Face& face, COLORREF clrText) {
    const CString text = ribbon::PlainText(GetShownText());
    if (text.IsEmpty() || face.parts.text.IsEmpty()) {
        return;
    }
    if (face.content.look != ribbon::ButtonLook::Large) {
        const UINT format = WithEnd(kOneLine, face.content.rightText.width, face.parts.text.Width());
        DrawRibbonText(pDC, text, fx::ToRect(face.parts.text), format, clrText);
        return;
    }
    const int row = ribbon::CurrentMetrics().textHeight;
    const fx::Rect& area = face.parts.text;
    const int center = (area.left + area.right) / 2;
    const auto draw = [&](const CString& line, int width, int tail, int top) {
        const int shown = std::clamp(area.Width() - tail, 0, width);
        const int left = center - (shown + tail) / 2;
        DrawRibbonText(pDC, line, CRect(left, top, left + shown, top + row), WithEnd(kBottomLine, width, shown),
                       clrText);
    };
    draw(text.Left(static_cast<int>(face.lines.firstLength)), face.lines.firstWidth, 0, area.top);
    if (face.content.isArrowAlone) {
        return;
    }
    const int tail = face.parts.arrow.IsEmpty() ? 0 : ribbon::BottomArrowWidth(ribbon::CurrentMetrics());
    draw(text.Mid(static_cast<int>(face.lines.secondStart)), face.lines.secondWidth, tail, area.top + row);
}

// A derived class shows a translation, and the language has changed. One that always draws another text than it
// measures asks once only.
void CMFCRibbonButton::CompareWithMeasured(CSize sizeDrawn) {
    if (m_sizeTextRight == CSize(0, 0) || sizeDrawn == m_sizeTextRight) {
        m_bAsksForLayout = FALSE;
        return;
    }
    if (m_bAsksForLayout) {
        return;
    }
    m_bAsksForLayout = TRUE;
    if (m_pParentMenu != nullptr) {
        m_pParentMenu->MarkLayoutDirty();
    } else if (RibbonBarHost* const bar = GetParentRibbonBar()) {
        bar->MarkMeasuresDirty();
    }
}

CSize CMFCRibbonButton::DrawBottomText(CDC* pDC, BOOL bCalcOnly) {
    const ribbon::TextContext context(pDC);
    Face face;
    face.content = CollectContent(pDC, TRUE, FALSE, face.lines);
    const int rows = face.content.isArrowAlone && !HasMenu() ? 1 : 2;
    if (!bCalcOnly && pDC != nullptr) {
        face.parts = ribbon::PlaceButton(fx::FromRect(m_rect), face.content, ribbon::CurrentMetrics());
        DrawFaceText(pDC, face, static_cast<COLORREF>(-1));
    }
    return {face.content.bottomTextWidth, rows * ribbon::CurrentMetrics().textHeight};
}

int CMFCRibbonButton::DrawRibbonText(CDC* pDC, const CString& strText, CRect rectText, UINT uiDTFlags,
                                     COLORREF clrText) {
    if (clrText == static_cast<COLORREF>(-1)) {
        return pDC->DrawText(strText, rectText, uiDTFlags);
    }
    const COLORREF old = pDC->SetTextColor(clrText);
    const int height = pDC->DrawText(strText, rectText, uiDTFlags);
    pDC->SetTextColor(old);
    return height;
}

// ---- image

void CMFCRibbonButton::DrawImage(CDC* pDC, RibbonImageType type, CRect rectImage) {
    if (rectImage.IsRectEmpty() || DrawIconImage(pDC, type, rectImage) || DrawListImage(pDC, type, rectImage)) {
        return;
    }
    if (CMFCRibbonBaseElement* original = GetOriginal()) {
        original->DrawImage(pDC, type, rectImage);
    }
}

// An icon of a disabled button goes through an image list, which knows how to grey it.
BOOL CMFCRibbonButton::DrawIconImage(CDC* pDC, RibbonImageType type, CRect rectImage) {
    const bool isLarge = type == RibbonImageLarge;
    HICON icon = GetIcon(isLarge);
    if (icon == nullptr) {
        return FALSE;
    }
    if (!IsDisabled()) {
        const CWnd* parent = GetParentWnd();
        const bool isMirrored =
            parent != nullptr && (::GetWindowLongW(parent->GetSafeHwnd(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
        const fx::PictureScope place(*pDC, rectImage);
        return ::DrawIconEx(*pDC, place.Corner().x, place.Corner().y, icon, rectImage.Width(), rectImage.Height(), 0,
                            nullptr, DI_NORMAL | (isMirrored ? DI_NOMIRROR : 0));
    }
    CMFCToolBarImages images;
    images.SetImageSize(isLarge ? CSize(32, 32) : CSize(16, 16));
    const int index = images.AddIcon(icon, m_bAlphaBlendIcon || afxGlobalData.Is32BitIcons());
    CAfxDrawState state;
    if (index < 0 || !images.PrepareDrawImage(state, rectImage.Size())) {
        return FALSE;
    }
    const BOOL isDrawn = images.Draw(pDC, rectImage.left, rectImage.top, index, FALSE, TRUE);
    images.EndDrawImage(state);
    return isDrawn;
}

BOOL CMFCRibbonButton::DrawListImage(CDC* pDC, RibbonImageType type, CRect rectImage) {
    const bool isLarge = type == RibbonImageLarge;
    const int index = GetImageIndex(isLarge);
    if (index < 0) {
        return FALSE;
    }
    if (m_pParentGroup != nullptr && m_pParentGroup->HasImages() && !isLarge) {
        m_pParentGroup->OnDrawImage(pDC, rectImage, this, index);
        return TRUE;
    }
    return m_pParentCategory != nullptr && m_pParentCategory->OnDrawImage(pDC, rectImage, this, isLarge, index, TRUE);
}
