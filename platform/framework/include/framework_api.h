#pragma once

// Marks what the framework DLL exports. The framework's own sources are compiled with FRAMEWORK_BUILD.
#ifdef FRAMEWORK_BUILD
#define FRAMEWORK_API __declspec(dllexport)
#else
#define FRAMEWORK_API __declspec(dllimport)
#endif

// Every header comes through here first, so who compiles without what they need learns it in one line.
#if !defined(UNICODE) || !defined(_UNICODE)
#error "The framework is Unicode only: compile with -DUNICODE -D_UNICODE (both), before any header."
#endif
#if __cplusplus < 202002L
#error "The framework needs C++20: compile with -std=c++20 or later."
#endif
