#pragma once

#include "varnhold/xml.h"

#include <pugixml.hpp>

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace varnhold {

enum class BlankText { Drop, Keep };

struct XmlFailure {
    std::wstring reason;
    TextPosition position;
};

/// A parsed document, never changed after it was made, with its elements laid out level by level: the children of an
/// element and the attributes of an element lie side by side, so that each is reached by its index at once.
class XmlTree {
public:
    struct Element {
        pugi::xml_node node;
        std::uint32_t firstChild = 0;
        std::uint32_t childCount = 0;
        std::uint32_t firstAttribute = 0;
        std::uint32_t attributeCount = 0;
    };

    /// Null, with the reason in `failure`, for bytes that are refused. Element 0 is the document element.
    static std::shared_ptr<const XmlTree> Parse(std::string bytes, BlankText blanks, XmlFailure& failure);

    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    const Element& GetElement(std::uint32_t index) const { return m_elements[index]; }
    pugi::xml_attribute GetAttribute(const Element& element, std::size_t index) const {
        return m_attributes[element.firstAttribute + index];
    }

    pugi::xml_node GetRoot() const { return m_elements.front().node; }

    /// Where the element's "<" stands, or the first letter of the attribute's name.
    TextPosition GetPosition(const pugi::xml_node& element) const;
    TextPosition GetPosition(const pugi::xml_attribute& attribute) const;

private:
    XmlTree() = default;

    bool ParseText(BlankText blanks, XmlFailure& failure);
    bool CheckTopLevel(pugi::xml_node& root, XmlFailure& failure) const;
    bool LayOutElements(const pugi::xml_node& root, XmlFailure& failure);
    void IndexLines() const;
    TextPosition GetPosition(std::size_t offset) const;
    std::size_t CountCharacters(std::size_t end) const;

    std::string m_text;         // UTF-8, as it stands in the file
    std::vector<char> m_buffer; // the same, taken to pieces by the parser, which keeps pointing into it
    pugi::xml_document m_document;
    std::vector<Element> m_elements;
    std::vector<pugi::xml_attribute> m_attributes;
    // Made when the first position is asked for: most documents are right and nobody asks.
    mutable std::once_flag m_linesIndexed;
    mutable std::vector<std::size_t> m_lineStarts;
    mutable std::vector<std::size_t> m_characterCounts; // characters before each block of the text
};

/// "file:line:column: text", or "file: text" when the place is unknown.
std::wstring FormatProblem(const std::wstring& file, TextPosition position, const std::wstring& text);

} // namespace varnhold
