// Hosts that end things while they are told.
#include "fx/registered_messages.h"
#include "tests/ui/ribbon_combo/combo_fixture.h"

#include <gmock/gmock.h>

#include <functional>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HostileComboHost : public RibbonComboTest {
protected:
    void RemoveCombo() { Bar().GetCategory(0)->GetPanel(0)->Remove(IndexOf(kPlain)); }
    int IndexOf(UINT id) {
        const CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
        for (int i = 0; i < panel.GetCount(); ++i) {
            if (panel.GetElement(i)->GetID() == id) {
                return i;
            }
        }
        return -1;
    }
};

TEST_F(HostileComboHost, TheCommandMayEndTheFrame) {
    m_frame->onCommand = [this] { m_frame->DestroyWindow(); };
    ClickButton(Plain());
    ClickRow(1);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_FALSE(IsOpen());
}

TEST_F(HostileComboHost, TheCommandOfAKeyMayEndTheFrame) {
    m_frame->onCommand = [this] { m_frame->DestroyWindow(); };
    ClickButton(Plain());
    Press(VK_DOWN);
    Press(VK_RETURN);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(HostileComboHost, TheCommandMayRemoveTheItems) {
    m_frame->onCommand = [this] { Plain().RemoveAllItems(); };
    ClickButton(Plain());
    ClickRow(1);
    EXPECT_EQ(Plain().GetCount(), 0);
    EXPECT_EQ(Plain().GetCurSel(), -1);
}

TEST_F(HostileComboHost, TheCommandMayDeleteTheCombo) {
    m_frame->onCommand = [this] { RemoveCombo(); };
    ClickButton(Plain());
    ClickRow(1);
    EXPECT_EQ(IndexOf(kPlain), -1);
    EXPECT_FALSE(IsOpen());
}

TEST_F(HostileComboHost, TheCommandMayOpenTheListAgain) {
    m_frame->onCommand = [this] { Plain().DropDownList(); };
    ClickButton(Plain());
    ClickRow(1);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(ListBar().GetHotRow(), 1);
}

TEST_F(HostileComboHost, TheComboMayGoWhileItsListIsOpen) {
    ClickButton(Plain());
    RemoveCombo();
    EXPECT_FALSE(IsOpen());
    PumpPending();
    EXPECT_THAT(m_frame->commands, IsEmpty());
}

TEST_F(HostileComboHost, TheFrameMayGoWhileAListIsOpen) {
    ClickButton(Plain());
    m_frame->DestroyWindow();
    EXPECT_FALSE(IsOpen());
}

TEST_F(HostileComboHost, TheCategoryMayGoWhileAListIsOpen) {
    ClickButton(Edit());
    ASSERT_TRUE(IsOpen());
    Bar().RemoveCategory(0);
    PumpPending();
    EXPECT_FALSE(IsOpen());
}

/// A combo whose space bar, and a window whose hot rows, do something.
class ActingCombo : public CMFCRibbonComboBox {
public:
    using CMFCRibbonComboBox::CMFCRibbonComboBox;
    std::function<void()> onToggle;
    std::function<void()> onHot;
    std::vector<int>* hot = nullptr;

    BOOL OnToggleDropListItem(int) override {
        const auto action = onToggle;
        action();
        return TRUE;
    }
    void NotifyHighlightListItem(int index) override {
        if (hot != nullptr) {
            hot->push_back(index);
        }
        if (onHot) {
            const auto action = onHot;
            action();
        }
    }
};

class ActingList : public HostileComboHost {
protected:
    static constexpr UINT kActing = 1204;
    ActingList() : acting(*new ActingCombo(kActing, FALSE, 60)) {
        for (int i = 0; i < 100; ++i) {
            acting.AddItem(L"Row");
        }
        Bar().GetCategory(0)->GetPanel(0)->Add(&acting);
        LayOut();
    }
    ActingCombo& acting;
};

TEST_F(ActingList, TheSpaceBarMayCloseTheList) {
    acting.onToggle = [] { CMFCPopupMenu::CloseAll(); };
    ClickButton(acting);
    Press(VK_DOWN);
    Press(VK_SPACE);
    EXPECT_FALSE(IsOpen());
}

TEST_F(ActingList, TheSpaceBarMayEndTheFrame) {
    acting.onToggle = [this] { m_frame->DestroyWindow(); };
    ClickButton(acting);
    Press(VK_DOWN);
    Press(VK_SPACE);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ActingList, AHotRowMayEndTheListTheComboOrTheFrame) {
    acting.onHot = [] { CMFCPopupMenu::CloseAll(); };
    ClickButton(acting);
    Press(VK_DOWN);
    EXPECT_FALSE(IsOpen());
    ClickButton(acting);
    m_pointer.MoveTo(ListBar().GetSafeHwnd(), ListBar().GetRowRect(3).CenterPoint());
    EXPECT_FALSE(IsOpen());
    acting.onHot = [this] { Bar().GetCategory(0)->GetPanel(0)->Remove(IndexOf(kActing)); };
    ClickButton(acting);
    Press(VK_END);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(IndexOf(kActing), -1);
}

TEST_F(ActingList, TheFrameMayGoWhenARowBecomesHot) {
    acting.onHot = [this] { m_frame->DestroyWindow(); };
    ClickButton(acting);
    Press(VK_NEXT);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(ActingList, HotRowsAreToldAndTheirEnd) {
    std::vector<int> hot;
    acting.hot = &hot;
    acting.SelectItem(5);
    ClickButton(acting);
    EXPECT_THAT(hot, IsEmpty()) << "what was selected is no news";
    Press(VK_DOWN);
    Press(VK_DOWN);
    Press(VK_ESCAPE);
    EXPECT_THAT(hot, ElementsAre(6, 7, -1));
}

} // namespace
