#include "tovasque/ribbon_bar2.h"
#include "tovasque/visual_manager_office2007_2.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(RibbonBase, BarIsKnownByItsNameAndCannotBeMadeByIt) {
    const CRuntimeClass* const bar = RUNTIME_CLASS(CMFCRibbonBar2);
    EXPECT_STREQ(bar->m_lpszClassName, "CMFCRibbonBar2");
    EXPECT_EQ(CRuntimeClass::FromName("CMFCRibbonBar2"), bar);
    EXPECT_TRUE(bar->IsDerivedFrom(RUNTIME_CLASS(CMFCRibbonBar)));
    EXPECT_EQ(bar->m_pfnCreateObject, nullptr);
}

TEST(RibbonBase, BarKeepsItsConstructorsArgument) {
    EXPECT_TRUE(CMFCRibbonBar2().IsReplaceFrameCaption());
    EXPECT_TRUE(CMFCRibbonBar2(TRUE).IsReplaceFrameCaption());
    EXPECT_TRUE(CMFCRibbonBar2(7).IsReplaceFrameCaption());
    EXPECT_FALSE(CMFCRibbonBar2(FALSE).IsReplaceFrameCaption());
}

TEST(RibbonBase, BarSaysItsOwnClass) {
    const CMFCRibbonBar2 bar;
    EXPECT_EQ(bar.GetRuntimeClass(), RUNTIME_CLASS(CMFCRibbonBar2));
    EXPECT_TRUE(bar.IsKindOf(RUNTIME_CLASS(CMFCRibbonBar)));
}

TEST(RibbonBase, BarKeepsWhatASkinAndAContextMenuAreAskedFor) {
    CMFCRibbonBar2 bar;
    EXPECT_TRUE(bar.IsContextMenuEnabled());
    EXPECT_EQ(bar.GetSkinStyle(), 0);
    EXPECT_FALSE(bar.GetSkinFlag());
    EXPECT_EQ(bar.GetTextColor(), static_cast<COLORREF>(-1));
    bar.EnableContextMenu(FALSE);
    bar.SetTextColor(RGB(1, 2, 3));
    EXPECT_FALSE(bar.IsContextMenuEnabled());
    EXPECT_EQ(bar.GetTextColor(), RGB(1, 2, 3));
}

TEST(RibbonBase, BarTakesAnySkinNumberAndItsFlag) {
    CMFCRibbonBar2 bar;
    const CMFCVisualManager* const before = CMFCVisualManager::GetInstance();
    for (const int style : {1, 7, -1, 0}) {
        bar.ChangeSkinColor(style, style > 0);
        EXPECT_EQ(bar.GetSkinStyle(), style);
        EXPECT_EQ(bar.GetSkinFlag(), style > 0 ? TRUE : FALSE);
    }
    EXPECT_EQ(CMFCVisualManager::GetInstance(), before) << "the skin's manager is a derived bar's to bring";
    CMFCVisualManager::DestroyInstance();
}

TEST(RibbonBase, BarWithItsContextMenuOffShowsNone) {
    CMFCRibbonBar2 bar;
    bar.EnableContextMenu(FALSE);
    EXPECT_FALSE(bar.OnShowRibbonContextMenu(&bar, 0, 0, nullptr));
}

TEST(RibbonBase, VisualManagerIsKnownAndMadeByItsName) {
    const CRuntimeClass* const manager = RUNTIME_CLASS(CMFCVisualManagerOffice20072);
    EXPECT_EQ(CRuntimeClass::FromName("CMFCVisualManagerOffice20072"), manager);
    EXPECT_TRUE(manager->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManagerOffice2007)));
}

TEST(RibbonBase, VisualManagerBecomesTheOneInUseByItsClass) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice20072));
    const CMFCVisualManager* const inUse = CMFCVisualManager::GetInstance();
    ASSERT_NE(inUse, nullptr);
    EXPECT_EQ(inUse->GetRuntimeClass(), RUNTIME_CLASS(CMFCVisualManagerOffice20072));
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRuntimeClass(), RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    CMFCVisualManager::DestroyInstance();
}

} // namespace
