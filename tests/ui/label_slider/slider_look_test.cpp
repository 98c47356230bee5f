// A slider in all its states, by pixels.
#include "ribbon_slider_sync.h"
#include "tests/support/canvas.h"
#include "tests/support/ui_test.h"

#include <afxglobals.h>
#include <afxvisualmanageroffice2007.h>

#include <memory>

namespace {

using Style = CMFCVisualManagerOffice2007::Style;

class OpenSlider : public CMFCRibbonSliderSync {
public:
    using CMFCRibbonSliderSync::CMFCRibbonSliderSync;
    using CMFCRibbonSliderSync::GetThumbRect;
    void Press(CPoint point) { OnLButtonDown(point); }
    /// The button at an end of the slider, without the channel.
    CRect ButtonAt(RibbonSliderPart part) const {
        CRect button(m_rect.right, m_rect.top, m_rect.left, m_rect.bottom);
        for (int x = m_rect.left; x < m_rect.right; ++x) {
            if (GetPartFromPoint({x, m_rect.CenterPoint().y}) == part) {
                button.left = std::min<LONG>(button.left, x);
                button.right = std::max<LONG>(button.right, x + 1);
            }
        }
        return button;
    }
};

struct Look {
    Style style;
    double scale;
};

class SliderLook : public testing::TestWithParam<Look> {
protected:
    SliderLook() {
        CMFCVisualManagerOffice2007::SetStyle(GetParam().style);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        m_slider.SetZoomButtons();
        m_slider.SetRange(0, 40);
        m_slider.SetPos(20);
    }
    ~SliderLook() override {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManager));
        CMFCVisualManagerOffice2007::CleanStyle();
        afxGlobalData.SetRibbonImageScale(0);
    }
    void SetUp() override {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(GetParam().scale));
        m_slider.SetRect(CRect(Scaled(10), Scaled(10), Scaled(190), Scaled(34)));
    }
    static int Scaled(int length) { return static_cast<int>(length * GetParam().scale); }

    std::unique_ptr<Canvas> Draw() {
        auto canvas = std::make_unique<Canvas>(CSize(Scaled(200), Scaled(44)));
        m_slider.OnDraw(canvas->Dc());
        return canvas;
    }
    static bool IsSame(const Canvas& one, const Canvas& other, const CRect& place) {
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                if (one.At(x, y) != other.At(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }
    static bool IsSame(const Canvas& one, const Canvas& other) {
        return IsSame(one, other, CRect(CPoint(), one.Size()));
    }
    /// How much of the part differs from the background: its drawn width and height.
    static CSize DrawnIn(const Canvas& canvas, const CRect& place) {
        CRect drawn(place.right, place.bottom, place.left, place.top);
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                if (canvas.At(x, y) == Canvas::background) {
                    continue;
                }
                drawn = CRect(std::min<LONG>(drawn.left, x), std::min<LONG>(drawn.top, y),
                              std::max<LONG>(drawn.right, x + 1), std::max<LONG>(drawn.bottom, y + 1));
            }
        }
        return drawn.Size();
    }
    CRect Part(RibbonSliderPart part) const {
        return part == RibbonSliderPart::Thumb ? m_slider.GetThumbRect() : m_slider.ButtonAt(part);
    }

    OpenSlider m_slider{500, 100};
};

constexpr RibbonSliderPart allParts[] = {RibbonSliderPart::Decrease, RibbonSliderPart::Thumb,
                                         RibbonSliderPart::Increase};

TEST_P(SliderLook, ADisabledSlidersThumbAndButtonsAreDrawnInAnotherWay) {
    const auto enabled = Draw();
    m_slider.SetDisabled(TRUE);
    const auto disabled = Draw();
    for (const RibbonSliderPart part : allParts) {
        ASSERT_FALSE(Part(part).IsRectEmpty());
        EXPECT_FALSE(IsSame(*enabled, *disabled, Part(part))) << static_cast<int>(part);
    }
    m_slider.SetDisabled(FALSE);
    EXPECT_TRUE(IsSame(*Draw(), *enabled));
}

TEST_P(SliderLook, APartUnderThePointerIsHotAndAPressedOnePressed) {
    const auto cold = Draw();
    for (const RibbonSliderPart part : allParts) {
        m_slider.OnMouseMove(Part(part).CenterPoint());
        const auto hot = Draw();
        EXPECT_FALSE(IsSame(*hot, *cold, Part(part))) << static_cast<int>(part);
        for (const RibbonSliderPart other : allParts) {
            EXPECT_TRUE(other == part || IsSame(*hot, *cold, Part(other))) << static_cast<int>(other);
        }
        m_slider.Press(Part(part).CenterPoint());
        EXPECT_FALSE(IsSame(*Draw(), *hot, Part(part))) << static_cast<int>(part);
        m_slider.OnLButtonUp(CPoint(0, 0)); // beside it: nothing is done
    }
}

TEST_P(SliderLook, ADisabledSliderShowsNoPartHot) {
    m_slider.SetDisabled(TRUE);
    const auto disabled = Draw();
    m_slider.SetDisabled(FALSE);
    for (const RibbonSliderPart part : allParts) {
        m_slider.OnMouseMove(Part(part).CenterPoint());
        m_slider.SetDisabled(TRUE);
        EXPECT_TRUE(IsSame(*Draw(), *disabled)) << static_cast<int>(part);
        m_slider.SetDisabled(FALSE);
    }
}

TEST_P(SliderLook, ThumbAndButtonsAreAsLargeAsTheScaleMakesThem) {
    const auto drawn = Draw();
    std::vector<CSize> sizes;
    for (const RibbonSliderPart part : allParts) {
        sizes.push_back(DrawnIn(*drawn, Part(part)));
    }
    ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(1.0));
    m_slider.SetRect(CRect(10, 10, 190, 34));
    const auto plain = Draw();
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const CSize unscaled = DrawnIn(*plain, Part(allParts[i]));
        ASSERT_GT(unscaled.cx, 4);
        EXPECT_NEAR(sizes[i].cx, unscaled.cx * GetParam().scale, 2) << i;
        EXPECT_NEAR(sizes[i].cy, unscaled.cy * GetParam().scale, 2) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Skins, SliderLook,
                         testing::Values(Look{Style::Office2007_ObsidianBlack, 1.0},
                                         Look{Style::Office2007_ObsidianBlack, 1.5},
                                         Look{Style::Office2007_ObsidianBlack, 2.0},
                                         Look{Style::Office2007_Silver, 1.0}, Look{Style::Office2007_Silver, 1.5},
                                         Look{Style::Office2007_Silver, 2.0}),
                         [](const auto& info) {
                             return (info.param.style == Style::Office2007_Silver ? "Silver" : "Black") +
                                    std::to_string(static_cast<int>(info.param.scale * 100));
                         });

} // namespace
