#include "toolbar/command_list.h"

#include "afxtoolbar.h"
#include "afxvisualmanager.h"
#include "toolbar/button_drag.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/metrics.h"
#include "visual/manager_instance.h"
#include "visual/paint_ribbon.h"

#include <cstdlib>
#include <utility>

namespace toolbar {

namespace {

// At 96 DPI.
constexpr int kRowMargin = 2;

bool IsFar(CPoint from, CPoint to) {
    return std::abs(to.x - from.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(to.y - from.y) >= ::GetSystemMetrics(SM_CYDRAG);
}

} // namespace

BEGIN_MESSAGE_MAP(CommandList, CListBox)
ON_WM_ERASEBKGND()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

// It was measured before it had an object.
void CommandList::TakeOver(int id, CWnd& page) {
    SubclassDlgItem(static_cast<UINT>(id), &page);
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(GetFont());
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(before);
    const auto image = static_cast<int>(Scaled(CMFCToolBar::GetMenuImageSize()).cy);
    SetItemHeight(0, static_cast<UINT>(std::max<int>(metrics.tmHeight, image) + 2 * Scaled(kRowMargin)));
}

void CommandList::Show(const std::vector<CMFCToolBarButton*>& commands) {
    m_pressed = nullptr;
    SetRedraw(FALSE);
    ResetContent();
    for (CMFCToolBarButton* const command : commands) {
        SetItemDataPtr(AddString(ReadableText(*command)), command);
    }
    SetCurSel(commands.empty() ? -1 : 0);
    SetRedraw(TRUE);
    Invalidate();
}

CMFCToolBarButton* CommandList::At(int row) const {
    return row >= 0 && row < GetCount() ? static_cast<CMFCToolBarButton*>(GetItemDataPtr(row)) : nullptr;
}

CMFCToolBarButton* CommandList::Selected() const { return At(GetCurSel()); }

void CommandList::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CMFCToolBarButton* const command = At(static_cast<int>(lpDrawItemStruct->itemID));
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect row(lpDrawItemStruct->rcItem);
    const bool isSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const COLORREF before =
        dc->SetTextColor(CMFCVisualManager::GetInstance()->OnFillCommandsListBackground(dc, row, isSelected));
    const int mode = dc->SetBkMode(TRANSPARENT);
    if (command != nullptr) {
        command->OnDrawOnCustomizeList(dc, row, isSelected);
    }
    dc->SetBkMode(mode);
    dc->SetTextColor(before);
    const UINT noFocus = ODS_NOFOCUSRECT;
    if ((lpDrawItemStruct->itemState & (ODS_FOCUS | noFocus)) == ODS_FOCUS) {
        visual::PaintFocus(*dc, row, visual::FromColorRef(dc->GetPixel(row.TopLeft())), visual::CurrentLook());
    }
}

// Images are made for the ground of menus.
BOOL CommandList::OnEraseBkgnd(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMFCVisualManager::GetInstance()->OnFillCommandsListBackground(pDC, client);
    return TRUE;
}

void CommandList::OnLButtonDown(UINT nFlags, CPoint point) {
    BOOL isOutside = FALSE;
    const UINT row = ItemFromPoint(point, isOutside);
    m_pressed = isOutside ? nullptr : At(static_cast<int>(row));
    m_press = point;
    CListBox::OnLButtonDown(nFlags, point);
}

void CommandList::OnMouseMove(UINT nFlags, CPoint point) {
    CWnd* const frame = m_frame && m_pressed != nullptr && (nFlags & MK_LBUTTON) != 0 ? m_frame() : nullptr;
    if (frame == nullptr || !IsFar(m_press, point)) {
        CListBox::OnMouseMove(nFlags, point);
        return;
    }
    CPoint screen = m_press;
    ClientToScreen(&screen);
    ButtonDrag::BeginWithCommand(*std::exchange(m_pressed, nullptr), *frame, screen);
}

void CommandList::OnLButtonUp(UINT nFlags, CPoint point) {
    m_pressed = nullptr;
    CListBox::OnLButtonUp(nFlags, point);
}

std::vector<CMFCToolBarButton*> CommandsOf(const CommandCatalog& catalog, const CString& category) {
    const CommandCatalog::Category* const found = catalog.Find(category);
    if (found == nullptr) {
        return catalog.AllCommands();
    }
    std::vector<CMFCToolBarButton*> commands;
    for (const auto& button : found->buttons) {
        commands.push_back(button.get());
    }
    return commands;
}

} // namespace toolbar
