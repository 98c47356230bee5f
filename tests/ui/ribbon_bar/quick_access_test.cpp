#include <gmock/gmock.h>

#include "afxRibbonMainPanel.h"
#include "tests/support/growth.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;
using testing::ElementsAre;
using testing::IsEmpty;

class QuickAccessTest : public RibbonBarTest {
protected:
    void SetCommands(std::initializer_list<UINT> ids) {
        Bar().SetQuickAccessCommands(CommandList(ids));
        PumpPending();
    }
    CMFCRibbonBaseElement* CopyOf(UINT id) {
        ElementArray elements;
        Bar().GetElementsByID(id, elements);
        for (INT_PTR index = 0; index < elements.GetSize(); ++index) {
            if (elements[index]->IsQATMode()) {
                return elements[index];
            }
        }
        return nullptr;
    }
};

TEST_F(QuickAccessTest, CommandsAreCopiesLinkedToTheirOriginals) {
    SetCommands({commands::cut, commands::paste});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::cut, commands::paste));
    CMFCRibbonBaseElement* copy = CopyOf(commands::paste);
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &Element(commands::paste));
    EXPECT_EQ(copy->GetOriginal(), &Element(commands::paste));
    EXPECT_EQ(copy->GetRuntimeClass(), Element(commands::paste).GetRuntimeClass());
    EXPECT_STREQ(copy->GetText(), L"Paste");
    ElementArray both;
    Bar().GetElementsByID(commands::paste, both);
    EXPECT_EQ(both.GetSize(), 2);
}

TEST_F(QuickAccessTest, ACommandOfAHiddenCategoryIsFoundByItsCopyUnlessCopiesAreLeftOut) {
    CMFCRibbonBaseElement* original = Bar().FindByID(commands::find);
    ASSERT_NE(original, nullptr);
    SetCommands({commands::find});
    EXPECT_EQ(Bar().FindByID(commands::find), original) << "the first of both";
    Bar().ShowCategory(1, FALSE);
    CMFCRibbonBaseElement* found = Bar().FindByID(commands::find);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found, CopyOf(commands::find));
    EXPECT_EQ(found->GetOriginal(), original);
    EXPECT_EQ(Bar().FindByID(commands::find, TRUE, TRUE), nullptr);
    EXPECT_EQ(Bar().FindByID(commands::find, FALSE, TRUE), original);
}

TEST_F(QuickAccessTest, SeparatorsAreShownAndNotListedAndUnknownCommandsLeftOut) {
    SetCommands({commands::cut, 0, 9999, commands::find});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::cut, commands::find))
        << "also from categories that are not active";
}

TEST_F(QuickAccessTest, LiesAboveTheTabsAndAClickSendsTheCommand) {
    EXPECT_TRUE(Bar().GetQuickAccessToolbarLocation().IsRectEmpty());
    SetCommands({commands::cut, commands::paste});
    const CRect place = Bar().GetQuickAccessToolbarLocation();
    EXPECT_FALSE(place.IsRectEmpty());
    EXPECT_LE(place.bottom, Bar().GetCategory(0)->GetTabRect().top);
    const CRect rect = CopyOf(commands::paste)->GetRect();
    EXPECT_EQ(Bar().HitTest(rect.CenterPoint()), CopyOf(commands::paste));
    m_pointer.Click(Bar(), Center(rect));
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(QuickAccessTest, BelowTheRibbonItLiesUnderTheCategory) {
    SetCommands({commands::cut});
    Bar().SetQuickAccessToolbarOnTop(FALSE);
    Bar().RecalcLayout();
    EXPECT_FALSE(Bar().IsQuickAccessToolbarOnTop());
    EXPECT_GE(Bar().GetQuickAccessToolbarLocation().top, Bar().GetActiveCategory()->GetRect().bottom);
}

TEST_F(QuickAccessTest, TheDefaultStateAppliesUntilCommandsAreSet) {
    SetQuickAccessDefault({commands::paste}, {commands::cut});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::paste));
    SetQuickAccessDefault({commands::find, commands::cut});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::find, commands::cut));
    SetCommands({commands::copy});
    SetQuickAccessDefault({commands::paste});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::copy));
}

TEST_F(QuickAccessTest, AnEmptyDefaultStateEmptiesTheToolbar) {
    SetQuickAccessDefault({commands::paste});
    SetQuickAccessDefault({});
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    EXPECT_TRUE(Bar().IsQATEmpty());
}

TEST_F(QuickAccessTest, ADefaultStateNamedBeforeItsElementsAppliesOnceTheyAreThere) {
    SetQuickAccessDefault({commands::closesFrame});
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    Bar().GetCategory(0)->GetPanel(0)->Add(new CMFCRibbonButton(commands::closesFrame, L"Close"));
    Bar().RecalcLayout();
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::closesFrame));
}

TEST_F(QuickAccessTest, TheDefaultStatesMissingCommandsLeaveTheCopiesAlone) {
    SetQuickAccessDefault({commands::paste, 9999, commands::paste});
    const CMFCRibbonBaseElement* copy = CopyOf(commands::paste);
    Bar().RecalcLayout();
    EXPECT_EQ(CopyOf(commands::paste), copy);
}

TEST_F(QuickAccessTest, TheDefaultStateAppliesAgainToElementsThatComeBack) {
    SetQuickAccessDefault({commands::paste, commands::find});
    Bar().RemoveCategory(0);
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::find));
    Bar().RemoveAllCategories();
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    FillBar();
    Bar().RecalcLayout();
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::paste, commands::find));
}

/// Commands outside of the panels' rows: in the menu of a button, in a menu in that menu, in the menu of a tab row
/// button, and in the main panel.
class QuickAccessFromElsewhereTest : public QuickAccessTest {
protected:
    QuickAccessFromElsewhereTest() {
        m_opens = new CMFCRibbonButton(kOpens, L"Opens");
        auto* inner = new CMFCRibbonButton(kInner, L"Inner");
        inner->AddSubItem(new CMFCRibbonButton(kDeep, L"Deep"));
        m_opens->AddSubItem(new CMFCRibbonButton(kItem, L"Item"));
        m_opens->AddSubItem(inner);
        Bar().GetCategory(0)->GetPanel(0)->Add(m_opens);
        auto* tabButton = new CMFCRibbonButton(kInTabRow, L"In the tab row");
        tabButton->AddSubItem(new CMFCRibbonButton(kInTabMenu, L"In its menu"));
        Bar().AddToTabs(tabButton);
        Bar().AddMainCategory(L"File", 0, 0)->Add(new CMFCRibbonButton(kInMainPanel, L"In the main panel"));
        Bar().RecalcLayout();
        PumpPending();
    }
    static constexpr UINT kOpens = commands::firstHandled + 400;
    static constexpr UINT kItem = commands::firstHandled + 401;
    static constexpr UINT kInner = commands::firstHandled + 402;
    static constexpr UINT kDeep = commands::firstHandled + 403;
    static constexpr UINT kInTabRow = commands::firstHandled + 404;
    static constexpr UINT kInTabMenu = commands::firstHandled + 405;
    static constexpr UINT kInMainPanel = commands::firstHandled + 406;
    static constexpr UINT kAdded = commands::firstHandled + 407;

    CMFCRibbonButton* m_opens = nullptr; // the panel's
};

TEST_F(QuickAccessFromElsewhereTest, EveryCommandOfTheBarIsFound) {
    SetCommands({kDeep, kItem, kInTabRow, kInTabMenu, kInMainPanel, kOpens});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(kDeep, kItem, kInTabRow, kInTabMenu, kInMainPanel, kOpens));
    EXPECT_EQ(CopyOf(kItem)->GetOriginal(), m_opens->GetSubItems()[0]);
    const std::vector<UINT> before = QuickAccessCommands();
    CList<UINT, UINT> list;
    Bar().GetQuickAccessCommands(list);
    Bar().SetQuickAccessCommands(list);
    EXPECT_EQ(QuickAccessCommands(), before);
}

TEST_F(QuickAccessFromElsewhereTest, TheCopyOfASubItemSendsItsCommandAndGoesWithIt) {
    SetCommands({kItem});
    m_pointer.Click(Bar(), Center(CopyOf(kItem)->GetRect()));
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(kItem));
    m_opens->RemoveSubItem(0);
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
}

TEST_F(QuickAccessFromElsewhereTest, ADefaultStateOfSubItemsIsAppliedOnce) {
    SetQuickAccessDefault({kDeep, commands::paste});
    ASSERT_THAT(QuickAccessCommands(), ElementsAre(kDeep, commands::paste));
    const CMFCRibbonBaseElement* copy = CopyOf(commands::paste);
    Bar().RecalcLayout();
    EXPECT_EQ(CopyOf(commands::paste), copy);
}

TEST_F(QuickAccessFromElsewhereTest, ACopysMenuHasTheSubItemsThatItsOriginalIsGiven) {
    SetCommands({kOpens});
    auto& copy = static_cast<CMFCRibbonButton&>(*CopyOf(kOpens));
    const auto idsOf = [](const CMFCRibbonButton& button) {
        std::vector<UINT> ids;
        for (INT_PTR index = 0; index < button.GetSubItems().GetSize(); ++index) {
            ids.push_back(button.GetSubItems()[index]->GetID());
        }
        return ids;
    };
    m_opens->AddSubItem(new CMFCRibbonButton(kAdded, L"Added"), 1);
    EXPECT_THAT(idsOf(copy), ElementsAre(kItem, kAdded, kInner));
    EXPECT_EQ(copy.GetSubItems()[1]->GetOriginal(), m_opens->GetSubItems()[1]);
    m_opens->RemoveSubItem(0);
    EXPECT_THAT(idsOf(copy), ElementsAre(kAdded, kInner));
    auto& inner = static_cast<CMFCRibbonButton&>(*m_opens->GetSubItems()[1]);
    const auto& innerCopy = static_cast<CMFCRibbonButton&>(*copy.GetSubItems()[1]);
    inner.AddSubItem(new CMFCRibbonButton(kItem, L"Item"));
    EXPECT_THAT(idsOf(innerCopy), ElementsAre(kDeep, kItem));
    m_opens->RemoveAllSubItems();
    EXPECT_THAT(idsOf(copy), IsEmpty());
    EXPECT_FALSE(copy.HasMenu());
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, kItem, L"Item");
    m_opens->SetMenu(menu, TRUE);
    EXPECT_EQ(copy.GetMenu(), menu.GetSafeHmenu());
    EXPECT_TRUE(copy.IsDefaultCommand());
    m_opens->SetMenu(static_cast<HMENU>(nullptr));
}

TEST_F(QuickAccessTest, AnElementThatLeavesTheBarIsNoLongerThere) {
    SetCommands({commands::paste});
    auto* paste = static_cast<CMFCRibbonButton*>(&Element(commands::paste));
    Bar().GetCategory(0)->GetPanel(0)->Remove(0, FALSE);
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    CMFCRibbonApplicationButton application;
    application.SetID(commands::find + 100);
    Bar().SetApplicationButton(&application, CSize(40, 40));
    SetCommands({commands::find + 100});
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::find + 100));
    Bar().SetApplicationButton(nullptr, CSize(40, 40));
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    delete paste;
}

// ---- a toolbar by itself

TEST(QuickAccessToolBar, ForgetsWhatItHadWhenAllIsRemoved) {
    CMFCRibbonButton paste(commands::paste, L"Paste");
    CMFCRibbonQuickAccessToolBar toolbar;
    EXPECT_TRUE(toolbar.Add(&paste));
    EXPECT_FALSE(toolbar.Add(&paste));
    toolbar.RemoveAll();
    EXPECT_FALSE(toolbar.HasCopyOf(&paste));
    EXPECT_TRUE(toolbar.Add(&paste)) << "the next element may have the same address";
}

TEST(QuickAccessToolBar, KnowsACopyByTheElementThatWasCopiedThoughThatHasAnOriginalItself) {
    CMFCRibbonButton root(commands::paste, L"Paste");
    CMFCRibbonButton linked(commands::cut, L"Cut");
    linked.SetOriginal(&root);
    CMFCRibbonQuickAccessToolBar toolbar;
    ASSERT_TRUE(toolbar.Add(&root));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(toolbar.Add(&linked));
        EXPECT_TRUE(toolbar.Remove(toolbar.GetButton(1)));
        EXPECT_FALSE(toolbar.HasCopyOf(&linked));
        EXPECT_TRUE(toolbar.HasCopyOf(&root));
    }
    EXPECT_TRUE(toolbar.Remove(&root));
    EXPECT_TRUE(toolbar.IsEmpty());
}

TEST_F(QuickAccessTest, ACopyGoesWithItsOriginal) {
    SetCommands({commands::cut, commands::paste});
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::cut));
    Bar().RemoveCategory(0);
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    PumpPending();
}

TEST_F(QuickAccessTest, InANarrowBarWhatHasNoRoomIsNotShown) {
    FillQuickAccess(40);
    EXPECT_EQ(QuickAccessCommands().size(), 40u);
    CRect client;
    Bar().GetClientRect(client);
    EXPECT_LE(Bar().GetQuickAccessToolbarLocation().right, client.right);
    EXPECT_LE(Bar().GetQATCommandsLocation().right, Bar().GetQuickAccessToolbarLocation().right);
    EXPECT_TRUE(CopyOf(commands::firstHandled + 1039)->GetRect().IsRectEmpty());
}

TEST_F(QuickAccessTest, TenTimesTheCommandsTakeNoMoreThanFortyTimesTheTime) {
    const auto measure = [this](int count) {
        CMFCRibbonCategory* category = AddManyButtons(count, 50);
        const CommandList list(ManyCommands(count));
        const double seconds = MeasureSeconds([&] { Bar().SetQuickAccessCommands(list, FALSE); });
        EXPECT_EQ(QuickAccessCommands().size(), static_cast<size_t>(count));
        Bar().RemoveCategory(Bar().GetCategoryIndex(category));
        return seconds;
    };
    // Quadratic work would take 100 times the time.
    EXPECT_LT(MeasureGrowth(
                  10, [&] { return measure(500); }, [&] { return measure(5000); }),
              40);
}

} // namespace
