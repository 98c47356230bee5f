#include <gmock/gmock.h>

#include "tests/support/growth.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

using ElementArray = CArray<CMFCRibbonBaseElement*, CMFCRibbonBaseElement*>;
using testing::ElementsAre;
using testing::IsEmpty;

class QuickAccessTest : public RibbonBarTest {
protected:
    void SetCommands(std::initializer_list<UINT> ids) {
        CList<UINT, UINT> list;
        for (const UINT id : ids) {
            list.AddTail(id);
        }
        Bar().SetQuickAccessCommands(list);
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

TEST_F(QuickAccessTest, ACopyGoesWithItsOriginal) {
    SetCommands({commands::cut, commands::paste});
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    EXPECT_THAT(QuickAccessCommands(), ElementsAre(commands::cut));
    Bar().RemoveCategory(0);
    EXPECT_THAT(QuickAccessCommands(), IsEmpty());
    PumpPending();
}

TEST_F(QuickAccessTest, InANarrowBarWhatHasNoRoomIsNotShown) {
    AddManyButtons(40, 20);
    CList<UINT, UINT> list;
    for (UINT id = 0; id < 40; ++id) {
        list.AddTail(commands::firstHandled + 1000 + id);
    }
    Bar().SetQuickAccessCommands(list);
    SetClientWidth(300);
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
        CList<UINT, UINT> list;
        for (int index = 0; index < count; ++index) {
            list.AddTail(commands::firstHandled + 1000 + static_cast<UINT>(index));
        }
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
