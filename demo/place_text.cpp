#include "place_text.h"

#include <boost/format.hpp>

#include <algorithm>
#include <cmath>

namespace {

std::wstring DegreeText(double degrees, const wchar_t* side, bool hasSeconds) {
    const double size = std::abs(degrees);
    if (!hasSeconds) {
        return (boost::wformat(L"%.4f\u00b0 %s") % size % side).str();
    }
    const long seconds = std::lround(size * 3600);
    return (boost::wformat(L"%d\u00b0 %02d\u2032 %02d\u2033 %s") % (seconds / 3600) % (seconds / 60 % 60) %
            (seconds % 60) % side)
        .str();
}

} // namespace

std::wstring ScaleText(double pixelsPerDegree) {
    constexpr double metresOfDegree = 111319.5; // along the equator
    constexpr double metresOfPixel = 0.0254 / 96;
    constexpr wchar_t thinSpace = L'\u2009';
    const double ratio = metresOfDegree / (pixelsPerDegree * metresOfPixel);
    const double step = std::pow(10, std::max(std::floor(std::log10(ratio)) - 2, 0.0));
    std::wstring digits = std::to_wstring(std::llround(std::round(ratio / step) * step));
    for (std::size_t place = digits.size(); place > 3;) {
        digits.insert(place -= 3, 1, thinSpace);
    }
    return std::wstring(L"1") + thinSpace + L":" + thinSpace + digits;
}

std::wstring PlaceText(GeoPoint place, bool hasSeconds) {
    if (std::abs(place.latitude) > 90 || std::abs(place.longitude) > 180) {
        return L"\u2014"; // beside the world
    }
    return DegreeText(place.latitude, place.latitude < 0 ? L"S" : L"N", hasSeconds) + L"  " +
           DegreeText(place.longitude, place.longitude < 0 ? L"W" : L"E", hasSeconds);
}
