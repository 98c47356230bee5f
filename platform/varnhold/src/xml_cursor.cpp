#include "src/xml_tree.h"
#include "varnhold/strings.h"

namespace varnhold {

namespace {

pugi::xml_node ElementFrom(pugi::xml_node node) {
    while (node && node.type() != pugi::node_element) {
        node = node.next_sibling();
    }
    return node;
}

} // namespace

XmlCursor::XmlCursor(const CXmlDocumentWrapper& document) : m_tree(document.m_tree) {
    if (m_tree) {
        m_element = m_tree->GetRoot().internal_object();
    }
}

XmlCursor::XmlCursor(const CXmlNodeWrapper& element) : m_tree(element.m_tree) {
    if (m_tree) {
        m_element = m_tree->GetElement(element.m_element).node.internal_object();
    }
}

bool XmlCursor::MoveTo(pugi::xml_node_struct* element) noexcept {
    if (element) {
        m_element = element;
    }
    return element != nullptr;
}

bool XmlCursor::ToFirstChild() noexcept {
    return MoveTo(ElementFrom(pugi::xml_node(m_element).first_child()).internal_object());
}

bool XmlCursor::ToNextSibling() noexcept {
    return MoveTo(ElementFrom(pugi::xml_node(m_element).next_sibling()).internal_object());
}

bool XmlCursor::ToParent() noexcept {
    const pugi::xml_node parent = pugi::xml_node(m_element).parent();
    return parent.type() == pugi::node_element && MoveTo(parent.internal_object());
}

std::wstring XmlCursor::GetName() const { return string2wstring(pugi::xml_node(m_element).name()); }

bool XmlCursor::HasChildren() const noexcept { return !ElementFrom(pugi::xml_node(m_element).first_child()).empty(); }

std::size_t XmlCursor::CountChildren() const noexcept {
    std::size_t count = 0;
    for (pugi::xml_node child = pugi::xml_node(m_element).first_child(); child; child = child.next_sibling()) {
        count += child.type() == pugi::node_element ? 1 : 0;
    }
    return count;
}

std::span<const XmlAttributeView> XmlCursor::ReadAttributes() {
    m_attributes.clear();
    if (!m_tree) {
        return m_attributes;
    }
    const XmlTree& tree = *m_tree;
    pugi::xml_attribute attribute = pugi::xml_node(m_element).first_attribute();
    const char* name = attribute.name();
    while (*name != '\0') { // behind the last one
        const char* const value = attribute.value();
        attribute = attribute.next_attribute();
        const char* const nextName = attribute.name();
        const bool isLast = *nextName == '\0';
        m_attributes.push_back({{name, tree.LengthOf(name, value)},
                                {value, isLast ? tree.LengthOf(value) : tree.LengthOf(value, nextName)}});
        name = nextName;
    }
    return m_attributes;
}

TextPosition XmlCursor::GetPosition() const {
    return m_element ? m_tree->GetPosition(pugi::xml_node(m_element)) : TextPosition();
}

TextPosition XmlCursor::GetAttributePosition(const XmlAttributeView& attribute) const {
    return m_tree ? m_tree->GetPositionOfName(attribute.name.data()) : TextPosition();
}

bool XmlCursor::IsOddlyWritten(const XmlAttributeView& attribute) const {
    return m_tree && m_tree->IsOddValue(attribute.value.data());
}

} // namespace varnhold
