// An edit on a toolbar: text, keys, commands, place.
#include "afxtoolbareditboxbutton.h"
#include "tests/ui/toolbar/field_fixture.h"

namespace {

using Commands = std::vector<UINT>;
using Codes = std::vector<int>;

class EditBoxTest : public FieldTest {
protected:
    EditBoxTest() {
        CMFCToolBarEditBoxButton button(kFieldCommand, 3, ES_AUTOHSCROLL, 120);
        button.SetContents(L"begin");
        Bar().InsertButton(button);
        LayOut();
    }
    CMFCToolBarEditBoxButton& Button() { return *CMFCToolBarEditBoxButton::GetByCmd(kFieldCommand); }
    CEdit& Edit() { return *Button().GetEditBox(); }
};

TEST_F(EditBoxTest, TheToolbarsCopyHasAnEditWithTheText) {
    ASSERT_NE(Button().GetEditBox(), nullptr);
    EXPECT_EQ(::GetParent(Button().GetHwnd()), Bar().m_hWnd);
    EXPECT_EQ(TextOf(&Edit()), L"begin");
    EXPECT_TRUE(Button().IsWindowVisible());
    EXPECT_EQ(CMFCToolBarEditBoxButton::GetContentsAll(kFieldCommand), L"begin");
}

TEST_F(EditBoxTest, TheBorderHasTheGivenWidthAndLiesInsideTheButtonAroundTheEdit) {
    CRect border;
    Button().GetEditBorder(border);
    EXPECT_EQ(border.Width(), afxGlobalData.ScalePixels(120));
    CRect both;
    EXPECT_TRUE(both.IntersectRect(border, Button().Rect()) && both == border);
    CRect window;
    Edit().GetWindowRect(&window);
    Bar().ScreenToClient(&window);
    EXPECT_TRUE(both.IntersectRect(border, window) && both == window);
}

TEST_F(EditBoxTest, TheDefaultWidthIs150Pixels) {
    Bar().InsertButton(CMFCToolBarEditBoxButton(3051, -1));
    LayOut();
    CRect border;
    CMFCToolBarEditBoxButton::GetByCmd(3051)->GetEditBorder(border);
    EXPECT_EQ(border.Width(), afxGlobalData.ScalePixels(150));
}

TEST_F(EditBoxTest, EnterSendsTheCommandOnce) {
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    m_keys.Type(L"typed");
    EXPECT_TRUE(TakeCommands().empty());
    m_keys.Press(VK_RETURN);
    EXPECT_EQ(TakeCommands(), Commands{kFieldCommand});
    EXPECT_EQ(CMFCToolBarEditBoxButton::GetContentsAll(kFieldCommand), L"typed");
}

TEST_F(EditBoxTest, EscGivesBackTheTextAndTheFocus) {
    Edit().SetFocus();
    m_keys.Type(L"xyz");
    m_keys.Press(VK_ESCAPE);
    EXPECT_EQ(TextOf(&Edit()), L"begin");
    EXPECT_EQ(CMFCToolBarEditBoxButton::GetContentsAll(kFieldCommand), L"begin");
    EXPECT_EQ(::GetFocus(), m_frame->m_hWnd);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(EditBoxTest, NotificationsReachTheOwnerWithTheirCodes) {
    CodeList owner;
    Edit().SetFocus();
    Bar().SetOwner(&owner);
    m_keys.Type(L"x");
    EXPECT_EQ(owner.Taken(), (Codes{EN_UPDATE, EN_CHANGE}));
    m_frame->SetFocus();
    EXPECT_EQ(owner.Taken(), Codes{EN_KILLFOCUS});
    Bar().SetOwner(m_frame);
}

TEST_F(EditBoxTest, AllEditsWithTheCommandHoldTheSameText) {
    auto second = std::make_unique<CMFCToolBar>();
    ASSERT_TRUE(second->Create(m_frame, AFX_DEFAULT_TOOLBAR_STYLE, 0x9001));
    second->InsertButton(Button());
    const auto* const copy = static_cast<CMFCToolBarEditBoxButton*>(second->GetButton(0));
    EXPECT_EQ(TextOf(copy->GetEditBox()), L"begin");
    Edit().SetFocus();
    Edit().SetSel(0, -1);
    m_keys.Type(L"typed");
    EXPECT_EQ(TextOf(copy->GetEditBox()), L"typed");
    EXPECT_TRUE(CMFCToolBarEditBoxButton::SetContentsAll(kFieldCommand, L"set"));
    EXPECT_EQ(TextOf(copy->GetEditBox()), L"set");
    EXPECT_EQ(TextOf(&Edit()), L"set");
    EXPECT_TRUE(TakeCommands().empty());
    second->DestroyWindow();
}

TEST_F(EditBoxTest, WithoutSuchAButtonThereIsNothingToAskOrToSet) {
    EXPECT_EQ(CMFCToolBarEditBoxButton::GetByCmd(3998), nullptr);
    EXPECT_EQ(CMFCToolBarEditBoxButton::GetContentsAll(3998), L"");
    EXPECT_FALSE(CMFCToolBarEditBoxButton::SetContentsAll(3998, L"x"));
}

TEST_F(EditBoxTest, AcceleratorsDoNotTakeWhatIsTyped) {
    Edit().SetFocus();
    m_keys.Press('V');
    m_keys.Press(VK_DELETE);
    EXPECT_TRUE(TakeCommands().empty());
    m_keys.Press(VK_F7);
    EXPECT_EQ(TakeCommands(), Commands{kStolenCommand});
}

TEST_F(EditBoxTest, AClickBesideTheEditFocusesIt) {
    CRect border;
    Button().GetEditBorder(border);
    m_pointer.Click(Bar().m_hWnd, CPoint(border.left + 1, border.CenterPoint().y));
    EXPECT_EQ(::GetFocus(), Edit().m_hWnd);
    EXPECT_TRUE(Button().HasFocus());
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(EditBoxTest, TheUpdateHandlerDisablesTheEdit) {
    m_frame->disabled = kFieldCommand;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_FALSE(Edit().IsWindowEnabled());
    m_frame->disabled = 0;
    Bar().OnUpdateCmdUI(m_frame, TRUE);
    EXPECT_TRUE(Edit().IsWindowEnabled());
}

TEST_F(EditBoxTest, AVerticalBarShowsAnOrdinaryButton) {
    CMFCToolBarImages& images = *CMFCToolBar::GetImages();
    Button().SetImage(images.GetCount() - 1);
    CClientDC context(&Bar());
    const CSize vertical(Button().OnCalculateSize(&context, CSize(23, 22), FALSE));
    EXPECT_EQ(vertical, CSize(23, 22));
    EXPECT_FALSE(Button().IsWindowVisible());
    Button().OnCalculateSize(&context, CSize(23, 22), TRUE);
}

TEST_F(EditBoxTest, AHiddenButtonHidesTheEdit) {
    Button().Show(FALSE);
    LayOut();
    EXPECT_FALSE(Button().IsWindowVisible());
    Button().Show(TRUE);
    LayOut();
    EXPECT_TRUE(Button().IsWindowVisible());
}

TEST_F(EditBoxTest, RemovingTheButtonDestroysTheEdit) {
    const HWND edit = Button().GetHwnd();
    Bar().RemoveButton(Bar().CommandToIndex(kFieldCommand));
    EXPECT_FALSE(::IsWindow(edit));
}

TEST_F(EditBoxTest, SettingsKeepTextAndWidth) {
    Button().SetContents(L"kept");
    ASSERT_TRUE(Bar().SaveState(L"EditBox"));
    Bar().RemoveAllButtons();
    ASSERT_TRUE(Bar().LoadState(L"EditBox"));
    LayOut();
    EXPECT_EQ(TextOf(&Edit()), L"kept");
    CRect border;
    Button().GetEditBorder(border);
    EXPECT_EQ(border.Width(), afxGlobalData.ScalePixels(120));
    Bar().RemoveStateFromRegistry(L"EditBox");
}

TEST_F(EditBoxTest, ALabelStandsBelowTheEdit) {
    const int before = Button().Rect().Height();
    Button().m_strText = L"Search";
    Button().m_bText = TRUE;
    Button().m_bTextBelow = TRUE;
    CClientDC context(&Bar());
    const CSize size(Button().OnCalculateSize(&context, CSize(23, 22), TRUE));
    EXPECT_GT(size.cy, before);
    EXPECT_GT(CSize(Button().GetTextSize()).cy, 0);
}

TEST_F(EditBoxTest, TheContextMenuIsTheOneOfItsResource) {
    Button().SetContextMenuID(77);
    EXPECT_EQ(Button().GetContextMenuID(), 77u);
    EXPECT_EQ(CMFCToolBarEditBoxButton(1, 1).GetContextMenuID(), 0u);
}

} // namespace
