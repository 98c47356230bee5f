#include "toolbar/command_list.h"

#include "afxtoolbar.h"
#include "toolbar/button_drag.h"
#include "toolbar/choose_buttons.h"
#include "toolbar/metrics.h"

#include <cstdlib>
#include <utility>

namespace toolbar {

namespace {

bool IsFar(CPoint from, CPoint to) {
    return std::abs(to.x - from.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(to.y - from.y) >= ::GetSystemMetrics(SM_CYDRAG);
}

} // namespace

BEGIN_MESSAGE_MAP(CommandList, RowList)
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

int CommandList::LeastHeight() const { return static_cast<int>(Scaled(CMFCToolBar::GetMenuImageSize()).cy); }

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

void CommandList::DrawRow(CDC& dc, const CRect& rect, int row, bool isSelected) {
    if (CMFCToolBarButton* const command = At(row)) {
        command->OnDrawOnCustomizeList(&dc, rect, isSelected);
    }
}

void CommandList::OnLButtonDown(UINT nFlags, CPoint point) {
    BOOL isOutside = FALSE;
    const UINT row = ItemFromPoint(point, isOutside);
    m_pressed = isOutside ? nullptr : At(static_cast<int>(row));
    m_press = point;
    RowList::OnLButtonDown(nFlags, point);
}

void CommandList::OnMouseMove(UINT nFlags, CPoint point) {
    CWnd* const frame = m_frame && m_pressed != nullptr && (nFlags & MK_LBUTTON) != 0 ? m_frame() : nullptr;
    if (frame == nullptr || !IsFar(m_press, point)) {
        RowList::OnMouseMove(nFlags, point);
        return;
    }
    CPoint screen = m_press;
    ClientToScreen(&screen);
    ButtonDrag::BeginWithCommand(*std::exchange(m_pressed, nullptr), *frame, screen);
}

void CommandList::OnLButtonUp(UINT nFlags, CPoint point) {
    m_pressed = nullptr;
    RowList::OnLButtonUp(nFlags, point);
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
