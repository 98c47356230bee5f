#include "map_stand_in.h"

#include <algorithm>
#include <cmath>

namespace {

struct Span {
    int sourceBegin = 0;
    int sourceEnd = 0;
    int targetBegin = 0;
    int targetEnd = 0;
};

/// One direction: a picture of `length` pixels begins at `begin` of the window and is enlarged by `factor`.
Span PlanSpan(double begin, double factor, int length, int window) {
    const auto toPicture = [&](double x) { return (x - begin) / factor; };
    const auto toWindow = [&](int x) { return static_cast<int>(std::lround(begin + x * factor)); };
    const double first = std::clamp(std::floor(toPicture(0)), 0.0, static_cast<double>(length));
    const double last = std::clamp(std::ceil(toPicture(window)), 0.0, static_cast<double>(length));
    if (first >= last) {
        return {};
    }
    const int sourceBegin = static_cast<int>(first);
    const int sourceEnd = static_cast<int>(last);
    return {sourceBegin, sourceEnd, toWindow(sourceBegin), toWindow(sourceEnd)};
}

} // namespace

MapStandIn PlanStandIn(const MapState& drawn, const MapState& shown) {
    const double factor = shown.View().pixelsPerDegree / drawn.View().pixelsPerDegree;
    double left = 0;
    double top = 0;
    shown.ToWindow(drawn.ToPlace(0, 0), left, top);
    const Span across = PlanSpan(left, factor, drawn.WindowWidth(), shown.WindowWidth());
    const Span down = PlanSpan(top, factor, drawn.WindowHeight(), shown.WindowHeight());
    const MapStandIn plan = {{across.sourceBegin, down.sourceBegin, across.sourceEnd, down.sourceEnd},
                             {across.targetBegin, down.targetBegin, across.targetEnd, down.targetEnd}};
    return plan.source.IsEmpty() || plan.target.IsEmpty() ? MapStandIn{} : plan;
}
