// What assistive programs see of the ribbon's pop-ups.
#include "tests/ui/ribbon_access/accessible.h"

#include <gmock/gmock.h>

#include "tests/ui/ribbon_popup/popup_fixture.h"

using ::testing::ElementsAre;

namespace {

class AccessPopup : public RibbonPopupTest {
protected:
    AccessPopup() { m_isInitialized = SUCCEEDED(::CoInitialize(nullptr)); }
    ~AccessPopup() override {
        CMFCRibbonPanelMenu::DismissAll();
        if (m_isInitialized) {
            ::CoUninitialize();
        }
    }
    /// What AccessibleObjectFromWindow gives for the window of the pop-up's bar.
    static Accessible Root() {
        void* object = nullptr;
        EXPECT_EQ(
            ::AccessibleObjectFromWindow(PopupBar(), static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object),
            S_OK);
        return Accessible(static_cast<IAccessible*>(object));
    }
    static std::vector<std::wstring> NamesIn(const Accessible& parent) {
        std::vector<std::wstring> names;
        for (const Accessible& child : parent.Children()) {
            names.push_back(child.Name());
        }
        return names;
    }
    static CRect ScreenRect(const CMFCRibbonBaseElement& element) {
        CRect rect = element.GetRect();
        element.GetParentWnd()->ClientToScreen(rect);
        return rect;
    }

    bool m_isInitialized = false;
};

TEST_F(AccessPopup, AMenuHasItsRowsAndTheNameOfWhatOpenedIt) {
    Click(Shapes());
    const Accessible root = Root();
    EXPECT_EQ(root.Name(), L"Shapes");
    EXPECT_EQ(root.Role(), ROLE_SYSTEM_MENUPOPUP);
    EXPECT_THAT(NamesIn(root), ElementsAre(L"Line", L"Star", L"", L"More", L"Off"));
    const std::vector<Accessible> rows = root.Children();
    EXPECT_EQ(rows[0].Role(), ROLE_SYSTEM_MENUITEM);
    EXPECT_EQ(rows[2].Role(), ROLE_SYSTEM_SEPARATOR);
    EXPECT_EQ(rows[3].Role(), ROLE_SYSTEM_MENUITEM);
    EXPECT_NE(rows[3].State() & STATE_SYSTEM_HASPOPUP, 0);
    EXPECT_NE(rows[4].State() & STATE_SYSTEM_UNAVAILABLE, 0);
    EXPECT_EQ(rows[1].Location(), ScreenRect(SubItem(1)));
    EXPECT_EQ(rows[1].Parent(), root);
}

TEST_F(AccessPopup, TheRowUnderAPointIsFoundAndTheHotOneHasTheFocus) {
    Click(Shapes());
    const Accessible root = Root();
    EXPECT_EQ(root.HitTest(ScreenRect(SubItem(1)).CenterPoint()).value().Name(), L"Star");
    EXPECT_FALSE(root.Focus().has_value());
    PopupBar().Highlight(&SubItem(1));
    ASSERT_TRUE(root.Focus().has_value());
    EXPECT_EQ(root.Focus()->Name(), L"Star");
    EXPECT_NE(root.Focus()->State() & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(root.Children()[0].Select(SELFLAG_TAKEFOCUS), S_OK);
    EXPECT_EQ(PopupBar().GetHighlighted(), &SubItem(0));
}

TEST_F(AccessPopup, TheDefaultActionOfARowRunsItsCommandOrOpensItsMenu) {
    Click(Shapes());
    EXPECT_EQ(Root().Children()[3].DoDefaultAction(), S_OK);
    PumpPending();
    ASSERT_EQ(OpenCount(), 2);
    EXPECT_EQ(Root().Name(), L"More");
    EXPECT_EQ(Root().Children()[0].DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(kCircle));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(AccessPopup, ACollapsedPanelHasItsElements) {
    CMFCRibbonPanel& panel = OpenCollapsedPanel();
    const Accessible root = Root();
    EXPECT_EQ(root.Name(), L"Clipboard");
    EXPECT_EQ(root.Role(), ROLE_SYSTEM_GROUPING);
    EXPECT_EQ(root.ChildCount(), panel.GetCount());
    const Accessible paste = root.ChildAt(1);
    EXPECT_EQ(paste.Name(), L"Paste");
    EXPECT_EQ(paste.Role(), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(paste.Location(), ScreenRect(*panel.GetElement(0)));
    EXPECT_EQ(paste.Parent(), root);
}

TEST_F(AccessPopup, AMinimisedCategoryHasItsPanels) {
    Bar().ToggleMimimizeState();
    PumpPending();
    m_pointer.Click(Bar(), Bar().GetCategory(0)->GetTabRect().CenterPoint());
    ASSERT_EQ(OpenCount(), 1);
    const Accessible root = Root();
    EXPECT_EQ(root.Name(), L"Home");
    EXPECT_THAT(NamesIn(root), ElementsAre(L"Clipboard", L"Text"));
    const Accessible clipboard = root.ChildAt(1);
    EXPECT_EQ(clipboard.Role(), ROLE_SYSTEM_GROUPING);
    EXPECT_EQ(clipboard.Parent(), root);
    EXPECT_EQ(clipboard.ChildAt(1).Name(), L"Paste");
    EXPECT_EQ(clipboard.ChildAt(1).Parent(), clipboard);
}

TEST_F(AccessPopup, ObjectsThatOutliveThePopupSayThatItIsGone) {
    Click(Shapes());
    const Accessible root = Root();
    const Accessible row = root.ChildAt(1);
    CMFCRibbonPanelMenu::DismissAll();
    PumpPending();
    BSTR name = nullptr;
    EXPECT_EQ(root->get_accName(root.Self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->get_accName(row.Self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row.DoDefaultAction(), CO_E_OBJNOTCONNECTED);
}

TEST_F(AccessPopup, TheObjectOfARowThatGoesSaysSo) {
    Click(Shapes());
    const Accessible star = Root().ChildAt(2);
    Shapes().RemoveSubItem(1);
    BSTR name = nullptr;
    EXPECT_EQ(star->get_accName(star.Self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_THAT(NamesIn(Root()), ElementsAre(L"Line", L"", L"More", L"Off"));
}

} // namespace
