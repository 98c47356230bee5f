#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

TEST_F(RibbonBarTest, ACategoryIsCreatedFromItsRuntimeClassAndThenInitialised) {
    CMFCRibbonCategory* category = Bar().GetCategory(1);
    EXPECT_TRUE(category->IsKindOf(RUNTIME_CLASS(HostCategory)));
    EXPECT_STREQ(category->GetName(), L"View");
    EXPECT_EQ(category->GetParentRibbonBar(), &Bar());
    EXPECT_EQ(Bar().AddCategory(L"Wrong", 0, 0, CSize(16, 16), CSize(32, 32), -1, RUNTIME_CLASS(CMFCRibbonButton)),
              nullptr);
    EXPECT_EQ(Bar().GetCategoryCount(), 2);
}

TEST_F(RibbonBarTest, ACategoryGoesToItsPosition) {
    CMFCRibbonCategory* first = Bar().AddCategory(L"First", 0, 0, CSize(16, 16), CSize(32, 32), 0);
    EXPECT_EQ(Bar().GetCategoryIndex(first), 0);
    EXPECT_EQ(Bar().GetCategoryCount(), 3);
    EXPECT_STREQ(Bar().GetCategory(1)->GetName(), L"Home");
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1)) << "adding does not change what is shown";
    EXPECT_EQ(Bar().GetCategory(3), nullptr);
    EXPECT_EQ(Bar().GetCategory(-1), nullptr);
}

TEST_F(RibbonBarTest, AHiddenCategoryCannotBecomeActive) {
    Bar().ShowCategory(1, FALSE);
    EXPECT_EQ(Bar().GetVisibleCategoryCount(), 1);
    EXPECT_FALSE(Bar().SetActiveCategory(Bar().GetCategory(1)));
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
    Bar().ShowCategory(1, TRUE);
    EXPECT_TRUE(Bar().SetActiveCategory(Bar().GetCategory(1)));
    EXPECT_TRUE(Bar().GetCategory(1)->IsActive());
    EXPECT_FALSE(Bar().GetCategory(0)->IsActive());
}

TEST_F(RibbonBarTest, NeitherTheMainCategoryNorAStrangeOneCanBecomeActive) {
    CMFCRibbonCategory* active = Bar().GetActiveCategory();
    Bar().AddMainCategory(L"Main", 0, 0);
    ASSERT_NE(Bar().GetMainCategory(), nullptr);
    EXPECT_FALSE(Bar().SetActiveCategory(Bar().GetMainCategory()));
    EXPECT_FALSE(Bar().SetActiveCategory(nullptr));
    CMFCRibbonBar other;
    EXPECT_FALSE(Bar().SetActiveCategory(other.AddCategory(L"Elsewhere", 0, 0)));
    EXPECT_EQ(Bar().GetActiveCategory(), active);
}

TEST_F(RibbonBarTest, HidingTheActiveCategoryActivatesAnother) {
    Bar().ShowCategory(0, FALSE);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
    Bar().ShowCategory(1, FALSE);
    EXPECT_EQ(Bar().GetActiveCategory(), nullptr);
    Bar().ShowCategory(0, TRUE);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
}

TEST_F(RibbonBarTest, AHiddenCategoryHasNoTabAndIsNotSearched) {
    Bar().ShowCategory(1, FALSE);
    Bar().RecalcLayout();
    EXPECT_TRUE(Bar().GetCategory(1)->GetTabRect().IsRectEmpty());
    EXPECT_EQ(Bar().FindByID(commands::find), nullptr);
    EXPECT_NE(Bar().FindByID(commands::find, FALSE), nullptr);
}

TEST_F(RibbonBarTest, AHiddenElementHidesNoVisibleOneFromTheSearch) {
    constexpr UINT id = commands::firstHandled + 500;
    CMFCRibbonButton* shown[2] = {};
    const auto add = [&](const auto& put, int place) {
        auto* hidden = new CMFCRibbonButton(id + static_cast<UINT>(place), L"Hidden");
        hidden->SetVisible(FALSE);
        shown[place] = new CMFCRibbonButton(id + static_cast<UINT>(place), L"Shown");
        hidden->SetData(70 + place);
        shown[place]->SetData(70 + place);
        put(hidden);
        put(shown[place]);
    };
    CMFCRibbonPanel& panel = *Bar().GetCategory(0)->GetPanel(0);
    add([&](CMFCRibbonBaseElement* element) { panel.Add(element); }, 0);
    auto* group = new CMFCRibbonButtonsGroup;
    add([&](CMFCRibbonBaseElement* element) { group->AddButton(element); }, 1);
    Bar().AddToTabs(group);
    for (int place = 0; place < 2; ++place) {
        const UINT wanted = id + static_cast<UINT>(place);
        EXPECT_EQ(Bar().FindByID(wanted), shown[place]) << place;
        EXPECT_EQ(Bar().FindByData(70 + place), shown[place]) << place;
        EXPECT_STREQ(Bar().FindByID(wanted, FALSE)->GetText(), L"Hidden") << "the first of all";
        shown[place]->SetVisible(FALSE);
        EXPECT_EQ(Bar().FindByID(wanted), nullptr) << place;
        EXPECT_EQ(Bar().FindByData(70 + place), nullptr) << place;
    }
}

TEST_F(RibbonBarTest, APanelThatIsTakenOutMayOutliveItsCategory) {
    CMFCRibbonCategory& category = *Bar().GetCategory(0);
    CMFCRibbonPanel* text = category.GetPanel(1);
    Bar().SetQuickAccessCommands(CommandList{commands::bold});
    m_pointer.MoveTo(Bar(), CenterOf(commands::italic));
    ASSERT_TRUE(Element(commands::italic).IsHighlighted());
    CMFCRibbonBaseElement& italic = Element(commands::italic);
    ASSERT_TRUE(category.RemovePanel(1, FALSE));
    EXPECT_EQ(text->GetParentCategory(), nullptr);
    EXPECT_EQ(italic.GetParentRibbonBar(), nullptr);
    EXPECT_TRUE(Bar().IsQATEmpty());
    Bar().RemoveCategory(0);
    delete text;
    m_pointer.MoveTo(Bar(), Center(Bar().GetCategory(0)->GetTabRect()));
    PumpPending();
    EXPECT_EQ(Bar().FindByID(commands::italic), nullptr);
}

TEST_F(RibbonBarTest, AButtonThatGetsOrLosesItsMenuIsLaidOutAnew) {
    auto* button = new CMFCRibbonButton(commands::firstHandled + 510, L"Opens");
    Bar().GetCategory(0)->GetPanel(0)->Add(button);
    PumpPending();
    const auto width = [&] {
        Bar().EnsureLayout();
        return button->GetRect().Width();
    };
    const int plain = width();
    ASSERT_GT(plain, 0);
    button->AddSubItem(new CMFCRibbonButton(commands::firstHandled + 511, L"Item"));
    const int withArrow = width();
    EXPECT_GT(withArrow, plain);
    EXPECT_FALSE(button->GetMenuRect().IsRectEmpty());
    button->RemoveSubItem(0);
    EXPECT_EQ(width(), plain);
    CMenu menu;
    menu.CreatePopupMenu();
    button->SetMenu(menu);
    EXPECT_EQ(width(), withArrow);
    button->SetMenu(static_cast<HMENU>(nullptr));
    EXPECT_EQ(width(), plain);
}

TEST_F(RibbonBarTest, RemovingTheActiveCategoryDeletesItAndActivatesAnother) {
    EXPECT_FALSE(Bar().RemoveCategory(7));
    EXPECT_TRUE(Bar().RemoveCategory(0));
    EXPECT_EQ(Bar().GetCategoryCount(), 1);
    EXPECT_STREQ(Bar().GetActiveCategory()->GetName(), L"View");
    EXPECT_EQ(Bar().FindByID(commands::paste, FALSE), nullptr);
    Bar().RemoveAllCategories();
    EXPECT_EQ(Bar().GetActiveCategory(), nullptr);
    PumpPending();
}

TEST_F(RibbonBarTest, OnlyTheActiveCategorysElementsHaveAPlace) {
    EXPECT_FALSE(Element(commands::paste).GetRect().IsRectEmpty());
    EXPECT_TRUE(Element(commands::find).GetRect().IsRectEmpty());
    Bar().SetActiveCategory(Bar().GetCategory(1));
    PumpPending();
    EXPECT_TRUE(Element(commands::paste).GetRect().IsRectEmpty());
    EXPECT_FALSE(Element(commands::find).GetRect().IsRectEmpty());
}

TEST_F(RibbonBarTest, ContextCategoriesAppearWithTheirContext) {
    CMFCRibbonCategory* tools = Bar().AddContextCategory(L"Tools", L"Picture", 17, AFX_CategoryColor_Red, 0, 0);
    ASSERT_NE(tools, nullptr);
    EXPECT_FALSE(tools->IsVisible());
    EXPECT_FALSE(Bar().ActivateContextCategory(17));
    Bar().ShowContextCategories(17);
    EXPECT_TRUE(Bar().ActivateContextCategory(17));
    EXPECT_EQ(Bar().GetActiveCategory(), tools);
    CString name;
    EXPECT_TRUE(Bar().GetContextName(17, name));
    EXPECT_STREQ(name, L"Picture");
    EXPECT_TRUE(Bar().HideAllContextCategories());
    EXPECT_FALSE(Bar().HideAllContextCategories());
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
}

TEST_F(RibbonBarTest, APanelsElementsAreAddedReplacedAndRemoved) {
    CMFCRibbonPanel* panel = Bar().GetCategory(1)->GetPanel(0);
    EXPECT_FALSE(panel->Insert(nullptr, 0));
    EXPECT_TRUE(panel->Insert(new CMFCRibbonButton(commands::bold, L"New"), 0));
    EXPECT_EQ(panel->GetElement(0)->GetParentPanel(), panel);
    EXPECT_EQ(panel->GetElement(0)->GetParentCategory(), Bar().GetCategory(1));
    EXPECT_TRUE(panel->ReplaceByID(commands::bold, new CMFCRibbonButton(commands::italic, L"Newer")));
    EXPECT_EQ(panel->GetElement(0)->GetID(), commands::italic);
    std::unique_ptr<CMFCRibbonBaseElement> kept(panel->GetElement(0));
    EXPECT_TRUE(panel->Remove(0, FALSE));
    EXPECT_EQ(kept->GetParentPanel(), nullptr);
    EXPECT_FALSE(panel->Remove(5));
    EXPECT_EQ(panel->GetCount(), 2);
    panel->RemoveAll();
    EXPECT_EQ(panel->GetCount(), 0);
    PumpPending();
}

// ---- pop-ups of the category that is left

class LeftCategory : public RibbonBarTest {
protected:
    /// A panel of the active category, in its pop-up.
    LeftCategory() {
        CMFCRibbonPanel& panel = Collapse(1);
        m_pointer.Click(Bar(), panel.GetDefaultButton().GetRect().CenterPoint());
    }
    CMFCRibbonCategory* Home() { return Bar().GetCategory(0); }
    CMFCRibbonCategory* View() { return Bar().GetCategory(1); }
};

TEST_F(LeftCategory, ThePopUpOfItsPanelClosesWhenAnotherBecomesActive) {
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_TRUE(Bar().SetActiveCategory(View()));
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(Bar().GetActiveCategory(), View());
}

TEST_F(LeftCategory, ThePopUpOfItsPanelClosesWhenItIsHidden) {
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    Bar().ShowCategory(0, FALSE);
    EXPECT_EQ(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_EQ(Bar().GetActiveCategory(), View());
}

TEST_F(LeftCategory, ItsPopUpStaysWhileTheCategoryStays) {
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    EXPECT_TRUE(Bar().SetActiveCategory(Home()));
    EXPECT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    CMFCPopupMenu::CloseAll();
}

TEST_F(LeftCategory, AFrameThatIsDestroyedWhenThePopUpClosesIsNotTouched) {
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    m_frame->onPopupClosed = [this] { m_frame->DestroyWindow(); };
    Bar().ShowCategory(0, FALSE);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(LeftCategory, ACategoryThatIsRemovedWhenThePopUpClosesDoesNotBecomeActive) {
    ASSERT_NE(CMFCPopupMenu::GetActiveMenu(), nullptr);
    m_frame->onPopupClosed = [this] { Bar().RemoveCategory(1); };
    Bar().SetActiveCategory(View());
    EXPECT_EQ(Bar().GetCategoryCount(), 1);
    EXPECT_EQ(Bar().GetActiveCategory(), Home());
}

} // namespace
