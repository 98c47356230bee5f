#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace ribbon {

// How a text stands on the one or two lines below a large image.
struct TextBreak {
    size_t firstLength = 0; // characters of the first line
    size_t secondStart = 0; // first character of the second line; the text's length when there is one line only
    int firstWidth = 0;
    int secondWidth = 0; // without the menu arrow

    bool HasSecondLine(std::wstring_view text) const { return secondStart < text.size(); }
};

// Answers the width of a piece of text in pixels.
using TextMeasure = std::function<int(std::wstring_view)>;

// Whether a line may end before text[index]; a space there or just before is eaten by the break.
bool CanBreakBefore(std::wstring_view text, size_t index);

// The break that makes the wider of the two lines narrowest; of equal ones the one with the longer first line. A text
// not wider than singleLineWidth, or without a place to break, stays on one line; so does one of
// up to four characters where a single ideograph would be a line. secondLineExtra: what follows the text on the second
// line (the menu arrow).
TextBreak BreakInTwo(std::wstring_view text, const TextMeasure& measure, int singleLineWidth, int secondLineExtra);

} // namespace ribbon
