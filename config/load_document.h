#pragma once

#include "config/configuration_kind.h"
#include "config/diagnostics.h"

/// Loads the file that the diagnostics name and reports what is odd in it beside its elements. False, reported too,
/// when it cannot be read or is refused. A file of another kind than `kind` is reported as that; it is loaded all the
/// same, and the diagnostics do not listen any more.
bool LoadDocument(const std::wstring& fullPath, ConfigurationKind kind, FileDiagnostics& diagnostics,
                  CXmlDocumentWrapper& document);

/// Reports what was found odd in a document: a text between the tags, a reference that is not known and their like.
void ReportOddity(const varnhold::XmlOddity& oddity, const FileDiagnostics& diagnostics);
