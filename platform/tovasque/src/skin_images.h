#pragma once

#include "src/picture_file.h"
#include "tovasque/visual_manager_office2007_2.h"

#include <fx/skin_table.h>

#include <array>
#include <map>
#include <string>
#include <utility>

namespace tovasque {

/// Numbers of the pictures, as skins count them.
enum class SkinImage {
    Main = 1,
    Tab,
    ButtonHilight,
    ButtonChecked,
    NarrowButtonHilight,
    NarrowButtonChecked,
    Category,
    PanelDown,
    ChildButton,
    RightHilight,
    RightCheck,
    CaptionGround,
    TabArea,
    StatusButton,
    StatusButtonChecked,
    StatusGround,
    DropArrow ///< no picture of its own: from the icon of drop-down arrows
};

/// How a picture is stretched; pixels at 100 %.
struct SkinImageUse {
    SkinImage image;
    int frames; ///< of equal height, one below the other
    int left, top, right, bottom;
    bool isOverFace; ///< translucent over the flat colours of what it paints
    bool isCentred;
};

/// What the picture of that number paints.
const SkinImageUse& UseOf(SkinImage image);

/// The pictures of one skin, read when first asked for and kept.
class SkinPictures final : public visual::PlateSource {
public:
    /// Both are the manager's.
    SkinPictures(const std::array<CString, kSkinImages>& paths, const CString& dropDownIcon)
        : m_paths(paths), m_dropDownIcon(dropDownIcon) {}
    ~SkinPictures() = default;
    SkinPictures(const SkinPictures&) = delete;
    SkinPictures& operator=(const SkinPictures&) = delete;

    /// The icon of drop-down arrows is painted in these, at rest and on a lit button.
    void SetArrowColors(visual::Argb rest, visual::Argb lit) { m_arrowColors = {rest, lit}; }

    const visual::Plate* FindPlate(std::uint32_t number, visual::PlatePlace place, int height,
                                   double scale) const override;

private:
    /// A picture at one scale; without pixels when no file could be used.
    struct Loaded {
        Pixels pixels;
        std::array<visual::Plate, 3> frames;
    };
    const Loaded& Load(SkinImage image, double scale) const;
    Loaded Read(SkinImage image, int percent) const;
    Loaded ReadArrow(int percent) const;

    const std::array<CString, kSkinImages>& m_paths; ///< the manager's
    const CString& m_dropDownIcon;
    std::array<visual::Argb, 2> m_arrowColors{};
    mutable std::map<std::pair<SkinImage, int>, Loaded> m_loaded; ///< by picture and percent
};

} // namespace tovasque
