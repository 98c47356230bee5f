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
