#pragma once

#include "config/check/gathered_elements.h"

#include <set>
#include <span>
#include <string>

/// Checks what the elements of all files make of the command registry, in the order in which the library reads them:
/// duplicate-keyword, lost-shortcut, shortcut-clash, unknown-quick-access, unknown-status-button. `isComplete`: no
/// file was left out, so that a keyword that is nowhere is nowhere. Keywords of `meant` count as if an element had
/// them: one that is misspelt or lost was reported, or a file has it that is not spoken of.
void CheckCommands(std::span<const GatheredElement> elements, bool isComplete, const std::set<std::wstring>& meant,
                   DiagnosticsSink& sink);
