#include "core/file_path.h"

#include <algorithm>

namespace fx {

CString FullPathOf(LPCTSTR path) {
    const DWORD room = ::GetFullPathNameW(path, 0, nullptr, nullptr);
    if (room == 0) {
        return path;
    }
    CString full;
    const DWORD length = ::GetFullPathNameW(path, room, full.GetBuffer(static_cast<int>(room)), nullptr);
    full.ReleaseBuffer(static_cast<int>(length));
    return length > 0 ? full : CString(path);
}

CString FileNameOf(const CString& path) {
    return path.Mid(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
}

} // namespace fx
