// Rows of docked bars that are longer than their bars.
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/message_pump.h"
#include "toolbar_ex.h"

#include <afxcontrolbars.h>

namespace {

template <class Bar>
class BarFrame : public CFrameWndEx {
public:
    explicit BarFrame(BOOL isFromFile) { bar.m_bFromConfig = isFromFile; }
    ~BarFrame() override { DestroyWindow(); }

    void Open() {
        ASSERT_TRUE(Create(nullptr, L"Row", WS_OVERLAPPEDWINDOW, CRect(0, 0, 460, 240)));
        ASSERT_TRUE(bar.Create(this));
        bar.InsertButton(CMFCToolBarButton(3001, -1, L"Open"));
        EnableDocking(CBRS_ALIGN_ANY);
        bar.EnableDocking(CBRS_ALIGN_ANY);
        DockPane(&bar);
        ShowWindow(SW_SHOWNOACTIVATE);
        RecalcLayout();
        PumpPending();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_ERASE);
    }
    /// A pixel of the frame, so many below the bar's top.
    COLORREF At(int x, int below) {
        CRect place;
        bar.GetWindowRect(&place);
        ScreenToClient(&place);
        return CClientDC(this).GetPixel(x, place.top + below);
    }
    CRect BarInFrame() {
        CRect place;
        bar.GetWindowRect(&place);
        ScreenToClient(&place);
        return place;
    }
    int RightEdge() {
        CRect client;
        GetClientRect(&client);
        return client.right;
    }

    Bar bar;

protected:
    void PostNcDestroy() override {}
};

class RowOfBars : public SkinTest {
protected:
    template <class Skin>
    void ExpectOneLine() {
        Use<Skin>();
        BarFrame<CMFCToolBarEx> frame(TRUE);
        frame.Open();
        const COLORREF line = frame.At(frame.BarInFrame().right - 2, 0);
        EXPECT_NE(line, frame.At(frame.BarInFrame().right - 2, 2)) << "a line along the bar's top";
        ASSERT_LT(frame.BarInFrame().right + 20, frame.RightEdge());
        EXPECT_EQ(frame.At(frame.BarInFrame().right + 5, 0), line);
        EXPECT_EQ(frame.At(frame.RightEdge() - 1, 0), line);
        EXPECT_EQ(frame.At(frame.RightEdge() - 1, 2), frame.At(frame.BarInFrame().right - 2, 2)) << "one ground";
    }
};

TEST_F(RowOfBars, TheLineAlongBlackBarsReachesTheFramesEdge) { ExpectOneLine<OpenBlackSkin>(); }
TEST_F(RowOfBars, TheLineAlongSilverBarsReachesTheFramesEdge) { ExpectOneLine<OpenSilverSkin>(); }

TEST_F(RowOfBars, WhereBarsHaveNoLineTheRowHasNone) {
    Use<OpenBlackSkin>();
    BarFrame<CMFCToolBar> frame(FALSE);
    frame.Open();
    EXPECT_EQ(frame.At(frame.BarInFrame().right - 2, 0), frame.At(frame.BarInFrame().right - 2, 2));
    EXPECT_EQ(frame.At(frame.RightEdge() - 1, 0), frame.At(frame.RightEdge() - 1, 2));
}

} // namespace
