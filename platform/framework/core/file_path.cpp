#include "core/file_path.h"

#include "fx/file.h"

#include <commdlg.h>

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

UINT AFXAPI AfxGetFileTitle(LPCTSTR lpszPathName, LPTSTR lpszTitle, UINT nMax) {
    ENSURE(lpszPathName != nullptr && (lpszTitle != nullptr || nMax == 0));
    const short room = ::GetFileTitleW(lpszPathName, nullptr, 0);
    if (room <= 0) { // no name of a file for the system: a pattern, a folder
        const CString name = fx::FileNameOf(lpszPathName);
        const UINT needed = static_cast<UINT>(name.GetLength()) + 1;
        if (needed <= nMax) {
            std::copy_n(name.GetString(), needed, lpszTitle);
        }
        return needed <= nMax ? 0 : needed;
    }
    if (static_cast<UINT>(room) > nMax) {
        return static_cast<UINT>(room);
    }
    return ::GetFileTitleW(lpszPathName, lpszTitle, static_cast<WORD>(nMax)) == 0 ? 0 : static_cast<UINT>(room);
}
