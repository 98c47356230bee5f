#include "tests/ui/frame_caption/caption_frame.h"

namespace {

constexpr UINT kTables = 77;
constexpr UINT kPictures = 78;

class ContextCaptions : public ::testing::Test {
protected:
    ContextCaptions() {
        frame.Show();
        Bar().AddContextCategory(L"Design", L"Table tools", kTables, AFX_CategoryColor_Orange, 0, 0);
        Bar().AddContextCategory(L"Rows", L"Table tools", kTables, AFX_CategoryColor_Orange, 0, 0);
        Bar().AddContextCategory(L"X", L"Picture tools of this program", kPictures, AFX_CategoryColor_Green, 0, 0);
    }
    CMFCRibbonBar& Bar() { return frame.bar; }
    /// Over the middle of a category's tab, in the caption row.
    CMFCRibbonContextCaption* CaptionOver(int category) {
        Bar().EnsureLayout();
        const CPoint point(Bar().GetCategory(category)->GetTabRect().CenterPoint().x, 5);
        return DYNAMIC_DOWNCAST(CMFCRibbonContextCaption, Bar().HitTest(point));
    }
    RibbonFrameWithCaption frame;
    Pointer pointer;
};

TEST_F(ContextCaptions, ShownContextsLieAboveTheirTabsInTheirColour) {
    Bar().ShowContextCategories(kTables);
    CMFCRibbonContextCaption* caption = CaptionOver(2);
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(CaptionOver(3), caption);
    EXPECT_EQ(caption->GetColor(), AFX_CategoryColor_Orange);
    EXPECT_EQ(caption->GetRect().left, Bar().GetCategory(2)->GetTabRect().left);
    EXPECT_EQ(caption->GetRect().right, Bar().GetCategory(3)->GetTabRect().right);
    EXPECT_EQ(caption->GetRect().bottom, Bar().GetCategory(2)->GetTabRect().top);
    Bar().HideAllContextCategories();
    Bar().EnsureLayout();
    EXPECT_TRUE(Bar().GetCategory(2)->GetTabRect().IsRectEmpty());
}

TEST_F(ContextCaptions, ATabIsAsWideAsTheCaptionAboveIt) {
    Bar().ShowContextCategories(kPictures);
    CMFCRibbonContextCaption* caption = CaptionOver(4);
    ASSERT_NE(caption, nullptr);
    CClientDC dc(&Bar());
    dc.SelectObject(&afxGlobalData.fontRegular);
    EXPECT_GE(caption->GetRect().Width(), dc.GetTextExtent(caption->GetText()).cx);
}

TEST_F(ContextCaptions, AClickActivatesTheFirstTabOfTheContext) {
    Bar().ShowContextCategories(kTables);
    const CPoint point = CaptionOver(3)->GetRect().CenterPoint();
    pointer.Click(Bar().m_hWnd, point);
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(2));
}

TEST_F(ContextCaptions, HidingTheActiveContextGoesBackToWhereTheUserWas) {
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Bar().ShowContextCategories(kTables);
    ASSERT_TRUE(Bar().ActivateContextCategory(kTables));
    Bar().HideAllContextCategories();
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(1));
}

TEST_F(ContextCaptions, TheFormerCategoryMayBeGoneByThen) {
    Bar().SetActiveCategory(Bar().GetCategory(1));
    Bar().ShowContextCategories(kTables);
    ASSERT_TRUE(Bar().ActivateContextCategory(kTables));
    Bar().RemoveCategory(1);
    Bar().HideAllContextCategories();
    EXPECT_EQ(Bar().GetActiveCategory(), Bar().GetCategory(0));
}

} // namespace
