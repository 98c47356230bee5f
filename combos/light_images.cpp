#include "combos/light_images.h"

#include "combos/mark_sizes.h"
#include "library_context.h"

#include <fx/dc_scope.h>

#include <algorithm>
#include <map>

namespace {

int IndexOf(LightState state) { return state == LightState::On ? 0 : 1; }

/// A bitmap with alpha of the picture; null when the system refuses.
HBITMAP BitmapOf(int side, LightState state) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = side;
    info.bmiHeader.biHeight = -side;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap) {
        std::ranges::copy(DrawLightPicture(side, state), static_cast<std::uint32_t*>(bits));
    }
    return bitmap;
}

void Fill(CImageList& list, int side) {
    if (!list.Create(side, side, ILC_COLOR32, 2, 0)) {
        return;
    }
    for (const LightState state : {LightState::On, LightState::Off}) {
        const HBITMAP bitmap = BitmapOf(side, state);
        ::ImageList_Add(list.GetSafeHandle(), bitmap, nullptr);
        ::DeleteObject(bitmap);
    }
}

/// The bitmap behind a list: together with the handle it tells one list from another that came to the same address.
HBITMAP BitmapBehind(HIMAGELIST list) {
    IMAGEINFO info = {};
    return ::ImageList_GetImageInfo(list, 0, &info) ? info.hbmImage : nullptr;
}

/// The library's own pictures: in the shared list, as long as the host leaves them there, and beside it in the sizes
/// in which they were drawn.
class OwnPictures {
public:
    static OwnPictures& Ins() {
        static OwnPictures pictures;
        return pictures;
    }
    CImageList& SharedList() {
        CImageList& shared = CQkMfc::Ins()->m_imageList;
        const int side = MarkSizes::Current().icon;
        // The icons may have become larger since.
        if (side != m_side && AreIn(shared)) {
            shared.DeleteImageList();
        }
        if (!shared.GetSafeHandle()) {
            Fill(shared, side);
            m_side = side;
            m_shared = shared.GetSafeHandle();
            m_bitmap = BitmapBehind(m_shared);
        }
        return shared;
    }
    bool AreIn(const CImageList& list) const {
        return m_shared && list.GetSafeHandle() == m_shared && BitmapBehind(m_shared) == m_bitmap;
    }
    CImageList& OfSize(int side) {
        CImageList& list = m_bySize[side];
        if (!list.GetSafeHandle()) {
            Fill(list, side);
        }
        return list;
    }

private:
    int m_side = 0;
    HIMAGELIST m_shared = nullptr;
    HBITMAP m_bitmap = nullptr;
    std::map<int, CImageList> m_bySize;
};

} // namespace

void DrawLight(CDC& dc, const fx::Rect& place, LightState state) {
    OwnPictures::Ins().SharedList().Draw(&dc, IndexOf(state), CPoint(place.left, place.top), ILD_TRANSPARENT);
}

void DrawLightScaled(CDC& dc, const fx::Rect& place, LightState state) {
    if (MarkScale() <= 1.0) {
        DrawLight(dc, place, state);
        return;
    }
    if (place.IsEmpty()) {
        return;
    }
    OwnPictures& own = OwnPictures::Ins();
    CImageList& shared = own.SharedList();
    if (own.AreIn(shared)) {
        own.OfSize(place.Height()).Draw(&dc, IndexOf(state), CPoint(place.left, place.top), ILD_TRANSPARENT);
        return;
    }
    // The image list itself does not stretch.
    const HICON icon = ::ImageList_GetIcon(shared.GetSafeHandle(), IndexOf(state), ILD_TRANSPARENT);
    if (!icon) {
        return;
    }
    const fx::PictureScope scope(dc, CRect(place.left, place.top, place.right, place.bottom));
    ::DrawIconEx(dc.GetSafeHdc(), scope.Corner().x, scope.Corner().y, icon, place.Width(), place.Height(), 0, nullptr,
                 DI_NORMAL);
    ::DestroyIcon(icon);
}
