#pragma once

#include <windows.h>

#include <string>

/// Says which program this is: its version, its licence, and where its map data come from, with links that open in the
/// browser. `title` is the window's; the texts are those of the language in force.
void ShowAboutBox(HWND owner, const std::wstring& title);
