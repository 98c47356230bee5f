#pragma once

#include "afxwin.h"

#include <string>

class CDocTemplate;

namespace fx {

/// Asks for the name of a file of the kind, or with a null kind of any of the application's. False: the user has left
/// it.
bool AskFileName(bool isOpening, const CDocTemplate* kind, CString& path);

/// A string of the resources with %1 replaced by a name.
CString TextWithName(UINT textId, LPCTSTR name);

} // namespace fx
