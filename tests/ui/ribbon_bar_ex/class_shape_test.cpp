// What the class is, and what its base keeps for it.
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

namespace {

TEST(ExtendedBarClass, IsKnownByItsNameAndDerivesFromTheRibbonBase) {
    const CRuntimeClass* const bar = RUNTIME_CLASS(CMFCRibbonBarEx);
    EXPECT_STREQ(bar->m_lpszClassName, "CMFCRibbonBarEx");
    EXPECT_TRUE(bar->IsDerivedFrom(RUNTIME_CLASS(CMFCRibbonBar2)));
    EXPECT_EQ(CMFCRibbonBarEx().GetRuntimeClass(), bar);
}

TEST(ExtendedBarClass, TheConstructorsNumberIsTheBasesOwn) {
    EXPECT_TRUE(CMFCRibbonBarEx().IsReplaceFrameCaption());
    EXPECT_TRUE(CMFCRibbonBarEx(1).IsReplaceFrameCaption());
    EXPECT_FALSE(CMFCRibbonBarEx(0).IsReplaceFrameCaption());
}

TEST(ExtendedBarClass, ANewBarHasNoPathAndNoRange) {
    CMFCRibbonBarEx bar;
    EXPECT_EQ(bar.Path(), L"");
    EXPECT_FALSE(bar.havPath(L""));
    EXPECT_FALSE(bar.ShowPath(L""));
}

} // namespace
