// What bars, pop-ups and the ribbon ask of the frame around them without knowing its class.
#include "frame_fixture.h"

#include "afxframewndex.h"
#include "afxMDIFrameWndEx.h"
#include "afxPane.h"

namespace {

/// A frame of a host that answers itself.
template <class Frame>
class Answering : public Frame {
public:
    BOOL OnShowPopupMenu(CMFCPopupMenu*) override {
        ++shown;
        return FALSE;
    }
    void OnClosePopupMenu(CMFCPopupMenu*) override { ++closed; }
    BOOL OnDrawMenuImage(CDC*, const CMFCToolBarMenuButton*, const CRect&) override { return TRUE; }
    BOOL GetToolbarButtonToolTipText(CMFCToolBarButton*, CString& text) override {
        text = L"of the host";
        return TRUE;
    }
    int shown = 0;
    int closed = 0;
};

template <class Frame>
class FrameThatHostsBars : public ::testing::Test {};
using HostingFrames = ::testing::Types<CFrameWndEx, CMDIFrameWndEx>;
TYPED_TEST_SUITE(FrameThatHostsBars, HostingFrames);

TYPED_TEST(FrameThatHostsBars, AnswersWithItsOverridableMembers) {
    Owned<Answering<TypeParam>> frame;
    CFrameWnd& asBarsSeeIt = frame;
    EXPECT_FALSE(asBarsSeeIt.OnShowPopupMenu(nullptr));
    EXPECT_EQ(frame.shown, 1);
    asBarsSeeIt.OnClosePopupMenu(nullptr);
    EXPECT_EQ(frame.closed, 1);
    EXPECT_TRUE(asBarsSeeIt.OnDrawMenuImage(nullptr, nullptr, CRect()));
    CString text;
    EXPECT_TRUE(asBarsSeeIt.GetToolbarButtonToolTipText(nullptr, text));
    EXPECT_EQ(text, L"of the host");
}

TEST(FrameHooks, AFrameWithoutPanesLetsEveryMenuOpenAndLeavesTheRestToTheBars) {
    Owned<CFrameWnd> frame;
    EXPECT_TRUE(frame.OnShowPopupMenu(nullptr));
    EXPECT_FALSE(frame.OnDrawMenuImage(nullptr, nullptr, CRect()));
    CString text = L"as before";
    EXPECT_FALSE(frame.GetToolbarButtonToolTipText(nullptr, text));
    EXPECT_EQ(text, L"as before");
}

TEST(FrameHooks, OnlyAnMdiFrameHasAnMdiClient) {
    Owned<CFrameWndEx> single;
    Owned<CMDIFrameWndEx> multiple;
    ASSERT_TRUE(single.Load());
    ASSERT_TRUE(multiple.Load());
    EXPECT_EQ(single.GetMDIClient(), nullptr);
    const CFrameWnd& asTheRibbonSeesIt = multiple;
    ASSERT_NE(asTheRibbonSeesIt.GetMDIClient(), nullptr);
    EXPECT_EQ(::GetParent(asTheRibbonSeesIt.GetMDIClient()), multiple.m_hWnd);
}

TEST(FrameHooks, AnApplicationWithoutSectionsKeepsNoStateOfPanes) {
    EXPECT_EQ(g_application.GetStateStore(), nullptr);
    Owned<CFrameWndEx> frame;
    ASSERT_TRUE(frame.Load());
    CPane pane;
    ASSERT_TRUE(pane.Create(nullptr, WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 1, 1), &frame, 1));
    EXPECT_FALSE(pane.SaveState(L"Anywhere"));
    EXPECT_FALSE(pane.LoadState(L"Anywhere"));
}

} // namespace
