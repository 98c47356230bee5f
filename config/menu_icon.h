#pragma once

#include <string>

/// Gives a command the small picture of an icon file (a configured path, see GetIconPathStr) in menus and toolbars,
/// unless it has one. A file that cannot be loaded is noted as "no picture".
void GiveCommandIcon(unsigned int id, const std::wstring& picPath);
