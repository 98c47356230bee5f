#pragma once

#include <cstdint>

namespace tovasque {

/// What the faces of a skin ask its pictures for. Which picture and which of its frames that is stands in one table in
/// skin_images.cpp.
enum class PlateNumber : std::uint32_t {
    None,
    ButtonHot,
    ButtonPressed,
    ButtonChecked,
    ButtonCheckedHot,
    Application,
    ApplicationHot,
    ApplicationPressed,
    TabHot,
    TabActive,
    TabActiveHot,
    Category,
    Arrow,
    ArrowDisabled,
    MenuRowHot,
    MenuCheck,
    MenuCheckHot,
    CaptionActive,
    CaptionInactive,
    TabRow,
    StatusGround,
    DropArrow, // from the icon of drop-down arrows, these two
    DropArrowHot,
    Count
};

} // namespace tovasque
