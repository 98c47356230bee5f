#pragma once

#include <windows.h>

namespace fx {

/// Sees a message that a thread of the framework took from its queue. TRUE: the message is done, no window gets it.
using InputFilter = BOOL (*)(MSG* message);

/// From now on every thread asks the filter for each message before any window and the application object. Rooms above
/// this one get at input for windows that are not theirs by it: a menu that ends with a click outside. Only while the
/// library is loaded, before there are threads that ask.
void AddInputFilter(InputFilter filter);

/// Asks the filters in the order in which they were added, until one is done with the message.
BOOL FilterInput(MSG* message);

} // namespace fx
