#pragma once

// Programs include it by this name for the versions of Windows that they want. The compiler's own header says them,
// unless the program has.
#include <_mingw.h>
