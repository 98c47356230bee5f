#include "src/xml_tree.h"

#include "src/encoding.h"
#include "src/unicode.h"
#include "src/xml_references.h"
#include "varnhold/strings.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <functional>
#include <iterator>
#include <utility>

namespace varnhold {

namespace {

/// So many bytes are counted anew for a position at most.
constexpr std::size_t kBlockSize = 64;

// Source bytes of a small element and of a small attribute: what the tables of a document are made ready for.
constexpr std::size_t kBytesPerElement = 64;
constexpr std::size_t kBytesPerAttribute = 16;
constexpr std::size_t kMostReadyElements = 65536;

/// How deep elements can be nested in so many bytes: "<a></a>" around others, "<a/>" innermost.
constexpr std::size_t GetMostLevels(std::size_t bytes) { return (bytes + 3) / 7; }

/// What stands for bytes that the encoding does not have.
constexpr std::string_view kBrokenCharacter = "\xEF\xBF\xBD";

// Texts are searched for their ends by words, which may reach behind the buffer's last NUL.
constexpr std::size_t kPadding = sizeof(std::uint64_t);

struct StatusText {
    pugi::xml_parse_status status;
    const wchar_t* text;
};
constexpr StatusText kStatusTexts[] = {
    {pugi::status_out_of_memory, L"there is not enough memory"},
    {pugi::status_internal_error, L"the parser failed"},
    {pugi::status_unrecognized_tag, L"this is no tag"},
    {pugi::status_bad_pi, L"a processing instruction or declaration is malformed or not closed"},
    {pugi::status_bad_comment, L"a comment is malformed or not closed"},
    {pugi::status_bad_cdata, L"a CDATA section is malformed or not closed"},
    {pugi::status_bad_doctype, L"the document type definition is malformed or not closed"},
    {pugi::status_bad_pcdata, L"a text is malformed"},
    {pugi::status_bad_start_element, L"a start tag is malformed or not closed"},
    {pugi::status_bad_attribute, L"an attribute is malformed or not closed"},
    {pugi::status_bad_end_element, L"an end tag is malformed or not closed"},
};

const wchar_t* DescribeStatus(pugi::xml_parse_status status) {
    const auto* found = std::find_if(std::begin(kStatusTexts), std::end(kStatusTexts),
                                     [status](const StatusText& entry) { return entry.status == status; });
    return found == std::end(kStatusTexts) ? L"the document is not well-formed" : found->text;
}

bool IsText(const pugi::xml_node& node) {
    return node.type() == pugi::node_cdata ||
           (node.type() == pugi::node_pcdata &&
            std::string_view(node.value()).find_first_not_of(" \t\r\n") != std::string_view::npos);
}

/// The parser stops behind the "</" of an end tag that does not fit.
std::size_t StartOfTag(std::string_view text, std::size_t offset) {
    constexpr std::string_view endTag = "</";
    const bool isInTag = offset >= endTag.size() && offset <= text.size() &&
                         text.substr(offset - endTag.size(), endTag.size()) == endTag;
    return isInTag ? offset - endTag.size() : offset;
}

/// What does not fit at an end tag, or at the text's end: which element is open there, and where it began.
std::wstring DescribeMismatch(std::string_view text, std::size_t offset,
                              const std::function<TextPosition(std::size_t)>& positionOf) {
    const std::vector<OpenTag> open = FindOpenTags(text.substr(0, offset));
    if (open.empty()) {
        return L"this end tag ends no element";
    }
    const std::wstring began = L"<" + string2wstring(std::string(open.back().name)) + L"> of line " +
                               std::to_wstring(positionOf(open.back().offset).line);
    if (!text.substr(offset).starts_with("</")) {
        return began + L" is not ended";
    }
    constexpr std::string_view ends = "> \t\r\n";
    const std::string_view rest = text.substr(offset + 2);
    return L"</" + string2wstring(std::string(rest.substr(0, std::min(rest.find_first_of(ends), rest.size())))) +
           L"> does not end " + began;
}

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

} // namespace

std::shared_ptr<const XmlTree> XmlTree::Parse(std::string bytes, BlankText blanks, XmlFailure& failure) {
    std::shared_ptr<XmlTree> tree(new XmlTree);
    if (bytes.empty()) {
        failure = {XmlError::Empty, L"the document is empty", {}};
        return nullptr;
    }
    if (bytes.size() > CXmlDocumentWrapper::kMaxSize) {
        failure = {XmlError::Unreadable,
                   L"the document is longer than " + std::to_wstring(CXmlDocumentWrapper::kMaxSize) + L" bytes",
                   {}};
        return nullptr;
    }
    if (!DecodeXml(std::move(bytes), tree->m_text, failure.reason)) {
        failure.error = XmlError::Encoding;
        failure.position = {1, 1};
        return nullptr;
    }
    if (!tree->ParseText(blanks, failure)) {
        return nullptr;
    }
    return tree;
}

bool XmlTree::ParseText(BlankText blanks, XmlFailure& failure) {
    const std::size_t nul = FindNul(m_text);
    if (nul != m_text.size()) {
        failure = {XmlError::Syntax, L"there is a NUL character", GetPosition(nul)};
        return false;
    }
    m_buffer = std::make_unique_for_overwrite<char[]>(m_text.size() + 1 + kPadding);
    std::memcpy(m_buffer.get(), m_text.data(), m_text.size());
    std::memset(m_buffer.get() + m_text.size(), 0, 1 + kPadding);
    // As a fragment, so that texts beside the document element are seen (and refused) instead of skipped.
    unsigned options = pugi::parse_default | pugi::parse_fragment | pugi::parse_doctype;
    if (blanks == BlankText::Keep) {
        options |= pugi::parse_ws_pcdata;
    }
    const pugi::xml_parse_result result =
        m_document.load_buffer_inplace(m_buffer.get(), m_text.size() + 1, options, pugi::encoding_utf8);
    if (!result) {
        const std::size_t offset = StartOfTag(m_text, static_cast<std::size_t>(result.offset));
        failure = {XmlError::Syntax,
                   result.status == pugi::status_end_element_mismatch
                       ? DescribeMismatch(m_text, offset, [this](std::size_t at) { return GetPosition(at); })
                       : std::wstring(DescribeStatus(result.status)),
                   GetPosition(offset)};
        return false;
    }
    return CheckTopLevel(failure) && CheckDepth(failure) && CheckReferences(failure);
}

bool XmlTree::CheckTopLevel(XmlFailure& failure) {
    for (const pugi::xml_node& node : m_document) {
        if (IsText(node)) {
            const std::size_t offset = static_cast<std::size_t>(node.value() - m_buffer.get());
            failure = {XmlError::Syntax, L"there is text outside the document element",
                       GetPosition(m_text.find_first_not_of(" \t\r\n", std::min(offset, m_text.size())))};
            return false;
        }
        if (node.type() != pugi::node_element) {
            continue;
        }
        if (m_root) {
            failure = {XmlError::Syntax, L"there is a second document element", GetPosition(node)};
            return false;
        }
        m_root = node;
    }
    if (!m_root) {
        failure = {XmlError::Empty, L"there is no document element", GetPosition(m_text.size())};
    }
    return !m_root.empty();
}

bool XmlTree::CheckDepth(XmlFailure& failure) const {
    if (GetMostLevels(m_text.size()) <= CXmlDocumentWrapper::kMaxDepth) {
        return true;
    }
    std::size_t depth = 1;
    pugi::xml_node node = m_root;
    while (true) {
        if (node.type() == pugi::node_element && depth > CXmlDocumentWrapper::kMaxDepth) {
            failure = {XmlError::Syntax,
                       L"elements are nested deeper than " + std::to_wstring(CXmlDocumentWrapper::kMaxDepth),
                       GetPosition(node)};
            return false;
        }
        if (const pugi::xml_node child = node.first_child()) {
            node = child;
            ++depth;
            continue;
        }
        while (node != m_root && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        if (node == m_root) {
            return true;
        }
        node = node.next_sibling();
    }
}

bool XmlTree::CheckReferences(XmlFailure& failure) const {
    const std::size_t reference = FindReferenceToNoCharacter(m_text);
    if (reference == std::string_view::npos) {
        return true;
    }
    failure = {XmlError::Syntax, L"a character reference stands for no character", GetPosition(reference)};
    return false;
}

std::vector<XmlOddity> XmlTree::FindOddities(bool (*mayHoldText)(const pugi::xml_node& element)) const {
    constexpr std::string_view documentType = "<!DOCTYPE";
    std::vector<XmlOddity> oddities;
    for (const pugi::xml_node& node : m_document) {
        if (node.type() == pugi::node_doctype) {
            const auto behind = static_cast<std::size_t>(node.value() - m_buffer.get());
            oddities.push_back({XmlOddityKind::DocumentType, GetPosition(m_text.rfind(documentType, behind))});
        }
    }
    if (const std::size_t at = m_text.find(kBrokenCharacter); at != std::string::npos) {
        oddities.push_back({XmlOddityKind::BrokenCharacter, GetPosition(at)});
    }
    AddLooseTexts(oddities, mayHoldText);
    const bool hasEntities = !oddities.empty() && oddities.front().kind == XmlOddityKind::DocumentType;
    for (const std::size_t at : FindUnknownReferences(m_text)) {
        if (!hasEntities || !NamesEntity(m_text, at)) { // one of its entities: one oddity, the document type
            oddities.push_back({XmlOddityKind::UnknownReference, GetPosition(at)});
        }
    }
    AddBareMarkup(oddities);
    return oddities;
}

pugi::xml_node XmlTree::NextInOrder(pugi::xml_node node) const {
    if (const pugi::xml_node child = node.first_child()) {
        return child;
    }
    while (node != m_root && !node.next_sibling()) {
        node = node.parent();
    }
    return node == m_root ? pugi::xml_node() : node.next_sibling();
}

void XmlTree::AddLooseTexts(std::vector<XmlOddity>& oddities,
                            bool (*mayHoldText)(const pugi::xml_node& element)) const {
    for (pugi::xml_node node = m_root; node; node = NextInOrder(node)) {
        if (IsText(node) && std::string_view(node.value()).find_first_not_of(" \t\r\n") != std::string_view::npos &&
            (mayHoldText == nullptr || !mayHoldText(node.parent()))) {
            // Blanks before the text were kept with it.
            const auto offset = static_cast<std::size_t>(node.value() - m_buffer.get());
            const std::size_t start = m_text.find_first_not_of(" \t\r\n", offset);
            oddities.push_back({XmlOddityKind::LooseText, GetPosition(start)});
        }
    }
}

void XmlTree::AddBareMarkup(std::vector<XmlOddity>& oddities) const {
    for (pugi::xml_node node = m_root; node; node = NextInOrder(node)) {
        for (const pugi::xml_attribute& attribute : node.attributes()) {
            const std::string_view written = WrittenValue(attribute.value());
            if (const std::size_t at = written.find('<'); at != std::string_view::npos) {
                const auto offset = static_cast<std::size_t>(attribute.value() - m_buffer.get());
                oddities.push_back({XmlOddityKind::BareMarkup, GetPosition(offset + at)});
            }
        }
    }
}

std::string_view XmlTree::WrittenValue(const char* value) const {
    if (!Holds(value) || value == m_buffer.get()) {
        return {};
    }
    const auto offset = static_cast<std::size_t>(value - m_buffer.get());
    const char quotationMark = m_text[offset - 1];
    const std::string_view rest = std::string_view(m_text).substr(offset);
    return rest.substr(0, std::min(rest.find(quotationMark), rest.size()));
}

bool XmlTree::IsOddValue(const char* value) const {
    const std::string_view written = WrittenValue(value);
    return written.find('<') != std::string_view::npos || written.find(kBrokenCharacter) != std::string_view::npos ||
           HasUnknownReference(written);
}

void XmlTree::LayOut() const {
    std::call_once(m_laidOut, [this] { LayOutElements(); });
}

void XmlTree::LayOutElements() const {
    const std::size_t readyBytes = std::min(m_text.size(), kMostReadyElements * kBytesPerElement);
    m_elements.reserve(readyBytes / kBytesPerElement + 1);
    m_attributes.reserve(readyBytes / kBytesPerAttribute);
    m_elements.push_back({m_root});
    for (std::size_t i = 0; i < m_elements.size(); ++i) {
        const pugi::xml_node node = m_elements[i].node;
        const auto firstChild = static_cast<std::uint32_t>(m_elements.size());
        for (const pugi::xml_node& child : node) {
            if (child.type() == pugi::node_element) {
                m_elements.push_back({child});
            }
        }
        Element& element = m_elements[i];
        element.firstChild = firstChild;
        element.childCount = static_cast<std::uint32_t>(m_elements.size()) - firstChild;
        element.firstAttribute = static_cast<std::uint32_t>(m_attributes.size());
        for (const pugi::xml_attribute& attribute : node.attributes()) {
            m_attributes.push_back(attribute);
        }
        element.attributeCount = static_cast<std::uint32_t>(m_attributes.size()) - element.firstAttribute;
    }
}

std::size_t XmlTree::LengthOf(const char* text) const {
    if (!Holds(text)) {
        return std::strlen(text);
    }
    constexpr std::uint64_t ones = 0x0101010101010101, highBits = 0x8080808080808080;
    for (std::size_t length = 0;; length += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, text + length, sizeof word);
        // The lowest bit that is left belongs to the first NUL.
        if (const std::uint64_t nuls = (word - ones) & ~word & highBits) {
            return length + static_cast<std::size_t>(std::countr_zero(nuls)) / 8;
        }
    }
}

void XmlTree::IndexLines() const {
    m_lineStarts.push_back(0);
    std::size_t characters = 0;
    for (std::size_t i = 0; i < m_text.size(); ++i) {
        if (i % kBlockSize == 0) {
            m_characterCounts.push_back(characters);
        }
        characters += StartsCharacter(m_text[i]) ? 1 : 0;
        const bool endsLine = m_text[i] == '\n' || (m_text[i] == '\r' && m_text[i + 1] != '\n');
        if (endsLine) {
            m_lineStarts.push_back(i + 1);
        }
    }
    if (m_text.size() % kBlockSize == 0) {
        m_characterCounts.push_back(characters);
    }
}

std::size_t XmlTree::CountCharacters(std::size_t end) const {
    const std::size_t block = end / kBlockSize;
    const auto begin = m_text.begin();
    const auto counted = std::count_if(begin + static_cast<std::ptrdiff_t>(block * kBlockSize),
                                       begin + static_cast<std::ptrdiff_t>(end), StartsCharacter);
    return m_characterCounts[block] + static_cast<std::size_t>(counted);
}

TextPosition XmlTree::GetPosition(std::size_t offset) const {
    std::call_once(m_linesIndexed, [this] { IndexLines(); });
    offset = std::min(offset, m_text.size());
    const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), offset);
    const auto line = static_cast<std::size_t>(next - m_lineStarts.begin());
    return {line, CountCharacters(offset) - CountCharacters(*std::prev(next)) + 1};
}

TextPosition XmlTree::GetPosition(const pugi::xml_node& element) const {
    return GetPosition(static_cast<std::size_t>(element.name() - m_buffer.get()) - 1);
}

TextPosition XmlTree::GetPosition(const pugi::xml_attribute& attribute) const {
    return GetPositionOfName(attribute.name());
}

TextPosition XmlTree::GetPositionOfName(const char* name) const {
    return GetPosition(static_cast<std::size_t>(name - m_buffer.get()));
}

std::wstring FormatProblem(const std::wstring& file, TextPosition position, const std::wstring& text) {
    std::wstring problem = file;
    if (position.line > 0) {
        problem += L':' + std::to_wstring(position.line) + L':' + std::to_wstring(position.column);
    }
    return problem + L": " + text;
}

} // namespace varnhold
