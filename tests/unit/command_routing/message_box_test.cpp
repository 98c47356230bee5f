#include <gtest/gtest.h>

#include "afxwin.h"
#include "tests/support/ui_test.h"

namespace {

TEST(MessageBoxes, TheRunnerAnswersWithTextCaptionAndType) {
    CountingMessageBox boxes(IDYES);
    EXPECT_EQ(AfxMessageBox(L"Delete it?", MB_YESNO), IDYES);
    ASSERT_EQ(boxes.Count(), 1);
    EXPECT_EQ(boxes.Last().text, L"Delete it?");
    EXPECT_EQ(boxes.Last().caption, AfxGetAppName());
    EXPECT_EQ(boxes.Last().type & MB_TYPEMASK, static_cast<UINT>(MB_YESNO));
}

TEST(MessageBoxes, AnInnerRunnerGivesWayToTheOuterOneAgain) {
    CountingMessageBox outer(IDNO);
    {
        CountingMessageBox inner(IDCANCEL);
        EXPECT_EQ(AfxMessageBox(L"inner", MB_OKCANCEL), IDCANCEL);
    }
    EXPECT_EQ(AfxMessageBox(L"outer", MB_YESNO), IDNO);
    EXPECT_EQ(outer.Count(), 1);
}

TEST(Strings, AMissingResourceIsAnEmptyText) {
    wchar_t text[8] = L"before";
    EXPECT_EQ(AfxLoadString(64999, text, 8), 0);
    EXPECT_STREQ(text, L"");
}

} // namespace
