// Where the viewer's status bar shows that the map is being drawn.
#include "tests/support/message_pump.h"
#include "tests/support/ui_test.h"

#include "viewer_status_bar.h"

#include <afxframewndex.h>
#include <afxglobals.h>
#include <afxRibbonProgressBar.h>

namespace {

/// Lives on the stack: its window's end does not delete it.
class HostFrame : public CFrameWndEx {
protected:
    void PostNcDestroy() override {}
};

class StatusProgress : public testing::TestWithParam<int> {
protected:
    StatusProgress() { EXPECT_TRUE(afxGlobalData.SetRibbonImageScale(GetParam() / 100.0)); }
    ~StatusProgress() override {
        if (frame.GetSafeHwnd() != nullptr) {
            frame.DestroyWindow();
        }
        PumpPending();
        afxGlobalData.SetRibbonImageScale(0);
    }
    CMFCRibbonProgressBar* Progress() {
        for (int i = 0; i < bar.GetCount(); ++i) {
            if (auto* const found = DYNAMIC_DOWNCAST(CMFCRibbonProgressBar, bar.GetElement(i))) {
                return found;
            }
        }
        return nullptr;
    }

    HostFrame frame;
    CViewerStatusBar bar;
};

TEST_P(StatusProgress, StandsInTheMiddleOfItsRowAtEveryScale) {
    ASSERT_TRUE(frame.Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 500)));
    ASSERT_TRUE(bar.Create(&frame, nullptr));
    bar.ShowMode(MapMode::Browse);
    frame.RecalcLayout();
    bar.ShowWork(true);
    CMFCRibbonProgressBar* const progress = Progress();
    ASSERT_NE(progress, nullptr);
    ASSERT_TRUE(PumpUntil([&] { return !progress->GetRect().IsRectEmpty(); }));
    CRect client;
    bar.GetClientRect(client);
    const CRect rect = progress->GetRect();
    EXPECT_NEAR(rect.top - client.top, client.bottom - rect.bottom, 4)
        << "from " << rect.top << " to " << rect.bottom << " in " << client.Height();
    bar.ShowWork(false);
    EXPECT_FALSE(progress->IsVisible());
}

INSTANTIATE_TEST_SUITE_P(Scales, StatusProgress, testing::Values(100, 125, 150, 200));

} // namespace
