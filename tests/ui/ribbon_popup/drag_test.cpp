// One press of the real mouse from a button into its menu.
#include <gmock/gmock.h>

#include "tests/support/real_mouse.h"
#include "tests/ui/ribbon_popup/popup_fixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PressAndDrag : public RibbonPopupTest {
protected:
    static void Send(CPoint screen, DWORD flags) {
        SendMouse(screen, flags);
        PumpPending();
    }
    static CPoint MiddleOf(const CMFCRibbonBaseElement& element) {
        CPoint point = element.GetRect().CenterPoint();
        element.GetParentWnd()->ClientToScreen(&point);
        return point;
    }
    void PressOn(const CMFCRibbonBaseElement& element) {
        ::SetForegroundWindow(m_window);
        const CPoint at = MiddleOf(element);
        Send(at, 0);
        Send(at, MOUSEEVENTF_LEFTDOWN);
        m_at = at;
    }
    /// In small steps, as a hand does.
    void DragTo(const CMFCRibbonBaseElement& element) {
        const CPoint to = MiddleOf(element);
        for (int step = 1; step <= 5; ++step) {
            Send(CPoint(m_at.x + (to.x - m_at.x) * step / 5, m_at.y + (to.y - m_at.y) * step / 5), 0);
        }
        m_at = to;
    }
    void Release() { Send(m_at, MOUSEEVENTF_LEFTUP); }

    CPoint m_at{0, 0};
};

TEST_F(PressAndDrag, TheReleaseOnARowRunsIt) {
    PressOn(Shapes());
    ASSERT_EQ(OpenCount(), 1);
    EXPECT_EQ(::GetCapture(), nullptr);
    DragTo(SubItem(1));
    EXPECT_TRUE(SubItem(1).IsHighlighted());
    Release();
    EXPECT_THAT(m_frame->commands, ElementsAre(kStar));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(PressAndDrag, TheReleaseOnTheButtonLeavesTheMenuOpen) {
    PressOn(Shapes());
    Release();
    EXPECT_EQ(OpenCount(), 1);
    EXPECT_TRUE(Shapes().IsDroppedDown());
    EXPECT_FALSE(Shapes().IsPressed());
}

TEST_F(PressAndDrag, ARowWithAMenuOpensOnTheWayAndItsItemRuns) {
    PressOn(Shapes());
    DragTo(SubItem(3));
    ASSERT_TRUE(PumpUntil([] { return OpenCount() == 2; }));
    DragTo(*SubItem(3).GetSubItems()[1]);
    Release();
    EXPECT_THAT(m_frame->commands, ElementsAre(kSquare));
    EXPECT_EQ(OpenCount(), 0);
}

TEST_F(PressAndDrag, TheReleaseOnADisabledRowRunsNothing) {
    PressOn(Shapes());
    DragTo(SubItem(4));
    Release();
    EXPECT_THAT(m_frame->commands, IsEmpty());
    EXPECT_EQ(OpenCount(), 1);
}

TEST_F(PressAndDrag, TheReleaseInACollapsedPanelsPopupRunsTheButton) {
    CMFCRibbonPanel& panel = Collapse(0);
    PressOn(panel.GetDefaultButton());
    ASSERT_EQ(OpenCount(), 1);
    DragTo(*panel.GetElement(0));
    Release();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::paste));
}

TEST_F(PressAndDrag, APressThatStaysInTheBarIsAnOrdinaryClick) {
    PressOn(Element(commands::cut));
    EXPECT_EQ(::GetCapture(), Bar().GetSafeHwnd());
    Release();
    EXPECT_THAT(m_frame->commands, ElementsAre(commands::cut));
}

} // namespace
