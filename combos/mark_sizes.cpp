#include "combos/mark_sizes.h"

#include <afxglobals.h>
#include <fx/geometry.h>

#include <algorithm>
#include <utility>

namespace {
constexpr int enlargedIcon = 16;
}

MarkSizes& MarkSizes::Current() {
    static MarkSizes sizes;
    return sizes;
}

double MarkScale() { return std::max(1.0, afxGlobalData.GetRibbonImageScale()); }

void ScaleCheckBoxOnce() {
    MarkSizes& sizes = MarkSizes::Current();
    if (sizes.isCheckBoxScaled || MarkScale() <= 1.0) {
        return;
    }
    sizes.checkBox = fx::Scaled(sizes.checkBox, MarkScale());
    sizes.isCheckBoxScaled = true;
}

void EnlargeIconOnce() {
    MarkSizes& sizes = MarkSizes::Current();
    if (!std::exchange(sizes.isIconFixed, true) && MarkScale() > 1.0) {
        sizes.icon = enlargedIcon;
    }
}

int ScaledIconSize() { return fx::Scaled(MarkSizes::Current().icon, MarkScale()); }
