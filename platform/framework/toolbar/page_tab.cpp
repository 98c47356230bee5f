#include "toolbar/page_tab.h"

#include <commctrl.h>

namespace toolbar {

namespace {

CPropertySheet* SheetOf(HWND window) { return DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(window)); }

} // namespace

PageTab PageTabAt(CPoint screen) {
    const HWND window = ::WindowFromPoint(screen);
    const CPropertySheet* const sheet = window != nullptr ? SheetOf(::GetParent(window)) : nullptr;
    if (sheet == nullptr || sheet->GetTabControl()->GetSafeHwnd() != window) {
        return {};
    }
    TCHITTESTINFO hit{};
    hit.pt = screen;
    ::MapWindowPoints(nullptr, window, &hit.pt, 1);
    const auto page = static_cast<int>(::SendMessageW(window, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return page >= 0 && page != sheet->GetActiveIndex() ? PageTab{sheet->m_hWnd, page} : PageTab{};
}

void ShowPage(const PageTab& tab) {
    if (CPropertySheet* const sheet = SheetOf(tab.sheet)) {
        sheet->SetActivePage(tab.page);
    }
}

} // namespace toolbar
