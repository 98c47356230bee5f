#pragma once

#include <set>

#include "afxribbonbar.h"
#include <nlohmann/json.hpp>

/// Replaces the categories of the bar by those of the viewer's ribbon file, in English. The commands get ids that the
/// frame of the bar's tests handles.
void LoadDemoRibbon(CMFCRibbonBar& bar);

/// The dump of the bar's categories.
nlohmann::ordered_json DumpCategories(CMFCRibbonBar& bar);

/// Ids of everything that sends a command: buttons without a menu, sub-items, members of groups, edits and sliders.
std::set<UINT> CommandsOf(const nlohmann::ordered_json& categories);
