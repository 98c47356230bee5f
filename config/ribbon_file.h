#pragma once

#include "config/diagnostics.h"
#include "config/ribbon_diagnosis.h"
#include "config/ribbon_record.h"

#include <string>
#include <string_view>

class CXmlNodeWrapper;

/// By the row's keyword, letter case included; any other keyword makes a row of categories.
RibbonRowKind KindOfRow(std::wstring_view keyword);

/// The rows below a file's document element. Elements below those that the file format has are not read.
RibbonRecords ReadRibbonRows(const varnhold::XmlCursor& documentElement, const FileDiagnostics& diagnostics);

/// A single ribbon element (depth 4) with its sub-items.
RibbonRecords ReadRibbonElement(const CXmlNodeWrapper& element, const FileDiagnostics& diagnostics);

/// Reads a whole file. False when it cannot be loaded; the rows are then as they were.
bool LoadRibbonFile(const std::wstring& fullPath, RibbonRecords& rows, DiagnosticsSink& sink);
