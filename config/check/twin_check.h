#pragma once

#include "config/check/gathered_elements.h"

/// Checks what holds others and stands twice beside each other under one name: duplicate-keyword. The categories of
/// rows of one keyword in a file, the panels of a category, the popups of a menu, the toolbars of a group (by their
/// titles) and a file's rows of status-bar buttons. What the later one shares with the earlier counts as reported.
void CheckTwins(GatheringSink& sink);
