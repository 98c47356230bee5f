#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace varnhold {

/// Where the first character reference ("&#65;", "&#x41;") stands in the values and texts of a document that names no
/// character: 0, a surrogate or a value above 10FFFF. npos when there is none. The document is UTF-8 and well-formed;
/// what looks like a reference in a comment, a CDATA section, a processing instruction or the document type is none.
std::size_t FindReferenceToNoCharacter(std::string_view document);

/// Where the "&" stand that begin neither one of the five predefined entities nor a character reference, in the same
/// places of the same kind of document.
std::vector<std::size_t> FindUnknownReferences(std::string_view document);

/// Whether the "&" at `at` begins a whole reference to an entity of any name.
bool NamesEntity(std::string_view document, std::size_t at);

/// Whether an "&" as FindUnknownReferences finds stands in one attribute's value as it is written.
bool HasUnknownReference(std::string_view value);

/// An element whose end tag is still to come.
struct OpenTag {
    std::string_view name;
    std::size_t offset; ///< of its "<"
};

/// The elements that are open at the end of a piece of a document that is well-formed up to there, from the outside in.
std::vector<OpenTag> FindOpenTags(std::string_view document);

} // namespace varnhold
