// Pop-ups of the quick access toolbar and context menus.
#include <gmock/gmock.h>

#include "tests/support/canvas.h"
#include "tests/ui/ribbon_drawing/drawn_texts.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;

class QuickAccessPopup : public RibbonPopupTest {
protected:
    CMFCRibbonBaseElement& At(CPoint point) {
        CMFCRibbonBaseElement* hit = Bar().HitTest(point);
        if (hit == nullptr) {
            throw std::runtime_error("nothing is there");
        }
        return *hit;
    }
    CMFCRibbonBaseElement& CustomizeButton() {
        if (CMFCRibbonBaseElement* button = FindInQuickAccess(RUNTIME_CLASS(CMFCRibbonQuickAccessCustomizeButton))) {
            return *button;
        }
        throw std::runtime_error("no customize button");
    }
    CMFCRibbonBaseElement* MoreButton() { return FindInQuickAccess(RUNTIME_CLASS(CMFCRibbonQuickAccessMoreButton)); }
    /// The row that shows a text.
    CMFCRibbonBaseElement& Row(LPCTSTR text) {
        ElementArray rows;
        PopupBar().GetElements(rows);
        for (INT_PTR index = 0; index < rows.GetSize(); ++index) {
            if (WithoutMarks(rows[index]->GetText()) == text) {
                return *rows[index];
            }
        }
        throw std::runtime_error("no such row");
    }

private:
    static CString WithoutMarks(CString text) {
        constexpr LPCTSTR kDoubled = L"\x01";
        text.Replace(L"&&", kDoubled);
        text.Remove(L'&');
        text.Replace(kDoubled, L"&");
        return text;
    }
};

TEST_F(QuickAccessPopup, CheckMarksHaveSoftEdges) {
    SetQuickAccessDefault({commands::paste}, {commands::cut});
    Click(CustomizeButton());
    const auto coloursOf = [](CMFCRibbonBaseElement& row) {
        const CRect rect = row.GetRect();
        Canvas canvas(CSize(rect.right, rect.bottom));
        row.OnDraw(canvas.Dc());
        const CRect middle(rect.left + rect.Height() / 4, rect.top + rect.Height() / 4, rect.left + rect.Height(),
                           rect.bottom - rect.Height() / 4);
        return canvas.Colours(middle).size();
    };
    constexpr std::size_t kGroundAndMark = 2, kSteps = 4;
    EXPECT_GT(coloursOf(Row(L"Paste")), coloursOf(Row(L"Cut")) + kGroundAndMark + kSteps);
}

TEST_F(QuickAccessPopup, TheCustomizeMenuChecksWhatIsShownAndTogglesIt) {
    SetQuickAccessDefault({commands::paste}, {commands::cut});
    Click(CustomizeButton());
    ASSERT_EQ(OpenCount(), 1);
    EXPECT_TRUE(Row(L"Paste").IsChecked());
    EXPECT_FALSE(Row(L"Cut").IsChecked());
    Click(Row(L"Cut"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::paste, commands::cut));
    EXPECT_EQ(OpenCount(), 0);
    Click(CustomizeButton());
    Click(Row(L"Paste"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::cut));
    EXPECT_THAT(m_frame->commands, IsEmpty()) << "customising sends no command";
}

TEST_F(QuickAccessPopup, TheCustomizeMenuDrawsTextsWithoutMarksAndTipsAsTheyAre) {
    SetQuickAccessDefault({commands::paste, commands::cut});
    Element(commands::paste).SetText(L"&Paste");
    Element(commands::cut).SetText(L"");
    Element(commands::cut).SetToolTipText(L"Cut & drop");
    Click(CustomizeButton());
    std::vector<std::wstring> drawn;
    for (const DrawnText& text : TextsDrawnBy([this](CDC& dc) {
             Row(L"Paste").OnDraw(&dc);
             Row(L"Cut & drop").OnDraw(&dc);
         })) {
        drawn.push_back(text.text);
    }
    EXPECT_THAT(drawn, ElementsAre(L"Paste", L"Cut & drop"));
}

TEST_F(QuickAccessPopup, TheCustomizeMenuMovesTheToolbarBelowTheRibbonAndBack) {
    SetQuickAccessDefault({commands::paste});
    Click(CustomizeButton());
    Click(Row(L"Show Quick Access Toolbar Below the Ribbon"));
    EXPECT_FALSE(Bar().IsQuickAccessToolbarOnTop());
    Click(CustomizeButton());
    Click(Row(L"Show Quick Access Toolbar Above the Ribbon"));
    EXPECT_TRUE(Bar().IsQuickAccessToolbarOnTop());
}

TEST_F(QuickAccessPopup, TheCustomizeMenuMinimisesTheRibbon) {
    SetQuickAccessDefault({commands::paste});
    Click(CustomizeButton());
    Click(Row(L"Minimize the Ribbon"));
    EXPECT_NE(Bar().GetHideFlags() & AFX_RIBBONBAR_HIDE_ELEMENTS, 0u);
}

TEST_F(QuickAccessPopup, TheContextMenuAddsAnElementAndRemovesItsCopy) {
    const CPoint at = Element(commands::paste).GetRect().CenterPoint();
    CPoint screen = at;
    Bar().ClientToScreen(&screen);
    Bar().OnShowRibbonContextMenu(&Bar(), screen.x, screen.y, &Element(commands::paste));
    Click(Row(L"Add to Quick Access Toolbar"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::paste));
    CMFCRibbonBaseElement& copy = At(Bar().GetQATCommandsLocation().CenterPoint());
    Bar().OnShowRibbonContextMenu(&Bar(), screen.x, screen.y, &copy);
    Click(Row(L"Remove from Quick Access Toolbar"));
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
}

TEST_F(QuickAccessPopup, TheFrameIsAskedBeforeTheUserCustomises) {
    SetQuickAccessDefault({commands::paste});
    const auto choose = [this] {
        Bar().OnShowRibbonContextMenu(&Bar(), 50, 50, nullptr);
        Click(Row(L"Customize Quick Access Toolbar..."));
    };
    choose();
    EXPECT_EQ(m_frame->customizedBar, &Bar());
    ASSERT_EQ(OpenCount(), 1) << "the frame has no dialog of its own: the toolbar's menu offers the commands";
    EXPECT_TRUE(Row(L"Paste").IsChecked());
    CMFCRibbonPanelMenu::DismissAll();
    m_frame->customizes = true;
    choose();
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(QuickAccessPopup, ASubItemIsToggledThoughItsButtonsCopyIsThere) {
    SetQuickAccessDefault({kShapes}, {kLine});
    Click(CustomizeButton());
    EXPECT_FALSE(Row(L"Line").IsChecked());
    Click(Row(L"Line"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kShapes, kLine));
    Click(CustomizeButton());
    EXPECT_TRUE(Row(L"Line").IsChecked());
    Click(Row(L"Line"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kShapes));
}

TEST_F(QuickAccessPopup, ARowOfACopysMenuIsAddedAsWhatItIsACopyOf) {
    SetQuickAccessDefault({kShapes});
    const auto openContextMenu = [this] {
        Click(At(Bar().GetQATCommandsLocation().CenterPoint()));
        CPoint screen = Row(L"Star").GetRect().CenterPoint();
        PopupBar().ClientToScreen(&screen);
        ::SendMessage(PopupBar(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PopupBar().GetSafeHwnd()),
                      MAKELPARAM(screen.x, screen.y));
    };
    openContextMenu();
    Click(Row(L"Add to Quick Access Toolbar"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kShapes, kStar));
    ElementArray stars;
    Bar().GetElementsByID(kStar, stars);
    EXPECT_EQ(stars[stars.GetUpperBound()]->GetOriginal(), &SubItem(1));
    CMFCRibbonPanelMenu::DismissAll();
    Shapes().RemoveSubItem(1);
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kShapes));
}

TEST_F(QuickAccessPopup, WhatOutlivesTheCategoriesIsAddedAgainAfterThey) {
    auto* tabButton = new CMFCRibbonButton(kOne + 1, L"Tab");
    Bar().AddToTabs(tabButton);
    Bar().SetQuickAccessCommands(CommandList{kOne + 1});
    Bar().RemoveAllCategories();
    FillBar();
    Bar().RecalcLayout();
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    Bar().OnShowRibbonContextMenu(&Bar(), 50, 50, tabButton);
    Click(Row(L"Add to Quick Access Toolbar"));
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kOne + 1));
}

TEST_F(QuickAccessPopup, AnElementIsAddedFromACollapsedPanelsPopup) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    CPoint screen = panel.GetElement(0)->GetRect().CenterPoint();
    PopupBar().ClientToScreen(&screen);
    ::SendMessage(PopupBar(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(PopupBar().GetSafeHwnd()),
                  MAKELPARAM(screen.x, screen.y));
    ASSERT_EQ(OpenCount(), 2);
    Click(Row(L"Add to Quick Access Toolbar"));
    EXPECT_EQ(OpenCount(), 0);
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::paste));
}

TEST_F(QuickAccessPopup, AnElementThatGoesWhileItsContextMenuIsOpenIsNotAdded) {
    Bar().OnShowRibbonContextMenu(&Bar(), 50, 50, &Element(commands::paste));
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    Click(Row(L"Add to Quick Access Toolbar"));
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
}

TEST_F(QuickAccessPopup, WhatHasNoRoomIsShownByTheMoreButtonAndWorks) {
    AddManyButtons(30, 20);
    Bar().SetQuickAccessCommands(CommandList(ManyCommands(1)));
    EXPECT_EQ(MoreButton(), nullptr) << "there is room";
    Bar().SetQuickAccessCommands(CommandList(ManyCommands(30)));
    SetClientWidth(300);
    ASSERT_NE(MoreButton(), nullptr);
    Click(*MoreButton());
    ASSERT_EQ(OpenCount(), 1);
    ElementArray rest;
    PopupBar().GetElements(rest);
    int inBar = 0;
    ElementArray all;
    for (UINT id = 0; id < 30; ++id) {
        Bar().GetElementsByID(commands::firstHandled + 1000 + id, all);
        for (INT_PTR index = 0; index < all.GetSize(); ++index) {
            const bool isHere = all[index]->IsQATMode() && all[index]->GetParentMenu() == nullptr &&
                                !all[index]->GetRect().IsRectEmpty();
            inBar += isHere ? 1 : 0;
        }
    }
    EXPECT_EQ(inBar + rest.GetSize(), 30) << "each is in the bar or in the pop-up";
    const UINT last = rest[rest.GetUpperBound()]->GetID();
    Click(*rest[rest.GetUpperBound()]);
    EXPECT_THAT(m_frame->commands, ElementsAre(last));
    EXPECT_EQ(OpenCount(), 0);
}

} // namespace
