#include <afxribboncheckbox.h>

#include <afxvisualmanager.h>

#include "ribbon/access_texts.h"
#include "ribbon/edit_geometry.h"
#include "ribbon/element_metrics.h"
#include "ribbon/shown_text.h"
#include <oleacc.h>

namespace {

fx::Size MeasureLabel(CDC* pDC, const CString& text) {
    return ribbon::MeasureText(pDC, {text, static_cast<std::size_t>(text.GetLength())});
}

} // namespace

IMPLEMENT_DYNCREATE(CMFCRibbonCheckBox, CMFCRibbonButton)

CMFCRibbonCheckBox::CMFCRibbonCheckBox(UINT nID, LPCTSTR lpszText) : CMFCRibbonButton(nID, lpszText) {}

// In a menu it is a row with a check mark.
CSize CMFCRibbonCheckBox::GetRegularSize(CDC* pDC) {
    if (ShowsMenuRow()) {
        return CMFCRibbonButton::GetRegularSize(pDC);
    }
    const fx::Size text = MeasureLabel(pDC, ribbon::PlainText(m_strText));
    return fx::ToSize(ribbon::MeasureCheckBox(text, ribbon::CurrentMetrics()));
}

CSize CMFCRibbonCheckBox::GetIntermediateSize(CDC* pDC) { return GetRegularSize(pDC); }

CSize CMFCRibbonCheckBox::GetCompactSize(CDC* pDC) { return GetRegularSize(pDC); }

void CMFCRibbonCheckBox::OnDraw(CDC* pDC) {
    if (m_rect.IsRectEmpty()) {
        return;
    }
    if (ShowsMenuRow()) {
        DrawMenuRow(pDC);
        return;
    }
    const ribbon::TextContext context(pDC);
    const fx::Size text = MeasureLabel(pDC, ribbon::PlainText(m_strText));
    const ribbon::CheckBoxFace face = ribbon::PlaceCheckBox(fx::FromRect(m_rect), text, ribbon::CurrentMetrics());
    CMFCVisualManager::GetInstance()->OnDrawCheckBoxEx(pDC, fx::ToRect(face.box), IsChecked() ? 1 : 0, IsHighlighted(),
                                                       IsPressed(), !IsDisabled());
    if (!face.text.IsEmpty()) {
        DrawRibbonText(pDC, ribbon::PlainText(m_strText), fx::ToRect(face.text),
                       DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS | DT_NOCLIP,
                       ribbon::TextColor(pDC, static_cast<COLORREF>(-1), IsDisabled()));
    }
}

// ---- for assistive programs

BOOL CMFCRibbonCheckBox::SetACCData(CWnd* pParent, CAccessibilityData& data) {
    CMFCRibbonButton::SetACCData(pParent, data);
    data.m_nRole = ROLE_SYSTEM_CHECKBUTTON;
    data.m_strDefaultAction = RibbonAccessText(IsChecked() ? RibbonAccessTextId::Uncheck : RibbonAccessTextId::Check);
    return TRUE;
}
