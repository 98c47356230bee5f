#pragma once

#include "tovasque/skin_getters.h"

#include <fx/skin_table.h>

namespace tovasque {

/// What the getters of a manager answer, opaque.
struct Palette {
#define TOVASQUE_MEMBER(getter, red, green, blue) visual::Argb getter = visual::MakeArgb(255, red, green, blue);
    TOVASQUE_SKIN_GETTERS(TOVASQUE_MEMBER)
#undef TOVASQUE_MEMBER
    visual::Argb accent = 0;
};

/// A flat skin in the palette's colours. Where a fixed colour cannot be read on its ground, the nearest one that can is
/// taken for what is the manager's own to choose: signs, lines, disabled texts.
visual::Skin MakeFlatSkin(const Palette& palette);

} // namespace tovasque
