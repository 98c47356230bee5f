#include "visual/skin_table.h"

namespace visual {

namespace {

Skin MakeStyleSkin(std::size_t style) {
    Skin skin;
    skin.radius = 3;
    skin.split = 40;
    for (const FaceRow& row : g_faceRows) {
        skin[row.slot] = row.styles[style];
    }
    for (const ColorRow& row : g_colorRows) {
        skin[row.slot] = row.styles[style];
    }
    return skin;
}

} // namespace

const Skin& StyleSkin(std::size_t style) {
    static const std::array<Skin, g_styleCount> skins{MakeStyleSkin(0), MakeStyleSkin(1), MakeStyleSkin(2),
                                                      MakeStyleSkin(3)};
    return skins[style < g_styleCount ? style : 0];
}

#define VISUAL_NAME(name) #name,

const char* NameOf(FaceSlot slot) {
    static constexpr const char* names[] = {VISUAL_FACE_SLOTS(VISUAL_NAME)};
    return names[static_cast<std::size_t>(slot)];
}

const char* NameOf(ColorSlot slot) {
    static constexpr const char* names[] = {VISUAL_COLOR_SLOTS(VISUAL_NAME)};
    return names[static_cast<std::size_t>(slot)];
}

#undef VISUAL_NAME

} // namespace visual
