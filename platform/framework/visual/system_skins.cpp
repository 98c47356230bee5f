#include "visual/system_skins.h"

#include "visual/canvas.h"

namespace visual {

namespace {

Argb System(int index) { return FromColorRef(GetSysColor(index)); }

SystemColors ReadColors() {
    return {System(COLOR_3DFACE),
            System(COLOR_3DSHADOW),
            System(COLOR_3DHIGHLIGHT),
            System(COLOR_3DDKSHADOW),
            System(COLOR_BTNTEXT),
            System(COLOR_GRAYTEXT),
            System(COLOR_WINDOW),
            System(COLOR_WINDOWTEXT),
            System(COLOR_HIGHLIGHT),
            System(COLOR_HIGHLIGHTTEXT),
            System(COLOR_MENU),
            System(COLOR_MENUTEXT),
            System(COLOR_ACTIVECAPTION),
            System(COLOR_CAPTIONTEXT),
            System(COLOR_INACTIVECAPTION),
            System(COLOR_INACTIVECAPTIONTEXT),
            System(COLOR_INFOBK),
            System(COLOR_INFOTEXT),
            System(COLOR_HOTLIGHT),
            System(COLOR_APPWORKSPACE)};
}

struct Skins {
    Skin system = MakeSystemSkin(ReadColors());
    Skin blended = MakeBlendedSkin(ReadColors());
    Skin gradient = MakeGradientSkin(ReadColors(), System(COLOR_ACTIVECAPTION));
};

Skins& All() {
    static Skins skins;
    return skins;
}

} // namespace

const Skin& SystemSkin() { return All().system; }
const Skin& BlendedSkin() { return All().blended; }
const Skin& GradientSkin() { return All().gradient; }

void UpdateSystemSkins() {
    All().system = MakeSystemSkin(ReadColors());
    All().blended = MakeBlendedSkin(ReadColors());
}

void UpdateGradientSkin(Argb base) { All().gradient = MakeGradientSkin(ReadColors(), base); }

} // namespace visual
