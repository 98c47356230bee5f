#include <afxRibbonEdit.h>

#include <memory>

#include "element_fixture.h"
#include "tests/support/keys.h"
#include "tests/support/message_pump.h"

namespace {

constexpr UINT kId = 500;

class Edits : public ::testing::Test {
protected:
    void Show(CMFCRibbonEdit& element, CPoint at = {20, 10}) {
        element.SetParentWnd(&window);
        Place(element, at);
    }
    CString WindowText() {
        CString text;
        if (edit->GetEditWnd() != nullptr) {
            edit->GetEditWnd()->GetWindowText(text);
        }
        return text;
    }
    CRect WindowRect() {
        CRect rect;
        edit->GetEditWnd()->GetWindowRect(rect);
        window.ScreenToClient(rect);
        return rect;
    }
    void TypeAll(const wchar_t* text) {
        edit->GetEditWnd()->SetFocus();
        edit->GetEditWnd()->SetSel(0, -1);
        Keys(edit->GetEditWnd()->GetSafeHwnd()).Type(text);
    }
    CommandWindow window;
    std::unique_ptr<CMFCRibbonEdit> edit = std::make_unique<CMFCRibbonEdit>(kId, 80, L"Name");
};

TEST_F(Edits, KeepTheirTextWithoutAWindow) {
    edit->SetEditText(L"before");
    EXPECT_EQ(edit->GetEditWnd(), nullptr);
    EXPECT_EQ(edit->GetEditText(), CString(L"before"));
    Show(*edit);
    ASSERT_NE(edit->GetEditWnd(), nullptr);
    EXPECT_EQ(WindowText(), CString(L"before"));
    edit->DestroyCtrl();
    EXPECT_EQ(edit->GetEditWnd(), nullptr);
    EXPECT_EQ(edit->GetEditText(), CString(L"before"));
}

TEST_F(Edits, TheWindowFollowsTheRectangle) {
    Show(*edit);
    const CRect first = WindowRect();
    EXPECT_TRUE(edit->GetEditRect().PtInRect(first.TopLeft()));
    EXPECT_LE(first.right, edit->GetEditRect().right);
    EXPECT_EQ(edit->GetEditRect().right, edit->GetRect().right);
    EXPECT_EQ(edit->GetEditRect().Width(), 80);
    EXPECT_EQ(first.Height(), afxGlobalData.GetCharacterHeight());

    CRect rect = edit->GetRect();
    rect.OffsetRect(30, 40);
    edit->SetRect(rect);
    edit->OnAfterChangeRect(nullptr);
    CRect moved = first;
    moved.OffsetRect(30, 40);
    EXPECT_EQ(WindowRect(), moved);
}

TEST_F(Edits, TheWindowHidesWithTheElement) {
    Show(*edit);
    EXPECT_TRUE(edit->GetEditWnd()->IsWindowVisible());
    edit->SetRect(CRect(0, 0, 0, 0));
    edit->OnAfterChangeRect(nullptr);
    EXPECT_FALSE(edit->GetEditWnd()->IsWindowVisible());
    Show(*edit);
    EXPECT_TRUE(edit->GetEditWnd()->IsWindowVisible());
    edit->SetVisible(FALSE);
    EXPECT_FALSE(edit->GetEditWnd()->IsWindowVisible());
    edit->SetVisible(TRUE);
    EXPECT_TRUE(edit->GetEditWnd()->IsWindowVisible());
}

TEST_F(Edits, TheWindowIsNotPaintedBeforeTheElementIsDrawnThere) {
    Show(*edit);
    CWnd& field = *edit->GetEditWnd();
    EXPECT_TRUE(field.IsWindowVisible());
    EXPECT_FALSE(field.GetUpdateRect(nullptr)) << "on the screen is what was there before, and stays";
    Canvas canvas(200, 100);
    edit->OnDraw(&canvas);
    EXPECT_TRUE(field.GetUpdateRect(nullptr));
    field.UpdateWindow();
    edit->OnDraw(&canvas);
    EXPECT_FALSE(field.GetUpdateRect(nullptr)) << "only once";
}

TEST_F(Edits, SetTextReachesTheWindowAndSendsNothing) {
    Show(*edit);
    edit->SetEditText(L"new");
    EXPECT_EQ(WindowText(), CString(L"new"));
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Edits, TypedTextReachesTheElement) {
    Show(*edit);
    TypeAll(L"typed");
    EXPECT_EQ(WindowText(), CString(L"typed"));
    EXPECT_EQ(edit->GetEditText(), CString(L"typed"));
    EXPECT_TRUE(edit->HasFocus());
    EXPECT_TRUE(edit->IsHighlighted());
}

TEST_F(Edits, EnterSendsTheCommandOnce) {
    Show(*edit);
    TypeAll(L"typed");
    EXPECT_TRUE(window.commands.empty());
    Keys(edit->GetEditWnd()->GetSafeHwnd()).Press(VK_RETURN);
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
    EXPECT_FALSE(edit->HasFocus());
    EXPECT_EQ(edit->GetEditText(), CString(L"typed"));
}

TEST_F(Edits, LossOfTheFocusSendsTheCommandOfAChangedTextOnly) {
    Show(*edit);
    edit->GetEditWnd()->SetFocus();
    window.SetFocus();
    EXPECT_TRUE(window.commands.empty());
    TypeAll(L"typed");
    window.SetFocus();
    EXPECT_EQ(window.commands, std::vector<UINT>{kId});
}

TEST_F(Edits, EscapeTakesTheChangeBack) {
    edit->SetEditText(L"old");
    Show(*edit);
    TypeAll(L"typed");
    Keys(edit->GetEditWnd()->GetSafeHwnd()).Press(VK_ESCAPE);
    EXPECT_EQ(edit->GetEditText(), CString(L"old"));
    EXPECT_EQ(WindowText(), CString(L"old"));
    EXPECT_TRUE(window.commands.empty());
}

TEST_F(Edits, DisabledTheyTakeNoInput) {
    Show(*edit);
    edit->SetDisabled(TRUE);
    EXPECT_FALSE(edit->GetEditWnd()->IsWindowEnabled());
    edit->OnLButtonDown(edit->GetEditRect().CenterPoint());
    EXPECT_FALSE(edit->HasFocus());
    edit->SetDisabled(FALSE);
    EXPECT_TRUE(edit->GetEditWnd()->IsWindowEnabled());
    edit->OnLButtonDown(edit->GetEditRect().CenterPoint());
    EXPECT_TRUE(edit->HasFocus());
}

TEST_F(Edits, AHandlerMayDeleteThemOnEnter) {
    Show(*edit);
    TypeAll(L"typed");
    window.onCommand = [this] { edit.reset(); };
    Keys(edit->GetEditWnd()->GetSafeHwnd()).Press(VK_RETURN);
    EXPECT_EQ(edit, nullptr);
    EXPECT_EQ(window.commands.size(), 1u);
}

TEST_F(Edits, ACopyHasTheTextAndNoWindow) {
    edit->SetEditText(L"text");
    Show(*edit);
    CMFCRibbonEdit copy;
    Show(copy, {20, 60});
    ASSERT_NE(copy.GetEditWnd(), nullptr);
    copy.CopyFrom(*edit);
    EXPECT_EQ(copy.GetEditWnd(), nullptr);
    EXPECT_EQ(copy.GetEditText(), CString(L"text"));
    ASSERT_NE(edit->GetEditWnd(), nullptr);
}

TEST_F(Edits, CompactLeavesTheLabelOut) {
    EXPECT_TRUE(edit->HasCompactMode());
    EXPECT_LT(edit->GetCompactSize(nullptr).cx, edit->GetIntermediateSize(nullptr).cx);
    EXPECT_EQ(edit->GetCompactSize(nullptr).cx, 80);
    edit->SetText(L"");
    EXPECT_FALSE(edit->HasCompactMode());
}

TEST_F(Edits, WithoutAWidthTheyHaveTheUsualOne) {
    CMFCRibbonEdit usual(1, -1);
    EXPECT_GT(usual.GetWidth(), 50);
    EXPECT_EQ(usual.GetWidth(TRUE), usual.GetWidth());
    usual.SetWidth(33);
    EXPECT_EQ(usual.GetWidth(), 33);
}

} // namespace
