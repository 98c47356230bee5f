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

/// Whether the element can be what its depth says.
bool ToolBarDiagnosis::CheckDepth(const MetElement& met) const {
    const MetAttribute* const type = met.Find(AttributeUse::Type);
    if (type) {
        m_diagnostics.Report("wrong-depth", type->position,
                             L"an element with a TYPE is read as a group or a toolbar here and does not show",
                             L"buttons stand three levels below the document element: group, toolbar, button");
    }
    return !type;
}

void ToolBarDiagnosis::MeetGroup(varnhold::XmlCursor& element) {
    const MetElement met = Describe(element, ElementRole::ToolBarGroup);
    m_isInGroup = CheckDepth(met);
    if (!m_isInGroup) {
        PassOverBelow(element, ToolBarAttributeRules(), m_diagnostics);
        return;
    }
    if (met.ValueOf(AttributeUse::Keyword).empty()) {
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
    m_isInToolBar = CheckDepth(met);
    if (!m_isInToolBar) {
        PassOverBelow(element, ToolBarAttributeRules(), m_diagnostics);
        return;
    }
    if (met.ValueOf(AttributeUse::Prompt).empty()) {
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
        m_diagnostics.Report("no-attributes", met.position, L"an element without attributes describes nothing");
        return;
    }
    const std::wstring_view type = met.ValueOf(AttributeUse::Type);
    const ToolBarItemKind kind = ToolBarItemKindOf(std::wstring(type));
    if (type.empty()) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "missing-type", L"without a TYPE nothing is shown");
    } else if (kind == ToolBarItemKind::Unknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Type, "unknown-type",
                 Quoted(type) + L" is no kind of button; nothing is shown",
                 DidYouMean(ClosestWord(type, ToolBarItemTypes())));
    }
    if (kind == ToolBarItemKind::Separator) {
        met.role = ElementRole::ToolBarSeparator;
    } else if (met.ValueOf(AttributeUse::Keyword).empty() && kind != ToolBarItemKind::Unknown) {
        ReportAt(m_diagnostics, met, AttributeUse::Keyword, "missing-keyword",
                 L"a button without a keyword leads to no command");
    }
    if (kind == ToolBarItemKind::Button && !met.ValueOf(AttributeUse::Keyword).empty() &&
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
