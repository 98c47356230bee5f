// A drag with the real pointer.
#include "ribbon_slider_sync.h"
#include "tests/support/real_mouse.h"
#include "tests/support/ribbon_host.h"

namespace {

class OpenSlider : public CMFCRibbonSliderSync {
public:
    using CMFCRibbonSliderSync::CMFCRibbonSliderSync;
    using CMFCRibbonSliderSync::GetPosFromPoint;
    CPoint ThumbCenter() const { return GetThumbRect().CenterPoint(); }
};

TEST(SliderDrag, TheRealPointerDragsEveryCopyAlong) {
    RibbonHost host;
    auto make = [] {
        auto slider = std::make_unique<OpenSlider>(500u, 300);
        slider->SetRange(0, 20);
        return slider;
    };
    OpenSlider& root = host.Add(make());
    OpenSlider& copy = host.Add(make());
    copy.SetOriginal(&root);
    copy.SetPosSync(5, TRUE);
    std::vector<int> told;
    host.Frame().onMessage = [&](const HostMessage&) -> LRESULT {
        told.push_back(root.GetPos());
        return 0;
    };
    ::SetForegroundWindow(host.Frame().GetSafeHwnd());
    CPoint from = copy.ThumbCenter();
    host.Bar().ClientToScreen(&from);
    SendMouse(from, 0);
    SendMouse(from, MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() == host.BarWindow(); }));
    CPoint point = from;
    // Two pixels at a time; a position is about 14 pixels wide.
    while (point.x < from.x + 100) {
        point.x += 2;
        SendMouse(point, 0);
        PumpPending();
    }
    SendMouse(point, MOUSEEVENTF_LEFTUP);
    ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() != host.BarWindow(); }));
    PumpPending();
    CPoint client = point;
    host.Bar().ScreenToClient(&client);
    EXPECT_EQ(root.GetPos(), copy.GetPosFromPoint(client));
    EXPECT_EQ(copy.GetPos(), root.GetPos());
    EXPECT_GT(root.GetPos(), 9);
    ASSERT_GE(told.size(), 5u);
    for (size_t i = 0; i + 1 < told.size(); ++i) {
        EXPECT_LE(told[i + 1] - told[i], 1) << "no position is left out";
    }
}

/// A button of a slider that the real pointer holds.
class HeldButton : public testing::Test {
protected:
    HeldButton() {
        auto made = std::make_unique<OpenSlider>(500u, 300);
        made->SetZoomButtons();
        made->SetRange(0, 100);
        made->SetZoomIncrement(1);
        m_slider = &m_host.Add(std::move(made));
        ::SystemParametersInfo(SPI_GETKEYBOARDDELAY, 0, &m_former, 0);
        ::SystemParametersInfo(SPI_SETKEYBOARDDELAY, 1, nullptr, 0); // about half a second
        ::SetForegroundWindow(m_host.Frame().GetSafeHwnd());
    }
    ~HeldButton() override { ::SystemParametersInfo(SPI_SETKEYBOARDDELAY, static_cast<UINT>(m_former), nullptr, 0); }

    /// Position of the slider after the button was held that long.
    int PositionAfter(DWORD milliseconds) {
        m_slider->SetPos(0);
        CPoint at(m_slider->GetRect().right - 6, m_slider->GetRect().CenterPoint().y);
        m_host.Bar().ClientToScreen(&at);
        SendMouse(at, 0);
        SendMouse(at, MOUSEEVENTF_LEFTDOWN);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCapture() == m_host.BarWindow(); }));
        const DWORD begin = ::GetTickCount();
        EXPECT_TRUE(PumpUntil([&] { return ::GetTickCount() - begin >= milliseconds; }));
        SendMouse(at, MOUSEEVENTF_LEFTUP);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCapture() != m_host.BarWindow(); }));
        PumpPending();
        return m_slider->GetPos();
    }

    RibbonHost m_host;
    OpenSlider* m_slider = nullptr;
    int m_former = 1;
};

TEST_F(HeldButton, StepsOnceForAClickHoweverSlow) {
    EXPECT_EQ(PositionAfter(120), 1);
    EXPECT_EQ(PositionAfter(300), 1);
}

TEST_F(HeldButton, RepeatsQuicklyOnceItIsHeldAsLongAsAKey) {
    const int position = PositionAfter(1200);
    EXPECT_GE(position, 3);
    EXPECT_LE(position, 9) << "half a second, then ten a second";
}

} // namespace
