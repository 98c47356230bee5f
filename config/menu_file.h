#pragma once

#include "config/diagnostics.h"
#include "menu_info.h"

#include <cstddef>

/// Takes the elements of a menu file in document order. `level` counts the popups around an element: 0 for what the
/// top-level menu shows. An element's popup is the last one that was met one level further up.
class MenuFileVisitor {
public:
    virtual ~MenuFileVisitor() = default;
    /// An item or a separator. The record is good until the call returns.
    virtual void VisitItem(const MenuInfo& info, std::size_t level) = 0;
    virtual void VisitPopup(const MenuInfo& info, std::size_t level) = 0;
    /// A child of the document element was read, whatever it held.
    virtual void LeaveBranch() = 0;
};

/// One child of a file's document element: an item, or a group, whose attributes do not count and whose children stand
/// in the top-level menu. An item without attributes is left out; a popup without them has no caption.
void ReadMenuBranch(varnhold::XmlCursor element, MenuFileVisitor& visitor, const FileDiagnostics& diagnostics);

/// The children of a file's document element.
void ReadMenuBranches(const varnhold::XmlCursor& documentElement, MenuFileVisitor& visitor,
                      const FileDiagnostics& diagnostics);

/// Reads a whole file. False when it cannot be loaded; nothing was visited then.
bool LoadMenuFile(const std::wstring& fullPath, MenuFileVisitor& visitor, DiagnosticsSink& sink);
