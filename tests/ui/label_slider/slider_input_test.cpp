// How often a slider that is moved tells its host, and what is drawn anew.
#include "tests/ui/label_slider/slider_fixture.h"

namespace {

using SliderInput = SliderSyncInput;

TEST_F(SliderInput, ARedrawIsPassedOnToTheRootAndEveryCopy) {
    OpenSlider& third = m_host.Add(MakeSlider());
    third.SetOriginal(m_copy);
    const auto isDrawnAnew = [this](const CMFCRibbonSliderSync& slider) {
        CRgn update;
        update.CreateRectRgn(0, 0, 0, 0);
        ::GetUpdateRgn(m_host.BarWindow(), static_cast<HRGN>(update.GetSafeHandle()), FALSE);
        return update.RectInRegion(slider.GetRect()) != FALSE;
    };
    PumpPending();
    m_host.Bar().ValidateRect(nullptr);
    m_copy->SetPosSync(20, FALSE);
    EXPECT_FALSE(::GetUpdateRect(m_host.BarWindow(), nullptr, FALSE));
    EXPECT_EQ(third.GetPos(), 20);
    m_copy->SetPosSync(30, TRUE);
    for (const OpenSlider* slider : {m_root, m_copy, &third}) {
        EXPECT_TRUE(isDrawnAnew(*slider));
    }
}

TEST_F(SliderInput, AHostsNoticeFromTheMiddleOfAChainReachesAllAndIsTheRootsCommand) {
    OpenSlider& middle = m_host.Add(MakeSlider(sliderId + 1));
    OpenSlider& last = m_host.Add(MakeSlider(sliderId + 2));
    middle.SetOriginal(m_root);
    last.SetOriginal(&middle);
    middle.SetPos(17);
    middle.NotifyCommandSync();
    ExpectAllAt(17);
    EXPECT_EQ(last.GetPos(), 17);
    EXPECT_EQ(TipOf(last), L"17");
    EXPECT_EQ(TipOf(middle), L"17");
    EXPECT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_EQ(Commands(), 1);
}

TEST_F(SliderInput, ANoticeFromASliderThatIsOnlyLinkedIsItsOwnCommand) {
    OpenSlider& linked = m_host.Add(MakeSlider(sliderId + 1));
    m_root->AddLinkedSlider(&linked);
    m_root->SetPosSync(10, TRUE);
    EXPECT_EQ(linked.GetPos(), 10);
    linked.SetPos(17);
    linked.NotifyCommandSync();
    EXPECT_EQ(TipOf(linked), L"17");
    ExpectAllAt(10);
    EXPECT_EQ(m_host.Frame().received.size(), 1u);
    EXPECT_EQ(Commands(sliderId + 1), 1);
}

TEST_F(SliderInput, AReleaseOfTheThumbTellsOnceMore) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    EXPECT_EQ(Commands(), 0);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(14));
    EXPECT_EQ(Commands(), 1);
    m_pointer.Release();
    EXPECT_EQ(Commands(), 2);
    ExpectAllAt(14);
}

TEST_F(SliderInput, AButtonTellsAtTheEndOfTheRangeToo) {
    m_copy->SetPosSync(40, TRUE);
    m_pointer.Click(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    ExpectAllAt(40);
    EXPECT_EQ(Commands(), 1);
    m_root->SetPosSync(0, TRUE);
    m_pointer.Click(m_host.BarWindow(), m_root->CenterOf(RibbonSliderPart::Decrease));
    ExpectAllAt(0);
    EXPECT_EQ(Commands(), 2);
}

TEST_F(SliderInput, AReleaseAfterRepeatsIsOneMoreStep) {
    const CPoint button = m_copy->CenterOf(RibbonSliderPart::Increase);
    m_copy->OnMouseMove(button);
    m_copy->Press(button); // without the bar's timer
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    ExpectAllAt(10);
    EXPECT_EQ(Commands(), 2);
    m_copy->OnLButtonUp(button);
    ExpectAllAt(15);
    EXPECT_EQ(Commands(), 3);
}

TEST_F(SliderInput, AHeldButtonGoesOnThoughThePointerHasLeftIt) {
    const CPoint button = m_copy->CenterOf(RibbonSliderPart::Decrease);
    m_copy->SetPosSync(20, TRUE);
    m_copy->Press(button);
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    m_copy->OnMouseMove(m_copy->PointOf(30));
    ExpectAllAt(15);
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    ExpectAllAt(10);
    EXPECT_EQ(Commands(), 2);
    m_copy->OnLButtonUp(m_copy->PointOf(30));
    ExpectAllAt(10);
    EXPECT_EQ(Commands(), 2) << "let go on another part";
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    ExpectAllAt(10);
}

TEST_F(SliderInput, AReleaseOfTheThumbTakesThePositionUnderThePoint) {
    OpenSlider& narrow = m_host.Add(MakeSlider(sliderId, 120)); // few pixels for a position
    narrow.SetOriginal(m_root);
    narrow.SetPosSync(10, TRUE);
    narrow.Press(narrow.ThumbCenter());
    const CPoint other = narrow.PointOf(11);
    ASSERT_EQ(narrow.GetPartFromPoint(other), RibbonSliderPart::Thumb) << "still on the thumb";
    narrow.OnLButtonUp(other);
    ExpectAllAt(11);
    EXPECT_EQ(Commands(), 1);
}

TEST_F(SliderInput, APressAndReleaseBesideThePartsMovesToThatEnd) {
    const CRect rect = m_copy->GetRect();
    struct Case {
        CPoint point;
        int pos;
    };
    for (const Case& one :
         {Case{CPoint(rect.left, rect.CenterPoint().y), 0}, Case{CPoint(rect.right - 1, rect.CenterPoint().y), 40}}) {
        m_copy->SetPosSync(20, TRUE);
        ASSERT_EQ(m_copy->GetPartFromPoint(one.point), RibbonSliderPart::None);
        m_copy->Press(one.point);
        m_copy->OnLButtonUp(one.point);
        ExpectAllAt(one.pos);
    }
    EXPECT_EQ(Commands(), 2);
    m_copy->Press(CPoint(rect.left, rect.CenterPoint().y));
    m_copy->OnLButtonUp(CPoint(rect.left - 1, rect.CenterPoint().y));
    ExpectAllAt(40);
    EXPECT_EQ(Commands(), 2) << "let go outside of the slider";
}

TEST_F(SliderInput, LeftAndRightMeanWhatIsSeenInAMirroredWindow) {
    m_copy->SetPosSync(20, TRUE);
    m_host.Bar().ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_TRUE(m_copy->Key(VK_LEFT));
    ExpectAllAt(25);
    EXPECT_TRUE(m_copy->Key(VK_RIGHT));
    EXPECT_TRUE(m_copy->Key(VK_RIGHT));
    ExpectAllAt(15);
    EXPECT_TRUE(m_copy->Key(VK_UP));
    ExpectAllAt(20);
    EXPECT_TRUE(m_copy->Key(VK_DOWN));
    ExpectAllAt(15);
    m_host.Bar().ModifyStyleEx(WS_EX_LAYOUTRTL, 0);
    EXPECT_TRUE(m_copy->Key(VK_LEFT));
    ExpectAllAt(10);
}

} // namespace
