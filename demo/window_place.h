#pragma once

#include "map_state.h"

#include <vector>

/// The place of a window that was kept, on the monitors of today: as it was where enough of its title can be seen and
/// reached by the pointer; otherwise moved, and where need be made smaller, to lie wholly on the monitor that is
/// nearest to it. `workAreas` are the parts of the monitors that programs may use, the first monitor in front; without
/// any the place is returned as it is. Screen pixels.
WindowBox PlaceOnMonitors(const WindowBox& kept, const std::vector<WindowBox>& workAreas);
