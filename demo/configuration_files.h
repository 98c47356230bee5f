#pragma once

#include <string>
#include <vector>

struct ConfigurationProblem;

/// "file:line:column: what".
std::wstring PlaceAndText(const ConfigurationProblem& problem);

/// Why the bars cannot be built in the language from the files as they are now: a line for each that is missing or
/// broken or has nothing in it, "file:line:column: what". Empty: they can.
std::vector<std::wstring> FindBrokenFiles(const std::wstring& language);
