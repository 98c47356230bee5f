#pragma once

#include "src/kept_pictures.h"
#include "tovasque/visual_manager_office2007_2.h"

#include <fx/skin_table.h>

#include <array>
#include <map>
#include <memory>
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

/// The pictures of one skin, looked for when first asked for and from then on the same.
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
    const LoadedPicture& Load(SkinImage image, double scale) const;
    std::shared_ptr<const LoadedPicture> Find(SkinImage image, int percent) const;
    LoadedPicture ReadArrow(const std::wstring& path, int percent, LookedAtFiles& files) const;

    const std::array<CString, kSkinImages>& m_paths; ///< the manager's
    const CString& m_dropDownIcon;
    std::array<visual::Argb, 2> m_arrowColors{};
    mutable std::map<std::pair<SkinImage, int>, std::shared_ptr<const LoadedPicture>>
        m_loaded; ///< by picture and percent
};

} // namespace tovasque
