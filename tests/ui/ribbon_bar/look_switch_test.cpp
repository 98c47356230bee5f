#include "tests/ui/ribbon_bar/ribbon_frame.h"

namespace {

/// Counts what it draws of the ribbon.
class CountingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(CountingLook)

public:
    void OnDrawRibbonCategory(CDC* dc, CMFCRibbonCategory* category, CRect rect) override {
        ++s_categories;
        CMFCVisualManager::OnDrawRibbonCategory(dc, category, rect);
    }
    static inline int s_categories = 0;
};
IMPLEMENT_DYNCREATE(CountingLook, CMFCVisualManager)

class LookSwitch : public RibbonBarTest {
protected:
    ~LookSwitch() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
    }
};

TEST_F(LookSwitch, TheNewManagerDrawsTheFramesAnew) {
    Bar().UpdateWindow();
    CountingLook::s_categories = 0;
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CountingLook));
    EXPECT_GT(CountingLook::s_categories, 0);
}

TEST_F(LookSwitch, ATextInTheTabRowIsReadOnTheRowsGround) {
    auto* const button = new CMFCRibbonButton(commands::firstHandled + 601, L"Style");
    Bar().AddToTabs(button);
    for (const auto style :
         {CMFCVisualManagerOffice2007::Office2007_LunaBlue, CMFCVisualManagerOffice2007::Office2007_ObsidianBlack,
          CMFCVisualManagerOffice2007::Office2007_Silver, CMFCVisualManagerOffice2007::Office2007_Aqua}) {
        CMFCVisualManagerOffice2007::SetStyle(style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        Bar().RecalcLayout();
        CMFCVisualManager& manager = *CMFCVisualManager::GetInstance();
        CClientDC dc(&Bar());
        const COLORREF tabs = manager.OnDrawRibbonTabsFrame(&dc, &Bar(), CRect(0, 0, 1, 1));
        EXPECT_EQ(manager.OnFillRibbonButton(&dc, button), tabs) << "style " << style;
    }
}

/// Notes the rectangle that it was told of last.
class NotingButton : public CMFCRibbonButton {
public:
    using CMFCRibbonButton::CMFCRibbonButton;
    void OnAfterChangeRect(CDC* dc) override {
        CMFCRibbonButton::OnAfterChangeRect(dc);
        ++m_changes;
        m_told = m_rect;
    }
    int m_changes = 0;
    CRect m_told{0, 0, 0, 0};
};

TEST_F(LookSwitch, AnElementIsToldAfterEachChangeOfItsRectangle) {
    auto* button = new NotingButton(commands::firstHandled + 600, L"Noting");
    Bar().GetCategory(0)->GetPanel(0)->Add(button);
    Bar().RecalcLayout();
    EXPECT_GT(button->m_changes, 0);
    EXPECT_FALSE(button->GetRect().IsRectEmpty());
    EXPECT_EQ(button->m_told, button->GetRect());
    Element(commands::paste).SetText(L"A text that takes a good deal more room");
    const CRect before = button->GetRect();
    button->m_changes = 0;
    Bar().RecalcLayout();
    EXPECT_NE(button->GetRect(), before);
    EXPECT_GT(button->m_changes, 0);
    EXPECT_EQ(button->m_told, button->GetRect());
}

TEST_F(LookSwitch, TheTooltipsAreaFollowsTheElementThatALayoutMoves) {
    m_pointer.MoveTo(Bar(), CenterOf(commands::cut));
    const CRect before = Element(commands::cut).GetRect();
    Element(commands::paste).SetText(L"A text that takes a good deal more room");
    Bar().RecalcLayout();
    ASSERT_NE(Element(commands::cut).GetRect(), before);
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    tool.hwnd = Bar();
    tool.uId = 1;
    ASSERT_TRUE(Bar().GetToolTipCtrl()->SendMessage(TTM_GETTOOLINFO, 0, reinterpret_cast<LPARAM>(&tool)));
    EXPECT_EQ(CRect(tool.rect), Element(commands::cut).GetRect());
}

} // namespace
