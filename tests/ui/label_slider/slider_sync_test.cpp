// Sliders that stay at one position.
#include "ribbon_slider_sync.h"
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"

#include <gmock/gmock.h>

namespace {

constexpr UINT id = 500;

/// Reaches the parts of the face.
class OpenSlider : public CMFCRibbonSliderSync {
public:
    using CMFCRibbonSliderSync::CMFCRibbonSliderSync;
    CPoint ThumbCenter() const { return GetThumbRect().CenterPoint(); }
    CPoint CenterOf(RibbonSliderPart part) const {
        const CPoint middle = m_rect.CenterPoint();
        for (int x = m_rect.left; x < m_rect.right; ++x) {
            if (GetPartFromPoint({x, middle.y}) == part && GetPartFromPoint({x + 4, middle.y}) == part)
                return {x + 2, middle.y};
        }
        ADD_FAILURE() << "no such part";
        return {};
    }
    /// The point at which the thumb shows a position.
    CPoint PointOf(int pos) const {
        const CPoint middle = m_rect.CenterPoint();
        for (int x = m_rect.left; x < m_rect.right; ++x) {
            if (GetPosFromPoint({x, middle.y}) == pos)
                return {x, middle.y};
        }
        ADD_FAILURE() << "no point shows " << pos;
        return {};
    }
    void Press(CPoint point) { OnLButtonDown(point); }
    BOOL Key(UINT key) { return OnProcessKey(key); }
};

std::wstring TipOf(const CMFCRibbonBaseElement& element) { return element.GetToolTipText().GetString(); }

std::unique_ptr<OpenSlider> MakeSlider(UINT command = id, int width = 400) {
    auto slider = std::make_unique<OpenSlider>(command, width);
    slider->SetZoomButtons();
    slider->SetZoomIncrement(5);
    slider->SetRange(0, 40);
    return slider;
}

TEST(SliderSync, IsAPlainSliderWithItsIdAndWidth) {
    CMFCRibbonSliderSync slider(7, 80);
    EXPECT_EQ(slider.GetID(), 7u);
    EXPECT_EQ(slider.GetWidth(), 80);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CMFCRibbonSliderSync)->CreateObject());
    EXPECT_NE(DYNAMIC_DOWNCAST(CMFCRibbonSliderSync, made.get()), nullptr);
}

TEST(SliderSync, TheTooltipIsThePosition) {
    CMFCRibbonSliderSync slider(7);
    slider.SetRange(-100, 100);
    slider.SetPos(-42);
    slider.setTooltipFromPos();
    EXPECT_EQ(TipOf(slider), L"-42");
}

TEST(SliderSync, SettingAnyOneMovesAllAndTheirTooltips) {
    CMFCRibbonSliderSync root(id);
    CMFCRibbonSliderSync first(id);
    CMFCRibbonSliderSync second(id);
    CMFCRibbonSliderSync third(id);
    first.SetOriginal(&root);
    second.SetOriginal(&first); // a chain of three
    root.AddLinkedSlider(&third);
    CMFCRibbonSliderSync* const all[] = {&root, &first, &second};
    int pos = 10;
    for (CMFCRibbonSliderSync* one : all) {
        one->SetPosSync(++pos, FALSE);
        for (const CMFCRibbonSliderSync* slider : {&root, &first, &second, &third}) {
            EXPECT_EQ(slider->GetPos(), pos);
            EXPECT_EQ(TipOf(*slider), std::to_wstring(pos));
        }
    }
}

TEST(SliderSync, APositionOutsideOfTheRangeIsItsNearestEndInEveryCopyAndTooltip) {
    CMFCRibbonSliderSync root(id);
    CMFCRibbonSliderSync copy(id);
    copy.SetOriginal(&root);
    copy.SetPosSync(INT_MAX, TRUE);
    EXPECT_EQ(root.GetPos(), 100);
    EXPECT_EQ(TipOf(copy), L"100");
    copy.SetPosSync(INT_MIN, TRUE);
    EXPECT_EQ(root.GetPos(), 0);
    EXPECT_EQ(TipOf(root), L"0");
}

TEST(SliderSync, CopiesAndRootMayGoInAnyOrder) {
    auto root = std::make_unique<CMFCRibbonSliderSync>(id);
    auto first = std::make_unique<CMFCRibbonSliderSync>(id);
    auto second = std::make_unique<CMFCRibbonSliderSync>(id);
    first->SetOriginal(root.get());
    second->SetOriginal(first.get());
    first.reset();
    EXPECT_EQ(second->GetOriginal(), root.get());
    second->SetPosSync(30, FALSE);
    EXPECT_EQ(root->GetPos(), 30);
    root.reset();
    EXPECT_EQ(second->GetOriginal(), nullptr);
    second->SetPosSync(20, FALSE);
    EXPECT_EQ(second->GetPos(), 20);
}

TEST(SliderSync, ASliderIsLinkedOnceAndNeverToItself) {
    CMFCRibbonSliderSync root(id);
    {
        CMFCRibbonSliderSync copy(id);
        root.AddLinkedSlider(&copy);
        root.AddLinkedSlider(&copy);
        root.AddLinkedSlider(&root);
        root.AddLinkedSlider(nullptr);
    }
    root.SetPosSync(5, FALSE);
    EXPECT_EQ(root.GetPos(), 5);
}

TEST(SliderSync, AChainNeverBecomesARing) {
    CMFCRibbonSliderSync root(id);
    CMFCRibbonSliderSync copy(id);
    copy.SetOriginal(&root);
    root.SetOriginal(&copy);
    root.SetOriginal(&root);
    EXPECT_EQ(root.GetOriginal(), nullptr);
    copy.SetPosSync(5, FALSE);
    EXPECT_EQ(root.GetPos(), 5);
}

TEST(SliderSync, ACopyThatGetsAnotherOriginalFollowsThatOne) {
    CMFCRibbonSliderSync first(id);
    CMFCRibbonSliderSync second(id);
    CMFCRibbonSliderSync copy(id);
    copy.SetOriginal(&first);
    copy.SetOriginal(&second);
    first.SetPosSync(5, FALSE);
    EXPECT_EQ(copy.GetPos(), 0);
    second.SetPosSync(6, FALSE);
    EXPECT_EQ(copy.GetPos(), 6);
    copy.SetOriginal(nullptr);
    second.SetPosSync(7, FALSE);
    EXPECT_EQ(copy.GetPos(), 6);
}

TEST(SliderSync, WhoeverFollowedACopyFollowsItsRoot) {
    CMFCRibbonSliderSync root(id);
    CMFCRibbonSliderSync middle(id);
    CMFCRibbonSliderSync last(id);
    last.SetOriginal(&middle);
    middle.SetOriginal(&root);
    root.SetPosSync(8, FALSE);
    EXPECT_EQ(last.GetPos(), 8);
}

TEST(SliderSync, AnOriginalOfAnotherClassIsNoSource) {
    CMFCRibbonSlider plain(id);
    CMFCRibbonSliderSync slider(id);
    slider.SetOriginal(&plain);
    slider.SetPosSync(5, FALSE);
    EXPECT_EQ(slider.GetPos(), 5);
    EXPECT_EQ(plain.GetPos(), 0);
}

// ---- with a window

class SliderSyncInput : public testing::Test {
protected:
    void SetUp() override {
        m_root = &m_host.Add(MakeSlider());
        m_copy = &m_host.Add(MakeSlider());
        m_copy->SetOriginal(m_root);
        ASSERT_FALSE(m_copy->GetRect().IsRectEmpty());
    }
    ~SliderSyncInput() override { m_pointer.Release(); }

    int Commands() { return m_host.Frame().CountCommands(id); }
    void ExpectAllAt(int pos) {
        EXPECT_EQ(m_root->GetPos(), pos);
        EXPECT_EQ(m_copy->GetPos(), pos);
        EXPECT_EQ(TipOf(*m_root), std::to_wstring(pos));
        EXPECT_EQ(TipOf(*m_copy), std::to_wstring(pos));
    }

    RibbonHost m_host;
    Pointer m_pointer;
    OpenSlider* m_root = nullptr;
    OpenSlider* m_copy = nullptr;
};

TEST_F(SliderSyncInput, TheButtonsStepAndTellOnce) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.Click(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    ExpectAllAt(15);
    EXPECT_EQ(Commands(), 1);
    m_pointer.Click(m_host.BarWindow(), m_root->CenterOf(RibbonSliderPart::Decrease));
    ExpectAllAt(10);
    EXPECT_EQ(Commands(), 2);
}

TEST_F(SliderSyncInput, ADragTellsEachPositionThatThePointerReaches) {
    m_copy->SetPosSync(10, TRUE);
    std::vector<int> told;
    m_host.Frame().onMessage = [&](const HostMessage&) -> LRESULT {
        told.push_back(m_root->GetPos());
        return 0;
    };
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    for (int pos = 11; pos <= 14; ++pos) {
        m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(pos));
        m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(pos)); // no change, no command
    }
    EXPECT_THAT(told, testing::ElementsAre(11, 12, 13, 14));
    m_pointer.Release();
    ExpectAllAt(14);
}

TEST_F(SliderSyncInput, AMoveWithoutAPressOnlyLightsThePart) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    EXPECT_EQ(Commands(), 0);
    EXPECT_EQ(m_copy->GetPos(), 0);
}

TEST_F(SliderSyncInput, IsDrawnAnewWhenAnotherPartBecomesHotAndOnlyThen) {
    const auto isDrawnAnew = [this](CPoint point) {
        PumpPending();
        m_host.Bar().ValidateRect(nullptr);
        m_copy->OnMouseMove(point);
        return ::GetUpdateRect(m_host.BarWindow(), nullptr, FALSE) != FALSE;
    };
    EXPECT_TRUE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase)));
    EXPECT_FALSE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase) + CSize(1, 0)));
    EXPECT_TRUE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Decrease)));
    m_host.Frame().disabledCommand = id; // or the next update enables it again
    m_copy->SetDisabled(TRUE);
    EXPECT_FALSE(isDrawnAnew(m_copy->CenterOf(RibbonSliderPart::Increase)));
}

TEST_F(SliderSyncInput, AClickIntoTheChannelTakesThePositionThere) {
    m_pointer.Click(m_host.BarWindow(), m_copy->PointOf(33));
    ExpectAllAt(33);
    EXPECT_EQ(Commands(), 1);
}

TEST_F(SliderSyncInput, AReleaseOnAnotherPartDoesNothing) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Decrease));
    m_pointer.Release();
    EXPECT_EQ(Commands(), 0);
    EXPECT_EQ(m_copy->GetPos(), 0);
}

TEST_F(SliderSyncInput, APressThatIsTakenBackDoesNothing) {
    m_copy->SetPosSync(20, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    m_pointer.Press();
    ::SendMessageW(m_host.BarWindow(), WM_CANCELMODE, 0, 0);
    m_pointer.Release();
    ExpectAllAt(20);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, AHeldButtonRepeats) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    EXPECT_TRUE(m_copy->OnAutoRepeat());
    ExpectAllAt(15);
    EXPECT_TRUE(PumpUntil([this] { return m_root->GetPos() >= 25; })) << "the bar's timer repeats too";
    m_pointer.Release();
    EXPECT_GE(Commands(), 4);
    PumpPending();
    const int pos = m_root->GetPos();
    EXPECT_TRUE(m_copy->OnAutoRepeat()) << "no button is held: it goes on, and does nothing";
    EXPECT_EQ(m_root->GetPos(), pos);
}

TEST_F(SliderSyncInput, ADisabledSliderNeitherMovesNorRepeats) {
    m_copy->SetDisabled(TRUE);
    m_copy->Press(m_copy->CenterOf(RibbonSliderPart::Increase));
    EXPECT_FALSE(m_copy->OnAutoRepeat());
    m_copy->OnMouseMove(m_copy->PointOf(30));
    m_copy->OnLButtonUp(m_copy->PointOf(30));
    EXPECT_EQ(m_copy->GetPos(), 0);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, DisablingEndsADrag) {
    m_copy->SetPosSync(10, TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    m_copy->SetDisabled(TRUE);
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    m_pointer.Release();
    EXPECT_EQ(m_copy->GetPos(), 10);
    EXPECT_EQ(Commands(), 0);
}

TEST_F(SliderSyncInput, TheCommandIsTheRootsOne) {
    OpenSlider& other = m_host.Add(MakeSlider(501));
    other.SetOriginal(m_root);
    m_pointer.Click(m_host.BarWindow(), other.PointOf(33));
    EXPECT_EQ(Commands(), 1);
    EXPECT_EQ(m_host.Frame().CountCommands(501), 0);
}

TEST_F(SliderSyncInput, KeysMoveAllOfThem) {
    m_copy->SetPosSync(10, TRUE);
    EXPECT_TRUE(m_copy->Key(VK_RIGHT));
    ExpectAllAt(15);
    EXPECT_TRUE(m_copy->Key(VK_END));
    ExpectAllAt(40);
    EXPECT_EQ(Commands(), 2);
    EXPECT_TRUE(m_copy->Key(VK_END));
    EXPECT_EQ(Commands(), 2) << "nothing changed";
}

TEST_F(SliderSyncInput, AHostMayCloseItsWindowInTheCommand) {
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_host.Destroy();
        return 0;
    };
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->ThumbCenter());
    m_pointer.Press();
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->PointOf(30));
    EXPECT_FALSE(m_host.IsAlive());
}

TEST_F(SliderSyncInput, AHostMayCloseItsWindowWhileAButtonRepeats) {
    m_pointer.MoveTo(m_host.BarWindow(), m_copy->CenterOf(RibbonSliderPart::Increase));
    m_pointer.Press();
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_host.Destroy();
        return 0;
    };
    EXPECT_TRUE(PumpUntil([this] { return !m_host.IsAlive(); }));
}

TEST_F(SliderSyncInput, AHostMaySetThePositionInTheCommand) {
    m_host.Frame().onMessage = [this](const HostMessage&) -> LRESULT {
        m_root->SetPosSync(12, TRUE);
        return 0;
    };
    m_pointer.Click(m_host.BarWindow(), m_copy->PointOf(33));
    ExpectAllAt(12);
}

} // namespace
