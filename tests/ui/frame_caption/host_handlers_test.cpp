// A host's own handlers for what the frame does about its caption.
#include "caption_frame.h"

namespace {

template <class Base>
class AskingFrame : public CaptionFrame<Base> {
public:
    int asked = 0;
    bool answersItself = false;

protected:
    afx_msg LRESULT OnNcHitTest(CPoint point) {
        ++asked;
        return answersItself ? HTBORDER : Base::OnNcHitTest(point);
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_TEMPLATE_MESSAGE_MAP(AskingFrame, Base, CaptionFrame<Base>)
ON_WM_NCHITTEST()
END_MESSAGE_MAP()

template <class Frame>
class HostHandlers : public ::testing::Test {};

using Frames = ::testing::Types<AskingFrame<CFrameWndEx>, AskingFrame<CMDIFrameWndEx>>;
TYPED_TEST_SUITE(HostHandlers, Frames);

TYPED_TEST(HostHandlers, AreAskedFirstAndReachTheFramesOwnAnswerThroughTheBaseClass) {
    TypeParam frame;
    frame.Show();
    frame.asked = 0;
    const CPoint caption = frame.CaptionPoint();
    EXPECT_EQ(frame.HitAt(caption), HTCAPTION);
    EXPECT_EQ(frame.asked, 1);
    frame.answersItself = true;
    EXPECT_EQ(frame.HitAt(caption), HTBORDER) << "the frame's answer is asked for only by the host";
}

TYPED_TEST(HostHandlers, AFrameThatKeepsItsCaptionLeavesItToTheSystem) {
    TypeParam frame;
    frame.Show();
    frame.bar.ShowPane(FALSE, FALSE, FALSE);
    frame.RecalcLayout();
    PumpPending();
    ASSERT_TRUE(frame.HasCaptionStyle());
    const CRect window = frame.WindowRect();
    EXPECT_EQ(frame.HitAt(CPoint(window.CenterPoint().x, window.top + ::GetSystemMetrics(SM_CYSIZEFRAME) + 8)),
              HTCAPTION);
}

} // namespace
