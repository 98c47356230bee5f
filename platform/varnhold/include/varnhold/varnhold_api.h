#pragma once

// Marks what the utility library exports on Windows; elsewhere it is a static library.
#if !defined(_WIN32)
#define VARNHOLD_API
#elif defined(VARNHOLD_BUILD)
#define VARNHOLD_API __declspec(dllexport)
#else
#define VARNHOLD_API __declspec(dllimport)
#endif
