#pragma once

// Marks what the library exports to the host. BARWRIGHT_STATIC is for unit tests that link a folder's objects directly.
#if !defined(_WIN32) || defined(BARWRIGHT_STATIC)
#define BARWRIGHT_API
#elif defined(BARWRIGHT_BUILD)
#define BARWRIGHT_API __declspec(dllexport)
#else
#define BARWRIGHT_API __declspec(dllimport)
#endif
