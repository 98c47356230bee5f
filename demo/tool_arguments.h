#pragma once

#include "map_state.h"

#include <functional>
#include <string>

/// The arguments with the values of their placeholders, $(NAME). What `valueOf` does not know, an empty text, is left
/// out; a bracket that nothing closes stays as it is.
std::wstring FillArguments(const std::wstring& arguments,
                           const std::function<std::wstring(const std::wstring&)>& valueOf);
/// Latitude and longitude in degrees, for programs to read: "31.2300,121.4700".
std::wstring PlaceArgument(GeoPoint place);
