#include "config/toolbar_file.h"

#include "config/depth_walker.h"
#include "config/load_document.h"

#include <varnhold/letter_case.h>
#include <varnhold/strings.h>

namespace {

struct KnownAttribute {
    std::string_view name;
    std::wstring ToolBarInfo::*field;
};

constexpr KnownAttribute kAttributes[] = {
    {"TYPE", &ToolBarInfo::strType},       {"PROMPT", &ToolBarInfo::strPrompt},   {"PICPATH", &ToolBarInfo::strPicPath},
    {"KEYWORD", &ToolBarInfo::strKeyword}, {"TOOLTIP", &ToolBarInfo::strToolTip},
};

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
        if (varnhold::EqualsIgnoringCase(known.name, name)) {
            return known.field;
        }
    }
    return nullptr;
}

void WarnAboutButton(varnhold::XmlCursor& element, const ToolBarInfo& info, const FileDiagnostics& diagnostics) {
    if (!diagnostics.IsListening()) {
        return;
    }
    const ToolBarItemKind kind = ToolBarItemKindOf(info.strType);
    if (kind == ToolBarItemKind::Unknown) {
        diagnostics.Warn(element.GetPosition(), "unknown-type",
                         L"\"" + info.strType + L"\" is no kind of button: nothing is shown");
    } else if (kind != ToolBarItemKind::Separator && info.strKeyword.empty()) {
        diagnostics.Warn(element.GetPosition(), "no-keyword", L"a button without a keyword leads to no command");
    }
    if (element.HasChildren()) {
        diagnostics.Warn(element.GetPosition(), "children-ignored", L"elements inside a button are not read");
    }
}

void ReadGroup(varnhold::XmlCursor& group, ToolBarFileVisitor& visitor, const FileDiagnostics& diagnostics) {
    ToolBarInfo info;
    ReadToolBarInfo(group, info, diagnostics);
    visitor.VisitGroup(info);
    ForEachChild(group, [&](varnhold::XmlCursor& toolBar) {
        ReadToolBarInfo(toolBar, info, diagnostics);
        if (visitor.VisitToolBar(info)) {
            ReadToolBarButtons(toolBar, diagnostics, [&](const ToolBarInfo& button) { visitor.VisitButton(button); });
        }
    });
}

} // namespace

ToolBarItemKind ToolBarItemKindOf(const std::wstring& type) {
    for (const KnownKind& known : kKinds) {
        if (varnhold::EqualsIgnoringCase(known.type, type)) {
            return known.kind;
        }
    }
    return ToolBarItemKind::Unknown;
}

void ReadToolBarInfo(varnhold::XmlCursor& element, ToolBarInfo& info, const FileDiagnostics& diagnostics) {
    info = {};
    for (const varnhold::XmlAttributeView& written : element.ReadAttributes()) {
        if (std::wstring ToolBarInfo::*const field = FieldOf(written.name)) {
            string2wstring(written.value, info.*field);
        } else if (diagnostics.IsListening()) {
            diagnostics.Warn(element.GetAttributePosition(written), "unknown-attribute",
                             L"\"" + string2wstring(written.name) + L"\" is not an attribute of a toolbar file");
        }
    }
}

void ReadToolBarButtons(const varnhold::XmlCursor& toolBar, const FileDiagnostics& diagnostics,
                        const std::function<void(const ToolBarInfo&)>& take) {
    ToolBarInfo info;
    ForEachChild(toolBar, [&](varnhold::XmlCursor& button) {
        ReadToolBarInfo(button, info, diagnostics);
        WarnAboutButton(button, info, diagnostics);
        take(info);
    });
}

bool LoadToolBarFile(const std::wstring& fullPath, ToolBarFileVisitor& visitor, DiagnosticsSink& sink) {
    const FileDiagnostics diagnostics(fullPath, sink);
    CXmlDocumentWrapper document;
    if (!LoadDocument(fullPath, diagnostics, document)) {
        return false;
    }
    ForEachChild(varnhold::XmlCursor(document),
                 [&](varnhold::XmlCursor& group) { ReadGroup(group, visitor, diagnostics); });
    return true;
}
