#pragma once

#include "config/diagnostics.h"

/// Loads the file that the diagnostics name. False, reported as "unreadable-file", when it cannot be read or is
/// refused.
bool LoadDocument(const std::wstring& fullPath, const FileDiagnostics& diagnostics, CXmlDocumentWrapper& document);
