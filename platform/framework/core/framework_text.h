#pragma once

#include <afxwin.h>

/// A text of the framework's own. What the program's resources, or those of its extension modules, say under the same
/// id comes first, so that a program can put it differently or in another language; empty when nobody has it.
CString FrameworkText(UINT id);
