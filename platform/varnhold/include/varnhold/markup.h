#pragma once

#include <string>
#include <string_view>

namespace varnhold {

/// The text as it stands between two tags or in an attribute's double quotes of an XML or HTML file: the signs that
/// mean something there are written by name. Line breaks and other control characters stay as they are. UTF-8.
inline std::string EscapedMarkup(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

} // namespace varnhold
