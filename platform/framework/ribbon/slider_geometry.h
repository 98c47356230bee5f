#pragma once

#include "fx/slider_geometry.h"
#include "ribbon/face_types.h"

// Sizes, rectangles and positions of a ribbon slider, in the metrics of all faces.
namespace ribbon {

using SliderState = fx::slider::State;
using SliderFace = fx::slider::Face;

// channelWidth: at 96 DPI.
inline Size MeasureSlider(int channelWidth, bool hasButtons, const FaceMetrics& metrics) {
    return {metrics.Scaled(channelWidth) + 2 * fx::slider::SideWidth(hasButtons, metrics.scale), metrics.RowHeight()};
}

inline SliderFace PlaceSlider(const Rect& rect, const SliderState& state, const FaceMetrics& metrics) {
    return fx::slider::Place(rect, state, metrics.scale);
}

inline RibbonSliderPart SliderPartAt(const SliderFace& face, Point point) { return fx::slider::PartAt(face, point); }

inline int SliderPositionAt(const Rect& rect, const SliderState& state, const FaceMetrics& metrics, int x) {
    return fx::slider::PositionAt(rect, state, metrics.scale, x);
}

} // namespace ribbon
