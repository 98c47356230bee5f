#include "targets.h"

#include <varnhold/xml.h>

#include <algorithm>
#include <vector>

namespace {

/// The element after the cursor's in document order; false at the end of the document.
bool ToNext(varnhold::XmlCursor& cursor) {
    if (cursor.ToFirstChild()) {
        return true;
    }
    while (!cursor.ToNextSibling()) {
        if (!cursor.ToParent()) {
            return false;
        }
    }
    return true;
}

/// Both ways to read an element say the same.
void DemandSame(const CXmlNodeWrapper& node, varnhold::XmlCursor& cursor) {
    const auto attributes = cursor.ReadAttributes();
    Demand(node.GetName() == cursor.GetName());
    Demand(node.GetAttributeCount() == attributes.size());
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        Demand(node.GetAttributeNameUtf8(i) == attributes[i].name);
        Demand(node.GetAttributeValueUtf8(i) == attributes[i].value);
    }
    Demand(node.GetChildCount() == cursor.CountChildren());
}

/// Elements follow one another in the file, and the attributes of each likewise.
void DemandPlaces(varnhold::XmlCursor& cursor, varnhold::TextPosition& last, bool hasOddities) {
    const auto isBehind = [&last](varnhold::TextPosition place) {
        const bool isLater = place.line > last.line || (place.line == last.line && place.column > last.column);
        last = place;
        return isLater;
    };
    Demand(isBehind(cursor.GetPosition()));
    for (const varnhold::XmlAttributeView& attribute : cursor.ReadAttributes()) {
        Demand(isBehind(cursor.GetAttributePosition(attribute)));
        Demand(hasOddities || !cursor.IsOddlyWritten(attribute));
    }
}

} // namespace

void FuzzXml(std::string_view bytes) {
    CXmlDocumentWrapper document;
    const bool isLoaded = document.LoadFromMemory(bytes);
    Demand(isLoaded == (document.GetError() == varnhold::XmlError::None));
    Demand(isLoaded == document.GetErrorText().empty());
    Demand(isLoaded == document.GetErrorReason().empty());
    if (!isLoaded) {
        Demand(document.GetDocumentElement().IsNull());
        return;
    }
    const std::vector<varnhold::XmlOddity> oddities = document.FindOddities();
    for (const varnhold::XmlOddity& oddity : oddities) {
        Demand(oddity.position.line >= 1 && oddity.position.column >= 1);
    }
    varnhold::TextPosition last;
    varnhold::XmlCursor cursor(document);
    constexpr int most = 300; // positions take time
    int count = 0;
    do {
        DemandPlaces(cursor, last, !oddities.empty());
    } while (++count < most && ToNext(cursor));
    const CXmlNodeWrapper root = document.GetDocumentElement();
    varnhold::XmlCursor top(document);
    DemandSame(root, top);
    if (top.ToFirstChild()) {
        std::size_t index = 0;
        do {
            DemandSame(root.GetChild(index++), top);
        } while (top.ToNextSibling());
        Demand(index == root.GetChildCount());
    }
}
