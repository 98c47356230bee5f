#include "tests/ui/menu_bar/bar_menu_frame.h"

#include <utility>

namespace {

void DoOnce(std::function<void()>& what) {
    if (const auto doIt = std::exchange(what, nullptr)) {
        doIt();
    }
}

HMENU Popup(std::initializer_list<std::pair<UINT, LPCWSTR>> items) {
    const HMENU menu = ::CreatePopupMenu();
    for (const auto& [id, text] : items) {
        ::AppendMenuW(menu, MF_STRING, id, text);
    }
    return menu;
}

void AppendPopup(HMENU menu, HMENU popup, LPCWSTR text) {
    ::AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), text);
}

} // namespace

BEGIN_MESSAGE_MAP(BarMenuFrame, CFrameWndEx)
ON_WM_CREATE()
ON_COMMAND_RANGE(2000, 2999, OnMenuCommand)
ON_UPDATE_COMMAND_UI_RANGE(2000, 2999, OnUpdateMenuCommand)
END_MESSAGE_MAP()

int BarMenuFrame::OnCreate(LPCREATESTRUCT create) {
    return CFrameWndEx::OnCreate(create) == -1 || !bar.Create(this) ? -1 : 0;
}

void BarMenuFrame::OnMenuCommand(UINT id) { commands.push_back(id); }

void BarMenuFrame::OnUpdateMenuCommand(CCmdUI* state) {
    state->Enable(state->m_nID != bar_ids::close);
    state->SetCheck(state->m_nID == bar_ids::checked ? 1 : 0);
    if (const auto update = state->m_pMenu ? std::exchange(onUpdate, nullptr) : nullptr) {
        update(*state);
    }
}

BOOL BarMenuFrame::OnShowPopupMenu(CMFCPopupMenu* menu) {
    const BOOL isShown = CFrameWndEx::OnShowPopupMenu(menu);
    DoOnce(onShow);
    return isShown;
}

void BarMenuFrame::OnClosePopupMenu(CMFCPopupMenu* menu) {
    CFrameWndEx::OnClosePopupMenu(menu);
    DoOnce(onClose);
}

MenuBarTest::MenuBarTest() : m_frame(new BarMenuFrame), m_menu(MakeMenu()) {
    m_frame->Create(nullptr, L"Menu bar", WS_OVERLAPPEDWINDOW, CRect(100, 80, 700, 480));
    m_window = m_frame->m_hWnd;
    Bar().CreateFromMenu(m_menu, TRUE, TRUE);
    m_frame->ShowWindow(SW_SHOW);
    m_frame->RecalcLayout();
    ::SetFocus(m_window);
    PumpPending();
}

MenuBarTest::~MenuBarTest() {
    CMFCPopupMenu::CloseAll();
    if (::IsWindow(m_window)) {
        ::DestroyWindow(m_window);
    }
    ::DestroyMenu(m_menu);
    PumpPending();
}

HMENU MenuBarTest::MakeMenu() {
    using namespace bar_ids;
    const HMENU file = Popup({{create, L"&New"}, {bar_ids::open, L"&Open\tCtrl+O"}});
    AppendPopup(file, Popup({{first, L"&First"}}), L"&Recent");
    ::AppendMenuW(file, MF_STRING, bar_ids::close, L"&Close");
    ::AppendMenuW(file, MF_STRING, checked, L"C&hecked");
    const HMENU menu = ::CreateMenu();
    AppendPopup(menu, file, L"&File");
    AppendPopup(menu, Popup({{copy, L"&Copy"}, {paste, L"&Paste"}}), L"&Edit");
    ::AppendMenuW(menu, MF_STRING, run, L"&Run");
    AppendPopup(menu, Popup({{zoom, L"&Zoom"}}), L"&View");
    return menu;
}

CString MenuBarTest::Texts() {
    CString texts;
    for (int i = 0; i < Bar().GetCount(); ++i) {
        texts += (i > 0 ? L" " : L"") + Bar().GetButtonText(i);
    }
    return texts;
}

CPoint MenuBarTest::CenterOf(int index) {
    CRect rect;
    Bar().GetItemRect(index, rect);
    return rect.CenterPoint();
}

int MenuBarTest::OpenIndex() {
    int index = -1;
    Bar().GetDroppedDownMenu(&index);
    return index;
}

int MenuBarTest::HotIndex() { return Bar().ButtonToIndex(Bar().GetHighlightedButton()); }

CString MenuBarTest::HotItem() {
    CMFCToolBarMenuButton* item = Active() ? Active()->GetSelItem() : nullptr;
    return item ? item->m_strText : CString();
}

void MenuBarTest::PressAlt() { m_keys.Press(VK_MENU); }

void MenuBarTest::PressAltWith(wchar_t letter) {
    m_keys.Down(VK_MENU);
    m_keys.Hold(VK_MENU);
    const auto key = static_cast<UINT>(letter - L'a' + L'A');
    m_keys.Down(key);
    MSG character = {m_window, WM_SYSCHAR, static_cast<WPARAM>(letter), 1 | (LPARAM{1} << 29), ::GetTickCount(), {}};
    if (!AfxPreTranslateMessage(&character)) {
        ::DispatchMessageW(&character);
    }
    m_keys.Up(key);
    m_keys.Let(VK_MENU);
    m_keys.Up(VK_MENU);
    PumpPending();
}
