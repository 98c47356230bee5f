// The menu of a button while toolbars are customized.
#include "tests/ui/toolbar/bar_frame.h"

#include <functional>

namespace {

/// Changes the menu that the user gets.
class OwnButton : public CMFCToolBarButton {
    DECLARE_SERIAL(OwnButton)

public:
    OwnButton() = default;
    explicit OwnButton(UINT id) : CMFCToolBarButton(id, 3, L"Own") {}

    BOOL OnCustomizeMenu(CMenu* menu) override {
        menu->EnableMenuItem(0, MF_BYPOSITION | MF_GRAYED);
        menu->AppendMenu(MF_STRING, 3077, L"Own entry");
        if (s_hostile) {
            s_hostile();
        }
        return TRUE;
    }
    static std::function<void()> s_hostile;
};
IMPLEMENT_SERIAL(OwnButton, CMFCToolBarButton, 1)
std::function<void()> OwnButton::s_hostile;

class KeepingBar : public TestBar {
public:
    BOOL keeps = TRUE;
    BOOL OnBeforeRemoveButton(CMFCToolBarButton*, DROPEFFECT) override { return !keeps; }
};

class ButtonMenuTest : public ToolBarTest {
protected:
    ButtonMenuTest() { CMFCToolBar::SetCustomizeMode(); }
    ~ButtonMenuTest() override {
        OwnButton::s_hostile = nullptr;
        CMFCPopupMenu::CloseAll();
        CMFCToolBar::SetCustomizeMode(FALSE);
    }

    static CMFCPopupMenu* RightClick(CMFCToolBar& bar, int index) {
        CRect rect;
        bar.GetItemRect(index, rect);
        CPoint point = rect.CenterPoint();
        bar.ClientToScreen(&point);
        bar.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(bar.m_hWnd), MAKELPARAM(point.x, point.y));
        return CMFCPopupMenu::GetActiveMenu();
    }
    /// Texts, with "-" for one that is disabled, "*" for one that is checked.
    static std::vector<CString> RowsOf(CMFCPopupMenu& menu) {
        std::vector<CString> rows;
        for (int index = 0; index < menu.GetMenuItemCount(); ++index) {
            const CMFCToolBarButton& row = *menu.GetMenuBar()->GetButton(index);
            const bool isLine = (row.m_nStyle & TBBS_SEPARATOR) != 0;
            CString text = isLine ? CString(L"|") : row.m_strText;
            text += (row.m_nStyle & TBBS_DISABLED) != 0 ? L"-" : L"";
            text += (row.m_nStyle & TBBS_CHECKED) != 0 ? L"*" : L"";
            rows.push_back(text);
        }
        return rows;
    }
    void Choose(int index, LPCTSTR text) { Choose(Bar(), index, text); }
    void Choose(CMFCToolBar& bar, int index, LPCTSTR text) {
        CMFCPopupMenu* const menu = RightClick(bar, index);
        ASSERT_NE(menu, nullptr);
        RunIdle(); // nobody disables what the frame does not know
        for (int row = 0; row < menu->GetMenuItemCount(); ++row) {
            if (menu->GetMenuBar()->GetButton(row)->m_strText == text) {
                CRect rect;
                menu->GetMenuBar()->GetItemRect(row, rect);
                m_pointer.Click(menu->GetMenuBar()->m_hWnd, rect.CenterPoint());
                PumpPending();
                return;
            }
        }
        ADD_FAILURE() << "no such entry";
    }
};

using Rows = std::vector<CString>;

TEST_F(ButtonMenuTest, OffersWhatCanBeDoneWithTheButton) {
    CMFCPopupMenu* const menu = RightClick(Bar(), 1);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(RowsOf(*menu),
              (Rows{L"&Reset to Default", L"&Copy Button Image", L"&Edit Button Image...-", L"&Delete", L"|",
                    L"&Button Appearance...", L"&Image*", L"&Text", L"Image &and Text", L"|", L"Start &Group"}));
}

TEST_F(ButtonMenuTest, IsThereInTheCustomizeModeAlone) {
    CMFCToolBar::SetCustomizeMode(FALSE);
    EXPECT_EQ(RightClick(Bar(), 1), nullptr);
}

TEST_F(ButtonMenuTest, ProtectedCommandsHaveNone) {
    CList<UINT, UINT> commands;
    commands.AddTail(3002);
    CMFCToolBarButton::SetProtectedCommands(commands);
    EXPECT_EQ(RightClick(Bar(), 1), nullptr);
    commands.RemoveAll();
    CMFCToolBarButton::SetProtectedCommands(commands);
}

TEST_F(ButtonMenuTest, TheButtonShowsTextImageOrBoth) {
    const auto state = [this] {
        const CMFCToolBarButton& button = *Bar().GetButton(1);
        return CString(button.IsDrawImage() ? L"image " : L"") + (button.IsDrawText() ? L"text" : L"");
    };
    const int imageWidth = Bar().GetButton(1)->Rect().Width();
    Choose(1, L"Image &and Text");
    EXPECT_EQ(state(), L"image text");
    EXPECT_GT(Bar().GetButton(1)->Rect().Width(), imageWidth) << "it was measured anew";
    Choose(1, L"&Text");
    EXPECT_EQ(state(), L"text");
    Choose(1, L"&Image");
    EXPECT_EQ(state(), L"image ");
    EXPECT_EQ(Bar().GetButton(1)->Rect().Width(), imageWidth);
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(ButtonMenuTest, WithoutAnImageOnlyTheTextCanBeShown) {
    Bar().InsertButton(CMFCToolBarButton(3005, -1, L"Bare"));
    LayOut();
    CMFCPopupMenu* const menu = RightClick(Bar(), 4);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(RowsOf(*menu),
              (Rows{L"&Reset to Default", L"&Copy Button Image-", L"&Edit Button Image...-", L"&Delete", L"|",
                    L"&Button Appearance...", L"&Image-", L"&Text*", L"Image &and Text-", L"|", L"Start &Group"}));
}

TEST_F(ButtonMenuTest, AGroupIsBegunAndEndedBeforeTheButton) {
    Choose(1, L"Start &Group");
    EXPECT_EQ(Contents(), L"3001 | 3002 | 3003");
    CMFCPopupMenu* const menu = RightClick(Bar(), 2);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(RowsOf(*menu).back(), L"Start &Group*");
    CMFCPopupMenu::CloseAll();
    Choose(2, L"Start &Group");
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(ButtonMenuTest, TheFirstButtonBeginsNoGroup) {
    CMFCPopupMenu* const menu = RightClick(Bar(), 0);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(RowsOf(*menu).back(), L"Start &Group-");
}

TEST_F(ButtonMenuTest, DeleteTakesTheButtonAwayAndTheResetOfTheBarBringsItBack) {
    Choose(3, L"&Delete");
    EXPECT_EQ(Contents(), L"3001 3002");
    ASSERT_TRUE(Bar().RestoreOriginalState());
    EXPECT_EQ(Contents(), L"3001 3002 | 3003");
}

TEST_F(ButtonMenuTest, ABarMayKeepItsButton) {
    KeepingBar bar;
    bar.Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001);
    bar.InsertButton(CMFCToolBarButton(3011, 1, L"Eleven"));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->DockPane(&bar);
    LayOut();
    bar.AdjustLocations();
    Choose(bar, 0, L"&Delete");
    EXPECT_EQ(bar.GetCount(), 1);
    bar.keeps = FALSE;
    Choose(bar, 0, L"&Delete");
    EXPECT_EQ(bar.GetCount(), 0);
    bar.DestroyWindow();
}

TEST_F(ButtonMenuTest, TheResetBringsBackTheImageAndTheTextThatTheProgramGave) {
    Choose(1, L"&Text");
    Bar().GetButton(1)->m_strText = L"Renamed";
    Choose(1, L"&Reset to Default");
    EXPECT_TRUE(Bar().GetButton(1)->IsDrawImage());
    EXPECT_FALSE(Bar().GetButton(1)->IsDrawText());
    EXPECT_EQ(Bar().GetButton(1)->m_strText, L"T&wo");
    EXPECT_EQ(Bar().GetButton(1)->GetImage(), 1);
}

TEST_F(ButtonMenuTest, TheImageGoesToTheClipboard) {
    ASSERT_TRUE(::OpenClipboard(m_frame->m_hWnd));
    ::EmptyClipboard();
    ::CloseClipboard();
    Choose(1, L"&Copy Button Image");
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_BITMAP));
}

TEST_F(ButtonMenuTest, TheButtonMayChangeItsMenuAndCommandsThatItAddsGoToTheFrame) {
    Bar().InsertButton(OwnButton(3006));
    LayOut();
    CMFCPopupMenu* const menu = RightClick(Bar(), 4);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(RowsOf(*menu).front(), L"&Reset to Default-");
    EXPECT_EQ(RowsOf(*menu).back(), L"Own entry");
    Choose(4, L"Own entry");
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{3077});
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

TEST_F(ButtonMenuTest, AButtonThatGoesWhileItIsAskedHasNoMenu) {
    Bar().InsertButton(OwnButton(3006));
    LayOut();
    OwnButton::s_hostile = [this] { Bar().RemoveAllButtons(); };
    EXPECT_EQ(RightClick(Bar(), 4), nullptr);
    EXPECT_EQ(Bar().GetCount(), 0);
}

TEST_F(ButtonMenuTest, AButtonThatIsGoneWhenAnEntryIsChosenIsLeftAlone) {
    CMFCPopupMenu* const menu = RightClick(Bar(), 0);
    ASSERT_NE(menu, nullptr);
    Bar().RemoveButton(0);
    CRect rect;
    constexpr int kDeleteRow = 3;
    ASSERT_EQ(menu->GetMenuItem(kDeleteRow)->m_strText, L"&Delete");
    menu->GetMenuBar()->GetItemRect(kDeleteRow, rect);
    m_pointer.Click(menu->GetMenuBar()->m_hWnd, rect.CenterPoint());
    PumpPending();
    EXPECT_EQ(Contents(), L"3002 | 3003");
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
}

} // namespace
