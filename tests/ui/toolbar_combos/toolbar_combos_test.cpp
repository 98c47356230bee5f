// The combo boxes with marks on a docked toolbar.
#include "toolbar_combos.h"

#include "host_messages.h"
#include "tests/support/message_pump.h"
#include "tests/support/pointer.h"
#include "tests/support/ui_test.h"
#include "window_combos.h"

#include <afxframewndex.h>

#include <commctrl.h>

#include <string>
#include <utility>
#include <vector>

namespace {

constexpr UINT command = 5100;

/// A frame that writes down what its toolbar's combo tells it.
class MarkFrame : public CFrameWndEx {
public:
    std::vector<std::wstring> heard;

    /// The command is enabled, as one that has a handler is.
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
        if (id == command && code == CN_UPDATE_COMMAND_UI) {
            static_cast<CCmdUI*>(extra)->Enable(TRUE);
            return TRUE;
        }
        return CFrameWndEx::OnCmdMsg(id, code, extra, info);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_COMBO_CHECK_CHANGED) {
            heard.push_back(L"check " + std::wstring(*reinterpret_cast<const CString*>(wParam)) + L" " +
                            std::to_wstring(lParam));
        } else if (message == WM_VESCOMBO_LIGHT_CHANGED) {
            heard.push_back(L"ves " + std::wstring(*reinterpret_cast<const CString*>(wParam)) + L" " +
                            std::to_wstring(lParam));
        } else if (message == WM_COMMAND && LOWORD(wParam) == command) {
            heard.push_back(L"command " + std::to_wstring(HIWORD(wParam)));
        }
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

using Heard = std::vector<std::wstring>;

template <class Button>
class OnToolBar : public testing::Test {
protected:
    void SetUp() override {
        frame = new MarkFrame;
        ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 650, 350)));
        ASSERT_TRUE(bar.Create(frame));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&bar);
        Button made(command, -1);
        for (const wchar_t* text : {L"red", L"green", L"blue"}) {
            made.AddItem(text);
        }
        made.SelectItem(1, FALSE);
        bar.InsertButton(made);
        frame->ShowWindow(SW_SHOWNOACTIVATE);
        frame->RecalcLayout();
        bar.AdjustLocations();
        PumpPending();
        frame->heard.clear();
    }
    void TearDown() override {
        bar.DestroyWindow();
        frame->DestroyWindow();
    }
    Button& Shown() { return *static_cast<Button*>(bar.GetButton(0)); }
    CComboBox& Combo() { return *Shown().GetComboBox(); }
    MarkFrame* frame = nullptr;
    CMFCToolBar bar;
};

using CheckButton = OnToolBar<CMFCCheckCombo>;

TEST_F(CheckButton, HostsACheckComboWhoseOwnerIsTheFrame) {
    ASSERT_NE(DYNAMIC_DOWNCAST(CCheckComboBox, &Combo()), nullptr);
    EXPECT_EQ(Combo().GetOwner()->m_hWnd, frame->m_hWnd);
    EXPECT_EQ(Combo().GetDlgCtrlID(), static_cast<int>(command));
    const DWORD wanted = CBS_HASSTRINGS | CBS_DROPDOWNLIST;
    EXPECT_EQ(Combo().GetStyle() & wanted, wanted);
}

TEST_F(CheckButton, ChecksByIndexAndByText) {
    EXPECT_EQ(Shown().SetCheck(2, 1, 1), 0);
    EXPECT_EQ(Shown().SetCheck(2, 1, 1), 1);
    EXPECT_TRUE(Shown().GetCheck(L"blue"));
    Shown().SetCheck(L"red", 1, 0);
    EXPECT_TRUE(Shown().GetCheck(0));
    EXPECT_FALSE(Shown().GetCheck(L"Blue")) << "texts are compared letter by letter";
    EXPECT_FALSE(Shown().GetCheck(3));
    EXPECT_EQ(Shown().SetCheck(L"grey", 1, 1), 0);
}

TEST_F(CheckButton, AClickOnTheBoxTellsTheFrameOnceOfCheckAndCommand) {
    Combo().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, 8));
    EXPECT_EQ(frame->heard, (Heard{L"check green 1", L"command 0"}));
    EXPECT_TRUE(Shown().GetCheck(1));
    EXPECT_FALSE(Shown().IsDroppedDown());
}

TEST_F(CheckButton, APressOfTheButtonBesideTheBoxOpensTheList) {
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.right - 5, window.CenterPoint().y);
    EXPECT_TRUE(Shown().OnClick(&bar));
    EXPECT_TRUE(Shown().IsDroppedDown());
}

TEST_F(CheckButton, APressOfTheButtonOnTheBoxTogglesAndIsNoCommandOfItsOwn) {
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.left + 5, window.CenterPoint().y);
    EXPECT_FALSE(Shown().OnClick(&bar));
    EXPECT_TRUE(Shown().GetCheck(1));
    EXPECT_EQ(frame->heard, (Heard{L"check green 1", L"command 0"}));
    EXPECT_TRUE(Shown().OnClickUp()) << "what follows the press sends nothing";
}

TEST_F(CheckButton, APressOfTheButtonBesideTheBoxIsNoCommandEither) {
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.right - 5, window.CenterPoint().y);
    bar.ScreenToClient(&window);
    Pointer pointer;
    pointer.Click(bar.m_hWnd, {window.right - 5, window.CenterPoint().y});
    EXPECT_EQ(std::ranges::count(frame->heard, L"command 0"), 0);
    EXPECT_TRUE(Shown().IsDroppedDown());
}

TEST_F(CheckButton, APressOfTheButtonBesideTheBoxGivesTheComboTheFocusAndPaintsTheButtonAnew) {
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.right - 5, window.CenterPoint().y);
    bar.RedrawWindow(nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
    ASSERT_FALSE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
    EXPECT_TRUE(Shown().OnClick(&bar));
    EXPECT_EQ(::GetFocus(), Combo().m_hWnd);
    EXPECT_TRUE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
}

TEST_F(CheckButton, APressOnTheBoxWhileTheListIsOpenTogglesNothing) {
    Combo().ShowDropDown(TRUE);
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.left + 5, window.CenterPoint().y);
    Shown().OnClick(&bar);
    EXPECT_FALSE(Shown().GetCheck(1));
    EXPECT_EQ(std::ranges::count(frame->heard, L"check green 1"), 0);
}

TEST_F(CheckButton, AButtonWithoutACommandLeavesItsBoxAlone) {
    Shown().m_nID = 0;
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.left + 5, window.CenterPoint().y);
    EXPECT_TRUE(Shown().OnClick(&bar));
    EXPECT_FALSE(Shown().GetCheck(1));
    EXPECT_TRUE(Shown().IsDroppedDown());
    Shown().m_nID = command;
}

TEST_F(CheckButton, WhereCombosAreNotFlatAPressOfTheButtonOpensNothing) {
    CMFCToolBarComboBoxButton::SetFlatMode(FALSE);
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.right - 5, window.CenterPoint().y);
    EXPECT_FALSE(Shown().OnClick(&bar));
    EXPECT_FALSE(Shown().IsDroppedDown());
    CMFCToolBarComboBoxButton::SetFlatMode(TRUE);
}

TEST_F(CheckButton, ADisabledComboDoesNotReactToAPress) {
    Shown().SetStyle(TBBS_DISABLED);
    CRect window;
    Combo().GetWindowRect(&window);
    ::SetCursorPos(window.left + 5, window.CenterPoint().y);
    Shown().OnClick(&bar);
    EXPECT_FALSE(Shown().GetCheck(1));
    EXPECT_FALSE(Shown().IsDroppedDown());
}

TEST_F(CheckButton, AComboThatTheProgramHasDisabledOpensNoListWhereAPressComesToTheBar) {
    Combo().EnableWindow(FALSE);
    CRect window;
    Combo().GetWindowRect(&window);
    for (const int x : {window.left + 5, window.right - 5}) {
        ::SetCursorPos(x, window.CenterPoint().y);
        EXPECT_FALSE(Shown().OnClick(&bar)) << x;
        EXPECT_FALSE(Shown().GetCheck(1)) << x;
        EXPECT_FALSE(Shown().IsDroppedDown()) << x;
    }
}

using MultiButton = OnToolBar<CMFCMultiCombo>;

TEST_F(MultiButton, HostsAMultiCombo) { EXPECT_NE(DYNAMIC_DOWNCAST(CMultiCombo, &Combo()), nullptr); }

TEST_F(MultiButton, TheLightIsBitFourOfTheItemsData) {
    Combo().SetItemData(1, 0xf0);
    Shown().SetLightOn(1, true, false);
    EXPECT_EQ(Combo().GetItemData(1), 0xf4u);
    EXPECT_TRUE(Shown().GetLightOn(L"green"));
    Shown().SetLightOn(L"green", false, true);
    EXPECT_EQ(Combo().GetItemData(1), 0xf0u);
}

TEST_F(MultiButton, UnlockingAnItemWithBitOneAloneLeavesBitEightSet) {
    Combo().SetItemData(0, 0x1);
    Shown().SetItemLock(0, false, false);
    EXPECT_EQ(Combo().GetItemData(0), 0x8u);
    EXPECT_TRUE(Shown().GetItemLock(0));
    Shown().SetItemLock(L"blue", true, false);
    EXPECT_EQ(Combo().GetItemData(2), 0x9u);
    EXPECT_TRUE(Shown().GetItemLock(L"blue"));
}

TEST_F(MultiButton, ARedrawInvalidatesTheToolbar) {
    bar.UpdateWindow();
    bar.RedrawWindow(nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
    ASSERT_FALSE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
    Shown().SetLightOn(1, true, false);
    EXPECT_FALSE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
    Shown().SetLightOn(1, false, true);
    EXPECT_TRUE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
}

TEST_F(MultiButton, ColoursReachTheHostedCombo) {
    Shown().SetItemColor(2, RGB(1, 2, 3), true);
    Shown().SetItemColor(L"red", RGB(4, 5, 6), false);
    Shown().SetItemColor(-1, RGB(7, 8, 9), true);
    auto& hosted = static_cast<CMultiCombo&>(Combo());
    COLORREF color = 0;
    EXPECT_EQ(hosted.GetItemColor(2, color), 1);
    EXPECT_EQ(color, static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_EQ(hosted.GetItemColor(0, color), 1);
    EXPECT_EQ(hosted.GetItemColor(-1, color), 0);
}

TEST_F(MultiButton, AColourPaintsTheComboAnewWhereARedrawIsAskedFor) {
    Combo().UpdateWindow();
    ASSERT_FALSE(::GetUpdateRect(Combo().m_hWnd, nullptr, FALSE));
    Shown().SetItemColor(1, RGB(1, 2, 3), false);
    EXPECT_FALSE(::GetUpdateRect(Combo().m_hWnd, nullptr, FALSE));
    Shown().SetItemColor(1, RGB(1, 2, 3), true);
    EXPECT_TRUE(::GetUpdateRect(Combo().m_hWnd, nullptr, FALSE));
}

TEST_F(MultiButton, ALockIsLeftAsItIsWhereItIsSoAlready) {
    Combo().SetItemData(0, 0xf1);
    Shown().SetItemLock(0, true, true);
    EXPECT_EQ(Combo().GetItemData(0), 0xf1u);
    Combo().SetItemData(1, 0xf6);
    Shown().SetItemLock(1, false, true);
    Shown().SetLightOn(1, true, true);
    EXPECT_EQ(Combo().GetItemData(1), 0xf6u);
}

TEST_F(MultiButton, IndexesAndTextsOutsideTheListAreIgnored) {
    Shown().SetLightOn(3, true, true);
    Shown().SetLightOn(-1, true, true);
    Shown().SetItemLock(L"grey", true, true);
    Shown().SetLightOn(static_cast<const wchar_t*>(nullptr), true, true);
    EXPECT_FALSE(Shown().GetLightOn(3));
    EXPECT_FALSE(Shown().GetItemLock(-1));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(Combo().GetItemData(i), 0u);
    }
}

using LightButton = OnToolBar<CMFCMultiCombo2>;

TEST_F(LightButton, HostsALightComboAndTellsTheFrame) {
    ASSERT_NE(DYNAMIC_DOWNCAST(CVesMultiCombo, &Combo()), nullptr);
    Combo().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 8));
    EXPECT_EQ(frame->heard, (Heard{L"ves green 1"}));
    EXPECT_TRUE(Shown().GetLightOn(1));
    Shown().SetLightOn(L"green", false, true);
    EXPECT_FALSE(Shown().GetLightOn(L"green"));
}

TEST(ToolbarCombosWithoutWindow, DoNothingAndAnswerFalse) {
    CMFCCheckCombo check(command, -1);
    check.AddItem(L"red");
    EXPECT_EQ(check.SetCheck(0, 1, 1), 0);
    EXPECT_FALSE(check.GetCheck(0));
    CMFCMultiCombo multi(command, -1);
    multi.SetLightOn(0, true, true);
    multi.SetItemLock(0, true, true);
    multi.SetItemColor(0, 0, true);
    EXPECT_FALSE(multi.GetLightOn(0));
    EXPECT_FALSE(multi.GetItemLock(0));
    CMFCMultiCombo2 light(command, -1);
    light.SetLightOn(0, true, true);
    EXPECT_FALSE(light.GetLightOn(0));
}

/// Hosts another class than its operations expect.
class ForeignCombo : public CMFCCheckCombo {
    DECLARE_DYNCREATE(ForeignCombo)

protected:
    CComboBox* CreateCombo(CWnd* parent, const CRect& rect) override {
        return CMFCToolBarComboBoxButton::CreateCombo(parent, rect);
    }
};
IMPLEMENT_DYNCREATE(ForeignCombo, CMFCCheckCombo)

using ForeignButton = OnToolBar<CMFCCheckCombo>;

TEST_F(ForeignButton, AComboOfAnotherClassIsLeftAlone) {
    ForeignCombo foreign;
    foreign.m_nID = command + 1;
    foreign.AddItem(L"red");
    bar.InsertButton(foreign);
    auto& shown = *static_cast<CMFCCheckCombo*>(bar.GetButton(1));
    ASSERT_NE(shown.GetComboBox(), nullptr);
    EXPECT_EQ(shown.SetCheck(0, 1, 1), 0);
    EXPECT_FALSE(shown.GetCheck(0));
}

/// The system's combo boxes, of which it refuses to make the next one.
class RefusedCombo {
public:
    RefusedCombo() {
        WNDCLASSW known{};
        ::GetClassInfoW(nullptr, WC_COMBOBOXW, &known);
        s_system = known.lpfnWndProc;
        known.lpfnWndProc = &Proc;
        known.hInstance = AfxGetInstanceHandle();
        known.lpszClassName = WC_COMBOBOXW;
        m_isRegistered = ::RegisterClassW(&known) != 0;
        s_refuses = true;
    }
    ~RefusedCombo() { ::UnregisterClassW(WC_COMBOBOXW, AfxGetInstanceHandle()); }
    RefusedCombo(const RefusedCombo&) = delete;
    RefusedCombo& operator=(const RefusedCombo&) = delete;
    bool HasRefused() const { return m_isRegistered && !s_refuses; }

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NCCREATE && std::exchange(s_refuses, false)) {
            return FALSE;
        }
        return ::CallWindowProcW(s_system, window, message, wParam, lParam);
    }
    static inline WNDPROC s_system = nullptr;
    static inline bool s_refuses = false;
    bool m_isRegistered = false;
};

TEST_F(CheckButton, WhereItsOwnComboCannotBeMadeAPlainOneTakesItsPlace) {
    const RefusedCombo refused;
    CMFCCheckCombo second(command + 1, -1);
    second.AddItem(L"red");
    bar.InsertButton(second);
    EXPECT_TRUE(refused.HasRefused());
    auto& shown = *static_cast<CMFCCheckCombo*>(bar.GetButton(1));
    ASSERT_NE(shown.GetComboBox(), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CCheckComboBox, shown.GetComboBox()), nullptr);
    EXPECT_EQ(shown.GetComboBox()->GetCount(), 1);
    EXPECT_EQ(shown.SetCheck(0, 1, 1), 0);
    EXPECT_FALSE(shown.GetCheck(0));
    bar.RemoveButton(1); // before the class goes
}

TEST(ToolbarComboClasses, AreMadeByTheirNames) {
    const std::pair<CRuntimeClass*, const char*> classes[] = {
        {RUNTIME_CLASS(CMFCCheckCombo), "CMFCCheckCombo"},
        {RUNTIME_CLASS(CMFCMultiCombo), "CMFCMultiCombo"},
        {RUNTIME_CLASS(CMFCMultiCombo2), "CMFCMultiCombo2"},
        {RUNTIME_CLASS(CMFCToolBarComboBoxButtonEx), "CMFCToolBarComboBoxButtonEx"}};
    for (const auto& [kind, name] : classes) {
        EXPECT_STREQ(kind->m_lpszClassName, name);
        const std::unique_ptr<CObject> made(kind->CreateObject());
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(made->GetRuntimeClass(), kind);
        EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMFCToolBarComboBoxButton)));
    }
}

class OpenFlag : public CMFCToolBarComboBoxButtonEx {
public:
    using CMFCToolBarComboBoxButtonEx::m_isRibbonButton;
};

TEST(ToolbarComboEx, KeepsItsFlagInCopies) {
    OpenFlag one;
    one.SetIsRibbonButton(7);
    OpenFlag other;
    EXPECT_EQ(other.m_isRibbonButton, 0);
    other.CopyFrom(one);
    EXPECT_EQ(other.m_isRibbonButton, 7);
}

} // namespace
