// Hosts that take away what is in use: while pop-ups are open, keys lead through the ribbon, a button is held.
#include <gmock/gmock.h>

#include <cstring>
#include <functional>
#include <initializer_list>

#include "tests/support/churn_memory.h"
#include "tests/support/counted_faults.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

/// Its memory is kept when it is gone, with nothing in it that works: whoever still walks through it comes to a fault.
class BuriedCategory : public CMFCRibbonCategory {
    DECLARE_DYNCREATE(BuriedCategory)

public:
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size) { std::memset(memory, 0xDD, size); }
};

class BuriedPanel : public CMFCRibbonPanel {
    DECLARE_DYNCREATE(BuriedPanel)

public:
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size) { std::memset(memory, 0xDD, size); }
};

class BuriedButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    static void* operator new(std::size_t size) { return ::operator new(size); }
    static void operator delete(void* memory, std::size_t size) { std::memset(memory, 0xDD, size); }
};

IMPLEMENT_DYNCREATE(BuriedCategory, CMFCRibbonCategory)
IMPLEMENT_DYNCREATE(BuriedPanel, CMFCRibbonPanel)

constexpr UINT kFirst = 3000; // buttons; a category has four in two panels
constexpr UINT kOnTabs = 3100;

class Removal : public RibbonPopupTest {
protected:
    Removal() {
        Bar().RemoveAllCategories();
        for (int number = 0; number < 3; ++number) {
            CMFCRibbonCategory* category =
                Bar().AddCategory(L"Buried", 0, 0, {16, 16}, {32, 32}, -1, RUNTIME_CLASS(BuriedCategory));
            category->SetKeys(number == 0 ? L"A" : number == 1 ? L"B" : L"C");
            for (int place = 0; place < 2; ++place) {
                CMFCRibbonPanel* panel = category->AddPanel(L"Panel", nullptr, RUNTIME_CLASS(BuriedPanel));
                for (int button = 0; button < 2; ++button) {
                    const UINT id = kFirst + static_cast<UINT>(number * 4 + place * 2 + button);
                    auto* added = new BuriedButton(id, L"Button");
                    added->AddSubItem(new BuriedButton(id + 500, L"Row"));
                    added->SetKeys(place == 0 ? (button == 0 ? L"P" : L"Q") : (button == 0 ? L"R" : L"S"));
                    panel->Add(added);
                }
            }
        }
        for (UINT id = kOnTabs; id < kOnTabs + 3; ++id) {
            auto* button = new BuriedButton(id, L"T");
            button->AddSubItem(new BuriedButton(id + 500, L"Row"));
            button->SetKeys(id == kOnTabs ? L"X" : id == kOnTabs + 1 ? L"Y" : L"Z");
            Bar().AddToTabs(button);
        }
        Bar().RecalcLayout();
        PumpPending();
    }

    /// The letters of key tips, from those of the bar on.
    void Lead(const wchar_t* letters) {
        for (; *letters != L'\0'; ++letters) {
            EXPECT_TRUE(Bar().TranslateChar(*letters)) << static_cast<char>(*letters);
        }
        PumpPending();
    }
    /// The focus on a tab, then keys that walk.
    void Walk(std::initializer_list<UINT> keys) {
        Bar().OnSysKeyDown(m_frame, VK_F10, 0);
        for (const UINT key : keys) {
            Keys(Bar()).Press(key);
        }
        PumpPending();
    }
    void Minimise() {
        Bar().ToggleMimimizeState();
        PumpPending();
    }
    /// Removes, lets everything run that was waiting, and asks who is there: nobody may come to what is gone.
    void ExpectNoFault(const std::function<void()>& remove) {
        const CountedFaults faults;
        remove();
        ChurnMemory();
        EXPECT_EQ(OpenCount(), 0);
        EXPECT_EQ(Bar().GetKeyboardNavigationLevel(), -1);
        EXPECT_EQ(::GetCapture(), nullptr);
        PumpPending();
        Bar().RecalcLayout();
        Bar().GetFocused();
        Bar().GetDroppedDown();
        Press(VK_DOWN);
        m_pointer.MoveTo(Bar(), CPoint(60, 60));
        m_pointer.Release();
        PumpPending();
        EXPECT_EQ(faults.Get(), 0);
    }
};

TEST_F(Removal, OfTheCategoryWhosePopupTheKeyboardHasOpened) {
    Minimise();
    Lead(L"B");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { EXPECT_TRUE(Bar().RemoveCategory(1)); });
    EXPECT_EQ(Bar().GetCategoryCount(), 2);
}

TEST_F(Removal, OfAllCategoriesWhileTheSecondOneIsOpen) {
    Minimise();
    Lead(L"B");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { Bar().RemoveAllCategories(); });
}

TEST_F(Removal, OfThePanelWhoseElementsThePopupOfACategoryShows) {
    Minimise();
    Lead(L"B");
    ExpectNoFault([this] { EXPECT_TRUE(Bar().GetCategory(1)->RemovePanel(0)); });
    EXPECT_EQ(Bar().GetCategory(1)->GetPanelCount(), 1);
}

TEST_F(Removal, OfAPanelWhoseButtonsRowsTheKeyboardHasOpened) {
    Lead(L"AP");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { EXPECT_TRUE(Bar().GetCategory(0)->RemovePanel(0)); });
}

TEST_F(Removal, OfTheCategoryWhoseLettersAreShown) {
    Lead(L"A");
    ASSERT_EQ(Bar().GetKeyboardNavigationLevel(), 1);
    ExpectNoFault([this] { Bar().RemoveCategory(0); });
}

TEST_F(Removal, OfTheElementThatHasTheFocus) {
    Walk({VK_DOWN});
    ASSERT_NE(Bar().GetFocused(), nullptr);
    ExpectNoFault([this] { Bar().RemoveAllCategories(); });
}

TEST_F(Removal, OfAllFromTheTabsWhileTheRowsOfOneAreOpen) {
    Lead(L"Y");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { Bar().RemoveAllFromTabs(); });
}

TEST_F(Removal, OfTheCommandsOfTheQuickAccessToolbarWhileTheRowsOfOneAreOpen) {
    Bar().SetQuickAccessCommands(CommandList{kFirst, kFirst + 1, kFirst + 2});
    Lead(L"2");
    ASSERT_EQ(OpenCount(), 1);
    const CountedFaults faults;
    Bar().SetQuickAccessCommands(CommandList{});
    ChurnMemory();
    PumpPending();
    EXPECT_EQ(OpenCount(), 0);
    Bar().GetFocused();
    EXPECT_EQ(faults.Get(), 0);
}

TEST_F(Removal, OfTheOriginalsOfCopiesWhoseRowsAreOpen) {
    Bar().SetQuickAccessCommands(CommandList{kFirst, kFirst + 1, kFirst + 2});
    Lead(L"2");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { Bar().RemoveAllCategories(); });
}

TEST_F(Removal, OfTheMainCategoryWhileItIsOpen) {
    CMFCRibbonApplicationButton button;
    button.SetKeys(L"F");
    Bar().SetApplicationButton(&button, CSize(60, 24));
    CMFCRibbonMainPanel* panel = Bar().AddMainCategory(L"File", 0, 0);
    panel->Add(new BuriedButton(kFirst + 700, L"Row"));
    Bar().RecalcLayout();
    Lead(L"F");
    ASSERT_EQ(OpenCount(), 1);
    ExpectNoFault([this] { Bar().AddMainCategory(L"Other", 0, 0); });
    Bar().SetApplicationButton(nullptr, CSize(0, 0));
}

TEST_F(Removal, OfTheContextsWhoseCaptionHasTheFocus) {
    Bar().AddContextCategory(L"One", L"Context", 7, AFX_CategoryColor_Red, 0, 0, {16, 16}, {32, 32},
                             RUNTIME_CLASS(BuriedCategory));
    Bar().ShowContextCategories(7);
    Bar().ActivateContextCategory(7);
    Bar().RecalcLayout();
    Walk({VK_UP, VK_UP});
    ExpectNoFault([this] { Bar().RemoveAllCategories(); });
}

TEST_F(Removal, OfWhatIsPressed) {
    m_pointer.MoveTo(Bar(), Bar().GetCategory(1)->GetTabRect().CenterPoint());
    m_pointer.Press();
    ExpectNoFault([this] { Bar().RemoveCategory(1); });
}

TEST_F(Removal, OfWhatTheTooltipIsShownFor) {
    m_pointer.MoveTo(Bar(), CenterOf(kFirst));
    PumpPending();
    ExpectNoFault([this] { Bar().RemoveAllCategories(); });
}

TEST_F(Removal, OfACategoryThatIsNotShownLeavesAMenuOpen) {
    Bar().OnShowRibbonContextMenu(&Bar(), 50, 50, nullptr);
    ASSERT_EQ(OpenCount(), 1);
    Bar().RemoveCategory(2);
    EXPECT_EQ(OpenCount(), 1);
}

} // namespace
