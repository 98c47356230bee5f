// Tooltips of the elements that pop-ups show.
#include <gmock/gmock.h>

#include "afxRibbonEdit.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

class PopupTooltips : public RibbonPopupTest {
protected:
    /// What the tooltip says when it asks for its text; empty: it shows nothing.
    static CString Tip() {
        NMTTDISPINFO info{};
        info.hdr.hwndFrom = PopupBar().GetToolTipCtrl()->GetSafeHwnd();
        info.hdr.code = TTN_NEEDTEXT;
        PopupBar().SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
        return info.lpszText != nullptr ? CString(info.lpszText) : CString();
    }
    static CRect ToolRect() {
        TOOLINFO tool{};
        tool.cbSize = sizeof(tool);
        tool.hwnd = PopupBar();
        tool.uId = 1;
        PopupBar().GetToolTipCtrl()->SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool));
        return tool.rect;
    }
};

TEST_F(PopupTooltips, AnElementOfACollapsedPanelShowsItsTipOrItsText) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    EXPECT_EQ(PopupBar().GetToolTipCtrl(), nullptr) << "made when the pointer needs it";
    Element(commands::cut).SetToolTipText(L"Cuts the selection");
    MoveOver(*panel.GetElement(0));
    ASSERT_NE(PopupBar().GetToolTipCtrl(), nullptr);
    EXPECT_STREQ(Tip(), L"Paste");
    EXPECT_EQ(ToolRect(), panel.GetElement(0)->GetRect());
    MoveOver(Element(commands::cut));
    EXPECT_STREQ(Tip(), L"Cuts the selection");
    EXPECT_EQ(ToolRect(), Element(commands::cut).GetRect());
}

TEST_F(PopupTooltips, AnEditWindowShowsTheTipOfItsElement) {
    auto& edit = static_cast<CMFCRibbonEdit&>(Element(commands::size));
    edit.SetToolTipText(L"Size of the text");
    Click(Collapse(1).GetDefaultButton());
    ASSERT_EQ(OpenCount(), 1);
    const HWND window = edit.GetEditWnd()->GetSafeHwnd();
    ASSERT_EQ(::GetParent(window), PopupBar().GetSafeHwnd());
    CRect client;
    ::GetClientRect(window, client);
    m_pointer.MoveTo(window, client.CenterPoint());
    EXPECT_EQ(PopupBar().GetHighlighted(), &edit);
    ASSERT_NE(PopupBar().GetToolTipCtrl(), nullptr);
    EXPECT_STREQ(Tip(), L"Size of the text");
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    tool.hwnd = PopupBar();
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    EXPECT_TRUE(PopupBar().GetToolTipCtrl()->SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool)))
        << "the system asks for a tool of the window itself";
}

TEST_F(PopupTooltips, ARowOfAMenuShowsOnlyWhatSaysMoreThanItsText) {
    SubItem(1).SetToolTipText(L"Draws a star");
    Click(Shapes());
    MoveOver(SubItem(0));
    EXPECT_STREQ(Tip(), L"");
    MoveOver(SubItem(1));
    EXPECT_STREQ(Tip(), L"Draws a star");
}

TEST_F(PopupTooltips, NothingIsShownWhileAMenuIsOpenBesideTheElement) {
    SubItem(3).SetToolTipText(L"More of them");
    Click(Shapes());
    MoveOver(SubItem(3));
    EXPECT_STREQ(Tip(), L"More of them");
    CMFCRibbonPanelMenuBar& first = PopupBar();
    Click(SubItem(3));
    ASSERT_EQ(OpenCount(), 2);
    NMTTDISPINFO info{};
    info.hdr.hwndFrom = first.GetToolTipCtrl()->GetSafeHwnd();
    info.hdr.code = TTN_NEEDTEXT;
    first.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.lpszText, nullptr);
}

TEST_F(PopupTooltips, ABarWithoutTooltipsHasNoneInItsPopups) {
    Bar().EnableToolTips(FALSE);
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    MoveOver(*panel.GetElement(0));
    EXPECT_EQ(PopupBar().GetToolTipCtrl(), nullptr);
}

} // namespace
