// A ribbon at every usual scale: lines stay crisp, nothing lies over something else, no text is cut off.
#include <afxvisualmanageroffice2007.h>

#include "tests/support/canvas.h"
#include "tests/support/picture_file.h"
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "tests/ui/ribbon_drawing/drawn_texts.h"

#include <algorithm>
#include <sstream>

namespace {

constexpr int kWide = 2600; // enough for every panel in full at the largest scale
constexpr int kWidths[] = {kWide, 1600, 1000, 700, 480, 330};

struct Stretch {
    std::uint32_t color;
    int length;
};

/// Percent of the usual size.
class RibbonScale : public RibbonBarTest, public testing::WithParamInterface<int> {
protected:
    RibbonScale() {
        CMFCVisualManagerOffice2007::SetStyle(CMFCVisualManagerOffice2007::Office2007_Silver);
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerOffice2007));
        SetScale(GetParam());
        Bar().AddContextCategory(L"Tools", L"Picture Tools", 3, AFX_CategoryColor_Red, 0, 0);
        SetQuickAccessDefault({commands::paste, commands::cut, commands::find});
        SetClientWidth(kWide);
    }
    ~RibbonScale() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        afxGlobalData.SetRibbonImageScale(0);
    }

    void SetScale(int percent) {
        ASSERT_TRUE(afxGlobalData.SetRibbonImageScale(percent / 100.0));
        Bar().ForceRecalcLayout();
        RunIdle();
    }
    /// Thickness of a line: whole pixels at every scale.
    static int Line() { return std::max(GetParam() / 100, 1); }
    CSize BarSize() {
        CRect client;
        Bar().GetClientRect(client);
        return client.Size();
    }
    std::unique_ptr<Canvas> Paint() {
        auto picture = std::make_unique<Canvas>(BarSize());
        Bar().DoPaint(picture->Dc());
        picture->Close();
        return picture;
    }
    std::vector<DrawnText> Texts() {
        return TextsDrawnBy([this](CDC& dc) { Bar().DoPaint(&dc); });
    }
    CMFCRibbonCategory& Shown() { return *Bar().GetActiveCategory(); }
    /// Pixels of one colour side by side, `count` pixels from `start` in the direction of `step`.
    static std::vector<Stretch> RunsOf(const Canvas& picture, CPoint start, CSize step, int count) {
        std::vector<Stretch> runs;
        for (int i = 0; i < count; ++i, start += step) {
            const std::uint32_t color = picture.At(start.x, start.y);
            if (runs.empty() || runs.back().color != color) {
                runs.push_back({color, 0});
            }
            ++runs.back().length;
        }
        return runs;
    }
    /// From outside of an upright edge inwards: the outer line and the inner one, each of full thickness, no mixture
    /// between them, and then the face.
    static void ExpectTwoCrispLines(const Canvas& picture, CPoint outermost, int inwards) {
        const std::vector<Stretch> runs =
            RunsOf(picture, outermost - CSize(inwards, 0), CSize(inwards, 0), 1 + 2 * Line() + 2);
        std::ostringstream seen;
        for (const Stretch& run : runs) {
            seen << std::hex << run.color << std::dec << " x " << run.length << ", ";
        }
        ASSERT_EQ(runs.size(), 4u) << seen.str() << "at " << outermost.x << ", " << outermost.y;
        EXPECT_EQ(runs[0].length, 1);
        EXPECT_EQ(runs[1].length, Line());
        EXPECT_EQ(runs[2].length, Line());
        EXPECT_EQ(runs[3].length, 2);
    }
};

void ExpectApart(const std::vector<CRect>& rects, const char* what, int width) {
    for (std::size_t one = 0; one < rects.size(); ++one) {
        for (std::size_t other = one + 1; other < rects.size(); ++other) {
            EXPECT_TRUE(CRect(rects[one] & rects[other]).IsRectEmpty())
                << what << ' ' << one << " and " << other << " in " << width;
        }
    }
}

TEST_P(RibbonScale, ElementsLieApartAndInsideTheirPanels) {
    for (const int width : kWidths) {
        SetClientWidth(width);
        RunIdle();
        const CRect bar(CPoint(0, 0), BarSize());
        std::vector<CRect> outer;
        for (int index = 0; index < Bar().GetCategoryCount(); ++index) {
            outer.push_back(Bar().GetCategory(index)->GetTabRect());
        }
        for (int index = 0; index < Shown().GetPanelCount(); ++index) {
            CMFCRibbonPanel& panel = *Shown().GetPanel(index);
            outer.push_back(panel.GetRect());
            std::vector<CRect> inner;
            for (int at = 0; at < panel.GetCount(); ++at) {
                const CRect rect = panel.GetElement(at)->GetRect();
                inner.push_back(rect);
                EXPECT_EQ(CRect(rect & panel.GetRect()), rect) << width;
                EXPECT_TRUE(CRect(rect & panel.GetCaptionRect()).IsRectEmpty()) << width;
            }
            ExpectApart(inner, "elements", width);
        }
        for (const CRect& rect : outer) {
            EXPECT_EQ(CRect(rect & bar), rect) << width;
        }
        ExpectApart(outer, "tabs and panels", width);
    }
}

TEST_P(RibbonScale, NoTextIsCutOffOrLiesOverAnother) {
    ASSERT_GT(Texts().size(), 5u);
    for (const int width : kWidths) {
        SetClientWidth(width);
        RunIdle();
        const CRect bar(CPoint(0, 0), BarSize());
        const std::vector<DrawnText> texts = Texts();
        // A bar without room for anything shows nothing.
        EXPECT_FALSE(texts.empty() && Bar().GetActiveCategory()->GetTabRect().Width() > 0) << width;
        std::vector<CRect> places;
        for (const DrawnText& text : texts) {
            EXPECT_TRUE(text.IsWhole()) << text << " in " << width;
            EXPECT_EQ(CRect(text.place & bar), text.place) << text << " in " << width;
            places.push_back(text.place);
        }
        ExpectApart(places, "texts", width);
    }
}

TEST_P(RibbonScale, AWideBarShowsEveryTextInFull) {
    const auto words = [this] {
        std::wstring all; // where lines break is the scale's business
        for (const DrawnText& text : Texts()) {
            all += text.text;
        }
        std::erase(all, L' ');
        return all;
    };
    const std::wstring scaled = words();
    SetScale(100);
    EXPECT_EQ(scaled, words());
    EXPECT_NE(scaled.find(L"FormatPainter"), std::wstring::npos);
}

TEST_P(RibbonScale, APanelsFrameIsCrispOnBothSides) {
    const std::unique_ptr<Canvas> picture = Paint();
    SavePicture(picture->Bitmap(), L"scale_" + std::to_wstring(GetParam()) + L".png");
    for (int index = 0; index < Shown().GetPanelCount(); ++index) {
        const CMFCRibbonPanel& panel = *Shown().GetPanel(index);
        CRect frame = panel.GetRect();
        const int y = (frame.top + panel.GetCaptionRect().top) / 2;
        ExpectTwoCrispLines(*picture, CPoint(frame.left, y), 1);
    }
}

TEST_P(RibbonScale, AHotButtonsFrameIsCrispOnBothSidesAndNothingIsOutsideOfIt) {
    for (const UINT id : {commands::paste, commands::cut, commands::format}) {
        CMFCRibbonBaseElement& element = Element(id);
        const CRect rect = element.GetRect();
        // The pointer in the panel, so that only the element's own state differs.
        element.GetParentPanel()->Highlight(TRUE, CPoint(-1, -1));
        const std::unique_ptr<Canvas> before = Paint();
        element.SetHighlighted(TRUE);
        const std::unique_ptr<Canvas> hot = Paint();
        element.SetHighlighted(FALSE);
        CRect changed(0, 0, 0, 0);
        for (int y = 0; y < hot->Size().cy; ++y) {
            for (int x = 0; x < hot->Size().cx; ++x) {
                if (hot->At(x, y) != before->At(x, y)) {
                    changed |= CRect(x, y, x + 1, y + 1);
                }
            }
        }
        EXPECT_EQ(changed, rect) << id;
        const int y = rect.CenterPoint().y;
        ExpectTwoCrispLines(*hot, CPoint(rect.left, y), 1);
        ExpectTwoCrispLines(*hot, CPoint(rect.right - 1, y), -1);
    }
}

INSTANTIATE_TEST_SUITE_P(Percent, RibbonScale, testing::Values(100, 125, 150, 175, 200));

} // namespace
