#pragma once

/// From now on a test fails in which the program accesses memory that is not there, wherever that happens: the system
/// goes on after such an access below a window procedure, and the window is just not painted. For the whole process;
/// asked again it does nothing.
void WatchFaults();
