// A button as a row of a menu: image column, text, short-cut, arrow.
#include <afxribbonbutton.h>

#include <afxglobals.h>
#include <afxribbonpanelmenu.h>
#include <afxvisualmanager.h>

#include "ribbon/element_metrics.h"
#include "ribbon/menu_geometry.h"
#include "ribbon/shown_text.h"
#include "visual/paint.h"
#include "visual/skin.h"

#include <algorithm>

namespace {

constexpr UINT kRowText = DT_SINGLELINE | DT_NOPREFIX | DT_VCENTER | DT_END_ELLIPSIS | DT_NOCLIP;

std::wstring_view View(const CString& text) {
    return {static_cast<LPCTSTR>(text), static_cast<size_t>(text.GetLength())};
}

// A text from a menu carries its short-cut behind a tab.
CString TextOf(const CString& text) {
    const int tab = text.Find(L'\t');
    return ribbon::PlainText(tab < 0 ? text : text.Left(tab));
}

CString KeysOf(const CString& text) {
    const int tab = text.Find(L'\t');
    return tab < 0 ? CString() : text.Mid(tab + 1);
}

// A check mark or a dot in the middle of the rectangle, with soft edges at every scale.
void DrawMark(CDC* pDC, const CRect& rect, BOOL isRadio, COLORREF color) {
    constexpr int kMarkSide = 14; // at 96 DPI
    const ribbon::FaceMetrics metrics = ribbon::CurrentMetrics();
    const int side = std::min(metrics.Scaled(kMarkSide), static_cast<int>(std::min(rect.Width(), rect.Height())));
    const CPoint corner(rect.left + (rect.Width() - side) / 2, rect.top + (rect.Height() - side) / 2);
    const CRect place(corner, CSize(side, side));
    const visual::Look look{visual::StyleSkin(0), metrics.scale}; // a mark has the colour alone
    if (isRadio) {
        visual::PaintRadioMark(*pDC, place, visual::FromColorRef(color), look);
    } else {
        visual::PaintCheckMark(*pDC, place, visual::FromColorRef(color), look);
    }
}

void DrawSubmenuArrow(CDC* pDC, const CRect& rect, COLORREF color) {
    visual::PaintChevron(*pDC, rect, visual::ArrowDirection::Right, visual::FromColorRef(color),
                         {visual::StyleSkin(0), ribbon::CurrentMetrics().scale});
}

} // namespace

ribbon::MenuRowContent CMFCRibbonButton::CollectMenuRow(CDC* pDC) const {
    ribbon::MenuRowContent content;
    const BOOL isLarge = m_pParentMenu != nullptr ? m_pParentMenu->HasLargeRows(this) : IsAlwaysLargeImage();
    content.image = fx::FromSize(GetImageSize(GetImageTypeFor(isLarge)));
    const CString text = GetShownText();
    content.text = ribbon::MeasureText(pDC, View(TextOf(text)));
    content.text.height = ribbon::CurrentMetrics().textHeight;
    content.keys = ribbon::MeasureText(pDC, View(KeysOf(text)));
    if (isLarge && m_bIsAlwaysShowDescription && !m_strDescription.IsEmpty()) {
        content.description = ribbon::MeasureText(pDC, View(m_strDescription));
    }
    if (HasMenu()) {
        content.menu = IsSplit() ? ribbon::ButtonMenu::Split : ribbon::ButtonMenu::Whole;
    }
    content.imageColumn = m_pParentMenu != nullptr ? m_pParentMenu->GetImageColumnWidth(this) : 0;
    return content;
}

void CMFCRibbonButton::PlaceMenuRowParts(CDC* pDC) {
    const ribbon::MenuRowFace face =
        ribbon::PlaceMenuRow(fx::FromRect(m_rect), CollectMenuRow(pDC), ribbon::CurrentMetrics());
    m_rectCommand = fx::ToRect(face.command);
    m_rectMenu = fx::ToRect(face.menu);
}

void CMFCRibbonButton::DrawMenuRow(CDC* pDC) {
    const ribbon::TextContext context(pDC);
    const ribbon::MenuRowContent content = CollectMenuRow(pDC);
    const ribbon::MenuRowFace face = ribbon::PlaceMenuRow(fx::FromRect(m_rect), content, ribbon::CurrentMetrics());
    const COLORREF color = ribbon::TextColor(pDC, OnFillBackground(pDC), IsDisabled());

    if (IsChecked()) {
        CMFCVisualManager::GetInstance()->OnDrawRibbonMenuCheckFrame(pDC, this, fx::ToRect(face.frame));
    }
    if (face.image.IsEmpty() || !OnDrawMenuImage(pDC, fx::ToRect(face.image))) {
        if (IsChecked()) {
            DrawMark(pDC, fx::ToRect(face.frame), IsRadio(), color);
        }
    }
    const CString text = GetShownText();
    DrawRibbonText(pDC, TextOf(text), fx::ToRect(face.text), kRowText, color);
    if (!face.description.IsEmpty()) {
        DrawRibbonText(pDC, m_strDescription, fx::ToRect(face.description), kRowText, color);
    }
    if (!face.keys.IsEmpty()) {
        DrawRibbonText(pDC, KeysOf(text), fx::ToRect(face.keys), kRowText, color);
    }
    if (!face.arrow.IsEmpty()) {
        DrawSubmenuArrow(pDC, fx::ToRect(face.arrow), color);
    }
    OnDrawBorder(pDC);
}

BOOL CMFCRibbonButton::OnDrawMenuImage(CDC* pDC, CRect rect) {
    const BOOL isLarge = rect.Width() > GetImageSize(RibbonImageSmall).cx;
    DrawImage(pDC, isLarge ? RibbonImageLarge : RibbonImageSmall, rect);
    return TRUE;
}
