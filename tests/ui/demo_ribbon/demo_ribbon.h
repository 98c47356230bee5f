#pragma once

#include <set>

#include "afxribbonbar.h"
#include <nlohmann/json.hpp>

/// Replaces the categories of the bar by those of the viewer's ribbon file, in English, with split buttons and filled
/// combos as the viewer has them. The commands get ids that the frame of the bar's tests handles.
void LoadDemoRibbon(CMFCRibbonBar& bar);

/// The dump of the bar's categories.
nlohmann::ordered_json DumpCategories(CMFCRibbonBar& bar);

/// Ids of everything that sends a command: buttons, sub-items, members of groups, edits, combos and sliders.
std::set<UINT> CommandsOf(const nlohmann::ordered_json& categories);
