// Where the tooltip's window goes.
#include "tests/support/import_spy.h"
#include "tests/ui/help_tooltip/tooltip_fixture.h"

extern "C" {
extern void* __imp_GetMonitorInfoW;
}

namespace {

class HelpPlace : public HelpTooltip {
protected:
    /// The result of the show notification for a place; (-1, -1): the system's.
    LRESULT ResultFor(CPoint place) {
        m_tip.SetLocation(place);
        NMHDR notification = {m_tip.m_hWnd, 1, static_cast<UINT>(TTN_SHOW)};
        LRESULT result = 7;
        m_tip.OnShow(&notification, &result);
        return result;
    }
    CRect Window() {
        CRect rect;
        m_tip.GetWindowRect(rect);
        return rect;
    }
    static constexpr POINT kSystems = {-1, -1};
};

TEST_F(HelpPlace, TheOwnersPlaceIsTaken) {
    EXPECT_EQ(Show(CPoint(60, 200)).TopLeft(), CPoint(60, 200));
    EXPECT_TRUE(m_tip.IsWindowVisible());
    EXPECT_EQ(ResultFor(CPoint(60, 200)), 1);
    EXPECT_EQ(m_screen.asked, CPoint(60, 200)) << "the monitor is that of the place";
}

TEST_F(HelpPlace, WhereTheSystemPlacesItItIsSizedAlone) {
    const CSize size = Show(CPoint(60, 200)).Size();
    Hide();
    m_tip.SetWindowPos(nullptr, 444, 333, 5, 5, SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(ResultFor(kSystems), 0);
    EXPECT_EQ(Window(), CRect(CPoint(444, 333), size));
    EXPECT_EQ(m_screen.asked, m_screen.pointer);
}

TEST_F(HelpPlace, AtTheBottomOfTheScreenItOpensAboveTheRibbonBarNotOverIt) {
    CRect bar;
    m_host.Bar().GetWindowRect(bar);
    m_screen.first = CRect(0, 0, 1600, bar.bottom + 10);
    m_host.Frame().SetWindowPos(nullptr, 0, 400, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    m_host.Bar().GetWindowRect(bar);
    m_screen.first = CRect(0, 0, 1600, bar.bottom + 10);
    m_screen.pointer = CPoint(100, bar.bottom - 20);
    for (const CPoint place : {CPoint(80, bar.bottom), CPoint(kSystems)}) {
        EXPECT_EQ(ResultFor(place), 1);
        EXPECT_EQ(Window().bottom, bar.top);
    }
}

TEST_F(HelpPlace, AtTheBottomWithoutAnElementItOpensAboveThePointer) {
    m_tip.SetHotRibbonButton(nullptr);
    m_screen.pointer = CPoint(100, m_screen.first.bottom - 5);
    EXPECT_EQ(ResultFor(kSystems), 1);
    EXPECT_EQ(Window().bottom, m_screen.pointer.y - 1);
    EXPECT_EQ(Window().left, 100);
}

TEST_F(HelpPlace, AtTheBottomThePointerDecidesWhateverPlaceTheOwnerHasSet) {
    m_tip.SetHotRibbonButton(nullptr);
    m_screen.pointer = CPoint(100, m_screen.first.bottom - 5);
    EXPECT_EQ(ResultFor(CPoint(60, 200)), 1);
    EXPECT_EQ(Window().left, 60);
    EXPECT_EQ(Window().bottom, m_screen.pointer.y - 1);
}

TEST_F(HelpPlace, AtTheRightEdgeItEndsOnePixelBeforeIt) {
    m_tip.SetHotRibbonButton(nullptr);
    m_screen.pointer = CPoint(m_screen.first.right - 5, 300);
    EXPECT_EQ(ResultFor(kSystems), 1);
    EXPECT_EQ(Window().right, m_screen.first.right - 1);
    EXPECT_EQ(Window().top, 300 + 32);
}

TEST_F(HelpPlace, OnTheSecondMonitorItStaysThere) {
    m_tip.SetHotRibbonButton(nullptr);
    m_screen.pointer = CPoint(-3, m_screen.second.bottom - 5);
    EXPECT_EQ(ResultFor(kSystems), 1);
    EXPECT_EQ(Window().right, -1);
    EXPECT_EQ(Window().bottom, m_screen.pointer.y - 1);
    m_screen.pointer.y = 200;
    EXPECT_EQ(ResultFor(CPoint(-1270, 100)), 1);
    EXPECT_EQ(Window().TopLeft(), CPoint(-1270, 100));
}

TEST_F(HelpPlace, TheSystemsScreenAnswersToo) {
    TooltipScreen::Use(nullptr);
    const TooltipScreen& system = TooltipScreen::Get();
    EXPECT_FALSE(system.WorkAreaAt(CPoint(0, 0)).IsRectEmpty());
    EXPECT_GT(system.PointerHeight(), 0);
    CPoint pointer;
    ::GetCursorPos(&pointer);
    EXPECT_EQ(system.Pointer(), pointer);
}

int g_asked = 0;
BOOL WINAPI NoMonitorInformation(HMONITOR, LPMONITORINFO) {
    ++g_asked;
    return FALSE;
}

TEST_F(HelpPlace, WithoutInformationOnTheMonitorTheDesktopsWorkAreaCounts) {
    TooltipScreen::Use(nullptr);
    CRect desktop;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &desktop, 0);
    const ImportSpy<decltype(NoMonitorInformation)> none(__imp_GetMonitorInfoW, &NoMonitorInformation);
    ASSERT_FALSE(desktop.IsRectEmpty());
    EXPECT_EQ(TooltipScreen::Get().WorkAreaAt(CPoint(-5000, 100)), desktop);
    EXPECT_EQ(g_asked, 1);
}

TEST_F(HelpPlace, ItNeitherTakesTheFocusNorTheForeground) {
    m_host.Frame().SetFocus();
    const HWND focus = ::GetFocus();
    Show();
    EXPECT_EQ(::GetFocus(), focus);
    EXPECT_NE(::GetActiveWindow(), m_tip.m_hWnd);
}

TEST_F(HelpPlace, ItsShapeIsARoundedRectangleOfItsSizePlusOne) {
    const CSize size = Show().Size();
    const HRGN expected = ::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, 4, 4);
    const HRGN shape = ::CreateRectRgn(0, 0, 0, 0);
    ASSERT_NE(m_tip.GetWindowRgn(shape), ERROR);
    EXPECT_EQ(::CombineRgn(shape, shape, expected, RGN_XOR), NULLREGION);
    ::DeleteObject(expected);
    ::DeleteObject(shape);
}

TEST_F(HelpPlace, WithoutRoundedCornersItHasNoShape) {
    Show();
    m_tip.m_Params.m_bRoundedCorners = FALSE;
    Show();
    const HRGN shape = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(m_tip.GetWindowRgn(shape), ERROR);
    ::DeleteObject(shape);
}

} // namespace
