#include "status_frame.h"

#include "tests/support/canvas.h"

#include <afxvisualmanager.h>

namespace {

/// Notes what the bar asks it to draw.
class NotingManager : public CMFCVisualManagerOffice2007 {
    DECLARE_DYNCREATE(NotingManager)

public:
    static inline int s_sizeBoxes = 0;
    static inline int s_panes = 0;
    static inline CRect s_sizeBox;
    static inline CBasePane* s_background = nullptr;
    static inline int s_separators = 0;

    void OnDrawStatusBarSizeBox(CDC*, CMFCStatusBar*, CRect rect) override {
        ++s_sizeBoxes;
        s_sizeBox = rect;
    }
    COLORREF OnDrawRibbonStatusBarPane(CDC*, CMFCRibbonStatusBar*, CMFCRibbonStatusBarPane*) override {
        ++s_panes;
        return RGB(1, 2, 3);
    }
    void OnFillBarBackground(CDC*, CBasePane* bar, CRect, CRect, BOOL) override { s_background = bar; }
    void OnDrawSeparator(CDC*, CBasePane*, CRect, BOOL isHorizontal) override { s_separators += isHorizontal ? 1 : 0; }
};
IMPLEMENT_DYNCREATE(NotingManager, CMFCVisualManagerOffice2007)

class StatusBarDrawing : public StatusBarTest {
protected:
    ~StatusBarDrawing() override { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager)); }
    void Draw(Canvas& canvas) { Bar().DoPaint(canvas.Dc()); }
};

TEST_F(StatusBarDrawing, TheManagerDrawsGroundSeparatorPaneAndSizeBox) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(NotingManager));
    AddButton(1, L"One");
    Bar().AddSeparator();
    Bar().AddElement(new CMFCRibbonStatusBarPane(2, L"Pane"), L"");
    LayOut();
    Canvas canvas(ClientSize(Bar()));
    NotingManager::s_panes = NotingManager::s_sizeBoxes = NotingManager::s_separators = 0;
    Draw(canvas);
    EXPECT_EQ(NotingManager::s_background, &Bar());
    EXPECT_EQ(NotingManager::s_separators, 1);
    EXPECT_EQ(NotingManager::s_panes, 1);
    EXPECT_EQ(NotingManager::s_sizeBoxes, 1);
    EXPECT_EQ(NotingManager::s_sizeBox, Bar().m_rectSizeGrip);
    EXPECT_NE(canvas.BoundsOf(0x010203), CRect(0, 0, 0, 0));
}

TEST_F(StatusBarDrawing, InEveryStyleTheGroundCoversTheBarAndTextsStandOnIt) {
    for (CRuntimeClass* const manager :
         {RUNTIME_CLASS(CMFCVisualManager), RUNTIME_CLASS(CMFCVisualManagerOfficeXP),
          RUNTIME_CLASS(CMFCVisualManagerOffice2003), RUNTIME_CLASS(CMFCVisualManagerOffice2007)}) {
        CMFCVisualManager::SetDefaultManager(manager);
        Bar().RemoveAll();
        const CRect button = AddButton(1, L"One").GetRect();
        Canvas canvas(ClientSize(Bar()));
        Draw(canvas);
        EXPECT_EQ(canvas.BoundsOf(Canvas::background), CRect(0, 0, 0, 0)) << manager->m_lpszClassName;
        const CRect beside(button.right + 5, button.top, button.right + 5 + button.Width(), button.bottom);
        EXPECT_GT(canvas.Colours(button).size(), canvas.Colours(beside).size()) << manager->m_lpszClassName;
    }
}

TEST_F(StatusBarDrawing, AHotPaneHasAFaceAStaticOneHasNone) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    auto* const pane = new CMFCRibbonStatusBarPane(1, L"");
    auto* const fixed = new CMFCRibbonStatusBarPane(2, L"", TRUE);
    pane->SetAlmostLargeText(L"Reserved");
    fixed->SetAlmostLargeText(L"Reserved");
    Bar().AddElement(pane, L"");
    Bar().AddElement(fixed, L"");
    LayOut();
    Canvas rest(ClientSize(Bar()));
    Draw(rest);
    pane->SetHighlighted(TRUE);
    fixed->SetHighlighted(TRUE);
    Canvas hot(ClientSize(Bar()));
    Draw(hot);
    EXPECT_NE(hot.Colours(pane->GetRect()), rest.Colours(pane->GetRect()));
    EXPECT_EQ(hot.Colours(fixed->GetRect()), rest.Colours(fixed->GetRect()));
}

} // namespace
