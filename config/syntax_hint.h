#pragma once

#include <varnhold/xml.h>

#include <string>
#include <string_view>

/// Where to mend a text that is no XML, and how.
struct SyntaxHint {
    varnhold::TextPosition position;
    std::wstring fix;
    /// What is wrong there, where that is not what was noticed; else empty.
    std::wstring text = {};
};

/// `text`: the file's, as UTF-8. `noticed`: where it was refused, and `reason`. In plain words, what people write by
/// mistake at such a place; empty where nothing is known of it.
SyntaxHint HintForSyntax(std::string_view text, varnhold::TextPosition noticed, std::wstring_view reason);
/// The same of a file.
SyntaxHint HintForSyntax(const std::wstring& fullPath, varnhold::TextPosition noticed, std::wstring_view reason);

/// What to do about text that stands between the tags of a file: the mark of a merge conflict, the end of a comment
/// within another one, a character that nobody sees. Empty for any other.
std::wstring HintForLooseText(const std::wstring& fullPath, varnhold::TextPosition position);
