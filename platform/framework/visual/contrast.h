#pragma once

#include "visual/pixels.h"

#include <initializer_list>

namespace visual {

/// What text must have at least to be read at all, while it says by its paleness that it cannot be used.
constexpr double g_leastContrast = 3.0;

/// Of the lightness of two opaque colours, from 1 for equal ones to 21 for black and white.
double Contrast(Argb one, Argb other);

/// The colour itself where it has the least contrast on each of the grounds; otherwise the first one on the way to
/// `full`, the colour of a text that is not pale, that has; `full` when there is none.
Argb Readable(Argb pale, Argb full, std::initializer_list<Argb> grounds);

} // namespace visual
