// Where each colour of a skin is seen: at named places of what is drawn, without the pictures.
#include "tests/ui/skins/skin_fixture.h"

#include <afxpopupmenubar.h>
#include <afxribbonbar.h>
#include <afxribbonslider.h>

#include <functional>
#include <map>
#include <string>

namespace {

constexpr int kSide = 40;
const CRect kWhole(0, 0, kSide, kSide);

/// A button at a place, as lit as a test wants it.
class PlacedButton : public CMFCRibbonButton {
public:
    explicit PlacedButton(bool isHot) {
        m_rect = kWhole;
        m_bIsHighlighted = isHot;
    }
};

struct Place {
    const char* getter;
    std::function<void(CMFCVisualManager& manager, CDC* dc)> draw;
    CPoint at;
};

class SkinPaint : public SkinTest {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_frame.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 80, 80), nullptr, 0));
        ASSERT_TRUE(m_menu.Create(&m_frame));
    }
    void TearDown() override { m_frame.DestroyWindow(); }

    std::vector<Place> Places() {
        CMFCPopupMenuBar* const menu = &m_menu;
        const int gutter = menu->GetGutterWidth();
        const CPoint middle = kWhole.CenterPoint();
        const auto fillMenu = [menu](CMFCVisualManager& manager, CDC* dc) {
            manager.OnFillBarBackground(dc, menu, CRect(0, 0, 80, kSide), CRect(0, 0, 80, kSide));
        };
        const auto panel = [](CMFCVisualManager& manager, CDC* dc) {
            manager.OnDrawRibbonPanel(dc, nullptr, CRect(0, 0, kSide - 2, kSide), CRect(0, 0, 0, 0));
        };
        const auto paneCaption = [](CMFCVisualManager& manager, CDC* dc) {
            manager.OnDrawPaneCaption(dc, nullptr, FALSE, kWhole, CRect(0, 0, 0, 0));
        };
        const auto tabsArea = [](CMFCVisualManager& manager, CDC* dc) { manager.OnEraseTabsArea(dc, kWhole, nullptr); };
        const auto application = [](bool isHot) {
            return [isHot](CMFCVisualManager& manager, CDC* dc) {
                PlacedButton button(isHot);
                manager.OnDrawRibbonApplicationButton(dc, &button);
            };
        };
        return {
            {"GetDropDownBtnHilightClr",
             [](CMFCVisualManager& m, CDC* dc) { m.OnDrawComboDropButton(dc, kWhole, FALSE, FALSE, TRUE, nullptr); },
             {middle.x, 5}},
            {"GetEraseTabAreaColor", tabsArea, middle},
            {"GetEraseTabAreaBorderClr", tabsArea, {middle.x, kSide - 1}},
            {"GetEraseTabButtonColor",
             [](CMFCVisualManager& m, CDC* dc) { m.OnEraseTabsButton(dc, kWhole, nullptr, nullptr); }, middle},
            {"GetEraseTabFrameColor", [](CMFCVisualManager& m, CDC* dc) { m.OnEraseTabsFrame(dc, kWhole, nullptr); },
             middle},
            {"GetMainButtonColor", application(false), middle},
            {"GetMainBtnOuterBorderClr", application(false), {middle.x, 0}},
            {"GetMainBtnInnerBorderClr", application(false), {middle.x, 1}},
            {"GetMainBtnHilightClr", application(true), middle},
            {"GetPaneCaptionGridColor", paneCaption, middle},
            {"GetPaneCaptionLeftGridColor", paneCaption, {0, middle.y}},
            {"GetPaneDividerBgColor",
             [](CMFCVisualManager& m, CDC* dc) { m.OnDrawPaneDivider(dc, nullptr, kWhole, FALSE); }, middle},
            {"GetPanelOuterBorderColor", panel, {kSide - 2, middle.y}},
            {"GetPanelInnerBorderColor", panel, {kSide - 1, middle.y}},
            {"GetRibbonEditBgColor",
             [](CMFCVisualManager& m, CDC* dc) {
                 COLORREF text = 0, ground = 0, selected = 0;
                 m.OnFillRibbonEdit(dc, nullptr, kWhole, FALSE, FALSE, FALSE, text, ground, selected);
             },
             middle},
            {"GetRibbonTabBgColor", [](CMFCVisualManager& m, CDC* dc) { m.OnDrawRibbonTabsFrame(dc, nullptr, kWhole); },
             middle},
            {"GetRightPopUpBgColor", fillMenu, {gutter + 10, middle.y}},
            {"GetRightLeftBgColor", fillMenu, {gutter / 2, middle.y}},
            {"GetRightLeftLineColor", fillMenu, {gutter - 1, middle.y}},
            {"GetStatusBarIntervalColor",
             [](CMFCVisualManager& m, CDC* dc) { m.OnDrawStatusBarPaneBorder(dc, nullptr, kWhole, 0, 0); },
             {kSide - 2, middle.y}},
            {"GetTabCheckColor", [](CMFCVisualManager& m, CDC* dc) { m.OnDrawRibbonCategory(dc, nullptr, kWhole); },
             middle},
            {"GetTitleBgColor",
             [](CMFCVisualManager& m, CDC* dc) { m.OnDrawRibbonCaption(dc, nullptr, kWhole, CRect(0, 0, 0, 0)); },
             middle},
        };
    }

    template <class Skin>
    void ExpectEveryPlace() {
        auto& skin = Use<Skin>();
        skin.SetImageMode(FALSE);
        std::map<std::string, COLORREF> colors;
        for (const tovasque::SkinColor& color : skin.GetSkinColors()) {
            colors[color.getter] = color.value;
        }
        for (const Place& place : Places()) {
            Canvas canvas(CSize(80, kSide));
            place.draw(skin, canvas.Dc());
            EXPECT_EQ(canvas.At(place.at.x, place.at.y), Pixel(colors.at(place.getter))) << place.getter;
        }
    }

    /// The text that a plain application button draws, against its face.
    template <class Skin>
    void ExpectReadableApplicationButton() {
        constexpr double readable = 4.5;
        auto& skin = Use<Skin>();
        skin.SetImageMode(FALSE);
        for (const bool isHot : {false, true}) {
            PlacedButton button(isHot);
            Canvas canvas(CSize(80, kSide));
            canvas.Dc()->SetTextColor(RGB(0, 0, 0));
            skin.OnDrawRibbonApplicationButton(canvas.Dc(), &button);
            const visual::Argb text = 0xFF000000u | Pixel(canvas.Dc()->GetTextColor());
            const visual::Argb face = 0xFF000000u | canvas.At(kSide / 2, kSide / 2);
            EXPECT_GE(visual::Contrast(text, face), readable) << std::hex << text << " on " << face;
        }
    }

    CWnd m_frame;
    CMFCPopupMenuBar m_menu;
};

TEST_F(SkinPaint, TheApplicationButtonsTextCanBeReadInTheBlackSkin) {
    ExpectReadableApplicationButton<OpenBlackSkin>();
}

TEST_F(SkinPaint, TheApplicationButtonsTextCanBeReadInTheSilverSkin) {
    ExpectReadableApplicationButton<OpenSilverSkin>();
}

TEST_F(SkinPaint, ColoursOfTheBlackSkinAreSeenAtTheirPlaces) { ExpectEveryPlace<OpenBlackSkin>(); }

TEST_F(SkinPaint, ColoursOfTheSilverSkinAreSeenAtTheirPlaces) { ExpectEveryPlace<OpenSilverSkin>(); }

TEST_F(SkinPaint, TextsHaveTheColoursOfTheirGetters) {
    auto& skin = Use<OpenSilverSkin>();
    Canvas canvas;
    EXPECT_EQ(skin.GetRibbonStatusBarTextColor(nullptr), RGB(17, 17, 17));
    EXPECT_EQ(skin.GetTabTextColor(nullptr, 0, FALSE), RGB(77, 77, 77));
    EXPECT_EQ(skin.GetTabTextColor(nullptr, 0, TRUE), RGB(77, 77, 77));
    EXPECT_EQ(skin.OnDrawRibbonPanel(canvas.Dc(), nullptr, kWhole, CRect(0, 0, 0, 0)), RGB(17, 17, 17));
    EXPECT_EQ(skin.OnDrawRibbonTabsFrame(canvas.Dc(), nullptr, kWhole), RGB(255, 255, 255));
    PlacedButton button(false);
    EXPECT_EQ(skin.OnFillRibbonButton(canvas.Dc(), &button), RGB(0, 0, 0));
}

// A channel that is filled with the accent as far as the thumb.
TEST_F(SkinPaint, SlidersAreFilledUpToTheirThumb) {
    auto& skin = Use<OpenBlackSkin>();
    CMFCRibbonSlider slider(1);
    slider.SetRange(0, 100);
    slider.SetPos(50, FALSE);
    Canvas canvas(CSize(100, 20));
    skin.OnDrawRibbonSliderChannel(canvas.Dc(), &slider, CRect(0, 0, 100, 20));
    const std::uint32_t accent = skin.GetSkin()[visual::ColorSlot::Accent] & 0xFFFFFF;
    EXPECT_EQ(canvas.At(30, 10), accent);
    EXPECT_NE(canvas.At(70, 10), accent);
    EXPECT_NE(canvas.At(70, 10), Canvas::background);
}

// Nothing moves between states: a plate ends where the button ends and leaves the middle of its edge where it was.
TEST_F(SkinPaint, ACheckedButtonHasAnEdgeThatAHotOneHasNot) {
    auto& skin = Use<OpenBlackSkin>();
    skin.SetImageMode(FALSE);
    const visual::Skin& table = skin.GetSkin();
    EXPECT_EQ(visual::AlphaOf(table[visual::FaceSlot::ButtonHot].outer), 0u);
    EXPECT_EQ(table[visual::FaceSlot::ButtonChecked].outer, table[visual::ColorSlot::Accent]);
}

} // namespace
