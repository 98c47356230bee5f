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

} // namespace
