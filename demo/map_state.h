#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct GeoFeatures;

/// A place on the globe in degrees; longitude east and latitude north are positive.
struct GeoPoint {
    double longitude = 0;
    double latitude = 0;
};

/// A rectangle of the globe in degrees.
struct GeoBox {
    double west = -180;
    double south = -90;
    double east = 180;
    double north = 90;
};

/// What part of the map is seen: its middle and the scale in screen pixels a degree.
struct MapView {
    GeoPoint center;
    double pixelsPerDegree = 4;
};

enum class MapLayer { Relief, Coast, Lakes, Graticule, Cities, Names, ScaleBar, Opened, Count };
/// The texts written on the map.
enum class MapLabel { GraticuleNumbers, CityNames, ScaleBarText, Count };
enum class MapPalette { Natural, Night, Plain };
/// What the user is doing with the map: looking at it, setting marks on it, choosing what part goes on a page.
enum class MapMode { Browse, Edit, Print };
enum class PageShape { Portrait, Landscape };

/// A rectangle of the window in pixels.
struct WindowBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// Everything that the map window shows, as plain data: view, history, layers, palette, bookmarks. Knows no window; the
/// window says its size in pixels and repaints when Version() has changed.
class MapState {
public:
    static constexpr double kMinPixelsPerDegree = 1;
    static constexpr double kMaxPixelsPerDegree = 120;
    /// Positions of a scale slider: 0 is the smallest scale, kSliderMax the largest, steps are equal factors.
    static constexpr int kSliderMax = 100;
    static constexpr int kMinLineWidth = 1;
    static constexpr int kMaxLineWidth = 3;
    static constexpr int kMinNameSize = 8;
    static constexpr int kMaxNameSize = 32;

    MapState();

    /// Size of the map window in pixels. The view keeps its middle.
    void SetWindowSize(int width, int height);
    int WindowWidth() const noexcept { return m_width; }
    int WindowHeight() const noexcept { return m_height; }

    const MapView& View() const noexcept { return m_view; }
    /// The view that the history begins with, in the place of the whole world.
    void SetFirstView(const MapView& view);

    /// Changes the scale by a factor; the place under the window position (pixels from the middle) stays where it is.
    void Zoom(double factor, double offsetX = 0, double offsetY = 0);
    void SetScale(double pixelsPerDegree);
    /// Moves by fractions of the window; positive is east and north.
    void Pan(double fractionEast, double fractionNorth);
    /// Moves by pixels without an entry in the history, for dragging; EndDrag makes the entry.
    void Drag(double pixelsEast, double pixelsNorth);
    void EndDrag();
    void Show(const GeoBox& box);
    void CenterOn(GeoPoint place);
    void ShowWorld();

    /// Goes through the views that were shown: -1 back, 1 forward. False when there is none.
    bool Step(int direction);
    bool CanStep(int direction) const noexcept;

    void AddBookmark();
    /// Goes round the kept views: 1 forward, -1 back. False when there is none.
    bool StepBookmark(int direction);
    void ClearBookmarks();
    std::size_t BookmarkCount() const noexcept { return m_bookmarks.size(); }
    const std::vector<MapView>& Bookmarks() const noexcept { return m_bookmarks; }
    void SetBookmarks(std::vector<MapView> bookmarks);

    bool IsShown(MapLayer layer) const noexcept { return m_layers[static_cast<int>(layer)]; }
    void Toggle(MapLayer layer);
    void SetShown(MapLayer layer, bool shown);
    /// The layer's own colour, 0xRRGGBB; nothing where the palette's is used.
    std::optional<std::uint32_t> Color(MapLayer layer) const noexcept { return m_colors[static_cast<int>(layer)]; }
    void SetColor(MapLayer layer, std::uint32_t color);
    /// A layer whose light is off is drawn faintly.
    bool IsLit(MapLayer layer) const noexcept { return m_lit[static_cast<int>(layer)]; }
    /// False, and nothing changes, where the layer is locked.
    bool SetLit(MapLayer layer, bool lit);
    /// A locked layer keeps its light as it is.
    bool IsLocked(MapLayer layer) const noexcept { return m_locked[static_cast<int>(layer)]; }
    void ToggleLock(MapLayer layer);
    /// A text whose light is off is written faintly.
    bool IsLit(MapLabel label) const noexcept { return m_labelsLit[static_cast<int>(label)]; }
    void SetLit(MapLabel label, bool lit);
    /// What the map is drawn with: the user's choice, or else what goes with the skin. Paper has no skin: while a page
    /// is chosen, and on it, a palette that nobody chose is the natural one.
    MapPalette Palette() const noexcept;
    /// Nothing where the palette follows the skin, as it does at first.
    std::optional<MapPalette> ChosenPalette() const noexcept { return m_palette; }
    void SetPalette(std::optional<MapPalette> palette);
    /// The palette that goes with the skin.
    void SetSkinPalette(MapPalette palette);
    int GraticuleSpacing() const noexcept { return m_spacing; }
    void SetGraticuleSpacing(int degrees);
    bool IsSmooth() const noexcept { return m_smooth; }
    void ToggleSmooth();
    /// Times the plain width of coastlines and shores, kMinLineWidth to kMaxLineWidth.
    int LineWidth() const noexcept { return m_lineWidth; }
    void SetLineWidth(int times);
    /// Height of the names in pixels at 96 DPI.
    int NameSize() const noexcept { return m_nameSize; }
    void SetNameSize(int pixels);

    MapMode Mode() const noexcept { return m_mode; }
    void SetMode(MapMode mode);
    /// Places that the user has marked, in the order in which they were set.
    const std::vector<GeoPoint>& Marks() const noexcept { return m_marks; }
    /// Marks the middle of what is seen.
    void AddMark();
    void RemoveLastMark();
    void ClearMarks();
    void SetMarks(std::vector<GeoPoint> marks);
    PageShape Page() const noexcept { return m_page; }
    void SetPage(PageShape page);
    /// What of the window goes on the page: an A4 sheet as large as fits, with a margin around.
    WindowBox PageBox() const;
    /// Where texts stand: on the page while one is chosen, so that it has all of them, otherwise all over the window.
    WindowBox WrittenBox() const;

    /// What was read from files, in the order in which it was opened.
    const std::vector<std::shared_ptr<const GeoFeatures>>& Opened() const noexcept { return m_opened; }
    /// Adds what a file holds, shows its layer, and all of it in the window.
    void Open(std::shared_ptr<const GeoFeatures> features, const GeoBox& box);
    /// One that was open when the viewer was left: the view and what is shown stay.
    void Reopen(std::shared_ptr<const GeoFeatures> features);
    void CloseOpened();

    int SliderPosition() const;
    void SetSliderPosition(int position);

    /// Window position in pixels from the top left corner, and back.
    void ToWindow(GeoPoint place, double& x, double& y) const;
    GeoPoint ToPlace(double x, double y) const;

    /// The same view in a window that is `factor` times as wide and high.
    MapState Enlarged(int factor) const;
    /// What goes on the page as a map of its own, in a window that is `factor` times as wide and high as the page's box
    /// and shows nothing of the working mode.
    MapState OfPage(int factor) const;

    /// Rises with every change that shows.
    unsigned Version() const noexcept { return m_version; }

private:
    void Clamp();
    void Remember();
    void Changed() noexcept { ++m_version; }

    int m_width = 1;
    int m_height = 1;
    MapView m_view;
    bool m_hasFirstView = false;
    std::vector<MapView> m_history;
    std::size_t m_historyPosition = 0;
    std::vector<MapView> m_bookmarks;
    std::size_t m_bookmarkPosition = 0;
    static constexpr int kLayerCount = static_cast<int>(MapLayer::Count);
    bool m_layers[kLayerCount] = {true, true, true, true, true, true, true, true};
    std::optional<std::uint32_t> m_colors[kLayerCount];
    bool m_lit[kLayerCount] = {true, true, true, true, true, true, true, true};
    bool m_locked[kLayerCount] = {};
    bool m_labelsLit[static_cast<int>(MapLabel::Count)] = {true, true, true};
    std::optional<MapPalette> m_palette;
    MapPalette m_skinPalette = MapPalette::Natural;
    int m_spacing = 15;
    bool m_smooth = true;
    int m_lineWidth = 1;
    int m_nameSize = 12;
    MapMode m_mode = MapMode::Browse;
    std::vector<GeoPoint> m_marks;
    std::vector<std::shared_ptr<const GeoFeatures>> m_opened;
    PageShape m_page = PageShape::Landscape;
    unsigned m_version = 1;
};

/// Four decimal numbers "west,south,east,north"; nothing when the text is anything else.
std::optional<GeoBox> ParseBox(const std::wstring& text);
/// Two decimal numbers divided by a comma or by spaces, in the order written.
std::optional<std::pair<double, double>> ParsePair(const std::wstring& text);
