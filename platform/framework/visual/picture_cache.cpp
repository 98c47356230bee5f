#include "visual/picture_cache.h"

#include "fx/dc_scope.h"

#include <algorithm>
#include <span>
#include <utility>

namespace visual {

PictureCache& PictureCache::Instance() {
    static thread_local PictureCache cache;
    return cache;
}

std::string PictureCache::NameOf(const Recipe& recipe, int width, int height) {
    Recipe name = recipe;
    name.Append(width);
    name.Append(height);
    return name.Name();
}

bool PictureCache::Draw(HDC dc, const RECT& rect, const Recipe& recipe) {
    const int width = rect.right - rect.left, height = rect.bottom - rect.top;
    const auto found = m_byName.find(NameOf(recipe, width, height));
    if (found == m_byName.end() || (m_memory == nullptr && (m_memory = CreateCompatibleDC(nullptr)) == nullptr)) {
        return false;
    }
    m_pictures.splice(m_pictures.begin(), m_pictures, found->second);
    const Picture& picture = *found->second;
    const fx::DcSelection selected(m_memory, picture.bitmap);
    if (picture.isOpaque) {
        BitBlt(dc, rect.left, rect.top, width, height, m_memory, 0, 0, SRCCOPY);
    } else {
        const BLENDFUNCTION over{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
        AlphaBlend(dc, rect.left, rect.top, width, height, m_memory, 0, 0, width, height, over);
    }
    return true;
}

void PictureCache::Put(const Recipe& recipe, HBITMAP bitmap, const PixelView& view) {
    const std::span pixels(view.bits, static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height));
    std::string name = NameOf(recipe, view.width, view.height);
    if (pixels.size() > kMostPixels || m_byName.contains(name)) {
        DeleteObject(bitmap);
        return;
    }
    while (!m_pictures.empty() && (m_pictures.size() >= kMostPictures || m_pixels + pixels.size() > kMostPixels)) {
        DropLast();
    }
    const bool isOpaque = std::ranges::all_of(pixels, [](std::uint32_t pixel) { return AlphaOf(pixel) == 255; });
    m_pictures.push_front({std::move(name), bitmap, pixels.size(), isOpaque});
    m_byName.emplace(m_pictures.front().name, m_pictures.begin());
    m_pixels += pixels.size();
}

void PictureCache::DropLast() {
    const Picture& last = m_pictures.back();
    m_byName.erase(last.name);
    m_pixels -= last.pixels;
    DeleteObject(last.bitmap);
    m_pictures.pop_back();
}

void PictureCache::Clear() {
    while (!m_pictures.empty()) {
        DropLast();
    }
    if (m_memory != nullptr) {
        DeleteDC(m_memory);
    }
    m_memory = nullptr;
}

} // namespace visual
