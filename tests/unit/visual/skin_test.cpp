#include "visual/skin_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace visual;

namespace {

double Luminance(Argb color) {
    const auto linear = [](unsigned value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(RedOf(color)) + 0.7152 * linear(GreenOf(color)) + 0.0722 * linear(BlueOf(color));
}

double Contrast(Argb a, Argb b) {
    const double first = Luminance(a), second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
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

TEST(SystemSkin, TheTitleOfAnInactiveFrameHasTheSystemsColourForIt) {
    SystemColors colors{};
    colors.text = colors.inactiveCaption = 0xFF102030;
    colors.inactiveCaptionText = 0xFFE0E0E0;
    for (const Skin& skin : {MakeSystemSkin(colors), MakeBlendedSkin(colors), MakeGradientSkin(colors, 0xFF3060A0)}) {
        EXPECT_GE(Contrast(skin[ColorSlot::CaptionTextInactive], skin[FaceSlot::CaptionInactive].bottom1), 3.0);
    }
}

} // namespace
