#pragma once

#include <cstddef>
#include <string_view>

namespace varnhold {

/// Where the first character reference ("&#65;", "&#x41;") stands in the values and texts of a document that names no
/// character: 0, a surrogate or a value above 10FFFF. npos when there is none. The document is UTF-8 and well-formed;
/// what looks like a reference in a comment, a CDATA section, a processing instruction or the document type is none.
std::size_t FindReferenceToNoCharacter(std::string_view document);

} // namespace varnhold
