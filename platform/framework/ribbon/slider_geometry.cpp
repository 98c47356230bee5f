#include "ribbon/slider_geometry.h"

#include <cmath>

namespace ribbon {
namespace {

// Lengths at 96 DPI.
constexpr Size kThumb{11, 15};
constexpr int kButton = 16;
constexpr int kButtonGap = 2;
constexpr int kSideMargin = 2;

Size ThumbSize(const FaceMetrics& metrics) { return {metrics.Scaled(kThumb.width), metrics.Scaled(kThumb.height)}; }

Rect ChannelOf(const Rect& rect, bool hasButtons, const FaceMetrics& metrics) {
    int side = metrics.Scaled(kSideMargin);
    if (hasButtons) {
        side += metrics.Scaled(kButton) + metrics.Scaled(kButtonGap);
    }
    return {rect.left + side, rect.top, std::max(rect.left + side, rect.right - side), rect.bottom};
}

int TravelOf(const Rect& channel, const FaceMetrics& metrics) {
    return std::max(0, channel.Width() - ThumbSize(metrics).width);
}

} // namespace

Size MeasureSlider(int channelWidth, bool hasButtons, const FaceMetrics& metrics) {
    int width = metrics.Scaled(channelWidth) + 2 * metrics.Scaled(kSideMargin);
    if (hasButtons) {
        width += 2 * (metrics.Scaled(kButton) + metrics.Scaled(kButtonGap));
    }
    return {width, metrics.RowHeight()};
}

SliderFace PlaceSlider(const Rect& rect, const SliderState& state, const FaceMetrics& metrics) {
    if (rect.IsEmpty()) {
        return {};
    }
    SliderFace face;
    face.channel = ChannelOf(rect, state.hasButtons, metrics);
    if (state.hasButtons) {
        const Size button{metrics.Scaled(kButton), metrics.Scaled(kButton)};
        const int margin = metrics.Scaled(kSideMargin);
        face.decrease = LeftCentred({rect.left + margin, rect.top, rect.right, rect.bottom}, button);
        face.increase = LeftCentred({rect.right - margin - button.width, rect.top, rect.right, rect.bottom}, button);
    }
    const double range = static_cast<double>(state.maximum) - state.minimum;
    const double part = range > 0 ? (static_cast<double>(state.position) - state.minimum) / range : 0.0;
    const int offset = static_cast<int>(std::lround(part * TravelOf(face.channel, metrics)));
    face.thumb = LeftCentred({face.channel.left + offset, rect.top, rect.right, rect.bottom}, ThumbSize(metrics));
    return face;
}

RibbonSliderPart SliderPartAt(const SliderFace& face, Point point) {
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

int SliderPositionAt(const Rect& rect, const SliderState& state, const FaceMetrics& metrics, int x) {
    const Rect channel = ChannelOf(rect, state.hasButtons, metrics);
    const int travel = TravelOf(channel, metrics);
    if (travel == 0) {
        return state.position;
    }
    const int offset = std::clamp(x - channel.left - ThumbSize(metrics).width / 2, 0, travel);
    const double range = static_cast<double>(state.maximum) - state.minimum;
    return static_cast<int>(state.minimum + std::llround(range * offset / travel));
}

} // namespace ribbon
