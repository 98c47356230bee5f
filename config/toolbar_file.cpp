#include "config/toolbar_file.h"

#include "config/depth_walker.h"
#include "config/load_document.h"
#include "config/toolbar_diagnosis.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

#include <array>
#include <iterator>

namespace {

struct KnownAttribute {
    AttributeRule rule;
    std::wstring ToolBarInfo::*field;
};

constexpr KnownAttribute kAttributes[] = {
    {{"TYPE", AttributeUse::Type}, &ToolBarInfo::strType},
    {{"PROMPT", AttributeUse::Prompt}, &ToolBarInfo::strPrompt},
    {{"PICPATH", AttributeUse::Icon}, &ToolBarInfo::strPicPath},
    {{"KEYWORD", AttributeUse::Keyword}, &ToolBarInfo::strKeyword},
    {{"TOOLTIP", AttributeUse::Hint}, &ToolBarInfo::strToolTip},
};

constexpr std::array<AttributeRule, std::size(kAttributes)> MakeRules() {
    std::array<AttributeRule, std::size(kAttributes)> rules{};
    for (std::size_t i = 0; i < std::size(kAttributes); ++i) {
        rules[i] = kAttributes[i].rule;
    }
    return rules;
}
constexpr std::array<AttributeRule, std::size(kAttributes)> kRules = MakeRules();

struct KnownKind {
    std::wstring_view type;
    ToolBarItemKind kind;
};

constexpr KnownKind kKinds[] = {
    {L"separate", ToolBarItemKind::Separator},
    {L"button", ToolBarItemKind::Button},
    {L"qkLayerCheckCtrl", ToolBarItemKind::CheckCombo},
    {L"qkLayerMultiCtrl", ToolBarItemKind::MultiCombo},
    {L"qkLayerMultiCtrl2", ToolBarItemKind::MultiCombo2},
};

std::wstring ToolBarInfo::*FieldOf(std::string_view name) {
    for (const KnownAttribute& known : kAttributes) {
        if (varnhold::EqualsIgnoringCase(known.rule.name, name)) {
            return known.field;
        }
    }
    return nullptr;
}

/// Reads a file's groups and what is in them.
class ToolBarFileReader {
public:
    ToolBarFileReader(ToolBarFileVisitor& visitor, const FileDiagnostics& diagnostics)
        : m_visitor(visitor), m_isWatched(diagnostics.IsListening()), m_diagnosis(diagnostics) {}

    void ReadGroup(varnhold::XmlCursor& group) {
        if (m_isWatched) {
            m_diagnosis.MeetGroup(group);
        }
        ReadToolBarInfo(group, m_info);
        m_visitor.VisitGroup(m_info);
        ForEachChild(group, [this](varnhold::XmlCursor& toolBar) { ReadToolBar(toolBar); });
    }

private:
    void ReadToolBar(varnhold::XmlCursor& toolBar) {
        if (m_isWatched) {
            m_diagnosis.MeetToolBar(toolBar);
        }
        ReadToolBarInfo(toolBar, m_info);
        if (m_visitor.VisitToolBar(m_info)) {
            ForEachChild(toolBar, [this](varnhold::XmlCursor& button) {
                if (m_isWatched) {
                    m_diagnosis.MeetButton(button);
                }
                ReadToolBarInfo(button, m_info);
                m_visitor.VisitButton(m_info);
            });
        }
    }

    ToolBarFileVisitor& m_visitor;
    bool m_isWatched;
    ToolBarDiagnosis m_diagnosis;
    ToolBarInfo m_info;
};

} // namespace

ToolBarItemKind ToolBarItemKindOf(const std::wstring& type) {
    for (const KnownKind& known : kKinds) {
        if (varnhold::EqualsIgnoringCase(known.type, type)) {
            return known.kind;
        }
    }
    return ToolBarItemKind::Unknown;
}

std::vector<std::wstring> ToolBarItemTypes() {
    std::vector<std::wstring> types;
    for (const KnownKind& known : kKinds) {
        types.emplace_back(known.type);
    }
    return types;
}

std::span<const AttributeRule> ToolBarAttributeRules() { return kRules; }

void ReadToolBarInfo(varnhold::XmlCursor& element, ToolBarInfo& info) {
    info = {};
    for (const varnhold::XmlAttributeView& written : element.ReadAttributes()) {
        if (std::wstring ToolBarInfo::*const field = FieldOf(written.name)) {
            string2wstring(written.value, info.*field);
        }
    }
}

void ReadToolBarButtons(const varnhold::XmlCursor& toolBar, const std::function<void(const ToolBarInfo&)>& take) {
    ToolBarInfo info;
    ForEachChild(toolBar, [&](varnhold::XmlCursor& button) {
        ReadToolBarInfo(button, info);
        take(info);
    });
}

void ReadToolBarGroups(const varnhold::XmlCursor& documentElement, ToolBarFileVisitor& visitor,
                       const FileDiagnostics& diagnostics) {
    ToolBarFileReader reader(visitor, diagnostics);
    ForEachChild(documentElement, [&](varnhold::XmlCursor& group) { reader.ReadGroup(group); });
}

bool LoadToolBarFile(const std::wstring& fullPath, ToolBarFileVisitor& visitor, DiagnosticsSink& sink) {
    FileDiagnostics diagnostics(fullPath, sink);
    CXmlDocumentWrapper document;
    if (!LoadDocument(fullPath, ConfigurationKind::ToolBars, diagnostics, document)) {
        return false;
    }
    visitor.VisitFile();
    ReadToolBarGroups(varnhold::XmlCursor(document), visitor, diagnostics);
    return true;
}
