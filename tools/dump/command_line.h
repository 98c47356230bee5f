#pragma once

#include <string>
#include <vector>

/// The words of this program's command line, without the program itself.
std::vector<std::wstring> CommandLineWords();

/// A whole decimal number from `low` to `high`. False otherwise; `number` is then as it was.
bool ParseInteger(const std::wstring& text, int low, int high, int& number);

/// "WxH", each from 1 to `largest`. False otherwise.
bool ParseSize(const std::wstring& text, int largest, int& width, int& height);
