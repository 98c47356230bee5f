#pragma once

#ifdef TOVASQUE_BUILD
#define TOVASQUE_API __declspec(dllexport)
#else
#define TOVASQUE_API __declspec(dllimport)
#endif
