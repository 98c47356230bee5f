#include "help_hint.h"

#include "installed_icon.h"
#include "library_context.h"
#include "tooltip_ctrl_ex.h"

#include <utility>

namespace {

constexpr int kLargeSide = 32;
constexpr int kSmallSide = 16;

/// Whether there is a folder (FILE_ATTRIBUTE_DIRECTORY) or a file (0) of the name.
bool Has(const CString& path, DWORD kind) {
    const DWORD attributes = ::GetFileAttributesW(path);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == kind;
}

HICON LoadHint(const std::wstring& folder, int side) {
    return LoadInstalledIcon(GetIconPathStr(folder + L"help.ico", side), side);
}

void Replace(HICON& icon, HICON other) {
    if (const HICON earlier = std::exchange(icon, other); earlier != nullptr) {
        ::DestroyIcon(earlier);
    }
}

} // namespace

HelpHint::~HelpHint() {
    CToolTipCtrlEx::m_hIconLargeBottom = nullptr;
    CToolTipCtrlEx::m_hIconSmallBottom = nullptr;
    Replace(m_large, nullptr);
    Replace(m_small, nullptr);
}

bool HelpHint::HasVideos() {
    CString folder; // closed by a backslash, with which the standard library finds no folder
    return GetHaveMedias_Brevant(folder) && Has(folder, FILE_ATTRIBUTE_DIRECTORY);
}

std::wstring HelpHint::FileOf(UINT id) {
    CString folder;
    const CString name = GetHelpFileName(static_cast<int>(id), CString());
    if (name.IsEmpty() || !GetHaveMedias_Brevant(folder)) {
        return {};
    }
    const CString file = folder + name;
    return Has(file, 0) ? std::wstring(file.GetString()) : std::wstring();
}

void HelpHint::TakeIcons(const wchar_t* folder) {
    Replace(m_large, LoadHint(folder, kLargeSide));
    Replace(m_small, LoadHint(folder, kSmallSide));
    CToolTipCtrlEx::m_hIconLargeBottom = m_large;
    CToolTipCtrlEx::m_hIconSmallBottom = m_small;
}
