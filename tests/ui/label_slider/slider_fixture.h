#pragma once

#include "ribbon_slider_sync.h"
#include "tests/support/buried.h"
#include "tests/support/counted_faults.h"
#include "tests/support/pointer.h"
#include "tests/support/ribbon_host.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <string>

constexpr UINT sliderId = 500;

/// Reaches the parts of the face.
class OpenSlider : public CMFCRibbonSliderSync {
public:
    using CMFCRibbonSliderSync::CMFCRibbonSliderSync;
    using CMFCRibbonSliderSync::GetPartFromPoint;
    CPoint ThumbCenter() const { return GetThumbRect().CenterPoint(); }
    CPoint CenterOf(RibbonSliderPart part) const {
        const CPoint middle = m_rect.CenterPoint();
        for (int x = m_rect.left; x < m_rect.right; ++x) {
            if (GetPartFromPoint({x, middle.y}) == part && GetPartFromPoint({x + 4, middle.y}) == part) {
                return {x + 2, middle.y};
            }
        }
        ADD_FAILURE() << "no such part";
        return {};
    }
    /// The point at which the thumb shows a position.
    CPoint PointOf(int pos) const {
        const CPoint middle = m_rect.CenterPoint();
        for (int x = m_rect.left; x < m_rect.right; ++x) {
            if (GetPosFromPoint({x, middle.y}) == pos) {
                return {x, middle.y};
            }
        }
        ADD_FAILURE() << "no point shows " << pos;
        return {};
    }
    void Press(CPoint point) { OnLButtonDown(point); }
    BOOL Key(UINT key) { return OnProcessKey(key); }
};

inline std::wstring TipOf(const CMFCRibbonBaseElement& element) { return element.GetToolTipText().GetString(); }

template <class Slider = OpenSlider>
std::unique_ptr<Slider> MakeSlider(UINT command = sliderId, int width = 400) {
    auto slider = std::make_unique<Slider>(command, width);
    slider->SetZoomButtons();
    slider->SetZoomIncrement(5);
    slider->SetRange(0, 40);
    return slider;
}

/// Sliders of one command in no bar, each still on its own.
class LooseSliders : public testing::Test {
protected:
    typedef std::initializer_list<const CMFCRibbonSliderSync*> Sliders;

    /// The second follows the first, which follows the root.
    void MakeChain() {
        m_first.SetOriginal(&m_root);
        m_second.SetOriginal(&m_first);
    }
    static void ExpectAt(int pos, Sliders sliders) {
        for (const CMFCRibbonSliderSync* slider : sliders) {
            EXPECT_EQ(slider->GetPos(), pos);
            EXPECT_EQ(TipOf(*slider), std::to_wstring(pos));
        }
    }
    /// Whoever of the movers is set, all the sliders come to its position.
    static void ExpectToFollowEach(std::initializer_list<CMFCRibbonSliderSync*> movers, Sliders sliders) {
        int pos = 10;
        for (CMFCRibbonSliderSync* mover : movers) {
            mover->SetPosSync(++pos, FALSE);
            ExpectAt(pos, sliders);
        }
    }

    CMFCRibbonSliderSync m_root{sliderId};
    CMFCRibbonSliderSync m_first{sliderId};
    CMFCRibbonSliderSync m_second{sliderId};
    CMFCRibbonSliderSync m_third{sliderId};
};

/// A slider and its copy in a bar.
class SliderSyncInput : public testing::Test {
protected:
    void SetUp() override {
        m_root = &m_host.Add(MakeSlider<Buried<OpenSlider>>());
        m_copy = &m_host.Add(MakeSlider<Buried<OpenSlider>>());
        m_copy->SetOriginal(m_root);
        ASSERT_FALSE(m_copy->GetRect().IsRectEmpty());
    }
    ~SliderSyncInput() override { m_pointer.Release(); }

    int Commands(UINT id = sliderId) { return m_host.Frame().CountCommands(id); }
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
