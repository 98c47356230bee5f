// What users change in toolbars: buttons dragged with Alt, chosen in a menu, and the way back.
#include "afxcustomizebutton.h"
#include "tests/ui/toolbar/bar_frame.h"
#include "toolbar/drop_place.h"

#include <ole2.h>

#include <functional>

#include <commctrl.h>

namespace {

constexpr UINT kCustomizeCommand = 3090;

/// A second docked bar, which may veto what leaves it.
class VetoBar : public TestBar {
public:
    std::function<BOOL(CMFCToolBarButton*, DROPEFFECT)> onRemove;

    BOOL OnBeforeRemoveButton(CMFCToolBarButton* button, DROPEFFECT effect) override {
        return onRemove ? onRemove(button, effect) : CMFCToolBar::OnBeforeRemoveButton(button, effect);
    }
};

/// Stands before a frame and exchanges a placeholder of its bar whenever that is reset.
class ResetWatch {
public:
    ResetWatch(CWnd& frame, CMFCToolBar& bar, int& resets) : m_window(frame.m_hWnd), m_bar(bar), m_resets(resets) {
        ::SetWindowSubclass(m_window, &ResetWatch::Proc, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~ResetWatch() { ::RemoveWindowSubclass(m_window, &ResetWatch::Proc, 1); }
    ResetWatch(const ResetWatch&) = delete;
    ResetWatch& operator=(const ResetWatch&) = delete;

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                 DWORD_PTR data) {
        if (message == AFX_WM_RESETTOOLBAR) {
            const auto* const watch = reinterpret_cast<const ResetWatch*>(data);
            ++watch->m_resets;
            watch->m_bar.ReplaceButton(3040, CMFCToolBarButton(3041, 2, L"Real"));
        }
        return ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_window;
    CMFCToolBar& m_bar;
    int& m_resets;
};

class CustomizeTest : public ToolBarTest {
protected:
    CustomizeTest() {
        CMFCToolBar::EnableQuickCustomization();
        m_second.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001);
        m_second.InsertButton(CMFCToolBarButton(3011, 3, L"Eleven"));
        m_second.InsertButton(CMFCToolBarButton(3012, 3, L"Twelve"));
        m_second.EnableDocking(CBRS_ALIGN_ANY);
        m_frame->DockPane(&m_second);
        LayOut();
        m_second.AdjustLocations();
    }
    ~CustomizeTest() override {
        CMFCToolBar::EnableQuickCustomization(FALSE);
        CMFCToolBar::SetCustomizeMode(FALSE);
        m_keys.Let(VK_MENU);
        m_second.DestroyWindow();
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
    void Take(const CMFCToolBar& bar, int index) {
        m_pointer.MoveTo(OnScreen(bar, index, 0));
        m_pointer.Press();
    }
    void Drag(const CMFCToolBar& bar, int index, CPoint to) {
        Take(bar, index);
        m_pointer.MoveTo(to);
        m_pointer.Release();
        PumpPending();
    }

    VetoBar m_second;
    Keys m_keys;
};

TEST_F(CustomizeTest, AltAndADragMoveAButtonWithinItsBar) {
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 0, OnScreen(Bar(), 3, 8));
    EXPECT_EQ(Contents(), L"3002 | 3003 3001");
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(CustomizeTest, AButtonMovesIntoAnotherBarBeforeTheOneWhoseMiddleLiesBeyondThePointer) {
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 1, OnScreen(m_second, 1, -6));
    EXPECT_EQ(Contents(), L"3001 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3011 3002 3012");
}

TEST_F(CustomizeTest, CtrlAndAltCopyIt) {
    m_keys.Hold(VK_MENU);
    m_keys.Hold(VK_CONTROL);
    Drag(Bar(), 1, OnScreen(m_second, 0, -6));
    m_keys.Let(VK_CONTROL);
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3002 3011 3012");
}

TEST_F(CustomizeTest, BesideTheBarsItIsRemovedAndASeparatorThatNobodyNeedsGoesWithIt) {
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 3, CPoint(400, 400));
    EXPECT_EQ(Contents(), L"3001 3002");
}

TEST_F(CustomizeTest, WithoutAltAPressIsAPress) {
    Drag(Bar(), 0, OnScreen(m_second, 0, 0));
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    m_pointer.Click(Bar().m_hWnd, CenterOf(0));
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3001});
}

TEST_F(CustomizeTest, WithoutQuickCustomizationAltDoesNothing) {
    CMFCToolBar::EnableQuickCustomization(FALSE);
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 0, OnScreen(m_second, 0, 0));
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(CustomizeTest, APressWithAltThatDoesNotMoveChangesNothingAndSendsNothing) {
    m_keys.Hold(VK_MENU);
    m_pointer.Click(Bar().m_hWnd, CenterOf(0));
    PumpPending();
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(CustomizeTest, EscEndsTheDragWithoutAChange) {
    m_keys.Hold(VK_MENU);
    Take(Bar(), 0);
    m_pointer.MoveTo(OnScreen(m_second, 1, 0));
    EXPECT_TRUE(CMFCToolBar::IsAltCustomizeMode());
    EXPECT_TRUE(Bar().IsDragButton(Bar().GetButton(0)));
    EXPECT_FALSE(Bar().IsDragButton(Bar().GetButton(1)));
    EXPECT_FALSE(m_second.IsDragButton(m_second.GetButton(0)));
    Keys(m_frame->m_hWnd).Press(VK_ESCAPE);
    EXPECT_FALSE(CMFCToolBar::IsAltCustomizeMode());
    m_pointer.Release();
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3011 3012");
}

TEST_F(CustomizeTest, TheGapIsMarkedWhereTheButtonWouldLie) {
    const auto darkPixels = [this] {
        CRect client;
        m_second.GetClientRect(&client);
        CClientDC screen(&m_second);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height());
        CBitmap* const before = memory.SelectObject(&bitmap);
        m_second.DoPaint(&memory);
        int dark = 0;
        CRect gap;
        m_second.GetItemRect(1, gap);
        for (int y = gap.top; y < gap.bottom; ++y) {
            dark += memory.GetPixel(gap.left, y) == ::GetSysColor(COLOR_WINDOWTEXT) ? 1 : 0;
        }
        memory.SelectObject(before);
        return dark;
    };
    EXPECT_EQ(darkPixels(), 0);
    m_keys.Hold(VK_MENU);
    Take(Bar(), 0);
    m_pointer.MoveTo(OnScreen(m_second, 1, -6));
    EXPECT_GT(darkPixels(), 15);
    Keys(m_frame->m_hWnd).Press(VK_ESCAPE);
    EXPECT_EQ(darkPixels(), 0);
    m_pointer.Release();
}

TEST_F(CustomizeTest, ABarMayKeepItsButton) {
    DROPEFFECT heard = DROPEFFECT_COPY;
    m_second.onRemove = [&](CMFCToolBarButton*, DROPEFFECT effect) {
        heard = effect;
        return FALSE;
    };
    m_keys.Hold(VK_MENU);
    Drag(m_second, 0, CPoint(400, 400));
    EXPECT_EQ(ContentsOf(m_second), L"3011 3012");
    EXPECT_EQ(heard, static_cast<DROPEFFECT>(DROPEFFECT_NONE));
}

TEST_F(CustomizeTest, ABarMayEndWhileItIsAsked) {
    auto* const doomed = new VetoBar;
    doomed->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9002);
    doomed->InsertButton(CMFCToolBarButton(3021, 1, L"Gone"));
    doomed->EnableDocking(CBRS_ALIGN_ANY);
    m_frame->DockPane(doomed);
    LayOut();
    doomed->AdjustLocations();
    doomed->onRemove = [doomed](CMFCToolBarButton*, DROPEFFECT) {
        doomed->DestroyWindow();
        return TRUE;
    };
    m_keys.Hold(VK_MENU);
    Drag(*doomed, 0, CPoint(400, 400));
    EXPECT_EQ(doomed->m_hWnd, nullptr);
    delete doomed;
}

TEST_F(CustomizeTest, LockedBarsAndProtectedCommandsStayAsTheyAre) {
    CList<UINT, UINT> commands;
    commands.AddTail(3001);
    CMFCToolBarButton::SetProtectedCommands(commands);
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 0, OnScreen(m_second, 0, 0));
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    commands.RemoveAll();
    CMFCToolBarButton::SetProtectedCommands(commands);
}

TEST_F(CustomizeTest, TheCustomizeModeDragsWithoutAltAndSendsNoCommands) {
    EXPECT_TRUE(CMFCToolBar::SetCustomizeMode());
    EXPECT_FALSE(CMFCToolBar::SetCustomizeMode()) << "it is on already";
    EXPECT_TRUE(CMFCToolBar::IsCustomizeMode());
    m_pointer.Click(Bar().m_hWnd, CenterOf(0));
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
    Drag(Bar(), 0, OnScreen(m_second, 0, -6));
    EXPECT_FALSE(CMFCToolBar::IsAltCustomizeMode());
    EXPECT_EQ(ContentsOf(m_second), L"3001 3011 3012");
    EXPECT_TRUE(CMFCToolBar::SetCustomizeMode(FALSE));
}

TEST_F(CustomizeTest, ResetAllPutsTheButtonsBackAndDeletesNoBar) {
    m_second.m_bFromConfig = TRUE;
    m_keys.Hold(VK_MENU);
    Drag(Bar(), 1, OnScreen(m_second, 0, -6));
    m_keys.Let(VK_MENU);
    ASSERT_EQ(ContentsOf(m_second), L"3002 3011 3012");
    CMFCToolBar::ResetAll();
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
    EXPECT_EQ(ContentsOf(m_second), L"3011 3012");
    EXPECT_TRUE(::IsWindow(m_second.m_hWnd));
    EXPECT_FALSE(m_second.IsUserDefined()) << "a configured bar is nobody's to delete";
}

TEST_F(CustomizeTest, TheProgramExchangesPlaceholdersWheneverItsButtonsComeBack) {
    const UINT commands[] = {3001, 3040};
    int resets = 0;
    const ResetWatch watch(*m_frame, Bar(), resets);
    Bar().SetButtons(commands, 2);
    EXPECT_EQ(Contents(), L"3001 3041");
    EXPECT_EQ(resets, 1);
    Bar().RemoveButton(0);
    EXPECT_TRUE(Bar().RestoreOriginalState());
    EXPECT_EQ(Contents(), L"3001 3041");
    EXPECT_EQ(resets, 2);
    EXPECT_EQ(static_cast<const CMFCToolBarButton*>(Bar().GetOrigButtons().GetTail())->m_nID, 3040u);
    EXPECT_EQ(static_cast<const CMFCToolBarButton*>(Bar().GetOrigResetButtons().GetTail())->m_nID, 3041u);
}

// ---- the button at the end

class CustomizeButtonTest : public CustomizeTest {
protected:
    CustomizeButtonTest() {
        Bar().EnableCustomizeButton(TRUE, kCustomizeCommand, CString(L"Customize..."));
        LayOut();
    }
    ~CustomizeButtonTest() override { CMFCPopupMenu::CloseAll(); }
    CMFCPopupMenu* OpenMenu() {
        m_pointer.Click(Bar().m_hWnd, Bar().GetOverflowRect().CenterPoint());
        return CMFCPopupMenu::GetActiveMenu();
    }
    CMFCPopupMenu* OpenChooser() {
        CMFCPopupMenu* const menu = OpenMenu();
        if (menu != nullptr) {
            menu->GetMenuItem(0)->OpenPopupMenu();
        }
        return CMFCPopupMenu::GetActiveMenu();
    }
    void Choose(CMFCPopupMenu& menu, int row) {
        CRect rect;
        menu.GetMenuBar()->GetItemRect(row, rect);
        m_pointer.MoveTo(menu.GetMenuBar()->m_hWnd, rect.CenterPoint());
        m_pointer.Press();
        m_pointer.Release();
        PumpPending();
    }
};

TEST_F(CustomizeButtonTest, ItIsThereAlwaysAndItsMenuEndsWithTheCommand) {
    ASSERT_FALSE(Bar().GetOverflowRect().IsRectEmpty());
    EXPECT_TRUE(Bar().IsExistCustomizeButton());
    EXPECT_TRUE(Bar().IsAddRemoveQuickCustomize());
    CRect last;
    Bar().GetItemRect(3, last);
    EXPECT_LE(last.right, Bar().GetOverflowRect().left) << "all buttons have room beside it";
    EXPECT_FALSE(last.IsRectEmpty());
    CMFCPopupMenu* const menu = OpenMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->GetMenuItemCount(), 2);
    EXPECT_EQ(menu->GetMenuItem(0)->m_strText, L"&Add or Remove Buttons");
    EXPECT_EQ(menu->GetMenuItem(1)->m_strText, L"Customize...");
    Choose(*menu, 1);
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{kCustomizeCommand});
}

TEST_F(CustomizeButtonTest, WithoutACommandItIsThereOnlyWhileButtonsHaveNoRoom) {
    Bar().EnableCustomizeButton(TRUE, -1, CString());
    LayOut();
    EXPECT_TRUE(Bar().GetOverflowRect().IsRectEmpty());
}

TEST_F(CustomizeButtonTest, TheBarTellsItWithItsPlaceAndItOpensItsMenu) {
    CMFCCustomizeButton* const button = Bar().GetCustomizeButton();
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(button->Rect().IsRectEmpty());
    EXPECT_EQ(button->Rect(), Bar().GetOverflowRect());
    EXPECT_EQ(button->GetParentToolbar(), &Bar());
    EXPECT_EQ(button->GetCustomizeText(), L"Customize...");
    EXPECT_EQ(Bar().ButtonToIndex(button), -1) << "it is none of the bar's buttons";
    ASSERT_TRUE(button->OpenPopupMenu());
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu()->GetMenuItem(1)->m_strText, L"Customize...");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu()->GetMenuItem(1)->m_nID, button->GetCustomizeCmdId());
    Bar().EnableCustomizeButton(FALSE, -1, CString());
    EXPECT_EQ(Bar().GetCustomizeButton(), nullptr);
    EXPECT_FALSE(Bar().IsExistCustomizeButton());
    EXPECT_EQ(m_second.GetCustomizeButton(), nullptr);
}

TEST_F(CustomizeButtonTest, WhileItIsNotShownItHasNoPlaceAndOpensNothing) {
    Bar().EnableCustomizeButton(TRUE, -1, CString());
    LayOut();
    CMFCCustomizeButton* const button = Bar().GetCustomizeButton();
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->Rect().IsRectEmpty());
    EXPECT_FALSE(button->OpenPopupMenu());
}

TEST_F(CustomizeButtonTest, TheChooserChecksWhatIsShownAndHidesAndShowsButtonsWhileItStaysOpen) {
    CMFCPopupMenu* const chooser = OpenChooser();
    ASSERT_NE(chooser, nullptr);
    ASSERT_EQ(chooser->GetMenuItemCount(), 5) << "three buttons, a line, the reset";
    EXPECT_EQ(chooser->GetMenuItem(1)->m_strText, L"Two") << "without its mnemonic";
    EXPECT_TRUE(chooser->GetMenuItem(1)->m_nStyle & TBBS_CHECKED);
    Choose(*chooser, 1);
    EXPECT_TRUE(Bar().GetButton(1)->IsHidden());
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), chooser);
    EXPECT_FALSE(chooser->GetMenuItem(1)->m_nStyle & TBBS_CHECKED);
    Choose(*chooser, 1);
    EXPECT_FALSE(Bar().GetButton(1)->IsHidden());
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(CustomizeButtonTest, TheResetPutsTheButtonsBack) {
    CMFCPopupMenu* const chooser = OpenChooser();
    ASSERT_NE(chooser, nullptr);
    Choose(*chooser, 0);
    Choose(*chooser, 1);
    ASSERT_TRUE(Bar().GetButton(0)->IsHidden());
    Choose(*chooser, 4);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_FALSE(Bar().GetButton(0)->IsHidden());
    EXPECT_FALSE(Bar().GetButton(1)->IsHidden());
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(CustomizeButtonTest, AButtonThatIsGoneMeanwhileIsLeftAlone) {
    CMFCPopupMenu* const chooser = OpenChooser();
    ASSERT_NE(chooser, nullptr);
    Bar().RemoveButton(0);
    Choose(*chooser, 0);
    EXPECT_EQ(Contents(), L"3002 | 3003");
}

TEST_F(CustomizeButtonTest, WhatIsHiddenStaysHiddenInTheNextRun) {
    Bar().GetButton(1)->Show(FALSE);
    ASSERT_TRUE(Bar().SaveState(L"Hidden"));
    Bar().GetButton(1)->Show(TRUE);
    ASSERT_TRUE(Bar().LoadState(L"Hidden"));
    EXPECT_TRUE(Bar().GetButton(1)->IsHidden());
    Bar().RemoveStateFromRegistry(L"Hidden");
}

// ---- the gap

using toolbar::FindDropPlace;

TEST(DropPlace, IsBeforeTheButtonWhoseMiddleLiesBeyondThePoint) {
    const std::vector<fx::Rect> buttons{{10, 0, 30, 20}, {30, 0, 50, 20}};
    EXPECT_EQ(FindDropPlace(buttons, {5, 10}, true).index, 0);
    EXPECT_EQ(FindDropPlace(buttons, {21, 10}, true).index, 1);
    EXPECT_EQ(FindDropPlace(buttons, {90, 10}, true).index, 2);
    EXPECT_EQ(FindDropPlace(buttons, {21, 10}, true).mark, (fx::Rect{30, 0, 31, 20}));
    EXPECT_EQ(FindDropPlace(buttons, {90, 10}, true).mark, (fx::Rect{50, 0, 51, 20}));
}

TEST(DropPlace, OfABarWithRowsIsInTheRowOfThePoint) {
    const std::vector<fx::Rect> buttons{{0, 0, 20, 20}, {20, 0, 40, 20}, {0, 20, 20, 40}};
    EXPECT_EQ(FindDropPlace(buttons, {39, 10}, true).index, 2);
    EXPECT_EQ(FindDropPlace(buttons, {2, 30}, true).index, 2);
    EXPECT_EQ(FindDropPlace(buttons, {18, 30}, true).index, 3);
}

TEST(DropPlace, OfAVerticalBarGoesByTheHeight) {
    const std::vector<fx::Rect> buttons{{0, 0, 20, 20}, {0, 20, 20, 40}};
    EXPECT_EQ(FindDropPlace(buttons, {15, 12}, false).index, 1);
    EXPECT_EQ(FindDropPlace(buttons, {15, 12}, false).mark, (fx::Rect{0, 20, 20, 21}));
}

TEST(DropPlace, PassesOverButtonsWithoutRoomAndIsTheEndOfAnEmptyBar) {
    EXPECT_EQ(FindDropPlace({{0, 0, 0, 0}, {0, 0, 20, 20}, {0, 0, 0, 0}}, {2, 2}, true).index, 1);
    EXPECT_EQ(FindDropPlace({}, {2, 2}, true).index, 0);
    EXPECT_TRUE(FindDropPlace({}, {2, 2}, true).mark.IsEmpty());
}

} // namespace
