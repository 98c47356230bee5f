#pragma once

// Marks what the framework DLL exports. The framework's own sources are compiled with FRAMEWORK_BUILD.
#ifdef FRAMEWORK_BUILD
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif
