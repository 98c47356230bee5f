#pragma once

#include "visual/skin.h"

// The skins that follow the system's colours, made once and again after UpdateSystemSkins.
namespace visual {

const Skin& SystemSkin();
const Skin& BlendedSkin();
const Skin& GradientSkin();
/// The skins take up the system's colours anew; base is what the gradients are mixed from.
void UpdateSystemSkins();
void UpdateGradientSkin(Argb base);

} // namespace visual
