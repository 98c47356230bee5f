#include "tests/ui/popup_menu/menu_frame.h"

namespace {

/// Once: what the host does may come back here, and may be the end of the frame.
void DoOnce(std::function<void()>& what) {
    if (const auto doIt = std::exchange(what, nullptr)) {
        doIt();
    }
}

} // namespace

BEGIN_MESSAGE_MAP(MenuFrame, CFrameWndEx)
ON_COMMAND_RANGE(2000, 2999, OnMenuCommand)
ON_UPDATE_COMMAND_UI_RANGE(2000, 2999, OnUpdateMenuCommand)
ON_WM_MENUSELECT()
END_MESSAGE_MAP()

void MenuFrame::OnMenuCommand(UINT id) { commands.push_back(id); }

void MenuFrame::OnUpdateMenuCommand(CCmdUI* state) {
    state->Enable(state->m_nID != menu_ids::close);
    state->SetCheck(state->m_nID == menu_ids::checked ? 1 : 0);
    DoOnce(onUpdate);
}

void MenuFrame::OnMenuSelect(UINT item, UINT flags, HMENU menu) {
    hotItems.push_back(item);
    CFrameWndEx::OnMenuSelect(item, flags, menu);
    DoOnce(onSelect);
}

BOOL MenuFrame::OnShowPopupMenu(CMFCPopupMenu* menu) {
    ++shown;
    const BOOL isShown = CFrameWndEx::OnShowPopupMenu(menu) && allowsMenus;
    DoOnce(onShow);
    return isShown;
}

void MenuFrame::OnClosePopupMenu(CMFCPopupMenu* menu) {
    ++closed;
    CFrameWndEx::OnClosePopupMenu(menu);
    DoOnce(onClose);
}

PopupMenuTest::PopupMenuTest() : m_frame(new MenuFrame) {
    m_frame->Create(nullptr, L"Menus", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
    m_window = m_frame->m_hWnd;
    m_frame->ShowWindow(SW_SHOWNOACTIVATE);
    PumpPending();
}

PopupMenuTest::~PopupMenuTest() {
    CMFCPopupMenu::CloseAll();
    if (::IsWindow(m_window)) {
        ::DestroyWindow(m_window);
    }
    PumpPending();
}

HMENU PopupMenuTest::MakeMenu() {
    CMenu more, recent, menu;
    more.CreatePopupMenu();
    more.AppendMenu(MF_STRING, menu_ids::deep, L"&Deep");
    recent.CreatePopupMenu();
    recent.AppendMenu(MF_STRING, menu_ids::first, L"&First");
    recent.AppendMenu(MF_STRING, menu_ids::second, L"&Second\tCtrl+2");
    recent.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(more.Detach()), L"&More");
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, menu_ids::open, L"&Open");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(recent.Detach()), L"&Recent");
    menu.AppendMenu(MF_STRING, menu_ids::close, L"&Close");
    menu.AppendMenu(MF_STRING, menu_ids::checked, L"C&hecked");
    menu.AppendMenu(MF_STRING, menu_ids::unhandled, L"&Unhandled");
    return menu.Detach();
}

CMFCPopupMenu* PopupMenuTest::Open(CPoint offset) {
    auto* menu = new CMFCPopupMenu;
    m_frame->ClientToScreen(&offset);
    return menu->Create(m_frame, offset.x, offset.y, MakeMenu()) ? menu : nullptr;
}

int PopupMenuTest::IndexOf(CMFCPopupMenu* menu, LPCTSTR text) {
    for (int i = 0; i < menu->GetMenuItemCount(); ++i) {
        if (menu->GetMenuBar()->GetButtonText(i) == text) {
            return i;
        }
    }
    return -1;
}

CPoint PopupMenuTest::CenterOf(CMFCPopupMenu* menu, int index) {
    CRect rect;
    menu->GetMenuBar()->GetItemRect(index, rect);
    return rect.CenterPoint();
}

void PopupMenuTest::ClickItem(CMFCPopupMenu* menu, LPCTSTR text) {
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, CenterOf(menu, IndexOf(menu, text)));
}

CMFCPopupMenu* PopupMenuTest::OpenChild(CMFCPopupMenu* menu, LPCTSTR text) {
    ClickItem(menu, text);
    return Active() != menu ? Active() : nullptr;
}
