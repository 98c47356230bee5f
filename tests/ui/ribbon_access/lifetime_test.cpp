#include "tests/ui/ribbon_access/accessible.h"

namespace {

class AccessLifetimeTest : public AccessTest {
protected:
    /// Every call says that the object is not connected any more, and gives nothing.
    static void ExpectGone(const Accessible& object) {
        const VARIANT self = Accessible::Child(CHILDID_SELF);
        BSTR text = nullptr;
        VARIANT variant;
        IDispatch* dispatch = nullptr;
        long number = 0;
        const HRESULT results[] = {
            object->get_accName(self, &text),
            object->get_accValue(self, &text),
            object->get_accDescription(self, &text),
            object->get_accHelp(self, &text),
            object->get_accKeyboardShortcut(self, &text),
            object->get_accDefaultAction(self, &text),
            object->get_accRole(self, &variant),
            object->get_accState(self, &variant),
            object->get_accFocus(&variant),
            object->get_accSelection(&variant),
            object->get_accParent(&dispatch),
            object->get_accChild(self, &dispatch),
            object->get_accChildCount(&number),
            object->get_accHelpTopic(&text, self, &number),
            object->accLocation(&number, &number, &number, &number, self),
            object->accNavigate(NAVDIR_NEXT, self, &variant),
            object->accHitTest(1, 1, &variant),
            object->accSelect(SELFLAG_TAKEFOCUS, self),
            object->accDoDefaultAction(self),
            object->put_accName(self, nullptr),
            object->put_accValue(self, nullptr),
        };
        for (const HRESULT result : results) {
            EXPECT_EQ(result, CO_E_OBJNOTCONNECTED);
        }
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(dispatch, nullptr);
    }
};

TEST_F(AccessLifetimeTest, AnObjectEndsWithItsElement) {
    const Accessible paste = Of(commands::paste);
    const Accessible cut = Of(commands::cut);
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    ExpectGone(paste);
    EXPECT_EQ(cut.Name(), L"Cut");
}

TEST_F(AccessLifetimeTest, AnElementThatIsTakenOutEndsItsObjectToo) {
    const Accessible paste = Of(commands::paste);
    CMFCRibbonBaseElement* element = &Element(commands::paste);
    Bar().GetCategory(0)->GetPanel(0)->Remove(0, FALSE);
    ExpectGone(paste);
    delete element;
}

TEST_F(AccessLifetimeTest, CategoryAndPanelsEndWithTheirCategory) {
    const Accessible page = Part(ROLE_SYSTEM_PROPERTYPAGE);
    const Accessible panel = page.ChildAt(2);
    const Accessible group = panel.ChildAt(1);
    const Accessible bold = group.ChildAt(1);
    const Accessible tab = Part(ROLE_SYSTEM_PAGETABLIST).ChildAt(1);
    const Accessible tabs = Part(ROLE_SYSTEM_PAGETABLIST);
    Bar().RemoveCategory(0);
    for (const Accessible* object : {&page, &panel, &group, &bold, &tab}) {
        ExpectGone(*object);
    }
    EXPECT_EQ(tabs.ChildCount(), 1);
}

TEST_F(AccessLifetimeTest, TheApplicationButtonsObjectEndsWhenTheBarLosesIt) {
    CMFCRibbonApplicationButton button;
    button.SetText(L"File");
    Bar().SetApplicationButton(&button, CSize(40, 30));
    Bar().RecalcLayout();
    const Accessible object = Root().ChildAt(1);
    EXPECT_EQ(object.Name(), L"File");
    Bar().SetApplicationButton(nullptr, CSize(0, 0));
    ExpectGone(object);
}

TEST_F(AccessLifetimeTest, AllObjectsEndWithTheWindow) {
    const Accessible root = Root();
    const Accessible paste = Of(commands::paste);
    const Accessible tabs = Part(ROLE_SYSTEM_PAGETABLIST);
    m_frame->DestroyWindow();
    ExpectGone(root);
    ExpectGone(paste);
    ExpectGone(tabs);
}

TEST_F(AccessLifetimeTest, TheSameNodeIsTheSameObjectWhileSomebodyHoldsIt) {
    const Accessible paste = Of(commands::paste);
    EXPECT_EQ(Of(commands::paste), paste);
    EXPECT_EQ(Part(ROLE_SYSTEM_PROPERTYPAGE).ChildAt(1).ChildAt(1), paste);
}

TEST_F(AccessLifetimeTest, ReferencesAreCounted) {
    IAccessible* held = Of(commands::paste).operator->();
    // The temporary is gone: the object was the only one and went with it; a new one starts with one reference.
    Accessible again = Of(commands::paste);
    held = again.operator->();
    EXPECT_EQ(held->AddRef(), 2u);
    EXPECT_EQ(held->Release(), 1u);
}

TEST_F(AccessLifetimeTest, AnActionThatWaitsForAnElementThatGoesIsForgotten) {
    EXPECT_EQ(Of(commands::paste).DoDefaultAction(), S_OK);
    Bar().GetCategory(0)->GetPanel(0)->Remove(0);
    PumpPending();
    EXPECT_TRUE(m_frame->commands.empty());
}

TEST_F(AccessLifetimeTest, TheActionMayDestroyTheFrame) {
    Bar().GetCategory(0)->GetPanel(0)->Add(new CMFCRibbonButton(commands::closesFrame, L"Close"));
    Bar().RecalcLayout();
    const Accessible close = Of(commands::closesFrame);
    EXPECT_EQ(close.DoDefaultAction(), S_OK);
    PumpPending();
    EXPECT_FALSE(::IsWindow(m_window));
    ExpectGone(close);
}

} // namespace
