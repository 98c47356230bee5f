#pragma once

#include "config/diagnostics.h"

#include <string>
#include <vector>

// The findings of one run in the formats that the program writes, UTF-8.

/// `directory`: where the files of the findings lie, with its closing separator; their lines are shown.
std::string TextReport(const std::vector<Diagnostic>& findings, const std::wstring& directory);
std::string JsonReport(const std::vector<Diagnostic>& findings);
/// `folder`, here and below: where the directory lies in the repository, with its closing "/"; empty: at its root.
std::string SarifReport(const std::vector<Diagnostic>& findings, const std::wstring& folder = {});
std::string GithubReport(const std::vector<Diagnostic>& findings, const std::wstring& folder = {});

/// "1 error, 2 warnings, 0 notes".
std::string Summary(const std::vector<Diagnostic>& findings);

/// What every code means, as a page of the guide (Markdown).
std::string DiagnosticsGuide();
