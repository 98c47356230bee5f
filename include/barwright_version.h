#pragma once

/// The version of the library, for compilers of every language, for resource scripts and for CMake, which reads it from
/// here. The first number grows when a host must change its source, the second when it must be compiled anew.

#define BARWRIGHT_VERSION_MAJOR 0
#define BARWRIGHT_VERSION_MINOR 1
#define BARWRIGHT_VERSION_PATCH 0
#define BARWRIGHT_VERSION "0.1.0"
