#pragma once

#include <varnhold/xml.h>

#include <string>
#include <string_view>
#include <vector>

/// What an attribute is for. Names that mean the same have the same use.
enum class AttributeUse {
    Keyword,
    Name,
    ToolTip,
    Type,
    Icon,
    DisabledIcon,
    Size,
    Width,
    GroupBefore,
    ValueGroup,
    Command,
    Parameter,
    CateTab,
    Help,
    AcceptF1,
    ShortKey,
    HotKey,
    Prompt,
    /// A tooltip that is shown as it is written.
    Hint,
};

/// An attribute that a kind of file has. Letter case does not count.
struct AttributeRule {
    std::string_view name;
    AttributeUse use;
};

enum class ElementRole {
    Row,
    Category,
    QuickAccessItem,
    StatusButton,
    Panel,
    RibbonElement,
    SubItem,
    MenuGroup,
    Popup,
    MenuItem,
    MenuSeparator,
    ToolBarGroup,
    ToolBar,
    ToolBarButton,
    ToolBarSeparator,
};

struct MetAttribute {
    AttributeUse use;
    std::wstring value;
    /// Of the name's first letter.
    varnhold::TextPosition position;
    /// The name is misspelt, and was reported; this is what was meant by it.
    bool isMeant = false;
    /// Its value was reported: it stands twice with two values, or holds a reference that is not known or a broken
    /// character. What follows from such a value is not said besides.
    bool isReported = false;
};

/// An element of a configuration file as it is written: every attribute once, the last where it stands twice.
struct MetElement {
    ElementRole role = ElementRole::Row;
    /// 1 below the document element.
    std::size_t depth = 1;
    /// Of its "<".
    varnhold::TextPosition position;
    std::vector<MetAttribute> attributes;
    bool hasChildren = false;
    /// It has an attribute that no name is near to, which was reported: what is missing may be that.
    bool hasUnknown = false;
    /// Keywords that stood here before another one took their place, which was reported.
    std::vector<std::wstring> otherKeywords;
    /// It lies below an element that was reported, and is not what it was meant to be until that one is mended: what is
    /// said of it here is what is written, and nothing about it was reported. Its role counts for nothing.
    bool isPassedOver = false;

    /// Null when there is none.
    const MetAttribute* Find(AttributeUse use) const {
        for (const MetAttribute& attribute : attributes) {
            if (attribute.use == use) {
                return &attribute;
            }
        }
        return nullptr;
    }
    bool Has(AttributeUse use) const { return Find(use) != nullptr; }
    /// Whether there is such an attribute, and its value was reported.
    bool IsReported(AttributeUse use) const {
        const MetAttribute* const found = Find(use);
        return found != nullptr && found->isReported;
    }
    void MarkReported(AttributeUse use) {
        for (MetAttribute& attribute : attributes) {
            attribute.isReported = attribute.isReported || attribute.use == use;
        }
    }
    /// Empty where there is none.
    std::wstring_view ValueOf(AttributeUse use) const {
        const MetAttribute* const found = Find(use);
        return found ? std::wstring_view(found->value) : std::wstring_view();
    }
};
