#pragma once

#include "config/check/gathered_elements.h"
#include "config/check/installation_files.h"
#include "config/check/kept_by_stamp.h"

#include <span>

enum class IconState { Fine, NoIcon, CutOff, TooLarge, TooSmall };

/// Of files with a size's folder in their paths, by these paths.
using KeptIcons = KeptByStamp<IconState, FileStamp>;

/// Looks for the icon files that the elements name: missing-icon, icon-format, icon-size, path-separator. A file that
/// several elements name is reported at the first of them. `kept`: files that are as they were are not read again; may
/// be null.
void CheckIcons(std::span<const GatheredElement> elements, const InstallationFiles& files, KeptIcons* kept,
                DiagnosticsSink& sink);

/// Whether there is an icon file for the configured path and side (16 or 32 pixels at 96 DPI) that can be decoded.
bool CanLoadIcon(const InstallationFiles& files, const std::wstring& picPath, int side);
