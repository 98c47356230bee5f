#include "map_drawer.h"

#include "bitmap_info.h"

#include <utility>

namespace {

HBITMAP MakeBitmap(int width, int height) {
    const BITMAPINFO info = TopDownPixels(width, height);
    void* bits = nullptr;
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

void DrawInto(HBITMAP bitmap, MapPainter& painter, const MapState& state, const MapPaintStyle& style) {
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ earlier = ::SelectObject(dc, bitmap);
    painter.Paint(dc, state, style);
    ::GdiFlush();
    ::SelectObject(dc, earlier);
    ::DeleteDC(dc);
}

} // namespace

DrawnMap::DrawnMap(MapState shown, unsigned number)
    : state(std::move(shown)), order(number), bitmap(MakeBitmap(state.WindowWidth(), state.WindowHeight())) {}

DrawnMap::~DrawnMap() {
    if (bitmap) {
        ::DeleteObject(bitmap);
    }
}

MapDrawer::MapDrawer(const MapData& data, std::function<void()> finished)
    : m_painter(data), m_finished(std::move(finished)), m_thread([this] { Run(); }) {}

MapDrawer::~MapDrawer() {
    {
        const std::lock_guard lock(m_mutex);
        m_isLeaving = true;
        m_request.reset();
        m_keptRequests.clear();
    }
    m_changed.notify_all();
    m_thread.join();
}

void MapDrawer::Order(const MapState& state, const MapPaintStyle& style, unsigned order) {
    {
        const std::lock_guard lock(m_mutex);
        m_request = Request{state, style, order};
    }
    m_changed.notify_all();
}

void MapDrawer::OrderKept(const MapState& state, const MapPaintStyle& style, unsigned order) {
    {
        const std::lock_guard lock(m_mutex);
        m_keptRequests.push_back({state, style, order});
    }
    m_changed.notify_all();
}

std::vector<std::unique_ptr<DrawnMap>> MapDrawer::TakeKept() {
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_keptDrawn, {});
}

std::unique_ptr<DrawnMap> MapDrawer::Take() {
    const std::lock_guard lock(m_mutex);
    return std::move(m_drawn);
}

void MapDrawer::Wait() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return !m_isAtWork && !HasRequest(); });
}

void MapDrawer::Run() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isLeaving || HasRequest(); });
        if (m_isLeaving) {
            return;
        }
        const bool isKept = !m_request; // what is to be seen goes first
        const Request request = isKept ? std::move(m_keptRequests.front()) : std::move(*m_request);
        if (isKept) {
            m_keptRequests.pop_front();
        } else {
            m_request.reset();
        }
        m_isAtWork = true;
        lock.unlock();
        auto drawn = std::make_unique<DrawnMap>(request.state, request.order);
        if (drawn->bitmap) {
            DrawInto(drawn->bitmap, m_painter, request.state, request.style);
        }
        lock.lock();
        if (isKept) {
            m_keptDrawn.push_back(std::move(drawn));
        } else {
            m_drawn = std::move(drawn);
        }
        m_isAtWork = false;
        m_changed.notify_all();
        lock.unlock();
        m_finished();
        lock.lock();
    }
}
