// The customize dialog: commands dragged out of its list by the real mouse, toolbars shown and hidden, keys assigned.
#include "tests/support/real_mouse.h"
#include "tests/ui/toolbar/bar_frame.h"

#include <functional>

#include <commctrl.h>

namespace {

enum Page : int { kCommandsPage, kToolBarsPage, kKeyboardPage, kMenusPage, kOptionsPage };

// The controls of the pages.
constexpr int kCategories = 1001;
constexpr int kCommands = 1002;
constexpr int kBars = 1001;
constexpr int kReset = 1002;
constexpr int kResetAll = 1003;
constexpr int kNew = 1004;
constexpr int kRename = 1005;
constexpr int kDelete = 1006;
constexpr int kTextLabels = 1007;
constexpr int kKeyCommands = 1002;
constexpr int kCurrentKeys = 1003;
constexpr int kNewKey = 1004;
constexpr int kAssigned = 1005;
constexpr int kAssign = 1006;
constexpr int kRemove = 1007;
constexpr int kResetAllKeys = 1008;
constexpr int kFirstOption = 1001;

/// What the frame hears of the dialog.
class FrameWatch {
public:
    explicit FrameWatch(const CWnd& frame) : m_window(frame.m_hWnd) {
        ::SetWindowSubclass(m_window, &FrameWatch::Proc, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~FrameWatch() { ::RemoveWindowSubclass(m_window, &FrameWatch::Proc, 1); }
    FrameWatch(const FrameWatch&) = delete;
    FrameWatch& operator=(const FrameWatch&) = delete;

    std::vector<WPARAM> modes; ///< of AFX_WM_CUSTOMIZETOOLBAR
    std::vector<WPARAM> helps; ///< of AFX_WM_CUSTOMIZEHELP
    int keyResets = 0;
    std::function<void(UINT message, WPARAM wParam)> hostile;

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR data) {
        auto* const watch = reinterpret_cast<FrameWatch*>(data);
        if (message == AFX_WM_CUSTOMIZETOOLBAR) {
            watch->modes.push_back(wParam);
        } else if (message == AFX_WM_CUSTOMIZEHELP) {
            watch->helps.push_back(wParam);
        } else if (message == AFX_WM_RESETKEYBOARD) {
            ++watch->keyResets;
        }
        if (watch->hostile) {
            watch->hostile(message, wParam);
        }
        return ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_window;
};

class CustomizeDialogTest : public ToolBarTest {
protected:
    CustomizeDialogTest() : m_watch(*m_frame) {
        Bar().SetWindowText(L"First");
        m_second.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001);
        m_second.SetWindowText(L"Second");
        m_second.InsertButton(CMFCToolBarButton(3011, 3, L"Eleven"));
        m_second.EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&m_second);
        ACCEL keys[] = {{FVIRTKEY, VK_F8, 3001}, {FVIRTKEY | FCONTROL, 'J', 3002}};
        m_frame->ReplaceAccelTable(::CreateAcceleratorTableW(keys, 2));
        static_cast<CWinAppEx*>(AfxGetApp())->GetKeyboardManager();
        LayOut();
        m_second.AdjustLocations();
    }
    ~CustomizeDialogTest() override {
        Close();
        if (auto* const manager = afxKeyboardManager) {
            manager->ResetAll();
        }
        CMFCToolBar::SetShowTooltips(TRUE);
        CMFCToolBar::SetShowShortcutKeys(FALSE);
        CMFCToolBar::SetLargeIcons(FALSE);
        m_second.DestroyWindow();
    }

    CMFCToolBarsCustomizeDialog* NewDialog(UINT flags = AFX_CUSTOMIZE_TEXT_LABELS | AFX_CUSTOMIZE_NOHELP) const {
        auto* const dialog = new CMFCToolBarsCustomizeDialog(m_frame, FALSE, flags);
        dialog->AddButton(L"Shapes", CMFCToolBarButton(3021, 1, L"&Circle\tCtrl+K"));
        dialog->AddButton(L"Shapes", CMFCToolBarButton(3022, 2, L"Arrow"));
        dialog->AddButton(L"Files", CMFCToolBarButton(3023, 3, L"Open"));
        return dialog;
    }
    void Open(UINT flags = AFX_CUSTOMIZE_TEXT_LABELS | AFX_CUSTOMIZE_NOHELP) {
        m_dialog = NewDialog(flags);
        m_dialog->EnableUserDefinedToolbars();
        ASSERT_TRUE(m_dialog->Create());
        m_dialogWindow = m_dialog->m_hWnd;
        m_dialog->SetWindowPos(nullptr, 250, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        PumpPending();
    }
    void Close() {
        if (IsOpen()) {
            ::SendMessageW(m_dialogWindow, WM_CLOSE, 0, 0);
        }
        PumpPending();
    }
    bool IsOpen() const { return ::IsWindow(m_dialogWindow) != FALSE; }
    HWND Item(int id) const { return ::GetDlgItem(m_dialog->GetActivePage()->m_hWnd, id); }
    void GoTo(Page page) {
        ASSERT_TRUE(m_dialog->SetActivePage(page));
        PumpPending();
    }
    void Click(int id) {
        ::SendMessageW(::GetParent(Item(id)), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                       reinterpret_cast<LPARAM>(Item(id)));
        PumpPending();
    }
    void Select(int list, int row) {
        ::SendMessageW(Item(list), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
        ::SendMessageW(::GetParent(Item(list)), WM_COMMAND, MAKEWPARAM(list, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(Item(list)));
    }
    std::vector<CString> Rows(int list) const {
        std::vector<CString> rows;
        const auto count = static_cast<int>(::SendMessageW(Item(list), LB_GETCOUNT, 0, 0));
        for (int row = 0; row < count; ++row) {
            wchar_t text[100] = {};
            ::SendMessageW(Item(list), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
            rows.emplace_back(text);
        }
        return rows;
    }
    CString Text(int id) const {
        wchar_t text[100] = {};
        ::GetWindowTextW(Item(id), text, 100);
        return text;
    }

    static CString ContentsOf(const CMFCToolBar& bar) {
        CString contents;
        for (int index = 0; index < bar.GetCount(); ++index) {
            CString part(L"|");
            if ((bar.GetButtonStyle(index) & TBBS_SEPARATOR) == 0) {
                part.Format(L"%u", bar.GetItemID(index));
            }
            contents += (contents.IsEmpty() ? L"" : L" ") + part;
        }
        return contents;
    }
    static CPoint OnScreen(const CMFCToolBar& bar, int index, int dx) {
        CRect rect;
        bar.GetItemRect(index, rect);
        bar.ClientToScreen(&rect);
        return rect.CenterPoint() + CPoint(dx, 0);
    }
    CPoint RowOnScreen(int list, int row) const {
        RECT rect{};
        ::SendMessageW(Item(list), LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        CPoint point(rect.left + 30, (rect.top + rect.bottom) / 2);
        ::ClientToScreen(Item(list), &point);
        return point;
    }
    static void Mouse(CPoint screen, DWORD flags) {
        SendMouse(screen, flags);
        PumpPending();
    }
    /// In small steps, as a hand does.
    static void RealDrag(CPoint from, CPoint to) {
        Mouse(from, 0);
        Mouse(from, MOUSEEVENTF_LEFTDOWN);
        for (int step = 1; step <= 8; ++step) {
            Mouse(CPoint(from.x + (to.x - from.x) * step / 8, from.y + (to.y - from.y) * step / 8), 0);
        }
        Mouse(to, MOUSEEVENTF_LEFTUP);
    }
    void RealClick(CPoint at) {
        Mouse(at, 0);
        Mouse(at, MOUSEEVENTF_LEFTDOWN);
        Mouse(at, MOUSEEVENTF_LEFTUP);
    }
    std::vector<UINT> TakeCommands() { return std::exchange(m_frame->commands, {}); }

    FrameWatch m_watch;
    TestBar m_second;
    CMFCToolBarsCustomizeDialog* m_dialog = nullptr; ///< deletes itself
    HWND m_dialogWindow = nullptr;
};

using Commands = std::vector<UINT>;

// ---- the mode

TEST_F(CustomizeDialogTest, TheToolbarsAreInTheCustomizeModeWhileItIsOpen) {
    Open();
    EXPECT_TRUE(CMFCToolBar::IsCustomizeMode());
    EXPECT_EQ(m_watch.modes, (std::vector<WPARAM>{TRUE}));
    RealClick(OnScreen(Bar(), 0, 0));
    EXPECT_EQ(TakeCommands(), Commands{}) << "a button is there to be moved";
    Close();
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
    EXPECT_EQ(m_watch.modes, (std::vector<WPARAM>{TRUE, FALSE}));
    RealClick(OnScreen(Bar(), 0, 0));
    EXPECT_EQ(TakeCommands(), Commands{3001});
}

TEST_F(CustomizeDialogTest, EscAndTheCloseButtonEndIt) {
    Open();
    Keys(Item(kCommands)).Press(VK_ESCAPE);
    PumpPending();
    EXPECT_FALSE(IsOpen());
    Open();
    CRect close;
    ::GetWindowRect(::GetDlgItem(m_dialogWindow, IDCANCEL), &close);
    RealClick(close.CenterPoint());
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
}

TEST_F(CustomizeDialogTest, ThereIsOneAtATime) {
    Open();
    EXPECT_FALSE(NewDialog()->Create());
    EXPECT_TRUE(CMFCToolBar::IsCustomizeMode()) << "the other goes on";
    EXPECT_EQ(m_watch.modes.size(), 1u);
}

TEST_F(CustomizeDialogTest, HelpIsTheFramesWithThePageInFront) {
    Open(0);
    GoTo(kOptionsPage);
    ::SendMessageW(m_dialogWindow, WM_COMMAND, IDHELP, 0);
    ::SendMessageW(m_dialogWindow, WM_HELP, 0, 0);
    EXPECT_EQ(m_watch.helps, (std::vector<WPARAM>{kOptionsPage, kOptionsPage}));
}

// ---- commands

TEST_F(CustomizeDialogTest, CommandsStandBelowTheirCategoriesWithoutMnemonicsAndKeys) {
    Open();
    EXPECT_EQ(Rows(kCategories), (std::vector<CString>{L"All Commands", L"Shapes", L"Files"}));
    EXPECT_EQ(Rows(kCommands), (std::vector<CString>{L"Arrow", L"Circle", L"Open"}));
    Select(kCategories, 1);
    EXPECT_EQ(Rows(kCommands), (std::vector<CString>{L"Circle", L"Arrow"}));
    EXPECT_STREQ(m_dialog->GetCommandName(3021), L"Circle");
    EXPECT_EQ(m_dialog->GetCommandName(3999), nullptr);
}

TEST_F(CustomizeDialogTest, ACommandIsDraggedFromTheListBetweenTheButtonsOfABar) {
    Open();
    RealDrag(RowOnScreen(kCommands, 1), OnScreen(Bar(), 1, -6));
    EXPECT_EQ(Contents(), L"3001 3021 3002 | 3003");
    EXPECT_EQ(Rows(kCommands).size(), 3u) << "the list keeps it";
    Close();
    LayOut();
    RealClick(OnScreen(Bar(), 1, 0));
    EXPECT_EQ(TakeCommands(), Commands{3021});
}

TEST_F(CustomizeDialogTest, ACommandIsDraggedFromTheListIntoAMenuThatOpensUnderIt) {
    const HMENU popup = ::CreatePopupMenu();
    ::AppendMenuW(popup, MF_STRING, 3031, L"First");
    Bar().InsertButton(CMFCToolBarMenuButton(static_cast<UINT>(-1), popup, -1, L"More"));
    ::DestroyMenu(popup);
    LayOut();
    Open();
    const CPoint from = RowOnScreen(kCommands, 1);
    Mouse(from, 0);
    Mouse(from, MOUSEEVENTF_LEFTDOWN);
    Mouse(from + CPoint(0, -20), 0);
    Mouse(OnScreen(Bar(), 4, 0), 0);
    ASSERT_TRUE(PumpUntil([] { return CMFCPopupMenu::GetActiveMenu() != nullptr; }));
    CMFCPopupMenuBar& menu = *CMFCPopupMenu::GetActiveMenu()->GetMenuBar();
    const CPoint before = OnScreen(menu, 0, 0) + CSize(0, -5);
    Mouse(before, 0);
    Mouse(before, MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    const auto* const more = DYNAMIC_DOWNCAST(CMFCToolBarMenuButton, Bar().GetButton(4));
    ASSERT_NE(more, nullptr);
    ASSERT_EQ(more->GetCommands().GetCount(), 2);
    EXPECT_EQ(static_cast<const CMFCToolBarButton*>(more->GetCommands().GetHead())->m_nID, 3021u);
    EXPECT_TRUE(IsOpen());
}

TEST_F(CustomizeDialogTest, ACommandThatIsDroppedBesideTheBarsOrOnTheDialogChangesNothing) {
    Open();
    RealDrag(RowOnScreen(kCommands, 1), CPoint(20, 20));
    CRect tabs;
    m_dialog->GetTabControl()->GetWindowRect(&tabs);
    RealDrag(RowOnScreen(kCommands, 1), tabs.CenterPoint());
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3011");
}

TEST_F(CustomizeDialogTest, WhereTheDialogLiesOverABarThereIsNoBar) {
    Open();
    const CPoint over = OnScreen(Bar(), 1, 0);
    m_dialog->SetWindowPos(nullptr, over.x - 100, over.y - 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    PumpPending();
    RealDrag(RowOnScreen(kCommands, 1), over);
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(CustomizeDialogTest, EscEndsTheDragAndLeavesTheDialogOpen) {
    Open();
    const CPoint from = RowOnScreen(kCommands, 1);
    Mouse(from, 0);
    Mouse(from, MOUSEEVENTF_LEFTDOWN);
    Mouse(from + CPoint(0, -40), 0);
    Mouse(OnScreen(Bar(), 1, -6), 0);
    Keys(Item(kCommands)).Press(VK_ESCAPE);
    Mouse(OnScreen(Bar(), 1, -6), MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_TRUE(IsOpen());
}

TEST_F(CustomizeDialogTest, AButtonMovesToAnotherBarWithoutAltAndIsRemovedBesideAllOfThem) {
    Open();
    RealDrag(OnScreen(Bar(), 1, 0), OnScreen(m_second, 0, -6));
    EXPECT_EQ(Contents(), L"3001 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3002 3011");
    RealDrag(OnScreen(Bar(), 0, 0), CPoint(20, 20));
    EXPECT_EQ(Contents(), L"3003");
}

// ---- its look

constexpr COLORREF kDarkGround = RGB(40, 44, 52);
constexpr COLORREF kLightText = RGB(220, 223, 228);

/// Knows nothing but the ground of the list of commands.
class DarkManager : public CMFCVisualManager {
    DECLARE_DYNCREATE(DarkManager)

public:
    COLORREF OnFillCommandsListBackground(CDC* dc, CRect rect, BOOL) override {
        dc->FillSolidRect(rect, kDarkGround);
        return kLightText;
    }
};
IMPLEMENT_DYNCREATE(DarkManager, CMFCVisualManager)

class DialogLookTest : public CustomizeDialogTest {
protected:
    ~DialogLookTest() override {
        Close();
        CMFCVisualManager::SetDefaultManager(nullptr);
    }
    struct Asked {
        COLORREF ground;
        COLORREF text;
    };
    /// What the window says about a control of its own.
    static Asked Ask(HWND window, UINT message, HWND control) {
        const HDC dc = ::GetDC(window);
        const LRESULT brush =
            ::SendMessageW(window, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(control));
        LOGBRUSH shape{};
        ::GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof(shape), &shape);
        const Asked asked{shape.lbColor, ::GetTextColor(dc)};
        ::ReleaseDC(window, dc);
        return asked;
    }
    static COLORREF PixelOf(HWND window, int x, int y) {
        ::UpdateWindow(window);
        const HDC dc = ::GetDC(window);
        const COLORREF pixel = ::GetPixel(dc, x, y);
        ::ReleaseDC(window, dc);
        return pixel;
    }
    HWND Page() const { return m_dialog->GetActivePage()->m_hWnd; }
};

TEST_F(DialogLookTest, UnderADarkLookGroundTextsAndFieldsAreDark) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(DarkManager));
    Open();
    for (const UINT message : {WM_CTLCOLORSTATIC, WM_CTLCOLORLISTBOX, WM_CTLCOLOREDIT, WM_CTLCOLORDLG}) {
        const Asked asked = Ask(Page(), message, Item(kCategories));
        EXPECT_EQ(asked.ground, kDarkGround) << message;
        EXPECT_EQ(asked.text, kLightText) << message;
    }
    EXPECT_EQ(PixelOf(Page(), 2, 2), kDarkGround);
    CRect client;
    m_dialog->GetClientRect(&client);
    EXPECT_EQ(PixelOf(m_dialogWindow, 2, client.bottom - 2), kDarkGround);
    GoTo(kToolBarsPage);
    EXPECT_EQ(static_cast<COLORREF>(::SendMessageW(Item(kBars), LVM_GETBKCOLOR, 0, 0)), kDarkGround);
    EXPECT_EQ(static_cast<COLORREF>(::SendMessageW(Item(kBars), LVM_GETTEXTCOLOR, 0, 0)), kLightText);
}

TEST_F(DialogLookTest, UnderADarkLookButtonsAndTabsAreDarkAndWorkAsEver) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(DarkManager));
    Open();
    GoTo(kToolBarsPage);
    const COLORREF face = PixelOf(Item(kReset), 3, 3);
    EXPECT_LT(GetRValue(face), 100) << "dark, too";
    EXPECT_GT(GetRValue(face), GetRValue(kDarkGround)) << "and raised";
    ::SendMessageW(Item(kReset), BM_SETSTATE, TRUE, 0);
    EXPECT_GT(GetRValue(PixelOf(Item(kReset), 3, 3)), GetRValue(face)) << "pressed";
    ::SendMessageW(Item(kReset), BM_SETSTATE, FALSE, 0);
    EXPECT_EQ(PixelOf(Item(kReset), 3, 3), face);
    const HWND tabs = m_dialog->GetTabControl()->m_hWnd;
    CRect last;
    m_dialog->GetTabControl()->GetItemRect(kOptionsPage, &last);
    EXPECT_EQ(PixelOf(tabs, last.right + 5, last.top + 5), kDarkGround);
    RealClick([&] {
        CPoint point = last.CenterPoint();
        ::ClientToScreen(tabs, &point);
        return point;
    }());
    EXPECT_EQ(m_dialog->GetActiveIndex(), kOptionsPage);
    EXPECT_EQ(PixelOf(tabs, last.left + 5, last.top + 5), face) << "the tab in front";
    EXPECT_NE(PixelOf(tabs, last.left + 3, last.CenterPoint().y), face) << "the ring of what has the keyboard";
}

TEST_F(DialogLookTest, AnOpenDialogFollowsTheLookAtOnceOnEveryPageInBothDirections) {
    Open();
    std::vector<HWND> pages;
    for (const int page : {kCommandsPage, kToolBarsPage, kKeyboardPage, kOptionsPage}) {
        GoTo(static_cast<enum Page>(page));
        pages.push_back(Page());
    }
    GoTo(kToolBarsPage);
    const HWND tabs = m_dialog->GetTabControl()->m_hWnd;
    CRect last;
    m_dialog->GetTabControl()->GetItemRect(kOptionsPage, &last);
    const COLORREF lightPage = PixelOf(Page(), 2, 2);
    const COLORREF lightButton = PixelOf(Item(kReset), 5, 5);
    const COLORREF lightList = PixelOf(Item(kBars), 100, 100);
    for (int time = 0; time < 2; ++time) {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(DarkManager));
        EXPECT_EQ(PixelOf(Page(), 2, 2), kDarkGround);
        EXPECT_EQ(PixelOf(Item(kBars), 100, 100), kDarkGround);
        EXPECT_LT(GetRValue(PixelOf(Item(kReset), 5, 5)), 100);
        EXPECT_EQ(PixelOf(tabs, last.right + 5, last.top + 5), kDarkGround);
        for (const HWND page : pages) {
            EXPECT_EQ(Ask(page, WM_CTLCOLORSTATIC, ::GetWindow(page, GW_CHILD)).ground, kDarkGround) << page;
            EXPECT_EQ(Ask(page, WM_CTLCOLORLISTBOX, ::GetWindow(page, GW_CHILD)).text, kLightText) << page;
        }
        CMFCVisualManager::SetDefaultManager(nullptr);
        EXPECT_EQ(PixelOf(Page(), 2, 2), lightPage);
        EXPECT_EQ(PixelOf(Item(kReset), 5, 5), lightButton);
        EXPECT_EQ(PixelOf(Item(kBars), 100, 100), lightList);
        EXPECT_NE(PixelOf(tabs, last.right + 5, last.top + 5), kDarkGround);
        for (const HWND page : pages) {
            EXPECT_EQ(Ask(page, WM_CTLCOLORLISTBOX, ::GetWindow(page, GW_CHILD)).text, ::GetSysColor(COLOR_WINDOWTEXT))
                << page;
        }
    }
}

TEST_F(DialogLookTest, APageThatIsFirstSeenAfterASwitchHasTheNewLook) {
    Open();
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(DarkManager));
    GoTo(kKeyboardPage);
    EXPECT_EQ(PixelOf(Page(), 2, 2), kDarkGround);
    EXPECT_LT(GetRValue(PixelOf(Item(kResetAllKeys), 5, 5)), 100);
}

TEST_F(DialogLookTest, UnderALightLookTheDialogIsTheSystems) {
    Open();
    EXPECT_EQ(Ask(Page(), WM_CTLCOLORSTATIC, Item(kCategories)).text, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_GT(GetRValue(PixelOf(Page(), 2, 2)), 200);
    GoTo(kToolBarsPage);
    EXPECT_NE(static_cast<COLORREF>(::SendMessageW(Item(kBars), LVM_GETTEXTCOLOR, 0, 0)), kLightText);
}

// ---- toolbars

class BarListTest : public CustomizeDialogTest {
protected:
    BarListTest() {
        Open();
        GoTo(kToolBarsPage);
    }
    CListCtrl& List() const { return *static_cast<CListCtrl*>(CWnd::FromHandle(Item(kBars))); }
    int RowOf(LPCTSTR name) const {
        LVFINDINFO wanted{};
        wanted.flags = LVFI_STRING;
        wanted.psz = name;
        return List().FindItem(&wanted);
    }
    void SelectBar(LPCTSTR name) {
        List().SetItemState(RowOf(name), LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    }
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Item(id)) != FALSE; }

    CountingMessageBox m_box{IDYES};
};

TEST_F(BarListTest, AClickOnItsBoxHidesABarAndAnotherShowsIt) {
    ASSERT_GE(RowOf(L"Second"), 0);
    EXPECT_TRUE(List().GetCheck(RowOf(L"Second")));
    RECT icon{LVIR_BOUNDS, 0, 0, 0};
    ::SendMessageW(Item(kBars), LVM_GETITEMRECT, static_cast<WPARAM>(RowOf(L"Second")),
                   reinterpret_cast<LPARAM>(&icon));
    CPoint box(icon.left + 8, (icon.top + icon.bottom) / 2);
    ::ClientToScreen(Item(kBars), &box);
    RealClick(box);
    EXPECT_FALSE(m_second.IsVisible());
    EXPECT_FALSE(List().GetCheck(RowOf(L"Second")));
    List().SetCheck(RowOf(L"Second"), TRUE); // a click so soon would be the second of a double click
    EXPECT_TRUE(m_second.IsVisible());
}

TEST_F(BarListTest, ABarThatItsUserMayNotCloseStaysChecked) {
    m_second.SetPermament();
    List().SetCheck(RowOf(L"Second"), FALSE);
    EXPECT_TRUE(m_second.IsVisible());
    EXPECT_TRUE(List().GetCheck(RowOf(L"Second")));
}

TEST_F(BarListTest, ResetPutsTheButtonsOfTheSelectedBarBack) {
    RealDrag(OnScreen(Bar(), 0, 0), CPoint(20, 20));
    RealDrag(OnScreen(m_second, 0, 0), CPoint(20, 20));
    ASSERT_EQ(Contents(), L"3002 | 3003");
    SelectBar(L"Second");
    SelectBar(L"First");
    ASSERT_TRUE(IsEnabled(kReset));
    m_box.Answer(IDNO);
    Click(kReset);
    EXPECT_EQ(Contents(), L"3002 | 3003") << "the user has thought better of it";
    m_box.Answer(IDYES);
    Click(kReset);
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"");
    Click(kResetAll);
    EXPECT_EQ(ContentsOf(m_second), L"3011");
    EXPECT_EQ(m_box.Count(), 3);
}

// What the sheet calls so is that all of it was cancelled.
TEST_F(BarListTest, ACancelledSheetAsksForNoResetOfABar) {
    RealDrag(OnScreen(Bar(), 0, 0), CPoint(20, 20));
    SelectBar(L"Second");
    SelectBar(L"First");
    ASSERT_TRUE(IsEnabled(kReset));
    PSHNOTIFY cancelled{};
    cancelled.hdr = {m_dialogWindow, 0, static_cast<UINT>(PSN_RESET)};
    m_dialog->GetActivePage()->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&cancelled));
    EXPECT_EQ(m_box.Count(), 0);
    EXPECT_EQ(Contents(), L"3002 | 3003");
}

TEST_F(BarListTest, ABarThatNobodyHasChangedCannotBeReset) {
    SelectBar(L"First");
    EXPECT_FALSE(IsEnabled(kReset));
}

/// Answers the box that asks for a name as soon as it is there.
class NameTyper {
public:
    explicit NameTyper(std::wstring name) : m_name(std::move(name)) {
        s_typer = this;
        m_timer = ::SetTimer(nullptr, 0, 10, [](HWND, UINT, UINT_PTR, DWORD) { s_typer->Type(); });
    }
    ~NameTyper() {
        ::KillTimer(nullptr, m_timer);
        s_typer = nullptr;
    }
    NameTyper(const NameTyper&) = delete;
    NameTyper& operator=(const NameTyper&) = delete;

private:
    void Type() {
        const HWND box = ::GetActiveWindow();
        const HWND edit = ::GetDlgItem(box, 1001);
        if (edit == nullptr || ::GetDlgItem(box, IDOK) == nullptr || ::GetWindow(box, GW_OWNER) == nullptr) {
            return;
        }
        ::SetWindowTextW(edit, m_name.c_str());
        ::SendMessageW(box, WM_COMMAND, m_name.empty() ? IDCANCEL : IDOK, 0);
    }

    std::wstring m_name;
    UINT_PTR m_timer = 0;
    static NameTyper* s_typer;
};

NameTyper* NameTyper::s_typer = nullptr;

TEST_F(BarListTest, UsersMakeNameAndDeleteToolbarsOfTheirOwn) {
    const INT_PTR before = CMFCToolBar::GetAllToolbars().GetCount();
    {
        const NameTyper typer(L"Mine");
        Click(kNew);
    }
    ASSERT_GE(RowOf(L"Mine"), 0);
    EXPECT_EQ(CMFCToolBar::GetAllToolbars().GetCount(), before + 1);
    SelectBar(L"Mine");
    EXPECT_TRUE(IsEnabled(kRename));
    {
        const NameTyper typer(L"Ours");
        Click(kRename);
    }
    EXPECT_LT(RowOf(L"Mine"), 0);
    ASSERT_GE(RowOf(L"Ours"), 0);
    SelectBar(L"Ours");
    Click(kDelete);
    EXPECT_LT(RowOf(L"Ours"), 0);
    EXPECT_EQ(CMFCToolBar::GetAllToolbars().GetCount(), before);
}

TEST_F(BarListTest, ANewToolbarTakesCommandsAndComesBackInTheNextRun) {
    {
        const NameTyper typer(L"Mine");
        Click(kNew);
    }
    auto* const mine = reinterpret_cast<CMFCToolBar*>(
        CMFCToolBar::FromHandlePermanent(reinterpret_cast<HWND>(List().GetItemData(RowOf(L"Mine")))));
    ASSERT_NE(mine, nullptr);
    GoTo(kCommandsPage);
    CRect place;
    mine->GetWindowRect(&place);
    RealDrag(RowOnScreen(kCommands, 1), place.CenterPoint());
    EXPECT_EQ(ContentsOf(*mine), L"3021");
    ASSERT_TRUE(m_frame->GetFrameImpl().SaveState());
    const int id = mine->GetDlgCtrlID();
    Close();
    ASSERT_TRUE(m_frame->GetFrameImpl().DeleteUserToolBar(mine));
    // DeleteUserToolBar has taken its buttons out of the settings, as for a user who is tired of it; its name stands
    // there until the frame's state is saved again.
    m_frame->GetFrameImpl().LoadState();
    const auto* const back = DYNAMIC_DOWNCAST(CMFCToolBar, m_frame->GetPane(static_cast<UINT>(id)));
    ASSERT_NE(back, nullptr);
    CString name;
    back->GetPaneName(name);
    EXPECT_STREQ(name, L"Mine");
    m_frame->GetFrameImpl().DeleteUserToolBar(back);
    m_frame->GetFrameImpl().SaveState();
    auto& application = *static_cast<CWinAppEx*>(AfxGetApp());
    application.CleanState();
}

TEST_F(BarListTest, ACancelledNameMakesNothing) {
    const INT_PTR before = CMFCToolBar::GetAllToolbars().GetCount();
    const NameTyper typer(L"");
    Click(kNew);
    EXPECT_EQ(CMFCToolBar::GetAllToolbars().GetCount(), before);
}

TEST_F(BarListTest, TextsAreShownBelowTheButtonsOfTheSelectedBar) {
    SelectBar(L"Second");
    ::SendMessageW(Item(kTextLabels), BM_SETCHECK, BST_CHECKED, 0);
    Click(kTextLabels);
    EXPECT_TRUE(m_second.AreTextLabels());
    EXPECT_FALSE(Bar().AreTextLabels());
}

TEST_F(CustomizeDialogTest, TheMenuOfAButtonAsksForItsText) {
    Open();
    const CPoint button = OnScreen(Bar(), 1, 0);
    for (const wchar_t* const text : {L"Other", L""}) {
        Bar().SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Bar().m_hWnd), MAKELPARAM(button.x, button.y));
        CMFCPopupMenu* const menu = CMFCPopupMenu::GetActiveMenu();
        ASSERT_NE(menu, nullptr);
        constexpr int kAppearanceRow = 5;
        ASSERT_EQ(menu->GetMenuItem(kAppearanceRow)->m_strText, L"&Button Appearance...");
        const NameTyper typer(text);
        RealClick(OnScreen(*menu->GetMenuBar(), kAppearanceRow, 0));
        EXPECT_EQ(Bar().GetButton(1)->m_strText, L"Other") << "an empty name is none";
    }
}

// ---- keys

class KeyPageTest : public CustomizeDialogTest {
protected:
    KeyPageTest() {
        Open();
        GoTo(kKeyboardPage);
    }
    void PressInBox(UINT key) { Keys(Item(kNewKey)).Press(key); }
    std::vector<UINT> Pressed(UINT key) {
        m_frame->SetFocus();
        Keys(m_frame->m_hWnd).Press(key);
        PumpPending();
        return TakeCommands();
    }
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Item(id)) != FALSE; }
    /// In the list of all commands by name: Arrow, Circle, Open.
    static constexpr int kCircleRow = 1;

    CountingMessageBox m_box{IDYES};
};

TEST_F(KeyPageTest, AKeyThatIsAssignedRunsTheCommandOnce) {
    Select(kKeyCommands, kCircleRow);
    EXPECT_FALSE(IsEnabled(kAssign));
    PressInBox(VK_F9);
    EXPECT_STREQ(Text(kNewKey), L"F9");
    EXPECT_STREQ(Text(kAssigned), L"(nothing)");
    ASSERT_TRUE(IsEnabled(kAssign));
    EXPECT_EQ(TakeCommands(), Commands{}) << "in the field a key runs nothing";
    Click(kAssign);
    EXPECT_EQ(Rows(kCurrentKeys), (std::vector<CString>{L"F9"}));
    Close();
    EXPECT_EQ(Pressed(VK_F9), Commands{3021});
}

TEST_F(KeyPageTest, AKeyLeavesTheCommandThatHadIt) {
    Select(kKeyCommands, kCircleRow);
    PressInBox(VK_F8);
    Click(kAssign);
    Close();
    EXPECT_EQ(Pressed(VK_F8), Commands{3021});
}

TEST_F(KeyPageTest, ARemovedKeyRunsNothingAndResetAllBringsTheProgramsKeysBack) {
    m_dialog->AddButton(L"Files", CMFCToolBarButton(3001, 0, L"A first"));
    GoTo(kOptionsPage);
    GoTo(kKeyboardPage);
    ::SendMessageW(::GetParent(Item(1001)), WM_COMMAND, MAKEWPARAM(1001, CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(Item(1001)));
    Select(kKeyCommands, 0);
    ASSERT_EQ(Rows(kCurrentKeys), (std::vector<CString>{L"F8"}));
    EXPECT_FALSE(IsEnabled(kRemove));
    Select(kCurrentKeys, 0);
    ASSERT_TRUE(IsEnabled(kRemove));
    Click(kRemove);
    EXPECT_EQ(Rows(kCurrentKeys), std::vector<CString>{});
    EXPECT_EQ(Pressed(VK_F8), Commands{});
    Click(kResetAllKeys);
    EXPECT_EQ(m_watch.keyResets, 1);
    EXPECT_EQ(Rows(kCurrentKeys), (std::vector<CString>{L"F8"}));
    EXPECT_EQ(Pressed(VK_F8), Commands{3001});
}

TEST_F(KeyPageTest, AKeyThatTypesACharacterIsNotTaken) {
    Select(kKeyCommands, kCircleRow);
    PressInBox('B');
    EXPECT_FALSE(IsEnabled(kAssign));
    Keys keys(Item(kNewKey));
    keys.Hold(VK_CONTROL);
    keys.Press('B');
    keys.Let(VK_CONTROL);
    EXPECT_STREQ(Text(kNewKey), L"Ctrl+B");
    EXPECT_TRUE(IsEnabled(kAssign));
}

TEST_F(KeyPageTest, WithoutAManagerOfKeysThereIsNoPageForThem) {
    Close();
    CKeyboardManager* const manager = std::exchange(afxKeyboardManager, nullptr);
    Open();
    EXPECT_EQ(m_dialog->GetPageCount(), 4);
    Close();
    afxKeyboardManager = manager;
}

// ---- options

TEST_F(CustomizeDialogTest, OptionsHoldForAllToolbarsAtOnce) {
    Open();
    GoTo(kOptionsPage);
    EXPECT_EQ(::SendMessageW(Item(kFirstOption), BM_GETCHECK, 0, 0), BST_CHECKED);
    ::SendMessageW(Item(kFirstOption), BM_CLICK, 0, 0);
    EXPECT_FALSE(CMFCToolBar::GetShowTooltips());
    EXPECT_FALSE(::IsWindowEnabled(Item(kFirstOption + 1))) << "without tooltips there are no keys in them";
    ::SendMessageW(Item(kFirstOption), BM_CLICK, 0, 0);
    ::SendMessageW(Item(kFirstOption + 1), BM_CLICK, 0, 0);
    EXPECT_TRUE(CMFCToolBar::GetShowShortcutKeys());
    ::SendMessageW(Item(kFirstOption + 2), BM_CLICK, 0, 0);
    EXPECT_TRUE(CMFCToolBar::IsLargeIcons());
    EXPECT_FALSE(::GetWindowLongW(Item(kFirstOption + 3), GWL_STYLE) & WS_VISIBLE) << "not asked for";
}

TEST_F(CustomizeDialogTest, MenusHideWhatIsSeldomUsedWhenTheUserWantsItAndForgetWhatTheyCounted) {
    constexpr int kRecentlyUsed = kFirstOption + 4;
    constexpr int kResetUsage = kFirstOption + 5;
    Open();
    GoTo(kOptionsPage);
    EXPECT_EQ(::SendMessageW(Item(kRecentlyUsed), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    ::SendMessageW(Item(kRecentlyUsed), BM_CLICK, 0, 0);
    EXPECT_TRUE(CMFCMenuBar::IsRecentlyUsedMenus());
    EXPECT_FALSE(CMFCMenuBar::IsShowAllCommands());
    ::SendMessageW(Item(kRecentlyUsed), BM_CLICK, 0, 0);
    EXPECT_FALSE(CMFCMenuBar::IsRecentlyUsedMenus());
    EXPECT_TRUE(CMFCMenuBar::IsShowAllCommands());
    ::SendMessageW(Item(kResetUsage), BM_CLICK, 0, 0); // what other tests have chosen
    EXPECT_FALSE(::IsWindowEnabled(Item(kResetUsage))) << "nothing is counted";
    CMFCToolBar::AddCommandUsage(3001);
    GoTo(kCommandsPage);
    GoTo(kOptionsPage);
    EXPECT_TRUE(CMFCToolBar::IsCommandRarelyUsed(3002));
    ASSERT_TRUE(::IsWindowEnabled(Item(kResetUsage)));
    ::SendMessageW(Item(kResetUsage), BM_CLICK, 0, 0);
    EXPECT_FALSE(CMFCToolBar::IsCommandRarelyUsed(3002));
    EXPECT_FALSE(::IsWindowEnabled(Item(kResetUsage)));
}

TEST_F(CustomizeDialogTest, HelpForSingleControlsIsThereWhenItIsAskedFor) {
    Open(AFX_CUSTOMIZE_CONTEXT_HELP);
    EXPECT_TRUE(::GetWindowLongW(m_dialogWindow, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
    Close();
    Open();
    EXPECT_FALSE(::GetWindowLongW(m_dialogWindow, GWL_EXSTYLE) & WS_EX_CONTEXTHELP);
}

// ---- hostile handlers

TEST_F(CustomizeDialogTest, ItGoesWithItsFrame) {
    Open();
    m_second.DestroyWindow();
    ::DestroyWindow(m_window);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
}

TEST_F(CustomizeDialogTest, AFrameThatGoesAsItOpensLeavesNothing) {
    m_second.DestroyWindow();
    m_watch.hostile = [this](UINT message, WPARAM) {
        if (message == AFX_WM_CUSTOMIZETOOLBAR) {
            ::DestroyWindow(m_window);
        }
    };
    EXPECT_FALSE(NewDialog()->Create());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
}

TEST_F(CustomizeDialogTest, AFrameThatGoesWhenItIsAskedForHelpTakesItAlong) {
    Open(0);
    m_second.DestroyWindow();
    m_watch.hostile = [this](UINT message, WPARAM) {
        if (message == AFX_WM_CUSTOMIZEHELP) {
            ::DestroyWindow(m_window);
        }
    };
    ::SendMessageW(m_dialogWindow, WM_COMMAND, IDHELP, 0);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
}

TEST_F(CustomizeDialogTest, ABarThatIsGoneMeanwhileIsLeftAlone) {
    Open();
    GoTo(kToolBarsPage);
    m_second.DestroyWindow();
    CountingMessageBox box(IDYES);
    auto& list = *static_cast<CListCtrl*>(CWnd::FromHandle(Item(kBars)));
    for (int row = 0; row < list.GetItemCount(); ++row) {
        list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        list.SetCheck(row, FALSE);
        Click(kReset);
        Click(kDelete);
    }
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(Bar().IsVisible());
}

TEST_F(CustomizeDialogTest, OneThatIsDeletedEndsTheMode) {
    Open();
    delete m_dialog;
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(CMFCToolBar::IsCustomizeMode());
}

// ---- the commands that it offers, without a window

class OfferedCommandsTest : public ToolBarTest {
protected:
    OfferedCommandsTest() : m_dialog(m_frame) {}
    std::vector<CString> Categories() {
        CListBox list;
        list.Create(WS_CHILD, CRect(0, 0, 100, 100), m_frame, 7);
        m_dialog.FillCategoriesListBox(list);
        std::vector<CString> names;
        for (int row = 0; row < list.GetCount(); ++row) {
            CString name;
            list.GetText(row, name);
            names.push_back(name);
        }
        return names;
    }
    std::vector<CString> AllCommands() {
        CListBox list;
        list.Create(WS_CHILD, CRect(0, 0, 100, 100), m_frame, 7);
        m_dialog.FillAllCommandsList(list);
        std::vector<CString> names;
        for (int row = 0; row < list.GetCount(); ++row) {
            CString name;
            list.GetText(row, name);
            names.push_back(name);
        }
        return names;
    }

    CMFCToolBarsCustomizeDialog m_dialog;
};

TEST_F(OfferedCommandsTest, AMenusPopupsAreCategoriesAndItsInnerPopupsBelongToThem) {
    CMenu menu;
    menu.CreateMenu();
    CMenu file;
    file.CreatePopupMenu();
    file.AppendMenu(MF_STRING, 3101, L"&Open...\tCtrl+O");
    file.AppendMenu(MF_SEPARATOR);
    CMenu recent;
    recent.CreatePopupMenu();
    recent.AppendMenu(MF_STRING, 3102, L"&Old");
    recent.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent");
    file.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(recent.Detach()), L"&More");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(file.Detach()), L"&File");
    m_dialog.AddMenuCommands(&menu, FALSE);
    EXPECT_EQ(Categories(), (std::vector<CString>{L"All Commands", L"File"}));
    EXPECT_EQ(AllCommands(), (std::vector<CString>{L"Old", L"Open..."})) << "neither separators nor recent files";
    m_dialog.AddMenuCommands(&menu, TRUE, L"Menus");
    EXPECT_EQ(AllCommands(), (std::vector<CString>{L"File", L"More", L"Old", L"Open..."})) << "popups too";
}

TEST_F(OfferedCommandsTest, AMnemonicInBracketsIsNoPartOfTheName) {
    m_dialog.AddButton(L"A", CMFCToolBarButton(1, -1, L"Open(&O)...\tCtrl+O"));
    m_dialog.AddButton(L"A", CMFCToolBarButton(2, -1, L"Go (&to)"));
    m_dialog.AddButton(L"A", CMFCToolBarButton(3, -1, L"(&X)"));
    EXPECT_EQ(AllCommands(), (std::vector<CString>{L"(X)", L"Go (to)", L"Open..."}));
}

TEST_F(OfferedCommandsTest, AToolbarResourceBringsItsButtons) {
    EXPECT_TRUE(m_dialog.AddToolBar(L"Bar", 101));
    EXPECT_FALSE(m_dialog.AddToolBar(L"Bar", 9999));
    EXPECT_EQ(m_dialog.RemoveButton(L"Bar", 3002), 1);
    EXPECT_EQ(m_dialog.RemoveButton(L"Bar", 3002), -1);
    EXPECT_EQ(m_dialog.RemoveButton(L"None", 3001), -1);
}

TEST_F(OfferedCommandsTest, ACommandComesOnceIntoACategoryAndWhereItIsWanted) {
    m_dialog.AddButton(L"A", CMFCToolBarButton(1, -1, L"One"));
    m_dialog.AddButton(L"A", CMFCToolBarButton(1, -1, L"One again"));
    m_dialog.AddButton(L"A", CMFCToolBarButton(2, -1, L"Two"), 0);
    m_dialog.AddButton(L"B", CMFCToolBarButton(1, -1, L"One elsewhere"));
    EXPECT_EQ(AllCommands(), (std::vector<CString>{L"One", L"Two"}));
    EXPECT_EQ(m_dialog.RemoveButton(L"A", 2), 0);
    EXPECT_EQ(m_dialog.RemoveButton(L"A", 1), 0);
    EXPECT_STREQ(m_dialog.GetCommandName(1), L"One elsewhere");
}

TEST_F(OfferedCommandsTest, ABetterButtonTakesTheCommandsPlaceEverywhere) {
    m_dialog.AddButton(L"A", CMFCToolBarButton(1, -1, L"One"));
    m_dialog.ReplaceButton(1, CMFCToolBarComboBoxButton(1, -1, CBS_DROPDOWNLIST, 80));
    m_dialog.ReplaceButton(2, CMFCToolBarButton(2, -1, L"Two"));
    EXPECT_EQ(AllCommands().size(), 1u);
}

TEST_F(OfferedCommandsTest, CategoriesAreRenamedAndTheUsersComesLast) {
    m_dialog.AddButton(L"A", CMFCToolBarButton(1, -1, L"One"));
    m_dialog.AddButton(L"B", CMFCToolBarButton(2, -1, L"Two"));
    EXPECT_TRUE(m_dialog.RenameCategory(L"A", L"C"));
    EXPECT_FALSE(m_dialog.RenameCategory(L"A", L"D")) << "there is none";
    EXPECT_FALSE(m_dialog.RenameCategory(L"B", L"C")) << "there is one";
    EXPECT_TRUE(m_dialog.SetUserCategory(L"C"));
    EXPECT_FALSE(m_dialog.SetUserCategory(L"A"));
    EXPECT_EQ(Categories(), (std::vector<CString>{L"All Commands", L"B", L"C"}));
}

TEST_F(OfferedCommandsTest, CommandsThatAreNotPermittedAreNotOffered) {
    CList<UINT, UINT> forbidden;
    forbidden.AddTail(5);
    CMFCToolBar::SetNonPermittedCommands(forbidden);
    m_dialog.AddButton(L"A", CMFCToolBarButton(5, -1, L"Five"));
    EXPECT_EQ(AllCommands(), std::vector<CString>{});
    forbidden.RemoveAll();
    CMFCToolBar::SetNonPermittedCommands(forbidden);
}

} // namespace
