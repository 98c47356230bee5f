#pragma once

#include <cstdint>

/// The state of a multi combo's item: the colour of its swatch (0x00BBGGRR) and its light.
struct ComboRow {
#ifdef _WIN32
    using Color = unsigned long; // COLORREF
#else
    using Color = std::uint32_t;
#endif
    Color clr = 0;
    bool light = false;
};

static_assert(sizeof(ComboRow) == 8);
