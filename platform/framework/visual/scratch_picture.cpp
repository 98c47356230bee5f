#include "visual/scratch_picture.h"

#include "visual/canvas.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace visual {

namespace {

/// Images of buttons at every scale; what is larger takes longer to draw than to make.
constexpr int g_longestKeptSide = 128;
/// The sizes of one paint: large and small images, as they are and scaled.
constexpr std::size_t g_mostKept = 4;

struct Kept {
    HDC context;
    HBITMAP bitmap;
    HGDIOBJ before;
    PixelView view;
};

void Release(const Kept& kept) {
    if (kept.context != nullptr) {
        SelectObject(kept.context, kept.before);
        DeleteDC(kept.context);
    }
    if (kept.bitmap != nullptr) {
        DeleteObject(kept.bitmap);
    }
}

/// The last one that was given back stands at the end.
struct Shelf {
    std::vector<Kept> pictures;
    int made = 0;

    Shelf() = default;
    ~Shelf() { std::ranges::for_each(pictures, Release); }
    Shelf(const Shelf&) = delete;
    Shelf& operator=(const Shelf&) = delete;

    Kept Take(int width, int height) {
        const auto found = std::ranges::find_if(pictures, [width, height](const Kept& kept) {
            return kept.view.width == width && kept.view.height == height;
        });
        if (found == pictures.end()) {
            return Make(width, height);
        }
        const Kept kept = *found;
        pictures.erase(found);
        return kept;
    }
    void PutBack(const Kept& kept) {
        if (kept.view.bits == nullptr || std::max(kept.view.width, kept.view.height) > g_longestKeptSide) {
            Release(kept);
            return;
        }
        if (pictures.size() == g_mostKept) {
            Release(pictures.front());
            pictures.erase(pictures.begin());
        }
        pictures.push_back(kept);
    }

private:
    Kept Make(int width, int height) {
        ++made;
        std::uint32_t* bits = nullptr;
        Kept kept{CreateCompatibleDC(nullptr), MakeBitmap32(width, height, &bits), nullptr, {}};
        if (kept.context != nullptr && kept.bitmap != nullptr) {
            kept.before = SelectObject(kept.context, kept.bitmap);
            kept.view = {bits, width, height};
        }
        return kept;
    }
};

Shelf& OfThisThread() {
    static thread_local Shelf shelf;
    return shelf;
}

} // namespace

ScratchPicture::ScratchPicture(int width, int height) {
    const Kept kept = OfThisThread().Take(std::max(width, 1), std::max(height, 1));
    m_context = kept.context;
    m_bitmap = kept.bitmap;
    m_before = kept.before;
    m_view = kept.view;
    if (!IsEmpty()) {
        GdiFlush(); // what was drawn from it before
        std::fill_n(m_view.bits, static_cast<std::size_t>(m_view.width) * static_cast<std::size_t>(m_view.height), 0u);
    }
}

ScratchPicture::~ScratchPicture() { OfThisThread().PutBack({m_context, m_bitmap, m_before, m_view}); }

int ScratchPicture::GetMadeCount() { return OfThisThread().made; }

} // namespace visual
