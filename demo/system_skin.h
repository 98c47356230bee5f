#pragma once

#include <string>

/// The name of the skin that the user's system asks of programs: "black" where it is set to dark programs, else
/// "silver".
std::wstring PreferredSkin();
