#include "skin_visual_managers.h"
#include "toolbar_fixture.h"

namespace {

/// Reads the protected colours of the manager in use, whatever its class.
struct OpenManager : CMFCVisualManagerOffice2003 {
    static COLORREF Light() {
        auto* const manager = DYNAMIC_DOWNCAST(CMFCVisualManagerOffice2003, CMFCVisualManager::GetInstance());
        return manager->*(&OpenManager::m_clrToolBarGradientLight);
    }
    static COLORREF Dark() {
        auto* const manager = DYNAMIC_DOWNCAST(CMFCVisualManagerOffice2003, CMFCVisualManager::GetInstance());
        return manager->*(&OpenManager::m_clrToolBarGradientDark);
    }
};

class FlatToolBar : public ToolBarHost {
protected:
    void Use(CRuntimeClass* manager) {
        CMFCVisualManager::SetDefaultManager(manager);
        m_before = OpenManager::Light();
        m_darkBefore = OpenManager::Dark();
        m_bar->m_onFill = [this](CDC*) { m_within = OpenManager::Light(); };
        PaintInMemory();
    }
    COLORREF m_before = 0;
    COLORREF m_darkBefore = 0;
    COLORREF m_within = 0;
};

TEST_F(FlatToolBar, PaintsInTheBlackSkinsColourAndPutsItBack) {
    Use(RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    EXPECT_EQ(m_within, RGB(168, 176, 186));
    EXPECT_NE(m_before, m_within);
    EXPECT_EQ(OpenManager::Light(), m_before);
    EXPECT_EQ(OpenManager::Dark(), m_darkBefore);
}

TEST_F(FlatToolBar, PaintsInTheSilverSkinsColourAndPutsItBack) {
    Use(RUNTIME_CLASS(CQKVisualManagerOffice2007Silver));
    EXPECT_EQ(m_within, RGB(192, 192, 192));
    EXPECT_EQ(OpenManager::Light(), m_before);
    EXPECT_EQ(OpenManager::Dark(), m_darkBefore);
}

TEST_F(FlatToolBar, IsPaintedAsEverUnderAnotherManager) {
    Use(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    EXPECT_EQ(m_within, m_before);
}

TEST_F(FlatToolBar, ManagerThatComesWhileItPaintsIsLeftAlone) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    int fills = 0;
    m_bar->m_onFill = [&fills](CDC*) {
        ++fills;
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    };
    PaintInMemory();
    m_bar->m_onFill = nullptr;
    EXPECT_LE(fills, 4) << "each painting asks for another one";
    EXPECT_FALSE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CQKVisualManagerOffice2007Black)));
}

TEST_F(FlatToolBar, PaintingWithinPaintingPutsTheColoursBackAsWell) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CQKVisualManagerOffice2007Black));
    CMFCVisualManager::GetInstance();
    m_before = OpenManager::Light();
    m_darkBefore = OpenManager::Dark();
    int depth = 0;
    m_bar->m_onFill = [&](CDC*) {
        if (++depth < 3) {
            PaintInMemory();
        }
        m_within = OpenManager::Light();
    };
    PaintInMemory();
    EXPECT_EQ(depth, 3);
    EXPECT_EQ(m_within, RGB(168, 176, 186)) << "also after the inner ones";
    EXPECT_EQ(OpenManager::Light(), m_before);
    EXPECT_EQ(OpenManager::Dark(), m_darkBefore);
    m_bar->m_onFill = nullptr;
}

TEST_F(ToolBarHost, ChangeOfTheManagerTakesTheWindowsShape) {
    m_bar->m_bRoundShape = TRUE;
    m_bar->SetWindowRgn(::CreateRoundRectRgn(0, 0, 50, 20, 6, 6), FALSE);
    m_bar->OnChangeVisualManager();
    EXPECT_FALSE(m_bar->m_bRoundShape);
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetWindowRgn(m_bar->m_hWnd, region), ERROR);
    ::DeleteObject(region);
}

TEST_F(ToolBarHost, ChangeOfTheManagerReachesABarWithoutAWindow) {
    CMFCToolBarEx bar;
    bar.m_bRoundShape = TRUE;
    bar.OnChangeVisualManager();
    EXPECT_FALSE(bar.m_bRoundShape);
}

TEST(ToolBarEx, IsMadeByItsRuntimeClass) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCToolBarEx)->CreateObject());
    ASSERT_TRUE(made);
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "CMFCToolBarEx");
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CMFCToolBar)));
}

} // namespace
