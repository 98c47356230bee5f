#include "tests/ui/ribbon_access/accessible.h"

#include <afxribbonpanelmenu.h>

#include <gmock/gmock.h>

using ::testing::ElementsAre;

namespace {

class AccessTreeTest : public AccessTest {
protected:
    CRect OnScreen(CRect rect) {
        Bar().ClientToScreen(rect);
        return rect;
    }

    /// The object is the element's, and what it holds is what the element holds.
    void ExpectIs(const Accessible& object, CMFCRibbonBaseElement& element) {
        EXPECT_EQ(object.Location(), OnScreen(element.GetRect()));
        if (element.GetText()[0] != L'\0') {
            EXPECT_EQ(object.Name(), element.GetText());
        }
        const auto* group = DYNAMIC_DOWNCAST(CMFCRibbonButtonsGroup, &element);
        ASSERT_EQ(object.ChildCount(), group != nullptr ? group->GetCount() : 0);
        for (int place = 0; group != nullptr && place < group->GetCount(); ++place) {
            ExpectIs(object.ChildAt(place + 1), *group->GetButton(place));
            EXPECT_EQ(object.ChildAt(place + 1).Parent(), object);
        }
    }
};

TEST_F(AccessTreeTest, TheBarHoldsItsPartsInTheOrderOfTheScreen) {
    const Accessible root = Root();
    ASSERT_TRUE(root);
    EXPECT_EQ(root.Role(), ROLE_SYSTEM_TOOLBAR);
    EXPECT_EQ(root.Name(), L"Ribbon");
    std::vector<LONG> roles;
    for (const Accessible& part : root.Children()) {
        roles.push_back(part.Role());
        EXPECT_EQ(part.Parent(), root);
    }
    EXPECT_THAT(roles, ElementsAre(ROLE_SYSTEM_TOOLBAR, ROLE_SYSTEM_PAGETABLIST, ROLE_SYSTEM_PROPERTYPAGE));
    CRect client;
    Bar().GetClientRect(client);
    EXPECT_EQ(root.Location(), OnScreen(client));
}

TEST_F(AccessTreeTest, TheParentOfTheBarIsItsWindow) {
    const Accessible window = Root().Parent();
    ASSERT_TRUE(window);
    HWND handle = nullptr;
    EXPECT_EQ(::WindowFromAccessibleObject(window.operator->(), &handle), S_OK);
    EXPECT_EQ(handle, Bar().GetSafeHwnd());
}

TEST_F(AccessTreeTest, TheTabsAreThoseThatAreShown) {
    Bar().AddCategory(L"Hidden", 0, 0);
    Bar().ShowCategory(2, FALSE);
    const Accessible tabs = Part(ROLE_SYSTEM_PAGETABLIST);
    ASSERT_EQ(tabs.ChildCount(), 2);
    for (int place = 0; place < 2; ++place) {
        const Accessible tab = tabs.ChildAt(place + 1);
        EXPECT_EQ(tab.Role(), ROLE_SYSTEM_PAGETAB);
        EXPECT_EQ(tab.Name(), Bar().GetCategory(place)->GetName());
        EXPECT_EQ(tab.Location(), OnScreen(Bar().GetCategory(place)->GetTabRect()));
        EXPECT_EQ((tab.State() & STATE_SYSTEM_SELECTED) != 0, place == 0);
    }
}

TEST_F(AccessTreeTest, ThePanelsAndElementsAreTheActiveCategorys) {
    for (int index = 0; index < 2; ++index) {
        Bar().SetActiveCategory(Bar().GetCategory(index));
        CMFCRibbonCategory& category = *Bar().GetCategory(index);
        const Accessible page = Part(ROLE_SYSTEM_PROPERTYPAGE);
        EXPECT_EQ(page.Name(), category.GetName());
        EXPECT_EQ(page.Location(), OnScreen(category.GetRect()));
        ASSERT_EQ(page.ChildCount(), category.GetPanelCount());
        for (int place = 0; place < category.GetPanelCount(); ++place) {
            CMFCRibbonPanel& panel = *category.GetPanel(place);
            const Accessible grouping = page.ChildAt(place + 1);
            EXPECT_EQ(grouping.Role(), ROLE_SYSTEM_GROUPING);
            EXPECT_EQ(grouping.Name(), panel.GetName());
            EXPECT_EQ(grouping.Location(), OnScreen(panel.GetRect()));
            EXPECT_EQ(grouping.Parent(), page);
            ASSERT_EQ(grouping.ChildCount(), panel.GetCount());
            for (int element = 0; element < panel.GetCount(); ++element) {
                ExpectIs(grouping.ChildAt(element + 1), *panel.GetElement(element));
                EXPECT_EQ(grouping.ChildAt(element + 1).Parent(), grouping);
            }
        }
    }
}

TEST_F(AccessTreeTest, ElementsThatAreTurnedOffAreLeftOut) {
    Element(commands::cut).SetVisible(FALSE);
    Bar().RecalcLayout();
    std::vector<std::wstring> names;
    for (const Accessible& element : Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1).Children()) {
        names.push_back(element.Name());
    }
    EXPECT_THAT(names, ElementsAre(L"Paste", L"Copy", L"Format Painter"));
}

TEST_F(AccessTreeTest, ACollapsedPanelHoldsItsButton) {
    CMFCRibbonCategory* many = AddManyButtons(60, 12);
    Bar().SetActiveCategory(many);
    SetClientWidth(300);
    ASSERT_TRUE(many->GetPanel(0)->IsCollapsed());
    const Accessible grouping = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1);
    ASSERT_EQ(grouping.ChildCount(), 1);
    EXPECT_EQ(grouping.ChildAt(1).Role(), ROLE_SYSTEM_BUTTONMENU);
    EXPECT_EQ(grouping.ChildAt(1).Name(), L"Panel");
}

TEST_F(AccessTreeTest, TheQuickAccessToolbarHoldsItsCopiesAndItsMenu) {
    Bar().SetQuickAccessCommands(CommandList{commands::paste, commands::bold});
    const Accessible toolbar = Root().ChildAt(1);
    EXPECT_EQ(toolbar.Name(), L"Quick Access Toolbar");
    ASSERT_EQ(toolbar.ChildCount(), 3);
    EXPECT_EQ(toolbar.ChildAt(1).Name(), L"Paste");
    EXPECT_EQ(toolbar.ChildAt(1).Parent(), toolbar);
    EXPECT_EQ(toolbar.ChildAt(3).Name(), L"Customize Quick Access Toolbar");
}

TEST_F(AccessTreeTest, TheMoreButtonIsInTheToolbarAndOpensTheRest) {
    AddManyButtons(40, 20);
    Bar().SetQuickAccessCommands(CommandList(ManyCommands(1)));
    EXPECT_EQ(Root().ChildAt(1).ChildCount(), 2) << "there is room";
    Bar().SetQuickAccessCommands(CommandList(ManyCommands(40)));
    SetClientWidth(300);
    const Accessible toolbar = Root().ChildAt(1);
    ASSERT_EQ(toolbar.ChildCount(), 42);
    const Accessible more = toolbar.ChildAt(41);
    EXPECT_EQ(more.Name(), L"More Controls");
    EXPECT_EQ(more.Parent(), toolbar);
    EXPECT_EQ(*Root().HitTest(more.Location().CenterPoint()), more);
    ASSERT_EQ(more.DoDefaultAction(), S_OK);
    PumpPending();
    ASSERT_NE(CMFCRibbonPanelMenu::GetDeepest(), nullptr);
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
    ASSERT_EQ(more.Select(SELFLAG_TAKEFOCUS), S_OK);
    EXPECT_EQ(*Root().Focus(), more);
}

TEST_F(AccessTreeTest, TheButtonsThatScrollTheTabsStandBesideThemWhileTheyAreNeeded) {
    for (int index = 0; index < 30; ++index) {
        Bar().AddCategory(L"Another category", 0, 0);
    }
    SetClientWidth(300);
    const Accessible tabs = Part(ROLE_SYSTEM_PAGETABLIST);
    const Accessible right = tabs.ChildAt(tabs.ChildCount());
    EXPECT_EQ(right.Name(), L"Scroll Right");
    EXPECT_EQ(right.Role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(right.Parent(), tabs);
    EXPECT_EQ(*Root().HitTest(right.Location().CenterPoint()), right);
    ASSERT_FALSE(Bar().GetCategory(0)->GetTabRect().IsRectEmpty());
    ASSERT_EQ(right.DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_TRUE(Bar().GetCategory(0)->GetTabRect().IsRectEmpty());
    EXPECT_EQ(tabs.ChildAt(1).Name(), L"Scroll Left");
}

/// The bar in the caption of its frame.
class CaptionAccessTest : public AccessTest {
protected:
    CaptionAccessTest() {
        m_frame->DestroyWindow();
        PumpPending();
        m_frame = new RibbonFrame(TRUE);
        if (!m_frame->Create(nullptr, L"Ribbon", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 600))) {
            throw std::runtime_error("the frame could not be created");
        }
        m_window = m_frame->GetSafeHwnd();
        FillBar();
        Bar().RecalcLayout();
        PumpPending();
    }
    std::optional<Accessible> Find(const std::wstring& name) {
        for (Accessible& child : Root().Children()) {
            if (child.Name() == name) {
                return std::move(child);
            }
        }
        return std::nullopt;
    }
};

TEST_F(CaptionAccessTest, TheButtonsOfTheCaptionArePartsOfTheBar) {
    for (const wchar_t* name : {L"Minimize", L"Maximize", L"Close"}) {
        const std::optional<Accessible> button = Find(name);
        ASSERT_TRUE(button) << name;
        EXPECT_EQ(button->Role(), ROLE_SYSTEM_PUSHBUTTON);
        EXPECT_EQ(button->Parent(), Root());
        EXPECT_EQ(*Root().HitTest(button->Location().CenterPoint()), *button);
    }
    ASSERT_EQ(Find(L"Maximize")->DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_TRUE(m_frame->IsZoomed());
}

TEST_F(CaptionAccessTest, TheCaptionOfAContextIsAPartWhileTheContextIsShown) {
    Bar().AddContextCategory(L"Drawing", L"Tools", 5, AFX_CategoryColor_Red, 0, 0)->AddPanel(L"Panel");
    PumpPending();
    EXPECT_FALSE(Find(L"Tools"));
    Bar().ShowContextCategories(5);
    PumpPending();
    const std::optional<Accessible> caption = Find(L"Tools");
    ASSERT_TRUE(caption);
    EXPECT_EQ(*Root().HitTest(caption->Location().CenterPoint()), *caption);
    ASSERT_EQ(caption->DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_EQ(CString(Bar().GetActiveCategory()->GetName()), L"Drawing");
}

TEST_F(AccessTreeTest, TheHitTestIsTheBars) {
    const Accessible root = Root();
    CRect client;
    Bar().GetClientRect(client);
    int elements = 0;
    for (int x = 0; x < client.right; x += 5) {
        for (int y = 0; y < client.bottom; y += 4) {
            CPoint screen(x, y);
            Bar().ClientToScreen(&screen);
            const std::optional<Accessible> object = root.HitTest(screen);
            ASSERT_TRUE(object);
            CMFCRibbonBaseElement* hit = Bar().HitTest(CPoint(x, y), TRUE);
            if (hit == nullptr) {
                ASSERT_THAT(object->Role(), ::testing::AnyOf(ROLE_SYSTEM_TOOLBAR, ROLE_SYSTEM_PAGETABLIST,
                                                             ROLE_SYSTEM_PROPERTYPAGE, ROLE_SYSTEM_GROUPING))
                    << x << ' ' << y;
                continue;
            }
            ++elements;
            ASSERT_EQ(object->Location(), OnScreen(hit->GetRect())) << x << ' ' << y;
        }
    }
    EXPECT_GT(elements, 500);
    EXPECT_FALSE(root.HitTest(CPoint(-5000, 5)));
}

TEST_F(AccessTreeTest, NavigationGoesThroughChildrenAndSiblings) {
    const Accessible panel = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1);
    std::vector<std::wstring> names;
    for (std::optional<Accessible> child = panel.Navigate(NAVDIR_FIRSTCHILD); child;
         child = child->Navigate(NAVDIR_NEXT)) {
        names.push_back(child->Name());
    }
    EXPECT_THAT(names, ElementsAre(L"Paste", L"Cut", L"Copy", L"Format Painter"));
    EXPECT_EQ(*panel.Navigate(NAVDIR_LASTCHILD), panel.ChildAt(4));
    EXPECT_EQ(*panel.ChildAt(2).Navigate(NAVDIR_PREVIOUS), panel.ChildAt(1));
    EXPECT_FALSE(panel.ChildAt(1).Navigate(NAVDIR_PREVIOUS));
    EXPECT_FALSE(panel.ChildAt(1).Navigate(NAVDIR_FIRSTCHILD));
    EXPECT_EQ(*panel.Navigate(NAVDIR_RIGHT), Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(2));
}

TEST_F(AccessTreeTest, TheBarDescribesItsPartsToDerivedBars) {
    struct Opened : CMFCRibbonBar {
        using CMFCRibbonBar::m_AccData;
    };
    EXPECT_TRUE(Bar().OnSetAccData(0));
    EXPECT_EQ((Bar().*(&Opened::m_AccData)).m_strName, L"Ribbon");
    EXPECT_TRUE(Bar().OnSetAccData(2));
    EXPECT_EQ((Bar().*(&Opened::m_AccData)).m_nRole, ROLE_SYSTEM_PAGETABLIST);
    EXPECT_FALSE(Bar().OnSetAccData(4));
}

TEST_F(AccessTreeTest, ALaunchButtonIsTheLastOfItsPanelAndHasItsName) {
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
    panel.EnableLaunchButton(commands::firstHandled + 300);
    Bar().RecalcLayout();
    const Accessible grouping = Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1);
    ASSERT_EQ(grouping.ChildCount(), panel.GetCount() + 1);
    const Accessible button = grouping.ChildAt(grouping.ChildCount());
    EXPECT_EQ(button.Role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(button.Name(), L"Clipboard");
    EXPECT_EQ(button.Action(), L"Press");
    EXPECT_EQ(button.Parent(), grouping);
    EXPECT_EQ(button, *Root().HitTest(button.Location().CenterPoint()));
    ASSERT_EQ(button.DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_EQ(m_frame->commands, std::vector<UINT>{commands::firstHandled + 300});
}

} // namespace
