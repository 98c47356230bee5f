#pragma once

#include "skins/scroll_geometry.h"
#include "skins/skin_picture.h"

#include <array>
#include <memory>
#include <string>

/// The images of a scroll bar as their files are when they are drawn: a file is decoded when it is first drawn and
/// after every change, and fitted to the thumb once for each length of it. Only a thumb in the hand stays as it was: it
/// is drawn for every move of the pointer, and a look at the file costs a quarter of that.
class ScrollImages {
public:
    enum Which { FirstArrow, SecondArrow, Thumb, PressedThumb, Count };
    enum class File { LookedAt, AsBefore };

    /// Nothing is read before it is drawn.
    void SetFiles(const std::array<std::wstring, Count>& paths);
    /// In its own size in the middle of the box.
    void DrawCentered(HDC dc, Which which, const scroll::Box& box);
    /// A thumb that fills the box: a longer image gives its ends and as much of the middle as is needed, a shorter one
    /// is stretched. Nothing for a box without any room.
    void DrawThumb(HDC dc, Which which, scroll::Direction direction, const scroll::Box& box, File file);

private:
    /// An image that was made as large as the thumb.
    struct Fitted {
        scroll::Direction direction = scroll::Direction::Vertical;
        scroll::Extent size;
        std::unique_ptr<Gdiplus::Bitmap> bitmap;
    };

    /// Null for a file that is no loadable picture.
    Gdiplus::Bitmap* Current(Which which, File file);

    std::array<std::wstring, Count> m_paths;
    std::array<bool, Count> m_isTaken{}; ///< of the present path
    std::array<SkinPicture, Count> m_pictures;
    std::array<Fitted, Count> m_fitted;
};
