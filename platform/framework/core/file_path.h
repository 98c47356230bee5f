#pragma once

#include <atlstr.h>

namespace fx {

/// Drive, folders and name; the path itself where the system cannot say.
CString FullPathOf(LPCTSTR path);
/// What stands behind the last folder.
CString FileNameOf(const CString& path);

} // namespace fx
