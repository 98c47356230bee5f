#include "config/check/text_width.h"

#include "config/check/text_width_table.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kFontPixels = 12; // of the bars' font at 100 %
constexpr int kUnits = 1000;    // that the table's widths are parts of

int WidthOf(std::uint32_t character) {
    if (character >= kFirstSingleWidth && character < kFirstSingleWidth + std::size(kSingleWidths)) {
        return kSingleWidths[character - kFirstSingleWidth];
    }
    const auto* const script = std::ranges::find_if(kScriptWidths, [character](const WidthOfScript& range) {
        return character >= range.first && character <= range.last;
    });
    return script == std::end(kScriptWidths) ? kUsualWidth : script->width;
}

} // namespace

int TextWidth(std::wstring_view text) {
    int width = 0;
    for (const wchar_t c : text) {
        width += WidthOf(static_cast<std::uint32_t>(c));
    }
    return (width * kFontPixels + kUnits / 2) / kUnits;
}
