#pragma once

#include "config/diagnostics.h"
#include "ribbon_info.h"

#include <string>
#include <vector>

class CXmlNodeWrapper;

/// An element of a ribbon file with what lies below it. What it is depends on its depth: 1 a row, 2 a category, quick
/// access item or status-bar button, 3 a panel, 4 a ribbon element, 5 a sub-item.
struct RibbonRecord {
    RibbonInfo info;
    std::vector<RibbonRecord> children;
};

/// What the children of a row are.
enum class RibbonRowKind { Categories, QuickAccess, StatusButtons };

/// By the row's keyword, letter case included; any other keyword makes a row of categories.
RibbonRowKind KindOfRow(const std::wstring& keyword);

/// The rows below a file's document element. Elements below those that the file format has are not read.
std::vector<RibbonRecord> ReadRibbonRows(const CXmlNodeWrapper& documentElement, const FileDiagnostics& diagnostics);

/// A single ribbon element (depth 4) with its sub-items.
RibbonRecord ReadRibbonElement(const CXmlNodeWrapper& element, const FileDiagnostics& diagnostics);

/// Reads a whole file. False when it cannot be loaded; the rows are then as they were.
bool LoadRibbonFile(const std::wstring& fullPath, std::vector<RibbonRecord>& rows, DiagnosticsSink& sink);
