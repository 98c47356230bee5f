#pragma once

#include "config/diagnostics.h"
#include "config/met_element.h"
#include "toolbar_info.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

/// What a button's TYPE makes. The words are compared without regard to letter case.
enum class ToolBarItemKind { Unknown, Separator, Button, CheckCombo, MultiCombo, MultiCombo2 };

ToolBarItemKind ToolBarItemKindOf(const std::wstring& type);
/// The words that it knows.
std::vector<std::wstring> ToolBarItemTypes();

/// The attributes that a toolbar file has.
std::span<const AttributeRule> ToolBarAttributeRules();

/// Takes the elements of a toolbar file in document order. Records are good until the call returns.
class ToolBarFileVisitor {
public:
    virtual ~ToolBarFileVisitor() = default;
    /// The file could be read; its groups follow.
    virtual void VisitFile() {}
    virtual void VisitGroup(const ToolBarInfo& info) = 0;
    /// Whether the toolbar's buttons are to be read.
    virtual bool VisitToolBar(const ToolBarInfo& info) = 0;
    virtual void VisitButton(const ToolBarInfo& info) = 0;
};

/// Reads an element's attributes in place of what the record holds.
void ReadToolBarInfo(varnhold::XmlCursor& element, ToolBarInfo& info);

/// Hands the children of a toolbar element to `take`. The record is good until the call returns.
void ReadToolBarButtons(const varnhold::XmlCursor& toolBar, const std::function<void(const ToolBarInfo&)>& take);

/// The groups below a file's document element.
void ReadToolBarGroups(const varnhold::XmlCursor& documentElement, ToolBarFileVisitor& visitor,
                       const FileDiagnostics& diagnostics);

/// Reads a whole file. False when it cannot be loaded; nothing was visited then.
bool LoadToolBarFile(const std::wstring& fullPath, ToolBarFileVisitor& visitor, DiagnosticsSink& sink);
