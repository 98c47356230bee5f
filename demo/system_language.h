#pragma once

#include <string>
#include <vector>

/// The language of `installed` for someone who wants `wanted` (codes such as "zh-CN", "en"): the same one, else the
/// first with the same language in another country, else English, else the first. Empty when none is installed.
std::wstring ChooseLanguage(const std::wstring& wanted, const std::vector<std::wstring>& installed);

/// Whether the language of this code is written from right to left.
bool IsWrittenFromRight(const std::wstring& code);

/// What the user reads the system in.
std::wstring SystemLanguage();
