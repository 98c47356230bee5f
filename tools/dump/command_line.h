#pragma once

#include <string>
#include <vector>

/// The words of this program's command line, without the program itself.
std::vector<std::wstring> CommandLineWords();
