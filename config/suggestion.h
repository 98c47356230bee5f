#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The one of the words that was probably meant by a misspelt one: it takes the fewest changes of letters (one changed,
/// left out, added, or two swapped), letter case aside, and not more than one for each three letters. Empty when none
/// is so near, or several are equally.
std::wstring ClosestWord(std::wstring_view misspelt, const std::vector<std::wstring>& words);

/// The text between quotation marks; only the beginning of a long one. Characters that nobody sees, and letters that
/// look like Latin ones in the middle of those, are shown by their numbers: "N<U+0410>ME".
std::wstring Quoted(std::wstring_view text);

/// Whether a word processor makes it of the sign ".
bool IsTypographicQuote(wchar_t c);

/// `did you mean "word"?`; empty for an empty word.
std::wstring DidYouMean(std::wstring_view word);
