#include "status_frame.h"

#include "tests/support/pointer.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class FinishingPane : public CMFCRibbonStatusBarPane {
public:
    using CMFCRibbonStatusBarPane::CMFCRibbonStatusBarPane;
    int finished = 0;

protected:
    void OnFinishAnimation() override { ++finished; }
};

/// Two frames of 16 x 16.
class FramesBitmap {
public:
    FramesBitmap() : m_bitmap(::CreateBitmap(32, 16, 1, 32, nullptr)) {}
    ~FramesBitmap() { ::DeleteObject(m_bitmap); }
    FramesBitmap(const FramesBitmap&) = delete;
    FramesBitmap& operator=(const FramesBitmap&) = delete;
    HBITMAP Get() const { return m_bitmap; }

private:
    HBITMAP m_bitmap;
};

class StatusBarPane : public StatusBarTest {
protected:
    template <class Pane>
    Pane& Add(Pane* pane) {
        Bar().AddElement(pane, L"");
        LayOut();
        return *pane;
    }
    void PumpFor(DWORD milliseconds) {
        const ULONGLONG end = ::GetTickCount64() + milliseconds;
        while (::GetTickCount64() < end) {
            PumpPending();
            ::Sleep(5);
        }
    }
};

TEST_F(StatusBarPane, IsAsWideAsItsText) {
    const auto& narrow = Add(new CMFCRibbonStatusBarPane(1, L"12"));
    const auto& wide = Add(new CMFCRibbonStatusBarPane(2, L"12345678"));
    EXPECT_GT(wide.GetRect().Width(), narrow.GetRect().Width());
}

TEST_F(StatusBarPane, IsAsWideAsItsAlmostLargeTextWhateverItShows) {
    auto& pane = Add(new CMFCRibbonStatusBarPane(1, L"1", FALSE, nullptr, L"12345678"));
    const auto& wide = Add(new CMFCRibbonStatusBarPane(2, L"12345678"));
    EXPECT_STREQ(pane.GetAlmostLargeText(), L"12345678");
    const int width = pane.GetRect().Width();
    EXPECT_EQ(width, wide.GetRect().Width());
    pane.SetText(L"1234567890 and more");
    Bar().EnsureLayout();
    EXPECT_EQ(pane.GetRect().Width(), width);
    pane.SetAlmostLargeText(L"1");
    Bar().EnsureLayout();
    EXPECT_LT(pane.GetRect().Width(), width);
}

TEST_F(StatusBarPane, AnIconStandsBesideTheText) {
    const auto& plain = Add(new CMFCRibbonStatusBarPane(1, L"Text"));
    const auto& marked = Add(new CMFCRibbonStatusBarPane(2, L"Text", FALSE, ::LoadIconW(nullptr, IDI_INFORMATION)));
    EXPECT_GE(marked.GetRect().Width(), plain.GetRect().Width() + 16);
}

TEST_F(StatusBarPane, KnowsItsAreaAndItsAlignment) {
    auto& pane = Add(new CMFCRibbonStatusBarPane(1, L"Text"));
    EXPECT_FALSE(pane.IsExtended());
    EXPECT_EQ(pane.GetTextAlign(), TA_LEFT);
    pane.SetTextAlign(TA_RIGHT);
    EXPECT_EQ(pane.GetTextAlign(), TA_RIGHT);
    auto* const extended = new CMFCRibbonStatusBarPane(2, L"Text");
    EXPECT_FALSE(extended->IsExtended());
    Bar().AddExtendedElement(extended, L"");
    EXPECT_TRUE(extended->IsExtended());
}

TEST_F(StatusBarPane, AClickSendsItsCommandAStaticOneSendsNothing) {
    const auto& pane = Add(new CMFCRibbonStatusBarPane(1, L"Button"));
    const auto& fixed = Add(new CMFCRibbonStatusBarPane(2, L"Static", TRUE));
    Pointer pointer;
    pointer.Click(Bar().GetSafeHwnd(), pane.GetRect().CenterPoint());
    pointer.Click(Bar().GetSafeHwnd(), fixed.GetRect().CenterPoint());
    PumpPending();
    EXPECT_THAT(m_frame->commands, ElementsAre(1));
    EXPECT_TRUE(pane.IsTabStop());
    EXPECT_FALSE(fixed.IsTabStop());
}

TEST_F(StatusBarPane, WithoutFramesNoAnimationStarts) {
    auto& pane = Add(new FinishingPane(1, L"Text"));
    pane.StartAnimation(10);
    EXPECT_FALSE(pane.IsAnimation());
    pane.StopAnimation();
    EXPECT_EQ(pane.finished, 0);
    EXPECT_FALSE(pane.SetAnimationList(64999U));
}

TEST_F(StatusBarPane, AnAnimationRunsUntilItIsStopped) {
    const FramesBitmap frames;
    auto& pane = Add(new FinishingPane(1, L"Text", frames.Get(), 16));
    pane.StartAnimation(10);
    EXPECT_TRUE(pane.IsAnimation());
    PumpFor(60);
    EXPECT_TRUE(pane.IsAnimation());
    pane.StopAnimation();
    EXPECT_FALSE(pane.IsAnimation());
    EXPECT_EQ(pane.finished, 1);
    pane.StopAnimation();
    EXPECT_EQ(pane.finished, 1);
}

TEST_F(StatusBarPane, AnAnimationEndsByItselfAfterItsDuration) {
    const FramesBitmap frames;
    auto& pane = Add(new FinishingPane(1, L"Text", frames.Get(), 16));
    pane.StartAnimation(10, 40);
    const ULONGLONG limit = ::GetTickCount64() + 5000;
    while (pane.IsAnimation() && ::GetTickCount64() < limit) {
        PumpPending();
        ::Sleep(5);
    }
    EXPECT_FALSE(pane.IsAnimation());
    EXPECT_EQ(pane.finished, 1);
}

TEST_F(StatusBarPane, AnAnimationGoesWithItsPane) {
    const FramesBitmap frames;
    auto& pane = Add(new FinishingPane(1, L"Text", frames.Get(), 16));
    pane.StartAnimation(10);
    EXPECT_TRUE(Bar().RemoveElement(1));
    PumpFor(40);
    EXPECT_EQ(Bar().GetCount(), 0);
}

TEST_F(StatusBarPane, ACopyHasItsTextsAndItsKind) {
    CMFCRibbonStatusBarPane source(5, L"Text", TRUE, nullptr, L"A longer text");
    source.SetTextAlign(TA_CENTER);
    CMFCRibbonStatusBarPane copy;
    copy.CopyFrom(source);
    EXPECT_EQ(copy.GetID(), 5u);
    EXPECT_STREQ(copy.GetAlmostLargeText(), L"A longer text");
    EXPECT_EQ(copy.GetTextAlign(), TA_CENTER);
    EXPECT_TRUE(copy.IsStatic());
}

TEST_F(StatusBarPane, ProgressKeepsItsPositionInItsRange) {
    CMFCRibbonProgressBar progress(1, 100, 20);
    EXPECT_EQ(progress.GetRangeMin(), 0);
    EXPECT_EQ(progress.GetRangeMax(), 100);
    progress.SetPos(250);
    EXPECT_EQ(progress.GetPos(), 100);
    progress.SetRange(50, 10);
    EXPECT_EQ(progress.GetRangeMin(), 10);
    EXPECT_EQ(progress.GetRangeMax(), 50);
    EXPECT_EQ(progress.GetPos(), 50);
    progress.SetPos(-3);
    EXPECT_EQ(progress.GetPos(), 10);
}

TEST_F(StatusBarPane, ProgressWithoutAnEndGoesRound) {
    CMFCRibbonProgressBar progress(1);
    progress.SetRange(0, 9);
    progress.SetInfiniteMode();
    EXPECT_TRUE(progress.IsInfiniteMode());
    progress.SetPos(12);
    EXPECT_EQ(progress.GetPos(), 2);
    progress.SetPos(-1);
    EXPECT_EQ(progress.GetPos(), 9);
}

TEST_F(StatusBarPane, ProgressHasItsSizeAtTheScaleInForce) {
    auto* const progress = new CMFCRibbonProgressBar(1, 120, 14);
    Bar().AddElement(progress, L"");
    LayOut();
    EXPECT_EQ(progress->GetRect().Size(), CSize(120, 14));
}

} // namespace
