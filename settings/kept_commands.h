#pragma once

#include "settings/kept_settings.h"

#include <functional>

/// How a list of commands that a user changed goes together with what the configuration shows by default.

/// Whether a keyword stands for a command that can be shown now.
using IsShowable = std::function<bool(const std::wstring&)>;

/// The user's list over the configured one: the user's commands in the user's order, and each configured one that is
/// new since then behind the one that it follows in the configuration. Unknown keywords are in it.
Keywords MergeCommands(const KeptCommands& kept, const Keywords& configured);

/// What is kept when `shown` is on the screen. `before`: what was kept until now; of it, the commands that cannot be
/// shown stay, each behind the one that it followed. Nothing when the user changed nothing.
std::optional<KeptCommands> KeepCommands(const KeptCommands& before, const Keywords& shown, const Keywords& configured,
                                         const IsShowable& isShowable);
