#pragma once

#include "varnhold/varnhold_api.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace pugi {
struct xml_node_struct;
}

namespace varnhold {
class XmlTree;
class XmlCursor;
struct FileContent;

/// A place in a source text. Lines and columns count from 1, columns in characters (code points); 0 means unknown.
struct TextPosition {
    std::size_t line = 0;
    std::size_t column = 0;
};

/// Why a document was refused.
enum class XmlError { None, Unreadable, Empty, Encoding, Syntax };

/// Something in a document that was read which the reader passed over without an error.
enum class XmlOddityKind {
    DocumentType,    ///< is skipped, with the entities that it declares
    BrokenCharacter, ///< bytes that the encoding does not have; each became U+FFFD
    LooseText,       ///< text between tags, which is no attribute
    /// A "&" that begins neither a predefined entity nor a character reference; it stays as it is. Of references to
    /// entities that a document type may have declared that one is told alone.
    UnknownReference,
    BareMarkup, ///< a "<" in an attribute's value; it stays as it is, and other programs refuse the document
};
struct XmlOddity {
    XmlOddityKind kind = XmlOddityKind::LooseText;
    TextPosition position;
};

/// Name and value of an attribute, UTF-8.
struct XmlAttributeView {
    std::string_view name;
    std::string_view value;
};
} // namespace varnhold

/// One element of a document. A small value: copy it freely. It keeps what it refers to alive, also when its document
/// is loaded anew or destroyed. Every query takes constant time (texts: their length) and may run in any number of
/// threads at once. A null node (default-constructed, or asked for with an index out of range) has no children, no
/// attributes and empty texts.
class VARNHOLD_API CXmlNodeWrapper {
public:
    CXmlNodeWrapper() = default;

    bool IsNull() const noexcept { return !m_tree; }

    /// The tag name, namespace prefix included.
    std::wstring GetName() const;

    /// Child elements in document order; texts, comments and processing instructions are not counted.
    std::size_t GetChildCount() const noexcept;
    CXmlNodeWrapper GetChild(std::size_t index) const;

    /// Attributes in document order, as written: two of the same name are both there. Entities are already replaced,
    /// line breaks and tabs in a value are blanks. An index out of range gives an empty text.
    std::size_t GetAttributeCount() const noexcept;
    std::wstring GetAttributeName(std::size_t index) const;
    std::wstring GetAttributeValue(std::size_t index) const;

    /// The same as UTF-8, without a copy: the view is good for as long as any node of the document lives.
    std::string_view GetAttributeNameUtf8(std::size_t index) const noexcept;
    std::string_view GetAttributeValueUtf8(std::size_t index) const noexcept;
    varnhold::XmlAttributeView GetAttributeUtf8(std::size_t index) const noexcept;

    /// Where the element's "<" and an attribute's name stand in the file.
    varnhold::TextPosition GetPosition() const;
    varnhold::TextPosition GetAttributePosition(std::size_t index) const;

private:
    friend class CXmlDocumentWrapper;
    friend class varnhold::XmlCursor;
    CXmlNodeWrapper(std::shared_ptr<const varnhold::XmlTree> tree, std::uint32_t element);

    std::shared_ptr<const varnhold::XmlTree> m_tree;
    std::uint32_t m_element = 0;
};

/// An XML document read from a file or from memory.
///
/// Encoding: a byte order mark decides; without one the XML declaration does; without both it is UTF-8. Known are
/// UTF-8, UTF-16 (either byte order, also without a mark), US-ASCII, ISO-8859-1, GB2312, GBK (code page 936) and
/// GB18030. Broken sequences become U+FFFD; an unknown encoding is an error.
///
/// Refused, with an error: tags, attributes, comments, sections or instructions that are malformed, not closed or
/// crossed, a NUL character, a character reference that stands for none (0, a surrogate, above 10FFFF), more or less
/// than one document element, text beside it, elements nested deeper than kMaxDepth, sources longer than kMaxSize
/// bytes, anything but a plain file.
///
/// A document type definition is skipped and nothing outside the file is ever read: only the five predefined entities
/// and character references are replaced, any other reference stays in the text as it was written.
class VARNHOLD_API CXmlDocumentWrapper {
public:
    static constexpr std::size_t kMaxDepth = 100000;
    static constexpr std::size_t kMaxSize = std::size_t(256) << 20;

    CXmlDocumentWrapper();
    ~CXmlDocumentWrapper();
    CXmlDocumentWrapper(CXmlDocumentWrapper&&) noexcept;
    CXmlDocumentWrapper& operator=(CXmlDocumentWrapper&&) noexcept;

    /// Reads a file. False when it could not be read or is refused: then the earlier content stays and GetErrorText
    /// says why. Wide paths may be longer than MAX_PATH when they are absolute; narrow paths are UTF-8 on Windows and
    /// taken byte by byte on Linux.
    bool Load(const std::wstring& path);
    bool Load(const wchar_t* path);
    bool Load(const std::string& path);
    bool Load(const char* path);

    /// Reads a document from memory; `name` stands for the file name in GetErrorText.
    bool LoadFromMemory(std::string_view bytes, const std::wstring& name = L"(memory)");

    /// The document element; a null node before the first successful load. The first call takes time in proportion to
    /// the document, to number its elements; a varnhold::XmlCursor does without.
    CXmlNodeWrapper GetDocumentElement() const;

    /// What was wrong with the last load: "file:line:column: what" ("file: what" when no place can be given). All
    /// empty or 0 after a successful one.
    const std::wstring& GetErrorText() const noexcept { return m_errorText; }
    /// The same without file and place.
    const std::wstring& GetErrorReason() const noexcept { return m_errorReason; }
    std::size_t GetErrorLine() const noexcept { return m_errorPosition.line; }
    std::size_t GetErrorColumn() const noexcept { return m_errorPosition.column; }
    varnhold::XmlError GetError() const noexcept { return m_error; }

    /// What the document holds beside elements and attributes that its writer may have meant otherwise, kind by kind;
    /// of broken characters the first alone. Takes time in proportion to the document.
    std::vector<varnhold::XmlOddity> FindOddities() const;

private:
    friend class varnhold::XmlCursor;
    bool Fail(const std::wstring& name, varnhold::XmlError error, const std::wstring& reason,
              varnhold::TextPosition position);
    bool Take(const std::wstring& name, std::string bytes);
    bool Take(const std::wstring& name, varnhold::FileContent content);

    std::shared_ptr<const varnhold::XmlTree> m_tree;
    std::wstring m_errorText;
    std::wstring m_errorReason;
    varnhold::TextPosition m_errorPosition;
    varnhold::XmlError m_error = varnhold::XmlError::None;
};

namespace varnhold {

/// The text of a file as a document is read from it: UTF-8, whatever its encoding, without a byte order mark. False,
/// with `text` untouched, when the file cannot be read or its encoding is not known.
VARNHOLD_API bool ReadXmlText(const std::wstring& path, std::string& text);

/// A place among the elements of a document that moves from one to the next: the fastest way to read a document from
/// its first element to its last. It keeps the document alive. A cursor over nothing (of a null node, or of a document
/// that was not loaded) goes nowhere and has no attributes.
class VARNHOLD_API XmlCursor {
public:
    /// At the document element.
    explicit XmlCursor(const CXmlDocumentWrapper& document);
    explicit XmlCursor(const CXmlNodeWrapper& element);

    /// False where there is no such element: the cursor then stays.
    bool ToFirstChild() noexcept;
    bool ToNextSibling() noexcept;
    bool ToParent() noexcept;

    std::wstring GetName() const;
    bool HasChildren() const noexcept;
    /// Takes time in proportion to the answer.
    std::size_t CountChildren() const noexcept;

    /// All attributes of the element, in document order. The list is good until the next call, the views in it for as
    /// long as the document lives.
    std::span<const XmlAttributeView> ReadAttributes();

    TextPosition GetPosition() const;
    /// Where the name stands of an attribute that ReadAttributes has listed, at this element or at an earlier one.
    TextPosition GetAttributePosition(const XmlAttributeView& attribute) const;
    /// Whether one of the oddities stands in the value of such an attribute, so that it is not what was meant.
    bool IsOddlyWritten(const XmlAttributeView& attribute) const;

private:
    bool MoveTo(pugi::xml_node_struct* element) noexcept;

    std::shared_ptr<const XmlTree> m_tree;
    pugi::xml_node_struct* m_element = nullptr;
    std::vector<XmlAttributeView> m_attributes;
};

} // namespace varnhold
