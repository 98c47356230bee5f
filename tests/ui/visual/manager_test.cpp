#include <afxdrawmanager.h>
#include <afxglobals.h>
#include <afxtoolbar.h>
#include <afxtooltipmanager.h>
#include <afxvisualmanageroffice2007.h>

#include <gtest/gtest.h>

#include <set>

namespace {

class CountingWnd : public CWnd {
public:
    int m_changes = 0;
    int m_tooltipUpdates = 0;

protected:
    LRESULT OnChange(WPARAM, LPARAM) {
        ++m_changes;
        return 0;
    }
    LRESULT OnTooltips(WPARAM, LPARAM) {
        ++m_tooltipUpdates;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CountingWnd, CWnd)
ON_REGISTERED_MESSAGE(AFX_WM_CHANGEVISUALMANAGER, &CountingWnd::OnChange)
ON_REGISTERED_MESSAGE(AFX_WM_UPDATETOOLTIPS, &CountingWnd::OnTooltips)
END_MESSAGE_MAP()

class VisualManager : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_window.CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 100),
                                      nullptr, 0));
    }
    void TearDown() override {
        m_window.DestroyWindow();
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
        afxGlobalData.SetRibbonImageScale(0);
    }
    CountingWnd m_window;
};

TEST_F(VisualManager, IsMadeOnFirstUse) {
    EXPECT_TRUE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CMFCVisualManager)));
    EXPECT_EQ(CMFCVisualManager::GetInstance(), CMFCVisualManager::GetInstance());
}

TEST_F(VisualManager, SwitchingTellsEachFrameOnce) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    EXPECT_EQ(m_window.m_changes, 1);
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRuntimeClass(), RUNTIME_CLASS(CMFCVisualManagerOffice2007));
}

TEST_F(VisualManager, RefusesANumberThatIsNoStyle) {
    using Manager = CMFCVisualManagerOffice2007;
    EXPECT_TRUE(Manager::SetStyle(Manager::Office2007_Silver));
    EXPECT_FALSE(Manager::SetStyle(static_cast<Manager::Style>(4)));
    EXPECT_EQ(Manager::GetStyle(), Manager::Office2007_Silver);
}

TEST_F(VisualManager, StylesDifferInTheirTextColours) {
    using Manager = CMFCVisualManagerOffice2007;
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(Manager));
    Manager::SetStyle(Manager::Office2007_ObsidianBlack);
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRibbonStatusBarTextColor(nullptr), RGB(0xF2, 0xF4, 0xF7));
    Manager::SetStyle(Manager::Office2007_LunaBlue);
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRibbonStatusBarTextColor(nullptr), RGB(0x15, 0x42, 0x8B));
}

TEST_F(VisualManager, AStyleThatWasChosenBeforeIsTheNewManagers) {
    using Manager = CMFCVisualManagerOffice2007;
    ASSERT_TRUE(Manager::SetStyle(Manager::Office2007_ObsidianBlack));
    EXPECT_EQ(m_window.m_changes, 0) << "no manager shows it yet";
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(Manager));
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRibbonStatusBarTextColor(nullptr), RGB(0xF2, 0xF4, 0xF7));
}

TEST_F(VisualManager, ThereIsOneAndItIsMadeAnewAfterItsEnd) {
    CMFCVisualManager* const first = CMFCVisualManager::GetInstance();
    EXPECT_EQ(CMFCVisualManager::GetInstance(), first);
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    CMFCVisualManager::DestroyInstance();
    EXPECT_EQ(CMFCVisualManager::GetInstance()->GetRuntimeClass(), RUNTIME_CLASS(CMFCVisualManagerOffice2007));
}

/// How many columns and rows of a picture something was drawn in.
CSize DrawnColumnsAndRows(CDC& dc, int side, COLORREF ground) {
    std::set<int> columns;
    std::set<int> rows;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (dc.GetPixel(x, y) != ground) {
                columns.insert(x);
                rows.insert(y);
            }
        }
    }
    return {static_cast<int>(columns.size()), static_cast<int>(rows.size())};
}

TEST_F(VisualManager, TheSeparatorOfAHorizontalBarIsAVerticalLine) {
    constexpr int side = 20;
    constexpr COLORREF ground = RGB(255, 0, 255);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(CDrawingManager::CreateBitmap_32(CSize(side, side), &bits));
    CBitmap* const previous = dc.SelectObject(&bitmap);
    CMFCToolBar bar;
    for (CRuntimeClass* kind : {RUNTIME_CLASS(CMFCVisualManager), RUNTIME_CLASS(CMFCVisualManagerOffice2003),
                                RUNTIME_CLASS(CMFCVisualManagerOffice2007)}) {
        CMFCVisualManager::SetDefaultManager(kind);
        dc.FillSolidRect(0, 0, side, side, ground);
        CMFCVisualManager::GetInstance()->OnDrawSeparator(&dc, &bar, CRect(0, 0, side, side), TRUE);
        const CSize upright = DrawnColumnsAndRows(dc, side, ground);
        EXPECT_LE(upright.cx, 2) << kind->m_lpszClassName;
        EXPECT_GE(upright.cx, 1) << kind->m_lpszClassName;
        EXPECT_GE(upright.cy, side / 2) << kind->m_lpszClassName;
        dc.FillSolidRect(0, 0, side, side, ground);
        CMFCVisualManager::GetInstance()->OnDrawSeparator(&dc, &bar, CRect(0, 0, side, side), FALSE);
        const CSize lying = DrawnColumnsAndRows(dc, side, ground);
        EXPECT_LE(lying.cy, 2) << kind->m_lpszClassName;
        EXPECT_GE(lying.cx, side / 2) << kind->m_lpszClassName;
    }
    dc.SelectObject(previous);
}

TEST_F(VisualManager, DrawingLeavesNoGdiObjectSelectedOrBehind) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ font = ::GetCurrentObject(dc, OBJ_FONT), bitmap = ::GetCurrentObject(dc, OBJ_BITMAP);
    CMFCVisualManager::GetInstance()->OnDrawCheckBoxEx(&dc, CRect(0, 0, 13, 13), 1, TRUE, FALSE, TRUE);
    CMFCVisualManager::GetInstance()->OnFillBarBackground(&dc, nullptr, CRect(0, 0, 50, 20), CRect(0, 0, 0, 0));
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), font);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_BITMAP), bitmap);
}

TEST_F(VisualManager, ScaleGrowsTheFonts) {
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
    const int small = afxGlobalData.GetTextHeight();
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(2.0));
    EXPECT_NEAR(afxGlobalData.GetTextHeight(), 2 * small, 2);
    EXPECT_EQ(afxGlobalData.ScalePixels(15), 30);
    EXPECT_FALSE(afxGlobalData.SetRibbonImageScale(0.5));
    EXPECT_EQ(afxGlobalData.GetRibbonImageScale(), 2.0);
}

TEST_F(VisualManager, ScaleSwitchedOffIsOne) {
    afxGlobalData.SetRibbonImageScale(1.5);
    afxGlobalData.EnableRibbonImageScale(FALSE);
    EXPECT_EQ(afxGlobalData.GetRibbonImageScale(), 1.0);
    afxGlobalData.EnableRibbonImageScale(TRUE);
    EXPECT_EQ(afxGlobalData.GetRibbonImageScale(), 1.5);
}

TEST_F(VisualManager, ExcludeTagTakesTheTagOut) {
    CString text = L"a<B>x</B>c", inside;
    EXPECT_TRUE(afxGlobalData.ExcludeTag(text, L"B", inside));
    EXPECT_EQ(text, L"ac");
    EXPECT_EQ(inside, L"x");
    EXPECT_FALSE(afxGlobalData.ExcludeTag(text, L"B", inside));
}

TEST_F(VisualManager, TooltipParametersReachEveryOwnerOnce) {
    CToolTipCtrl* tooltip = nullptr;
    ASSERT_TRUE(CTooltipManager::CreateToolTip(tooltip, &m_window, AFX_TOOLTIP_TYPE_RIBBON));
    CTooltipManager manager;
    manager.SetTooltipParams(AFX_TOOLTIP_TYPE_ALL);
    EXPECT_EQ(m_window.m_tooltipUpdates, 1);
    CTooltipManager::DeleteToolTip(tooltip);
    EXPECT_EQ(tooltip, nullptr);
    ASSERT_TRUE(CTooltipManager::CreateToolTip(tooltip, &m_window, AFX_TOOLTIP_TYPE_RIBBON));
    EXPECT_TRUE(tooltip->IsKindOf(RUNTIME_CLASS(CMFCToolTipCtrl)));
    CTooltipManager::DeleteToolTip(tooltip);
    manager.SetTooltipParams(AFX_TOOLTIP_TYPE_ALL, nullptr);
}

TEST(DrawingManager, ColourConversionsGoThereAndBack) {
    for (const COLORREF color :
         {RGB(255, 0, 0), RGB(12, 200, 77), RGB(3, 4, 250), RGB(128, 128, 128), RGB(255, 255, 255)}) {
        double h = 0, s = 0, v = 0;
        CDrawingManager::RGBtoHSV(color, &h, &s, &v);
        EXPECT_EQ(CDrawingManager::HSVtoRGB(h, s, v), color);
        CDrawingManager::RGBtoHSL(color, &h, &s, &v);
        EXPECT_EQ(CDrawingManager::HLStoRGB_ONE(h, v, s), color);
        EXPECT_EQ(CDrawingManager::HLStoRGB_TWO(h * 360, v, s), color);
    }
}

TEST(DrawingManager, PixelAlphaMixesByPercent) {
    EXPECT_EQ(CDrawingManager::PixelAlpha(RGB(100, 50, 200), 50), RGB(50, 25, 100));
    EXPECT_EQ(CDrawingManager::PixelAlpha(RGB(100, 0, 0), RGB(0, 100, 0), 25), RGB(25, 75, 0));
}

TEST(DrawingManager, GradientsEndInTheirColours) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    void* bits = nullptr;
    bitmap.Attach(CDrawingManager::CreateBitmap_32(CSize(20, 20), &bits));
    CBitmap* const previous = dc.SelectObject(&bitmap);
    CDrawingManager(dc).FillGradient(CRect(0, 0, 20, 20), RGB(255, 0, 0), RGB(0, 0, 255));
    EXPECT_EQ(dc.GetPixel(5, 0), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(5, 19), RGB(0, 0, 255));
    CDrawingManager(dc).FillGradient(CRect(0, 0, 20, 20), RGB(255, 0, 0), RGB(0, 0, 255), FALSE);
    EXPECT_EQ(dc.GetPixel(0, 5), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(19, 5), RGB(0, 0, 255));
    EXPECT_TRUE(CDrawingManager(dc).GrayRect(CRect(0, 0, 20, 20), 100));
    const COLORREF grey = dc.GetPixel(0, 5);
    EXPECT_EQ(GetRValue(grey), GetBValue(grey));
    dc.SelectObject(previous);
}

} // namespace
