#pragma once

#include "fx/ribbon_slider_part.h"
#include "ribbon/face_types.h"

// Sizes, rectangles and positions of a ribbon slider.
namespace ribbon {

struct SliderState {
    int minimum = 0;
    int maximum = 100;
    int position = 0;
    bool hasButtons = false;
};

struct SliderFace {
    Rect decrease;
    Rect channel; // the whole way of the thumb, as high as the element
    Rect thumb;
    Rect increase;
};

// channelWidth: at 96 DPI.
Size MeasureSlider(int channelWidth, bool hasButtons, const FaceMetrics& metrics);
SliderFace PlaceSlider(const Rect& rect, const SliderState& state, const FaceMetrics& metrics);
RibbonSliderPart SliderPartAt(const SliderFace& face, Point point);
// The position whose thumb is centred nearest to x; inside the range always.
int SliderPositionAt(const Rect& rect, const SliderState& state, const FaceMetrics& metrics, int x);

} // namespace ribbon
