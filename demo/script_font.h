#pragma once

#include <string>

/// Gives the framework fonts that have the letters of `sample`: the user's own where they do, otherwise those of the
/// first installed family that does. For scripts that the system does not bring from other fonts by itself.
void TakeScriptFonts(const std::wstring& sample);
