#include "toolbar/row_list.h"

#include "afxvisualmanager.h"
#include "toolbar/metrics.h"
#include "visual/manager_instance.h"
#include "visual/paint_ribbon.h"

#include <algorithm>

namespace toolbar {

namespace {

// At 96 DPI.
constexpr int kRowMargin = 2;
constexpr int kTextMargin = 4;

} // namespace

BEGIN_MESSAGE_MAP(RowList, CListBox)
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

// It was measured before it had an object.
void RowList::TakeOver(int id, CWnd& page) {
    SubclassDlgItem(static_cast<UINT>(id), &page);
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(before);
    SetItemHeight(0, static_cast<UINT>(std::max<int>(metrics.tmHeight, LeastHeight()) + 2 * Scaled(kRowMargin)));
}

void RowList::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect row(lpDrawItemStruct->rcItem);
    const bool isSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const COLORREF before =
        dc->SetTextColor(CMFCVisualManager::GetInstance()->OnFillCommandsListBackground(dc, row, isSelected));
    const int mode = dc->SetBkMode(TRANSPARENT);
    const auto index = static_cast<int>(lpDrawItemStruct->itemID);
    if (index >= 0 && index < GetCount()) {
        DrawRow(*dc, row, index, isSelected);
    }
    dc->SetBkMode(mode);
    dc->SetTextColor(before);
    const UINT noFocus = ODS_NOFOCUSRECT;
    if ((lpDrawItemStruct->itemState & (ODS_FOCUS | noFocus)) == ODS_FOCUS) {
        visual::PaintFocus(*dc, row, visual::FromColorRef(dc->GetPixel(row.TopLeft())), visual::CurrentLook());
    }
}

void RowList::DrawRow(CDC& dc, const CRect& rect, int row, bool /*isSelected*/) {
    CString text;
    GetText(row, text);
    CRect place(rect);
    place.DeflateRect(Scaled(kTextMargin), 0);
    dc.DrawText(text, place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

// Images are made for the ground of menus.
BOOL RowList::OnEraseBkgnd(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMFCVisualManager::GetInstance()->OnFillCommandsListBackground(pDC, client);
    return TRUE;
}

} // namespace toolbar
