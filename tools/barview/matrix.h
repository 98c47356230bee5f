#pragma once

#include "options.h"

#include <windows.h>

#include <functional>
#include <string>

/// Takes the picture of a tab, by its name and its place among the tabs, while the window shows it.
using PictureTaker = std::function<void(const std::wstring& tab, int place, HWND window)>;
/// Builds the bars of one combination and shows one tab after the other; false when there is no window for them.
using TabShower = std::function<bool(const BarviewOptions& options, const PictureTaker& take)>;

/// Writes the pictures that `options` ask for by --matrix and its kin, and their page. False when something could not
/// be built or written.
bool WriteMatrix(const BarviewOptions& options, const TabShower& show);
