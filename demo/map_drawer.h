#pragma once

#include "map_painter.h"
#include "map_state.h"

#include <windows.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

struct MapData;

/// A finished picture of the map.
struct DrawnMap {
    DrawnMap(MapState shown, unsigned order);
    ~DrawnMap();
    DrawnMap(const DrawnMap&) = delete;
    DrawnMap& operator=(const DrawnMap&) = delete;

    MapState state;           ///< What it shows, and its size in pixels.
    unsigned order = 0;       ///< Number of the order that asked for it.
    HBITMAP bitmap = nullptr; ///< 32 bits a pixel; null when there was no memory for it.
};

/// Draws the map in a thread of its own, so that the window never waits for a picture. One picture is at work at a
/// time; of what is ordered meanwhile only the newest is drawn. All calls come from the window's thread.
class MapDrawer {
public:
    /// `data` outlives the drawer. `finished` is called in the drawer's thread whenever a picture can be taken.
    MapDrawer(const MapData& data, std::function<void()> finished);
    /// Waits for the picture at work; what waits behind it is given up.
    ~MapDrawer();
    MapDrawer(const MapDrawer&) = delete;
    MapDrawer& operator=(const MapDrawer&) = delete;

    /// Asks for a picture; an earlier order that nobody has begun is given up. `order` comes back with the picture.
    void Order(const MapState& state, const MapPaintStyle& style, unsigned order);
    /// Asks for a picture that is drawn whatever is ordered later, one after the other.
    void OrderKept(const MapState& state, const MapPaintStyle& style, unsigned order);
    /// Those that are finished and have not been taken yet.
    std::vector<std::unique_ptr<DrawnMap>> TakeKept();
    /// The newest finished picture that has not been taken yet, or null.
    std::unique_ptr<DrawnMap> Take();
    /// Returns when nothing is ordered or at work any more.
    void Wait();

private:
    struct Request {
        MapState state;
        MapPaintStyle style;
        unsigned order = 0;
    };

    void Run();
    bool HasRequest() const { return m_request || !m_keptRequests.empty(); }

    MapPainter m_painter; ///< The thread's.
    std::function<void()> m_finished;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Request> m_request;
    std::unique_ptr<DrawnMap> m_drawn;
    std::deque<Request> m_keptRequests;
    std::vector<std::unique_ptr<DrawnMap>> m_keptDrawn;
    bool m_isAtWork = false;
    bool m_isLeaving = false;
    std::thread m_thread; ///< Last: it uses all of the above.
};
