#include "config/toolbar_diagnosis.h"

#include "config/suggestion.h"
#include "config/toolbar_file.h"

namespace {

constexpr std::size_t DepthOf(ElementRole role) {
    switch (role) {
    case ElementRole::ToolBarGroup:
        return 1;
    case ElementRole::ToolBar:
        return 2;
    default:
        return 3;
    }
}

} // namespace

MetElement ToolBarDiagnosis::Describe(varnhold::XmlCursor& element, ElementRole role) const {
    MetElement met = DescribeElement(element, ToolBarAttributeRules(), L"a toolbar file", m_diagnostics);
    met.role = role;
    met.depth = DepthOf(role);
    return met;
}

void ToolBarDiagnosis::PassOver(varnhold::XmlCursor& element, MetElement met) const {
    met.isPassedOver = true;
    m_diagnostics.Meet(met);
    PassOverBelow(element, ToolBarAttributeRules(), m_diagnostics);
}

/// Whether the element is neither a group nor a toolbar, and has below it what should stand in its place.
bool ToolBarDiagnosis::IsSurplus(const varnhold::XmlCursor& element, const MetElement& met) {
    const AttributeUse own = met.role == ElementRole::ToolBarGroup ? AttributeUse::Keyword : AttributeUse::Prompt;
    if (met.Has(own) || met.hasUnknown || !met.hasChildren) {
        return false;
    }
    varnhold::XmlCursor child = element;
    child.ToFirstChild();
    const MetElement below = DescribeElement(child, ToolBarAttributeRules(), {}, Unreported());
    const bool isToolBar = below.Has(AttributeUse::Prompt);
    return below.hasChildren && below.Has(own) && !below.Has(AttributeUse::Type) &&
           isToolBar == (own == AttributeUse::Prompt);
}

/// Whether the element can be what its depth says: neither a button, which has a TYPE, nor a toolbar in a group's
/// place, nor something around a group or a toolbar. Where a level is missing, or is too many, that is said of the
/// first element alone.
bool ToolBarDiagnosis::CheckDepth(varnhold::XmlCursor& element, const MetElement& met, bool& wasStray) const {
    if (IsSurplus(element, met)) {
        if (!wasStray) {
            m_diagnostics.Report("wrong-depth", met.position,
                                 L"this is read as what is below it: a level is too many here",
                                 L"take this element away, and leave what is in it");
        }
        wasStray = true;
        PassOver(element, met);
        return false;
    }
    const bool isToolBar = met.role == ElementRole::ToolBarGroup && met.hasChildren && met.Has(AttributeUse::Prompt) &&
                           !met.Has(AttributeUse::Keyword);
    const MetAttribute* const telling = isToolBar ? met.Find(AttributeUse::Prompt) : met.Find(AttributeUse::Type);
    if (telling == nullptr) {
        return true;
    }
    if (!wasStray) {
        m_diagnostics.Report(
            "wrong-depth", telling->position,
            isToolBar ? L"an element with a PROMPT is read as a group here, which has no title"
                      : L"an element with a TYPE is read as a group or a toolbar here and does not show",
            isToolBar ? L"put a group with a KEYWORD around the toolbar"
                      : L"buttons stand three levels below the document element: group, toolbar, button");
    }
    wasStray = true;
    PassOver(element, met);
    return false;
}

void ToolBarDiagnosis::MeetGroup(varnhold::XmlCursor& element) {
    m_wasStrayToolBar = false;
    const MetElement met = Describe(element, ElementRole::ToolBarGroup);
    m_isInGroup = CheckDepth(element, met, m_wasStrayGroup);
    if (!m_isInGroup) {
        return;
    }
    if (met.ValueOf(AttributeUse::Keyword).empty() && !met.hasUnknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "missing-keyword",
                 L"a group without a keyword has an empty name");
    }
    m_diagnostics.Meet(met);
}

void ToolBarDiagnosis::MeetToolBar(varnhold::XmlCursor& element) {
    if (!m_isInGroup) {
        return;
    }
    const MetElement met = Describe(element, ElementRole::ToolBar);
    m_isInToolBar = CheckDepth(element, met, m_wasStrayToolBar);
    if (!m_isInToolBar) {
        return;
    }
    if (met.ValueOf(AttributeUse::Prompt).empty() && !met.hasUnknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Prompt, "missing-caption", L"a toolbar without PROMPT has no title",
                 L"add PROMPT");
    }
    m_diagnostics.Meet(met);
}

void ToolBarDiagnosis::MeetButton(varnhold::XmlCursor& element) const {
    if (!m_isInGroup || !m_isInToolBar) {
        return;
    }
    MetElement met = Describe(element, ElementRole::ToolBarButton);
    if (element.ReadAttributes().empty()) {
        m_diagnostics.Report("no-attributes", met.position, L"an element without attributes describes nothing",
                             L"a separator is TYPE=\"separate\"");
        return;
    }
    const std::wstring_view type = met.ValueOf(AttributeUse::Type);
    const ToolBarItemKind kind = ToolBarItemKindOf(std::wstring(type));
    if (type.empty() && met.hasUnknown) {
        // One fault: the attribute's name.
    } else if (type.empty()) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "missing-type", L"without a TYPE nothing is shown");
    } else if (kind == ToolBarItemKind::Unknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "unknown-type",
                 Quoted(type) + L" is no kind of button; nothing is shown",
                 DidYouMean(ClosestWord(type, ToolBarItemTypes())));
    }
    if (kind == ToolBarItemKind::Separator) {
        met.role = ElementRole::ToolBarSeparator;
    } else if (met.ValueOf(AttributeUse::Keyword).empty() && kind != ToolBarItemKind::Unknown && !met.hasUnknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "missing-keyword",
                 L"a button without a keyword leads to no command");
    }
    if (kind == ToolBarItemKind::Button && !met.hasUnknown && !met.ValueOf(AttributeUse::Keyword).empty() &&
        met.ValueOf(AttributeUse::Prompt).empty() && met.ValueOf(AttributeUse::Icon).empty()) {
        m_diagnostics.Report("missing-caption", met.position, L"a button without PROMPT and PICPATH is blank",
                             L"add PICPATH, and PROMPT for its text");
    }
    if (met.hasChildren) {
        m_diagnostics.Report("children-lost", met.position, L"elements inside a button are not read");
        PassOverBelow(element, ToolBarAttributeRules(), m_diagnostics);
    }
    m_diagnostics.Meet(met);
}
