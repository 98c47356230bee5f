#include "varnhold/xml.h"

#include "src/encoding.h"
#include "src/file_system.h"
#include "src/xml_tree.h"
#include "varnhold/strings.h"

#include <utility>

using varnhold::TextPosition;
using varnhold::XmlTree;

CXmlNodeWrapper::CXmlNodeWrapper(std::shared_ptr<const XmlTree> tree, std::uint32_t element)
    : m_tree(std::move(tree)), m_element(element) {}

std::wstring CXmlNodeWrapper::GetName() const {
    return m_tree ? string2wstring(m_tree->GetElement(m_element).node.name()) : std::wstring();
}

std::size_t CXmlNodeWrapper::GetChildCount() const noexcept {
    return m_tree ? m_tree->GetElement(m_element).childCount : 0;
}

CXmlNodeWrapper CXmlNodeWrapper::GetChild(std::size_t index) const {
    if (index >= GetChildCount()) {
        return {};
    }
    return {m_tree, m_tree->GetElement(m_element).firstChild + static_cast<std::uint32_t>(index)};
}

std::size_t CXmlNodeWrapper::GetAttributeCount() const noexcept {
    return m_tree ? m_tree->GetElement(m_element).attributeCount : 0;
}

std::string_view CXmlNodeWrapper::GetAttributeNameUtf8(std::size_t index) const noexcept {
    if (index >= GetAttributeCount()) {
        return {};
    }
    return m_tree->GetAttribute(m_tree->GetElement(m_element), index).name();
}

std::string_view CXmlNodeWrapper::GetAttributeValueUtf8(std::size_t index) const noexcept {
    if (index >= GetAttributeCount()) {
        return {};
    }
    return m_tree->GetAttribute(m_tree->GetElement(m_element), index).value();
}

varnhold::XmlAttributeView CXmlNodeWrapper::GetAttributeUtf8(std::size_t index) const noexcept {
    if (index >= GetAttributeCount()) {
        return {};
    }
    const pugi::xml_attribute attribute = m_tree->GetAttribute(m_tree->GetElement(m_element), index);
    return {attribute.name(), attribute.value()};
}

std::wstring CXmlNodeWrapper::GetAttributeName(std::size_t index) const {
    return string2wstring(GetAttributeNameUtf8(index));
}

std::wstring CXmlNodeWrapper::GetAttributeValue(std::size_t index) const {
    return string2wstring(GetAttributeValueUtf8(index));
}

TextPosition CXmlNodeWrapper::GetPosition() const {
    return m_tree ? m_tree->GetPosition(m_tree->GetElement(m_element).node) : TextPosition();
}

TextPosition CXmlNodeWrapper::GetAttributePosition(std::size_t index) const {
    if (index >= GetAttributeCount()) {
        return {};
    }
    return m_tree->GetPosition(m_tree->GetAttribute(m_tree->GetElement(m_element), index));
}

CXmlDocumentWrapper::CXmlDocumentWrapper() = default;
CXmlDocumentWrapper::~CXmlDocumentWrapper() = default;
CXmlDocumentWrapper::CXmlDocumentWrapper(CXmlDocumentWrapper&&) noexcept = default;
CXmlDocumentWrapper& CXmlDocumentWrapper::operator=(CXmlDocumentWrapper&&) noexcept = default;

bool CXmlDocumentWrapper::Load(const std::wstring& path) {
    return Take(path, varnhold::ReadWholeFile(varnhold::ToNativePath(path), kMaxSize));
}

bool CXmlDocumentWrapper::Load(const wchar_t* path) { return Load(std::wstring(path ? path : L"")); }

bool CXmlDocumentWrapper::Load(const std::string& path) {
    return Take(string2wstring(path), varnhold::ReadWholeFile(varnhold::ToNativePath(path), kMaxSize));
}

bool CXmlDocumentWrapper::Load(const char* path) { return Load(std::string(path ? path : "")); }

bool CXmlDocumentWrapper::LoadFromMemory(std::string_view bytes, const std::wstring& name) {
    return Take(name, std::string(bytes));
}

CXmlNodeWrapper CXmlDocumentWrapper::GetDocumentElement() const {
    if (!m_tree) {
        return {};
    }
    m_tree->LayOut();
    return {m_tree, 0};
}

std::vector<varnhold::XmlOddity> CXmlDocumentWrapper::FindOddities() const {
    return m_tree ? m_tree->FindOddities() : std::vector<varnhold::XmlOddity>();
}

bool varnhold::ReadXmlText(const std::wstring& path, std::string& text) {
    FileContent content = ReadWholeFile(ToNativePath(path), CXmlDocumentWrapper::kMaxSize);
    std::wstring reason;
    return content.read && DecodeXml(std::move(content.bytes), text, reason);
}

bool CXmlDocumentWrapper::Take(const std::wstring& name, std::string bytes) {
    varnhold::XmlFailure failure;
    std::shared_ptr<const XmlTree> tree = XmlTree::Parse(std::move(bytes), varnhold::BlankText::Drop, failure);
    if (!tree) {
        return Fail(name, failure.error, failure.reason, failure.position);
    }
    m_tree = std::move(tree);
    m_errorText.clear();
    m_errorReason.clear();
    m_errorPosition = {};
    m_error = varnhold::XmlError::None;
    return true;
}

bool CXmlDocumentWrapper::Take(const std::wstring& name, varnhold::FileContent content) {
    return content.read ? Take(name, std::move(content.bytes))
                        : Fail(name, varnhold::XmlError::Unreadable, content.reason, {});
}

bool CXmlDocumentWrapper::Fail(const std::wstring& name, varnhold::XmlError error, const std::wstring& reason,
                               TextPosition position) {
    m_error = error;
    m_errorText = varnhold::FormatProblem(name, position, reason);
    m_errorReason = reason;
    m_errorPosition = position;
    return false;
}
