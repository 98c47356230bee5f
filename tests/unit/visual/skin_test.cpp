#include "visual/skin_table.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

using namespace visual;

namespace {

/// All colours that the face has, over those of the category where it lets them through.
std::vector<Argb> GroundsOf(const Skin& skin, FaceSlot slot) {
    const Face& face = skin[slot];
    const Face& below = skin[FaceSlot::RibbonCategory];
    return {Over(face.top1, below.top1), Over(face.top2, below.top2), Over(face.bottom1, below.bottom1),
            Over(face.bottom2, below.bottom2)};
}

struct DisabledText {
    ColorSlot text;
    std::vector<FaceSlot> faces;
    std::vector<ColorSlot> colors;
};

const std::vector<DisabledText> g_disabledTexts = {
    {ColorSlot::RibbonTextDisabled,
     {FaceSlot::RibbonCategory, FaceSlot::RibbonPanel, FaceSlot::RibbonPanelHot, FaceSlot::Group},
     {ColorSlot::PopupFill}},
    {ColorSlot::QatTextDisabled,
     {FaceSlot::CaptionActive, FaceSlot::CaptionInactive},
     {ColorSlot::RibbonTop, ColorSlot::RibbonBottom}},
    {ColorSlot::MenuTextDisabled,
     {FaceSlot::Group},
     {ColorSlot::MenuFill, ColorSlot::MenuGutter, ColorSlot::MenuLabelFill, ColorSlot::PopupFill}},
    {ColorSlot::StatusTextDisabled, {FaceSlot::StatusBar}, {}},
    {ColorSlot::ToolbarTextDisabled,
     {FaceSlot::ToolBar, FaceSlot::RibbonCategory, FaceSlot::RibbonPanel, FaceSlot::RibbonPanelHot},
     {ColorSlot::PopupFill}},
    {ColorSlot::EditTextDisabled, {FaceSlot::Edit, FaceSlot::EditDisabled}, {}},
    {ColorSlot::GlyphDisabled,
     {FaceSlot::RibbonCategory, FaceSlot::RibbonPanel, FaceSlot::Group, FaceSlot::EditDisabled,
      FaceSlot::CheckBoxDisabled, FaceSlot::ToolBar, FaceSlot::CategoryScroll},
     {ColorSlot::MenuFill, ColorSlot::PopupFill}},
};

void ExpectDisabledTextsRead(const Skin& skin) {
    for (const DisabledText& disabled : g_disabledTexts) {
        for (const FaceSlot face : disabled.faces) {
            for (const Argb ground : GroundsOf(skin, face)) {
                EXPECT_GE(Contrast(skin[disabled.text], ground), 3.0)
                    << NameOf(disabled.text) << " on " << NameOf(face);
            }
        }
        for (const ColorSlot ground : disabled.colors) {
            EXPECT_GE(Contrast(skin[disabled.text], skin[ground]), 3.0)
                << NameOf(disabled.text) << " on " << NameOf(ground);
        }
    }
}

TEST(SkinTable, HoldsEverySlotOnceInOrder) {
    for (std::size_t i = 0; i < g_faceCount; ++i) {
        EXPECT_EQ(static_cast<std::size_t>(g_faceRows[i].slot), i) << NameOf(g_faceRows[i].slot);
    }
    for (std::size_t i = 0; i < g_colorCount; ++i) {
        EXPECT_EQ(static_cast<std::size_t>(g_colorRows[i].slot), i) << NameOf(g_colorRows[i].slot);
    }
}

TEST(SkinTable, FillsEverySlotInEveryStyle) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        for (const FaceRow& row : g_faceRows) {
            EXPECT_NE(row.styles[style], Face{}) << NameOf(row.slot) << " of style " << style;
        }
        for (const ColorRow& row : g_colorRows) {
            EXPECT_NE(AlphaOf(row.styles[style]), 0u) << NameOf(row.slot) << " of style " << style;
        }
    }
}

TEST(SkinTable, TextCanBeReadOnItsGround) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        const Skin& skin = StyleSkin(style);
        const struct {
            ColorSlot text;
            Argb ground;
        } pairs[] = {{ColorSlot::TabText, skin[ColorSlot::RibbonTop]},
                     {ColorSlot::TabTextActive, skin[FaceSlot::TabActive].bottom1},
                     {ColorSlot::RibbonText, skin[FaceSlot::RibbonCategory].bottom1},
                     {ColorSlot::RibbonTextHot, skin[FaceSlot::ButtonHot].bottom1},
                     {ColorSlot::PanelCaptionText, skin[FaceSlot::PanelCaption].bottom1},
                     {ColorSlot::PanelCaptionTextHot, skin[FaceSlot::PanelCaptionHot].bottom1},
                     {ColorSlot::CaptionText, skin[FaceSlot::CaptionActive].bottom1},
                     {ColorSlot::MenuText, skin[ColorSlot::MenuFill]},
                     {ColorSlot::MenuTextHot, skin[FaceSlot::MenuItemHot].bottom1},
                     {ColorSlot::StatusText, skin[FaceSlot::StatusBar].bottom1},
                     {ColorSlot::EditText, skin[FaceSlot::Edit].top1},
                     {ColorSlot::KeyTipText, skin[FaceSlot::KeyTip].bottom1},
                     {ColorSlot::TooltipText, skin[FaceSlot::Tooltip].bottom1},
                     {ColorSlot::PaneCaptionText, skin[FaceSlot::PaneCaption].bottom1},
                     {ColorSlot::DocumentTabText, skin[FaceSlot::DocumentTab].bottom1}};
        for (const auto& pair : pairs) {
            EXPECT_GE(Contrast(skin[pair.text], pair.ground), 4.0) << NameOf(pair.text) << " of style " << style;
        }
    }
}

// Paler than that of the active frame, but text all the same.
TEST(SkinTable, TheTitleOfAnInactiveFrameCanBeReadOnAllOfItsCaption) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        const Skin& skin = StyleSkin(style);
        const Face& caption = skin[FaceSlot::CaptionInactive];
        for (const Argb ground : {caption.top1, caption.top2, caption.bottom1, caption.bottom2}) {
            EXPECT_GE(Contrast(skin[ColorSlot::CaptionTextInactive], ground), 3.0) << "style " << style;
        }
        EXPECT_LT(Contrast(skin[ColorSlot::CaptionTextInactive], caption.bottom1),
                  Contrast(skin[ColorSlot::CaptionText], skin[FaceSlot::CaptionActive].bottom1));
    }
}

TEST(SkinTable, TextThatIsDisabledCanBeReadOnAllItsGrounds) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        SCOPED_TRACE(testing::Message() << "style " << style);
        ExpectDisabledTextsRead(StyleSkin(style));
    }
}

TEST(SkinTable, TextThatIsDisabledIsPalerThanTextThatIsNot) {
    for (std::size_t style = 0; style < g_styleCount; ++style) {
        const Skin& skin = StyleSkin(style);
        const struct {
            ColorSlot disabled, plain;
            Argb ground;
        } pairs[] = {{ColorSlot::RibbonTextDisabled, ColorSlot::RibbonText, skin[FaceSlot::RibbonCategory].bottom1},
                     {ColorSlot::QatTextDisabled, ColorSlot::QatText, skin[FaceSlot::CaptionActive].bottom1},
                     {ColorSlot::MenuTextDisabled, ColorSlot::MenuText, skin[ColorSlot::MenuFill]},
                     {ColorSlot::StatusTextDisabled, ColorSlot::StatusText, skin[FaceSlot::StatusBar].bottom1},
                     {ColorSlot::ToolbarTextDisabled, ColorSlot::ToolbarText, skin[FaceSlot::ToolBar].bottom1},
                     {ColorSlot::EditTextDisabled, ColorSlot::EditText, skin[FaceSlot::EditDisabled].bottom1},
                     {ColorSlot::GlyphDisabled, ColorSlot::Glyph, skin[FaceSlot::RibbonCategory].bottom1}};
        for (const auto& pair : pairs) {
            EXPECT_LT(Contrast(skin[pair.disabled], pair.ground), 0.8 * Contrast(skin[pair.plain], pair.ground))
                << NameOf(pair.disabled) << " of style " << style;
        }
    }
}

TEST(SkinTable, AStyleThatDoesNotExistIsTheFirst) { EXPECT_EQ(&StyleSkin(17), &StyleSkin(0)); }

TEST(SystemSkin, FollowsTheSystemsColours) {
    SystemColors colors{};
    colors.face = 0xFFD4D0C8;
    colors.text = 0xFF102030;
    colors.hilite = 0xFFFFFFFF;
    colors.shadow = 0xFF808080;
    const Skin skin = MakeSystemSkin(colors);
    EXPECT_EQ(skin[ColorSlot::RibbonTop], 0xFFD4D0C8);
    EXPECT_EQ(skin[ColorSlot::RibbonText], 0xFF102030);
    EXPECT_EQ(skin.radius, 0);
}

/// A light and a dark scheme, and one with as much contrast as there is.
std::vector<SystemColors> SomeSystems() {
    SystemColors light{};
    light.face = light.menu = 0xFFD4D0C8;
    light.shadow = light.greyText = 0xFF808080;
    light.hilite = light.window = 0xFFFFFFFF;
    light.text = light.menuText = light.windowText = 0xFF000000;
    light.caption = 0xFF0A246A;
    light.inactiveCaption = 0xFFD4D0C8;
    SystemColors dark = light;
    dark.face = dark.menu = 0xFF303236;
    dark.window = 0xFF202226;
    dark.text = dark.menuText = dark.windowText = 0xFFF0F0F0;
    dark.greyText = 0xFF606368;
    SystemColors high = dark;
    high.face = high.menu = high.window = 0xFF000000;
    high.text = high.menuText = high.windowText = 0xFFFFFFFF;
    high.greyText = 0xFF00FF00;
    return {light, dark, high};
}

TEST(SystemSkin, TextThatIsDisabledCanBeReadOnTheSystemsColours) {
    for (const SystemColors& colors : SomeSystems()) {
        for (const Skin& skin : {MakeSystemSkin(colors), MakeBlendedSkin(colors)}) {
            for (const auto& [text, ground] : {std::pair{ColorSlot::RibbonTextDisabled, colors.face},
                                               {ColorSlot::QatTextDisabled, colors.face},
                                               {ColorSlot::MenuTextDisabled, colors.menu},
                                               {ColorSlot::StatusTextDisabled, colors.face},
                                               {ColorSlot::ToolbarTextDisabled, colors.face},
                                               {ColorSlot::EditTextDisabled, colors.window},
                                               {ColorSlot::GlyphDisabled, colors.face}}) {
                EXPECT_GE(Contrast(skin[text], ground), 3.0) << NameOf(text);
            }
        }
    }
}

TEST(SystemSkin, TextThatIsDisabledCanBeReadOnGradientsOfALightScheme) {
    const SystemColors colors = SomeSystems().front();
    for (const Argb base : {0xFF0A246Au, 0xFF3060A0u, 0xFF7F9DB9u}) {
        const Skin skin = MakeGradientSkin(colors, base);
        for (const FaceSlot slot : {FaceSlot::RibbonCategory, FaceSlot::ToolBar, FaceSlot::StatusBar}) {
            for (const Argb ground : GroundsOf(skin, slot)) {
                EXPECT_GE(Contrast(skin[ColorSlot::RibbonTextDisabled], ground), 3.0) << std::hex << base;
            }
        }
    }
}

TEST(SystemSkin, TheSystemsOwnGreyStaysWhereItCanBeRead) {
    const SystemColors high = SomeSystems().back();
    EXPECT_EQ(MakeSystemSkin(high)[ColorSlot::MenuTextDisabled], high.greyText);
}

TEST(SystemSkin, TheTitleOfAnInactiveFrameHasTheSystemsColourForIt) {
    SystemColors colors{};
    colors.text = colors.inactiveCaption = 0xFF102030;
    colors.inactiveCaptionText = 0xFFE0E0E0;
    for (const Skin& skin : {MakeSystemSkin(colors), MakeBlendedSkin(colors), MakeGradientSkin(colors, 0xFF3060A0)}) {
        EXPECT_GE(Contrast(skin[ColorSlot::CaptionTextInactive], skin[FaceSlot::CaptionInactive].bottom1), 3.0);
    }
}

} // namespace
