#pragma once

#include "fx/skin_table.h"
#include "visual/pixels.h"

// The framework's own skins: slots down, styles across.
namespace visual {

constexpr std::size_t g_styleCount = 4;

/// Name of a slot, for messages of tests.
const char* NameOf(FaceSlot slot);
const char* NameOf(ColorSlot slot);

/// 0 blue, 1 black, 2 aqua, 3 silver.
const Skin& StyleSkin(std::size_t style);

/// The colours a skin is mixed from when it follows the system's, 0xAARRGGBB.
struct SystemColors {
    Argb face, shadow, hilite, darkShadow, text, greyText, window, windowText, selection, selectionText;
    Argb menu, menuText, caption, captionText, inactiveCaption, inactiveCaptionText, tip, tipText, hotLink, workspace;
};

/// Plain, square and flat.
Skin MakeSystemSkin(const SystemColors& colors);
/// Flat, with highlights mixed from the selection colour.
Skin MakeBlendedSkin(const SystemColors& colors);
/// Gradients on all bars, mixed from the base colour.
Skin MakeGradientSkin(const SystemColors& colors, Argb base);

} // namespace visual
