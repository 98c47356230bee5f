#pragma once

#include "config/diagnostics.h"
#include "config/met_element.h"
#include "config/suggestion.h"

#include <span>

/// Takes down an element's attributes as they are written, and reports names that no attribute of the file has
/// (`fileName`: "a ribbon file"), attributes that stand twice and texts that stand before their keyword. The role is
/// the caller's to set.
MetElement DescribeElement(varnhold::XmlCursor& element, std::span<const AttributeRule> rules,
                           std::wstring_view fileName, const FileDiagnostics& diagnostics);

/// Meets all elements below one that was reported as passed over.
void PassOverBelow(const varnhold::XmlCursor& element, std::span<const AttributeRule> rules,
                   const FileDiagnostics& diagnostics);

/// Reports `code` at the attribute when the element has one, otherwise at the element. Of an attribute whose value was
/// reported nothing more is said.
void ReportAt(const FileDiagnostics& diagnostics, const MetElement& element, AttributeUse use, std::string_view code,
              std::wstring text, std::wstring fix = {});
