#include "library_context.h"

#include "commands/resource_paths.h"
#include "commands/shared_texts.h"
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

constexpr const wchar_t* kInstallerKey = L"Software\\HALVORN\\Tessaly\\";
constexpr const wchar_t* kRedirectedInstallerKey = L"Software\\Wow6432Node\\HALVORN\\Tessaly\\";
constexpr const wchar_t* kFolderValue = L"FlashPath";

bool HasRecord(const wchar_t* keyPath) {
    return ::RegGetValueW(HKEY_LOCAL_MACHINE, keyPath, kFolderValue, RRF_RT_ANY, nullptr, nullptr, nullptr) ==
           ERROR_SUCCESS;
}

/// A system that the framework's data names new keeps what a 32-bit installer writes apart: that counts where there is
/// no record of our own kind.
const wchar_t* KeyOfInstaller() {
    const bool isRedirected =
        afxGlobalData.bIsWindows7 && !HasRecord(kInstallerKey) && HasRecord(kRedirectedInstallerKey);
    return isRedirected ? kRedirectedInstallerKey : kInstallerKey;
}

std::wstring RecordedMediaFolder() {
    CKey key;
    std::wstring folder;
    if (key.Open(HKEY_LOCAL_MACHINE, KeyOfInstaller())) {
        key.GetStringValue(kFolderValue, folder);
    }
    return MediaFolderOf(folder);
}

} // namespace

CString GetIconPathStr(const std::wstring& path, int size) {
    static const std::wstring directory = InstallationDirectory();
    static SharedTexts s_paths;
    return s_paths.Get(path, size, [&] { return wstring2CString(IconFileBelow(directory, path, size)); });
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
