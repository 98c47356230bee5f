#pragma once

#include "options.h"

#include <string>

/// Writes or completes a language's table with all texts that the files of the installation ask for. False, with the
/// reason in `message`, when it was not written; otherwise `message` says what was done.
bool ExtractTexts(const BarcheckOptions& options, std::wstring& message);
