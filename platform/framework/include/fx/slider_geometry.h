#pragma once

#include "fx/geometry.h"
#include "fx/ribbon_slider_part.h"

#include <algorithm>
#include <cmath>

/// Where the parts of a ribbon slider lie, and which position a point means. Pure functions; scaled pixels.
namespace fx::slider {

struct State {
    int minimum = 0;
    int maximum = 100;
    int position = 0;
    bool hasButtons = false;
};

struct Face {
    Rect decrease;
    Rect channel; ///< the whole way of the thumb, as high as the element
    Rect thumb;
    Rect increase;
};

// Lengths at 96 DPI.
inline constexpr Size kThumb{11, 15};
inline constexpr int kButton = 16;
inline constexpr int kButtonGap = 2;
inline constexpr int kSideMargin = 2;

/// What the element takes beside the channel at each end.
inline int SideWidth(bool hasButtons, double scale) {
    return Scaled(kSideMargin, scale) + (hasButtons ? Scaled(kButton, scale) + Scaled(kButtonGap, scale) : 0);
}

inline Rect ChannelOf(const Rect& rect, bool hasButtons, double scale) {
    const int side = SideWidth(hasButtons, scale);
    return {rect.left + side, rect.top, std::max(rect.left + side, rect.right - side), rect.bottom};
}

inline int TravelOf(const Rect& channel, double scale) {
    return std::max(0, channel.Width() - Scaled(kThumb.width, scale));
}

inline Face Place(const Rect& rect, const State& state, double scale) {
    if (rect.IsEmpty()) {
        return {};
    }
    // In the middle of the height.
    const auto at = [&rect](int left, Size size) {
        const int top = rect.top + (rect.Height() - size.height) / 2;
        return Rect{left, top, left + size.width, top + size.height};
    };
    Face face;
    face.channel = ChannelOf(rect, state.hasButtons, scale);
    if (state.hasButtons) {
        const int side = Scaled(kButton, scale);
        const int margin = Scaled(kSideMargin, scale);
        face.decrease = at(rect.left + margin, {side, side});
        face.increase = at(rect.right - margin - side, {side, side});
    }
    const double range = static_cast<double>(state.maximum) - state.minimum;
    const double part = range > 0 ? (static_cast<double>(state.position) - state.minimum) / range : 0.0;
    const int offset = static_cast<int>(std::lround(part * TravelOf(face.channel, scale)));
    face.thumb = at(face.channel.left + offset, {Scaled(kThumb.width, scale), Scaled(kThumb.height, scale)});
    return face;
}

inline RibbonSliderPart PartAt(const Face& face, Point point) {
    if (face.decrease.Contains(point)) {
        return RibbonSliderPart::Decrease;
    }
    if (face.increase.Contains(point)) {
        return RibbonSliderPart::Increase;
    }
    if (face.thumb.Contains(point)) {
        return RibbonSliderPart::Thumb;
    }
    return face.channel.Contains(point) ? RibbonSliderPart::Channel : RibbonSliderPart::None;
}

/// The position whose thumb is centred nearest to x; inside the range always.
inline int PositionAt(const Rect& rect, const State& state, double scale, int x) {
    const Rect channel = ChannelOf(rect, state.hasButtons, scale);
    const int travel = TravelOf(channel, scale);
    if (travel == 0) {
        return state.position;
    }
    const int offset = std::clamp(x - channel.left - Scaled(kThumb.width, scale) / 2, 0, travel);
    const double range = static_cast<double>(state.maximum) - state.minimum;
    return static_cast<int>(state.minimum + std::llround(range * offset / travel));
}

} // namespace fx::slider
