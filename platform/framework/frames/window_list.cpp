#include "frames/window_list.h"

#include "afxpopupmenu.h"
#include "frames/window_item.h"
#include "fx/mdi.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int kMostChildren = 9; ///< each has a digit as its mnemonic

void BringToFront(HWND child) {
    const HWND client = ::GetParent(child);
    if (::IsWindow(child) && ::IsIconic(child)) {
        ::SendMessageW(client, WM_MDIRESTORE, reinterpret_cast<WPARAM>(child), 0);
    }
    if (::IsWindow(child)) {
        ::SendMessageW(client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child), 0);
    }
}

bool IsArranging(UINT id) { return id >= ID_WINDOW_NEW && id <= ID_WINDOW_TILE_VERT; }
bool IsOfSystemsList(UINT id) { return id >= AFX_IDM_FIRST_MDICHILD && id <= AFX_IDM_FIRST_MDICHILD + kMostChildren; }

bool HasItem(CMFCPopupMenu& menu, bool (*isWanted)(UINT id)) {
    for (int index = 0; index < menu.GetMenuItemCount(); ++index) {
        const CMFCToolBarMenuButton* const item = menu.GetMenuItem(index);
        if (item != nullptr && isWanted(item->m_nID)) {
            return true;
        }
    }
    return false;
}

/// The system appends to the menu that it knows, which the bar may have copied long ago.
void RemoveSystemsList(CMFCPopupMenu& menu) {
    for (int index = menu.GetMenuItemCount() - 1; index >= 0; --index) {
        const CMFCToolBarMenuButton* const item = menu.GetMenuItem(index);
        if (item != nullptr && IsOfSystemsList(item->m_nID)) {
            menu.RemoveItem(index); // with the line before them, once nothing is behind it
        }
    }
}

/// Those that users see, in the order in which they were opened.
std::vector<HWND> ChildrenOf(const CMDIFrameWnd& frame) {
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(frame.GetMDIClient(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        // Titles of minimised children are windows too, owned ones.
        if (::IsWindowVisible(child) && ::GetWindow(child, GW_OWNER) == nullptr) {
            children.push_back(child);
        }
    }
    std::ranges::sort(children, {}, [](HWND child) { return ::GetDlgCtrlID(child); });
    return children;
}

CString ItemText(HWND child, int number) {
    CString title;
    const int length = ::GetWindowTextLengthW(child);
    ::GetWindowTextW(child, title.GetBuffer(length + 1), length + 1);
    title.ReleaseBuffer();
    title.Replace(L"&", L"&&");
    CString text;
    text.Format(L"&%d ", number);
    return text + title;
}

} // namespace

void ListChildWindows(CMFCPopupMenu& menu, CMDIFrameWnd& frame) {
    if (!HasItem(menu, &IsArranging)) {
        return;
    }
    RemoveSystemsList(menu);
    const std::vector<HWND> children = ChildrenOf(frame);
    const CMDIChildWnd* const active = frame.MDIGetActive();
    const int count = std::min(kMostChildren, static_cast<int>(children.size()));
    for (int number = 1; number <= count; ++number) {
        if (number == 1) {
            menu.InsertSeparator();
        }
        const HWND child = children[static_cast<std::size_t>(number - 1)];
        menu.InsertItem(
            WindowItem(child, &BringToFront, active != nullptr && active->m_hWnd == child, ItemText(child, number)));
    }
}
