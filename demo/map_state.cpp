#include "map_state.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <utility>

namespace {

constexpr double kWorldWidth = 360;
constexpr double kWorldHeight = 180;
constexpr std::size_t kHistoryLimit = 100;
/// An A4 sheet in millimetres, and the margin around it as a part of the window.
constexpr double kSheetShort = 210;
constexpr double kSheetLong = 297;
constexpr double kPageMargin = 0.04;

bool IsSameView(const MapView& a, const MapView& b) {
    return a.center.longitude == b.center.longitude && a.center.latitude == b.center.latitude &&
           a.pixelsPerDegree == b.pixelsPerDegree;
}

std::optional<std::vector<double>> ParseNumbers(const std::wstring& text, std::size_t count) {
    std::vector<double> numbers;
    const wchar_t* at = text.c_str();
    for (;;) {
        wchar_t* end = nullptr;
        const double number = std::wcstod(at, &end);
        if (end == at || !std::isfinite(number)) {
            return std::nullopt;
        }
        numbers.push_back(number);
        const wchar_t* const separator = end;
        at = end;
        while (*at == L' ') {
            ++at;
        }
        if (*at == L',') {
            ++at;
        }
        if (*at == 0 && separator[0] != L',') {
            break;
        }
        if (at == separator) {
            return std::nullopt;
        }
    }
    if (numbers.size() != count) {
        return std::nullopt;
    }
    return numbers;
}

} // namespace

MapState::MapState() : m_history{m_view} {}

void MapState::SetWindowSize(int width, int height) {
    const bool first = m_width == 1 && m_height == 1;
    m_width = std::max(width, 1);
    m_height = std::max(height, 1);
    if (first && !m_hasFirstView) {
        ShowWorld();
        m_history = {m_view};
        m_historyPosition = 0;
    }
    Clamp();
    Changed();
}

void MapState::SetFirstView(const MapView& view) {
    m_view = view;
    Clamp();
    m_hasFirstView = true;
    m_history = {m_view};
    m_historyPosition = 0;
    Changed();
}

void MapState::Clamp() {
    m_view.pixelsPerDegree = std::clamp(m_view.pixelsPerDegree, kMinPixelsPerDegree, kMaxPixelsPerDegree);
    m_view.center.longitude = std::clamp(m_view.center.longitude, -kWorldWidth / 2, kWorldWidth / 2);
    m_view.center.latitude = std::clamp(m_view.center.latitude, -kWorldHeight / 2, kWorldHeight / 2);
}

void MapState::Remember() {
    Clamp();
    Changed();
    if (IsSameView(m_history[m_historyPosition], m_view)) {
        return;
    }
    m_history.resize(m_historyPosition + 1);
    m_history.push_back(m_view);
    if (m_history.size() > kHistoryLimit) {
        m_history.erase(m_history.begin());
    }
    m_historyPosition = m_history.size() - 1;
}

void MapState::Zoom(double factor, double offsetX, double offsetY) {
    const double before = m_view.pixelsPerDegree;
    const double after = std::clamp(before * factor, kMinPixelsPerDegree, kMaxPixelsPerDegree);
    m_view.center.longitude += offsetX / before - offsetX / after;
    m_view.center.latitude -= offsetY / before - offsetY / after;
    m_view.pixelsPerDegree = after;
    Remember();
}

void MapState::SetScale(double pixelsPerDegree) {
    m_view.pixelsPerDegree = pixelsPerDegree;
    Remember();
}

void MapState::Pan(double fractionEast, double fractionNorth) {
    m_view.center.longitude += fractionEast * m_width / m_view.pixelsPerDegree;
    m_view.center.latitude += fractionNorth * m_height / m_view.pixelsPerDegree;
    Remember();
}

void MapState::Drag(double pixelsEast, double pixelsNorth) {
    m_view.center.longitude += pixelsEast / m_view.pixelsPerDegree;
    m_view.center.latitude += pixelsNorth / m_view.pixelsPerDegree;
    Clamp();
    Changed();
}

void MapState::EndDrag() { Remember(); }

void MapState::Show(const GeoBox& box) {
    const double width = std::max(box.east - box.west, 0.1);
    const double height = std::max(box.north - box.south, 0.1);
    m_view.center = {(box.west + box.east) / 2, (box.south + box.north) / 2};
    m_view.pixelsPerDegree = std::min(m_width / width, m_height / height);
    Remember();
}

void MapState::CenterOn(GeoPoint place) {
    m_view.center = place;
    Remember();
}

void MapState::ShowWorld() { Show(GeoBox()); }

bool MapState::CanStep(int direction) const noexcept {
    return direction < 0 ? m_historyPosition > 0 : m_historyPosition + 1 < m_history.size();
}

bool MapState::Step(int direction) {
    if (!CanStep(direction)) {
        return false;
    }
    m_historyPosition += direction < 0 ? -1 : 1;
    m_view = m_history[m_historyPosition];
    Changed();
    return true;
}

void MapState::AddBookmark() {
    m_bookmarks.push_back(m_view);
    m_bookmarkPosition = m_bookmarks.size() - 1;
    Changed();
}

bool MapState::StepBookmark(int direction) {
    if (m_bookmarks.empty()) {
        return false;
    }
    const std::size_t step = direction < 0 ? m_bookmarks.size() - 1 : 1;
    m_bookmarkPosition = (m_bookmarkPosition + step) % m_bookmarks.size();
    m_view = m_bookmarks[m_bookmarkPosition];
    Remember();
    return true;
}

void MapState::ClearBookmarks() {
    m_bookmarks.clear();
    m_bookmarkPosition = 0;
    Changed();
}

void MapState::SetBookmarks(std::vector<MapView> bookmarks) {
    m_bookmarks = std::move(bookmarks);
    m_bookmarkPosition = m_bookmarks.empty() ? 0 : m_bookmarks.size() - 1;
    Changed();
}

void MapState::Toggle(MapLayer layer) { SetShown(layer, !IsShown(layer)); }

void MapState::SetShown(MapLayer layer, bool shown) {
    if (IsShown(layer) == shown) {
        return;
    }
    m_layers[static_cast<int>(layer)] = shown;
    Changed();
}

void MapState::SetColor(MapLayer layer, std::uint32_t color) {
    m_colors[static_cast<int>(layer)] = color & 0xFFFFFF;
    Changed();
}

bool MapState::SetLit(MapLayer layer, bool lit) {
    if (IsLocked(layer)) {
        return false;
    }
    m_lit[static_cast<int>(layer)] = lit;
    Changed();
    return true;
}

void MapState::ToggleLock(MapLayer layer) {
    bool& locked = m_locked[static_cast<int>(layer)];
    locked = !locked;
}

void MapState::SetLit(MapLabel label, bool lit) {
    m_labelsLit[static_cast<int>(label)] = lit;
    Changed();
}

MapPalette MapState::Palette() const noexcept {
    return m_palette.value_or(m_mode == MapMode::Print ? MapPalette::Natural : m_skinPalette);
}

void MapState::SetPalette(std::optional<MapPalette> palette) {
    const MapPalette before = Palette();
    m_palette = palette;
    if (Palette() != before) {
        Changed();
    }
}

void MapState::SetSkinPalette(MapPalette palette) {
    const MapPalette before = Palette();
    m_skinPalette = palette;
    if (Palette() != before) {
        Changed();
    }
}

void MapState::SetGraticuleSpacing(int degrees) {
    m_spacing = std::clamp(degrees, 1, 90);
    Changed();
}

void MapState::ToggleSmooth() {
    m_smooth = !m_smooth;
    Changed();
}

void MapState::SetLineWidth(int times) {
    m_lineWidth = std::clamp(times, kMinLineWidth, kMaxLineWidth);
    Changed();
}

void MapState::SetNameSize(int pixels) {
    m_nameSize = std::clamp(pixels, kMinNameSize, kMaxNameSize);
    Changed();
}

void MapState::Open(std::shared_ptr<const GeoFeatures> features, const GeoBox& box) {
    constexpr double around = 0.06; // of the window
    constexpr double smallest = 2;  // degrees: a lone place is seen with its surroundings
    m_opened.push_back(std::move(features));
    SetShown(MapLayer::Opened, true);
    const double width = std::max(box.east - box.west, smallest), height = std::max(box.north - box.south, smallest);
    const GeoPoint middle{(box.west + box.east) / 2, (box.south + box.north) / 2};
    const double half = width * (0.5 + around), halfHeight = height * (0.5 + around);
    Show(
        {middle.longitude - half, middle.latitude - halfHeight, middle.longitude + half, middle.latitude + halfHeight});
    Changed();
}

void MapState::Reopen(std::shared_ptr<const GeoFeatures> features) {
    m_opened.push_back(std::move(features));
    Changed();
}

void MapState::CloseOpened() {
    if (!m_opened.empty()) {
        m_opened.clear();
        Changed();
    }
}

int MapState::SliderPosition() const {
    const double range = std::log(kMaxPixelsPerDegree / kMinPixelsPerDegree);
    return static_cast<int>(std::lround(std::log(m_view.pixelsPerDegree / kMinPixelsPerDegree) / range * kSliderMax));
}

void MapState::SetSliderPosition(int position) {
    if (position == SliderPosition()) {
        return;
    }
    const double part = std::clamp(position, 0, kSliderMax) / static_cast<double>(kSliderMax);
    SetScale(kMinPixelsPerDegree * std::pow(kMaxPixelsPerDegree / kMinPixelsPerDegree, part));
}

void MapState::ToWindow(GeoPoint place, double& x, double& y) const {
    x = m_width / 2.0 + (place.longitude - m_view.center.longitude) * m_view.pixelsPerDegree;
    y = m_height / 2.0 - (place.latitude - m_view.center.latitude) * m_view.pixelsPerDegree;
}

GeoPoint MapState::ToPlace(double x, double y) const {
    return {m_view.center.longitude + (x - m_width / 2.0) / m_view.pixelsPerDegree,
            m_view.center.latitude - (y - m_height / 2.0) / m_view.pixelsPerDegree};
}

void MapState::SetMode(MapMode mode) {
    if (std::exchange(m_mode, mode) != mode) {
        Changed();
    }
}

void MapState::AddMark() {
    m_marks.push_back(m_view.center);
    Changed();
}

void MapState::RemoveLastMark() {
    if (!m_marks.empty()) {
        m_marks.pop_back();
        Changed();
    }
}

void MapState::ClearMarks() {
    if (!m_marks.empty()) {
        m_marks.clear();
        Changed();
    }
}

void MapState::SetMarks(std::vector<GeoPoint> marks) {
    m_marks = std::move(marks);
    Changed();
}

void MapState::SetPage(PageShape page) {
    if (std::exchange(m_page, page) != page) {
        Changed();
    }
}

WindowBox MapState::PageBox() const {
    const bool isPortrait = m_page == PageShape::Portrait;
    const double sheetWidth = isPortrait ? kSheetShort : kSheetLong;
    const double sheetHeight = isPortrait ? kSheetLong : kSheetShort;
    const double room = 1 - 2 * kPageMargin;
    const double scale = std::min(m_width * room / sheetWidth, m_height * room / sheetHeight);
    const int width = static_cast<int>(sheetWidth * scale);
    const int height = static_cast<int>(sheetHeight * scale);
    const int left = (m_width - width) / 2;
    const int top = (m_height - height) / 2;
    return {left, top, left + width, top + height};
}

WindowBox MapState::WrittenBox() const {
    return m_mode == MapMode::Print ? PageBox() : WindowBox{0, 0, m_width, m_height};
}

MapState MapState::OfPage(int factor) const {
    const WindowBox box = PageBox();
    MapState page = Enlarged(factor);
    page.m_width = (box.right - box.left) * factor;
    page.m_height = (box.bottom - box.top) * factor;
    page.m_mode = MapMode::Browse;
    page.m_skinPalette = MapPalette::Natural;
    return page;
}

MapState MapState::Enlarged(int factor) const {
    MapState enlarged = *this;
    enlarged.m_width *= factor;
    enlarged.m_height *= factor;
    enlarged.m_view.pixelsPerDegree *= factor;
    return enlarged;
}

std::optional<GeoBox> ParseBox(const std::wstring& text) {
    const auto numbers = ParseNumbers(text, 4);
    if (!numbers) {
        return std::nullopt;
    }
    return GeoBox{(*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3]};
}

std::optional<std::pair<double, double>> ParsePair(const std::wstring& text) {
    const auto numbers = ParseNumbers(text, 2);
    if (!numbers) {
        return std::nullopt;
    }
    return std::make_pair((*numbers)[0], (*numbers)[1]);
}
