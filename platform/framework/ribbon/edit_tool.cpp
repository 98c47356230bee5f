#include "ribbon/edit_tool.h"

#include "afxRibbonEdit.h"
#include "afxtooltipctrl.h"

namespace {

HWND EditWindowOf(const CMFCRibbonBaseElement* element) {
    const auto* edit = dynamic_cast<const CMFCRibbonEdit*>(element);
    return edit != nullptr && edit->GetEditWnd() != nullptr ? edit->GetEditWnd()->GetSafeHwnd() : nullptr;
}

} // namespace

bool IsPointerInEdit(const CMFCRibbonBaseElement* element) {
    const HWND window = EditWindowOf(element);
    const auto* edit = DYNAMIC_DOWNCAST(CMFCRibbonRichEditCtrl, CWnd::FromHandlePermanent(window));
    return edit != nullptr && edit->IsHighlighted();
}

void RibbonEditTool::Follow(CToolTipCtrl& tooltip, CWnd& owner, const CMFCRibbonBaseElement* element) {
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = owner.GetSafeHwnd();
    tool.lpszText = LPSTR_TEXTCALLBACK;
    if (m_window != nullptr) {
        tool.uId = reinterpret_cast<UINT_PTR>(m_window);
        tooltip.SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    }
    m_window = EditWindowOf(element);
    if (m_window != nullptr) {
        tool.uId = reinterpret_cast<UINT_PTR>(m_window);
        tooltip.SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    }
}
