#pragma once

#include "varnhold/xml.h"

#include <pugixml.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace varnhold {

enum class BlankText { Drop, Keep };

struct XmlFailure {
    XmlError error = XmlError::None;
    std::wstring reason;
    TextPosition position;
};

/// A parsed document, never changed after it was made. LayOut numbers its elements level by level: then the children of
/// an element and the attributes of an element lie side by side, so that each is reached by its index at once.
class XmlTree {
public:
    struct Element {
        pugi::xml_node node;
        std::uint32_t firstChild = 0;
        std::uint32_t childCount = 0;
        std::uint32_t firstAttribute = 0;
        std::uint32_t attributeCount = 0;
    };

    /// Null, with the reason in `failure`, for bytes that are refused.
    static std::shared_ptr<const XmlTree> Parse(std::string bytes, BlankText blanks, XmlFailure& failure);

    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    /// Needed once before the first GetElement; any thread may call it, any number of times. Element 0 is the document
    /// element.
    void LayOut() const;
    const Element& GetElement(std::uint32_t index) const { return m_elements[index]; }
    pugi::xml_attribute GetAttribute(const Element& element, std::size_t index) const {
        return m_attributes[element.firstAttribute + index];
    }

    pugi::xml_node GetRoot() const { return m_root; }

    /// See CXmlDocumentWrapper. Texts in elements that may hold some are no oddities; null: none may.
    std::vector<XmlOddity> FindOddities(bool (*mayHoldText)(const pugi::xml_node& element) = nullptr) const;
    /// Whether one of them stands in an attribute's value that the parser left in this document.
    bool IsOddValue(const char* value) const;

    /// The length of a name or a value that the parser left in this document.
    std::size_t LengthOf(const char* text) const;
    /// The same for a name before its value, or for a value before the next name: `next`; both in the buffer. Between
    /// them stand two characters, nearly always, of which the parser made the first a NUL; where they are more, or
    /// where references in a value made it shorter, something else stands there.
    std::size_t LengthOf(const char* text, const char* next) const {
        const bool isUsual = next - text >= 2 && next[-2] == '\0';
        return isUsual ? static_cast<std::size_t>(next - text) - 2 : LengthOf(text);
    }

    /// Where the element's "<" stands, or the first letter of the attribute's name.
    TextPosition GetPosition(const pugi::xml_node& element) const;
    TextPosition GetPosition(const pugi::xml_attribute& attribute) const;
    /// The same for an attribute's name that the parser left in this document.
    TextPosition GetPositionOfName(const char* name) const;

private:
    XmlTree() = default;

    /// Whether the text lies in the buffer, and is not the parser's own empty text.
    bool Holds(const char* text) const {
        const char* const begin = m_buffer.get();
        return !std::less<>()(text, begin) && std::less<>()(text, begin + m_text.size() + 1);
    }
    bool ParseText(BlankText blanks, XmlFailure& failure);
    bool CheckTopLevel(XmlFailure& failure);
    bool CheckDepth(XmlFailure& failure) const;
    bool CheckReferences(XmlFailure& failure) const;
    void LayOutElements() const;
    void IndexLines() const;
    TextPosition GetPosition(std::size_t offset) const;
    void AddLooseTexts(std::vector<XmlOddity>& oddities, bool (*mayHoldText)(const pugi::xml_node& element)) const;
    void AddBareMarkup(std::vector<XmlOddity>& oddities) const;
    /// A value as it stands in the file, between its quotation marks.
    std::string_view WrittenValue(const char* value) const;
    pugi::xml_node NextInOrder(pugi::xml_node node) const;
    std::size_t CountCharacters(std::size_t end) const;

    std::string m_text; // UTF-8, as it stands in the file
    // The same, taken to pieces by the parser, which keeps pointing into it; some NULs follow.
    std::unique_ptr<char[]> m_buffer;
    pugi::xml_document m_document;
    pugi::xml_node m_root;
    mutable std::once_flag m_laidOut;
    mutable std::vector<Element> m_elements;
    mutable std::vector<pugi::xml_attribute> m_attributes;
    // Made when the first position is asked for: most documents are right and nobody asks.
    mutable std::once_flag m_linesIndexed;
    mutable std::vector<std::size_t> m_lineStarts;
    mutable std::vector<std::size_t> m_characterCounts; // characters before each block of the text
};

/// "file:line:column: text", or "file: text" when the place is unknown.
std::wstring FormatProblem(const std::wstring& file, TextPosition position, const std::wstring& text);

} // namespace varnhold
