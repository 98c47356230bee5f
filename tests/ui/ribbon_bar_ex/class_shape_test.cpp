// What the class is, and what its base keeps for it.
#include "tests/ui/ribbon_bar_ex/extended_bar.h"

#include <utility>

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

/// Overrides what a host may override, with the types that it has there.
class HostsBar : public CMFCRibbonBarEx {
public:
    void ChangeSkinColor(int style, bool flag) override { m_asked = {style, flag}; }
    BOOL OnShowRibbonContextMenu(CWnd*, int, int, CMFCRibbonBaseElement*) override { return TRUE; }
    void OnPaneContextMenu(CWnd*, CPoint) override { m_asked = {-1, false}; }

    std::pair<int, bool> m_asked;
};

TEST(ExtendedBarClass, AHostsBarChangesTheSkinWhereItsBasesAreAskedTo) {
    HostsBar bar;
    static_cast<CMFCRibbonBar2&>(bar).ChangeSkinColor(1, true);
    EXPECT_EQ(bar.m_asked, std::pair(1, true));
    EXPECT_EQ(bar.GetSkinStyle(), 0) << "and its base was not asked";
}

TEST(ExtendedBarClass, ANewBarHasNoPathAndNoRange) {
    CMFCRibbonBarEx bar;
    EXPECT_EQ(bar.Path(), L"");
    EXPECT_FALSE(bar.havPath(L""));
    EXPECT_FALSE(bar.ShowPath(L""));
}

} // namespace
