#pragma once

#include "barwright_api.h"

#include <afxcmn.h>
#include <afxwin.h>

#include <string>
#include <vector>

/// What the whole library shares with the host. One instance, made by the first Ins() with an empty image list and
/// destroyed at process exit. User-interface thread only.
class BARWRIGHT_API CQkMfc {
public:
    CQkMfc(const CQkMfc&) = delete;
    CQkMfc& operator=(const CQkMfc&) = delete;

    /// Never null.
    static CQkMfc* Ins();

    /// The shared pictures of the multi combos, which the host fills before a combo first draws: image 0 is a light
    /// that is on, image 1 one that is off. A list that does not exist by then is filled with the library's own
    /// pictures; a host that comes later deletes it first.
    CImageList m_imageList;

private:
    CQkMfc();
    ~CQkMfc();
    void Init();
};

/// The file of a configured icon in one size: pic\skin\icon\down.ico in size 16 is pic\skin\icon\16\down.ico below the
/// installation directory. `size` in pixels at 96 DPI, the name of the folder. A path without a backslash gets the
/// folder name run together with the file name (\16down.ico). The installation directory is asked for once in the
/// process.
BARWRIGHT_API CString GetIconPathStr(const std::wstring& path, int size);

/// The help file registered for a command id; empty when it has none. The second argument is not consulted.
BARWRIGHT_API CString GetHelpFileName(int id, const CString& spare);

/// The folder of the help videos, closed by a backslash, as the installation recorded it; false and an empty text when
/// none is known. The record is read on the first call of the process only: the value "FlashPath" of the key
/// `Software\HALVORN\Tessaly` of the local machine; where that holds none, of `Software\Wow6432Node\HALVORN\Tessaly`,
/// where a 32-bit installer leaves it. A host that wants the first key alone clears afxGlobalData.bIsWindows7 before.
BARWRIGHT_API bool GetHaveMedias_Brevant(CString& folder);

/// Bitmaps that the host shares with the controls. The library adds none and deletes none.
extern BARWRIGHT_API std::vector<CBitmap*> g_layCtrlBmp;
