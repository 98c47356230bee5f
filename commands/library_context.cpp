#include "library_context.h"

#include "commands/resource_paths.h"
#include "menu_id_mgr.h"

#include <afxglobals.h>
#include <varnhold/file_op.h>
#include <varnhold/key.h>
#include <varnhold/strings_mfc.h>

std::vector<CBitmap*> g_layCtrlBmp;

CQkMfc::CQkMfc() { Init(); }

CQkMfc::~CQkMfc() = default;

void CQkMfc::Init() {}

CQkMfc* CQkMfc::Ins() {
    static CQkMfc instance;
    return &instance;
}

namespace {

std::wstring InstallationDirectory() {
    std::wstring directory;
    FileOp::GetAppPath(directory);
    return directory;
}

std::wstring RecordedMediaFolder() {
    const wchar_t* const keyPath =
        afxGlobalData.bIsWow6432Node ? L"Software\\Wow6432Node\\HALVORN\\Tessaly\\" : L"Software\\HALVORN\\Tessaly\\";
    CKey key;
    std::wstring folder;
    if (key.Open(HKEY_LOCAL_MACHINE, keyPath)) {
        key.GetStringValue(L"FlashPath", folder);
    }
    return MediaFolderOf(folder);
}

} // namespace

CString GetIconPathStr(const std::wstring& path, int size) {
    static const std::wstring directory = InstallationDirectory();
    return wstring2CString(IconFileBelow(directory, path, size));
}

CString GetHelpFileName(int id, const CString&) {
    std::wstring helpFile;
    CMenuIdMgr::Ins()->GetHelpFile(id, helpFile);
    return wstring2CString(helpFile);
}

bool GetHaveMedias_Brevant(CString& folder) {
    static const std::wstring known = RecordedMediaFolder();
    folder = wstring2CString(known);
    return !known.empty();
}
