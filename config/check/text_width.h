#pragma once

#include <string_view>

/// How wide a text is on one line in the font of the bars, in pixels at 100 %. Estimated from the table of widths, a
/// few per cent off: which font a machine has is not known here.
int TextWidth(std::wstring_view text);
