#pragma once

#include "visual/pixels.h"

#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>

#include <windows.h>

namespace visual {

/// Names a picture by everything that it is made from but its size: what kind of thing it shows, and the values of the
/// colours and measures that were used. A picture is never out of date, because other colours give another name.
class Recipe {
public:
    Recipe() = default;
    template <class... Parts>
    explicit Recipe(std::string_view kind, const Parts&... parts) : m_name(kind) {
        (Append(parts), ...);
    }

    bool IsEmpty() const { return m_name.empty(); }
    const std::string& Name() const { return m_name; }
    template <class Part>
    void Append(const Part& part) {
        static_assert(std::has_unique_object_representations_v<Part>, "padding would make the name random");
        m_name.append(reinterpret_cast<const char*>(&part), sizeof(part));
    }

private:
    std::string m_name;
};

/// Pictures that were painted before, the most recently used ones within fixed limits. Belongs to one thread.
class PictureCache {
public:
    /// Bounds on what is kept: pictures (each is a GDI object) and pixels (4 bytes each) altogether.
    static constexpr std::size_t kMostPictures = 96;
    static constexpr std::size_t kMostPixels = std::size_t(2) << 20;

    PictureCache() = default;
    ~PictureCache() { Clear(); }
    PictureCache(const PictureCache&) = delete;
    PictureCache& operator=(const PictureCache&) = delete;

    /// That of the calling thread.
    static PictureCache& Instance();

    /// Draws a picture of the rectangle's size that is there already; false when it is not.
    bool Draw(HDC dc, const RECT& rect, const Recipe& recipe);
    /// Takes the bitmap, whose pixels `view` shows. It must not be selected into a context.
    void Put(const Recipe& recipe, HBITMAP bitmap, const PixelView& view);
    void Clear();
    std::size_t Count() const { return m_pictures.size(); }

private:
    struct Picture {
        std::string name;
        HBITMAP bitmap = nullptr;
        std::size_t pixels = 0;
        bool isOpaque = false;
    };
    static std::string NameOf(const Recipe& recipe, int width, int height);
    void DropLast();

    std::list<Picture> m_pictures; // the most recently used first
    std::unordered_map<std::string_view, std::list<Picture>::iterator> m_byName;
    std::size_t m_pixels = 0;
    HDC m_memory = nullptr;
};

} // namespace visual
