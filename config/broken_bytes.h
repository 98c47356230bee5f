#pragma once

#include <string>

/// Which encoding a file is written in that says, or is taken to be, UTF-8 and holds bytes that are none, and what to
/// do about it. Empty where that cannot be seen.
std::wstring HintForBrokenBytes(const std::wstring& fullPath);
