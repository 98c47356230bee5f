#include "place_text.h"

#include <boost/format.hpp>

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

std::wstring PlaceText(GeoPoint place, bool hasSeconds) {
    if (std::abs(place.latitude) > 90 || std::abs(place.longitude) > 180) {
        return L"\u2014"; // beside the world
    }
    return DegreeText(place.latitude, place.latitude < 0 ? L"S" : L"N", hasSeconds) + L"  " +
           DegreeText(place.longitude, place.longitude < 0 ? L"W" : L"E", hasSeconds);
}
