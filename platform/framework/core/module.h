#pragma once

#include <windows.h>

/// Module handle of the framework DLL itself; its own resources and window classes belong to it.
HINSTANCE FrameworkInstance() noexcept;
