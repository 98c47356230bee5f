#include "preview_layout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kMillimetres = 25.4; // an inch
constexpr double kPercent = 100;
constexpr double kShort = 210;
constexpr double kLong = 297;
constexpr std::array<double, 10> kSteps = {10, 25, 50, 75, 100, 125, 150, 200, 300, 400};
constexpr double kNearlyThere = 0.5; // a percentage this near to a step is that step

/// One axis: where the sheet begins, and the scroll as it can be.
struct Axis {
    int start = 0;
    int scroll = 0;
};

Axis PlaceAlong(int sheet, int room, int margin, int scroll) {
    if (sheet + 2 * margin <= room) {
        return {(room - sheet) / 2, 0};
    }
    const int held = std::clamp(scroll, 0, sheet + 2 * margin - room);
    return {margin - held, held};
}

} // namespace

SheetSize UsualSheet(PageShape shape) {
    return shape == PageShape::Portrait ? SheetSize{kShort, kLong} : SheetSize{kLong, kShort};
}

double FittingZoom(const SheetSize& sheet, const PreviewRoom& room, double dotsPerInch) {
    const double across = (room.width - 2 * room.margin) * kMillimetres / dotsPerInch / sheet.width;
    const double down = (room.height - 2 * room.margin) * kMillimetres / dotsPerInch / sheet.height;
    return std::max(kSteps.front(), std::min(across, down) * kPercent);
}

double NextZoom(double percent, int direction) {
    if (direction > 0) {
        const auto* const next = std::upper_bound(kSteps.begin(), kSteps.end(), percent + kNearlyThere);
        return next != kSteps.end() ? *next : kSteps.back();
    }
    const auto* const next = std::lower_bound(kSteps.begin(), kSteps.end(), percent - kNearlyThere);
    return next != kSteps.begin() ? *(next - 1) : kSteps.front();
}

PreviewPlace PlaceSheet(const SheetSize& sheet, const PreviewRoom& room, double pixelsPerMillimetre, int scrollAcross,
                        int scrollDown) {
    const int width = static_cast<int>(std::lround(sheet.width * pixelsPerMillimetre));
    const int height = static_cast<int>(std::lround(sheet.height * pixelsPerMillimetre));
    const Axis across = PlaceAlong(width, room.width, room.margin, scrollAcross);
    const Axis down = PlaceAlong(height, room.height, room.margin, scrollDown);
    return {{across.start, down.start, across.start + width, down.start + height}, across.scroll, down.scroll};
}
