// A collapsed panel in an installation without any of a skin's pictures.
#include "tests/ui/ribbon_bar/ribbon_frame.h"
#include "tests/ui/skins/skin_fixture.h"

#include "tests/support/temporary_directory.h"

#include <varnhold/file_op.h>

#include <cstdlib>

namespace {

/// Where the arrow was drawn last, the bar's client pixels.
CRect g_arrow(0, 0, 0, 0);

template <class Skin>
class ArrowNoting : public Skin {
public:
    void OnDrawRibbonDefaultPaneButtonIndicator(CDC* dc, CMFCRibbonButton* button, CRect rect, BOOL isSelected,
                                                BOOL isHot) override {
        g_arrow = rect;
        Skin::OnDrawRibbonDefaultPaneButtonIndicator(dc, button, rect, isSelected, isHot);
    }
};

class ArrowNotingBlackSkin : public ArrowNoting<OpenBlackSkin> {
    DECLARE_DYNCREATE(ArrowNotingBlackSkin)
};
IMPLEMENT_DYNCREATE(ArrowNotingBlackSkin, OpenBlackSkin)

class ArrowNotingSilverSkin : public ArrowNoting<OpenSilverSkin> {
    DECLARE_DYNCREATE(ArrowNotingSilverSkin)
};
IMPLEMENT_DYNCREATE(ArrowNotingSilverSkin, OpenSilverSkin)

/// As smoothed lines are: nearer to the sign's colour than to the ground's.
bool IsSign(std::uint32_t pixel, std::uint32_t sign, std::uint32_t ground) {
    const auto distance = [](std::uint32_t one, std::uint32_t other) {
        return std::abs(static_cast<int>(visual::GreenOf(one)) - static_cast<int>(visual::GreenOf(other)));
    };
    return distance(pixel, sign) < distance(pixel, ground);
}

class SkinWithoutFiles : public RibbonBarTest {
protected:
    SkinWithoutFiles() {
        CMFCRibbonCategory* const category = Bar().AddCategory(L"Full", 0, 0);
        UINT id = commands::firstHandled + 2000;
        for (const wchar_t* const name : {L"Collapses", L"Stays"}) {
            CMFCRibbonPanel* const panel = category->AddPanel(name);
            for (int button = 0; button < 6; ++button) {
                panel->Add(new CMFCRibbonButton(id++, L"A button with a long text"));
            }
        }
        Bar().SetActiveCategory(category);
    }
    ~SkinWithoutFiles() override {
        CMFCVisualManager::SetDefaultManager(nullptr);
        CMFCVisualManager::DestroyInstance();
        CMFCVisualManagerOffice2007::CleanStyle();
    }

    template <class SkinClass>
    void ExpectArrow() {
        CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(SkinClass));
        const visual::Skin& skin = static_cast<SkinClass&>(*CMFCVisualManager::GetInstance()).GetSkin();
        ASSERT_NE(skin.plates, nullptr) << "it would draw pictures";
        ASSERT_EQ(skin.plates->FindPlate(skin.arrowPlate, visual::PlatePlace::Alone, 24, 1.0), nullptr);
        CMFCRibbonButton& button = Collapse(0).GetDefaultButton();
        for (const auto& [isDisabled, slot] :
             {std::pair(FALSE, visual::ColorSlot::Glyph), {TRUE, visual::ColorSlot::GlyphDisabled}}) {
            button.SetDisabled(isDisabled);
            g_arrow.SetRectEmpty();
            const std::uint32_t ground = skin[visual::FaceSlot::RibbonCategory].top1 & 0xFFFFFF;
            Canvas canvas(ClientSize(Bar()), ground);
            button.OnDraw(canvas.Dc());
            ASSERT_FALSE(g_arrow.IsRectEmpty());
            const auto isSign = [&](int x, int y) { return IsSign(canvas.At(x, y), skin[slot], ground); };
            CRect seen(0, 0, 0, 0);
            for (int y = g_arrow.top; y < g_arrow.bottom; ++y) {
                for (int x = g_arrow.left; x < g_arrow.right; ++x) {
                    if (isSign(x, y)) {
                        seen.UnionRect(seen, CRect(x, y, x + 1, y + 1));
                    }
                }
            }
            // It points down: wider than high, with its tip in the middle.
            ASSERT_GT(seen.Width(), seen.Height()) << (isDisabled ? "disabled" : "at rest");
            EXPECT_TRUE(isSign(seen.CenterPoint().x, seen.bottom - 1));
            EXPECT_FALSE(isSign(seen.left, seen.bottom - 1));
        }
    }

    TemporaryDirectory m_empty;
    ScopedAppPath m_path{m_empty.Prefix()};
};

TEST_F(SkinWithoutFiles, ACollapsedPanelHasItsArrowInTheBlackSkin) { ExpectArrow<ArrowNotingBlackSkin>(); }
TEST_F(SkinWithoutFiles, ACollapsedPanelHasItsArrowInTheSilverSkin) { ExpectArrow<ArrowNotingSilverSkin>(); }

} // namespace
