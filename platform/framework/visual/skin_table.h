#pragma once

#include "visual/skin.h"

namespace visual {

struct FaceRow {
    FaceSlot slot;
    std::array<Face, g_styleCount> styles;
};

struct ColorRow {
    ColorSlot slot;
    std::array<Argb, g_styleCount> styles;
};

extern const std::array<FaceRow, g_faceCount> g_faceRows;
extern const std::array<ColorRow, g_colorCount> g_colorRows;

} // namespace visual
