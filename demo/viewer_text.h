#pragma once

#include <string>

/// A text of the viewer's own (section Viewer) in the language in force.
std::wstring ViewerText(const char* key);
/// A text of the bars (section RibbonBarCfg), such as the name of a command.
std::wstring BarText(const std::wstring& keyword);
/// The message with the name in place of its first "%s".
std::wstring WithName(std::wstring message, const std::wstring& name);
